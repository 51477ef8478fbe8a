#include "map/records/MapRecords.h"

#include "map/records/PinShape.h"
#include "map/records/RecordPainter.h"
#include "map/style/MapColors.h"
#include "presentation/Symbols.h"

#include <algorithm>

namespace vasker {

namespace {

Rgb rgbOf(const QColor& color) {
    return {static_cast<std::uint8_t>(color.red()),
            static_cast<std::uint8_t>(color.green()),
            static_cast<std::uint8_t>(color.blue())};
}

} // namespace

/// What is painted into the pictures of one scale, and the layout that it follows.
class MapRecords::Ink final : public RecordOverlay {
  public:
    Ink(const LoadedRelease* release,
        std::shared_ptr<const MarkerLayout> layout,
        RecordPainter painter)
        : m_release(release), m_layout(std::move(layout)), m_painter(std::move(painter)) {}

    void
    paint(QPainter& painter, const MapRect& bounds, double devicePixelsPerMapPoint) const override {
        m_painter.paint(painter, bounds, devicePixelsPerMapPoint);
    }
    /// Whose records the layout numbers.
    [[nodiscard]] const LoadedRelease* release() const noexcept { return m_release; }
    [[nodiscard]] const MarkerLayout& layout() const noexcept { return *m_layout; }

