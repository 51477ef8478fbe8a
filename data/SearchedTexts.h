#pragma once
// The texts of a record that search looks in, in the order in which it does.

#include "data/OpenMapRelease.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace vasker {

/// One of them. The view lives as long as the record.
struct SearchedText {
    enum class Field { name, id, company, jurisdiction, fact };

    Field field = Field::name;
    std::size_t fact = 0; ///< for `Field::fact`: a place in the record's facts
    std::string_view text;

    friend bool operator==(const SearchedText&, const SearchedText&) = default;
};

/// Returns name, id, company where there is one, jurisdiction, and the value of each fact.
[[nodiscard]] std::vector<SearchedText> searchedTexts(const OpenMapRelease::Asset& asset);

} // namespace vasker
