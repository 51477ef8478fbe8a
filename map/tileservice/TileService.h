#pragma once
// Tiles over HTTPS from the services of the bundle information, with a cache on disk. It keeps
// their usage policies: it names itself, sends few requests at once and none for what is not in
// view, keeps what it has, and backs off where it is refused. One thread, also of its construction;
// responses come as signals, later.

#include "map/tileservice/MissingTiles.h"
#include "map/tileservice/RetryDelay.h"
#include "map/tileservice/TileCache.h"
#include "map/tileservice/TileFetch.h"
#include "map/tileservice/TileServiceHosts.h"
#include "map/tileservice/TileSources.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <vector>

class QNetworkAccessManager;

namespace vasker {

class TileService : public QObject {
    Q_OBJECT

  public:
    struct Options {
        QString cacheFolder; ///< made where it is missing; empty: no cache
        QString userAgent;
        qint64 cacheBytes = 200'000'000;
        PlainLoopback plainLoopback = PlainLoopback::refused;
        qint64 responseBytes = 4'000'000;               ///< longer responses are no tiles
        std::chrono::milliseconds responseTime{20'000}; ///< for one response as a whole
        std::chrono::milliseconds silentTime{10'000};   ///< in which nothing of it comes
        RetryRule retry;
    };
    /// Of `sources` those that are usable.
    TileService(const TileSources& sources, Options options, QObject* parent = nullptr);
    ~TileService() override;

    /// Exactly these are in view now, the most important first; what was requested before and is
    /// not among them is no longer fetched. A tile comes once for as long as it stays among them,
    /// and anew, from the cache where that has it, when it returns. What is missing stays so for
    /// this object's life. No signal is sent before this returns.
    void setRequests(const std::vector<ServiceTile>& tiles);
    /// What arrived for `tile` could not be decoded: it is forgotten, and missing from now on.
    void discard(const ServiceTile& tile);
    /// The network is back: what could not be reached is tried again at once.
    void networkReturned();

  Q_SIGNALS:
    /// A tile is there: its bytes as the service sent them; vector tiles may be gzip or zlib.
    void arrived(const vasker::ServiceTile& tile, const QByteArray& bytes);
    /// No source covers it, the service has no such tile, or its responses were no tile. Not sent
    /// while there is only no network: that may come back.
    void missing(const vasker::ServiceTile& tile);
    /// A request to a service had no response at all.
    void unreachable();
    /// A service has responded, in whatever way.
    void reached();

  private:
    using Clock = TileServiceHosts::Clock;

    /// A tile that is in view, and how far it has come.
    struct Request {
        enum class State : std::uint8_t { fresh, waiting, running, responded, done };

        State state = State::fresh;
        QUrl address;
        std::optional<TileCache::Entry> stale; ///< better than nothing
        int tries = 0;
        int refusals = 0;
        Clock::time_point started;
        std::unique_ptr<TileFetch> fetch;
        TileResponse response;
    };

    [[nodiscard]] const TileSource* sourceOf(const ServiceTile& tile) const noexcept;
    [[nodiscard]] int running(const QUrl* host) const;
    void schedule();
    void takeTurn();
    bool takeStep();
    void lookUp(const ServiceTile& tile, Request& request);
    bool start();
    void start(const ServiceTile& tile, Request& request);
    void settle(const ServiceTile& tile, Request& request);
    void settleFailure(const ServiceTile& tile, Request& request, TileVerdict verdict);
    void arrive(const ServiceTile& tile, Request& request, QByteArray bytes);
    void miss(const ServiceTile& tile, Request& request);

    TileSources m_sources;
    Options m_options;
    TileCache m_cache;
    TileServiceHosts m_hosts;
    MissingTiles m_missing{10'000};
    /// Made for the first tile that comes from the network: it takes its time.
    std::unique_ptr<QNetworkAccessManager> m_network;
    std::vector<ServiceTile> m_order;
    std::map<ServiceTile, Request> m_requests;
    QTimer m_turn{this};
};

} // namespace vasker
