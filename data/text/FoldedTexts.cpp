#include "data/text/FoldedTexts.h"

#include "data/text/CaseFolding.h"
#include "data/text/Characters.h"

#include <array>
#include <utility>

namespace vasker {

namespace {

constexpr char endOfText = '\xFF';
constexpr char joinedCharacter = '\xFE';

/// Four digits to the base of 64, each a byte that continues a character, as in UTF-8: a code is
/// never found from within another.
void appendCode(std::string& bytes, std::uint32_t number) {
    bytes += joinedCharacter;
    for (const unsigned shift : {18U, 12U, 6U, 0U}) {
        bytes += static_cast<char>(0x80U | ((number >> shift) & 0x3FU));
    }
}

/// Appends `text` with every joined character replaced by the code of its `number(character)`.
template <typename Number>
void appendCoded(std::string& bytes, std::string_view text, const Number& number) {
    std::size_t copied = 0;
    for (const auto [begin, end] : joinedCharacters(text)) {
        bytes += text.substr(copied, begin - copied);
        appendCode(bytes, number(std::string(text.substr(begin, end - begin))));
        copied = end;
    }
    bytes += text.substr(copied);
}

} // namespace

FoldedTexts::FoldedTexts(TextLocale locale) : m_locale(std::move(locale)) {}

void FoldedTexts::addText(std::string_view text) {
    appendCoded(m_bytes, folded(text, m_locale), [this](std::string character) {
        const auto next = static_cast<std::uint32_t>(m_joinedCharacters.size());
        return m_joinedCharacters.emplace(std::move(character), next).first->second;
    });
    m_bytes += endOfText;
}

void FoldedTexts::endRecord() {
    m_recordEnds.push_back(m_bytes.size());
}

void FoldedTexts::finish() {
    constexpr std::size_t sampleDistance = 31;
    for (std::size_t at = 0; at < m_bytes.size(); at += sampleDistance) {
        ++m_frequencies[static_cast<unsigned char>(m_bytes[at])];
    }
    m_bytes.append(BytePattern::padding, endOfText);
}

std::string_view FoldedTexts::bytes() const noexcept {
    return std::string_view(m_bytes).substr(0, m_recordEnds.empty() ? 0 : m_recordEnds.back());
}

/// A joined character that no text has becomes a code that none has.
std::string FoldedTexts::coded(std::string_view foldedQuery) const {
    std::string result;
    appendCoded(result, foldedQuery, [this](const std::string& character) {
        const auto found = m_joinedCharacters.find(character);
        return found == m_joinedCharacters.end()
                   ? static_cast<std::uint32_t>(m_joinedCharacters.size())
                   : found->second;
    });
    return result;
}

std::vector<std::uint32_t> FoldedTexts::holders(std::string_view query) const {
    const std::string pattern = coded(folded(query, m_locale));
    const BytePattern search(pattern, m_frequencies);
    const std::string_view texts = bytes();
    const char* const begin = texts.data();
    const char* const end = begin + texts.size();

    std::vector<std::uint32_t> found;
    std::uint32_t record = 0;
    for (const char* at = search.find(begin, end); at != end; at = search.find(at, end)) {
        while (begin + m_recordEnds[record] <= at) {
            ++record;
        }
        found.push_back(record);
        at = begin + m_recordEnds[record];
    }
    return found;
}

} // namespace vasker
