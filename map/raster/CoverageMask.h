#pragma once
// How much of each pixel of an image lines cover. A pixel that several lines cover counts once, as
// much as the nearest of them covers it: lines that share a corridor stay as thin as one line.

#include "map/geometry/Camera.h"

#include <QColor>
#include <QImage>

#include <cstdint>
#include <vector>

namespace vasker {

class CoverageMask {
  public:
    /// Of an image of this many pixels; nothing is covered.
    CoverageMask(int width, int height);

    [[nodiscard]] int width() const noexcept { return m_width; }
    [[nodiscard]] int height() const noexcept { return static_cast<int>(m_rows.size()); }
    /// How much of a pixel is covered: 0 is nothing, 255 all. The pixel lies inside the image.
    [[nodiscard]] std::uint8_t coverage(int x, int y) const { return m_coverage[index(x, y)]; }

    /// Blends `color` over the covered pixels of `image`: opaque, of this size, 32 bits a pixel.
    void paint(QImage& image, const QColor& color) const;

  private:
    friend class LineCoverage;

    /// The pixels of a row that may be covered.
    struct Touched {
        int from;
        int to;
    };

    [[nodiscard]] std::size_t index(int x, int y) const noexcept {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
               static_cast<std::size_t>(x);
    }
    /// The coverages of row `y`, of which those from `from` to before `to` are about to be raised.
    [[nodiscard]] std::uint8_t* touch(int y, int from, int to);

    int m_width;
    std::vector<Touched> m_rows;
    std::vector<std::uint8_t> m_coverage; ///< row by row
};

} // namespace vasker
