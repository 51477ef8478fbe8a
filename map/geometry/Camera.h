#pragma once
// Where the map looks. A CameraPosition is what the workspace stores and any window can show; a
// Camera is a position resolved for a viewport.
//
// The camera hangs above its centre on the map plane, rotated by its bearing and tilted by its
// pitch, at a distance of 1.5 times the viewport's height in pixels (a field of view of 37
// degrees).

#include "map/geometry/MapRect.h"
#include "map/geometry/Projection.h"
#include "map/geometry/Viewport.h"

#include <array>
#include <variant>
#include <vector>

namespace vasker {

/// A centre and a span, in degrees.
struct CoordinateRegion {
    Coordinate center;
    double latitudeDelta;
    double longitudeDelta;
    friend bool operator==(const CoordinateRegion&, const CoordinateRegion&) = default;
};

/// Where the user left the camera.
struct CameraPose {
    MapPoint center{};  ///< in the middle of the viewport's free part
    double scale = 1;   ///< logical pixels per map point there
    double bearing = 0; ///< the direction that is up: degrees clockwise from north, [0, 360)
    double pitch = 0;   ///< degrees from straight above, 0 to Camera::maximumPitch
    friend bool operator==(const CameraPose&, const CameraPose&) = default;
};

/// All of the region or of the rectangle is shown, north up and from straight above, whatever the
/// window's shape.
using CameraPosition = std::variant<CoordinateRegion, MapRect, CameraPose>;

/// What the map shows first, and what "Canada" returns to.
inline constexpr CoordinateRegion canadaOverview{{54.0, -112.0}, 20.0, 40.0};

/// A place on the map item in perspective: x / w and y / w are logical pixels; w is 1 at the
/// camera's centre and grows with the distance.
struct PerspectivePoint {
    double x;
    double y;
    double w;
};

/// How far to the east, in map points, lie those copies of the world that `rect` reaches into:
/// multiples of worldSize, west to east.
[[nodiscard]] std::vector<double> worldCopyOffsets(const MapRect& rect);

class Camera {
  public:
    /// Logical pixels per map point at the nearest zoom: about 4 cm a pixel at the
    /// equator.
    static constexpr double maximumScale = 4;
    /// Degrees.
    static constexpr double maximumPitch = 60;

    /// The camera that shows all of `position`, centred in the free part of the viewport, as near
    /// as that and maximumScale allow; the farthest view is the whole world in the free part. Spans
    /// that reach beyond the projected world are cut to it. A pose is taken as it is, brought into
    /// its ranges. Values that are not finite give the Canada overview.
    Camera(const CameraPosition& position, Viewport viewport);
    Camera(const CameraPose& pose, Viewport viewport);

    [[nodiscard]] const CameraPose& pose() const noexcept { return m_pose; }
    /// x is at least 0 and below worldSize.
    [[nodiscard]] MapPoint center() const noexcept { return m_pose.center; }
    /// Logical pixels per map point at the centre.
    [[nodiscard]] double scale() const noexcept { return m_pose.scale; }
    [[nodiscard]] Viewport viewport() const noexcept { return m_viewport; }
    /// Where the centre stands in the viewport: the middle of its free part.
    [[nodiscard]] ScreenPoint focus() const noexcept;
    /// Whether north is up and the map seen from straight above.
    [[nodiscard]] bool isUpright() const noexcept { return m_pose.bearing == 0 && isFlat(); }
    [[nodiscard]] bool isFlat() const noexcept { return m_pose.pitch == 0; }

    /// Every copy of the world has its own places: x may lie outside the projected world. Points
    /// behind the camera have a w of 0 or less.
    [[nodiscard]] PerspectivePoint worldToPerspective(MapPoint point) const noexcept;
    /// For points before the camera.
    [[nodiscard]] ScreenPoint worldToScreen(MapPoint point) const noexcept;
    /// Points near and above the horizon give a place far away in their direction.
    [[nodiscard]] MapPoint screenToWorld(ScreenPoint point) const noexcept;
    /// The places at the viewport's corners, each moved outwards by `margin` pixels: top left,
    /// top right, bottom right, bottom left. All that is seen lies between them.
    [[nodiscard]] std::array<MapPoint, 4> visibleCorners(double margin = 0) const noexcept;
    /// The smallest rectangle around visibleCorners(); may reach into other copies of the world.
    [[nodiscard]] MapRect visibleRect(double margin = 0) const noexcept;

    /// The moves below stop at the limits; by numbers that are not finite nothing moves.

    /// The camera after the place under `from` was dragged to `to`. The centre stays in the world;
    /// across the date line it comes in again on the other side.
    [[nodiscard]] Camera dragged(ScreenPoint from, ScreenPoint to) const;
    /// The camera moved over the map to its right and backwards, by so many pixels at its
    /// centre.
    [[nodiscard]] Camera panned(double rightPixels, double downPixels) const;
    /// The camera `factor` times as near, with the place under `anchor` kept there as far
    /// as the limits of scale and centre allow. A factor that is not positive changes nothing.
    [[nodiscard]] Camera zoomed(double factor, ScreenPoint anchor) const;
    /// The camera rotated clockwise by `degrees` about the place under `anchor`.
    [[nodiscard]] Camera rotated(double degrees, ScreenPoint anchor) const;
    /// The camera tilted by `degrees` more, about its centre.
    [[nodiscard]] Camera tilted(double degrees) const;

  private:
    void setPose(const CameraPose& pose) noexcept;
    /// This camera in another pose; unmoved if the pose is not finite.
    [[nodiscard]] Camera posed(const CameraPose& pose) const;
    /// This camera, moved so that `point` is seen at `place`.
    [[nodiscard]] Camera withPointAt(MapPoint point, ScreenPoint place) const;

    CameraPose m_pose;
    Viewport m_viewport;
    double m_bearingSine = 0;
    double m_bearingCosine = 1;
    double m_pitchSine = 0;
    double m_pitchCosine = 1;
};

} // namespace vasker
