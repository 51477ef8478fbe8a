#include "map/view/MapView.h"

#include "map/scene/Renderer.h"
#include "map/style/MapColors.h"
#include "map/view/BasemapChoice.h"
#include "platform/Locale.h"

#include <QLocale>
#include <QQuickWindow>

#include <chrono>
#include <utility>

namespace vasker {

namespace {

/// After a camera that moves has stood still for so long, it rests.
constexpr std::chrono::milliseconds restTime{90};

MapLanguage mapLanguage() {
    static const bool isFrench = QLocale(messagesLocale()).language() == QLocale::French;
    return isFrench ? MapLanguage::french : MapLanguage::english;
}

/// Where a picture is seen. At rest and upright it stands on whole device pixels.
TileQuad quadOf(const ShownTile& shown, const Camera& camera, double devicePixels) {
    const PaintedTile& tile = *shown.tile;
    const double scale = tile.devicePixelsPerMapPoint;
    TileQuad quad{shown.tile, {}, static_cast<float>(shown.opacity)};
    if (shown.opacity == 0) {
        return quad; // no area
    }
    const double west = static_cast<double>(tile.pixels.x);
    const double north = static_cast<double>(tile.pixels.y);
    const double ratio = camera.scale() * devicePixels / scale;
    if (camera.isUpright() && std::abs(ratio - 1) < 1e-4) {
        const ScreenPoint focus = camera.focus();
        const auto snapped = [devicePixels](double focusPixels, double centerPixels) {
            return std::round(focusPixels * devicePixels - centerPixels);
        };
        const double x = west + snapped(focus.x, (camera.center().x - shown.shift) * scale);
        const double y = north + snapped(focus.y, camera.center().y * scale);
        const auto corner = [devicePixels](double right, double down) -> PerspectivePoint {
            return {right / devicePixels, down / devicePixels, 1};
        };
        quad.corners = {corner(x, y),
                        corner(x + tile.pixels.width, y),
                        corner(x + tile.pixels.width, y + tile.pixels.height),
                        corner(x, y + tile.pixels.height)};
        return quad;
    }
    const auto corner = [&](double right, double down) {
        return camera.worldToPerspective({right / scale + shown.shift, down / scale});
    };
    quad.corners = {corner(west, north),
                    corner(west + tile.pixels.width, north),
                    corner(west + tile.pixels.width, north + tile.pixels.height),
                    corner(west, north + tile.pixels.height)};
    return quad;
}

} // namespace

MapView::MapView(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    setClip(true);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
    connect(&m_motion, &MapMotion::advanced, this, &MapView::move);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restTime);
    connect(&m_rest, &QTimer::timeout, this, &MapView::redraw);
    m_clock.start();
}

MapView::~MapView() = default;

void MapView::setRecords(const RecordSet& records) {
    if (records == m_mapRecords.records()) {
        return;
    }
    m_mapRecords.setRecords(records);
    redraw();
    Q_EMIT recordsChanged();
}

void MapView::setSelection(const QString& id) {
    if (id == m_selection) {
        return;
    }
    m_selection = id;
    m_mapRecords.setSelection(id);
    redraw();
    Q_EMIT selectionChanged();
}

void MapView::setHovered(const QString& id) {
    if (id == m_hovered) {
        return;
    }
    m_hovered = id;
    m_mapRecords.setHovered(id);
    redraw();
    Q_EMIT hoveredChanged();
}

void MapView::setCamera(const CameraPosition& camera) {
    if (camera == m_camera) {
        return;
    }
    m_camera = camera;
    if (m_movedTo && camera == CameraPosition(*m_movedTo)) {
        m_rest.start();
    } else { // somebody else has moved it
        m_motion.cancel();
        m_rest.stop();
    }
    redraw();
    Q_EMIT cameraChanged();
    Q_EMIT viewChanged();
}

void MapView::setBasemap(const QString& basemap) {
    if (basemap != m_basemap) {
        m_basemap = basemap;
        refreshLook();
    }
}

void MapView::setDark(bool dark) {
    if (dark != m_dark) {
        m_dark = dark;
        refreshLook();
    }
}

void MapView::refreshLook() {
    const BasemapTheme look = basemapTheme(m_basemap, m_dark);
    if (look != m_picture.look) {
        m_picture.look = look;
        m_mapRecords.setLook(look);
        redraw();
    }
    Q_EMIT lookChanged();
}

bool MapView::showsImagery() const noexcept {
    return m_picture.look == BasemapTheme::satellite || m_picture.look == BasemapTheme::hybrid;
}

QObject* MapView::tiles() const noexcept {
    return m_tiles;
}

