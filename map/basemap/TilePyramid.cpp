#include "map/basemap/TilePyramid.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

/// While the map moves, pictures are shown at these multiples of their own scale. Who zooms looks
/// at where, not at what; and a new set at every half zoom would cost frames.
constexpr double mostShrunk = 0.7;
constexpr double mostStretched = 1.9;

/// At rest, pictures are as sharp as the screen: no farther from their own scale than this.
constexpr double restingTolerance = 1e-4;

/// Pixels around the view whose pictures are painted ahead, and whose are kept.
constexpr double paintedAhead = 96;
constexpr double keptAround = 320;

/// How many pictures out of view are kept.
constexpr std::size_t keptOutOfView = 16;

/// The coarse picture of the world: tiles of this zoom, in half of their usual size.
constexpr int worldZoom = 2;

constexpr std::chrono::milliseconds fadeTime{220};

bool asksForImagery(BasemapTheme look) {
    return look == BasemapTheme::satellite || look == BasemapTheme::hybrid;
}

bool isRelated(TileKey a, TileKey b) {
    const int zoom = std::min(a.zoom, b.zoom);
    return a.ancestor(a.zoom - zoom) == b.ancestor(b.zoom - zoom);
}

} // namespace

TilePyramid::TilePyramid(TileLibrary& library, QObject* parent)
    : QObject(parent), m_library(library) {
    connect(&m_library, &TileLibrary::tileArrived, this, &TilePyramid::markOutdated);
}

TilePyramid::~TilePyramid() {
    m_library.workers().remove(this);
    m_library.want(this, {});
}

void TilePyramid::look(const BasemapView& view, std::chrono::nanoseconds now) {
    m_view = view;
    begin();
    promote();
    request();
    compose(now);
    trim();
}

bool TilePyramid::suits(const Set& set) const {
    if (set.look != m_view.look || set.language != m_view.language ||
        set.devicePixelsPerPixel != m_view.devicePixelsPerPixel ||
        set.inkRevision != m_view.inkRevision) {
        return false;
    }
    const double ratio = m_view.camera.scale() / set.scale;
    return m_view.isResting ? std::abs(ratio - 1) < restingTolerance
                            : ratio > mostShrunk && ratio < mostStretched;
}

std::unique_ptr<TilePyramid::Set> TilePyramid::newSet(double scale) const {
    auto set = std::make_unique<Set>();
    set->scale = scale;
    set->zoom = tileZoom(scale);
    set->devicePixelsPerPixel = m_view.devicePixelsPerPixel;
    set->look = m_view.look;
    set->language = m_view.language;
    set->inkRevision = m_view.inkRevision;
    return set;
}

/// Begins the sets that the view asks for.
void TilePyramid::begin() {
    if (!m_world || m_world->look != m_view.look || m_world->language != m_view.language ||
        m_world->devicePixelsPerPixel != m_view.devicePixelsPerPixel) {
        m_world = newSet(0.5 * tilePixels / TileKey{worldZoom, 0, 0}.side());
        m_world->zoom = worldZoom;
        m_world->number = ++m_lastNumber;
    }
    if (m_current && suits(*m_current)) {
        m_coming.reset();
        return;
    }
    if (m_coming && suits(*m_coming)) {
        return;
    }
    m_coming = newSet(m_view.camera.scale());
    m_coming->number = ++m_lastNumber;
    if (m_view.ink) {
        m_coming->ink = m_view.ink(m_coming->scale);
    }
}

std::vector<CoverTile> TilePyramid::coverOf(const Set& set, double margin) const {
    return tileCover(m_view.camera, set.zoom, margin);
}

bool TilePyramid::covers(const Set& set) const {
    // Far out, the tiles of a near set would be countless; they do not cover the view anyway.
    if (m_view.camera.scale() < set.scale / 4) {
        return false;
    }
    const auto cover = coverOf(set, 0);
    return std::all_of(cover.begin(), cover.end(), [&set](const CoverTile& tile) {
        return set.painted.contains(tile.key);
    });
}

/// The first set of all is shown at once.
bool TilePyramid::isPrepared(const Set& set) const {
    const auto cover = coverOf(set, 0);
    return !m_current || std::all_of(cover.begin(), cover.end(), [&set](const CoverTile& tile) {
        return set.painted.at(tile.key)->isPrepared;
    });
}

void TilePyramid::promote() {
    if (!m_coming || !covers(*m_coming) || !isPrepared(*m_coming)) {
        return;
    }
    if (m_current && m_current->look != m_coming->look && m_view.fades) {
        m_fading = Fade{std::move(m_current), std::nullopt};
    }
    m_current = std::move(m_coming);
}

