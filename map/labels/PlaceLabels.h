#pragma once
// Which places of a tile get a label.

#include "map/labels/MapLanguage.h"
#include "map/labels/PlaceLabel.h"
#include "map/style/TileData.h"
#include "map/style/TileRequest.h"

#include <cstddef>
#include <vector>

namespace vasker {

/// Of a tile. More do not find room in it: the smallest label takes some 40 by 14 pixels.
inline constexpr std::size_t mostPlaceLabels = 300;

/// The labels of the places whose points lie in the request's tile and that its zoom shows, by
/// priority, mostPlaceLabels at most. Any thread.
[[nodiscard]] std::vector<PlaceLabel>
placeLabels(const TileData& data, const TileRequest& request, MapLanguage language);

} // namespace vasker
