#pragma once
// Decodes imagery tiles. The bytes are untrusted: whatever is wrong with them costs the tile, never
// more. Any thread.

#include <QByteArray>
#include <QImage>

namespace vasker {

/// The longest side of an image that is decoded, in pixels; services send 256 or 512.
inline constexpr int maximumImagerySide = 1024;

/// Scans of a JPEG image; progressive ones have about ten.
inline constexpr int maximumImageryScans = 100;

/// The image, Format_RGB32; null where the bytes are no whole JPEG, PNG or WebP image,
/// its sides are too long, its scans too many, or Qt has no reader for it (for WebP that is a
/// package of its own).
[[nodiscard]] QImage decodedImagery(const QByteArray& bytes);

} // namespace vasker
