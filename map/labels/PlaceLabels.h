#pragma once
// Which places of a tile get a label.

#include "map/labels/MapLanguage.h"
#include "map/labels/PlaceLabel.h"
#include "map/style/TileData.h"
#include "map/style/TileRequest.h"

#include <vector>

namespace vasker {

/// The labels of the places whose points lie in the request's tile and that its zoom shows, by
/// priority. Any thread.
[[nodiscard]] std::vector<PlaceLabel>
placeLabels(const TileData& data, const TileRequest& request, MapLanguage language);

} // namespace vasker
