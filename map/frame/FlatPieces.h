#pragma once
// An image in perspective as pieces without: painters rotate and scale images several times as fast
// as they give them perspective, and a piece that is small enough looks the same.

#include <QRectF>
#include <QTransform>

#include <vector>

namespace vasker {

/// A part of an image, and where it is painted.
struct FlatPiece {
    QRectF part;          ///< in pixels of the image
    QTransform transform; ///< without perspective
};

/// The pieces of `image` that may touch `seen`. Each of their pixels lies within a quarter of a
/// pixel of where `transform`, to pixels of the device, has it. Empty where too many would be
/// needed, and where a part of the image lies behind the eye.
[[nodiscard]] std::vector<FlatPiece>
flatPieces(const QTransform& transform, const QRectF& image, const QRectF& seen);

} // namespace vasker