/// Tells workers and services what is wanted now.
void TilePyramid::request() {
    std::erase_if(m_requests, [](const auto& request) { return !request.second.begun->load(); });
    std::vector<TileWorkers::Job> jobs;
    const Set& wanted = m_coming ? *m_coming : *m_current;
    collect(wanted, 0, jobs);
    collect(*m_world, 0, jobs);
    collect(wanted, paintedAhead, jobs);
    if (!jobs.empty() || m_hasJobs) { // else every frame would wait for the workers' lock
        m_hasJobs = !jobs.empty();
        m_library.workers().setJobs(this, std::move(jobs));
    }

    std::vector<ServiceTile> looked;
    for (const CoverTile& tile : coverOf(wanted, 0)) {
        for (const ServiceTile& each : m_library.reader().wantedFor(tile.key, wanted.look)) {
            if (std::find(looked.begin(), looked.end(), each) == looked.end()) {
                looked.push_back(each);
            }
        }
    }
    m_library.want(this, std::move(looked));
}

/// Adds a job for each picture that is missing or outdated and not being painted.
void TilePyramid::collect(const Set& set, double margin, std::vector<TileWorkers::Job>& jobs) {
    for (const CoverTile& tile : coverOf(set, margin)) {
        if (set.painted.contains(tile.key) && !set.outdated.contains(tile.key)) {
            continue;
        }
        const auto [request, isNew] = m_requests.try_emplace({set.number, tile.key});
        if (isNew) {
            request->second.begun = std::make_shared<std::atomic<bool>>(false);
            jobs.push_back(job(set, tile.key, request->second.begun));
        }
    }
}

TileWorkers::Job
TilePyramid::job(const Set& set, TileKey key, std::shared_ptr<std::atomic<bool>> begun) {
    TileRequest request;
    request.key = key;
    request.devicePixelsPerMapPoint =
        std::ldexp(set.scale * set.devicePixelsPerPixel, key.zoom - set.zoom);
    request.devicePixelsPerPixel = set.devicePixelsPerPixel;
    request.look = set.look;
    request.language = set.language;
    request.ink = set.ink;
    return [this,
            request = std::move(request),
            number = set.number,
            begun = std::move(begun),
            &reader = m_library.reader()] {
        begun->store(true);
        ProvidedTile found = reader.read(request.key, request.look);
        auto tile = std::make_shared<PaintedTile>();
        tile->key = request.key;
        tile->devicePixelsPerMapPoint = request.devicePixelsPerMapPoint;
        tile->pixels = request.pixels();
        tile->image = paintTile(found.ground, request);
        tile->names = placeLabels(found.ground, request);
        tile->credits = std::move(found.credits);
        tile->lacksImagery =
            asksForImagery(request.look) && !found.ground.isPhotographed(request.key);
        QMetaObject::invokeMethod(
            this,
            [this, number, begun, tile = std::move(tile)]() mutable {
                takePainted(number, begun, std::move(tile));
            },
            Qt::QueuedConnection);
    };
}

TilePyramid::Set* TilePyramid::setOf(std::uint64_t number) const {
    for (const auto& set : {&m_current, &m_coming, &m_world}) {
        if (*set && (*set)->number == number) {
            return set->get();
        }
    }
    return nullptr;
}

void TilePyramid::takePainted(std::uint64_t setNumber,
                              const std::shared_ptr<std::atomic<bool>>& begun,
                              std::shared_ptr<PaintedTile> tile) {
    const auto request = m_requests.find({setNumber, tile->key});
    if (request == m_requests.end() || request->second.begun != begun) {
        return; // it was begun while it was being asked for anew
    }
    const bool outdated = request->second.outdated;
    m_requests.erase(request);
    if (Set* set = setOf(setNumber)) {
        const TileKey key = tile->key;
        set->painted.insert_or_assign(key, std::move(tile));
        set->outdated.erase(key);
        if (outdated) {
            set->outdated.insert(key);
        }
        Q_EMIT changed();
    }
}

void TilePyramid::markOutdated(const ServiceTile& tile) {
    bool isConcerned = false;
    for (Set* set : {m_current.get(), m_coming.get()}) {
        const bool isUsed = set != nullptr && (tile.content == TileContent::imagery
                                                   ? asksForImagery(set->look)
                                                   : set->look != BasemapTheme::satellite);
        if (!isUsed) {
            continue;
        }
        for (const auto& [key, painted] : set->painted) {
            if (isRelated(key, tile.key)) {
                set->outdated.insert(key);
                isConcerned = true;
            }
        }
    }
    for (auto& [place, request] : m_requests) {
        request.outdated = request.outdated || isRelated(place.second, tile.key);
    }
    if (isConcerned) {
        Q_EMIT changed();
    }
}

