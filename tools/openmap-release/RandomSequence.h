#pragma once
// Random numbers that are the same on every machine: a standard engine, and distributions of our
// own, because the standard library's differ between makers. Not for secrets.

#include <cstddef>
#include <cstdint>
#include <random>

namespace vasker {

class RandomSequence {
  public:
    explicit RandomSequence(std::uint64_t seed) : m_engine(seed) {}

    /// A whole number below `bound`, which is at least 1. The bias is below bound / 2^64.
    [[nodiscard]] std::size_t below(std::size_t bound) { return m_engine() % bound; }

    /// A number in [0, 1), a multiple of 2^-53.
    [[nodiscard]] double unit() {
        constexpr double step = 1.0 / 9007199254740992.0;
        return static_cast<double>(m_engine() >> 11U) * step;
    }

    [[nodiscard]] double between(double low, double high) { return low + (high - low) * unit(); }

    /// A bell-shaped number in (-1, 1): the mean of three draws.
    [[nodiscard]] double bell() {
        const double sum = unit() + unit() + unit();
        return sum * (2.0 / 3.0) - 1.0;
    }

    /// True once in `times` draws on average.
    [[nodiscard]] bool onceIn(std::size_t times) { return below(times) == 0; }

  private:
    std::mt19937_64 m_engine;
};

} // namespace vasker
