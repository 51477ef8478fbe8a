#include "map/tileservice/TileService.h"

#include "map/tileservice/MissingTiles.h"
#include "map/tileservice/NetworkReturn.h"
#include "map/tileservice/ServiceRequest.h"
#include "map/tileservice/TileCache.h"
#include "map/tileservice/TileFetch.h"
#include "map/tileservice/TileResponse.h"
#include "map/tileservice/TileServiceHosts.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <map>
#include <optional>

namespace vasker {

namespace {

using Clock = TileServiceHosts::Clock;

constexpr int mostRequestsAtOnce = 6;
constexpr int mostRefusals = 3;
constexpr std::size_t mostWanted = 300;
// A turn ends after that time, and the event loop goes on: the disk may be slow.
constexpr std::chrono::milliseconds timeOfATurn(3);

bool lies(const TileKey& key) {
    const std::int64_t side = std::int64_t{1} << std::clamp(key.zoom, 0, maximumTileZoom);
    return key.column >= 0 && key.column < side && key.row >= 0 && key.row < side;
}

/// A tile that is looked at, and how far it has come.
struct Wish {
    enum class State : std::uint8_t { seen, waiting, running, answered, done };

    State state = State::seen;
    QUrl address;
    std::optional<TileCache::Entry> stale; ///< better than nothing
    int tries = 0;
    int refusals = 0;
    Clock::time_point started;
    std::unique_ptr<TileFetch> fetch;
    TileResponse answer;
};

} // namespace

class TileService::Implementation {
  public:
    Implementation(TileService& service, const TileSources& sources, Options options);

    [[nodiscard]] const TileSource* sourceOf(const ServiceTile& tile) const noexcept;
    [[nodiscard]] const std::vector<TileSource>& sources(TileContent content) const noexcept {
        return content == TileContent::vector ? m_sources.vector : m_sources.imagery;
    }
    void want(const std::vector<ServiceTile>& tiles);
    void discard(const ServiceTile& tile);

  private:
    void schedule();
    void turn();
    bool takeStep();
    void lookUp(const ServiceTile& tile, Wish& wish);
    void settle(const ServiceTile& tile, Wish& wish);
    void settleFailure(const ServiceTile& tile, Wish& wish, TileVerdict verdict);
    bool start();
    void start(const ServiceTile& tile, Wish& wish);
    [[nodiscard]] int running(const QUrl* host) const;
    void arrive(const ServiceTile& tile, Wish& wish, QByteArray bytes);
    void miss(const ServiceTile& tile, Wish& wish);

