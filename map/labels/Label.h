#pragma once
// A text on the map with its style.

#include "map/labels/PlaceLabel.h"
#include "map/style/BasemapTheme.h"

#include <QString>

#include <cstddef>
#include <cstdint>

namespace vasker {

enum class LabelStyle : std::uint8_t { country, region, city, town, village, water, record };

[[nodiscard]] LabelStyle labelStyleOf(PlaceLabel::Kind kind) noexcept;

struct Label {
    QString text;
    LabelStyle style;
    BasemapTheme theme;
    friend bool operator==(const Label&, const Label&) = default;
};
[[nodiscard]] size_t qHash(const Label& label, size_t seed = 0) noexcept;

} // namespace vasker
