#pragma once
// Levels of detail: half steps of zoom. What depends on the scale is decided once per level,
// whenever the scale grows or shrinks by the square root of two.

#include <utility> // for the order

namespace vasker {

/// A level serves the scales above its predecessor's and up to its own.
class DetailLevel {
  public:
    explicit constexpr DetailLevel(int number) noexcept : m_number(number) {}
    /// The level for `scale` logical pixels per map point (positive).
    [[nodiscard]] static DetailLevel forScale(double scale) noexcept;

    /// The largest and the smallest scale that the level serves, in pixels per map point.
    [[nodiscard]] double maximumScale() const noexcept;
    [[nodiscard]] double minimumScale() const noexcept;

    friend constexpr auto operator<=>(DetailLevel, DetailLevel) = default;

  private:
    int m_number;
};

} // namespace vasker
