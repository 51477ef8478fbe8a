#pragma once
// The measures of a balloon, in logical pixels before it is enlarged.

namespace vasker {

inline constexpr double balloonWidth = 24;
inline constexpr double balloonHeight = 31;
inline constexpr double balloonHeadRadius = 12; ///< around (12, 12)
inline constexpr double balloonTipX = 12;       ///< the tip marks the record's point
inline constexpr double balloonTipY = 30.4;
inline constexpr double hoveredBalloonScale = 1.125;
inline constexpr double selectedBalloonScale = 1.5;

} // namespace vasker
