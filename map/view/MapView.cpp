#include "map/view/MapView.h"

#include "map/scene/MapNode.h"
#include "map/scene/Renderer.h"
#include "platform/Locale.h"

#include <QQuickWindow>

#include <chrono>
#include <utility>

namespace vasker {

MapView::MapView(QQuickItem* parent)
    : InputItem(parent), m_composer(mapLanguage(messagesLocale())),
      m_interaction(*this, m_composer.records(), [this] { return resolvedCamera(); }) {
    setFlag(ItemHasContents);
    setClip(true);
    m_clock.start();
    connect(&m_composer, &MapComposer::changed, this, &MapView::redraw);
    connect(this, &MapView::appearanceChanged, this, &MapView::refreshAppearance);
    connect(this, &MapView::coverChanged, this, &MapView::changeView);
    connect(&m_interaction.hover(), &MapHover::changed, this, &MapView::redraw);
    connect(&m_interaction, &MapInteraction::picked, this, &MapView::picked);
    connect(&m_interaction, &MapInteraction::choiceOffered, this, &MapView::choiceOffered);
    connect(&m_interaction, &MapInteraction::menuRequested, this, &MapView::menuRequested);
    MapNavigator& navigator = m_interaction.navigator();
    connect(this, &MapView::motionChanged, &navigator, [this, &navigator] {
        navigator.setReducedMotion(m_reducedMotion);
    });
    connect(&navigator, &MapNavigator::rested, this, &MapView::redraw);
    connect(&navigator, &MapNavigator::moved, this, &MapView::moved);
    connect(&navigator, &MapNavigator::overviewRequested, this, &MapView::overviewRequested);
}

void MapView::setRecords(const RecordSet& records) {
    if (records != this->records()) {
        m_composer.setRecords(records, m_state, resolvedCamera());
        redraw();
        Q_EMIT recordsChanged();
    }
}

void MapView::setSelection(const QString& id) {
    if (id != selection()) {
        m_composer.records().setSelection(id);
        redraw();
        Q_EMIT selectionChanged();
    }
}

void MapView::setHovered(const QString& id) {
    if (id != hovered()) {
        m_composer.records().setHovered(id);
        redraw();
        Q_EMIT hoveredChanged();
    }
}

void MapView::setCamera(const CameraPosition& camera) {
    if (camera != m_camera) {
        m_camera = camera;
        m_interaction.navigator().follow(camera);
        redraw();
        Q_EMIT viewChanged();
        Q_EMIT cameraChanged();
    }
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

void MapView::refreshAppearance() {
    const BasemapTheme theme = basemapTheme(m_basemap, m_dark, m_highContrast);
    if (theme != m_state.theme) {
        m_state.theme = theme;
        m_status.setTheme(theme);
        m_composer.records().setTheme(theme);
    }
    redraw();
}

void MapView::changeView() {
    m_interaction.navigator().stop();
    redraw();
    Q_EMIT viewChanged();
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
    m_interaction.controls().watch(this, [this] { redraw(); }); // labels keep clear of them
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
    m_state.textScale = m_textScale;
    m_state.isResting = m_interaction.navigator().isResting();
    m_state.fades = !m_reducedMotion;
    m_state.obstacles = m_interaction.controls().rects(*this);
    m_state.unlabelled = m_interaction.hover().record();
    const std::chrono::nanoseconds now(m_clock.nsecsElapsed());
    MapFrame before = std::exchange(m_frame, m_composer.compose(m_state, resolvedCamera(), now));
    m_frame.takeImages(before);
    if (m_frame.isUnfinished) {
        QMetaObject::invokeMethod(this, &MapView::redraw, Qt::QueuedConnection);
    }
    m_status.setFrame(m_frame);
}

QSGNode* MapView::updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* /*data*/) {
    auto* node = dynamic_cast<MapNode*>(oldNode);
    if (node == nullptr) {
        node = MapNode::make(*window()).release();
        m_composer.handOverAgain();
        if (std::exchange(m_choosesDrawing, false) && !rendersInSoftware(*window())) {
            m_state.drawing = RecordDrawing::live;
        }
        QMetaObject::invokeMethod(this, &MapView::redraw, Qt::QueuedConnection);
    }
    node->update(m_frame, *window());
    return node;
}

} // namespace vasker
