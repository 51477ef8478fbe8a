#pragma once
// How the files behind Text.h speak to ICU. For those files only.

#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vasker {

/// ICU fails only where its data or memory are missing.
inline void requireSuccess(UErrorCode status) {
    if (U_FAILURE(status)) {
        throw std::runtime_error(std::string("ICU: ") + u_errorName(status));
    }
}

inline icu::StringPiece pieceOf(std::string_view text) {
    return {text.data(), static_cast<int32_t>(text.size())};
}

struct CodePoint {
    UChar32 value;   ///< U+FFFD for ill-formed bytes
    std::size_t end; ///< the place behind it, in bytes
};

inline CodePoint codePointAt(std::string_view text, std::size_t place) {
    const auto* const bytes = reinterpret_cast<const uint8_t*>(text.data());
    CodePoint found{0, place};
    U8_NEXT_OR_FFFD(bytes, found.end, text.size(), found.value);
    return found;
}

inline icu::UnicodeString utf16Of(std::string_view text) {
    return icu::UnicodeString::fromUTF8(pieceOf(text));
}

} // namespace vasker
