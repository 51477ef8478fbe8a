#include "map/labels/LabelPlacement.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

namespace vasker {

namespace {

constexpr double cellSize = 32; // about the height of two labels
constexpr std::size_t mostCellsAcross = 256;
constexpr std::uint32_t none = UINT32_MAX;

constexpr std::array<LabelSide, 5> allSides{
    LabelSide::right, LabelSide::left, LabelSide::above, LabelSide::below, LabelSide::centred};

bool isSound(const LabelCandidate& candidate) {
    return std::isfinite(candidate.anchor.x) && std::isfinite(candidate.anchor.y) &&
           std::isfinite(candidate.gap) && std::isfinite(candidate.priority) &&
           std::isfinite(candidate.width) && std::isfinite(candidate.height) &&
           candidate.width > 0 && candidate.height > 0;
}

bool isSound(const ScreenRect& rect) {
    return std::isfinite(rect.x) && std::isfinite(rect.y) && std::isfinite(rect.width) &&
           std::isfinite(rect.height) && rect.width > 0 && rect.height > 0;
}

/// Where a label stands that has no room: on its first side within `bounds`, else on its first.
LabelSide sideWithoutRoom(const LabelCandidate& candidate, const ScreenRect& bounds) {
    LabelSide first = LabelSide::centred;
    for (const LabelSide side : allSides) {
        if (candidate.sides.contains(side)) {
            if (bounds.contains(labelRect(candidate, side))) {
                return side;
            }
            first = std::min(first, side);
        }
    }
    return first;
}

ScreenRect grown(const ScreenRect& rect, double by) {
    return {rect.x - by, rect.y - by, rect.width + 2 * by, rect.height + 2 * by};
}

std::size_t cellsAcross(double length) {
    return static_cast<std::size_t>(
        std::clamp(std::ceil(length / cellSize), 1.0, static_cast<double>(mostCellsAcross)));
}

/// The cell of a place, the outermost for places beyond.
std::size_t cellOf(double place, std::size_t count) {
    return static_cast<std::size_t>(
        std::clamp(std::floor(place / cellSize), 0.0, static_cast<double>(count - 1)));
}

} // namespace

ScreenRect labelRect(const LabelCandidate& candidate, LabelSide side) noexcept {
    const double width = candidate.width;
    const double height = candidate.height;
    const ScreenPoint anchor = candidate.anchor;
    const double gapDown = candidate.gapDown > 0 ? candidate.gapDown : candidate.gap;
    ScreenRect rect{anchor.x - width / 2, anchor.y - height / 2, width, height};
    switch (side) {
    case LabelSide::right:
        rect.x = anchor.x + candidate.gap;
        break;
    case LabelSide::left:
        rect.x = anchor.x - candidate.gap - width;
        break;
    case LabelSide::above:
        rect.y = anchor.y - gapDown - height;
        break;
    case LabelSide::below:
        rect.y = anchor.y + gapDown;
        break;
    case LabelSide::centred:
        break;
    }
    return rect;
}

void LabelPlacement::Grid::reset(const ScreenRect& bounds) {
    m_bounds = bounds;
    m_columns = cellsAcross(bounds.width);
    m_rows = cellsAcross(bounds.height);
    m_rects.clear();
    m_entries.clear();
    m_first.assign(m_columns * m_rows, none);
}

LabelPlacement::Grid::Cells LabelPlacement::Grid::cellsUnder(const ScreenRect& rect) const {
    return {cellOf(rect.x - m_bounds.x, m_columns),
            cellOf(rect.x + rect.width - m_bounds.x, m_columns),
            cellOf(rect.y - m_bounds.y, m_rows),
            cellOf(rect.y + rect.height - m_bounds.y, m_rows)};
}

void LabelPlacement::Grid::insert(const ScreenRect& rect) {
    const Cells cells = cellsUnder(rect);
    const auto index = static_cast<std::uint32_t>(m_rects.size());
    m_rects.push_back(rect);
    for (std::size_t row = cells.firstRow; row <= cells.lastRow; ++row) {
        for (std::size_t column = cells.firstColumn; column <= cells.lastColumn; ++column) {
            std::uint32_t& first = m_first[row * m_columns + column];
            m_entries.push_back({index, first});
            first = static_cast<std::uint32_t>(m_entries.size() - 1);
        }
    }
}

bool LabelPlacement::Grid::isFree(const ScreenRect& rect) const {
    const Cells cells = cellsUnder(rect);
    for (std::size_t row = cells.firstRow; row <= cells.lastRow; ++row) {
        for (std::size_t column = cells.firstColumn; column <= cells.lastColumn; ++column) {
            std::uint32_t entry = m_first[row * m_columns + column];
            while (entry != none) {
                if (m_rects[m_entries[entry].rect].overlaps(rect)) {
                    return false;
                }
                entry = m_entries[entry].next;
            }
        }
    }
    return true;
}

std::vector<std::size_t> LabelPlacement::inOrder(std::span<const LabelCandidate> candidates) const {
    // Required ones first, then by priority, then as they come.
    std::vector<std::tuple<int, double, std::size_t>> places;
    places.reserve(candidates.size());
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        const LabelCandidate& candidate = candidates[i];
        if (isSound(candidate)) {
            const double bonus = m_lastSides.contains(candidate.id) ? labelHysteresis : 0;
            places.emplace_back(candidate.isRequired ? 0 : 1, candidate.priority - bonus, i);
        }
    }
    std::sort(places.begin(), places.end());
    std::vector<std::size_t> order;
    order.reserve(places.size());
    for (const auto& [group, priority, candidate] : places) {
        order.push_back(candidate);
    }
    return order;
}

