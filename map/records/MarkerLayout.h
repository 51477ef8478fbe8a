#pragma once
// Which records stand as pins and which as dots. No record is ever without a marker; only a dot
// that lies wholly under others, but for slivers of less than half a pixel, is not drawn.
//
// Where pins would crowd, kinds with an icon of their own come first, then rarer kinds, then the
// order of the list. The dots of kinds without an icon are quiet: smaller, and below the others.
// The layout holds for all scales of one level and for every place of the world, so that nothing
// changes while the map is dragged or a record is selected.

#include "map/geometry/DetailLevel.h"
#include "map/geometry/Projection.h"
#include "map/records/RecordSet.h"

#include <vector>

namespace vasker {

/// No other pin's point stands nearer than this to a pin's, in logical pixels: across or
/// down.
inline constexpr double pinSpacingX = 34;
inline constexpr double pinSpacingY = 36;

/// The size of a dot in logical pixels: its radius, that of a quiet one, and the casing around it.
inline constexpr double dotRadius = 3.25;
inline constexpr double quietDotRadius = 2.25;
inline constexpr double dotCasing = 1;

/// The most pins that are drawn at once.
inline constexpr std::size_t maximumPins = 500;

/// A record's marker, ready to be projected.
struct Marker {
    AssetIndex asset;
    MapPoint point;
    bool isQuiet = false; ///< its kind has no icon of its own
};

/// `marker` is a Marker or a PlacedMarker.
[[nodiscard]] double dotRadiusOf(const auto& marker) noexcept {
    return marker.isQuiet ? quietDotRadius : dotRadius;
}

struct MarkerLayout {
    std::vector<Marker> pins; ///< in order of priority
    std::vector<Marker> dots; ///< in order of priority, without those that lie wholly under others
};

/// The records of a set that have no route, in order of priority.
[[nodiscard]] std::vector<Marker> markersByPriority(const RecordSet& records);

/// `markers` in order of priority.
[[nodiscard]] MarkerLayout markerLayout(const std::vector<Marker>& markers, DetailLevel level);

} // namespace vasker
