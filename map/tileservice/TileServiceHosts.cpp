#include "map/tileservice/TileServiceHosts.h"

#include <algorithm>

namespace vasker {

namespace {

constexpr int mostAtOnceOfAHost = 6;

} // namespace

const TileServiceHosts::Host* TileServiceHosts::host(const QUrl& address) const {
    const auto found = m_hosts.find(address.authority());
    return found == m_hosts.end() ? nullptr : &found->second;
}

int TileServiceHosts::mostAtOnce(const QUrl& address) const {
    return host(address) != nullptr ? 1 : mostAtOnceOfAHost;
}

TileServiceHosts::Clock::time_point TileServiceHosts::delayedUntil(const QUrl& address) const {
    const Host* const known = host(address);
    return known != nullptr ? known->delayedUntil : Clock::time_point::min();
}

void TileServiceHosts::succeeded(const QUrl& address) {
    m_hosts.erase(address.authority());
}

void TileServiceHosts::failed(const QUrl& address,
                              Clock::time_point started,
                              Clock::time_point now,
                              std::optional<std::chrono::seconds> asked,
                              Failure failure) {
    Host& host = m_hosts[address.authority()];
    if (host.failures == 0 || started >= host.failedAt) {
        ++host.failures;
        host.failedAt = now;
        host.failure = failure;
    }
    host.delayedUntil = std::max(host.delayedUntil, now + retryDelay(host.failures, asked, m_rule));
}

void TileServiceHosts::networkReturned() {
    std::erase_if(m_hosts,
                  [](const auto& entry) { return entry.second.failure == Failure::noResponse; });
}

} // namespace vasker
