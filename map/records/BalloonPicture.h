#pragma once
// One picture with every balloon that a release needs, drawn at the screen's density.

#include "map/geometry/Camera.h"
#include "map/style/MapColors.h"

#include <QImage>
#include <QRectF>

#include <map>
#include <span>
#include <string>
#include <string_view>

namespace vasker {

enum class BalloonState { plain, hovered, selected };

class BalloonPicture {
  public:
    /// Balloons for `kinds` on a ground of `look`, `devicePixels` per logical pixel.
    BalloonPicture(std::span<const std::string> kinds, BasemapLook look, double devicePixels);

    [[nodiscard]] const QImage& image() const noexcept { return m_image; }
    /// Where the balloon of `kind` stands in the picture, in logical pixels. A kind that the
    /// picture was not made for gives an empty rectangle.
    [[nodiscard]] QRectF cut(std::string_view kind, BalloonState state) const;
    /// The tip of a balloon, from the top-left of its cut.
    [[nodiscard]] static ScreenPoint tip(BalloonState state) noexcept;

  private:
    QImage m_image;
    std::map<std::string, int, std::less<>> m_columns; ///< by symbol
};

} // namespace vasker