void TilePyramid::compose(std::chrono::nanoseconds now) {
    m_shown.clear();
    double opacity = 1;
    if (m_fading) {
        const auto since = m_fading->since.value_or(now);
        m_fading->since = since;
        opacity = std::chrono::duration<double>(now - since) / fadeTime;
        if (opacity >= 1) {
            m_fading.reset();
            opacity = 1;
        }
    }
    const bool isWhole = m_current && covers(*m_current);
    if (!isWhole) {
        if (!m_coming || !covers(*m_coming)) {
            show(*m_world, 1);
        }
        if (m_coming && (!m_current || m_coming->look == m_current->look)) {
            show(*m_coming, 1);
        }
    }
    if (m_fading) {
        show(*m_fading->old, 1);
    }
    m_inView.clear();
    if (m_current) {
        const std::size_t first = m_shown.size();
        isWhole ? showCover(*m_current, opacity) : show(*m_current, opacity);
        for (std::size_t i = first; i < m_shown.size(); ++i) {
            m_inView.push_back(m_shown[i].tile);
        }
    }
    if (m_coming) {
        for (const auto& [key, tile] : m_coming->painted) {
            m_shown.push_back({tile, 0, 0});
            tile->isPrepared = true;
        }
    }
}

/// Of a whole set nothing else: what is left of other views may be coarser, or older.
void TilePyramid::showCover(const Set& set, double opacity) {
    for (const CoverTile& tile : coverOf(set, 0)) {
        m_shown.push_back({set.painted.at(tile.key), tile.shift, opacity});
    }
}

/// Nearer tiles are drawn over farther ones of the same place.
void TilePyramid::show(const Set& set, double opacity) {
    const auto shifts = worldCopyOffsets(m_view.camera.visibleRect());
    for (const auto& [key, tile] : set.painted) {
        for (const double shift : shifts) {
            if (seesTile(m_view.camera, {key, shift}, 0)) {
                m_shown.push_back({tile, shift, opacity});
            }
        }
    }
}

/// Lets go of pictures far out of view.
void TilePyramid::trim() {
    if (!m_current || m_current->painted.size() < m_inView.size() + keptOutOfView) {
        return;
    }
    const auto shifts = worldCopyOffsets(m_view.camera.visibleRect(keptAround));
    std::erase_if(m_current->painted, [&](const auto& painted) {
        return std::none_of(shifts.begin(), shifts.end(), [&](double shift) {
            return seesTile(m_view.camera, {painted.first, shift}, keptAround);
        });
    });
}

std::shared_ptr<const RecordOverlay> TilePyramid::shownInk() const {
    return m_current ? m_current->ink : nullptr;
}

double TilePyramid::shownScale() const {
    return m_current ? m_current->scale : 0;
}

std::vector<PlaceLabel> TilePyramid::names() const {
    std::vector<PlaceLabel> names;
    for (const auto& tile : m_inView) {
        names.insert(names.end(), tile->names.begin(), tile->names.end());
    }
    return names;
}

std::vector<TileAttribution> TilePyramid::credits() const {
    std::vector<TileAttribution> credits;
    for (auto shown = m_shown.rbegin(); shown != m_shown.rend(); ++shown) {
        for (const TileAttribution& credit : shown->tile->credits) {
            if (shown->opacity > 0 &&
                std::find(credits.begin(), credits.end(), credit) == credits.end()) {
                credits.push_back(credit);
            }
        }
    }
    return credits;
}

bool TilePyramid::lacksImagery() const {
    return std::any_of(
        m_inView.begin(), m_inView.end(), [](const auto& tile) { return tile->lacksImagery; });
}

bool TilePyramid::isChanging() const {
    return m_fading || (m_coming && covers(*m_coming));
}

bool TilePyramid::isComplete() const {
    return m_current && !m_coming && suits(*m_current) && covers(*m_current) && !m_fading;
}

void TilePyramid::forgetTextures() {
    m_fading.reset();
    for (Set* set : {m_current.get(), m_coming.get(), m_world.get()}) {
        if (set != nullptr) {
            std::erase_if(set->painted,
                          [](const auto& painted) { return painted.second->image.isNull(); });
        }
    }
}

} // namespace vasker
