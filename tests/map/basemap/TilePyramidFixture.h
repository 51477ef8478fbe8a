#pragma once
// A store of tiles over an archive of the test's own and a web server of the test's own, and the
// view that looks at it.

#include "map/basemap/TilePyramid.h"
#include "tests/map/style/TileDataBuilder.h"
#include "tests/map/tileservice/ServiceFixture.h"

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace vasker {

/// Where the tests look: the corner in which four tiles of zoom 9 meet, at their own scale.
inline constexpr int homeZoom = 9;
inline constexpr TileKey homeTile{homeZoom, 100, 170};
inline const double homeScale = tilePixels / homeTile.side();

inline const QString archiveThanks = QStringLiteral("The archive");
inline const QString mapThanks = QStringLiteral("Maps");
inline const QString photographThanks = QStringLiteral("Photographs");

class TilePyramidFixture : public ServiceFixture {
  protected:
    TilePyramidFixture() {
        view.camera = cameraAt(homeTile);
        view.fades = false;
    }
    ~TilePyramidFixture() override { close(); }

    [[nodiscard]] static Camera
    cameraAt(TileKey corner, double scale = homeScale, Viewport viewport = {900, 700}) {
        const MapRect bounds = corner.bounds();
        return {CameraPose{{bounds.x, bounds.y}, scale, 0, 0}, viewport};
    }

    /// The archive: the whole world is land.
    void writeLand() { write({{{0, 0, 0}, landTile()}}); }
    void write(const ArchivedTiles& tiles) {
        archives.vector = folder.filePath(QStringLiteral("ground.mbtiles")).toStdString();
        writeArchive(archives.vector, tiles, archiveThanks.toStdString());
    }
    void open(const TileSources& services) {
        library = std::make_unique<TileLibrary>(archives, services, options);
        store = std::make_unique<TilePyramid>(*library);
    }
    void openWithoutServices() { open({}); }
    void openWithServices() {
        TileSources services = sources(server, server);
        services.vector.front().attribution = mapThanks;
        services.imagery.front().attribution = photographThanks;
        open(services);
    }
    void close() {
        store.reset();
        library.reset();
    }

    void look() { store->look(view, now); }
    /// Looks, frame by frame, until it is so.
    template <typename Condition>
    [[nodiscard]] bool lookUntil(Condition condition) {
        return comesTrue([&] {
            now += std::chrono::milliseconds(16);
            look();
            return condition();
        });
    }
    [[nodiscard]] bool lookUntilComplete() {
        return lookUntil([&] { return store->isComplete(); });
    }

    /// The colour in the middle of what stands on top at a place of the screen; none: a hole.
    [[nodiscard]] std::optional<QColor> colorAt(ScreenPoint place) const {
        const MapPoint point = view.camera.screenToWorld(place);
        for (auto each = store->shown().rbegin(); each != store->shown().rend(); ++each) {
            const MapRect bounds = each->tile->key.bounds();
            const MapPoint there{point.x - each->shift, point.y};
            if (each->opacity > 0 && bounds.contains(there)) {
                const QImage& image = each->tile->image;
                return image.pixelColor(
                    static_cast<int>((there.x - bounds.x) / bounds.width * image.width()),
                    static_cast<int>((there.y - bounds.y) / bounds.height * image.height()));
            }
        }
        return std::nullopt;
    }
    [[nodiscard]] std::optional<QColor> middleColor() const {
        const ScreenPoint focus = view.camera.focus();
        return colorAt({focus.x + 20, focus.y + 20});
    }
    /// Whether no place of the screen is bare.
    [[nodiscard]] bool hasNoHole() const {
        const Viewport viewport = view.camera.viewport();
        for (double x = 1; x < viewport.width; x += 30) {
            for (double y = 1; y < viewport.height; y += 30) {
                if (!colorAt({x, y})) {
                    return false;
                }
            }
        }
        return true;
    }
    [[nodiscard]] std::vector<QString> thanks() const {
        std::vector<QString> texts;
        for (const TileAttribution& credit : store->credits()) {
            texts.push_back(credit.text);
        }
        std::ranges::sort(texts);
        return texts;
    }

    TileArchivePaths archives;
    BasemapView view;
    std::chrono::nanoseconds now{0};
    std::unique_ptr<TileLibrary> library;
    std::unique_ptr<TilePyramid> store;
};

} // namespace vasker
