#include "map/tiles/TileGeometry.h"

#include <protozero/varint.hpp>

#include <cstdlib>
#include <utility>

namespace vasker {

namespace {

constexpr std::uint32_t moveTo = 1;
constexpr std::uint32_t lineTo = 2;
constexpr std::uint32_t closePath = 7;
constexpr std::int64_t furthestSides = 64;

class GeometryReader {
  public:
    GeometryReader(VectorFeature::Geometry geometry, PackedNumbers numbers, std::uint32_t extent)
        : m_geometry(geometry), m_numbers(std::move(numbers)), m_extent(extent) {}

    std::vector<std::vector<TilePoint>> read() {
        while (!m_numbers.empty()) {
            const std::uint32_t word = next();
            if (!obey(word & 7U, word >> 3U)) {
                return {};
            }
        }
        if (m_geometry != VectorFeature::Geometry::polygon) {
            finishPart();
        }
        return std::move(m_parts);
    }

  private:
    std::uint32_t next() {
        const std::uint32_t number = m_numbers.front();
        m_numbers.drop_front();
        return number;
    }

    bool obey(std::uint32_t command, std::uint32_t count) {
        if (command == closePath) {
            return count == 1 && closeRing();
        }
        const bool isStart = command == moveTo;
        if ((!isStart && command != lineTo) || count == 0 || (!isStart && m_part.empty())) {
            return false;
        }
        for (; count > 0; --count) {
            if (!step()) {
                return false;
            }
            if (isStart && m_geometry != VectorFeature::Geometry::points) {
                finishPart();
            }
            m_part.push_back({inTile(m_x), inTile(m_y)});
        }
        return true;
    }

    bool step() {
        if (m_numbers.empty()) {
            return false;
        }
        m_x += protozero::decode_zigzag32(next());
        if (m_numbers.empty()) {
            return false;
        }
        m_y += protozero::decode_zigzag32(next());
        const std::int64_t furthest = furthestSides * m_extent;
        return std::abs(m_x) <= furthest && std::abs(m_y) <= furthest;
    }

    bool closeRing() {
        if (m_geometry != VectorFeature::Geometry::polygon || m_part.empty()) {
            return false;
        }
        if (m_part.size() >= 3) {
            m_part.push_back(m_part.front());
            m_parts.push_back(std::exchange(m_part, {}));
        }
        m_part.clear();
        return true;
    }

    /// A ring is finished by closing it alone.
    void finishPart() {
        const bool isLine = m_geometry == VectorFeature::Geometry::lines && m_part.size() >= 2;
        const bool isPoints = m_geometry == VectorFeature::Geometry::points && !m_part.empty();
        if (isLine || isPoints) {
            m_parts.push_back(std::exchange(m_part, {}));
        }
        m_part.clear();
    }

    [[nodiscard]] float inTile(std::int64_t position) const {
        return static_cast<float>(static_cast<double>(position) / m_extent);
    }

    VectorFeature::Geometry m_geometry;
    PackedNumbers m_numbers;
    std::uint32_t m_extent;
    std::int64_t m_x = 0;
    std::int64_t m_y = 0;
    std::vector<TilePoint> m_part;
    std::vector<std::vector<TilePoint>> m_parts;
};

} // namespace

std::vector<std::vector<TilePoint>>
tileParts(VectorFeature::Geometry geometry, PackedNumbers commands, std::uint32_t extent) {
    return GeometryReader(geometry, std::move(commands), extent).read();
}

} // namespace vasker
