#pragma once
// Which labels stand on the screen, and on which side of their points: axis-parallel rectangles
// that overlap neither each other nor an obstacle, placed anew for every frame.
//
// The placement has hysteresis. A label that stood in the last frame gains labelHysteresis in
// priority and is first tried on the side where it stood: while the map moves, a label goes only
// where something clearly more important comes or where its room is gone. A new label appears only
// wholly within the bounds; one that stands may be pushed out of them gradually.

#include "map/geometry/Camera.h"
#include "map/geometry/ScreenRect.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

namespace vasker {

/// Where a label stands about its anchor. Sides are tried in this order.
enum class LabelSide : std::uint8_t { right, left, above, below, centred };

/// A set of sides.
class LabelSides {
  public:
    template <typename... Sides>
    constexpr explicit LabelSides(Sides... sides) noexcept : m_bits((0U | ... | bit(sides))) {}
    [[nodiscard]] constexpr bool contains(LabelSide side) const noexcept {
        return (m_bits & bit(side)) != 0;
    }

  private:
    static constexpr unsigned bit(LabelSide side) noexcept {
        return 1U << static_cast<unsigned>(side);
    }
    unsigned m_bits;
};

inline constexpr LabelSides aroundThePoint{
    LabelSide::right, LabelSide::left, LabelSide::above, LabelSide::below};
inline constexpr LabelSides onThePoint{LabelSide::centred};

/// Whether the map moves under its labels.
enum class LabelMotion : std::uint8_t { moving, atRest };

struct LabelCandidate {
    std::uint64_t id = 0; ///< the same in every frame, another for each label
    ScreenPoint anchor{};
    double width = 0; ///< of the label, in logical pixels
    double height = 0;
    double gap = 0;     ///< from the anchor to the label's nearest edge; centred: none
    double gapDown = 0; ///< the same above and below; 0: as at the sides
    LabelSides sides = aroundThePoint;
    double priority = 0; ///< the smaller comes first
    /// Equal for labels of which one is enough where they stand near each other; 0: never.
    std::uint64_t text = 0;
    /// Comes before all others and stands in any case: where there is no room, on the first side
    /// that is within the bounds.
    bool isRequired = false;
    bool sparesDots = false; ///< covers no dot
};

struct PlacedLabel {
    std::size_t candidate; ///< its place among the candidates
    LabelSide side;
    ScreenRect rect;
};

/// The least distance between two labels, in logical pixels.
inline constexpr double labelSpacing = 3;
/// What a label that stood in the last frame gains in priority.
inline constexpr double labelHysteresis = 1;
/// No two labels of one text stand nearer to each other than this, in logical pixels.
inline constexpr double sameTextDistance = 300;

class LabelPlacement {
  public:
    /// The labels that find room in `bounds`, in order of priority; equal ones in the order of
    /// the candidates. Candidates with values that are no finite numbers, or of no size, are passed
    /// over. `dots` are in the way of those that spare them. Valid until the next call.
    const std::vector<PlacedLabel>& place(std::span<const LabelCandidate> candidates,
                                          std::span<const ScreenRect> obstacles,
                                          const ScreenRect& bounds,
                                          std::span<const ScreenRect> dots = {},
                                          LabelMotion motion = LabelMotion::moving);
    /// The result of the last call.
    [[nodiscard]] const std::vector<PlacedLabel>& placed() const noexcept { return m_placed; }

  private:
    using LastSides = std::unordered_map<std::uint64_t, LabelSide>;

    [[nodiscard]] std::vector<std::size_t>
    inOrder(std::span<const LabelCandidate> candidates) const;
    [[nodiscard]] bool placeAsItStood(const LabelCandidate& candidate,
                                      LabelSide side,
                                      const ScreenRect& bounds,
                                      LabelMotion motion,
                                      PlacedLabel& placed) const;
    [[nodiscard]] bool
    placeAnew(const LabelCandidate& candidate, const ScreenRect& bounds, PlacedLabel& placed) const;
    [[nodiscard]] bool hasRoom(const LabelCandidate& candidate, const ScreenRect& rect) const;
    [[nodiscard]] bool repeatsAText(const LabelCandidate& candidate) const;

    /// Rectangles in the cells of a grid over the bounds.
    class Grid {
      public:
        void reset(const ScreenRect& bounds);
        void insert(const ScreenRect& rect);
        [[nodiscard]] bool isFree(const ScreenRect& rect) const;

      private:
        struct Cells {
            std::size_t firstColumn, lastColumn, firstRow, lastRow;
        };
        struct Entry {
            std::uint32_t rect;
            std::uint32_t next; ///< in the same cell
        };
        [[nodiscard]] Cells cellsUnder(const ScreenRect& rect) const;

        ScreenRect m_bounds{};
        std::size_t m_columns = 0;
        std::size_t m_rows = 0;
        std::vector<ScreenRect> m_rects;
        std::vector<Entry> m_entries;
        std::vector<std::uint32_t> m_first; ///< of each cell
    };

    Grid m_grid;
    Grid m_dots;
    LastSides m_lastSides; ///< of what stood in the last frame, by id
    std::unordered_multimap<std::uint64_t, ScreenPoint> m_texts; ///< that stand, by text
    std::vector<PlacedLabel> m_placed;
};

/// Where a label of the candidate's size stands on that side of its anchor.
[[nodiscard]] ScreenRect labelRect(const LabelCandidate& candidate, LabelSide side) noexcept;

} // namespace vasker
