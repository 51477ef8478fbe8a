#include "map/records/RecordGeometry.h"

namespace vasker {

RecordGeometry::RecordGeometry(const OpenMapRelease& /*release*/) {}

} // namespace vasker
