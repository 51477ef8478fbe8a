#pragma once
// A release with everything that views need of it, made in the load task. Immutable; any thread.

#include "data/ReleaseIndex.h"
#include "map/records/MarkerRanks.h"
#include "map/records/RecordGeometry.h"

#include <memory>
#include <stop_token>

namespace vasker {

struct LoadedRelease {
    ReleaseIndex index;
    RecordGeometry geometry;
    MarkerRanks ranks;

    LoadedRelease(const std::shared_ptr<const OpenMapRelease>& release,
                  TextLocale locale,
                  const std::stop_token& stop = {})
        : index(release, std::move(locale), stop), geometry(*release), ranks(*release) {}
};

} // namespace vasker
