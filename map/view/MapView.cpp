#include "map/view/MapView.h"

#include "map/scene/MapNode.h"
#include "map/scene/Renderer.h"
#include "platform/Locale.h"

#include <QLocale>
#include <QQuickWindow>

#include <chrono>
#include <utility>

namespace vasker {

namespace {

/// A camera that has not moved for so long is at rest.
constexpr std::chrono::milliseconds restTime{90};

MapLanguage mapLanguage() {
    static const bool isFrench = QLocale(messagesLocale()).language() == QLocale::French;
    return isFrench ? MapLanguage::french : MapLanguage::english;
}

} // namespace

MapView::MapView(QQuickItem* parent)
    : InputItem(parent), m_composer(mapLanguage()),
      m_navigator([this] { return resolvedCamera(); }), m_hover(m_composer.records()) {
    setFlag(ItemHasContents);
    setClip(true);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restTime);
    m_clock.start();
    connect(&m_rest, &QTimer::timeout, this, &MapView::redraw);
    connect(&m_composer, &MapComposer::changed, this, &MapView::redraw);
    connect(&m_hover, &MapHover::changed, this, &MapView::redraw);
    connect(this, &MapView::selectionChanged, this, [this] {
        m_composer.records().setSelection(m_selection);
        redraw();
    });
    connect(this, &MapView::hoveredChanged, this, [this] {
        m_composer.records().setHovered(m_hovered);
        redraw();
    });
    connect(this, &MapView::themeChanged, this, &MapView::refreshTheme);
    connect(this, &MapView::textScaleChanged, this, &MapView::redraw);
    connect(this, &MapView::coverChanged, this, &MapView::changeView);
    connect(this, &MapView::motionChanged, this, [this] {
        m_navigator.setReducedMotion(m_reducedMotion);
    });
    m_navigator.pick = [this](const Pick& request) { return pick(request); };
    connect(&m_navigator, &MapNavigator::moved, this, &MapView::moveCamera);
    connect(&m_navigator, &MapNavigator::menuRequested, this, &MapView::openMenu);
    connect(&m_navigator, &MapNavigator::overviewRequested, this, &MapView::overviewRequested);
    connect(&m_navigator, &MapNavigator::focusRequested, this, [this] {
        forceActiveFocus(Qt::MouseFocusReason);
    });
}

void MapView::setRecords(const RecordSet& records) {
    if (records != this->records()) {
        m_composer.records().setRecords(records);
        redraw();
        Q_EMIT recordsChanged();
    }
}

void MapView::setCamera(const CameraPosition& camera) {
    if (camera == m_camera) {
        return;
    }
    m_camera = camera;
    if (m_movedTo && camera == CameraPosition(*m_movedTo)) {
        m_rest.start();
        redraw();
        Q_EMIT viewChanged();
    } else { // somebody else has moved it
        m_rest.stop();
        changeView();
    }
    Q_EMIT cameraChanged();
}

void MapView::setTiles(QObject* tiles) {
    auto* const library = qobject_cast<TileLibrary*>(tiles);
    if (library != m_composer.tiles()) {
        m_composer.setTiles(library);
        redraw();
        Q_EMIT tilesChanged();
    }
}

void MapView::setDrawing(RecordDrawing drawing) {
    m_choosesDrawing = false;
    m_state.drawing = drawing;
    redraw();
}

void MapView::refreshTheme() {
    const BasemapTheme theme = basemapTheme(m_basemap, m_dark);
    if (theme != m_state.theme) {
        m_state.theme = theme;
        m_status.setTheme(theme);
        m_composer.records().setTheme(theme);
        redraw();
    }
}

void MapView::changeView() {
    m_navigator.stop();
    redraw();
    Q_EMIT viewChanged();
}

void MapView::moveCamera(const Camera& camera) {
    m_movedTo = camera.pose();
    Q_EMIT moved(camera.pose());
}

void MapView::redraw() {
    polish();
    update();
}

Camera MapView::resolvedCamera() const {
    return {m_camera, {width(), height(), m_coveredBelow, m_coveredRight, m_coveredLeft}};
}

void MapView::componentComplete() {
    InputItem::componentComplete();
    m_controls.watch(this, [this] { redraw(); }); // labels keep clear of them
}

void MapView::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        changeView();
    }
}

void MapView::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged) {
        m_composer.records().setTheme(m_state.theme); // images are of the old density
        redraw();
    }
    QQuickItem::itemChange(change, data);
}

void MapView::updatePolish() {
    if (window() == nullptr) {
        return;
    }
    m_state.devicePixels = window()->effectiveDevicePixelRatio();
    m_state.isResting = !m_rest.isActive();
    m_state.fades = !m_reducedMotion;
    m_state.obstacles = m_controls.rects(*this);
    m_state.unlabelled = m_hover.record();
    MapFrame before = std::exchange(
        m_frame,
        m_composer.compose(
            m_state, resolvedCamera(), std::chrono::nanoseconds(m_clock.nsecsElapsed())));
    m_frame.takeImages(before);
    if (m_frame.isUnfinished) {
        QMetaObject::invokeMethod(this, &MapView::redraw, Qt::QueuedConnection);
    }
    m_status.setFrame(m_frame);
}

QSGNode* MapView::updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* /*data*/) {
    auto* node = dynamic_cast<MapNode*>(oldNode);
    if (node == nullptr) {
        node = new MapNode;
        // The textures of an earlier node are gone.
        m_composer.handOverAgain();
        if (std::exchange(m_choosesDrawing, false) && !rendersInSoftware()) {
            m_state.drawing = RecordDrawing::live;
        }
        QMetaObject::invokeMethod(this, &MapView::redraw, Qt::QueuedConnection);
    }
    node->update(m_frame, *window());
    return node;
}

bool MapView::pick(const Pick& request) {
    const MapRecords& records = m_composer.records();
    const auto record = records.hit(request.point, request.reach, resolvedCamera());
    auto sharing = record ? records.sharingPlaceWith(*record) : std::vector<AssetIndex>();
    if (sharing.size() > 1 && records.idOf(record) != m_selection) {
        Q_EMIT choiceOffered({this->records().loaded,
                              std::make_shared<const std::vector<AssetIndex>>(std::move(sharing))},
                             QPointF(request.point.x, request.point.y));
    } else {
        Q_EMIT picked(records.idOf(record));
    }
    return record.has_value();
}

void MapView::openMenu(ScreenPoint point, double reach) {
    if (const auto record = m_composer.records().hit(point, reach, resolvedCamera())) {
        Q_EMIT menuRequested(m_composer.records().idOf(record), QPointF(point.x, point.y));
    }
}

void MapView::refreshCursor() {
    const bool isDragging = m_navigator.input().drag() != MapInput::Drag::none;
    setKeepMouseGrab(isDragging);
    setCursor(isDragging         ? m_navigator.dragCursor()
              : m_hover.record() ? Qt::PointingHandCursor
                                 : Qt::ArrowCursor);
}

bool MapView::handle(const MapEvent& event) {
    const bool isHandled = m_navigator.handle(event);
    refreshCursor();
    return isHandled;
}

void MapView::hoverAt(std::optional<QPointF> place) {
    const Camera camera = resolvedCamera();
    if (!place || m_navigator.input().isPressed() ||
        !camera.viewport().isFree({place->x(), place->y()}) || m_controls.cover(*place, *this)) {
        m_hover.clear();
    } else {
        const ScreenPoint point{place->x(), place->y()};
        m_hover.setRecord(m_composer.records().hit(point, pointerReach, camera), point, camera);
    }
    refreshCursor();
}

} // namespace vasker
