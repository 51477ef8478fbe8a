#pragma once
// A frame of the map in the scene graph.

#include "map/frame/MapFrame.h"

#include <QSGNode>

#include <memory>

class QQuickWindow;

namespace vasker {

class MapNode : public QSGNode {
  public:
    /// What draws the map in `window`: shaders, or a painter where there are none.
    [[nodiscard]] static std::unique_ptr<MapNode> make(const QQuickWindow& window);

    /// Render thread, while the item's thread waits. Makes textures for `window`, and takes the
    /// images of the frame that are new.
    virtual void update(MapFrame& frame, QQuickWindow& window) = 0;
};

} // namespace vasker
