#include "data/text/CaseFolding.h"

#include "data/Cancelled.h"
#include "data/text/Characters.h"
#include "data/text/IcuText.h"
#include "data/text/Normalization.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <vector>

namespace vasker {

namespace {

/// Folding starts from form D, as Unicode's canonical caseless matching does. With dotless i it
/// starts from form C: capital I with a combining dot above has to become the letter whose small
/// form is i before I alone becomes dotless.
icu::UnicodeString foldedByDefinition(const icu::UnicodeString& text,
                                      bool hasDotlessI,
                                      const std::stop_token& stop = {}) {
    const icu::UnicodeString ordered = withOrderedMarks(text);
    throwIfCancelled(stop);
    icu::UnicodeString result = hasDotlessI ? composed(ordered) : decomposed(ordered);
    throwIfCancelled(stop);
    result.foldCase(hasDotlessI ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT);
    return composed(complete(std::move(result)));
}

/// Whether folding a text is folding what stands before `codePoint` and what begins with it.
bool isFoldedApart(UChar32 codePoint, bool hasDotlessI) {
    return hasCompositionBoundaryBefore(codePoint) &&
           hasCompositionBoundaryBefore(
               foldedByDefinition(icu::UnicodeString(codePoint), hasDotlessI).char32At(0));
}

void appendCodePoint(std::string& text, char16_t codePoint) {
    std::array<uint8_t, U8_MAX_LENGTH> bytes{};
    std::size_t size = 0;
    U8_APPEND_UNSAFE(bytes, size, codePoint);
    text.append(reinterpret_cast<const char*>(bytes.data()), size);
}

/// The folding of the code points that names mostly consist of. Most of them become one code point,
/// whatever their neighbours are; a text of these is folded without ICU.
class SimpleFolding {
  public:
    static SimpleFolding& in(const TextLocale& locale) {
        static SimpleFolding common(false);
        static SimpleFolding withDotlessI(true);
        return locale.hasDotlessI() ? withDotlessI : common;
    }

    /// Appends the folded `text` to `result`. Returns false, with part of the text appended, if it
    /// has another code point.
    bool append(std::string_view text, std::string& result) {
        for (std::size_t at = 0; at < text.size();) {
            const CodePoint each = codePointAt(text, at);
            const char16_t simple = each.value < end ? of(each.value) : notSimple;
            if (simple == notSimple) {
                return false;
            }
            appendCodePoint(result, simple);
            at = each.end;
        }
        return true;
    }

  private:
    explicit SimpleFolding(bool hasDotlessI) : m_hasDotlessI(hasDotlessI) {}

    /// Threads that ask for one code point at the same time find out the same.
    char16_t of(UChar32 codePoint) {
        std::atomic<char16_t>& known = m_folded[static_cast<std::size_t>(codePoint)];
        if (known.load(std::memory_order_relaxed) == unknown) {
            const icu::UnicodeString folded =
                foldedByDefinition(icu::UnicodeString(codePoint), m_hasDotlessI);
            const bool isSimple = codePoint != unknown && folded.length() == 1 &&
                                  isFoldedApart(codePoint, m_hasDotlessI);
            known.store(isSimple ? folded[0] : notSimple, std::memory_order_relaxed);
        }
        return known.load(std::memory_order_relaxed);
    }

    static constexpr UChar32 end = 0x2100; // Latin, Greek, Cyrillic ..., general punctuation
    static constexpr char16_t unknown = u'\0';
    static constexpr char16_t notSimple = u'\uFFFF';

    bool m_hasDotlessI;
    std::array<std::atomic<char16_t>, end> m_folded{};
};

/// Appends the folded `text` to `result` as if it were ASCII without a dotless i, and returns
/// whether it is.
bool appendASCII(std::string_view text, const TextLocale& locale, std::string& result) {
    const std::size_t sizeBefore = result.size();
    result.resize(sizeBefore + text.size());
    unsigned allBits = 0;
    std::ranges::transform(
        text, result.begin() + static_cast<std::ptrdiff_t>(sizeBefore), [&](char each) {
            allBits |= static_cast<unsigned char>(each);
            return each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
        });
    return allBits < 0x80 && !locale.hasDotlessI();
}

/// Returns the size of the piece at the beginning of `text` that is folded next: the whole text, or
/// some KiB that end where the rest is folded apart.
std::size_t pieceSize(std::string_view text, bool hasDotlessI) {
    constexpr std::size_t leastSize = 1U << 14U;
    for (std::size_t at = leastSize; at < text.size(); ++at) {
        if (!U8_IS_TRAIL(static_cast<uint8_t>(text[at])) &&
            isFoldedApart(codePointAt(text, at).value, hasDotlessI)) {
            return at;
        }
    }
    return text.size();
}

void appendFolded(std::string_view piece,
                  const TextLocale& locale,
                  const std::stop_token& stop,
                  std::string& result) {
    const std::size_t sizeBefore = result.size();
    if (appendASCII(piece, locale, result)) {
        return;
    }
    result.resize(sizeBefore);
    if (SimpleFolding::in(locale).append(piece, result)) {
        return;
    }
    result.resize(sizeBefore);
    result += utf16ToUtf8(foldedByDefinition(utf8ToUtf16(piece), locale.hasDotlessI(), stop));
}

} // namespace

std::string folded(std::string_view text, const TextLocale& locale, const std::stop_token& stop) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        throwIfCancelled(stop);
        const std::size_t size = pieceSize(text, locale.hasDotlessI());
        appendFolded(text.substr(0, size), locale, stop, result);
        text.remove_prefix(size);
    }
    return result;
}

bool containsFolded(std::string_view text, std::string_view query) {
    std::size_t at = text.find(query);
    if (at == std::string_view::npos) {
        return false;
    }
    const std::vector<JoinedCharacter> joined = joinedCharacters(text);
    const auto isBoundary = [&](std::size_t place) {
        const auto next = std::ranges::upper_bound(joined, place, {}, &JoinedCharacter::begin);
        return next == joined.begin() || std::prev(next)->begin == place ||
               std::prev(next)->end <= place;
    };
    for (; at != std::string_view::npos; at = text.find(query, at + 1)) {
        if (isBoundary(at) && isBoundary(at + query.size())) {
            return true;
        }
    }
    return false;
}

} // namespace vasker
