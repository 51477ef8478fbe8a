#include "map/basemap/TileProvider.h"

#include "map/style/ImageryDecoding.h"
#include "map/tiles/TileInflation.h"

#include <algorithm>
#include <utility>

namespace vasker {

namespace {

bool asksForImagery(BasemapTheme look) {
    return look == BasemapTheme::satellite || look == BasemapTheme::hybrid;
}

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

const std::vector<TileSource>& listOf(const TileSources& sources, TileContent content) {
    return content == TileContent::vector ? sources.vector : sources.imagery;
}

const TileSource* sourceAt(const TileSources& sources, TileContent content, int zoom) {
    const auto& list = listOf(sources, content);
    const auto found = std::find_if(list.begin(), list.end(), [zoom](const TileSource& source) {
        return source.firstZoom <= zoom && zoom <= source.lastZoom;
    });
    return found == list.end() ? nullptr : &*found;
}

int lastZoom(const TileSources& sources, TileContent content) {
    int last = -1;
    for (const TileSource& source : listOf(sources, content)) {
        last = std::max(last, source.lastZoom);
    }
    return last;
}

TileKey childOf(TileKey key, int number) {
    return {key.zoom + 1, 2 * key.column + number % 2, 2 * key.row + number / 2};
}

void addCredit(std::vector<TileAttribution>& credits, TileAttribution credit) {
    if (!credit.text.isEmpty() &&
        std::find(credits.begin(), credits.end(), credit) == credits.end()) {
        credits.push_back(std::move(credit));
    }
}

} // namespace

std::unique_ptr<TileArchive> TileProvider::Handles::take() {
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_idle.empty()) {
            auto archive = std::move(m_idle.back());
            m_idle.pop_back();
            return archive;
        }
        if (m_isMissing) {
            return nullptr;
        }
    }
    auto archive = TileArchive::open(m_path);
    if (!archive) {
        const std::scoped_lock lock(m_mutex);
        m_isMissing = true;
    }
    return archive;
}

void TileProvider::Handles::giveBack(std::unique_ptr<TileArchive> archive) {
    if (archive) {
        const std::scoped_lock lock(m_mutex);
        m_idle.push_back(std::move(archive));
    }
}

TileProvider::TileProvider(TileArchivePaths archives, TileSources sources)
    : m_sources(std::move(sources)), m_vectorArchives(std::move(archives.vector)),
      m_imageryArchives(std::move(archives.imagery)) {}

void TileProvider::put(const ServiceTile& tile, const QByteArray& bytes) {
    const std::scoped_lock lock(m_mutex);
    m_received.put(tile, bytes);
    m_decoded.erase({true, tile.key});
}

std::vector<ServiceTile> TileProvider::takeUndecodable() {
    const std::scoped_lock lock(m_mutex);
    return std::exchange(m_undecodable, {});
}

void TileProvider::forget(const ServiceTile& tile) {
    const std::scoped_lock lock(m_mutex);
    m_received.erase(tile);
    m_undecodable.push_back(tile);
}

ProvidedTile TileProvider::read(TileKey key, BasemapTheme look) {
    ProvidedTile found;
    if (asksForImagery(look)) {
        readImagery(key, found);
    }
    if (look != BasemapTheme::satellite || !found.ground.isPhotographed(key)) {
        readVector(key, found);
    }
    return found;
}

std::vector<ServiceTile> TileProvider::wantedFor(TileKey key, BasemapTheme look) const {
    std::vector<ServiceTile> wanted;
    if (asksForImagery(look)) {
        const int zoom = std::min(key.zoom + 1, lastZoom(m_sources, TileContent::imagery));
        if (sourceAt(m_sources, TileContent::imagery, zoom) == nullptr) {
            // Nothing covers this zoom.
        } else if (zoom <= key.zoom) {
            wanted.push_back({TileContent::imagery, key.ancestor(key.zoom - zoom)});
        } else {
            for (const int child : {0, 1, 2, 3}) {
                wanted.push_back({TileContent::imagery, childOf(key, child)});
            }
        }
    }
    if (look != BasemapTheme::satellite) {
        const int zoom = std::min(key.zoom, lastZoom(m_sources, TileContent::vector));
        if (sourceAt(m_sources, TileContent::vector, zoom) != nullptr) {
            wanted.push_back({TileContent::vector, key.ancestor(key.zoom - zoom)});
        }
    }
    return wanted;
}

