#pragma once
// How long a service gets no requests after it failed or refused one. Values and pure functions:
// the time is an argument.

#include <QByteArray>
#include <QDateTime>

#include <chrono>
#include <optional>

namespace vasker {

struct RetryRule {
    std::chrono::milliseconds first{1'000};    ///< after one failure; doubles with each more
    std::chrono::milliseconds longest{60'000}; ///< of our own accord
    std::chrono::milliseconds longestAsked{3'600'000}; ///< where the service asks for more
};

/// The pause after `failures` (1 or more) in a row; at least as long as the service `asked`, within
/// the rule.
[[nodiscard]] std::chrono::milliseconds
retryDelay(int failures, std::optional<std::chrono::seconds> asked, const RetryRule& rule);

/// A date of HTTP in its preferred form (RFC 9110, 5.6.7), UTC; invalid where it is none.
[[nodiscard]] QDateTime httpDate(const QByteArray& text);

/// What a Retry-After header (RFC 9110, 10.2.3) asks for, in seconds or as a date: 0 or more from
/// `now`; nothing where it makes no sense.
[[nodiscard]] std::optional<std::chrono::seconds> retryAfter(const QByteArray& header,
                                                             const QDateTime& now);

} // namespace vasker
