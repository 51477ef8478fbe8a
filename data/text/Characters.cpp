#include "data/text/Characters.h"

#include "data/Cancelled.h"
#include "data/text/IcuText.h"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>

#include <array>
#include <memory>
#include <optional>

namespace vasker {

namespace {

/// Finds the characters of one text, one after the other.
class CharacterIterator {
  public:
    explicit CharacterIterator(std::string_view text) {
        UErrorCode status = U_ZERO_ERROR;
        utext_openUTF8(&m_text, text.data(), static_cast<int64_t>(text.size()), &status);
        breakIterator().setText(&m_text, status);
        requireSuccess(status);
    }
    CharacterIterator(const CharacterIterator&) = delete;
    CharacterIterator& operator=(const CharacterIterator&) = delete;
    ~CharacterIterator() { utext_close(&m_text); }

    /// Returns the offset of the byte after the next character, or nothing at the end of the text.
    // NOLINTNEXTLINE(readability-convert-member-functions-to-static): it reads this object's text
    std::optional<std::size_t> next() {
        const int32_t end = breakIterator().next();
        return end == icu::BreakIterator::DONE ? std::nullopt
                                               : std::optional(static_cast<std::size_t>(end));
    }

  private:
    /// Threads may not share a break iterator, and loading its rules takes long: each has one.
    static icu::BreakIterator& breakIterator() {
        thread_local const std::unique_ptr<icu::BreakIterator> iterator = [] {
            UErrorCode status = U_ZERO_ERROR;
            std::unique_ptr<icu::BreakIterator> made(
                icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
            requireSuccess(status);
            return made;
        }();
        return *iterator; // NOLINT(clang-analyzer-cplusplus.NewDelete): moved, not freed
    }

    UText m_text = UTEXT_INITIALIZER;
};

/// Whether `text` is known to have no joined character: it has only code points of common scripts
/// that join no neighbour. The texts of most releases are like this.
bool hasOnlySingleCodePoints(std::string_view text) {
    constexpr UChar32 end = 0x2100; // Latin, Greek, Cyrillic ..., general punctuation
    static const auto isJoining = [] {
        std::array<bool, end> joining{};
        for (UChar32 each = 0; each < end; ++each) {
            joining.at(static_cast<std::size_t>(each)) =
                u_getIntPropertyValue(each, UCHAR_GRAPHEME_CLUSTER_BREAK) != U_GCB_OTHER &&
                (each >= 0x80 || each == '\r');
        }
        return joining;
    }();
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint each = codePointAt(text, at);
        if (each.value >= end || isJoining[static_cast<std::size_t>(each.value)]) {
            return false;
        }
        at = each.end;
    }
    return true;
}

} // namespace

std::size_t characterCount(std::string_view text, std::size_t limit) {
    CharacterIterator characters(text);
    std::size_t count = 0;
    while (count <= limit && characters.next()) {
        ++count;
    }
    return count;
}

std::vector<JoinedCharacter> joinedCharacters(std::string_view text, const std::stop_token& stop) {
    if (hasOnlySingleCodePoints(text)) {
        return {};
    }
    constexpr std::size_t charactersBetweenChecks = 1U << 14U;
    std::vector<JoinedCharacter> joined;
    CharacterIterator characters(text);
    std::size_t begin = 0;
    std::size_t count = 0;
    while (const auto end = characters.next()) {
        if (codePointAt(text, begin).end < *end) {
            joined.push_back({begin, *end});
        }
        begin = *end;
        if (++count % charactersBetweenChecks == 0) {
            throwIfCancelled(stop);
        }
    }
    return joined;
}

} // namespace vasker