void MapView::setTiles(QObject* tiles) {
    auto* library = qobject_cast<TileLibrary*>(tiles);
    if (library == m_tiles) {
        return;
    }
    m_store.reset();
    m_tiles = library;
    if (library != nullptr) {
        m_store = std::make_unique<TilePyramid>(*library);
        connect(m_store.get(), &TilePyramid::changed, this, &MapView::redraw);
    }
    redraw();
    Q_EMIT tilesChanged();
}

void MapView::setTextScale(double scale) {
    if (scale != m_textScale) {
        m_textScale = scale;
        redraw();
        Q_EMIT textScaleChanged();
    }
}

void MapView::setDots(Dots dots) {
    m_choosesDots = false;
    m_dots = dots;
    redraw();
}

void MapView::redraw() {
    polish();
    update();
}

/// For the next frame, from within one.
void MapView::redrawSoon() {
    QMetaObject::invokeMethod(this, &MapView::redraw, Qt::QueuedConnection);
}

Camera MapView::resolvedCamera() const {
    return {m_camera, {width(), height(), m_coveredBelow, m_coveredRight}};
}

void MapView::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        m_motion.cancel();
        redraw();
        Q_EMIT viewChanged();
    }
}

void MapView::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged) {
        m_mapRecords.setLook(m_picture.look);
        redraw();
    }
    QQuickItem::itemChange(change, data);
}

void MapView::updatePolish() {
    if (window() == nullptr) {
        return;
    }
    const Camera camera = resolvedCamera();
    m_picture.size = size();
    m_picture.devicePixels = static_cast<float>(window()->effectiveDevicePixelRatio());
    m_picture.tiles.clear();
    std::shared_ptr<const RecordOverlay> shownInk;
    if (m_store) {
        lookAtGround(camera);
        shownInk = m_store->shownInk();
    }
    // Without pictures of the ground nothing can be painted into them.
    m_mapRecords.place(camera, m_store ? m_dots : Dots::drawn, shownInk.get(), m_picture);
    m_names.place(m_store ? m_store->names() : std::vector<PlaceLabel>(),
                  m_mapRecords.labelledPins(m_pointed),
                  camera,
                  m_textScale,
                  m_picture,
                  m_rest.isActive() ? MapLabels::Pace::moving : MapLabels::Pace::resting);
    if (m_names.isUnfinished()) {
        redrawSoon();
    }
    publishAttribution();
}

void MapView::lookAtGround(const Camera& camera) {
    const auto density = static_cast<double>(m_picture.devicePixels);
    BasemapView view{.camera = camera,
                     .devicePixelsPerPixel = density,
                     .look = m_picture.look,
                     .language = mapLanguage(),
                     .isResting = !m_rest.isActive(),
                     .fades = !reducedMotion(),
                     .inkRevision = 0,
                     .ink = {}};
    if (m_dots == Dots::painted) {
        view.inkRevision = m_mapRecords.revision();
        view.ink = [this, density](double scale) { return m_mapRecords.ink(scale, density); };
    }
    m_store->look(view, std::chrono::nanoseconds(m_clock.nsecsElapsed()));
    for (const ShownTile& shown : m_store->shown()) {
        m_picture.tiles.push_back(quadOf(shown, camera, density));
    }
    if (m_store->isChanging()) {
        redrawSoon();
    }
}

bool MapView::isComplete() const {
    return m_store && m_store->isComplete();
}

void MapView::publishAttribution() {
    QVariantList attribution;
    bool lacksImagery = false;
    if (m_store) {
        for (const TileAttribution& credit : m_store->credits()) {
            attribution.append(QVariantMap{{QStringLiteral("text"), credit.text},
                                           {QStringLiteral("address"), credit.address}});
        }
        lacksImagery = m_store->lacksImagery();
    }
    if (attribution != m_attribution || lacksImagery != m_lacksImagery) {
        m_attribution = std::move(attribution);
        m_lacksImagery = lacksImagery;
        Q_EMIT attributionChanged();
    }
}

QSGNode* MapView::updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* /*data*/) {
    auto* node = static_cast<MapNode*>(oldNode);
    if (node == nullptr) {
        node = new MapNode;
        // The textures of an earlier node are gone, and with them the pictures they were made of.
        if (m_store) {
            m_store->forgetTextures();
            redrawSoon();
        }
        if (std::exchange(m_choosesDots, false) && !rendersInSoftware()) {
            m_dots = Dots::drawn;
            redrawSoon();
        }
    }
    node->update(m_picture, *window());
    return node;
}

} // namespace vasker
