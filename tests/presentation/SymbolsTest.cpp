#include "presentation/Symbols.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

struct Row {
    const char* kind;
    const char* symbol;
    PaletteColor color;
};

constexpr Row rows[] = {
    {"gas_plant", "flame", PaletteColor::blue},
    {"fractionation", "drop.triangle", PaletteColor::indigo},
    {"petrochemical", "flask", PaletteColor::indigo},
    {"straddle_plant", "arrow.triangle.branch", PaletteColor::teal},
    {"lng_plant", "snowflake", PaletteColor::purple},
    {"oil_sands_plant", "building.2", PaletteColor::brown},
    {"oil_sands_insitu", "arrow.down.to.line", PaletteColor::orange},
    {"refinery", "gearshape.2", PaletteColor::red},
    {"terminal", "shippingbox", PaletteColor::green},
    {"storage", "cylinder", PaletteColor::mint},
    {"pipeline", "line.diagonal", PaletteColor::yellow},
    {"processing", "mappin", PaletteColor::gray},
    {"other", "mappin", PaletteColor::gray},
};

TEST(Symbols, EveryKnownKindHasItsIconAndColor) {
    for (const Row& row : rows) {
        EXPECT_EQ(symbol(row.kind), row.symbol) << row.kind;
        EXPECT_EQ(color(row.kind), row.color) << row.kind;
        EXPECT_EQ(hasOwnSymbol(row.kind), row.symbol != std::string_view("mappin")) << row.kind;
    }
}

TEST(Symbols, AKeyThatDiffersInAnyCharacterIsUnknown) {
    for (const char* kind : {"", "Refinery", "gas_plant ", " gas_plant", "gas", "gas_plants"}) {
        EXPECT_EQ(symbol(kind), "mappin") << kind;
        EXPECT_EQ(color(kind), PaletteColor::gray) << kind;
        EXPECT_FALSE(hasOwnSymbol(kind)) << kind;
    }
}

} // namespace
} // namespace vasker
