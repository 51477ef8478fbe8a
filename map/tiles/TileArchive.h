#pragma once
// One archive of tiles on disk: an SQLite file by the MBTiles 1.3 conventions, read only. Use an
// object on one thread; several may read one file. The file must not change while it is read.

#include "map/geometry/TileKey.h"
#include "map/tiles/SqliteDatabase.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vasker {

/// The largest tile that is read, in bytes as stored; a larger one counts as damaged.
inline constexpr int maximumStoredTileBytes = 8'000'000;

class TileArchive {
  public:
    /// Null where the file is missing, cannot be read or is no archive.
    [[nodiscard]] static std::unique_ptr<TileArchive> open(const std::string& path);

    /// The bytes of a tile as they are stored; nothing where there is none, where the file is
    /// damaged there, or where `key` is no tile's. After a search without end nothing is found any
    /// more.
    [[nodiscard]] std::optional<std::string> tile(TileKey key);
    /// The tile itself, or the nearest of its ancestors that the archive holds, with its key. Where
    /// the archive covers a place at the zoom in question and stores nothing, there is nothing to
    /// draw: the answer has that key and no bytes. An archive tells what it covers by two entries
    /// of its own in its metadata: the whole world down to `world_maxzoom`, below that what lies in
    /// `detail_bounds` (west, south, east, north, in degrees; edges of tiles). Without these
    /// nothing counts as covered. Nothing where no ancestor is there either.
    struct Found {
        TileKey key;
        std::string bytes;
    };
    [[nodiscard]] std::optional<Found> nearestTile(TileKey key);

    /// 0 to maximumTileZoom: what the metadata say, or where they make no sense, what the tiles do.
    [[nodiscard]] int maximumZoom() const noexcept { return m_maximumZoom; }
    /// What the archive asks to be said of it; may be empty.
    [[nodiscard]] const std::string& attribution() const noexcept { return m_attribution; }

  private:
    enum class Stored : std::uint8_t { tile, nothing, damaged };
    struct Coverage {
        int worldZoom;
        MapRect detail;
    };

    TileArchive() = default;
    bool readMetadata();
    std::optional<std::string> metadata(std::string_view name);
    std::optional<Coverage> describedCoverage();
    Stored read(TileKey key, std::string& bytes);
    [[nodiscard]] bool covers(TileKey key) const noexcept;

    SqliteDatabase m_database;
    SqliteStatement m_query;
    int m_maximumZoom = 0;
    std::string m_attribution;
    std::optional<Coverage> m_coverage;
    bool m_isGivenUp = false;
};

} // namespace vasker
