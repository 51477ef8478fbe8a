#include "map/tileservice/RetryDelay.h"

#include <QLocale>
#include <QTimeZone>

#include <algorithm>

namespace vasker {

std::chrono::milliseconds
retryDelay(int failures, std::optional<std::chrono::seconds> asked, const RetryRule& rule) {
    std::chrono::milliseconds pause = std::min(rule.first, rule.longest);
    for (int doubled = 1; doubled < failures && pause < rule.longest; ++doubled) {
        pause = std::min(pause * 2, rule.longest);
    }
    if (!asked) {
        return pause;
    }
    // Compared in seconds first: the header's number may be too large for milliseconds.
    const auto most = std::chrono::duration_cast<std::chrono::seconds>(rule.longestAsked);
    return std::max(pause, *asked > most ? rule.longestAsked : std::chrono::milliseconds(*asked));
}

QDateTime httpDate(const QByteArray& text) {
    QDateTime date = QLocale::c().toDateTime(QString::fromLatin1(text.trimmed()),
                                             QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
    date.setTimeZone(QTimeZone::utc());
    return date;
}

std::optional<std::chrono::seconds> retryAfter(const QByteArray& header, const QDateTime& now) {
    bool isNumber = false;
    const qint64 seconds = header.trimmed().toLongLong(&isNumber);
    if (isNumber) {
        return seconds < 0 ? std::nullopt : std::optional(std::chrono::seconds(seconds));
    }
    const QDateTime date = httpDate(header);
    if (!date.isValid()) {
        return std::nullopt;
    }
    return std::chrono::seconds(std::max<qint64>(0, now.secsTo(date)));
}

} // namespace vasker
