#pragma once
// Memory of images for reuse: the system maps and clears large blocks each time they are allocated,
// which takes longer than painting many a tile.

#include <QImage>

#include <cstddef>

namespace vasker {

/// Of images that are gone, so many bytes at most are kept.
inline constexpr std::size_t mostPooledBytes = 8'000'000;

/// An image of that size whose pixels are undefined. Its memory is kept for the next one when the
/// image and all that share it are gone. Any thread.
[[nodiscard]] QImage pooledImage(int width, int height, QImage::Format format);

/// A copy of `image` in such memory.
[[nodiscard]] QImage pooledCopy(const QImage& image);

/// Gives what is kept back to the system. Any thread.
void emptyImagePool();

/// How many bytes are kept now.
[[nodiscard]] std::size_t pooledBytes();

} // namespace vasker
