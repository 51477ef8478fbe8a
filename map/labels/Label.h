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

/// Where the lines of a text begin or end that has several.
enum class LabelAlignment : std::uint8_t { centred, left, right };

struct Label {
    QString text;
    LabelStyle style;
    BasemapTheme theme;
    LabelAlignment alignment = LabelAlignment::centred;
    friend bool operator==(const Label&, const Label&) = default;
};
[[nodiscard]] size_t qHash(const Label& label, size_t seed = 0) noexcept;

} // namespace vasker
