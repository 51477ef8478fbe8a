#pragma once
// Where the map looks. A CameraPosition is what the workspace stores and any window can show; a
// Camera is that wish resolved for a viewport: north up, seen from straight above.

#include "map/geometry/MapRect.h"
#include "map/geometry/Projection.h"

#include <variant>

namespace vasker {

/// A centre and a span, in degrees.
struct CoordinateRegion {
    Coordinate center;
    double latitudeDelta;
    double longitudeDelta;
    friend bool operator==(const CoordinateRegion&, const CoordinateRegion&) = default;
};

/// All of the region or of the rectangle is shown, whatever the window's shape.
using CameraPosition = std::variant<CoordinateRegion, MapRect>;

/// What the map shows first, and what "Canada" returns to.
inline constexpr CoordinateRegion canadaOverview{{54.0, -112.0}, 20.0, 40.0};

/// A place on the map item: logical pixels from its top-left corner, y down.
struct ScreenPoint {
    double x;
    double y;
    friend bool operator==(const ScreenPoint&, const ScreenPoint&) = default;
};

/// The size of the map item in logical pixels; at least 1 by 1.
struct Viewport {
    double width;
    double height;
    friend bool operator==(const Viewport&, const Viewport&) = default;
};

class Camera {
  public:
    /// Logical pixels per map point at the nearest zoom: about 4 cm of ground a pixel at the
    /// equator.
    static constexpr double maximumScale = 4;

    /// The camera that shows all of `position`, centred, as near as the viewport and maximumScale
    /// allow. Spans that reach beyond the projected world are cut to it. Values that are not finite
    /// give the Canada overview.
    Camera(const CameraPosition& position, Viewport viewport);

    [[nodiscard]] MapPoint center() const noexcept { return m_center; }
    /// Logical pixels per map point.
    [[nodiscard]] double scale() const noexcept { return m_scale; }
    [[nodiscard]] Viewport viewport() const noexcept { return m_viewport; }

    [[nodiscard]] ScreenPoint worldToScreen(MapPoint point) const noexcept;
    [[nodiscard]] MapPoint screenToWorld(ScreenPoint point) const noexcept;
    /// What the viewport shows. As a CameraPosition it resolves to this camera again.
    [[nodiscard]] MapRect visibleRect() const noexcept;

    /// The camera after the ground was dragged by `dx`, `dy` pixels. The centre stays in the world.
    [[nodiscard]] Camera panned(double dx, double dy) const noexcept;
    /// The camera `factor` times as near, with the ground under `anchor` kept in its place as far
    /// as the limits of scale and centre allow. A factor that is not positive changes nothing.
    [[nodiscard]] Camera zoomed(double factor, ScreenPoint anchor) const noexcept;

  private:
    Camera(MapPoint center, double scale, Viewport viewport) noexcept;

    MapPoint m_center;
    double m_scale;
    Viewport m_viewport;
};

} // namespace vasker
