#pragma once
// The searched texts of records, folded, one behind the other, and which records a query stands in.
//
// All texts lie in one run of bytes that is searched in one go. Two kinds of bytes that UTF-8 never
// has keep the answer exact: one ends every text, so that nothing is found across texts; one begins
// the code of a joined character (Text.h), which stands for the character as a whole, so that
// nothing is found that begins or ends inside a character.

#include "data/text/BytePattern.h"
#include "data/text/TextLocale.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vasker {

class FoldedTexts {
  public:
    explicit FoldedTexts(TextLocale locale);

    /// Adds a text of the record that is being added.
    void addText(std::string_view text);
    /// Ends the record; its number is the count of records before it.
    void endRecord();
    /// Ends the adding; call it once before holders().
    void finish();

    /// The numbers of the records that hold `query`, ascending. `query` is not empty.
    [[nodiscard]] std::vector<std::uint32_t> holders(std::string_view query) const;

    /// All folded bytes, as they are searched.
    [[nodiscard]] std::string_view bytes() const noexcept;

  private:
    [[nodiscard]] std::string coded(std::string_view foldedQuery) const;

    TextLocale m_locale;
    std::string m_bytes;
    std::vector<std::size_t> m_recordEnds;
    std::unordered_map<std::string, std::uint32_t> m_joinedCharacters; ///< to their numbers
    ByteFrequencies m_frequencies{};
};

} // namespace vasker
