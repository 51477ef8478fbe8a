#include "map/basemap/BasemapFrameBuilder.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vasker {

namespace {

/// Scales that differ less than this count as equal.
constexpr double scaleTolerance = 1e-4;

/// So many images of tiles that are not seen yet become textures in one frame: each takes half a
/// millisecond.
constexpr std::size_t mostImagesAhead = 3;

/// The quad of `tile` in the copy of the world that lies `offset` map points to the east. At rest
/// and upright it stands on whole device pixels. With an opacity of 0 it has no area: nothing is
/// seen, and the texture is made all the same.
TileQuad tileQuad(const RasterTile& tile,
                  double offset,
                  double opacity,
                  const Camera& camera,
                  double devicePixelsPerPixel) {
    TileQuad quad{tile.number, {}, static_cast<float>(opacity)};
    if (opacity == 0) {
        return quad;
    }
    const double scale = tile.devicePixelsPerMapPoint;
    const double ratio = camera.scale() * devicePixelsPerPixel / scale;
    const bool keepsPixels = camera.isUpright() && std::abs(ratio - 1) < scaleTolerance;
    const ScreenPoint focus = camera.focus();
    const double left =
        std::round(focus.x * devicePixelsPerPixel - (camera.center().x - offset) * scale);
    const double top = std::round(focus.y * devicePixelsPerPixel - camera.center().y * scale);
    const auto corner = [&](int right, int down) -> PerspectivePoint {
        const auto x = static_cast<double>(tile.pixels.x + right);
        const auto y = static_cast<double>(tile.pixels.y + down);
        return keepsPixels ? PerspectivePoint{(left + x) / devicePixelsPerPixel,
                                              (top + y) / devicePixelsPerPixel,
                                              1}
                           : camera.worldToPerspective({x / scale + offset, y / scale});
    };
    const PixelRect& size = tile.pixels;
    quad.corners = {corner(0, 0),
                    corner(size.width, 0),
                    corner(size.width, size.height),
                    corner(0, size.height)};
    return quad;
}

} // namespace

BasemapFrameBuilder::BasemapFrameBuilder(const BasemapView& view)
    : m_view(view), m_offsets(worldCopyOffsets(view.camera.visibleRect())) {}

void BasemapFrameBuilder::add(RasterTile& tile, double offset, double opacity) {
    if (!tile.isHandedOver) {
        m_frame.tiles.newImages.push_back({tile.number, std::exchange(tile.image, QImage())});
        tile.isHandedOver = true;
    }
    m_frame.tiles.quads.push_back(
        tileQuad(tile, offset, opacity, m_view.camera, m_view.devicePixelsPerPixel));
    if (opacity == 0) {
        return;
    }
    m_last.push_back(&tile);
    // What is drawn on top is named first.
    std::vector<Attribution>& attributions = m_frame.attributions;
    for (auto each = tile.attributions.rbegin(); each != tile.attributions.rend(); ++each) {
        std::erase(attributions, *each);
        attributions.insert(attributions.begin(), *each);
    }
}

void BasemapFrameBuilder::show(TileGeneration& generation, double opacity) {
    m_last.clear();
    for (auto& [key, tile] : generation.tiles) {
        for (const double offset : m_offsets) {
            if (seesTile(m_view.camera, {key, offset}, 0)) {
                add(tile, offset, opacity);
            }
        }
    }
}

void BasemapFrameBuilder::showCover(TileGeneration& generation,
                                    const std::vector<CoverTile>& cover,
                                    double opacity) {
    m_last.clear();
    for (const CoverTile& tile : cover) {
        add(generation.tiles.at(tile.key), tile.offset, opacity);
    }
}

void BasemapFrameBuilder::prepare(TileGeneration& generation) {
    for (auto& [key, tile] : generation.tiles) {
        if (tile.isHandedOver || m_frame.tiles.newImages.size() < mostImagesAhead) {
            add(tile, 0, 0);
        }
    }
}

void BasemapFrameBuilder::describe(const TileGeneration& generation) {
    for (const RasterTile* const tile : m_last) {
        m_frame.labels.insert(m_frame.labels.end(), tile->labels.begin(), tile->labels.end());
        m_frame.lacksImagery |= tile->lacksImagery;
        m_frame.lacksSharperImagery |= tile->lacksSharperImagery;
    }
    m_frame.overlay = generation.overlay;
    m_frame.scale = generation.scale;
}

void BasemapFrameBuilder::keep(const TileGeneration& generation) {
    for (const auto& [key, tile] : generation.tiles) {
        m_frame.tiles.kept.push_back(tile.number);
    }
}

BasemapFrame BasemapFrameBuilder::take() {
    std::ranges::sort(m_frame.tiles.kept);
    return std::move(m_frame);
}

} // namespace vasker
