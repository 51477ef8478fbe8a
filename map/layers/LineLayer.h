#pragma once
// Lines of constant width on the screen, as one triangle strip.

#include "map/geometry/Camera.h"

#include <QColor>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace vasker {

/// A corner of a strip. Each point of a line has two, one for either edge.
struct LineVertex {
    /// Which corner of the line's cross-section this is. The tips lie half a line's width beyond an
    /// end of the line and carry its round cap.
    enum class Corner : std::uint8_t { left = 0, right = 1, leftTip = 2, rightTip = 3 };

    float x, y;             ///< on the line, in item pixels
    float offsetX, offsetY; ///< from the line to the corner, in halves of the line's width
    std::uint8_t red, green, blue;
    Corner corner;
};

/// One triangle strip; parts of it are joined by triangles without area.
using LineStrip = std::vector<LineVertex>;

/// Widths in logical pixels.
struct LineStyle {
    double width = 2;
    double casingWidth = 1; ///< on either side of the core
    QColor casing;
    std::optional<QColor> color; ///< instead of each line's own
    friend bool operator==(const LineStyle&, const LineStyle&) = default;
};

struct LineLayer {
    /// Never changes; null: there are no lines. The scene graph keeps it until another one comes.
    std::shared_ptr<const LineStrip> strip;
    LineStyle style;
    ScreenPoint offset{0, 0}; ///< of the strip in the item, in item pixels
};

} // namespace vasker
