#pragma once
// The HTTP request for a tile. It names the program, and nothing about its user.

#include "map/tileservice/ServiceTile.h"
#include "map/tileservice/TileCache.h"

#include <QNetworkRequest>
#include <QString>
#include <QUrl>

#include <optional>

namespace vasker {

/// `kept` is what the cache has that is no longer fresh: the service is asked whether it changed.
[[nodiscard]] QNetworkRequest serviceRequest(const QUrl& address,
                                             TileContent content,
                                             const QString& userAgent,
                                             const std::optional<TileCache::Entry>& kept);

} // namespace vasker
