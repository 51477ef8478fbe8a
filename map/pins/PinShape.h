#pragma once
// The measures of a pin, in logical pixels before it is enlarged.

namespace vasker {

inline constexpr double pinWidth = 24;
inline constexpr double pinHeight = 31;
inline constexpr double pinHeadRadius = 12; ///< around (12, 12)
inline constexpr double pinTipX = 12;       ///< the tip marks the record's point
inline constexpr double pinTipY = 30.4;
inline constexpr double hoveredPinScale = 1.125;
inline constexpr double selectedPinScale = 1.5;

} // namespace vasker
