#pragma once
// One service of tiles, as the bundle information describes it: {"template", "firstZoom",
// "lastZoom", "attribution", "attributionURL"}. Zooms are those of the address.

#include "map/geometry/TileKey.h"

#include <QString>
#include <QUrl>

namespace vasker {

struct TileSource {
    QString addressTemplate; ///< with {z}, {x} and {y}
    int firstZoom = 0;
    int lastZoom = 0;
    QString attribution;
    QUrl attributionAddress;

    /// The template with the key's numbers; `key` within the zooms.
    [[nodiscard]] QUrl address(TileKey key) const;
    /// Whether the zooms make sense and the template is an absolute address, without credentials,
    /// that has each of its three places once, after the host.
    [[nodiscard]] bool isValid() const;
    friend bool operator==(const TileSource&, const TileSource&) = default;
};

} // namespace vasker
