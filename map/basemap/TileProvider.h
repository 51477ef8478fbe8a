#pragma once
// The data of tiles: from the archives, and from what services have sent. Any thread.

#include "map/basemap/Attribution.h"
#include "map/style/BasemapTheme.h"
#include "map/style/TileData.h"
#include "map/tiles/TileArchive.h"
#include "map/tileservice/TileService.h"

#include <QByteArray>
#include <QCache>

#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

struct ProvidedTile {
    TileData data;
    std::vector<Attribution> attributions;
    std::uint64_t vectorRevision = 0;     ///< which of the tiles of its key data.vector is
    std::vector<ServiceTile> undecodable; ///< what services sent and could not be decoded
    /// Imagery is no more than colour somewhere in the tile, and a service has sharper.
    bool lacksSharperImagery = false;
};

/// Paths; where there is no archive, there is nothing of it.
struct TileArchivePaths {
    std::string vector;
    std::string imagery;
};

class TileProvider {
  public:
    TileProvider(TileArchivePaths archives, TileSources sources);

    /// Keeps what a service sent, up to receivedBytes: what was used longest ago goes first.
    /// Nothing is checked yet: a tile that cannot be decoded is as if it had not come.
    void put(const ServiceTile& tile, const QByteArray& bytes);

    /// Of each place the nearest zoom that is there; of one zoom, what a service sent before what
    /// an archive holds.
    [[nodiscard]] ProvidedTile read(TileKey key, BasemapTheme theme);

    /// The vector tile of `found` cannot be painted: from now on it counts as undecodable.
    void refuseVector(const ProvidedTile& found);

    /// Which tiles of services would show `key` better than what the archives hold.
    [[nodiscard]] std::vector<ServiceTile> requestsFor(TileKey key, BasemapTheme theme) const;

    /// How much is kept in memory.
    static constexpr qsizetype receivedBytes = 24'000'000;
    static constexpr qsizetype decodedBytes = 16'000'000;

  private:
    using VectorPointer = std::shared_ptr<const VectorTile>;

    /// An archive is used by one thread at a time; threads return their handles.
    class ArchivePool {
      public:
        explicit ArchivePool(std::string path) : m_path(std::move(path)) {}
        /// Null where there is no archive.
        [[nodiscard]] std::unique_ptr<TileArchive> take();
        void giveBack(std::unique_ptr<TileArchive> archive);

      private:
        std::string m_path;
        std::mutex m_mutex;
        bool m_isMissing = false;
        std::vector<std::unique_ptr<TileArchive>> m_idle;
    };

    /// What a service sent. The revision tells it apart from what it sent before.
    struct Received {
        QByteArray bytes;
        std::uint64_t revision;
    };
    /// Of an archive's tile the revision is 0.
    struct Decoded {
        VectorPointer tile; ///< null: the bytes are no tile
        std::uint64_t revision;
    };
    struct CreditedImagery {
        ImageryTile tile;
        Attribution attribution;
    };

    [[nodiscard]] std::optional<Received> received(const ServiceTile& tile);
    /// Forgets what could not be decoded, unless something newer has come.
    void forget(const ServiceTile& tile, std::uint64_t revision, ProvidedTile& found);
    [[nodiscard]] VectorPointer
    decoded(TileKey key, std::uint64_t revision, std::string_view bytes);
    void readVector(TileKey key, ProvidedTile& found);
    void readImagery(TileKey key, ProvidedTile& found);
    [[nodiscard]] bool readReceivedVector(TileKey key, ProvidedTile& found);
    [[nodiscard]] std::optional<CreditedImagery>
    imagery(TileKey key, TileArchive* archive, ProvidedTile& provided);
    [[nodiscard]] Attribution attributionOf(const ServiceTile& tile) const;

    TileSources m_sources;
    ArchivePool m_vectorArchives;
    ArchivePool m_imageryArchives;
    std::mutex m_mutex;
    std::uint64_t m_lastRevision = 0;
    QCache<ServiceTile, Received> m_received{receivedBytes};
    QCache<std::pair<bool, TileKey>, Decoded> m_decoded{decodedBytes}; ///< of a service or not
};

} // namespace vasker
