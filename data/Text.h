#pragma once
// Text as people read it: characters, letter case, name order, capitals. The only door to ICU.
// All functions take UTF-8, are pure and may run on any thread; ill-formed bytes count as U+FFFD.

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace vasker {

/// The user's language and region, as far as texts are compared by it.
class TextLocale {
  public:
    /// `id` as in "fr_CA" or "tr"; "C", "POSIX" and the empty text mean English.
    explicit TextLocale(std::string_view id);
    /// The locale of the environment: the first of LC_ALL, LC_COLLATE and LANG that is set.
    [[nodiscard]] static TextLocale fromEnvironment();
    [[nodiscard]] const std::string& id() const noexcept { return m_id; }

  private:
    std::string m_id; ///< without encoding and modifier
};

/// The number of extended grapheme clusters in `text`, or `limit + 1` as soon as it exceeds
/// `limit`.
[[nodiscard]] std::size_t characterCount(std::string_view text, std::size_t limit);

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
