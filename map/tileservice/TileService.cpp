#include "map/tileservice/TileService.h"

#include "map/tileservice/ServiceRequest.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace vasker {

namespace {

constexpr int mostRequestsAtOnce = 6;
constexpr int mostRefusals = 3;
constexpr std::size_t mostTilesInView = 300;
// A turn ends after that time, and the event loop goes on: the disk may be slow.
constexpr std::chrono::milliseconds timeOfATurn(3);

} // namespace

TileService::TileService(const TileSources& sources, Options options, QObject* parent)
    : QObject(parent), m_sources(sources.usable(options.plainLoopback)),
      m_options(std::move(options)), m_cache(m_options.cacheFolder, m_options.cacheBytes),
      m_hosts(m_options.retry) {
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &TileService::takeTurn);
}

TileService::~TileService() = default;

const TileSource* TileService::sourceOf(const ServiceTile& tile) const noexcept {
    return tile.key.isValid() ? m_sources.covering(tile.content, tile.key.zoom) : nullptr;
}

void TileService::setRequests(const std::vector<ServiceTile>& tiles) {
    std::map<ServiceTile, Request> requests;
    m_order.clear();
    for (const ServiceTile& tile : tiles) {
        if (m_order.size() == mostTilesInView || requests.contains(tile)) {
            continue;
        }
        m_order.push_back(tile);
        if (auto known = m_requests.extract(tile)) {
            requests.insert(std::move(known));
        } else {
            requests.try_emplace(tile);
        }
    }
    m_requests = std::move(requests); // the others are aborted
    schedule();
}

void TileService::discard(const ServiceTile& tile) {
    if (const TileSource* const source = sourceOf(tile)) {
        m_cache.drop(source->address(tile.key).toString());
        m_missing.insert(tile);
    }
}

void TileService::networkReturned() {
    m_hosts.networkReturned();
    schedule();
}

void TileService::schedule() {
    m_turn.start(0);
}

void TileService::takeTurn() {
    const QPointer<TileService> alive(this);
    const Clock::time_point end = Clock::now() + timeOfATurn;
    do {
        const bool isMore = takeStep();
        if (alive.isNull() || !isMore) {
            return;
        }
    } while (Clock::now() < end);
    schedule();
}

// A receiver of a signal may request other tiles: after one nothing that was found before still
// holds.
bool TileService::takeStep() {
    for (const auto state : {Request::State::responded, Request::State::fresh}) {
        for (const ServiceTile& tile : m_order) {
            Request& request = m_requests.at(tile);
            if (request.state == state) {
                const ServiceTile taken = tile;
                state == Request::State::fresh ? lookUp(taken, request) : settle(taken, request);
                return true;
            }
        }
    }
    return start();
}

void TileService::lookUp(const ServiceTile& tile, Request& request) {
    const TileSource* const source = sourceOf(tile);
    if (source == nullptr || m_missing.contains(tile)) {
        miss(tile, request);
        return;
    }
    request.address = source->address(tile.key);
    request.state = Request::State::waiting;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    std::optional<TileCache::Entry> kept = m_cache.find(request.address.toString(), now);
    if (!kept || !looksLikeTile(tile.content, kept->bytes)) {
        return;
    }
    if (kept->freshUntil > now) {
        arrive(tile, request, kept->bytes);
    } else {
        request.stale = std::move(kept);
    }
}

int TileService::running(const QUrl* host) const {
    return static_cast<int>(std::ranges::count_if(m_requests, [&](const auto& entry) {
        const Request& request = entry.second;
        return request.state == Request::State::running &&
               (host == nullptr || request.address.authority() == host->authority());
    }));
}

