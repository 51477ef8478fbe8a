#include "map/tiles/TileArchive.h"

#include "map/geometry/Projection.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace vasker {

namespace {

// A schema is a program: a view may ask for work without end. What an archive needs of SQLite's
// machine is a few hundred steps; a scan for the deepest zoom, where nothing is indexed, some
// millions.
constexpr int stepsBetweenLooks = 10'000;
constexpr int maximumLooks = 1'000;

class Allowance {
  public:
    explicit Allowance(sqlite3* database) : m_database(database) {
        const auto look = [](void* looks) {
            return static_cast<int>(++*static_cast<int*>(looks) > maximumLooks);
        };
        sqlite3_progress_handler(m_database, stepsBetweenLooks, look, &m_looks);
    }
    ~Allowance() { sqlite3_progress_handler(m_database, 0, nullptr, nullptr); }
    Allowance(const Allowance&) = delete;
    Allowance& operator=(const Allowance&) = delete;

  private:
    sqlite3* m_database;
    int m_looks = 0;
};

class Statement {
  public:
    Statement(sqlite3* database, const char* sql) {
        sqlite3_prepare_v2(database, sql, -1, &m_statement, nullptr);
    }
    ~Statement() { sqlite3_finalize(m_statement); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    [[nodiscard]] sqlite3_stmt* get() const noexcept { return m_statement; }
    [[nodiscard]] bool isAtRow() const {
        return m_statement != nullptr && sqlite3_step(m_statement) == SQLITE_ROW;
    }

  private:
    sqlite3_stmt* m_statement = nullptr;
};

/// Immutable: no lock and no journal is looked for, so that a folder without write access will do.
std::string addressOf(const std::filesystem::path& absolutePath) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view plain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    std::string address = "file://";
    for (const char character : absolutePath.string()) {
        if (plain.find(character) != std::string_view::npos) {
            address += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            address += '%';
            address += digits[byte >> 4U];
            address += digits[byte & 0xFU];
        }
    }
    return address + "?immutable=1";
}

template <typename Number>
std::optional<Number> numberIn(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = error == std::errc{} && end == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

std::optional<int> zoomIn(const std::optional<std::string>& text) {
    const auto zoom = text ? numberIn<int>(*text) : std::nullopt;
    return zoom && *zoom >= 0 && *zoom <= maximumTileZoom ? zoom : std::nullopt;
}

/// Of "west,south,east,north" in degrees.
std::optional<MapRect> boundsIn(std::string_view text) {
    std::array<double, 4> edges{};
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const std::size_t end = i + 1 < edges.size() ? text.find(',') : text.size();
        const auto edge =
            end == std::string_view::npos ? std::nullopt : numberIn<double>(text.substr(0, end));
        if (!edge || !(*edge >= -180 && *edge <= 180)) {
            return std::nullopt;
        }
        edges[i] = *edge;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    const auto [west, south, east, north] = edges;
    if (west >= east || south >= north) {
        return std::nullopt;
    }
    const MapPoint corner = coordinateToMapPoint({north, west});
    const MapPoint opposite = coordinateToMapPoint({south, east});
    return MapRect{corner.x, corner.y, opposite.x - corner.x, opposite.y - corner.y};
}

bool isTile(TileKey key) {
    return key.zoom >= 0 && key.zoom <= maximumTileZoom && key.column >= 0 && key.row >= 0 &&
           key.column < (1 << key.zoom) && key.row < (1 << key.zoom);
}

} // namespace

std::unique_ptr<TileArchive> TileArchive::open(const std::string& path) {
    std::unique_ptr<TileArchive> archive(new TileArchive);
    return archive->openDatabase(path) && archive->readMetadata() ? std::move(archive) : nullptr;
}

TileArchive::~TileArchive() {
    sqlite3_finalize(m_query);
    sqlite3_close(m_database);
}

bool TileArchive::openDatabase(const std::string& path) {
    std::error_code error;
    const auto absolutePath = std::filesystem::absolute(path, error);
    if (error || !std::filesystem::is_regular_file(absolutePath, error)) {
        return false;
    }
    if (sqlite3_open_v2(addressOf(absolutePath).c_str(),
                        &m_database,
                        SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX,
                        nullptr) != SQLITE_OK) {
        return false;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): SQLite has no other door to it
    sqlite3_db_config(m_database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_limit(m_database, SQLITE_LIMIT_LENGTH, maximumStoredTileBytes);
    return true;
}

bool TileArchive::readMetadata() {
    const Allowance allowance(m_database);
    sqlite3_prepare_v3(m_database,
                       "SELECT tile_data FROM tiles"
                       " WHERE zoom_level = ? AND tile_column = ? AND tile_row = ?",
                       -1,
                       SQLITE_PREPARE_PERSISTENT,
                       &m_query,
                       nullptr);
    const bool hasMetadata =
        Statement(m_database, "SELECT name, value FROM metadata").get() != nullptr;
    if (m_query == nullptr || !hasMetadata) {
        return false;
    }
    auto zoom = zoomIn(metadata("maxzoom"));
    if (!zoom) {
        zoom = deepestStoredZoom();
    }
    m_maximumZoom = zoom.value_or(0);
    m_attribution = metadata("attribution").value_or("");
    m_coverage = describedCoverage();
    return true;
}

std::optional<std::string> TileArchive::metadata(const char* name) {
    const Statement query(m_database, "SELECT value FROM metadata WHERE name = ?");
    sqlite3_bind_text(query.get(), 1, name, -1, SQLITE_STATIC);
    if (!query.isAtRow()) {
        return std::nullopt;
    }
    const unsigned char* text = sqlite3_column_text(query.get(), 0);
    if (text == nullptr) {
        return std::nullopt;
    }
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(query.get(), 0));
    return std::string(reinterpret_cast<const char*>(text), size);
}

std::optional<int> TileArchive::deepestStoredZoom() {
    const Statement query(m_database, "SELECT max(zoom_level) FROM tiles");
    if (!query.isAtRow()) {
        return std::nullopt;
    }
    const std::int64_t zoom = sqlite3_column_int64(query.get(), 0);
    return zoom >= 0 && zoom <= maximumTileZoom ? std::optional(static_cast<int>(zoom))
                                                : std::nullopt;
}

std::optional<TileArchive::Coverage> TileArchive::describedCoverage() {
    const auto worldZoom = zoomIn(metadata("world_maxzoom"));
    const auto detail = metadata("detail_bounds");
    const auto bounds = detail ? boundsIn(*detail) : std::nullopt;
    return worldZoom && bounds ? std::optional(Coverage{*worldZoom, *bounds}) : std::nullopt;
}

std::optional<std::string> TileArchive::tile(TileKey key) {
    std::string bytes;
    return read(key, bytes) == Stored::tile ? std::optional(std::move(bytes)) : std::nullopt;
}

TileArchive::Stored TileArchive::read(TileKey key, std::string& bytes) {
    if (!isTile(key)) {
        return Stored::nothing;
    }
    const Allowance allowance(m_database);
    sqlite3_bind_int(m_query, 1, key.zoom);
    sqlite3_bind_int(m_query, 2, key.column);
    // The conventions count rows from the south.
    sqlite3_bind_int(m_query, 3, (1 << key.zoom) - 1 - key.row);
    Stored stored = Stored::nothing;
    const int result = sqlite3_step(m_query);
    if (result == SQLITE_ROW && sqlite3_column_type(m_query, 0) == SQLITE_BLOB) {
        const void* data = sqlite3_column_blob(m_query, 0);
        const int size = sqlite3_column_bytes(m_query, 0);
        if (data != nullptr && size > 0) {
            bytes.assign(static_cast<const char*>(data), static_cast<std::size_t>(size));
            stored = Stored::tile;
        }
    } else if (result != SQLITE_ROW && result != SQLITE_DONE) {
        stored = Stored::damaged;
    }
    sqlite3_reset(m_query);
    return stored;
}

bool TileArchive::covers(TileKey key) const noexcept {
    return m_coverage && (key.zoom <= m_coverage->worldZoom ||
                          m_coverage->detail.contains(key.bounds().center()));
}

std::optional<TileArchive::Found> TileArchive::nearestTile(TileKey key) {
    if (!isTile(key)) {
        return std::nullopt;
    }
    Found found{key.zoom > m_maximumZoom ? key.ancestor(key.zoom - m_maximumZoom) : key, {}};
    for (;; found.key = found.key.ancestor(1)) {
        const Stored stored = read(found.key, found.bytes);
        if (stored == Stored::tile || (stored == Stored::nothing && covers(found.key))) {
            return found;
        }
        if (found.key.zoom == 0) {
            return std::nullopt;
        }
    }
}

} // namespace vasker
