#pragma once
// What is known of the ground of a tile: from the archives, and from what a service has sent. Any
// thread.

#include "map/basemap/RecentlyUsed.h"
#include "map/style/TilePicture.h"
#include "map/tiles/TileArchive.h"
#include "map/tileservice/TileService.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// Whom to thank for what is seen.
struct TileAttribution {
    QString text;
    QUrl address; ///< empty: no link
    friend bool operator==(const TileAttribution&, const TileAttribution&) = default;
};

struct ProvidedTile {
    TileData ground;
    std::vector<TileAttribution> credits;
};

struct TileArchivePaths {
    std::string vector; ///< a path; where there is no archive, there is nothing of it
    std::string imagery;
};

class TileProvider {
  public:
    TileProvider(TileArchivePaths archives, TileSources sources);

    /// Keeps what a service sent, for a while: the oldest unused goes first. Nothing is checked
    /// yet: a tile that cannot be decoded is as if it had not come.
    void put(const ServiceTile& tile, const QByteArray& bytes);
    /// What came and could not be decoded since the last call.
    [[nodiscard]] std::vector<ServiceTile> takeUndecodable();

    /// Of each place the nearest zoom that is there; of one zoom, what a service sent before what
    /// an archive holds.
    [[nodiscard]] ProvidedTile read(TileKey key, BasemapTheme look);

    /// Which tiles of services would show `key` better than what the archives hold.
    [[nodiscard]] std::vector<ServiceTile> wantedFor(TileKey key, BasemapTheme look) const;

  private:
    using VectorPointer = std::shared_ptr<const VectorTile>;

    /// An archive is used by one thread at a time; threads hand their handles back.
    class Handles {
      public:
        explicit Handles(std::string path) : m_path(std::move(path)) {}
        [[nodiscard]] std::unique_ptr<TileArchive> take();
        void giveBack(std::unique_ptr<TileArchive> archive);

      private:
        std::string m_path;
        std::mutex m_mutex;
        bool m_isMissing = false;
        std::vector<std::unique_ptr<TileArchive>> m_idle;
    };

    /// A photograph and whom to thank for it.
    struct Photograph {
        ImageryPiece piece;
        TileAttribution credit;
    };

    [[nodiscard]] std::optional<QByteArray> received(const ServiceTile& tile);
    void forget(const ServiceTile& tile);
    /// `fromService` tells apart what archive and service say of one place.
    [[nodiscard]] VectorPointer decoded(TileKey key, bool fromService, std::string_view bytes);
    void readVector(TileKey key, ProvidedTile& found);
    void readImagery(TileKey key, ProvidedTile& found);
    [[nodiscard]] bool readReceivedVector(TileKey key, ProvidedTile& found);
    [[nodiscard]] std::optional<Photograph> photograph(TileKey key, TileArchive* archive);
    [[nodiscard]] TileAttribution creditOf(const ServiceTile& tile) const;

    TileSources m_sources;
    Handles m_vectorArchives;
    Handles m_imageryArchives;
    std::mutex m_mutex;
    RecentlyUsed<ServiceTile, QByteArray> m_received{600};
    RecentlyUsed<std::pair<bool, TileKey>, VectorPointer> m_decoded{
        48}; ///< whether from a service, key
    std::vector<ServiceTile> m_undecodable;
};

} // namespace vasker
