#pragma once
// The geometry of one feature of a vector tile: drawing commands in, points out. The commands are
// those of version 2.1 of the format of vector tiles (MVT), section 4.3.

#include "map/tiles/VectorTile.h"

#include <protozero/pbf_reader.hpp>

#include <cstdint>
#include <vector>

namespace vasker {

using PackedNumbers = protozero::iterator_range<protozero::pbf_reader::const_uint32_iterator>;

/// The parts of a feature as VectorFeature tells them; `extent` is the tile's side in the numbers'
/// unit, not 0. None where the commands break the format or leave the tile by more than 64
/// of its sides; parts too short to be a line or a ring are left out. Throws what protozero does
/// where the bytes are no numbers.
[[nodiscard]] std::vector<std::vector<TilePoint>>
tileParts(VectorFeature::Geometry geometry, PackedNumbers commands, std::uint32_t extent);

} // namespace vasker
