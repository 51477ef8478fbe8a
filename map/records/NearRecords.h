#pragma once
// Which records lie near the centre of a map: in view, in a direction, or anywhere. A record with
// routes is where they come nearest to the centre.

#include "map/geometry/Camera.h"
#include "map/records/RecordSet.h"

#include <optional>
#include <vector>

namespace vasker {

/// A record as it is seen from the centre of a map.
struct NearRecord {
    AssetIndex asset;
    MapPoint place; ///< in the copy of the world nearest to the centre
    double metres;  ///< from the centre
    double degrees; ///< in that direction: clockwise from north, [0, 360)
};

/// Whether a shown record is in the free part of the view.
[[nodiscard]] bool isAnyInView(const RecordSet& records, const Camera& camera);

/// A direction on the screen.
enum class ScreenDirection { up, right, down, left };

/// The shown records that are in the free part of the view, by distance from its centre; equally
/// near ones in name order.
[[nodiscard]] std::vector<NearRecord> recordsInView(const RecordSet& records, const Camera& camera);

/// The nearest shown record within 45 degrees of `direction`, in view or not; what stands at the
/// centre itself, within a pixel, does not count. Nothing where there is none.
[[nodiscard]] std::optional<NearRecord>
nearestTowards(ScreenDirection direction, const RecordSet& records, const Camera& camera);

/// The nearest shown record; nothing where none is shown.
[[nodiscard]] std::optional<NearRecord> nearestRecord(const RecordSet& records,
                                                      const Camera& camera);

} // namespace vasker
