#pragma once
// How wide routes are drawn, in logical pixels.

namespace vasker {

inline constexpr double routeWidth = 2;
inline constexpr double routeCasing = 1; ///< on either side
inline constexpr double selectedRouteWidth = 5;
inline constexpr double selectedRouteCasing = 2;
inline constexpr double hoveredRouteCasing = 2;
inline constexpr double selectedRouteOutline = 0.8; ///< outside the casing, over imagery

} // namespace vasker
