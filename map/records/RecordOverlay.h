#pragma once
// The routes and dots of records, painted over the raster tiles of the basemap: on a machine
// without a graphics card that is quicker than drawing them in each frame. Immutable; any thread.

#include "map/layers/Rgb.h"
#include "map/raster/LineCoverage.h"
#include "map/records/LoadedRelease.h"
#include "map/records/MarkerLayout.h"
#include "map/records/RouteLines.h"
#include "map/style/TileOverlay.h"

#include <QColor>
#include <QImage>

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace vasker {

struct RecordColors {
    std::vector<Rgb> records; ///< by AssetIndex
    QColor dotCasing;
    QColor routeCasing;
};

class RecordOverlay final : public TileOverlay {
  public:
    /// The dots of `layout`, and the routes that have a colour. `devicePixels` per logical pixel.
    RecordOverlay(std::shared_ptr<const LoadedRelease> loaded,
                  RouteColors routes,
                  std::shared_ptr<const MarkerLayout> layout,
                  RecordColors colors,
                  double devicePixels);

    void paint(QImage& image, const MapRect& bounds, double devicePixelsPerMapPoint) const override;

    [[nodiscard]] bool paintsLike(const TileOverlay& other,
                                  const MapRect& bounds,
                                  double devicePixelsPerMapPoint) const override;

    [[nodiscard]] const std::shared_ptr<const LoadedRelease>& loaded() const { return m_loaded; }
    /// Which records are dots of the overlay; the others are pins.
    [[nodiscard]] const MarkerLayout& layout() const noexcept { return *m_layout; }

  private:
    void paintRoutes(QImage& image, const MapRect& bounds, double scale) const;
    void paintDots(QImage& image, const MapRect& bounds, double scale) const;
    /// Whether the routes near `bounds` have the same colors.
    [[nodiscard]] bool hasRoutesOf(const RecordOverlay& other, const MapRect& bounds) const;
    [[nodiscard]] double dotMargin(double scale) const;

    std::shared_ptr<const LoadedRelease> m_loaded;
    RouteColors m_routes;
    std::shared_ptr<const MarkerLayout> m_layout;
    RecordColors m_colors;
    double m_devicePixels;
    LineCoverage m_lines;
    std::vector<Rgb> m_lineColors; ///< each once, in the order in which they are painted
    std::map<std::pair<Rgb, bool>, QImage> m_sprites; ///< by colour and whether they are quiet
};

} // namespace vasker
