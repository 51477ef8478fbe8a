#pragma once
// What a service answered, and what that means. Pure: the time is an argument.

#include "map/tileservice/ServiceTile.h"

#include <QByteArray>
#include <QDateTime>

#include <cstdint>
#include <optional>

namespace vasker {

struct TileResponse {
    int status = 0; ///< of HTTP; 0: there was no answer
    QByteArray body;
    bool isWhole = false;   ///< false: it broke off, or took too long
    bool isTooLong = false; ///< more bytes than we take; the body is not kept
    QByteArray contentType;
    QByteArray cacheControl;
    QByteArray expires;
    QByteArray retryAfter;
    QByteArray entityTag;
    QByteArray lastModified;
};

enum class TileVerdict : std::uint8_t {
    tile,        ///< the body is one
    unchanged,   ///< what the cache has still holds
    missing,     ///< there is none, or what came is none; asking again is no use
    busy,        ///< the service asks to be left alone
    refused,     ///< the service failed at this tile or turned us away
    unreachable, ///< no answer
};

[[nodiscard]] TileVerdict verdict(TileContent content, const TileResponse& answer);

/// Whether the first bytes are those of such a tile.
[[nodiscard]] bool looksLikeTile(TileContent content, QByteArrayView bytes) noexcept;

/// Until when the tile need not be asked for again: as the answer says (Cache-Control, Expires),
/// but at least 7 days, the least that services ask for, and at most a year. Nothing where it
/// must not be kept.
[[nodiscard]] std::optional<QDateTime> freshUntil(const TileResponse& answer, const QDateTime& now);

} // namespace vasker
