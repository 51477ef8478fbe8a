// How long the most expensive tiles take that the budget of painting lets through: invented zigzag
// lines of as many crossings as are just painted, and the ordinary tiles of the built-in basemap.
// One thread.
//
//   bench-paint

#include "bench/Figures.h"
#include "map/geometry/TileCover.h"
#include "map/style/TilePainter.h"
#include "map/tiles/TileArchive.h"
#include "map/tiles/TileInflation.h"
#include "map/tiles/VectorTileDecoding.h"

#include <QGuiApplication>

#include <algorithm>
#include <chrono>
#include <span>
#include <string>
#include <vector>

namespace vasker {
namespace {

struct Shape {
    const char* title;
    const char* layer;
    const char* kind;
    int adminLevel;
    VectorFeature::Geometry geometry;
    int zoom;
    bool isUpright; ///< its long parts go from north to south
    int pieces;     ///< lines that it is made of
};

using enum VectorFeature::Geometry;

constexpr Shape shapes[] = {
    {"shore, upright", "ocean", "", 0, polygon, 6, true, 1},
    {"shore, level", "ocean", "", 0, polygon, 6, false, 1},
    {"lakes, upright", "water_polygons", "water", 0, polygon, 6, true, 200},
    {"motorway, upright", "streets", "motorway", 0, lines, 10, true, 1},
    {"motorway, level", "streets", "motorway", 0, lines, 10, false, 1},
    {"motorway, wide", "streets", "motorway", 0, lines, 18, true, 1},
    {"motorways, wide", "streets", "motorway", 0, lines, 18, true, 200},
    {"river, upright", "water_lines", "river", 0, lines, 10, true, 1},
    {"river, thin", "water_lines", "river", 0, lines, 5, true, 1},
    {"region, dashed", "boundaries", "", 4, lines, 10, true, 1},
    {"country, halo", "boundaries", "", 2, lines, 10, true, 1},
    {"ferry, dashed", "ferries", "", 0, lines, 10, true, 1},
};

TileData zigzag(const Shape& shape, int crossings, TileKey key) {
    VectorFeature feature;
    feature.geometry = shape.geometry;
    feature.kind = shape.kind;
    feature.adminLevel = shape.adminLevel;
    const int each = std::max(1, crossings / shape.pieces);
    for (int piece = 0; piece < shape.pieces; ++piece) {
        std::vector<TilePoint> part;
        for (int i = 0; i <= each; ++i) {
            const float along =
                (static_cast<float>(piece) + static_cast<float>(i) / static_cast<float>(each)) /
                static_cast<float>(shape.pieces);
            const float across = i % 2 == 0 ? 0.01F : 0.99F;
            part.push_back(shape.isUpright ? TilePoint{along, across} : TilePoint{across, along});
        }
        if (shape.geometry == polygon) {
            part.push_back(part.front());
        }
        feature.parts.push_back(std::move(part));
    }
    TileData data;
    data.vector = std::make_shared<const VectorTile>(VectorTile{{{shape.layer, {feature}}}});
    data.vectorKey = key;
    return data;
}

struct Painted {
    bool isWhole;
    double seconds;
};

Painted paint(const TileData& data, const TileRequest& request) {
    const auto start = std::chrono::steady_clock::now();
    const QImage image = paintTile(data, request);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    return {!image.isNull(), time.count()};
}

/// The median of five paintings.
double medianTime(const TileData& data, const TileRequest& request) {
    std::vector<double> times;
    for (int i = 0; i < 5; ++i) {
        times.push_back(paint(data, request).seconds);
    }
    std::sort(times.begin(), times.end());
    return times[2];
}

TileRequest requestOf(TileKey key) {
    TileRequest request;
    request.key = key;
    request.devicePixelsPerMapPoint = 512 / key.side();
    return request;
}

double measureShape(const Figures& figures, const Shape& shape) {
    const TileKey key{shape.zoom, 1, 1};
    const TileRequest request = requestOf(key);
    int painted = 1;
    int refused = 2;
    while (paint(zigzag(shape, refused, key), request).isWhole) {
        painted = refused;
        refused *= 2;
    }
    while (refused - painted > std::max(1, painted / 100)) {
        const int middle = (painted + refused) / 2;
        (paint(zigzag(shape, middle, key), request).isWhole ? painted : refused) = middle;
    }
    const double atMost = medianTime(zigzag(shape, painted, key), request);
    const double beyond = medianTime(zigzag(shape, refused, key), request);
    const double farBeyond = medianTime(zigzag(shape, 4 * refused, key), request);
    figures.add(std::string(shape.title) + ", crossings", painted, "");
    figures.add(std::string(shape.title) + ", just painted", 1e3 * atMost, "ms");
    figures.add(std::string(shape.title) + ", just refused", 1e3 * beyond, "ms");
    figures.add(std::string(shape.title) + ", four times as much", 1e3 * farBeyond, "ms");
    return std::max({atMost, beyond, farBeyond});
}

void measureBasemap(const Figures& figures) {
    const auto archive = TileArchive::open(VASKER_PACKAGED_RESOURCES "/basemap.mbtiles");
    const Camera canada(canadaOverview, {1280, 800});
    std::vector<double> times;
    for (int zoom = 1; zoom <= 6; ++zoom) {
        for (const CoverTile& each : tileCover(canada, zoom, 0)) {
            const auto stored = archive->nearestTile(each.key);
            TileData data;
            data.vector = std::make_shared<const VectorTile>(
                decodeVectorTile(inflatedTile(stored->bytes).value()).value());
            data.vectorKey = stored->key;
            times.push_back(1e3 * medianTime(data, requestOf(each.key)));
        }
    }
    figures.addTimes("tile of the built-in basemap", times);
}

} // namespace
} // namespace vasker

int main(int argc, char* argv[]) {
    const QGuiApplication application(argc, argv);
    const vasker::Figures figures("paint");
    vasker::measureBasemap(figures);
    double longest = 0;
    const std::span<const vasker::Shape> shapes(vasker::shapes);
    for (const vasker::Shape& shape : vasker::isSmallBench() ? shapes.first(1) : shapes) {
        longest = std::max(longest, vasker::measureShape(figures, shape));
    }
    figures.add("longest of all tiles", 1e3 * longest, "ms");
    return 0;
}
