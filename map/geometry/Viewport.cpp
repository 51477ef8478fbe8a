#include "map/geometry/Viewport.h"

#include <algorithm>

namespace vasker {

ScreenPoint Viewport::freeHalf() const noexcept {
    return {(width - coveredLeft - coveredRight) / 2, (height - coveredBelow) / 2};
}

ScreenPoint Viewport::middle() const noexcept {
    const ScreenPoint half = freeHalf();
    return {coveredLeft + half.x, half.y};
}

bool Viewport::isFree(ScreenPoint point) const noexcept {
    return point.x >= coveredLeft && point.x <= width - coveredRight && point.y >= 0 &&
           point.y <= height - coveredBelow;
}

Viewport Viewport::usable() const noexcept {
    Viewport some = *this;
    some.width = std::max(1.0, width);
    some.height = std::max(1.0, height);
    some.coveredBelow = std::clamp(coveredBelow, 0.0, some.height - 1);
    some.coveredRight = std::clamp(coveredRight, 0.0, some.width - 1);
    some.coveredLeft = std::clamp(coveredLeft, 0.0, some.width - 1 - some.coveredRight);
    return some;
}

} // namespace vasker
