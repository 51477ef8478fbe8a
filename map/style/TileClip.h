#pragma once
// The part of a tile's data that a picture shows: from fractions of the data's tile to device
// pixels of the picture, cut to the picture and a margin around it.
//
// Whatever the data hold, results lie within the margin: values that are no numbers are passed
// over, and cost is in proportion to the number of points.

#include "map/style/TilePicture.h"

#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace vasker {

class TileClip {
  public:
    /// Geometry is kept as far as this outside the picture, in device pixels: more than half of the
    /// widest line, so that cut ends stay out of sight.
    static constexpr double margin = 48;

    /// The picture of `request` from the data of `dataKey`: its own tile or an ancestor.
    TileClip(TileKey dataKey, const TileRequest& request) noexcept;

    /// The tile's own edges in the picture, which covers all pixels that they touch.
    [[nodiscard]] QRectF tileEdges() const noexcept { return m_tileEdges; }
    /// Whether any of the feature's bounds lies in the window.
    [[nodiscard]] bool shows(const VectorFeature& feature) const noexcept;
    /// A closed ring, cut. Empty where nothing is left of it.
    [[nodiscard]] QPolygonF ring(const std::vector<TilePoint>& ring) const;
    /// What is left of a line, in the order of its points.
    [[nodiscard]] std::vector<QPolygonF> line(const std::vector<TilePoint>& line) const;
    /// A ring's outline, without the edges along which the data were cut to their tile.
    [[nodiscard]] std::vector<QPolygonF> outline(const std::vector<TilePoint>& ring) const;

  private:
    [[nodiscard]] QPointF toPicture(TilePoint point) const noexcept;
    [[nodiscard]] bool holds(QPointF point) const noexcept;
    void appendSegment(std::vector<QPolygonF>& lines, QPointF from, QPointF to) const;

    QPointF m_origin; ///< of the data's tile, in the picture
    double m_scale;   ///< device pixels per side of the data's tile
    QRectF m_tileEdges;
    QRectF m_kept; ///< the picture and its margin
};

} // namespace vasker
