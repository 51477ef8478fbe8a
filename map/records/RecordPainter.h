#pragma once
// Paints the routes and the dots of records into a picture of a part of the map, for machines that
// draw pictures more quickly than triangles. Immutable; any thread.

#include "map/records/MarkerLayout.h"
#include "map/records/RecordSet.h"
#include "map/records/RouteLines.h"

#include <QColor>
#include <QImage>

#include <map>
#include <memory>
#include <vector>

class QPainter;

namespace vasker {

struct RecordColors {
    std::vector<Rgb> tints; ///< by AssetIndex
    QColor dotCasing;
    QColor routeCasing;
};

class RecordPainter {
  public:
    /// `dots` in order of priority: the first is drawn on top. `devicePixels` per logical pixel.
    RecordPainter(std::shared_ptr<const LoadedRelease> loaded,
                  RouteColors routes,
                  std::vector<Marker> dots,
                  RecordColors colors,
                  double devicePixels);

    /// Paints what lies in and around `bounds` (map points). The painter's unit is the device
    /// pixel, its origin the north-west corner of `bounds`.
    void paint(QPainter& painter, const MapRect& bounds, double devicePixelsPerMapPoint) const;

  private:
    void paintRoutes(QPainter& painter, const MapRect& bounds, double scale) const;
    void paintDots(QPainter& painter, const MapRect& bounds, double scale) const;

    std::shared_ptr<const LoadedRelease> m_loaded;
    RouteColors m_routes;
    std::vector<Marker> m_dots;
    RecordColors m_colors;
    double m_devicePixels;
    std::map<Rgb, QImage> m_sprites;
};

} // namespace vasker
