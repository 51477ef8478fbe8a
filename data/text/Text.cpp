#include "data/text/Text.h"

#include "data/text/IcuText.h"

#include <unicode/brkiter.h>
#include <unicode/casemap.h>
#include <unicode/coll.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

namespace vasker {

namespace {

bool isASCII(std::string_view text) {
    return std::ranges::all_of(text, [](char each) { return static_cast<signed char>(each) >= 0; });
}

/// Steps through the characters of one text.
class Characters {
  public:
    explicit Characters(std::string_view text) {
        UErrorCode status = U_ZERO_ERROR;
        utext_openUTF8(&m_text, text.data(), static_cast<int64_t>(text.size()), &status);
        iterator().setText(&m_text, status);
        requireSuccess(status);
    }
    Characters(const Characters&) = delete;
    Characters& operator=(const Characters&) = delete;
    ~Characters() { utext_close(&m_text); }

    /// The end of the next character in bytes; nothing at the end of the text.
    // NOLINTNEXTLINE(readability-convert-member-functions-to-static): walks this object's text
    std::optional<std::size_t> next() {
        const int32_t end = iterator().next();
        return end == icu::BreakIterator::DONE ? std::nullopt
                                               : std::optional(static_cast<std::size_t>(end));
    }

  private:
    /// Its rules take long to load and it may not be shared between threads: one for each.
    static icu::BreakIterator& iterator() {
        thread_local const std::unique_ptr<icu::BreakIterator> characters = [] {
            UErrorCode status = U_ZERO_ERROR;
            std::unique_ptr<icu::BreakIterator> made(
                icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
            requireSuccess(status);
            return made;
        }();
        return *characters; // NOLINT(clang-analyzer-cplusplus.NewDelete): moved, not freed
    }

    UText m_text = UTEXT_INITIALIZER;
};

/// Whether every code point of `text` is a character by itself because none of them ever joins a
/// neighbour: true for the texts of most releases, which need no walk through ICU then.
bool joinsNothing(std::string_view text) {
    constexpr UChar32 knownEnd = 0x2100; // Latin, Greek, Cyrillic ..., general punctuation
    static const auto joins = [] {
        std::array<bool, knownEnd> joining{};
        for (UChar32 each = 0; each < knownEnd; ++each) {
            joining.at(static_cast<std::size_t>(each)) =
                u_getIntPropertyValue(each, UCHAR_GRAPHEME_CLUSTER_BREAK) != U_GCB_OTHER &&
                (each >= 0x80 || each == '\r');
        }
        return joining;
    }();
    for (std::size_t at = 0; at < text.size();) {
        const auto [each, end] = codePointAt(text, at);
        if (each >= knownEnd || joins[static_cast<std::size_t>(each)]) {
            return false;
        }
        at = end;
    }
    return true;
}

} // namespace

TextLocale::TextLocale(std::string_view id) : m_id(id.substr(0, id.find_first_of(".@"))) {
    if (m_id.empty() || m_id == "C" || m_id == "POSIX") {
        m_id = "en";
    }
    const icu::Locale locale(m_id.c_str());
    const std::string_view language = locale.getLanguage();
    m_hasDotlessI = language == "tr" || language == "az";
}

TextLocale TextLocale::fromEnvironment() {
    for (const char* const variable : {"LC_ALL", "LC_COLLATE", "LANG"}) {
        const char* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0') {
            return TextLocale(value);
        }
    }
    return TextLocale("");
}

std::size_t characterCount(std::string_view text, std::size_t limit) {
    Characters characters(text);
    std::size_t count = 0;
    while (count <= limit && characters.next()) {
        ++count;
    }
    return count;
}

std::vector<JoinedCharacter> joinedCharacters(std::string_view text) {
    if (joinsNothing(text)) {
        return {};
    }
    std::vector<JoinedCharacter> joined;
    Characters characters(text);
    std::size_t begin = 0;
    while (const auto end = characters.next()) {
        if (codePointAt(text, begin).end < *end) {
            joined.push_back({begin, *end});
        }
        begin = *end;
    }
    return joined;
}

struct NameOrder::Collator {
    std::unique_ptr<icu::Collator> rules;
};

NameOrder::NameOrder(const TextLocale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> rules(
        icu::Collator::createInstance(icu::Locale(locale.id().c_str()), status));
    requireSuccess(status);
    rules->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    rules->setAttribute(UCOL_STRENGTH, UCOL_TERTIARY, status);
    requireSuccess(status);
    m_collator = std::make_unique<Collator>(Collator{std::move(rules)});
}

NameOrder::NameOrder(NameOrder&&) noexcept = default;
NameOrder& NameOrder::operator=(NameOrder&&) noexcept = default;
NameOrder::~NameOrder() = default;

bool NameOrder::precedes(std::string_view a, std::string_view b) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto order = m_collator->rules->compareUTF8(pieceOf(a), pieceOf(b), status);
    requireSuccess(status);
    return order == UCOL_LESS;
}

std::string NameOrder::sortKey(std::string_view name) const {
    const icu::UnicodeString text = utf16Of(name);
    std::string key(2 * name.size() + 16, '\0');
    const auto write = [&] {
        return static_cast<std::size_t>(m_collator->rules->getSortKey(
            text, reinterpret_cast<uint8_t*>(key.data()), static_cast<int32_t>(key.size())));
    };
    const std::size_t size = write();
    const bool wasCut = size > key.size();
    key.resize(size);
    if (wasCut) {
        write();
    }
    return key;
}

std::string capitalized(std::string_view text) {
    const icu::UnicodeString source = utf16Of(text);
    icu::UnicodeString result;
    const auto appendWord = [&](int32_t begin, int32_t end) {
        // A word may grow, but no code unit to more than three.
        const int32_t capacity = 3 * (end - begin);
        UErrorCode status = U_ZERO_ERROR;
        icu::UnicodeString word;
        const int32_t length =
            icu::CaseMap::toTitle("",
                                  U_TITLECASE_WHOLE_STRING | U_TITLECASE_NO_BREAK_ADJUSTMENT,
                                  nullptr,
                                  source.getBuffer() + begin,
                                  end - begin,
                                  word.getBuffer(capacity),
                                  capacity,
                                  nullptr,
                                  status);
        word.releaseBuffer(length);
        requireSuccess(status);
        result += word;
    };
    int32_t wordBegin = 0;
    for (int32_t at = 0; at < source.length(); at = source.moveIndex32(at, 1)) {
        if (u_isUWhiteSpace(source.char32At(at)) != 0) {
            if (wordBegin < at) {
                appendWord(wordBegin, at);
            }
            wordBegin = source.moveIndex32(at, 1);
            result += source.char32At(at);
        }
    }
    if (wordBegin < source.length()) {
        appendWord(wordBegin, source.length());
    }
    std::string utf8;
    return result.toUTF8String(utf8);
}

bool precedesInCodePointOrder(std::string_view a, std::string_view b) {
    if (isASCII(a) && isASCII(b)) {
        return a < b;
    }
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* composition = icu::Normalizer2::getNFCInstance(status);
    requireSuccess(status);
    const icu::UnicodeString composedA = composition->normalize(utf16Of(a), status);
    const icu::UnicodeString composedB = composition->normalize(utf16Of(b), status);
    requireSuccess(status);
    return composedA.compareCodePointOrder(composedB) < 0;
}

} // namespace vasker
