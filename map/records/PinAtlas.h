#pragma once
// One picture with every pin that a release needs, drawn at the screen's density.

#include "map/geometry/Camera.h"
#include "map/style/MapColors.h"

#include <QImage>
#include <QRectF>

#include <map>
#include <span>
#include <string>
#include <string_view>

namespace vasker {

enum class PinState { plain, hovered, selected };

class PinAtlas {
  public:
    /// Pins for `kinds` on a ground of `look`, `devicePixels` per logical pixel.
    PinAtlas(std::span<const std::string> kinds, BasemapTheme look, double devicePixels);

    [[nodiscard]] const QImage& image() const noexcept { return m_image; }
    /// Where the pin of `kind` stands in the picture, in logical pixels. A kind that the
    /// picture was not made for gives an empty rectangle.
    [[nodiscard]] QRectF cut(std::string_view kind, PinState state) const;
    /// The tip of a pin, from the top-left of its cut.
    [[nodiscard]] static ScreenPoint tip(PinState state) noexcept;

  private:
    QImage m_image;
    std::map<std::string, int, std::less<>> m_columns; ///< by symbol
};

} // namespace vasker
