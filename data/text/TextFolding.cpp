#include "data/text/IcuText.h"
#include "data/text/Text.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace vasker {

namespace {

const icu::Normalizer2& composition() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const nfc = icu::Normalizer2::getNFCInstance(status);
    requireSuccess(status);
    return *nfc;
}

const icu::Normalizer2& decomposition() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const nfd = icu::Normalizer2::getNFDInstance(status);
    requireSuccess(status);
    return *nfd;
}

/// Canonical caseless form, composed at the end.
///
/// Folding starts from the decomposed text, as Unicode's canonical caseless matching does. With
/// dotless i it starts from the composed one: capital I with a combining dot above has to be the
/// letter whose small form is i before I alone becomes dotless.
icu::UnicodeString foldedByDefinition(const icu::UnicodeString& text, bool hasDotlessI) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2& before = hasDotlessI ? composition() : decomposition();
    icu::UnicodeString result = before.normalize(text, status);
    result.foldCase(hasDotlessI ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT);
    result = composition().normalize(result, status);
    requireSuccess(status);
    return result;
}

/// For the code points that names mostly use: what each folds to where that is one code point and
/// depends on no neighbour, else 0. Texts made of these are folded without ICU.
class SimpleFolding {
  public:
    explicit SimpleFolding(bool hasDotlessI) {
        for (UChar32 each = 0; each < end; ++each) {
            m_folded.at(static_cast<std::size_t>(each)) = simple(each, hasDotlessI);
        }
    }

    static const SimpleFolding& of(bool hasDotlessI) {
        if (hasDotlessI) {
            static const SimpleFolding withDotlessI(true);
            return withDotlessI;
        }
        static const SimpleFolding common(false);
        return common;
    }

    /// 0 where the code point is not simple.
    [[nodiscard]] char16_t operator()(UChar32 each) const {
        return each < end ? m_folded[static_cast<std::size_t>(each)] : u'\0';
    }

  private:
    static constexpr UChar32 end = 0x2100; // Latin, Greek, Cyrillic ..., general punctuation

    static char16_t simple(UChar32 each, bool hasDotlessI) {
        const icu::UnicodeString result = foldedByDefinition(icu::UnicodeString(each), hasDotlessI);
        const bool standsAlone = result.countChar32() == 1 && result.length() == 1 &&
                                 composition().hasBoundaryBefore(each) != 0 &&
                                 composition().hasBoundaryBefore(result.char32At(0)) != 0;
        return standsAlone ? result[0] : u'\0';
    }

    std::array<char16_t, end> m_folded{};
};

/// Folds ASCII eight bytes at a time; true if all of `text` was ASCII.
bool foldASCII(std::string_view text, char* folded) {
    constexpr std::uint64_t each = 0x0101010101010101;
    constexpr std::uint64_t highBits = 0x80 * each;
    std::uint64_t seen = 0;
    std::size_t at = 0;
    for (; at + sizeof(std::uint64_t) <= text.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, text.data() + at, sizeof bytes);
        seen |= bytes;
        // The high bit of every byte that is 'A' or more, and of every byte that is more than 'Z'.
        const std::uint64_t fromA = (bytes & ~highBits) + (0x80 - 'A') * each;
        const std::uint64_t afterZ = (bytes & ~highBits) + (0x7F - 'Z') * each;
        bytes |= ((fromA ^ afterZ) & highBits) >> 2U;
        std::memcpy(folded + at, &bytes, sizeof bytes);
    }
    for (; at < text.size(); ++at) {
        const char byte = text[at];
        seen |= static_cast<unsigned char>(byte);
        folded[at] = byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte | 0x20) : byte;
    }
    return (seen & highBits) == 0;
}

void appendUTF8(std::string& text, char16_t unit) {
    if (unit < 0x80) {
        text += static_cast<char>(unit);
        return;
    }
    if (unit < 0x800) {
        text += static_cast<char>(0xC0U | (unit >> 6U));
    } else {
        text += static_cast<char>(0xE0U | (unit >> 12U));
        text += static_cast<char>(0x80U | ((unit >> 6U) & 0x3FU));
    }
    text += static_cast<char>(0x80U | (unit & 0x3FU));
}

/// Appends the folded text to `result`; false, with part of it appended, where it is not simple.
bool foldSimple(std::string_view text, const SimpleFolding& simple, std::string& result) {
    for (std::size_t at = 0; at < text.size();) {
        const auto [each, end] = codePointAt(text, at);
        const char16_t unit = simple(each);
        if (unit == 0) {
            return false;
        }
        appendUTF8(result, unit);
        at = end;
    }
    return true;
}

/// Where the characters of `text` end, in bytes; in ascending order.
class Boundaries {
  public:
    explicit Boundaries(std::string_view text) : m_joined(joinedCharacters(text)) {}

    /// `at` is a boundary of code points.
    [[nodiscard]] bool contain(std::size_t at) const {
        const auto after = std::ranges::upper_bound(m_joined, at, {}, &JoinedCharacter::begin);
        if (after == m_joined.begin()) {
            return true;
        }
        const JoinedCharacter& before = *std::prev(after);
        return at == before.begin || at >= before.end;
    }

  private:
    std::vector<JoinedCharacter> m_joined;
};

} // namespace

std::string folded(std::string_view text, const TextLocale& locale) {
    std::string result;
    if (!locale.hasDotlessI()) {
        result.resize(text.size());
        if (foldASCII(text, result.data())) {
            return result;
        }
        result.clear();
    }
    if (foldSimple(text, SimpleFolding::of(locale.hasDotlessI()), result)) {
        return result;
    }
    result.clear();
    foldedByDefinition(utf16Of(text), locale.hasDotlessI()).toUTF8String(result);
    return result;
}

bool containsFolded(std::string_view text, std::string_view query) {
    std::size_t at = text.find(query);
    if (at == std::string_view::npos) {
        return false;
    }
    const Boundaries boundaries(text);
    for (; at != std::string_view::npos; at = text.find(query, at + 1)) {
        if (boundaries.contain(at) && boundaries.contain(at + query.size())) {
            return true;
        }
    }
    return false;
}

} // namespace vasker
