#include "map/tiles/TileArchive.h"

#include "map/geometry/Projection.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <system_error>
#include <utility>

namespace vasker {

namespace {

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

/// Of opening, and of the way to a tile through all zooms.
constexpr SqliteDatabase::Budget budget{.steps = 5'000'000, .time = std::chrono::milliseconds(100)};

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

} // namespace

std::unique_ptr<TileArchive> TileArchive::open(const std::string& path) {
    std::unique_ptr<TileArchive> archive(new TileArchive);
    const bool isOpen = archive->m_database.open(
        path, SqliteDatabase::Mode::readOnly, maximumStoredTileBytes, budget);
    return isOpen && archive->readMetadata() ? std::move(archive) : nullptr;
}

bool TileArchive::readMetadata() {
    m_query = m_database.prepare("SELECT tile_data FROM tiles"
                                 " WHERE zoom_level = ? AND tile_column = ? AND tile_row = ?");
    if (!m_query.isValid() || !m_database.prepare("SELECT name, value FROM metadata").isValid()) {
        return false;
    }
    auto zoom = zoomIn(metadata("maxzoom"));
    if (!zoom) {
        const std::int64_t deepest = m_database.number("SELECT max(zoom_level) FROM tiles");
        if (m_database.state() == SqliteDatabase::State::overBudget) {
            return false;
        }
        zoom =
            deepest <= maximumTileZoom ? static_cast<int>(std::max<std::int64_t>(deepest, 0)) : 0;
    }
    m_maximumZoom = *zoom;
    m_attribution = metadata("attribution").value_or("");
    m_coverage = describedCoverage();
    return true;
}

std::optional<std::string> TileArchive::metadata(std::string_view name) {
    SqliteStatement query = m_database.prepare("SELECT value FROM metadata WHERE name = ?");
    query.bindText(1, name);
    return query.run() ? std::optional(std::string(query.bytes(0))) : std::nullopt;
}

std::optional<TileArchive::Coverage> TileArchive::describedCoverage() {
    const auto worldZoom = zoomIn(metadata("world_maxzoom"));
    const auto detail = metadata("detail_bounds");
    const auto bounds = detail ? boundsIn(*detail) : std::nullopt;
    return worldZoom && bounds ? std::optional(Coverage{*worldZoom, *bounds}) : std::nullopt;
}

std::optional<std::string> TileArchive::tile(TileKey key) {
    std::string bytes;
    m_database.begin(budget);
    return read(key, bytes) == Stored::tile ? std::optional(std::move(bytes)) : std::nullopt;
}

TileArchive::Stored TileArchive::read(TileKey key, std::string& bytes) {
    if (!key.isValid()) {
        return Stored::nothing;
    }
    if (m_isGivenUp) {
        return Stored::damaged;
    }
    // The conventions count rows from the south.
    m_query.bind(1, key.zoom).bind(2, key.column).bind(3, (1 << key.zoom) - 1 - key.row);
    Stored stored = Stored::nothing;
    if (m_query.run()) {
        if (m_query.isBytes(0) && !m_query.bytes(0).empty()) {
            bytes = m_query.bytes(0);
            stored = Stored::tile;
        }
    } else if (m_database.state() != SqliteDatabase::State::fine) {
        stored = Stored::damaged;
        m_isGivenUp = m_database.state() == SqliteDatabase::State::overBudget;
    }
    m_query.reset();
    return stored;
}

bool TileArchive::covers(TileKey key) const noexcept {
    return m_coverage && (key.zoom <= m_coverage->worldZoom ||
                          m_coverage->detail.contains(key.bounds().center()));
}

std::optional<TileArchive::Found> TileArchive::nearestTile(TileKey key) {
    if (!key.isValid()) {
        return std::nullopt;
    }
    m_database.begin(budget);
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
