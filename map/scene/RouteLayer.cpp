#include "map/scene/RouteLayer.h"

#include <QSGGeometryNode>

#include <cstring>

namespace vasker {

namespace {

/// Lines just outside the viewport still reach into it with half their width.
constexpr double reachPixels = 16;

} // namespace

struct RouteLayer::Tile {
    QSGGeometry geometry;
    RouteMaterial material;
    QSGGeometryNode node;

    explicit Tile(const RouteMesh& mesh)
        : geometry(RouteMaterial::attributes(), static_cast<int>(mesh.size())) {
        geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
        geometry.setVertexDataPattern(QSGGeometry::StaticPattern);
        if (!mesh.empty()) {
            std::memcpy(geometry.vertexData(), mesh.data(), mesh.size() * sizeof(RouteVertex));
        }
        node.setFlag(QSGNode::OwnedByParent, false);
        node.setGeometry(&geometry);
        node.setMaterial(&material);
    }
};

RouteLayer::RouteLayer(LineEnds ends) : m_ends(ends) {}

RouteLayer::~RouteLayer() = default;

void RouteLayer::update(const std::shared_ptr<const RouteContent>& content,
                        const RouteStyle& style,
                        const Camera& camera,
                        float devicePixels) {
    const DetailLevel level = DetailLevel::forScale(camera.scale());
    if (content != m_content || level != m_level) {
        m_tiles.clear();
        m_content = content;
        m_level = level;
    }
    if (!m_content) {
        return;
    }
    const double reach = reachPixels / camera.scale();
    const TileRange range =
        TileRange::covering(camera.visibleRect().inset(-reach, -reach), m_level);
    std::erase_if(m_tiles, [&](const auto& tile) { return !range.contains(tile.first); });
    for (TileIndex index = range.first; index.row <= range.last.row; ++index.row) {
        for (index.column = range.first.column; index.column <= range.last.column; ++index.column) {
            auto& tile = m_tiles[index];
            if (!tile) {
                tile = makeTile(index);
            }
            place(*tile, index, style, camera, devicePixels);
        }
    }
}

std::unique_ptr<RouteLayer::Tile> RouteLayer::makeTile(TileIndex index) {
    auto tile = std::make_unique<Tile>(routeMesh(
        m_content->loaded->geometry, m_content->runs, m_content->colors, m_level, index, m_ends));
    if (tile->geometry.vertexCount() > 0) {
        appendChildNode(&tile->node);
    }
    return tile;
}

void RouteLayer::place(Tile& tile,
                       TileIndex index,
                       const RouteStyle& style,
                       const Camera& camera,
                       float devicePixels) const {
    const MapRect bounds = index.bounds(m_level);
    const ScreenPoint corner = camera.worldToScreen({bounds.x, bounds.y});
    tile.material.style = style;
    tile.material.scale = static_cast<float>(camera.scale() / m_level.maximumScale());
    tile.material.origin = {static_cast<float>(corner.x), static_cast<float>(corner.y)};
    tile.material.devicePixels = devicePixels;
    tile.node.markDirty(QSGNode::DirtyMaterial);
}

} // namespace vasker
