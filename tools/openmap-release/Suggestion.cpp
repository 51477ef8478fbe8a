#include "tools/openmap-release/Suggestion.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

namespace vasker {
namespace {

constexpr std::size_t longestWord = 64;

char lower(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// How many letters have to be inserted, removed, replaced or swapped with their neighbour.
std::size_t distance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> beforeLast(to.size() + 1);
    std::vector<std::size_t> last(to.size() + 1);
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 1; i <= from.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const bool isSame = lower(from[i - 1]) == lower(to[j - 1]);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0U : 1U)});
            const bool isSwapped = i > 1 && j > 1 && lower(from[i - 1]) == lower(to[j - 2]) &&
                                   lower(from[i - 2]) == lower(to[j - 1]);
            if (isSwapped) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
        beforeLast.swap(last);
        last.swap(row);
    }
    return last.back();
}

} // namespace

std::string suggestion(std::string_view word, std::span<const std::string_view> known) {
    if (word.size() > longestWord) {
        return "";
    }
    std::string_view nearest;
    std::size_t smallest = word.size() / 3 + 1;
    for (const std::string_view candidate : known) {
        const std::size_t apart =
            candidate.size() > longestWord ? smallest : distance(word, candidate);
        if (apart < smallest) {
            smallest = apart;
            nearest = candidate;
        }
    }
    return nearest.empty() ? "" : ", did you mean " + std::string(nearest) + "?";
}

} // namespace vasker