bool LabelPlacement::placeAsItStood(const LabelCandidate& candidate,
                                    LabelSide side,
                                    const ScreenRect& bounds,
                                    LabelMotion motion,
                                    PlacedLabel& placed) const {
    placed.side = side;
    placed.rect = labelRect(candidate, side);
    const bool isWithin =
        motion == LabelMotion::moving ? bounds.overlaps(placed.rect) : bounds.contains(placed.rect);
    return candidate.sides.contains(side) && isWithin && hasRoom(candidate, placed.rect);
}

bool LabelPlacement::placeAnew(const LabelCandidate& candidate,
                               const ScreenRect& bounds,
                               PlacedLabel& placed) const {
    return std::any_of(allSides.begin(), allSides.end(), [&](LabelSide side) {
        placed.side = side;
        placed.rect = labelRect(candidate, side);
        return candidate.sides.contains(side) && bounds.contains(placed.rect) &&
               hasRoom(candidate, placed.rect);
    });
}

bool LabelPlacement::hasRoom(const LabelCandidate& candidate, const ScreenRect& rect) const {
    return m_grid.isFree(grown(rect, labelSpacing)) &&
           (!candidate.sparesDots || m_dots.isFree(rect));
}

bool LabelPlacement::repeatsAText(const LabelCandidate& candidate) const {
    const auto [first, last] = m_texts.equal_range(candidate.text);
    return candidate.text != 0 && std::any_of(first, last, [&](const auto& standing) {
               return std::hypot(standing.second.x - candidate.anchor.x,
                                 standing.second.y - candidate.anchor.y) < sameTextDistance;
           });
}

const std::vector<PlacedLabel>& LabelPlacement::place(std::span<const LabelCandidate> candidates,
                                                      std::span<const ScreenRect> obstacles,
                                                      const ScreenRect& bounds,
                                                      std::span<const ScreenRect> dots,
                                                      LabelMotion motion) {
    m_placed.clear();
    m_texts.clear();
    if (!isSound(bounds)) {
        m_lastSides.clear();
        return m_placed;
    }
    m_grid.reset(bounds);
    m_dots.reset(bounds);
    const auto insertAll = [](Grid& grid, std::span<const ScreenRect> rects) {
        for (const ScreenRect& rect : rects) {
            if (isSound(rect)) {
                grid.insert(rect);
            }
        }
    };
    insertAll(m_grid, obstacles);
    insertAll(m_dots, dots);
    LastSides sides;
    for (const std::size_t index : inOrder(candidates)) {
        const LabelCandidate& candidate = candidates[index];
        PlacedLabel placed{index, LabelSide::right, {}};
        const auto last = m_lastSides.find(candidate.id);
        const bool fits = (last != m_lastSides.end() &&
                           placeAsItStood(candidate, last->second, bounds, motion, placed)) ||
                          placeAnew(candidate, bounds, placed);
        if (!candidate.isRequired && (!fits || repeatsAText(candidate))) {
            continue;
        }
        if (!fits) {
            placed.side = sideWithoutRoom(candidate, bounds);
            placed.rect = labelRect(candidate, placed.side);
        }
        m_grid.insert(placed.rect);
        if (candidate.text != 0) {
            m_texts.emplace(candidate.text, candidate.anchor);
        }
        sides.insert_or_assign(candidate.id, placed.side);
        m_placed.push_back(placed);
    }
    m_lastSides = std::move(sides);
    return m_placed;
}

} // namespace vasker
