#include "map/geometry/TileCover.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vasker {

namespace {

using Corners = std::array<PerspectivePoint, 4>;

Corners cornersOf(const Camera& camera, const MapRect& bounds) {
    const double east = bounds.x + bounds.width;
    const double south = bounds.y + bounds.height;
    return {camera.worldToPerspective({bounds.x, bounds.y}),
            camera.worldToPerspective({east, bounds.y}),
            camera.worldToPerspective({east, south}),
            camera.worldToPerspective({bounds.x, south})};
}

/// Whether no edge of the view has all corners outside.
bool isSeen(const Camera& camera, const Corners& corners, double margin) {
    const double right = camera.viewport().width + margin;
    const double bottom = camera.viewport().height + margin;
    const auto all = [&corners](auto isOutside) {
        return std::all_of(corners.begin(), corners.end(), isOutside);
    };
    return !all([](const auto& p) { return p.w <= 0; }) &&
           !all([&](const auto& p) { return p.x < -margin * p.w; }) &&
           !all([&](const auto& p) { return p.x > right * p.w; }) &&
           !all([&](const auto& p) { return p.y < -margin * p.w; }) &&
           !all([&](const auto& p) { return p.y > bottom * p.w; });
}

class Cover {
  public:
    Cover(const Camera& camera, int zoom, double margin)
        : m_camera(camera), m_zoom(zoom), m_margin(margin),
          m_nearest(camera.worldToPerspective(camera.visibleCorners()[2]).w) {}

    void add(TileKey key, double offset) {
        const MapRect bounds = key.bounds().shifted(offset);
        const Corners corners = cornersOf(m_camera, bounds);
        if (!isSeen(m_camera, corners, m_margin)) {
            return;
        }
        if (key.zoom >= zoomAt(corners)) {
            m_found.push_back({{key, offset}, distanceToFocus(bounds)});
            return;
        }
        for (const int child : {0, 1, 2, 3}) {
            add(key.child(child), offset);
        }
    }

    [[nodiscard]] std::vector<CoverTile> found() {
        std::stable_sort(m_found.begin(), m_found.end(), [](const auto& a, const auto& b) {
            return a.distance < b.distance;
        });
        std::vector<CoverTile> tiles;
        tiles.reserve(m_found.size());
        for (const Found& found : m_found) {
            tiles.push_back(found.tile);
        }
        return tiles;
    }

  private:
    struct Found {
        CoverTile tile;
        double distance; ///< map points
    };

    /// Every doubling of the distance needs a zoom less.
    [[nodiscard]] int zoomAt(const Corners& corners) const {
        double w = corners[0].w;
        for (const PerspectivePoint& corner : corners) {
            w = std::min(w, corner.w);
        }
        return m_zoom -
               std::max(0, static_cast<int>(std::lround(std::log2(std::max(w, m_nearest)))));
    }

    [[nodiscard]] double distanceToFocus(const MapRect& bounds) const {
        const MapPoint middle = bounds.center();
        const MapPoint center = m_camera.center();
        return std::hypot(middle.x - center.x, middle.y - center.y);
    }

    const Camera& m_camera;
    int m_zoom;
    double m_margin;
    double m_nearest; ///< w at the bottom of the view
    std::vector<Found> m_found;
};

} // namespace

int tileZoom(double scale) noexcept {
    return std::clamp(static_cast<int>(std::lround(std::log2(scale * worldSize / tilePixels))),
                      0,
                      maximumTileZoom);
}

bool seesTile(const Camera& camera, const CoverTile& tile, double margin) {
    return isSeen(camera, cornersOf(camera, tile.key.bounds().shifted(tile.offset)), margin);
}

std::vector<CoverTile> tileCover(const Camera& camera, int zoom, double margin) {
    Cover cover(camera, std::clamp(zoom, 0, maximumTileZoom), margin);
    for (const double offset : worldCopyOffsets(camera.visibleRect(margin))) {
        cover.add({0, 0, 0}, offset);
    }
    return cover.found();
}

} // namespace vasker