  private:
    const LoadedRelease* m_release; ///< to be compared only
    std::shared_ptr<const MarkerLayout> m_layout;
    RecordPainter m_painter;
};

void MapRecords::setRecords(const RecordSet& records) {
    if (records.loaded != m_records.loaded) {
        m_balloons.reset();
    }
    m_records = records;
    m_markers = m_records.loaded ? markersByPrecedence(m_records) : std::vector<Marker>();
    m_layouts.clear();
    refreshTints();
    findLifted();
}

void MapRecords::setLook(BasemapTheme look) {
    m_look = look;
    m_balloons.reset();
    refreshTints();
}

void MapRecords::setSelection(const QString& id) {
    m_selection = id;
    findLifted();
}

void MapRecords::setHovered(const QString& id) {
    m_hovered = id;
    findLifted();
}

/// Colours follow the release, the filter and the look of the ground.
void MapRecords::refreshTints() {
    m_tints.clear();
    m_routeColors.clear();
    ++m_revision;
    if (!m_records.loaded) {
        return;
    }
    const ColorScheme scheme = mapColors(m_look).records;
    for (const auto& asset : m_records.loaded->index.release().assets) {
        m_tints.push_back(rgbOf(colorValue(color(asset.kind), scheme)));
    }
    m_routeColors.resize(m_tints.size());
    for (const AssetIndex asset : *m_records.filtered) {
        m_routeColors[asset] = m_tints[asset];
    }
}

std::optional<AssetIndex> MapRecords::shownRecord(const QString& id) const {
    if (!m_records.loaded || id.isEmpty()) {
        return std::nullopt;
    }
    const auto found = m_records.loaded->index.find(id.toStdString());
    return found && m_routeColors[*found] ? found : std::nullopt;
}

void MapRecords::findLifted() {
    m_selectedAsset = shownRecord(m_selection);
    m_hoveredAsset = shownRecord(m_hovered);
}

const OpenMapRelease::Asset& MapRecords::asset(AssetIndex index) const {
    return m_records.loaded->index.release().assets[index];
}

QString MapRecords::idOf(std::optional<AssetIndex> index) const {
    return index ? QString::fromStdString(asset(*index).id) : QString();
}

std::optional<Marker> MapRecords::markerOf(std::optional<AssetIndex> index) const {
    if (!index || asset(*index).hasRoute()) {
        return std::nullopt;
    }
    return Marker{*index, m_records.loaded->geometry.points()[*index]};
}

std::shared_ptr<const MarkerLayout> MapRecords::layout(double scale) const {
    const DetailLevel level = DetailLevel::forScale(scale);
    auto& known = m_layouts[level];
    if (!known) {
        known = std::make_shared<const MarkerLayout>(markerLayout(m_markers, level));
    }
    return known;
}

std::shared_ptr<const RecordOverlay> MapRecords::ink(double scale, double devicePixels) const {
    if (!m_records.loaded) {
        return nullptr;
    }
    auto layout = this->layout(scale);
    const MapColors& colors = mapColors(m_look);
    RecordPainter painter(
        m_records.loaded,
        m_routeColors,
        layout->dots,
        {.tints = m_tints, .dotCasing = colors.casing, .routeCasing = colors.routeCasing},
        devicePixels);
    return std::make_shared<const Ink>(
        m_records.loaded.get(), std::move(layout), std::move(painter));
}

RouteStrip MapRecords::stripOf(std::optional<AssetIndex> index, const Camera& camera) const {
    if (!index || !asset(*index).hasRoute()) {
        return {};
    }
    const RecordGeometry& geometry = m_records.loaded->geometry;
    return routeStrip(geometry, geometry.runsOf(*index), m_routeColors, camera);
}

void MapRecords::place(const Camera& camera,
                       Dots dots,
                       const RecordOverlay* shown,
                       MapFrame& picture) {
    picture.routes.clear();
    picture.dots.clear();
    picture.pins.sprites.clear();
    picture.selectedRoute = stripOf(m_selectedAsset, camera);
    picture.hoveredRoute =
        m_hoveredAsset == m_selectedAsset ? RouteStrip() : stripOf(m_hoveredAsset, camera);
    m_frame = {};
    const auto* ink = static_cast<const Ink*>(shown);
    const bool isPainted = ink != nullptr && ink->release() == m_records.loaded.get();
    if (!m_records.loaded || (dots == Dots::painted && !isPainted)) {
        return;
    }
    const RecordGeometry& geometry = m_records.loaded->geometry;
    if (dots == Dots::drawn) {
        picture.routes = routeStrip(geometry, geometry.runs(), m_routeColors, camera);
    }
    const MarkerLayout& marks = dots == Dots::drawn ? *layout(camera.scale()) : ink->layout();
    m_frame =
        markerFrame(marks, {markerOf(m_hoveredAsset), markerOf(m_selectedAsset)}, dots, camera);

    for (const PlacedMarker& dot : m_frame.dots) {
        picture.dots.push_back(
            {static_cast<float>(dot.point.x), static_cast<float>(dot.point.y), m_tints[dot.asset]});
    }
    if (!m_balloons) {
        m_balloons = std::make_shared<const PinAtlas>(
            m_records.loaded->index.kinds(), m_look, static_cast<double>(picture.devicePixels));
    }
    picture.pins.image = m_balloons->image();
    const auto add = [&](const PlacedMarker& pin, PinState state) {
        const ScreenPoint tip = PinAtlas::tip(state);
        picture.pins.sprites.push_back({{pin.point.x - tip.x, pin.point.y - tip.y},
                                        m_balloons->cut(asset(pin.asset).kind, state)});
    };
    for (const PlacedMarker& pin : m_frame.pins) {
        add(pin, PinState::plain);
    }
    if (m_frame.hovered) {
        add(*m_frame.hovered, PinState::hovered);
    }
    if (m_frame.selected) {
        add(*m_frame.selected, PinState::selected);
    }
}

std::vector<LabelledPin> MapRecords::labelledPins(std::optional<AssetIndex> untitled) const {
    std::vector<LabelledPin> pins;
    const auto add = [&](const PlacedMarker& placed, double scale, bool isRequired) {
        LabelledPin pin{placed.point, scale, {}, placed.asset, isRequired};
        if ((isRequired || placed.isAlone) && placed.asset != untitled) {
            pin.title = QString::fromStdString(asset(placed.asset).name);
        }
        pins.push_back(std::move(pin));
    };
    if (m_frame.selected) {
        add(*m_frame.selected, selectedPinScale, true);
    }
    if (m_frame.hovered) {
        add(*m_frame.hovered, hoveredPinScale, true);
    }
    for (const PlacedMarker& pin : m_frame.pins) {
        add(pin, 1, false);
    }
    return pins;
}

std::optional<ScreenPoint> MapRecords::placeOf(AssetIndex record, const Camera& camera) const {
    const MarkerFrame frame =
        markerFrame({}, {std::nullopt, markerOf(record)}, Dots::painted, camera);
    return frame.selected ? std::optional(frame.selected->point) : std::nullopt;
}

std::optional<AssetIndex>
MapRecords::hit(ScreenPoint point, double reach, const Camera& camera) const {
    if (!m_records.loaded) {
        return std::nullopt;
    }
    return hitTest(point,
                   reach,
                   {.camera = camera,
                    .frame = m_frame,
                    .markers = m_markers,
                    .geometry = m_records.loaded->geometry,
                    .colors = m_routeColors,
                    .selected = m_selectedAsset});
}

std::vector<AssetIndex> MapRecords::sharingPlaceWith(AssetIndex asset) const {
    return sharingPlace(asset, m_markers);
}

} // namespace vasker
