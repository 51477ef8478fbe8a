#pragma once
// A frame of the map drawn by shaders: nodes of the scene graph, one a layer.

#include "map/scene/DotNode.h"
#include "map/scene/LineNode.h"
#include "map/scene/MapNode.h"
#include "map/scene/SpriteNode.h"
#include "map/scene/TileNode.h"

#include <QSGSimpleRectNode>

#include <memory>
#include <variant>
#include <vector>

namespace vasker {

class RenderedMapNode final : public MapNode {
  public:
    RenderedMapNode();

    void update(MapFrame& frame, QQuickWindow& window) override;

  private:
    template <typename Node>
    using Owned = std::unique_ptr<Node>;
    using LayerNode = std::variant<Owned<LineNode>, Owned<DotNode>, Owned<SpriteNode>>;

    /// The node of the layer with that number; made anew where it is of another kind.
    template <typename Node>
    Node& node(std::size_t layer);
    void removeFrom(std::size_t layer);

    QSGSimpleRectNode m_background;
    TileNode m_tiles;
    std::vector<LayerNode> m_nodes; ///< above the tiles, in drawing order
};

} // namespace vasker
