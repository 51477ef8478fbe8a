#include "map/scene/RenderedMapNode.h"

#include <QQuickWindow>

namespace vasker {

RenderedMapNode::RenderedMapNode() {
    m_background.setFlag(OwnedByParent, false);
    m_tiles.setFlag(OwnedByParent, false);
    appendChildNode(&m_background);
    appendChildNode(&m_tiles);
}

void RenderedMapNode::removeFrom(std::size_t layer) {
    while (m_nodes.size() > layer) {
        std::visit([this](const auto& node) { removeChildNode(node.get()); }, m_nodes.back());
        m_nodes.pop_back();
    }
}

template <typename Node>
Node& RenderedMapNode::node(std::size_t layer) {
    if (layer < m_nodes.size() && !std::holds_alternative<Owned<Node>>(m_nodes[layer])) {
        removeFrom(layer);
    }
    if (layer == m_nodes.size()) {
        auto made = std::make_unique<Node>();
        made->setFlag(OwnedByParent, false);
        appendChildNode(made.get());
        m_nodes.emplace_back(std::move(made));
    }
    return *std::get<Owned<Node>>(m_nodes[layer]);
}

void RenderedMapNode::update(MapFrame& frame, QQuickWindow& window) {
    const auto devicePixels = static_cast<float>(frame.devicePixels);
    m_background.setRect(QRectF({}, frame.size));
    m_background.setColor(frame.background);
    m_tiles.update(frame.tiles, window);
    for (std::size_t i = 0; i < frame.layers.size(); ++i) {
        const MapLayer& layer = frame.layers[i];
        if (const auto* const lines = std::get_if<LineLayer>(&layer)) {
            node<LineNode>(i).update(*lines, devicePixels);
        } else if (const auto* const dots = std::get_if<DotLayer>(&layer)) {
            node<DotNode>(i).update(*dots, devicePixels);
        } else if (const auto* const sprites = std::get_if<SpriteLayer>(&layer)) {
            node<SpriteNode>(i).update(*sprites, devicePixels, window);
        }
    }
    removeFrom(frame.layers.size());
}

} // namespace vasker
