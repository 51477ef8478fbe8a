#include "data/text/FoldedTexts.h"

#include "data/text/CaseFolding.h"
#include "data/text/Characters.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>
#include <utility>

namespace vasker {

namespace {

constexpr char endOfText = '\xFF';
constexpr std::size_t blockSize = 32;

/// Bytes of a pattern that are compared at blockSize places at once.
template <std::size_t Count>
class Probes {
  public:
    /// Takes the rarest bytes of `pattern`, which has at least `Count`.
    Probes(std::string_view pattern, const std::array<std::uint32_t, 256>& frequencies) {
        const auto frequency = [&](std::size_t offset) {
            return frequencies[static_cast<unsigned char>(pattern[offset])];
        };
        std::vector<std::size_t> offsets(pattern.size());
        std::iota(offsets.begin(), offsets.end(), std::size_t{0});
        std::ranges::stable_sort(offsets, {}, frequency);
        for (std::size_t at = 0; at < Count; ++at) {
            m_offsets.at(at) = offsets[at];
            m_bytes.at(at).fill(pattern[offsets[at]]);
        }
    }

    /// Returns a bit for each place from `block` on, the lowest bit first, which is set if all
    /// probes match there. Reads blockSize bytes from each probe on.
    [[nodiscard]] std::uint32_t matches(const char* block) const noexcept;

  private:
    std::array<std::size_t, Count> m_offsets{};
    std::array<std::array<char, 16>, Count> m_bytes{}; ///< each repeated, for comparing vectors
};

#ifdef __SSE2__

template <std::size_t Count>
std::uint32_t Probes<Count>::matches(const char* block) const noexcept {
    constexpr std::size_t half = blockSize / 2;
    const auto vectorAt = [](const char* bytes) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    };
    const auto match = [&](const char* place, std::size_t probe) {
        return _mm_cmpeq_epi8(vectorAt(place + m_offsets[probe]), vectorAt(m_bytes[probe].data()));
    };
    const auto bits = [](__m128i matching) {
        return static_cast<std::uint32_t>(_mm_movemask_epi8(matching));
    };
    __m128i low = match(block, 0);
    __m128i high = match(block + half, 0);
    if constexpr (Count > 1) {
        low = _mm_and_si128(low, match(block, 1));
        high = _mm_and_si128(high, match(block + half, 1));
    }
    if constexpr (Count > 2) {
        // Two probes mostly suffice to exclude a block.
        if (bits(_mm_or_si128(low, high)) == 0) {
            return 0;
        }
        low = _mm_and_si128(low, match(block, 2));
        high = _mm_and_si128(high, match(block + half, 2));
    }
    if constexpr (Count > 3) {
        low = _mm_and_si128(low, match(block, 3));
        high = _mm_and_si128(high, match(block + half, 3));
    }
    return bits(low) | bits(high) << half;
}

#else

template <std::size_t Count>
std::uint32_t Probes<Count>::matches(const char* block) const noexcept {
    std::uint32_t matching = 0;
    for (std::size_t place = 0; place < blockSize; ++place) {
        bool isMatch = true;
        for (std::size_t probe = 0; probe < Count; ++probe) {
            isMatch = isMatch && block[place + m_offsets[probe]] == m_bytes[probe].front();
        }
        matching |= std::uint32_t{isMatch} << place;
    }
    return matching;
}

#endif

} // namespace

FoldedTexts::FoldedTexts(TextLocale locale) : m_locale(std::move(locale)) {}

void FoldedTexts::addText(std::string_view text, const std::stop_token& stop) {
    const std::size_t begin = m_bytes.size();
    m_bytes += folded(text, m_locale, stop);
    for (const auto& joined : joinedCharacters(std::string_view(m_bytes).substr(begin), stop)) {
        m_isInsideACharacter.resize(begin + joined.begin + 1, false);
        m_isInsideACharacter.resize(begin + joined.end, true);
    }
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
    m_bytes.append(blockSize, endOfText);
}

std::string_view FoldedTexts::bytes() const noexcept {
    return std::string_view(m_bytes).substr(0, m_recordEnds.empty() ? 0 : m_recordEnds.back());
}

