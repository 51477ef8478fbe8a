#pragma once
// Tiles by HTTPS from services that are fixed at build time, with a cache on disk. Keeps the
// manners that such services ask for: it names itself, asks for few tiles at once and for none that
// is not looked at, keeps what it has, and backs off where it is refused. One thread; answers come
// as signals, later.

#include "map/geometry/TileKey.h"
#include "map/tileservice/RetryDelay.h"

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QUrl>

#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

namespace vasker {

/// A service in the bundle information: {"template", "firstZoom", "lastZoom", "attribution",
/// "attributionURL"}. Zooms are those of the address.
struct TileSource {
    QString addressTemplate; ///< with {z}, {x} and {y}
    int firstZoom = 0;
    int lastZoom = 0;
    QString attribution;
    QUrl attributionAddress;

    /// The template with the key's numbers; `key` within the zooms.
    [[nodiscard]] QUrl address(TileKey key) const;
    /// Whether the zooms make sense and the template is an absolute address, without credentials,
    /// that has each of its three places once, behind the host.
    [[nodiscard]] bool isSound() const;
    friend bool operator==(const TileSource&, const TileSource&) = default;
};

/// Plain HTTP to 127.0.0.1, for tests.
enum class PlainLoopback : std::uint8_t { refused, allowed };

struct TileSources {
    std::vector<TileSource> vector;
    std::vector<TileSource> imagery;
    /// What the bundle information says under "VaskerTileServices"; an entry that is no HTTPS
    /// address with its three places, or whose zooms make no sense, is left out.
    [[nodiscard]] static TileSources fromInformation(const QJsonObject& services);
    /// Those of them that are sound and HTTPS.
    [[nodiscard]] TileSources usable(PlainLoopback plainLoopback) const;
};

enum class TileContent : std::uint8_t { vector, imagery };

struct ServiceTile {
    TileContent content;
    TileKey key;
    friend auto operator<=>(const ServiceTile&, const ServiceTile&) = default;
};

class TileService : public QObject {
    Q_OBJECT

  public:
    struct Options {
        QString cacheFolder; ///< made where it is missing; empty: no cache
        QString userAgent;
        qint64 cacheBytes = 200'000'000;
        PlainLoopback plainLoopback = PlainLoopback::refused;
        qint64 responseBytes = 4'000'000;               ///< longer answers are no tiles
        std::chrono::milliseconds responseTime{20'000}; ///< for one answer as a whole
        std::chrono::milliseconds silentTime{10'000};   ///< in which nothing of it comes
        RetryRule retry;
    };
    /// Of `sources` those that are usable.
    TileService(const TileSources& sources, Options options, QObject* parent = nullptr);
    ~TileService() override;

    /// The source for `tile`: the first that covers its zoom, or null.
    [[nodiscard]] const TileSource* sourceOf(const ServiceTile& tile) const noexcept;
    /// The deepest zoom that any source of `content` has, -1: none.
    [[nodiscard]] int lastZoom(TileContent content) const noexcept;

    /// Exactly these are looked at now, the most wanted first; what was asked for before and is not
    /// among them is no longer fetched. A tile comes once for as long as it stays among them, and
    /// anew, from the cache where that has it, when it returns. What is missing stays so for this
    /// object's life. No signal is sent before this returns.
    void want(const std::vector<ServiceTile>& tiles);
    /// What arrived for `tile` could not be decoded: it is forgotten, and missing from now on.
    void discard(const ServiceTile& tile);

  Q_SIGNALS:
    /// A tile is there: its bytes as the service sent them; vector tiles may be gzip or zlib.
    void arrived(const vasker::ServiceTile& tile, const QByteArray& bytes);
    /// No source covers it, the service has no such tile, or its answers were no tile. Not sent
    /// while there is only no network: that may come back.
    void missing(const vasker::ServiceTile& tile);

  private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace vasker
