#pragma once
// A pyramid of tiles over an archive and a web server of the test's own, the view that looks at it,
// and what the scene graph would have of it.

#include "map/basemap/TilePyramid.h"
#include "map/style/MapTheme.h"
#include "tests/map/style/TileDataBuilder.h"
#include "tests/map/tileservice/ServiceFixture.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace vasker {

/// Where the tests look: the corner in which four tiles of zoom 9 meet, at their own scale.
inline constexpr int homeZoom = 9;
inline constexpr TileKey homeTile{homeZoom, 100, 170};
inline const double homeScale = tilePixels / homeTile.side();

inline const QString archiveCredit = QStringLiteral("The archive");
inline const QString mapCredit = QStringLiteral("Maps");
inline const QString imageryCredit = QStringLiteral("Imagery");

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

    void scaleTo(double factor) { view.camera = cameraAt(homeTile, factor * homeScale); }

    /// The archive: the whole world is land.
    void writeLand() { write({{{0, 0, 0}, landTile()}}); }
    void write(const ArchivedTiles& tiles) {
        archives.vector = folder.filePath(QStringLiteral("basemap.mbtiles")).toStdString();
        writeArchive(archives.vector, tiles, archiveCredit.toStdString());
    }
    /// The archive of imagery: one red tile.
    void writeImagery(TileKey key) {
        archives.imagery = folder.filePath(QStringLiteral("imagery.mbtiles")).toStdString();
        writeArchive(archives.imagery,
                     {{key, imageryImage(Qt::red).toStdString()}},
                     imageryCredit.toStdString());
    }
    void open(const TileSources& services) {
        library = std::make_unique<TileLibrary>(archives, services, options);
        pyramid = std::make_unique<TilePyramid>(*library);
    }
    void openWithoutServices() { open({}); }
    void openWithServices() {
        TileSources services = sources(server, server);
        services.vector.front().attribution = mapCredit;
        services.imagery.front().attribution = imageryCredit;
        open(services);
    }
    void close() {
        pyramid.reset();
        textures.clear();
        library.reset();
    }

    void look() {
        frame = pyramid->compose(view, now);
        for (const TileImage& each : frame.tiles.newImages) {
            textures.insert_or_assign(each.tile, each.image);
        }
        std::erase_if(textures, [this](const auto& texture) {
            return !std::ranges::binary_search(frame.tiles.kept, texture.first);
        });
    }
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
        return lookUntil([&] { return frame.isComplete; });
    }

    /// A tile as it is seen: on the screen, upright.
    struct SeenTile {
        QRectF place;
        float opacity;
        const QImage* image;
    };
    /// In drawing order.
    [[nodiscard]] std::vector<SeenTile> seen() const {
        std::vector<SeenTile> tiles;
        for (const TileQuad& quad : frame.tiles.quads) {
            const auto texture = textures.find(quad.tile);
            if (quad.opacity > 0 && texture != textures.end()) {
                const auto& corners = quad.corners;
                tiles.push_back({QRectF(QPointF(corners[0].x, corners[0].y),
                                        QPointF(corners[2].x, corners[2].y)),
                                 quad.opacity,
                                 &texture->second});
            }
        }
        return tiles;
    }
    /// The colour of what stands on top at a place of the screen, seen from straight above; none: a
    /// hole.
    [[nodiscard]] std::optional<QColor> colorAt(ScreenPoint place) const {
        const auto tiles = seen();
        for (auto each = tiles.rbegin(); each != tiles.rend(); ++each) {
            if (each->place.contains(place.x, place.y)) {
                const QPointF offset = QPointF(place.x, place.y) - each->place.topLeft();
                return each->image->pixelColor(
                    static_cast<int>(offset.x() / each->place.width() * each->image->width()),
                    static_cast<int>(offset.y() / each->place.height() * each->image->height()));
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
    [[nodiscard]] std::vector<QString> credits() const {
        std::vector<QString> texts;
        for (const Attribution& attribution : frame.attributions) {
            texts.push_back(attribution.text);
        }
        std::ranges::sort(texts);
        return texts;
    }

    const QColor land = mapTheme(BasemapTheme::light).land;
    const QColor water = mapTheme(BasemapTheme::light).water;
    TileArchivePaths archives;
    BasemapView view;
    std::chrono::nanoseconds now{0};
    std::unique_ptr<TileLibrary> library;
    std::unique_ptr<TilePyramid> pyramid;
    BasemapFrame frame;                    ///< the last one
    std::map<TileNumber, QImage> textures; ///< that the scene graph has now
};

} // namespace vasker
