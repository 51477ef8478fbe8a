#pragma once
// A frame of the map as scene-graph nodes, one a layer.

#include "map/frame/MapFrame.h"
#include "map/scene/BackgroundNode.h"
#include "map/scene/DotNode.h"
#include "map/scene/LineNode.h"
#include "map/scene/SpriteNode.h"
#include "map/scene/TileNode.h"

#include <QSGNode>

#include <memory>
#include <variant>
#include <vector>

class QQuickWindow;

namespace vasker {

class RenderedMapNode final : public QSGNode {
  public:
    RenderedMapNode() = default;

    /// Render thread, while the item's thread waits. Makes textures for `window`, and takes the
    /// images of the frame that are new.
    void update(MapFrame& frame, QQuickWindow& window);

  private:
    template <typename Node>
    using Owned = std::unique_ptr<Node>;
    using LayerNode = std::variant<Owned<BackgroundNode>,
                                   Owned<TileNode>,
                                   Owned<LineNode>,
                                   Owned<DotNode>,
                                   Owned<SpriteNode>>;

    /// The node of the layer with that number; made anew where it is of another kind.
    template <typename Node>
    Node& node(std::size_t layer);
    void removeFrom(std::size_t layer);

    std::vector<LayerNode> m_nodes; ///< in drawing order
};

} // namespace vasker
