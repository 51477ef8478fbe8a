#include "map/basemap/TilePyramid.h"

#include "map/basemap/BasemapFrameBuilder.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace vasker {

namespace {

/// While the map moves, a generation is shown at these multiples of its own scale: a new one at
/// every half zoom would cost frames.
constexpr double leastStretch = 0.7;
constexpr double mostStretch = 1.9;

/// At rest, tiles are as sharp as the screen: no farther from their own scale than this.
constexpr double restingTolerance = 1e-4;

/// Pixels around the view whose tiles are painted ahead, and whose are kept.
constexpr double paintedAhead = 96;
constexpr double keptAround = 320;

/// The coarse generation: tiles of this zoom, in half of their usual size.
constexpr int worldZoom = 2;

constexpr std::chrono::milliseconds fadeTime{220};

/// How long a frame waits for another overlay of tiles whose basemap is there, so that the map
/// changes in the same frame as the list.
constexpr std::chrono::milliseconds overlayPatience{25};

/// Tiles that come one by one are shown together so often: each frame costs as much as a tile.
constexpr std::chrono::milliseconds newsInterval{40};

} // namespace

TilePyramid::TilePyramid(TileLibrary& library, QObject* parent)
    : QObject(parent), m_library(library) {
    connect(&m_library, &TileLibrary::tileArrived, this, &TilePyramid::markOutdated);
    connect(&m_library, &TileLibrary::offlineChanged, this, &TilePyramid::changed);
    m_news.setSingleShot(true);
    m_news.setInterval(newsInterval);
    connect(&m_news, &QTimer::timeout, this, &TilePyramid::changed);
}

TilePyramid::~TilePyramid() {
    m_library.workers().remove(this);
    m_library.request(this, {}, m_view.theme);
}

void TilePyramid::prepare(const BasemapView& view) {
    m_view = view;
    m_covers.clear();
    begin();
    promote();
    request();
}

BasemapFrame TilePyramid::compose(const BasemapView& view, std::chrono::nanoseconds now) {
    prepare(view);
    if (m_pending && !m_pending->wasAwaited && lacksOnlyOverlay(*m_pending)) {
        m_pending->wasAwaited = true;
        m_library.workers().wait(this, overlayPatience);
        promote();
    }
    BasemapFrame frame = show(now);
    frame.lacksSharperImagery &= m_library.isOffline();
    frame.isComplete =
        m_current && !m_pending && !m_fade && suits(*m_current) && covers(*m_current);
    frame.isChanging = m_fade || (m_pending && covers(*m_pending));
    return frame;
}

bool TilePyramid::suits(const TileGeneration& generation) const {
    if (!generation.looksLike(m_view) || generation.overlayRevision != m_view.overlayRevision) {
        return false;
    }
    const double ratio = m_view.camera.scale() / generation.scale;
    return m_view.isResting ? std::abs(ratio - 1) < restingTolerance
                            : ratio > leastStretch && ratio < mostStretch;
}

/// Begins the generations that the view asks for.
void TilePyramid::begin() {
    if (!m_world || !m_world->looksLike(m_view)) {
        const double scale = 0.5 * tilePixels / TileKey{worldZoom, 0, 0}.side();
        m_world = std::make_shared<TileGeneration>(scale, worldZoom, m_view);
    }
    if (m_current && suits(*m_current)) {
        m_pending.reset();
        return;
    }
    if (m_pending && suits(*m_pending)) {
        return;
    }
    const double scale = m_view.camera.scale();
    auto pending = std::make_shared<TileGeneration>(scale, tileZoom(scale), m_view);
    if (m_view.overlay) {
        pending->overlay = m_view.overlay(scale);
    }
    for (const TileGeneration* const known : {m_current.get(), m_pending.get()}) {
        if (known != nullptr && known->looksLike(m_view) && known->scale == scale) {
            pending->takeOver(*known);
        }
    }
    m_pending = std::move(pending);
}

const std::vector<CoverTile>& TilePyramid::cover(const TileGeneration& generation, double margin) {
    const auto [found, isNew] = m_covers.try_emplace({generation.zoom, margin});
    if (isNew) {
        found->second = tileCover(m_view.camera, generation.zoom, margin);
    }
    return found->second;
}

bool TilePyramid::covers(const TileGeneration& generation) {
    // Far out, the tiles of a near generation would be countless; they do not cover the view
    // anyway.
    return m_view.camera.scale() >= generation.scale / 4 && generation.covers(cover(generation, 0));
}

/// Whether all that is missing of the view is the overlay.
bool TilePyramid::lacksOnlyOverlay(const TileGeneration& generation) {
    return m_view.camera.scale() >= generation.scale / 4 &&
           generation.coversBare(cover(generation, 0)) && !covers(generation);
}

/// On a card the images of a generation become textures a few a frame, before it is shown; those of
/// the first one of all, and those that only have another overlay, at once.
bool TilePyramid::isReadyToShow(const TileGeneration& generation) {
    if (!m_view.uploads || !m_current ||
        (m_current->looksLike(m_view) && m_current->scale == generation.scale)) {
        return true;
    }
    return std::ranges::all_of(cover(generation, 0), [&generation](const CoverTile& tile) {
        return generation.tiles.at(tile.key).isHandedOver;
    });
}

void TilePyramid::promote() {
    if (!m_pending || !covers(*m_pending) || !isReadyToShow(*m_pending)) {
        return;
    }
    if (m_current && m_current->theme != m_pending->theme && m_view.fades) {
        m_current->requests.clear();
        m_fade = Fade{std::move(m_current), std::nullopt};
    }
    m_current = std::move(m_pending);
}

