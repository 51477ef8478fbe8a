#pragma once
// Records as GeoJSON (RFC 7946): a feature collection, UTF-8, a line for each feature. A facility
// is a Point, a pipeline a MultiLineString.
//
// The header and the sources in full stand as members of the collection beside "features", which
// readers that do not know them pass over. The properties of a feature hold the record with its
// period, source, licence and attribution, and its facts as a list of objects with the same.

#include "data/OpenMapRelease.h"
#include "data/ReleaseIndex.h"
#include "data/export/ExportBuffer.h"
#include "data/export/ExportHeader.h"

#include <span>

namespace vasker {

/// `records` in their order. Any thread; nothing is held between calls.
[[nodiscard]] ExportOutcome exportGeoJson(const OpenMapRelease& release,
                                          std::span<const AssetIndex> records,
                                          const ExportHeader& header,
                                          const ExportSink& sink);

} // namespace vasker
