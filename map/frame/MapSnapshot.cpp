#include "map/frame/MapSnapshot.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace vasker {

namespace {

constexpr std::chrono::seconds tilePatience{8};

} // namespace

void MapSnapshot::take(const MapScene& scene, QObject* owner, Use use) {
    // It goes with its last frame, or with its owner.
    auto* const snapshot = new MapSnapshot(scene, owner, std::move(use));
    snapshot->m_next.start();
    snapshot->m_patience.start();
}

MapSnapshot::MapSnapshot(const MapScene& scene, QObject* owner, Use use)
    : QObject(owner), m_scene(scene), m_composer(scene.language), m_use(std::move(use)) {
    m_scene.state.drawing = RecordDrawing::live;
    m_scene.state.isResting = true;
    m_scene.state.fades = false;
    m_composer.setTiles(scene.tiles);
    m_composer.records().setTheme(scene.state.theme);
    m_composer.records().setRecords(scene.records);
    m_composer.records().setSelection(scene.selection);
    m_next.setSingleShot(true);
    m_patience.setSingleShot(true);
    m_patience.setInterval(tilePatience);
    connect(&m_next, &QTimer::timeout, this, &MapSnapshot::compose);
    connect(&m_patience, &QTimer::timeout, this, &MapSnapshot::compose);
    connect(&m_composer, &MapComposer::changed, &m_next, qOverload<>(&QTimer::start));
}

void MapSnapshot::compose() {
    if (m_use == nullptr) {
        return;
    }
    MapFrame frame = m_composer.compose(m_scene.state, m_scene.camera, {});
    takeImages(frame.tiles, m_drawing.tiles);
    const bool isComplete = frame.isComplete || m_scene.tiles == nullptr || !m_patience.isActive();
    if (isComplete && !frame.isUnfinished) {
        finish(std::move(frame));
    } else if (frame.isUnfinished) {
        m_next.start();
    }
}

void MapSnapshot::finish(MapFrame frame) {
    std::erase_if(m_drawing.tiles, [&quads = frame.tiles.quads](const auto& image) {
        return std::ranges::find(quads, image.first, &TileQuad::tile) == quads.end();
    });
    m_drawing.shapes = m_composer.shapes();
    m_drawing.frame = std::move(frame);
    deleteLater();
    std::exchange(m_use, nullptr)(std::make_shared<const MapDrawing>(std::move(m_drawing)));
}

} // namespace vasker
