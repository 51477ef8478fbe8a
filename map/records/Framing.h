#pragma once
// What the camera shows of a record that was picked.

#include "data/OpenMapRelease.h"
#include "map/geometry/Camera.h"

namespace vasker {

/// The camera position that frames a record: its routes' projected bounds, each vertex counted as a
/// square of 1 map point, grown by 15 % of their extent on every side; for a record without a
/// vertex, 0.4 by 0.6 degrees (latitude by longitude) around its point.
[[nodiscard]] CameraPosition framing(const OpenMapRelease::Asset& asset);

} // namespace vasker