std::optional<QByteArray> TileProvider::received(const ServiceTile& tile) {
    const std::scoped_lock lock(m_mutex);
    const QByteArray* bytes = m_received.find(tile);
    return bytes == nullptr ? std::nullopt : std::optional(*bytes);
}

/// Null where the bytes are no tile.
TileProvider::VectorPointer
TileProvider::decoded(TileKey key, bool fromService, std::string_view bytes) {
    {
        const std::scoped_lock lock(m_mutex);
        if (const VectorPointer* known = m_decoded.find({fromService, key})) {
            return *known;
        }
    }
    VectorPointer tile;
    if (const auto inflated = inflatedTile(bytes)) {
        if (auto decoded = decodeVectorTile(*inflated)) {
            tile = std::make_shared<const VectorTile>(std::move(*decoded));
        }
    }
    const std::scoped_lock lock(m_mutex);
    m_decoded.put({fromService, key}, tile);
    return tile;
}

void TileProvider::readVector(TileKey key, ProvidedTile& found) {
    for (int levels = 0; levels <= key.zoom; ++levels) {
        if (readReceivedVector(key.ancestor(levels), found)) {
            return;
        }
    }
    auto archive = m_vectorArchives.take();
    if (!archive) {
        return;
    }
    auto nearest = archive->nearestTile(key);
    while (nearest) {
        if (const auto tile = decoded(nearest->key, false, nearest->bytes)) {
            found.ground.vector = tile;
            found.ground.vectorKey = nearest->key;
            addCredit(found.credits, {QString::fromStdString(archive->attribution()), {}});
            break;
        }
        const TileKey damaged = nearest->key;
        nearest = damaged.zoom > 0 ? archive->nearestTile(damaged.ancestor(1)) : std::nullopt;
    }
    m_vectorArchives.giveBack(std::move(archive));
}

bool TileProvider::readReceivedVector(TileKey key, ProvidedTile& found) {
    const ServiceTile sent{TileContent::vector, key};
    const auto bytes = received(sent);
    if (!bytes) {
        return false;
    }
    const auto tile = decoded(key, true, viewOf(*bytes));
    if (!tile) {
        forget(sent);
        return false;
    }
    found.ground.vector = tile;
    found.ground.vectorKey = key;
    addCredit(found.credits, creditOf(sent));
    return true;
}

/// What is there of the next zoom and, unless that is all of it, below it the nearest ancestor.
void TileProvider::readImagery(TileKey key, ProvidedTile& found) {
    auto archive = m_imageryArchives.take();
    std::vector<Photograph> photographs;
    for (const int number : {0, 1, 2, 3}) {
        if (auto child = photograph(childOf(key, number), archive.get())) {
            photographs.push_back(std::move(*child));
        }
    }
    const bool isWhole = photographs.size() == 4;
    for (int levels = 0; levels <= key.zoom && !isWhole; ++levels) {
        if (auto ancestor = photograph(key.ancestor(levels), archive.get())) {
            photographs.insert(photographs.begin(), std::move(*ancestor));
            break;
        }
    }
    m_imageryArchives.giveBack(std::move(archive));
    for (Photograph& each : photographs) {
        found.ground.imagery.push_back(std::move(each.piece));
        addCredit(found.credits, std::move(each.credit));
    }
}

std::optional<TileProvider::Photograph> TileProvider::photograph(TileKey key,
                                                                 TileArchive* archive) {
    const ServiceTile sent{TileContent::imagery, key};
    if (const auto bytes = received(sent)) {
        if (QImage image = decodedImagery(*bytes); !image.isNull()) {
            return Photograph{{key, std::move(image)}, creditOf(sent)};
        }
        forget(sent);
    }
    const auto stored = archive != nullptr ? archive->tile(key) : std::nullopt;
    if (!stored) {
        return std::nullopt;
    }
    QImage image = decodedImagery(
        QByteArray::fromRawData(stored->data(), static_cast<qsizetype>(stored->size())));
    if (image.isNull()) {
        return std::nullopt;
    }
    return Photograph{{key, std::move(image)},
                      {QString::fromStdString(archive->attribution()), {}}};
}

/// What came has a source.
TileAttribution TileProvider::creditOf(const ServiceTile& tile) const {
    const TileSource* source = sourceAt(m_sources, tile.content, tile.key.zoom);
    return source == nullptr ? TileAttribution()
                             : TileAttribution{source->attribution, source->attributionAddress};
}

} // namespace vasker
