#pragma once
// Decodes vector tiles. Bytes come from files and from the network: whatever is wrong with them
// costs the tile, never more.

#include "map/tiles/VectorTile.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace vasker {

/// What one tile may take once it is decoded; others are decoded beside it.
inline constexpr std::size_t maximumDecodedBytes = 64'000'000;

/// In version 2.1 of the format of vector tiles (MVT). Nothing where the bytes are no vector tile;
/// none at all are an empty one. Passed over: attributes that this map does not use; layers without
/// a name or with an extent of zero or beyond 2^24; features without geometry, with geometry that
/// breaks the format, or that reach further than 64 tiles away; texts of more than 256
/// bytes. Takes time in proportion to the bytes, and at most some fifty times their memory, but not
/// much more than maximumDecodedBytes: a tile of more features or values, or whose features repeat
/// one long text, is refused.
[[nodiscard]] std::optional<VectorTile> decodeVectorTile(std::string_view inflated);

} // namespace vasker