/// Tells workers and services what is needed now.
void TilePyramid::request() {
    for (TileGeneration* const each : generations()) {
        std::erase_if(each->requests,
                      [](const auto& entry) { return !entry.second.begun->load(); });
    }
    std::vector<TileWorkers::Job> jobs;
    const GenerationPointer& needed = m_pending ? m_pending : m_current;
    collect(needed, 0, jobs);
    collect(m_world, 0, jobs);
    if (!lacksOnlyOverlay(*needed)) {
        collect(needed, paintedAhead, jobs);
    }
    if (!jobs.empty() || m_hasJobs) { // else every frame would wait for the workers' lock
        m_hasJobs = !jobs.empty();
        m_library.workers().setJobs(this, std::move(jobs));
    }
    std::vector<TileKey> seen;
    std::ranges::transform(cover(*needed, 0), std::back_inserter(seen), &CoverTile::key);
    m_library.request(this, seen, needed->theme);
}

/// Adds a job for each tile that is missing or outdated and not being painted.
void TilePyramid::collect(const GenerationPointer& generation,
                          double margin,
                          std::vector<TileWorkers::Job>& jobs) {
    for (const CoverTile& tile : cover(*generation, margin)) {
        if (generation->tiles.contains(tile.key) && !generation->outdated.contains(tile.key)) {
            continue;
        }
        const auto [request, isNew] = generation->requests.try_emplace(tile.key);
        if (isNew) {
            request->second.begun = std::make_shared<std::atomic<bool>>(false);
            jobs.push_back(job(generation, tile.key, request->second.begun));
        }
    }
}

TileWorkers::Job TilePyramid::job(const GenerationPointer& generation,
                                  TileKey key,
                                  std::shared_ptr<std::atomic<bool>> begun) {
    return
        [this,
         work = generation->jobFor(key, m_library.provider()),
         owner = std::weak_ptr(generation),
         begun = std::move(begun)](const std::stop_token& stop) mutable -> TileWorkers::Completion {
            begun->store(true);
            return [this, owner, begun, result = std::move(work).run(stop)]() mutable {
                m_library.discard(result.undecodable);
                if (const GenerationPointer alive = owner.lock()) {
                    takePainted(*alive, begun, std::move(result.tile));
                }
            };
        };
}

std::vector<TileGeneration*> TilePyramid::generations() const {
    std::vector<TileGeneration*> all{m_current.get(), m_pending.get(), m_world.get()};
    std::erase(all, nullptr);
    return all;
}

void TilePyramid::takePainted(TileGeneration& generation,
                              const std::shared_ptr<std::atomic<bool>>& begun,
                              RasterTile tile) {
    const auto request = generation.requests.find(tile.key);
    if (request == generation.requests.end() || request->second.begun != begun) {
        return; // it was begun while it was being requested anew
    }
    const bool isOutdated = request->second.isOutdated;
    generation.requests.erase(request);
    const bool covered = covers(generation);
    tile.number = ++m_lastTile;
    generation.take(std::move(tile), isOutdated);
    if (!covered && covers(generation)) {
        Q_EMIT changed();
    } else if (!m_news.isActive()) {
        m_news.start();
    }
}

void TilePyramid::markOutdated(const ServiceTile& tile) {
    bool isConcerned = false;
    for (TileGeneration* const each : generations()) {
        // The coarse generation stays as it is.
        isConcerned = (each != m_world.get() && each->markOutdated(tile)) || isConcerned;
        for (auto& [key, request] : each->requests) {
            request.isOutdated = request.isOutdated || isRelated(key, tile.key);
        }
    }
    if (isConcerned) {
        Q_EMIT changed();
    }
}

BasemapFrame TilePyramid::show(std::chrono::nanoseconds now) {
    BasemapFrameBuilder frame(m_view);
    double opacity = 1;
    if (m_fade) {
        const auto since = m_fade->since.value_or(now);
        m_fade->since = since;
        opacity = std::min(1.0, std::chrono::duration<double>(now - since) / fadeTime);
        if (opacity >= 1) {
            m_fade.reset();
        }
    }
    const bool isWhole = m_current && covers(*m_current);
    if (!isWhole && (!m_pending || !covers(*m_pending))) {
        frame.show(*m_world, 1);
    }
    if (!isWhole && m_pending && (!m_current || m_pending->theme == m_current->theme)) {
        frame.show(*m_pending, 1);
    }
    if (m_fade) {
        frame.show(*m_fade->old, 1);
        frame.keep(*m_fade->old);
    }
    if (m_current) {
        isWhole ? frame.showCover(*m_current, cover(*m_current, 0), opacity)
                : frame.show(*m_current, opacity);
        frame.describe(*m_current);
        m_current->trim(m_view.camera, keptAround);
    }
    if (m_current && m_view.isResting && !m_pending) {
        m_current->dropBasemapsOutside(cover(*m_current, paintedAhead));
    }
    if (m_pending) {
        frame.prepare(*m_pending);
    }
    for (const TileGeneration* const each : generations()) {
        frame.keep(*each);
    }
    return frame.take();
}

void TilePyramid::handOverAgain() {
    m_fade.reset();
    for (TileGeneration* const each : generations()) {
        std::erase_if(each->tiles, [](const auto& tile) { return tile.second.isHandedOver; });
    }
}

} // namespace vasker
