#include "map/labels/MapLabels.h"

#include "map/labels/LabelText.h"

#include <QHash>
#include <QPainter>

#include <algorithm>
#include <span>
#include <utility>

namespace vasker {

namespace {

/// From a place's point to its label, past the ring; from a pin to its label, which would else be
/// too near to the pin to stand.
constexpr double placeGap = 5;
constexpr double pinGap = labelSpacing + 1;

/// Around a name that pins make way for: a pin at its edge would leave it no room.
constexpr double nameMargin = labelSpacing + 1;

/// New labels that one frame takes in.
constexpr int mostNewLabels = 120;
constexpr int mostNewLabelsWhileMoving = 12;

/// Smaller capitals of regions are set as towns; other towns come later than this.
constexpr double capitalPriority = 6;

/// Labels of records come after those of all places.
constexpr double recordPriority = 10'000;

bool hasMark(PlaceLabel::Kind kind) {
    return kind != PlaceLabel::Kind::country && kind != PlaceLabel::Kind::region &&
           kind != PlaceLabel::Kind::water;
}

bool isProminent(const PlaceLabel& place) {
    return place.kind == PlaceLabel::Kind::region || place.kind == PlaceLabel::Kind::capital ||
           place.kind == PlaceLabel::Kind::city ||
           (place.kind == PlaceLabel::Kind::town && place.priority < capitalPriority);
}

/// Whether a control over the map covers the mark of a place.
bool isCovered(ScreenPoint mark, std::span<const ScreenRect> controls) {
    const ScreenRect ring{
        mark.x - placeMarkReach, mark.y - placeMarkReach, 2 * placeMarkReach, 2 * placeMarkReach};
    return std::ranges::any_of(controls,
                               [&](const ScreenRect& control) { return control.overlaps(ring); });
}

ScreenRect freePart(const Camera& camera) {
    const Viewport view = camera.viewport();
    return {view.coveredLeft,
            0,
            view.width - view.coveredLeft - view.coveredRight,
            view.height - view.coveredBelow};
}

LabelMotion motionOf(const LabelInput& input) {
    return input.isMoving ? LabelMotion::moving : LabelMotion::atRest;
}

} // namespace

std::vector<ScreenRect> MapLabels::begin(const LabelInput& input) {
    if (!m_atlas || m_devicePixels != input.devicePixels || m_textScale != input.textScale) {
        m_atlas.emplace(input.devicePixels, input.textScale);
        m_devicePixels = input.devicePixels;
        m_textScale = input.textScale;
    }
    m_newLabels = input.isMoving ? mostNewLabelsWhileMoving : mostNewLabels;
    m_candidates.clear();
    m_placements.clear();
    addPlaces(input);

    std::vector<ScreenRect> rects = input.obstacles;
    for (const PlacedLabel& placed : m_names.place(
             m_placements, input.obstacles, freePart(input.camera), {}, motionOf(input))) {
        if (m_candidates[placed.candidate].isProminent) {
            const ScreenRect& name = placed.rect;
            rects.push_back({name.x - nameMargin,
                             name.y - nameMargin,
                             name.width + 2 * nameMargin,
                             name.height + 2 * nameMargin});
        }
    }
    return rects;
}

SpriteLayer MapLabels::compose(const LabelInput& input) {
    addRecords(input);

    std::vector<ScreenRect> obstacles = input.obstacles;
    for (const RecordLabel& record : input.records) {
        obstacles.push_back(record.pin);
    }
    m_placement.place(m_placements, obstacles, freePart(input.camera), input.dots, motionOf(input));
    return sprites();
}

void MapLabels::addPlaces(const LabelInput& input) {
    const Camera& camera = input.camera;
    const MapRect seen = camera.visibleRect();
    const auto offsets = worldCopyOffsets(seen);
    for (const PlaceLabel& place : input.places) {
        for (const double offset : offsets) {
            const MapPoint point{place.point.x + offset, place.point.y};
            if (!seen.contains(point)) {
                continue;
            }
            const ScreenPoint anchor = camera.worldToScreen(point);
            const bool isMarked = hasMark(place.kind);
            if (isMarked && isCovered(anchor, input.obstacles)) {
                continue;
            }
            const size_t hash = qHash(place.text);
            LabelCandidate placement{};
            placement.id = qHashMulti(
                hash, static_cast<int>(place.kind), static_cast<int>(offset / worldSize));
            placement.anchor = anchor;
            placement.gap = isMarked ? placeGap : 0;
            placement.sides = isMarked ? aroundThePoint : onThePoint;
            placement.priority = place.priority;
            placement.text = hash;
            add({{place.text, labelStyleOf(place.kind), input.theme},
                 isMarked ? std::optional(anchor) : std::nullopt,
                 isProminent(place)},
                placement);
        }
    }
}

void MapLabels::addRecords(const LabelInput& input) {
    for (const RecordLabel& record : input.records) {
        Label label{record.text, LabelStyle::record, input.theme};
        const bool mayCome = !input.isMoving || record.isRequired || m_atlas->knows(label);
        if (record.text.isEmpty() || !mayCome) {
            continue;
        }
        LabelCandidate placement{};
        placement.id = qHashMulti(0, QLatin1String("record"), record.id);
        placement.anchor = {record.pin.x + record.pin.width / 2,
                            record.pin.y + record.pin.height / 2};
        placement.gap = record.pin.width / 2 + pinGap;
        placement.gapDown = record.pin.height / 2 + pinGap;
        placement.sides =
            record.isRequired ? aroundThePoint : LabelSides{LabelSide::right, LabelSide::left};
        placement.priority = recordPriority + record.rank;
        placement.sparesDots = true;
        placement.isRequired = record.isRequired;
        add({std::move(label), std::nullopt}, placement);
    }
}

void MapLabels::add(Candidate candidate, LabelCandidate placement) {
    if (!m_atlas->knows(candidate.label) && --m_newLabels < 0) {
        m_newLabels = -1;
        return;
    }
    const QSizeF size = m_atlas->size(candidate.label);
    placement.width = size.width();
    placement.height = size.height();
    m_candidates.push_back(std::move(candidate));
    m_placements.push_back(placement);
}

Label MapLabels::labelOf(const PlacedLabel& placed) {
    Label label = m_candidates[placed.candidate].label;
    if (m_atlas->textOf(label).lines.contains(QChar::LineSeparator)) {
        label.alignment = placed.side == LabelSide::right  ? LabelAlignment::left
                          : placed.side == LabelSide::left ? LabelAlignment::right
                                                           : LabelAlignment::centred;
    }
    return label;
}

SpriteLayer MapLabels::sprites() {
    SpriteLayer layer;
    m_atlas->beginFrame();
    const auto add = [&layer](const LabelAtlas::Place& place, double left, double top) {
        if (layer.sheets.size() <= place.page) {
            layer.sheets.resize(place.page + 1);
        }
        layer.sheets[place.page].sprites.push_back({{left, top}, place.region});
    };
    for (const PlacedLabel& placed : m_placement.placed()) {
        const Candidate& candidate = m_candidates[placed.candidate];
        if (candidate.mark) {
            const auto ring = m_atlas->placeMark(candidate.label.theme);
            add(ring,
                candidate.mark->x - ring.region.width() / 2,
                candidate.mark->y - ring.region.height() / 2);
        }
        if (const auto text = m_atlas->place(labelOf(placed))) {
            add(*text, placed.rect.x - LabelAtlas::margin, placed.rect.y - LabelAtlas::margin);
        }
    }
    for (std::size_t page = 0; page < layer.sheets.size(); ++page) {
        layer.sheets[page].atlas = m_atlas->page(page);
    }
    return layer;
}

std::vector<Shape> MapLabels::shapes() {
    std::vector<Shape> shapes;
    for (const PlacedLabel& placed : m_placement.placed()) {
        const Candidate& candidate = m_candidates[placed.candidate];
        if (candidate.mark) {
            shapes.emplace_back(
                [mark = *candidate.mark, theme = candidate.label.theme](auto& painter) {
                    paintPlaceMark(painter, {mark.x, mark.y}, theme);
                });
        }
        shapes.emplace_back([corner = QPointF(placed.rect.x, placed.rect.y),
                             text = m_atlas->textOf(candidate.label),
                             label = labelOf(placed),
                             textScale = m_textScale](QPainter& painter) {
            painter.save();
            painter.translate(corner);
            paintLabel(painter, text, label, textScale);
            painter.restore();
        });
    }
    return shapes;
}

} // namespace vasker
