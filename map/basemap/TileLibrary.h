#pragma once
// All that tiles are made of and by, one for the whole program: archives, services, and the threads
// that decode and paint. User-interface thread.

#include "map/basemap/TileProvider.h"
#include "map/basemap/TileWorkers.h"
#include "map/tileservice/TileService.h"

#include <QObject>

#include <map>
#include <memory>
#include <vector>

namespace vasker {

class TileLibrary : public QObject {
    Q_OBJECT

  public:
    /// Of `sources` those that are usable. Nothing of the service is made before its first tile is
    /// wanted.
    TileLibrary(TileArchivePaths archives,
                const TileSources& sources,
                TileService::Options serviceOptions,
                QObject* parent = nullptr);
    ~TileLibrary() override;

    /// Any thread.
    [[nodiscard]] TileProvider& reader() noexcept { return m_reader; }
    [[nodiscard]] TileWorkers& workers() noexcept { return m_workers; }

    /// What `client` looks at now, the most wanted first, replaces what it looked at before.
    void want(const void* client, std::vector<ServiceTile> tiles);

  Q_SIGNALS:
    /// The reader now knows more of this tile.
    void tileArrived(const vasker::ServiceTile& tile);

  private:
    TileSources m_sources;
    TileService::Options m_serviceOptions;
    TileProvider m_reader;
    std::map<const void*, std::vector<ServiceTile>> m_wanted;
    std::unique_ptr<TileService> m_service;
    TileWorkers m_workers;
};

} // namespace vasker
