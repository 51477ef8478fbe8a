#pragma once
// Text as people read it: characters, letter case, name order, capitals. The only door to ICU.
// All functions take UTF-8, are pure and may run on any thread; ill-formed bytes count as U+FFFD.

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// The user's language and region, as far as texts are compared by it.
class TextLocale {
  public:
    /// `id` as in "fr_CA" or "tr"; "C", "POSIX" and the empty text mean English.
    explicit TextLocale(std::string_view id);
    /// The locale of the environment: the first of LC_ALL, LC_COLLATE and LANG that is set and not
    /// empty. The C library's locale is left alone and does not have to be installed; a locale that
    /// ICU does not know compares by ICU's root.
    [[nodiscard]] static TextLocale fromEnvironment();
    [[nodiscard]] const std::string& id() const noexcept { return m_id; }
    /// Whether its letters are those of Turkish and Azerbaijani: I is the capital of dotless i, and
    /// the capital of i keeps its dot.
    [[nodiscard]] bool hasDotlessI() const noexcept { return m_hasDotlessI; }

  private:
    std::string m_id; ///< without encoding and modifier
    bool m_hasDotlessI = false;
};

/// The number of extended grapheme clusters in `text`, or `limit + 1` as soon as it exceeds
/// `limit`.
[[nodiscard]] std::size_t characterCount(std::string_view text, std::size_t limit);

/// A character of a text that is made of several code points, such as a letter with a combining
/// mark, a family of emoji or a carriage return with its line feed.
struct JoinedCharacter {
    std::size_t begin; ///< in bytes
    std::size_t end;
    friend bool operator==(const JoinedCharacter&, const JoinedCharacter&) = default;
};

/// The joined characters of `text`, in order; all others are single code points.
[[nodiscard]] std::vector<JoinedCharacter> joinedCharacters(std::string_view text);

/// `text` without differences of letter case (full case folding in `locale`: dotted and dotless i
/// in Turkish) and of canonical encoding; what containsFolded() compares.
[[nodiscard]] std::string folded(std::string_view text, const TextLocale& locale);

/// Whether `query` stands in `text`, both folded, as whole characters: "montre" is not in
/// "montréal".
[[nodiscard]] bool containsFolded(std::string_view text, std::string_view query);

/// The order of names in lists: locale-aware, case and width decide last, digit runs by value.
class NameOrder {
  public:
    explicit NameOrder(const TextLocale& locale);
    NameOrder(const NameOrder&) = delete;
    NameOrder& operator=(const NameOrder&) = delete;
    NameOrder(NameOrder&&) noexcept;
    NameOrder& operator=(NameOrder&&) noexcept;
    ~NameOrder();
    /// Whether `a` is ordered before `b`.
    [[nodiscard]] bool precedes(std::string_view a, std::string_view b) const;
    /// Bytes that order as precedes() does.
    [[nodiscard]] std::string sortKey(std::string_view name) const;

  private:
    struct Collator;
    std::unique_ptr<Collator> m_collator;
};

/// Every whitespace-separated word with an upper-case first character and lower-case others.
[[nodiscard]] std::string capitalized(std::string_view text);

/// Whether `a` comes before `b` by the code points of their canonically composed forms.
[[nodiscard]] bool precedesInCodePointOrder(std::string_view a, std::string_view b);

} // namespace vasker
