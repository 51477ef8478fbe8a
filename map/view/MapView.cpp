#include "map/view/MapView.h"

#include "map/Symbols.h"
#include "map/records/HitTest.h"

#include <QQuickWindow>

#include <algorithm>

namespace vasker {

namespace {

Rgb rgbOf(const QColor& color) {
    return {static_cast<std::uint8_t>(color.red()),
            static_cast<std::uint8_t>(color.green()),
            static_cast<std::uint8_t>(color.blue())};
}

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

MapView::MapView(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    setClip(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
}

void MapView::setRecords(const RecordSet& records) {
    if (records == m_records) {
        return;
    }
    const bool sameRelease = records.loaded == m_records.loaded;
    m_records = records;
    if (!sameRelease) {
        refreshTints();
        m_selected = m_records.loaded ? m_records.loaded->index.find(viewOf(m_selection.toUtf8()))
                                      : std::nullopt;
    }
    m_markers = m_records.loaded ? markersByPrecedence(m_records) : std::vector<Marker>();
    m_layoutLevel.reset();
    m_picture.routes.reset();
    refreshSelectedRoute();
    redraw();
    Q_EMIT recordsChanged();
}

void MapView::setSelection(const QString& id) {
    if (id == m_selection) {
        return;
    }
    m_selection = id;
    m_selected =
        m_records.loaded ? m_records.loaded->index.find(viewOf(id.toUtf8())) : std::nullopt;
    m_layoutLevel.reset();
    refreshSelectedRoute();
    redraw();
    Q_EMIT selectionChanged();
}

void MapView::setCamera(const CameraPosition& camera) {
    if (camera == m_camera) {
        return;
    }
    m_camera = camera;
    redraw();
    Q_EMIT cameraChanged();
}

void MapView::setDark(bool dark) {
    if (dark == m_dark) {
        return;
    }
    m_dark = dark;
    refreshTints();
    refreshSelectedRoute();
    redraw();
    Q_EMIT darkChanged();
}

void MapView::redraw() {
    polish();
    update();
}

Camera MapView::resolvedCamera() const {
    return {m_camera, {width(), height()}};
}

/// Colours follow the release and the appearance.
void MapView::refreshTints() {
    m_tints.clear();
    m_picture.routes.reset();
    m_picture.balloonPicture.reset();
    m_picture.scheme = m_dark ? ColorScheme::dark : ColorScheme::light;
    if (m_records.loaded) {
        for (const auto& asset : m_records.loaded->index.release().assets) {
            m_tints.push_back(rgbOf(colorValue(color(asset.kind), m_picture.scheme)));
        }
    }
}

void MapView::refreshSelectedRoute() {
    m_picture.selectedRoute.reset();
    const bool isShown = m_selected && std::find(m_records.filtered->begin(),
                                                 m_records.filtered->end(),
                                                 *m_selected) != m_records.filtered->end();
    if (isShown) {
        RouteColors colors(m_tints.size());
        colors[*m_selected] = m_tints[*m_selected];
        m_picture.selectedRoute = std::make_shared<RouteContent>(RouteContent{
            m_records.loaded, m_records.loaded->geometry.runsOf(*m_selected), std::move(colors)});
    }
}

void MapView::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    redraw();
}

void MapView::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged) {
        m_picture.balloonPicture.reset();
        redraw();
    }
    QQuickItem::itemChange(change, data);
}

void MapView::updatePolish() {
    if (!m_records.loaded || window() == nullptr) {
        return;
    }
    const ReleaseIndex& index = m_records.loaded->index;
    m_picture.camera = resolvedCamera();
    m_picture.devicePixels = static_cast<float>(window()->effectiveDevicePixelRatio());
    if (!m_picture.routes) {
        RouteColors colors(m_tints.size());
        for (const AssetIndex asset : *m_records.filtered) {
            colors[asset] = m_tints[asset];
        }
        m_picture.routes = std::make_shared<RouteContent>(
            RouteContent{m_records.loaded, m_records.loaded->geometry.runs(), std::move(colors)});
    }
    if (!m_picture.balloonPicture) {
        m_picture.balloonPicture = std::make_shared<BalloonPicture>(
            index.kinds(), m_picture.scheme, window()->effectiveDevicePixelRatio());
    }
    const DetailLevel level = DetailLevel::forScale(m_picture.camera.scale());
    if (m_layoutLevel != level) {
        m_layout = markerLayout(m_markers, m_selected, level);
        m_layoutLevel = level;
    }
    refreshMarks();
}

void MapView::refreshMarks() {
    m_frame = markerFrame(m_layout, m_selected, m_picture.camera);
    const auto& assets = m_records.loaded->index.release().assets;
    m_picture.dots.clear();
    for (const PlacedMarker& dot : m_frame.dots) {
        m_picture.dots.push_back(
            {static_cast<float>(dot.point.x), static_cast<float>(dot.point.y), m_tints[dot.asset]});
    }
    m_picture.balloons.clear();
    const auto addBalloon = [&](const PlacedMarker& balloon, BalloonState state) {
        const ScreenPoint tip = BalloonPicture::tip(state);
        m_picture.balloons.push_back(
            {{balloon.point.x - tip.x, balloon.point.y - tip.y},
             m_picture.balloonPicture->cut(assets[balloon.asset].kind, state)});
    };
    for (const PlacedMarker& balloon : m_frame.balloons) {
        addBalloon(balloon, BalloonState::plain);
    }
    if (m_frame.selected) {
        addBalloon(*m_frame.selected, BalloonState::selected);
    }
}

QSGNode* MapView::updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* /*data*/) {
    auto* node = static_cast<MapNode*>(oldNode);
    if (node == nullptr) {
        node = new MapNode;
    }
    node->update(m_picture, *window());
    return node;
}

std::optional<AssetIndex> MapView::hit(ScreenPoint point) const {
    if (!m_picture.routes) {
        return std::nullopt;
    }
    return hitTest(point,
                   m_picture.camera,
                   m_frame,
                   m_records.loaded->geometry,
                   m_picture.routes->colors,
                   m_selected);
}

QString MapView::idOf(std::optional<AssetIndex> asset) const {
    return asset ? QString::fromStdString(m_records.loaded->index.release().assets[*asset].id)
                 : QString();
}

} // namespace vasker
