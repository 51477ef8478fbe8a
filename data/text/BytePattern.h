#pragma once
// A short run of bytes to be found in very many.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vasker {

/// How often every byte occurs, roughly: what is rare is worth looking for first.
using ByteFrequencies = std::array<std::uint32_t, 256>;

/// Looks at up to four of the pattern's rarest bytes at once, sixteen places at a time, and
/// compares the whole pattern only where all of them stand. That is as fast as memory is read for
/// patterns that hardly occur, which is what decides how long the slowest search takes.
class BytePattern {
  public:
    /// Bytes that must be readable behind the end of the text that is searched.
    static constexpr std::size_t padding = 64;

    /// `pattern` is not empty and outlives this object.
    BytePattern(std::string_view pattern, const ByteFrequencies& frequencies);

    /// The first place of the pattern in [`from`, `textEnd`), or `textEnd`.
    [[nodiscard]] const char* find(const char* from, const char* textEnd) const noexcept;

  private:
    static constexpr std::size_t maximumProbes = 4;

    std::string_view m_pattern;
    std::array<std::size_t, maximumProbes> m_probes{}; ///< places in the pattern
};

} // namespace vasker
