#include "presentation/Symbols.h"

#include <algorithm>
#include <array>

namespace vasker {

namespace {

struct Mark {
    std::string_view kind;
    std::string_view symbol;
    PaletteColor color;
};

constexpr std::array marks{
    Mark{"gas_plant", "flame", PaletteColor::blue},
    Mark{"fractionation", "drop.triangle", PaletteColor::indigo},
    Mark{"petrochemical", "flask", PaletteColor::indigo},
    Mark{"straddle_plant", "arrow.triangle.branch", PaletteColor::teal},
    Mark{"lng_plant", "snowflake", PaletteColor::purple},
    Mark{"oil_sands_plant", "building.2", PaletteColor::brown},
    Mark{"oil_sands_insitu", "arrow.down.to.line", PaletteColor::orange},
    Mark{"refinery", "gearshape.2", PaletteColor::red},
    Mark{"terminal", "shippingbox", PaletteColor::green},
    Mark{"storage", "cylinder", PaletteColor::mint},
    Mark{"pipeline", "line.diagonal", PaletteColor::yellow},
};

constexpr Mark unknown{"", "mappin", PaletteColor::gray};

constexpr const Mark& mark(std::string_view kind) noexcept {
    const auto found = std::ranges::find(marks, kind, &Mark::kind);
    return found == marks.end() ? unknown : *found;
}

} // namespace

std::string_view symbol(std::string_view kind) noexcept {
    return mark(kind).symbol;
}

PaletteColor color(std::string_view kind) noexcept {
    return mark(kind).color;
}

bool hasOwnSymbol(std::string_view kind) noexcept {
    return !mark(kind).kind.empty();
}

} // namespace vasker