bool FoldedTexts::isWhole(std::size_t begin, std::size_t size) const {
    const auto isInside = [this](std::size_t offset) {
        return offset < m_isInsideACharacter.size() && m_isInsideACharacter[offset];
    };
    return !isInside(begin) && !isInside(begin + size);
}

template <typename Contains>
std::vector<std::uint32_t> FoldedTexts::recordsWhere(const Contains& contains) const {
    std::vector<std::uint32_t> found(m_recordEnds.size());
    std::size_t count = 0;
    std::size_t begin = 0;
    for (std::size_t record = 0; record < m_recordEnds.size(); ++record) {
        const std::size_t end = m_recordEnds[record];
        found[count] = static_cast<std::uint32_t>(record);
        count += std::size_t{contains(begin, end)}; // a branch would be hard to predict
        begin = end;
    }
    found.resize(count);
    return found;
}

template <std::size_t ProbeCount>
std::vector<std::uint32_t> FoldedTexts::recordsWithShort(std::string_view query) const {
    const char* const bytes = m_bytes.data();
    const bool allCharactersAreSingle = m_isInsideACharacter.empty();
    const Probes<ProbeCount> probes(query, m_frequencies);
    const auto isAt = [&](std::size_t place) {
        return (query.size() == ProbeCount ||
                std::memcmp(bytes + place, query.data(), query.size()) == 0) &&
               (allCharactersAreSingle || isWhole(place, query.size()));
    };
    return recordsWhere([&](std::size_t begin, std::size_t end) {
        for (std::size_t block = begin; block + query.size() <= end; block += blockSize) {
            for (auto matches = probes.matches(bytes + block); matches != 0;
                 matches &= matches - 1) {
                const std::size_t place = block + static_cast<unsigned>(std::countr_zero(matches));
                if (place + query.size() <= end && isAt(place)) {
                    return true;
                }
            }
        }
        return false;
    });
}

/// By the algorithm of Knuth, Morris and Pratt, which compares no byte of the texts twice.
std::vector<std::uint32_t> FoldedTexts::recordsWithLong(std::string_view query) const {
    std::vector<std::size_t> borders(query.size()); // of each beginning of the query, its longest
    const auto extended = [&](std::size_t length, char byte) {
        while (length > 0 && (length == query.size() || query[length] != byte)) {
            length = borders[length - 1];
        }
        return query[length] == byte ? length + 1 : length;
    };
    for (std::size_t at = 1; at < query.size(); ++at) {
        borders[at] = extended(borders[at - 1], query[at]);
    }
    return recordsWhere([&](std::size_t begin, std::size_t end) {
        std::size_t length = 0;
        for (std::size_t at = begin; at < end; ++at) {
            length = extended(length, m_bytes[at]);
            if (length == query.size() && isWhole(at + 1 - length, length)) {
                return true;
            }
        }
        return false;
    });
}

std::optional<std::size_t> FoldedTexts::firstTextWith(std::string_view foldedQuery,
                                                      std::uint32_t record) const {
    const std::size_t begin = record == 0 ? 0 : m_recordEnds[record - 1];
    const std::string_view texts = bytes().substr(begin, m_recordEnds[record] - begin);
    std::size_t at = texts.find(foldedQuery);
    while (at != std::string_view::npos && !isWhole(begin + at, foldedQuery.size())) {
        at = texts.find(foldedQuery, at + 1);
    }
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(std::ranges::count(texts.substr(0, at), endOfText));
}

std::vector<std::uint32_t> FoldedTexts::recordsWith(std::string_view query) const {
    constexpr std::size_t longestShortQuery = 256;
    const std::string foldedQuery = folded(query, m_locale);
    switch (foldedQuery.size()) {
    case 1:
        return recordsWithShort<1>(foldedQuery);
    case 2:
        return recordsWithShort<2>(foldedQuery);
    case 3:
        return recordsWithShort<3>(foldedQuery);
    default:
        return foldedQuery.size() > longestShortQuery ? recordsWithLong(foldedQuery)
                                                      : recordsWithShort<4>(foldedQuery);
    }
}

} // namespace vasker
