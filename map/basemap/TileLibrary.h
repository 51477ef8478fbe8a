#pragma once
// All that tiles are made of and by, one for the whole program: archives, services, and the threads
// that decode and paint. User-interface thread; the service works in a thread of its own.

#include "map/basemap/TileProvider.h"
#include "map/basemap/TileWorkers.h"
#include "map/tileservice/NetworkReturn.h"
#include "map/tileservice/TileService.h"

#include <QObject>
#include <QThread>

#include <map>
#include <memory>
#include <vector>

namespace vasker {

class TileLibrary : public QObject {
    Q_OBJECT

  public:
    /// Of `sources` those that are usable. Nothing of the service is made before its first tile is
    /// requested.
    TileLibrary(TileArchivePaths archives,
                const TileSources& sources,
                TileService::Options serviceOptions,
                QObject* parent = nullptr);
    ~TileLibrary() override;

    /// Any thread.
    [[nodiscard]] const std::shared_ptr<TileProvider>& provider() const noexcept {
        return m_provider;
    }
    [[nodiscard]] TileWorkers& workers() noexcept { return m_workers; }

    /// The tiles that `client` has in view now, the most important first, instead of those before.
    /// Services are asked for what `theme` needs of them.
    void request(const void* client, const std::vector<TileKey>& tiles, BasemapTheme theme);
    /// What a service sent for these could not be decoded.
    void discard(const std::vector<ServiceTile>& tiles);

    /// Whether the last request to a service had no answer at all. False before the first.
    [[nodiscard]] bool isOffline() const noexcept { return m_isOffline; }

  Q_SIGNALS:
    void offlineChanged();
    /// The provider has something new of this tile.
    void tileArrived(const vasker::ServiceTile& tile);

  private:
    void startService();
    void setOffline(bool isOffline);

    TileSources m_sources;
    TileService::Options m_serviceOptions;
    std::shared_ptr<TileProvider> m_provider; ///< shared with jobs and with the service's thread
    std::map<const void*, std::vector<ServiceTile>> m_requested;
    std::unique_ptr<QThread> m_serviceThread;
    TileService* m_service = nullptr; ///< lives in its thread, whose end deletes it
    NetworkReturn m_networkReturn;
    bool m_isOffline = false;
    TileWorkers m_workers;
};

} // namespace vasker
