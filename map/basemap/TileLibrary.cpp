#include "map/basemap/TileLibrary.h"

#include <algorithm>
#include <thread>

namespace vasker {

namespace {

/// Half of the processor is left to frames, which a machine without a graphics card draws with it.
unsigned paintingThreads() {
    return std::clamp(std::thread::hardware_concurrency(), 1U, 4U);
}

} // namespace

TileLibrary::TileLibrary(TileArchivePaths archives,
                         const TileSources& sources,
                         TileService::Options serviceOptions,
                         QObject* parent)
    : QObject(parent), m_sources(sources.usable(serviceOptions.plainLoopback)),
      m_serviceOptions(std::move(serviceOptions)), m_reader(std::move(archives), m_sources),
      m_workers(paintingThreads()) {}

TileLibrary::~TileLibrary() = default;

void TileLibrary::want(const void* client, std::vector<ServiceTile> tiles) {
    if (m_service) {
        for (const ServiceTile& tile : m_reader.takeUndecodable()) {
            m_service->discard(tile);
        }
    }
    if (m_wanted[client] == tiles) {
        return;
    }
    m_wanted[client] = std::move(tiles);
    std::vector<ServiceTile> all;
    for (const auto& [each, wanted] : m_wanted) {
        all.insert(all.end(), wanted.begin(), wanted.end());
    }
    if (!m_service) {
        if (all.empty()) {
            return;
        }
        m_service = std::make_unique<TileService>(m_sources, m_serviceOptions);
        connect(m_service.get(),
                &TileService::arrived,
                this,
                [this](const ServiceTile& tile, const QByteArray& bytes) {
                    m_reader.put(tile, bytes);
                    Q_EMIT tileArrived(tile);
                });
    }
    m_service->want(all);
}

} // namespace vasker
