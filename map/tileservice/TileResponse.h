#pragma once
// The response of a service, and what it means. Pure: the time is an argument.

#include "map/tileservice/ServiceTile.h"

#include <QByteArray>
#include <QDateTime>

#include <cstdint>
#include <optional>

namespace vasker {

struct TileResponse {
    int status = 0; ///< of HTTP; 0: there was no response
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
    missing,     ///< there is no tile, or what came is none; another request is no use
    busy,        ///< the service asks for a pause
    refused,     ///< the service failed at this tile or refused access
    unreachable, ///< no response
};

[[nodiscard]] TileVerdict verdict(TileContent content, const TileResponse& response);

/// Whether the first bytes are those of such a tile.
[[nodiscard]] bool looksLikeTile(TileContent content, QByteArrayView bytes) noexcept;

/// Until when the tile need not be requested again: as the response says (Cache-Control, Expires),
/// but at least 7 days, the least that services ask for, and at most a year. Nothing where it
/// must not be kept.
[[nodiscard]] std::optional<QDateTime> freshUntil(const TileResponse& response,
                                                  const QDateTime& now);

} // namespace vasker
