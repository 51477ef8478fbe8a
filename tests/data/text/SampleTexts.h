#pragma once
// Texts that tests of several parts use.

#include "data/text/TextLocale.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace vasker {

inline const TextLocale english("en_CA");

/// Three people, joined: one character for people.
inline const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467";
inline const std::string flagOfCanada = "\U0001F1E8\U0001F1E6";

inline std::string repeated(std::string_view text, std::size_t count) {
    std::string result;
    for (std::size_t i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

} // namespace vasker