// Starts the most important of those that were tried least; or else waits for the first delay to
// end.
bool TileService::start() {
    if (running(nullptr) >= mostRequestsAtOnce) {
        return false;
    }
    const Clock::time_point now = Clock::now();
    Clock::time_point wakeUp = Clock::time_point::max();
    const ServiceTile* next = nullptr;
    for (const ServiceTile& tile : m_order) {
        Request& request = m_requests.at(tile);
        if (request.state != Request::State::waiting) {
            continue;
        }
        const Clock::time_point delayedUntil = m_hosts.delayedUntil(request.address);
        if (delayedUntil > now) {
            if (request.stale) {
                arrive(ServiceTile(tile), request, request.stale->bytes);
                return true;
            }
            wakeUp = std::min(wakeUp, delayedUntil);
        } else if ((next == nullptr || request.tries < m_requests.at(*next).tries) &&
                   running(&request.address) < m_hosts.mostAtOnce(request.address)) {
            next = &tile;
        }
    }
    if (next != nullptr) {
        start(*next, m_requests.at(*next));
        return true;
    }
    if (wakeUp != Clock::time_point::max()) {
        m_turn.start(std::chrono::ceil<std::chrono::milliseconds>(wakeUp - now));
    }
    return false;
}

void TileService::start(const ServiceTile& tile, Request& request) {
    if (!m_network) {
        m_network = std::make_unique<QNetworkAccessManager>();
    }
    const QNetworkRequest message =
        serviceRequest(request.address, tile.content, m_options.userAgent, request.stale);
    request.state = Request::State::running;
    request.started = Clock::now();
    ++request.tries;
    const TileFetch::Limits limits{.bytes = m_options.responseBytes,
                                   .time = m_options.responseTime,
                                   .silentTime = m_options.silentTime};
    request.fetch = std::make_unique<TileFetch>(
        *m_network, message, limits, [this, &request](const TileResponse& response) {
            request.response = response;
            request.state = Request::State::responded;
            schedule();
        });
}

void TileService::settle(const ServiceTile& tile, Request& request) {
    request.fetch.reset();
    const TileResponse response = std::exchange(request.response, {});
    const TileVerdict found = verdict(tile.content, response);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QString address = request.address.toString();
    if (found == TileVerdict::unreachable) {
        Q_EMIT unreachable();
    } else {
        Q_EMIT reached();
    }
    switch (found) {
    case TileVerdict::tile:
        m_hosts.succeeded(request.address);
        if (const auto until = freshUntil(response, now)) {
            m_cache.keep(
                address, {response.body, *until, response.entityTag, response.lastModified}, now);
        }
        arrive(tile, request, response.body);
        break;
    case TileVerdict::unchanged:
        m_hosts.succeeded(request.address);
        if (!request.stale) {
            miss(tile, request); // a response to what was not asked
            break;
        }
        m_cache.refresh(address, freshUntil(response, now).value_or(now));
        arrive(tile, request, request.stale->bytes);
        break;
    case TileVerdict::missing:
        m_hosts.succeeded(request.address);
        miss(tile, request);
        break;
    case TileVerdict::busy:
    case TileVerdict::refused:
    case TileVerdict::unreachable:
        m_hosts.failed(request.address,
                       request.started,
                       Clock::now(),
                       retryAfter(response.retryAfter, now),
                       found == TileVerdict::unreachable ? TileServiceHosts::Failure::noResponse
                                                         : TileServiceHosts::Failure::response);
        settleFailure(tile, request, found);
        break;
    }
}

void TileService::settleFailure(const ServiceTile& tile, Request& request, TileVerdict verdict) {
    request.state = Request::State::waiting;
    request.refusals += verdict == TileVerdict::refused ? 1 : 0;
    if (request.stale) {
        arrive(tile, request, request.stale->bytes);
    } else if (request.refusals >= mostRefusals) {
        miss(tile, request);
    }
}

void TileService::arrive(const ServiceTile& tile, Request& request, QByteArray bytes) {
    const QByteArray own =
        std::move(bytes); // the request may be gone before all receivers have run
    request.state = Request::State::done;
    request.stale.reset();
    Q_EMIT arrived(tile, own);
}

void TileService::miss(const ServiceTile& tile, Request& request) {
    request.state = Request::State::done;
    request.stale.reset();
    m_missing.insert(tile);
    Q_EMIT missing(tile);
}

} // namespace vasker
