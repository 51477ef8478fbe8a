#include "map/records/MapRecords.h"

#include "map/records/RouteStrip.h"
#include "map/records/RouteStyle.h"
#include "map/style/MapTheme.h"
#include "presentation/Symbols.h"

#include <algorithm>
#include <utility>

namespace vasker {

void MapRecords::setRecords(const RecordSet& records) {
    const bool isOtherRelease = records.loaded != m_records.loaded;
    m_records = records;
    m_markers = m_records.loaded ? markersByPriority(m_records) : std::vector<Marker>();
    m_layouts.clear();
    if (isOtherRelease) {
        refreshColors();
    }
    refreshShown();
    findHighlighted();
}

void MapRecords::setTheme(BasemapTheme theme) {
    m_theme = theme;
    refreshColors();
    refreshShown();
}

void MapRecords::setSelection(const QString& id) {
    m_selection = id;
    findHighlighted();
}

void MapRecords::setHovered(const QString& id) {
    m_hovered = id;
    findHighlighted();
}

void MapRecords::refreshColors() {
    m_pins.reset();
    m_colors.clear();
    if (m_records.loaded) {
        const MapTheme& theme = mapTheme(m_theme);
        for (const auto& asset : m_records.loaded->index.release().assets) {
            m_colors.push_back(rgbOf(theme.record(color(asset.kind))));
        }
    }
}

void MapRecords::refreshShown() {
    m_selectedStrip.drop();
    m_hoveredStrip.drop();
    ++m_revision;
    m_routeColors.assign(m_colors.size(), std::nullopt);
    if (m_records.loaded) {
        for (const AssetIndex asset : *m_records.filtered) {
            m_routeColors[asset] = m_colors[asset];
        }
    }
}

std::optional<AssetIndex> MapRecords::shownRecord(const QString& id) const {
    if (!m_records.loaded || id.isEmpty()) {
        return std::nullopt;
    }
    const auto found = m_records.loaded->index.find(id.toStdString());
    return found && m_routeColors[*found] ? found : std::nullopt;
}

void MapRecords::findHighlighted() {
    m_selectedAsset = shownRecord(m_selection);
    m_hoveredAsset = shownRecord(m_hovered);
    m_selectedStrip.drop();
    m_hoveredStrip.drop();
}

QString MapRecords::idOf(std::optional<AssetIndex> index) const {
    return index ? QString::fromStdString(m_records.asset(*index).id) : QString();
}

std::optional<Marker> MapRecords::markerOf(std::optional<AssetIndex> index) const {
    if (!index || m_records.asset(*index).hasRoute()) {
        return std::nullopt;
    }
    return Marker{*index, m_records.loaded->geometry.points()[*index]};
}

std::shared_ptr<const MarkerLayout> MapRecords::layout(double scale) {
    const DetailLevel level = DetailLevel::forScale(scale);
    auto& known = m_layouts[level];
    if (!known) {
        known = std::make_shared<const MarkerLayout>(markerLayout(m_markers, level));
    }
    return known;
}

std::shared_ptr<const TileOverlay> MapRecords::overlay(double scale, double devicePixels) {
    if (!m_records.loaded) {
        return nullptr;
    }
    const MapTheme& theme = mapTheme(m_theme);
    auto made = std::make_shared<const RecordOverlay>(
        m_records.loaded,
        m_routeColors,
        layout(scale),
        RecordColors{m_colors, theme.markerCasing, theme.routeCasing},
        devicePixels);
    std::erase_if(m_overlays, [](const auto& overlay) { return overlay.expired(); });
    m_overlays.push_back(made);
    return made;
}

const MarkerLayout* MapRecords::layoutOf(const TileOverlay* painted) const {
    for (const auto& each : m_overlays) {
        const auto overlay = each.lock();
        if (overlay && overlay.get() == painted && overlay->loaded() == m_records.loaded) {
            return &overlay->layout(); // `painted` keeps it alive
        }
    }
    return nullptr;
}

void MapRecords::placeRoute(LineLayer& layer,
                            HeldStrip& held,
                            std::optional<AssetIndex> index,
                            const Camera& camera) const {
    if (index && m_records.asset(*index).hasRoute()) {
        const RecordGeometry& geometry = m_records.loaded->geometry;
        const HeldStrip::Placed placed =
            held.shown(geometry, geometry.runsOf(*index), m_routeColors, camera);
        layer.strip = placed.strip;
        layer.offset = placed.offset;
    }
}

std::vector<MapLayer> MapRecords::linesAndDots(const Camera& camera, RecordDrawing drawing) {
    const MapTheme& theme = mapTheme(m_theme);
    const QColor blue = theme.record(PaletteColor::blue);
    LineLayer routes{{}, {routeWidth, routeCasing, theme.routeCasing, {}}};
    LineLayer hovered{{}, {routeWidth, hoveredRouteCasing, blue, {}}};
    LineLayer selected{{}, {selectedRouteWidth, selectedRouteCasing, theme.markerCasing, blue}};
    DotLayer quietDots{{}, quietDotRadius, dotCasing, theme.markerCasing};
    DotLayer dots{{}, dotRadius, dotCasing, theme.markerCasing};
    if (m_records.loaded && drawing == RecordDrawing::live) {
        const RecordGeometry& geometry = m_records.loaded->geometry;
        routes.strip = std::make_shared<const LineStrip>(
            routeStrip(geometry, geometry.runs(), m_routeColors, camera));
    }
    if (m_hoveredAsset != m_selectedAsset) {
        placeRoute(hovered, m_hoveredStrip, m_hoveredAsset, camera);
    }
    placeRoute(selected, m_selectedStrip, m_selectedAsset, camera);
    LineLayer outline = selected;
    outline.style.casingWidth += selectedRouteOutline;
    outline.style.casing = theme.markerOutline;
    if (theme.markerOutline.alpha() == 0) {
        outline.strip.reset();
    }
    for (const PlacedMarker& dot : m_markerFrame.dots) {
        (dot.isQuiet ? quietDots : dots)
            .dots.push_back({static_cast<float>(dot.point.x),
                             static_cast<float>(dot.point.y),
                             m_colors[dot.asset]});
    }
    return {std::move(routes),
            std::move(hovered),
            std::move(outline),
            std::move(selected),
            std::move(quietDots),
            std::move(dots)};
}

std::vector<Shape> MapRecords::pinShapes() const {
    return m_records.loaded ? vasker::pinShapes(m_markerFrame, *m_records.loaded, m_theme)
                            : std::vector<Shape>();
}

RecordFrame MapRecords::compose(const Camera& camera,
                                RecordDrawing drawing,
                                const TileOverlay* painted,
                                double devicePixels,
                                std::span<const ScreenRect> names) {
    RecordFrame frame;
    m_markerFrame = {};
    std::shared_ptr<const MarkerLayout> live;
    const MarkerLayout* shown = layoutOf(painted);
    if (m_records.loaded && drawing == RecordDrawing::live) {
        live = layout(camera.scale());
        shown = live.get();
    }
    if (shown != nullptr) {
        m_markerFrame = markerFrame(
            *shown, {markerOf(m_hoveredAsset), markerOf(m_selectedAsset)}, drawing, camera);
        makeWay(m_markerFrame, names);
        if (!m_pins || m_pins->image().devicePixelRatio() != devicePixels) {
            m_pins.emplace(m_records.loaded->index.kinds(), m_theme, devicePixels);
        }
        frame.pins.sheets.push_back(pinSprites(m_markerFrame, *m_records.loaded, *m_pins));
        frame.shownPins = shownPins(m_markerFrame);
        frame.dots = dotBoxes(m_markerFrame);
    }
    frame.linesAndDots = linesAndDots(camera, drawing);
    return frame;
}

std::optional<ScreenPoint> MapRecords::placeOf(AssetIndex record, const Camera& camera) const {
    const MarkerFrame frame =
        markerFrame({}, {std::nullopt, markerOf(record)}, RecordDrawing::painted, camera);
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
                    .frame = m_markerFrame,
                    .markers = m_markers,
                    .geometry = m_records.loaded->geometry,
                    .colors = m_routeColors,
                    .selected = m_selectedAsset});
}

std::vector<AssetIndex> MapRecords::sharingPlaceWith(AssetIndex asset) const {
    return sharingPlace(asset, m_markers);
}

} // namespace vasker
