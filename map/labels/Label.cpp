#include "map/labels/Label.h"

#include <QHash>

namespace vasker {

LabelStyle labelStyleOf(PlaceLabel::Kind kind) noexcept {
    switch (kind) {
    case PlaceLabel::Kind::country:
        return LabelStyle::country;
    case PlaceLabel::Kind::region:
        return LabelStyle::region;
    case PlaceLabel::Kind::capital:
    case PlaceLabel::Kind::city:
        return LabelStyle::city;
    case PlaceLabel::Kind::town:
        return LabelStyle::town;
    case PlaceLabel::Kind::water:
        return LabelStyle::water;
    case PlaceLabel::Kind::village:
        break;
    }
    return LabelStyle::village;
}

size_t qHash(const Label& label, size_t seed) noexcept {
    return qHashMulti(seed,
                      label.text,
                      static_cast<int>(label.style),
                      static_cast<int>(label.theme),
                      static_cast<int>(label.alignment));
}

} // namespace vasker
