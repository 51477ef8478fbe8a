#pragma once
// The routes of one style as scene-graph nodes, a node per tile of the level in view. A tile is
// meshed when it comes into view; moving the camera changes uniforms only.

#include "map/RecordSet.h"
#include "map/geometry/Camera.h"
#include "map/geometry/DetailLevel.h"
#include "map/records/RouteMesh.h"
#include "map/scene/RouteMaterial.h"

#include <QSGNode>

#include <map>
#include <memory>
#include <span>

namespace vasker {

/// What a layer draws; compared by identity.
struct RouteContent {
    std::shared_ptr<const LoadedRelease> loaded; ///< keeps `runs` alive
    std::span<const RouteRun> runs;
    RouteColors colors;
};

class RouteLayer final : public QSGNode {
  public:
    explicit RouteLayer(LineEnds ends);
    ~RouteLayer() override;

    /// Render thread, while the item's thread waits. `content` may be null: nothing is drawn.
    void update(const std::shared_ptr<const RouteContent>& content,
                const RouteStyle& style,
                const Camera& camera,
                float devicePixels);

  private:
    struct Tile;

    std::unique_ptr<Tile> makeTile(TileIndex index);
    void place(Tile& tile,
               TileIndex index,
               const RouteStyle& style,
               const Camera& camera,
               float devicePixels) const;

    LineEnds m_ends;
    std::shared_ptr<const RouteContent> m_content;
    DetailLevel m_level{0};
    std::map<TileIndex, std::unique_ptr<Tile>> m_tiles;
};

} // namespace vasker
