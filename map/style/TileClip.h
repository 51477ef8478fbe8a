#pragma once
// Clips a tile's data to the raster tile that shows them: from fractions of the data's tile to
// device pixels, cut at a margin around the raster tile.
//
// Whatever the data hold, results lie within the margin: values that are no numbers are passed
// over, and the cost is proportional to the number of points.

#include "map/style/TileRequest.h"
#include "map/tiles/VectorTile.h"

#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace vasker {

class TileClip {
  public:
    /// Geometry is kept as far as this outside the raster tile, in device pixels: more than half of
    /// the widest line, so that cut ends stay out of sight.
    static constexpr double margin = 48;

    /// The raster tile of `request` from the data of `dataKey`: its own tile or an ancestor.
    TileClip(TileKey dataKey, const TileRequest& request) noexcept;

    /// The tile's own edges; the raster tile covers all pixels that they touch.
    [[nodiscard]] QRectF tileEdges() const noexcept { return m_tileEdges; }
    /// Whether any of the feature's bounds lies within the margin.
    [[nodiscard]] bool shows(const VectorFeature& feature) const noexcept;
    /// A closed ring, cut. Empty where nothing is left of it.
    [[nodiscard]] QPolygonF ring(const std::vector<TilePoint>& ring) const;
    /// What is left of a line, in the order of its points.
    [[nodiscard]] std::vector<QPolygonF> line(const std::vector<TilePoint>& line) const;
    /// A ring's outline, without the edges along which the data were cut to their tile.
    [[nodiscard]] std::vector<QPolygonF> outline(const std::vector<TilePoint>& ring) const;

  private:
    [[nodiscard]] QPointF toPixels(TilePoint point) const noexcept;
    [[nodiscard]] bool holds(QPointF point) const noexcept;
    void appendSegment(std::vector<QPolygonF>& lines, QPointF from, QPointF to) const;

    QPointF m_origin; ///< of the data's tile, in the raster tile
    double m_scale;   ///< device pixels per side of the data's tile
    QRectF m_tileEdges;
    QRectF m_kept; ///< the raster tile and its margin
};

} // namespace vasker
