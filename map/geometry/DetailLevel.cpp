#include "map/geometry/DetailLevel.h"

#include "map/geometry/Projection.h"

#include <cmath>

namespace vasker {

namespace {

/// The maximum scale of level 0: the world on 512 pixels.
constexpr double coarsestScale = 512 / worldSize;

} // namespace

DetailLevel DetailLevel::forScale(double scale) noexcept {
    return DetailLevel(static_cast<int>(std::ceil(2 * std::log2(scale / coarsestScale) - 1e-9)));
}

double DetailLevel::maximumScale() const noexcept {
    return coarsestScale * std::exp2(m_number / 2.0);
}

double DetailLevel::minimumScale() const noexcept {
    return coarsestScale * std::exp2((m_number - 1) / 2.0);
}

} // namespace vasker
