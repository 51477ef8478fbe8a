#include "map/scene/MapNode.h"

#include "map/scene/PaintedMapNode.h"
#include "map/scene/RenderedMapNode.h"
#include "map/scene/Renderer.h"

namespace vasker {

std::unique_ptr<MapNode> MapNode::make(const QQuickWindow& window) {
    if (hasShaders(window)) {
        return std::make_unique<RenderedMapNode>();
    }
    return std::make_unique<PaintedMapNode>(window);
}

} // namespace vasker
