#pragma once
// A vector tile of the Shortbread schema, decoded: the attributes that this map uses, and geometry
// in fractions of the tile's side.

#include <cstddef>
#include <cstdint>
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

    /// About what the feature takes of memory.
    [[nodiscard]] std::size_t memoryBytes() const noexcept;
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

} // namespace vasker
