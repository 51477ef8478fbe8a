#include "map/frame/MapComposer.h"

#include "map/style/MapTheme.h"

#include <utility>

namespace vasker {

MapComposer::MapComposer(MapLanguage language) : m_language(language) {}

void MapComposer::setTiles(TileLibrary* library) {
    m_pyramid.reset();
    m_tiles = library;
    if (library != nullptr) {
        m_pyramid = std::make_unique<TilePyramid>(*library);
        connect(m_pyramid.get(), &TilePyramid::changed, this, &MapComposer::changed);
    }
}

void MapComposer::handOverAgain() {
    if (m_pyramid) {
        m_pyramid->handOverAgain();
    }
}

BasemapView MapComposer::basemapView(const MapState& state, const Camera& camera) {
    BasemapView view{.camera = camera,
                     .devicePixelsPerPixel = state.devicePixels,
                     .theme = state.theme,
                     .language = m_language,
                     .isResting = state.isResting,
                     .fades = state.fades,
                     .uploads = state.drawing == RecordDrawing::live,
                     .overlayRevision = 0,
                     .overlay = {}};
    if (state.drawing == RecordDrawing::painted) {
        view.overlayRevision = m_records.revision();
        view.overlay = [this, devicePixels = state.devicePixels](double scale) {
            return m_records.overlay(scale, devicePixels);
        };
    }
    return view;
}

void MapComposer::setRecords(const RecordSet& records,
                             const MapState& state,
                             const Camera& camera) {
    m_records.setRecords(records);
    if (m_pyramid && m_hasComposed) {
        m_pyramid->prepare(basemapView(state, camera));
    }
}

std::vector<RecordLabel> MapComposer::recordLabels(const RecordFrame& records,
                                                   const MapState& state) const {
    std::vector<RecordLabel> labels;
    for (const ShownPin& pin : records.shownPins) {
        RecordLabel label{pin.asset, pin.box, {}, pin.isHighlighted, pin.rank};
        if (pin.asset != state.unlabelled) {
            label.text = QString::fromStdString(m_records.records().asset(pin.asset).name);
        }
        labels.push_back(std::move(label));
    }
    return labels;
}

std::vector<Shape> MapComposer::shapes() {
    std::vector<Shape> shapes = m_records.pinShapes();
    for (Shape& label : m_labels.shapes()) {
        shapes.push_back(std::move(label));
    }
    return shapes;
}

MapFrame
MapComposer::compose(const MapState& state, const Camera& camera, std::chrono::nanoseconds now) {
    BasemapFrame basemap =
        m_pyramid ? m_pyramid->compose(basemapView(state, camera), now) : BasemapFrame{};
    m_hasComposed = true;
    LabelInput input{.camera = camera,
                     .theme = state.theme,
                     .devicePixels = state.devicePixels,
                     .textScale = state.textScale,
                     .places = std::move(basemap.labels),
                     .records = {},
                     .dots = {},
                     .obstacles = state.obstacles,
                     .isMoving = !state.isResting};
    // Without tiles there is nothing to paint records on.
    RecordFrame records = m_records.compose(camera,
                                            m_pyramid ? state.drawing : RecordDrawing::live,
                                            basemap.overlay.get(),
                                            state.devicePixels,
                                            m_labels.begin(input));
    input.records = recordLabels(records, state);
    input.dots = std::move(records.dots);
    SpriteLayer labels = m_labels.compose(input);
    MapFrame frame;
    frame.places = std::move(input.places);
    frame.size = {camera.viewport().width, camera.viewport().height};
    frame.devicePixels = state.devicePixels;
    frame.attributions = std::move(basemap.attributions);
    frame.lacksImagery = basemap.lacksImagery;
    frame.lacksSharperImagery = basemap.lacksSharperImagery;
    frame.isComplete = basemap.isComplete;
    frame.isUnfinished = basemap.isChanging || m_labels.isUnfinished();

    frame.background = mapTheme(state.theme).background;
    frame.tiles = std::move(basemap.tiles);
    // In drawing order. A new layer of records is composed in map/records and gets a line here.
    frame.layers = std::move(records.linesAndDots);
    frame.layers.emplace_back(std::move(records.pins));
    frame.layers.emplace_back(std::move(labels)); // that of the selected record may cover pins
    return frame;
}

} // namespace vasker
