#include "tools/openmap-release/packing/tables/Provinces.h"

#include <algorithm>
#include <array>

namespace vasker {
namespace {

struct Province {
    std::string_view code;
    std::string_view name;
};

constexpr auto provinces = std::to_array<Province>({
    {"AB", "Alberta"},
    {"BC", "British Columbia"},
    {"MB", "Manitoba"},
    {"NB", "New Brunswick"},
    {"NL", "Newfoundland and Labrador"},
    {"NS", "Nova Scotia"},
    {"NT", "Northwest Territories"},
    {"NU", "Nunavut"},
    {"ON", "Ontario"},
    {"PE", "Prince Edward Island"},
    {"QC", "Quebec"},
    {"SK", "Saskatchewan"},
    {"YT", "Yukon"},
});

} // namespace

std::optional<std::string_view> provinceNamed(std::string_view code) {
    const auto* found = std::ranges::find(provinces, code, &Province::code);
    return found == provinces.end() ? std::nullopt : std::optional(found->name);
}

bool isProvince(std::string_view name) {
    return std::ranges::find(provinces, name, &Province::name) != provinces.end();
}

} // namespace vasker