    TileService& m_service;
    TileSources m_sources;
    Options m_options;
    TileCache m_cache;
    TileServiceHosts m_hosts;
    MissingTiles m_missing{10'000};
    // Made for the first tile that comes from the network: it takes its time.
    std::unique_ptr<QNetworkAccessManager> m_network;
    NetworkReturn m_networkReturn;
    std::vector<ServiceTile> m_order;
    std::map<ServiceTile, Wish> m_wishes;
    QTimer m_turn;
};

TileService::Implementation::Implementation(TileService& service,
                                            const TileSources& sources,
                                            Options options)
    : m_service(service), m_sources(sources.usable(options.plainLoopback)),
      m_options(std::move(options)), m_cache(m_options.cacheFolder, m_options.cacheBytes),
      m_hosts(m_options.retry) {
    m_networkReturn.heard = [this] {
        m_hosts.networkReturned();
        schedule();
    };
    m_turn.setSingleShot(true);
    QObject::connect(&m_turn, &QTimer::timeout, &m_turn, [this] { turn(); });
}

const TileSource* TileService::Implementation::sourceOf(const ServiceTile& tile) const noexcept {
    for (const TileSource& source : sources(tile.content)) {
        if (tile.key.zoom >= source.firstZoom && tile.key.zoom <= source.lastZoom) {
            return lies(tile.key) ? &source : nullptr;
        }
    }
    return nullptr;
}

void TileService::Implementation::want(const std::vector<ServiceTile>& tiles) {
    std::map<ServiceTile, Wish> wishes;
    m_order.clear();
    for (const ServiceTile& tile : tiles) {
        if (m_order.size() == mostWanted || wishes.contains(tile)) {
            continue;
        }
        m_order.push_back(tile);
        if (auto known = m_wishes.extract(tile)) {
            wishes.insert(std::move(known));
        } else {
            wishes.try_emplace(tile);
        }
    }
    m_wishes = std::move(wishes); // whose requests are left in the old ones are cut short
    schedule();
}

void TileService::Implementation::discard(const ServiceTile& tile) {
    if (const TileSource* const source = sourceOf(tile)) {
        m_cache.drop(source->address(tile.key).toString());
        m_missing.insert(tile);
    }
}

void TileService::Implementation::schedule() {
    m_turn.start(0);
}

void TileService::Implementation::turn() {
    const QPointer<TileService> alive(&m_service);
    const Clock::time_point end = Clock::now() + timeOfATurn;
    do {
        const bool isMore = takeStep();
        if (alive.isNull() || !isMore) {
            return;
        }
    } while (Clock::now() < end);
    schedule();
}

// Whoever hears a signal may want other tiles: after one nothing that was found before still holds.
bool TileService::Implementation::takeStep() {
    for (const auto state : {Wish::State::answered, Wish::State::seen}) {
        for (const ServiceTile& tile : m_order) {
            Wish& wish = m_wishes.at(tile);
            if (wish.state == state) {
                const ServiceTile taken = tile;
                state == Wish::State::seen ? lookUp(taken, wish) : settle(taken, wish);
                return true;
            }
        }
    }
    return start();
}

void TileService::Implementation::lookUp(const ServiceTile& tile, Wish& wish) {
    const TileSource* const source = sourceOf(tile);
    if (source == nullptr || m_missing.contains(tile)) {
        miss(tile, wish);
        return;
    }
    wish.address = source->address(tile.key);
    wish.state = Wish::State::waiting;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    std::optional<TileCache::Entry> kept = m_cache.find(wish.address.toString(), now);
    if (!kept || !looksLikeTile(tile.content, kept->bytes)) {
        return;
    }
    if (kept->freshUntil > now) {
        arrive(tile, wish, kept->bytes);
    } else {
        wish.stale = std::move(kept);
    }
}

int TileService::Implementation::running(const QUrl* host) const {
    return static_cast<int>(std::ranges::count_if(m_wishes, [&](const auto& entry) {
        const Wish& wish = entry.second;
        return wish.state == Wish::State::running &&
               (host == nullptr || wish.address.authority() == host->authority());
    }));
}

// Starts the most wanted of those that were tried least; or else waits for the first pause to end.
bool TileService::Implementation::start() {
    if (running(nullptr) >= mostRequestsAtOnce) {
        return false;
    }
    const Clock::time_point now = Clock::now();
    Clock::time_point wakeUp = Clock::time_point::max();
    const ServiceTile* next = nullptr;
    for (const ServiceTile& tile : m_order) {
        Wish& wish = m_wishes.at(tile);
        if (wish.state != Wish::State::waiting) {
            continue;
        }
        const Clock::time_point delayedUntil = m_hosts.delayedUntil(wish.address);
        if (delayedUntil > now) {
            if (wish.stale) {
                arrive(ServiceTile(tile), wish, wish.stale->bytes);
                return true;
            }
            wakeUp = std::min(wakeUp, delayedUntil);
        } else if ((next == nullptr || wish.tries < m_wishes.at(*next).tries) &&
                   running(&wish.address) < m_hosts.mostAtOnce(wish.address)) {
            next = &tile;
        }
    }
    if (next != nullptr) {
        start(*next, m_wishes.at(*next));
        return true;
    }
    if (wakeUp != Clock::time_point::max()) {
        m_turn.start(std::chrono::ceil<std::chrono::milliseconds>(wakeUp - now));
    }
    return false;
}

void TileService::Implementation::start(const ServiceTile& tile, Wish& wish) {
    if (!m_network) {
        m_network = std::make_unique<QNetworkAccessManager>();
    }
    const QNetworkRequest request =
        serviceRequest(wish.address, tile.content, m_options.userAgent, wish.stale);
    wish.state = Wish::State::running;
    wish.started = Clock::now();
    ++wish.tries;
    const TileFetch::Limits limits{.bytes = m_options.responseBytes,
                                   .time = m_options.responseTime,
                                   .silentTime = m_options.silentTime};
    wish.fetch = std::make_unique<TileFetch>(
        *m_network, request, limits, [this, &wish](const TileResponse& answer) {
            wish.answer = answer;
            wish.state = Wish::State::answered;
            schedule();
        });
}

void TileService::Implementation::settle(const ServiceTile& tile, Wish& wish) {
    wish.fetch.reset();
    const TileResponse answer = std::exchange(wish.answer, {});
    const TileVerdict found = verdict(tile.content, answer);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QString address = wish.address.toString();
    switch (found) {
    case TileVerdict::tile:
        m_hosts.succeeded(wish.address);
        if (const auto until = freshUntil(answer, now)) {
            m_cache.keep(
                address, {answer.body, *until, answer.entityTag, answer.lastModified}, now);
        }
        arrive(tile, wish, answer.body);
        break;
    case TileVerdict::unchanged:
        m_hosts.succeeded(wish.address);
        if (!wish.stale) {
            miss(tile, wish); // an answer to what was not asked
            break;
        }
        m_cache.refresh(address, freshUntil(answer, now).value_or(now));
        arrive(tile, wish, wish.stale->bytes);
        break;
    case TileVerdict::missing:
        m_hosts.succeeded(wish.address);
        miss(tile, wish);
        break;
    case TileVerdict::busy:
    case TileVerdict::refused:
        m_hosts.failed(
            wish.address, wish.started, Clock::now(), retryAfter(answer.retryAfter, now));
        settleFailure(tile, wish, found);
        break;
    case TileVerdict::unreachable:
        m_hosts.unreachable(wish.address, wish.started, Clock::now());
        m_networkReturn.watch(); // not before: where it works nobody needs to hear that it does
        settleFailure(tile, wish, found);
        break;
    }
}

void TileService::Implementation::settleFailure(const ServiceTile& tile,
                                                Wish& wish,
                                                TileVerdict verdict) {
    wish.state = Wish::State::waiting;
    wish.refusals += verdict == TileVerdict::refused ? 1 : 0;
    if (wish.stale) {
        arrive(tile, wish, wish.stale->bytes);
    } else if (wish.refusals >= mostRefusals) {
        miss(tile, wish);
    }
}

void TileService::Implementation::arrive(const ServiceTile& tile, Wish& wish, QByteArray bytes) {
    const QByteArray own = std::move(bytes); // the wish may be gone before all have heard
    wish.state = Wish::State::done;
    wish.stale.reset();
    Q_EMIT m_service.arrived(tile, own);
}

void TileService::Implementation::miss(const ServiceTile& tile, Wish& wish) {
    wish.state = Wish::State::done;
    wish.stale.reset();
    m_missing.insert(tile);
    Q_EMIT m_service.missing(tile);
}

TileService::TileService(const TileSources& sources, Options options, QObject* parent)
    : QObject(parent),
      m_implementation(std::make_unique<Implementation>(*this, sources, std::move(options))) {}

TileService::~TileService() = default;

const TileSource* TileService::sourceOf(const ServiceTile& tile) const noexcept {
    return m_implementation->sourceOf(tile);
}

int TileService::lastZoom(TileContent content) const noexcept {
    int last = -1;
    for (const TileSource& source : m_implementation->sources(content)) {
        last = std::max(last, source.lastZoom);
    }
    return last;
}

void TileService::want(const std::vector<ServiceTile>& tiles) {
    m_implementation->want(tiles);
}

void TileService::discard(const ServiceTile& tile) {
    m_implementation->discard(tile);
}

} // namespace vasker
