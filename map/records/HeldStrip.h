#pragma once
// The strip of one record's routes, kept from frame to frame: while the map is only shifted, the
// strip is shifted too, and neither made nor uploaded again.

#include "map/geometry/Camera.h"
#include "map/layers/LineLayer.h"
#include "map/records/RecordGeometry.h"
#include "map/records/RouteLines.h"

#include <memory>
#include <optional>
#include <span>

namespace vasker {

class HeldStrip {
  public:
    /// How far beyond the view of a map that is not tilted, in pixels, lines are held.
    static constexpr double margin = 256;

    /// What its lines cost at most: a painter draws them anew in each frame. Twice what a network
    /// of 1,500 lines costs that fills the view.
    static constexpr double mostPixels = 200'000;

    struct Placed {
        std::shared_ptr<const LineStrip> strip;
        ScreenPoint offset; ///< of the strip in the item, in pixels
    };
    /// The lines of `runs` as `camera` sees them.
    [[nodiscard]] Placed shown(const RecordGeometry& geometry,
                               std::span<const RouteRun> runs,
                               const RouteColors& colors,
                               const Camera& camera);
    /// Runs, geometry or colours are others now.
    void drop() { *this = {}; }

  private:
    /// How far the map has gone since the strip was made; nothing where it did more than that, or
    /// went too far.
    [[nodiscard]] std::optional<ScreenPoint> shift(const Camera& camera) const;

    std::optional<Camera> m_camera; ///< that the strip was made for; none: there is no strip
    std::shared_ptr<const LineStrip> m_strip;
};

} // namespace vasker
