#pragma once
// Every record of a release projected to map points, made once, in the load task. Immutable.

#include "data/OpenMapRelease.h"

namespace vasker {

class RecordGeometry {
  public:
    explicit RecordGeometry(const OpenMapRelease& release);
};

} // namespace vasker
