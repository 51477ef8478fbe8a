#pragma once
// The pins of one map: on the screen sprites of one atlas, on a page shapes. Both in drawing order,
// the hovered and the selected one last.

#include "map/geometry/ScreenRect.h"
#include "map/layers/Shape.h"
#include "map/layers/SpriteLayer.h"
#include "map/pins/PinAtlas.h"
#include "map/records/LoadedRelease.h"
#include "map/records/MarkerFrame.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vasker {

/// A pin on the screen.
struct ShownPin {
    AssetIndex asset;
    ScreenRect box;
    bool isHighlighted; ///< selected or hovered
    std::uint32_t rank; ///< as in the frame
};

/// Where the pins stand, the selected and the hovered one first.
[[nodiscard]] std::vector<ShownPin> shownPins(const MarkerFrame& frame);

/// What the dots cover, those that the raster tiles show as well.
[[nodiscard]] std::vector<ScreenRect> dotBoxes(const MarkerFrame& frame);

/// Pins that cover one of the `names` become dots.
void makeWay(MarkerFrame& frame, std::span<const ScreenRect> names);

/// The pins as shapes, for `release`, which has their records.
[[nodiscard]] std::vector<Shape>
pinShapes(const MarkerFrame& frame, const LoadedRelease& release, BasemapTheme theme);

/// The pins as sprites of `atlas`, which was made for the kinds of `release`.
[[nodiscard]] SpriteSheet
pinSprites(const MarkerFrame& frame, const LoadedRelease& release, const PinAtlas& atlas);

} // namespace vasker
