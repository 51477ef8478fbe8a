#pragma once
// Raster tiles that belong together: painted at one scale, in one theme, with one state of the
// records. A generation is shown as a whole.

#include "map/basemap/BasemapView.h"
#include "map/basemap/RasterTile.h"
#include "map/basemap/TileJob.h"
#include "map/geometry/TileCover.h"
#include "map/labels/MapLanguage.h"
#include "map/tileservice/ServiceTile.h"

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace vasker {

struct TileGeneration {
    /// A tile that the workers were asked for.
    struct Request {
        std::shared_ptr<std::atomic<bool>> begun;
        bool isOutdated = false; ///< something came in after it was begun
    };

    double scale; ///< logical pixels per map point
    int zoom;     ///< of its nearest tiles
    double devicePixelsPerPixel;
    BasemapTheme theme;
    MapLanguage language;
    std::uint64_t overlayRevision;
    std::shared_ptr<const TileOverlay> overlay;
    std::map<TileKey, RasterTile> tiles;
    std::map<TileKey, RasterTile> bare; ///< painted, but for the overlay
    std::set<TileKey> outdated;         ///< of `tiles`: more is known of them now
    std::map<TileKey, Request> requests;
    bool wasAwaited = false; ///< a frame has waited for its overlay

    /// A generation for `view`, without tiles and overlay.
    TileGeneration(double ownScale, int ownZoom, const BasemapView& view);

    /// Whether its tiles look as `view` asks, apart from scale and overlay.
    [[nodiscard]] bool looksLike(const BasemapView& view) const noexcept;
    /// Whether it has all tiles of `cover`.
    [[nodiscard]] bool covers(const std::vector<CoverTile>& cover) const;
    /// The same, apart from the overlay.
    [[nodiscard]] bool coversBare(const std::vector<CoverTile>& cover) const;
    /// The work of one of its tiles.
    [[nodiscard]] TileJob jobFor(TileKey key, std::shared_ptr<TileProvider> provider) const;

    /// Has `tile` from here on. `isOutdated`: more is known of it already.
    void take(RasterTile tile, bool isOutdated);
    /// Takes over what `other`, of the same scale and theme, has painted: tiles in which both
    /// overlays are alike, and the basemap of others.
    void takeOver(const TileGeneration& other);
    /// More is known of `tile` now; whether that concerns a tile of this generation.
    bool markOutdated(const ServiceTile& tile);
    /// Of tiles that are shown, only those of `cover` keep what a new overlay would be painted on.
    void dropBasemapsOutside(const std::vector<CoverTile>& cover);
    /// Drops what lies farther than `margin` pixels outside the view.
    void trim(const Camera& camera, double margin);
};

/// Whether one of the two holds the other, or both are the same.
[[nodiscard]] bool isRelated(TileKey a, TileKey b) noexcept;

} // namespace vasker
