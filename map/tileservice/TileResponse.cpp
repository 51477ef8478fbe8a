#include "map/tileservice/TileResponse.h"

#include "map/tiles/ImageryFormat.h"
#include "map/tileservice/RetryDelay.h"

#include <algorithm>

namespace vasker {

namespace {

constexpr int leastDays = 7;
constexpr int mostDays = 365;

TileVerdict verdictOfBody(TileContent content, const TileResponse& response) {
    if (response.isTooLong) {
        return TileVerdict::missing;
    }
    if (!response.isWhole) {
        return TileVerdict::refused;
    }
    const bool isText = response.contentType.trimmed().toLower().startsWith("text/");
    return !isText && looksLikeTile(content, response.body) ? TileVerdict::tile
                                                            : TileVerdict::missing;
}

} // namespace

TileVerdict verdict(TileContent content, const TileResponse& response) {
    switch (response.status) {
    case 0:
        return TileVerdict::unreachable;
    case 200:
        return verdictOfBody(content, response);
    case 304:
        return TileVerdict::unchanged;
    case 429: // too many requests
    case 503: // unavailable
        return TileVerdict::busy;
    case 401: // to be turned away is a reason to ask less, not tile after tile
    case 403:
    case 407:
    case 408:
        return TileVerdict::refused;
    default:
        // Redirections too: what is not where the address says is not there.
        return response.status >= 500 ? TileVerdict::refused : TileVerdict::missing;
    }
}

bool looksLikeTile(TileContent content, QByteArrayView bytes) noexcept {
    if (content == TileContent::imagery) {
        return imageryFormat({bytes.data(), static_cast<std::size_t>(bytes.size())}) != nullptr;
    }
    // The first layer's field, or the beginning of gzip or zlib.
    return bytes.startsWith('\x1a') || bytes.startsWith("\x1f\x8b") || bytes.startsWith('\x78');
}

std::optional<QDateTime> freshUntil(const TileResponse& response, const QDateTime& now) {
    std::optional<qint64> maximumAge;
    for (const QByteArray& part : response.cacheControl.toLower().split(',')) {
        const QByteArray directive = part.trimmed();
        if (directive == "no-store") {
            return std::nullopt;
        }
        if (directive.startsWith("max-age=")) {
            bool isNumber = false;
            const qint64 seconds = directive.mid(8).toLongLong(&isNumber);
            maximumAge = isNumber ? seconds : 0;
        }
    }
    const QDateTime least = now.addDays(leastDays);
    const QDateTime most = now.addDays(mostDays);
    if (maximumAge) {
        return std::clamp(
            now.addSecs(std::clamp<qint64>(*maximumAge, 0, now.secsTo(most))), least, most);
    }
    const QDateTime expires = httpDate(response.expires);
    return expires.isValid() ? std::clamp(expires, least, most) : least;
}

} // namespace vasker
