#pragma once
// What the files of this folder share when they call ICU. No other file includes this header.

#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vasker {

/// Throws if an ICU function failed, which happens only if memory or ICU's data are missing.
inline void requireSuccess(UErrorCode status) {
    if (status == U_MEMORY_ALLOCATION_ERROR) {
        throw std::bad_alloc();
    }
    if (U_FAILURE(status)) {
        throw std::runtime_error(std::string("ICU: ") + u_errorName(status));
    }
}

/// Returns `text`, or throws std::bad_alloc if ICU had no memory to make it.
inline icu::UnicodeString complete(icu::UnicodeString text) {
    if (text.isBogus() != 0) {
        throw std::bad_alloc();
    }
    return text;
}

inline icu::StringPiece pieceOf(std::string_view text) {
    return {text.data(), static_cast<int32_t>(text.size())};
}

/// Ill-formed bytes become U+FFFD.
inline icu::UnicodeString utf8ToUtf16(std::string_view text) {
    return complete(icu::UnicodeString::fromUTF8(pieceOf(text)));
}

inline std::string utf16ToUtf8(const icu::UnicodeString& text) {
    std::string utf8;
    return complete(text).toUTF8String(utf8);
}

struct CodePoint {
    UChar32 value;   ///< U+FFFD for ill-formed bytes
    std::size_t end; ///< offset of the byte after it
};

/// Returns the code point that begins at byte `begin` of `text`.
inline CodePoint codePointAt(std::string_view text, std::size_t begin) {
    const auto* const bytes = reinterpret_cast<const uint8_t*>(text.data());
    CodePoint found{0, begin};
    U8_NEXT_OR_FFFD(bytes, found.end, text.size(), found.value);
    return found;
}

} // namespace vasker
