#pragma once
// A vector tile of the Shortbread schema, decoded: the attributes that this map uses, and geometry
// in fractions of the tile's side. Bytes come from files and from the network: whatever is wrong
// with them costs the tile, never more.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// x to the east, y to the south; 0 to 1 in the tile, a little beyond in its margin. What lies in
/// the margin is in the neighbour's tile too: of points, take those with 0 <= x, y < 1.
struct TilePoint {
    float x;
    float y;
    friend bool operator==(const TilePoint&, const TilePoint&) = default;
};

struct VectorFeature {
    enum class Geometry : std::uint8_t { points, lines, polygon };

    Geometry geometry = Geometry::points;
    /// Of points: one part. Of lines: each of two points or more. Of a polygon: closed rings, the
    /// first point repeated at the end, to be filled by the odd-even rule.
    std::vector<std::vector<TilePoint>> parts;
    std::string kind;
    /// In the language of the place; with what the tile says in English and French, else empty.
    std::string name;
    std::string nameEnglish;
    std::string nameFrench;
    std::int64_t population = 0;
    int adminLevel = 0;
    int rank = 0; ///< of our own archive: 0 is the most important
    double wayArea = 0;
    bool disputed = false;
    bool maritime = false;
    bool rail = false;
    bool link = false;
    bool tunnel = false;
};

struct VectorLayer {
    std::string name;
    std::vector<VectorFeature> features;
};

struct VectorTile {
    std::vector<VectorLayer> layers;
    /// The layer of that name; null where there is none.
    [[nodiscard]] const VectorLayer* layer(std::string_view name) const noexcept;
    /// About what the tile takes of memory.
    [[nodiscard]] std::size_t memoryBytes() const noexcept;
};

/// In version 2.1 of the format of vector tiles (MVT). Nothing where the bytes are no vector tile;
/// none at all are an empty one. Passed over: attributes that this map does not use; layers without
/// a name or with an extent of zero or beyond 2^24; features without geometry, with geometry that
/// breaks the format, or that reach further than 64 tiles away; texts of more than 256
/// bytes. Takes time in proportion to the bytes, and at most some fifty times their memory: a tile
/// whose features repeat one long text to fill more is refused.
[[nodiscard]] std::optional<VectorTile> decodeVectorTile(std::string_view inflated);

} // namespace vasker
