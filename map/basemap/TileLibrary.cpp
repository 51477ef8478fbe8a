#include "map/basemap/TileLibrary.h"

#include <algorithm>
#include <thread>

namespace vasker {

namespace {

constexpr unsigned mostPaintingThreads = 4;
/// In which the service's thread has to end; its turns are short, unless a disk hangs.
constexpr unsigned long millisecondsToEnd = 250;

} // namespace

TileLibrary::TileLibrary(TileArchivePaths archives,
                         const TileSources& sources,
                         TileService::Options serviceOptions,
                         QObject* parent)
    : QObject(parent), m_sources(sources.usable(serviceOptions.plainLoopback)),
      m_serviceOptions(std::move(serviceOptions)),
      m_provider(std::make_shared<TileProvider>(std::move(archives), m_sources)),
      m_workers(std::clamp(std::thread::hardware_concurrency(), 1U, mostPaintingThreads)) {}

TileLibrary::~TileLibrary() {
    if (m_serviceThread) {
        m_serviceThread->quit();
        if (!m_serviceThread->wait(millisecondsToEnd)) {
            (void)m_serviceThread.release(); // a disk hangs: the thread is left to itself
        }
    }
}

void TileLibrary::startService() {
    m_serviceThread = std::make_unique<QThread>();
    m_service = new TileService(m_sources, m_serviceOptions);
    m_service->moveToThread(m_serviceThread.get());
    connect(m_serviceThread.get(), &QThread::finished, m_service, &QObject::deleteLater);
    connect(m_service,
            &TileService::arrived,
            m_service,
            [provider = m_provider](const ServiceTile& tile, const QByteArray& bytes) {
                provider->put(tile, bytes);
            });
    connect(m_service, &TileService::arrived, this, &TileLibrary::tileArrived);
    // Not before: where the network works nobody needs to be told.
    connect(m_service, &TileService::unreachable, &m_networkReturn, &NetworkReturn::watch);
    connect(&m_networkReturn, &NetworkReturn::returned, m_service, &TileService::networkReturned);
    connect(m_service, &TileService::unreachable, this, [this] { setOffline(true); });
    connect(m_service, &TileService::reached, this, [this] { setOffline(false); });
    m_serviceThread->start();
}

void TileLibrary::setOffline(bool isOffline) {
    if (isOffline != m_isOffline) {
        m_isOffline = isOffline;
        Q_EMIT offlineChanged();
    }
}

void TileLibrary::discard(const std::vector<ServiceTile>& tiles) {
    if (m_service == nullptr) {
        return;
    }
    for (const ServiceTile& tile : tiles) {
        QMetaObject::invokeMethod(m_service,
                                  [service = m_service, tile] { service->discard(tile); });
    }
}

void TileLibrary::request(const void* client,
                          const std::vector<TileKey>& tiles,
                          BasemapTheme theme) {
    std::vector<ServiceTile> requests;
    for (const TileKey key : tiles) {
        for (const ServiceTile& each : m_provider->requestsFor(key, theme)) {
            if (std::ranges::find(requests, each) == requests.end()) {
                requests.push_back(each);
            }
        }
    }
    if (m_requested[client] == requests) {
        return;
    }
    m_requested[client] = std::move(requests);
    std::vector<ServiceTile> all;
    for (const auto& [each, requested] : m_requested) {
        all.insert(all.end(), requested.begin(), requested.end());
    }
    if (m_service == nullptr) {
        if (all.empty()) {
            return;
        }
        startService();
    }
    QMetaObject::invokeMethod(
        m_service, [service = m_service, all = std::move(all)] { service->setRequests(all); });
}

} // namespace vasker
