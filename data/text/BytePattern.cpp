#include "data/text/BytePattern.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>
#include <vector>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vasker {

BytePattern::BytePattern(std::string_view pattern, const ByteFrequencies& frequencies)
    : m_pattern(pattern) {
    std::vector<std::size_t> places(pattern.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    const auto frequency = [&](std::size_t place) {
        return frequencies[static_cast<unsigned char>(pattern[place])];
    };
    const std::size_t probes = std::min(places.size(), maximumProbes);
    std::ranges::partial_sort(
        places, places.begin() + static_cast<std::ptrdiff_t>(probes), {}, frequency);
    for (std::size_t at = 0; at < maximumProbes; ++at) {
        m_probes[at] = places[std::min(at, probes - 1)];
    }
}

#ifdef __SSE2__

const char* BytePattern::find(const char* from, const char* textEnd) const noexcept {
    if (static_cast<std::size_t>(textEnd - from) < m_pattern.size()) {
        return textEnd;
    }
    const auto wanted = [this](std::size_t probe) {
        return _mm_set1_epi8(m_pattern[m_probes[probe]]);
    };
    const std::size_t probe0 = m_probes[0];
    const std::size_t probe1 = m_probes[1];
    const std::size_t probe2 = m_probes[2];
    const std::size_t probe3 = m_probes[3];
    const __m128i wanted0 = wanted(0);
    const __m128i wanted1 = wanted(1);
    const __m128i wanted2 = wanted(2);
    const __m128i wanted3 = wanted(3);
    const auto equal = [](const char* bytes, __m128i byte) {
        return _mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)), byte);
    };
    const auto rareAt = [&](const char* place) {
        return _mm_and_si128(equal(place + probe0, wanted0), equal(place + probe1, wanted1));
    };
    const auto commonAt = [&](const char* place) {
        return _mm_and_si128(equal(place + probe2, wanted2), equal(place + probe3, wanted3));
    };
    // A place is at most the last one that the pattern fits in, so that a load reads at most two
    // blocks behind the text.
    constexpr std::size_t block = sizeof(__m128i);
    const char* const lastPlace = textEnd - m_pattern.size();
    for (; from <= lastPlace; from += 2 * block) {
        const __m128i here = rareAt(from);
        const __m128i next = rareAt(from + block);
        if (_mm_movemask_epi8(_mm_or_si128(here, next)) == 0) {
            continue;
        }
        const auto bitsOf = [](__m128i equality) {
            return static_cast<unsigned>(_mm_movemask_epi8(equality));
        };
        unsigned candidates = bitsOf(_mm_and_si128(here, commonAt(from))) |
                              bitsOf(_mm_and_si128(next, commonAt(from + block))) << block;
        for (; candidates != 0; candidates &= candidates - 1) {
            const char* const place = from + std::countr_zero(candidates);
            if (place > lastPlace) {
                return textEnd;
            }
            if (std::memcmp(place, m_pattern.data(), m_pattern.size()) == 0) {
                return place;
            }
        }
    }
    return textEnd;
}

#else

const char* BytePattern::find(const char* from, const char* textEnd) const noexcept {
    const std::string_view text(from, static_cast<std::size_t>(textEnd - from));
    const std::size_t at = text.find(m_pattern);
    return at == std::string_view::npos ? textEnd : from + at;
}

#endif

} // namespace vasker
