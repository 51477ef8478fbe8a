#include "map/records/RecordPins.h"

#include "map/pins/PinShape.h"

#include <QPainter>

#include <algorithm>

namespace vasker {

namespace {

ScreenRect boxOf(ScreenPoint tip, double scale) {
    const double width = pinWidth * scale;
    const double height = pinHeight * scale;
    return {tip.x - width / 2, tip.y - height, width, height};
}

/// Calls `draw` with each pin, in drawing order.
template <typename Draw>
void forEachPin(const MarkerFrame& frame, Draw draw) {
    for (const PlacedMarker& pin : frame.pins) {
        draw(pin, PinState::plain);
    }
    if (frame.hovered) {
        draw(*frame.hovered, PinState::hovered);
    }
    if (frame.selected) {
        draw(*frame.selected, PinState::selected);
    }
}

ScreenPoint cornerOf(const PlacedMarker& pin, PinState state) {
    const ScreenPoint tip = PinAtlas::tip(state);
    return {pin.point.x - tip.x, pin.point.y - tip.y};
}

const std::string& kindOf(const PlacedMarker& pin, const LoadedRelease& release) {
    return release.index.release().assets[pin.asset].kind;
}

} // namespace

std::vector<ShownPin> shownPins(const MarkerFrame& frame) {
    std::vector<ShownPin> pins;
    const auto show = [&](const PlacedMarker& pin, double scale, bool isHighlighted) {
        pins.push_back({pin.asset, boxOf(pin.point, scale), isHighlighted, pin.rank});
    };
    if (frame.selected) {
        show(*frame.selected, selectedPinScale, true);
    }
    if (frame.hovered) {
        show(*frame.hovered, hoveredPinScale, true);
    }
    for (const PlacedMarker& pin : frame.pins) {
        show(pin, 1, false);
    }
    return pins;
}

std::vector<ScreenRect> dotBoxes(const MarkerFrame& frame) {
    std::vector<ScreenRect> boxes;
    boxes.reserve(frame.dots.size() + frame.paintedDots.size());
    for (const auto* dots : {&frame.dots, &frame.paintedDots}) {
        for (const PlacedMarker& dot : *dots) {
            const double reach = dotRadiusOf(dot) + dotCasing;
            boxes.push_back({dot.point.x - reach, dot.point.y - reach, 2 * reach, 2 * reach});
        }
    }
    return boxes;
}

void makeWay(MarkerFrame& frame, std::span<const ScreenRect> names) {
    const auto covers = [names](const PlacedMarker& pin) {
        const ScreenRect box = boxOf(pin.point, 1);
        return std::ranges::any_of(names,
                                   [&](const ScreenRect& name) { return box.overlaps(name); });
    };
    const auto covering = std::stable_partition(
        frame.pins.begin(), frame.pins.end(), [&](const auto& pin) { return !covers(pin); });
    frame.dots.insert(frame.dots.end(), covering, frame.pins.end());
    frame.pins.erase(covering, frame.pins.end());
}

std::vector<Shape>
pinShapes(const MarkerFrame& frame, const LoadedRelease& release, BasemapTheme theme) {
    std::vector<Shape> shapes;
    forEachPin(frame, [&](const PlacedMarker& pin, PinState state) {
        const ScreenPoint corner = cornerOf(pin, state);
        shapes.emplace_back([=, kind = kindOf(pin, release)](QPainter& painter) {
            painter.save();
            painter.translate(corner.x, corner.y);
            paintPin(painter, kind, theme, state);
            painter.restore();
        });
    });
    return shapes;
}

SpriteSheet
pinSprites(const MarkerFrame& frame, const LoadedRelease& release, const PinAtlas& atlas) {
    SpriteSheet sheet{atlas.image(), {}};
    forEachPin(frame, [&](const PlacedMarker& pin, PinState state) {
        sheet.sprites.push_back({cornerOf(pin, state), atlas.region(kindOf(pin, release), state)});
    });
    return sheet;
}

} // namespace vasker
