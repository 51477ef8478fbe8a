#pragma once
// One image with every pin that a release needs, drawn at the screen's density.

#include "map/geometry/Camera.h"
#include "map/style/BasemapTheme.h"

#include <QImage>
#include <QRectF>

#include <map>
#include <span>
#include <string>
#include <string_view>

class QPainter;

namespace vasker {

enum class PinState { plain, hovered, selected };

/// Draws the pin of `kind`, the top-left of its region on the painter's origin. Changes the
/// painter's state. Any thread.
void paintPin(QPainter& painter, std::string_view kind, BasemapTheme basemap, PinState state);

class PinAtlas {
  public:
    /// Pins for `kinds`, `devicePixels` per logical pixel.
    PinAtlas(std::span<const std::string> kinds, BasemapTheme theme, double devicePixels);

    [[nodiscard]] const QImage& image() const noexcept { return m_image; }
    /// Where the pin of `kind` stands in the image, in logical pixels; empty for a kind that the
    /// image was not made for.
    [[nodiscard]] QRectF region(std::string_view kind, PinState state) const;
    /// The tip of a pin, from the top-left of its region.
    [[nodiscard]] static ScreenPoint tip(PinState state) noexcept;

  private:
    QImage m_image;
    std::map<std::string, int, std::less<>> m_columns; ///< by symbol
};

} // namespace vasker
