#pragma once
// Which services get no requests at the moment, because they failed or asked for it. A service is a
// host and port. Pure: the time is an argument.

#include "map/tileservice/RetryDelay.h"

#include <QString>
#include <QUrl>

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>

namespace vasker {

class TileServiceHosts {
  public:
    using Clock = std::chrono::steady_clock;

    explicit TileServiceHosts(RetryRule rule) : m_rule(rule) {}

    /// How many requests may run at once for the host of `address`: after a failure one, to try.
    [[nodiscard]] int mostAtOnce(const QUrl& address) const;
    /// Until when the host of `address` is left alone; past where it is not.
    [[nodiscard]] Clock::time_point delayedUntil(const QUrl& address) const;

    void succeeded(const QUrl& address);
    enum class Failure : std::uint8_t { response, noResponse };
    /// A request that was started at `started` failed at `now`; the service `asked` for a pause.
    /// Requests that ran together and fail together are one failure.
    void failed(const QUrl& address,
                Clock::time_point started,
                Clock::time_point now,
                std::optional<std::chrono::seconds> asked,
                Failure failure = Failure::response);
    /// Ends the pauses that were due to missing responses; called when the network is back.
    void networkReturned();

  private:
    struct Host {
        int failures = 0;
        Failure failure = Failure::response;
        Clock::time_point failedAt;
        Clock::time_point delayedUntil;
    };
    [[nodiscard]] const Host* host(const QUrl& address) const;

    RetryRule m_rule;
    std::map<QString, Host> m_hosts; ///< those that failed last; as many as there are sources
};

} // namespace vasker
