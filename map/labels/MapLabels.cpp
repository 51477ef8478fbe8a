#include "map/labels/MapLabels.h"

#include "map/records/PinShape.h"

#include <QHash>

namespace vasker {

namespace {

/// From a place's point to its name, past the ring; from a pin to its title, which would else
/// be too near to it to stand.
constexpr double placeGap = 5;
constexpr double titleGap = labelSpacing + 1;

/// New names that one frame takes in.
constexpr int mostNewNames = 60;
constexpr int mostNewNamesWhileMoving = 6;

/// Titles come after every name of a place.
constexpr double recordPriority = 10'000;

/// The corners in which controls, scale and attribution stand, in logical pixels.
constexpr double controlsWidth = 64;
constexpr double controlsHeight = 152;
constexpr double scaleWidth = 190;
constexpr double attributionWidth = 330;
constexpr double bottomHeight = 52;

bool hasRing(PlaceLabel::Kind kind) {
    return kind != PlaceLabel::Kind::country && kind != PlaceLabel::Kind::region &&
           kind != PlaceLabel::Kind::water;
}

ScreenRect boxOf(const LabelledPin& pin) {
    const double width = pinWidth * pin.scale;
    const double height = pinHeight * pin.scale;
    return {pin.tip.x - width / 2, pin.tip.y - height, width, height};
}

/// What names keep clear of.
std::vector<ScreenRect> obstacles(const std::vector<LabelledPin>& pins, const Viewport& view) {
    const double right = view.width - view.coveredRight;
    const double bottom = view.height - view.coveredBelow;
    std::vector<ScreenRect> rects{
        {right - controlsWidth, 0, controlsWidth, controlsHeight},
        {0, bottom - bottomHeight, scaleWidth, bottomHeight},
        {right - attributionWidth, bottom - bottomHeight / 2, attributionWidth, bottomHeight / 2}};
    for (const LabelledPin& pin : pins) {
        rects.push_back(boxOf(pin));
    }
    return rects;
}

} // namespace

void MapLabels::place(const std::vector<PlaceLabel>& names,
                      const std::vector<LabelledPin>& pins,
                      const Camera& camera,
                      double textScale,
                      MapFrame& picture,
                      Pace pace) {
    const auto density = static_cast<double>(picture.devicePixels);
    if (!m_labels || m_density != density || m_textScale != textScale) {
        m_labels.emplace(density, textScale);
        m_density = density;
        m_textScale = textScale;
    }
    m_newNames = pace == Pace::moving ? mostNewNamesWhileMoving : mostNewNames;
    m_wishes.clear();
    m_candidates.clear();
    addNames(names, camera, picture.look);
    addTitles(pins, picture.look, pace);
    const Viewport view = camera.viewport();
    const ScreenRect bounds{0, 0, view.width - view.coveredRight, view.height - view.coveredBelow};
    m_layout.layOut(m_candidates, obstacles(pins, view), bounds);
    const auto generation = m_labels->generation();
    draw(picture);
    if (m_labels->generation() != generation) { // it was full: what was cut before is void
        draw(picture);
    }
}

void MapLabels::addNames(const std::vector<PlaceLabel>& names,
                         const Camera& camera,
                         BasemapTheme look) {
    const MapRect seen = camera.visibleRect();
    const auto shifts = worldCopyOffsets(seen);
    for (const PlaceLabel& name : names) {
        for (const double shift : shifts) {
            const MapPoint point{name.point.x + shift, name.point.y};
            if (!seen.contains(point)) {
                continue;
            }
            const ScreenPoint place = camera.worldToScreen(point);
            const bool rings = hasRing(name.kind);
            const size_t hash = qHash(name.text);
            LabelCandidate candidate{};
            candidate.id =
                qHashMulti(hash, static_cast<int>(name.kind), static_cast<int>(shift / worldSize));
            candidate.anchor = place;
            candidate.gap = rings ? placeGap : 0;
            candidate.sides = rings ? aroundThePoint : onThePoint;
            candidate.priority = name.priority;
            candidate.name = hash;
            add({{name.text, labelStyleOf(name.kind), look},
                 rings ? std::optional(place) : std::nullopt},
                candidate);
        }
    }
}

void MapLabels::addTitles(const std::vector<LabelledPin>& pins, BasemapTheme look, Pace pace) {
    for (std::size_t i = 0; i < pins.size(); ++i) {
        const LabelledPin& pin = pins[i];
        const Label label{pin.title, LabelStyle::title, look};
        const bool mayCome = pace == Pace::resting || pin.isRequired || m_labels->knows(label);
        if (pin.title.isEmpty() || !mayCome) {
            continue;
        }
        const ScreenRect box = boxOf(pin);
        LabelCandidate candidate{};
        candidate.id = qHashMulti(0, QLatin1String("record"), pin.asset);
        candidate.anchor = {box.x + box.width / 2, box.y + box.height / 2};
        candidate.gap = box.width / 2 + titleGap;
        candidate.sides = LabelSides{LabelSide::right, LabelSide::left};
        candidate.priority = recordPriority + static_cast<double>(i);
        candidate.isRequired = pin.isRequired;
        add({label, std::nullopt}, candidate);
    }
}

void MapLabels::add(Wish wish, LabelCandidate candidate) {
    if (!m_labels->knows(wish.label) && --m_newNames < 0) {
        m_newNames = -1;
        return;
    }
    const QSizeF size = m_labels->size(wish.label);
    candidate.width = size.width();
    candidate.height = size.height();
    m_wishes.push_back(std::move(wish));
    m_candidates.push_back(candidate);
}

void MapLabels::draw(MapFrame& picture) {
    picture.names.sprites.clear();
    const auto addSprite = [&picture](double left, double top, const QRectF& cut) {
        picture.names.sprites.push_back({{left, top}, cut});
    };
    for (const PlacedLabel& placed : m_layout.placed()) {
        const Wish& wish = m_wishes[placed.candidate];
        if (wish.mark) {
            const QRectF ring = m_labels->markCut(wish.label.look);
            addSprite(wish.mark->x - ring.width() / 2, wish.mark->y - ring.height() / 2, ring);
        }
        addSprite(placed.rect.x - LabelAtlas::margin,
                  placed.rect.y - LabelAtlas::margin,
                  m_labels->cut(wish.label));
    }
    picture.names.image = m_labels->image();
}

} // namespace vasker
