#include "map/basemap/TileProvider.h"

#include "map/basemap/ImageryMargin.h"
#include "map/style/ImageryDecoding.h"
#include "map/tiles/TileInflation.h"
#include "map/tiles/VectorTileDecoding.h"

#include <algorithm>
#include <utility>

namespace vasker {

namespace {

/// What an entry of the decoded tiles takes beside the tile, in bytes.
constexpr qsizetype leastCost = 100;

/// Imagery that is enlarged by so many zooms, its pixels eight times as wide, shows no shapes.
constexpr int onlyColorFrom = 3;

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

void add(std::vector<Attribution>& attributions, Attribution attribution) {
    if (!attribution.text.isEmpty() &&
        std::ranges::find(attributions, attribution) == attributions.end()) {
        attributions.push_back(std::move(attribution));
    }
}

std::shared_ptr<const VectorTile> decode(std::string_view bytes) {
    const auto inflated = inflatedTile(bytes);
    auto tile = inflated ? decodeVectorTile(*inflated) : std::nullopt;
    return tile ? std::make_shared<const VectorTile>(std::move(*tile)) : nullptr;
}

} // namespace

std::unique_ptr<TileArchive> TileProvider::ArchivePool::take() {
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

void TileProvider::ArchivePool::giveBack(std::unique_ptr<TileArchive> archive) {
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
    m_received.insert(tile, new Received{bytes, ++m_lastRevision}, bytes.size());
}

void TileProvider::forget(const ServiceTile& tile, std::uint64_t revision, ProvidedTile& found) {
    const std::scoped_lock lock(m_mutex);
    const Received* const held = m_received.object(tile);
    if (held != nullptr && held->revision == revision) {
        m_received.remove(tile);
        found.undecodable.push_back(tile);
    }
}

ProvidedTile TileProvider::read(TileKey key, BasemapTheme theme) {
    ProvidedTile found;
    if (showsImagery(theme)) {
        readImagery(key, found);
    }
    if (showsVectorTiles(theme) || !found.data.hasFullImagery(key) || found.data.needsWaters(key)) {
        readVector(key, found);
    }
    return found;
}

void TileProvider::refuseVector(const ProvidedTile& found) {
    const std::pair place{found.vectorRevision != 0, found.data.vectorKey};
    const std::scoped_lock lock(m_mutex);
    m_decoded.insert(place, new Decoded{nullptr, found.vectorRevision}, leastCost);
}

std::vector<ServiceTile> TileProvider::requestsFor(TileKey key, BasemapTheme theme) const {
    std::vector<ServiceTile> requests;
    if (showsImagery(theme)) {
        const int zoom = std::min(key.zoom + 1, m_sources.lastZoom(TileContent::imagery));
        if (m_sources.covering(TileContent::imagery, zoom) == nullptr) {
            // There is no imagery of this zoom.
        } else if (zoom <= key.zoom) {
            requests.push_back({TileContent::imagery, key.ancestor(key.zoom - zoom)});
        } else {
            for (const int child : {0, 1, 2, 3}) {
                requests.push_back({TileContent::imagery, key.child(child)});
            }
        }
    }
    if (showsVectorTiles(theme)) {
        const int zoom = std::min(key.zoom, m_sources.lastZoom(TileContent::vector));
        if (m_sources.covering(TileContent::vector, zoom) != nullptr) {
            requests.push_back({TileContent::vector, key.ancestor(key.zoom - zoom)});
        }
    }
    return requests;
}

std::optional<TileProvider::Received> TileProvider::received(const ServiceTile& tile) {
    const std::scoped_lock lock(m_mutex);
    const Received* const held = m_received.object(tile);
    return held == nullptr ? std::nullopt : std::optional(*held);
}

/// Null where the bytes are no tile.
TileProvider::VectorPointer
TileProvider::decoded(TileKey key, std::uint64_t revision, std::string_view bytes) {
    const std::pair place{revision != 0, key};
    {
        const std::scoped_lock lock(m_mutex);
        const Decoded* const known = m_decoded.object(place);
        if (known != nullptr && known->revision == revision) {
            return known->tile;
        }
    }
    VectorPointer tile = decode(bytes);
    const auto cost = static_cast<qsizetype>(tile ? tile->memoryBytes() : 0) + leastCost;
    const std::scoped_lock lock(m_mutex);
    const Decoded* const known = m_decoded.object(place);
    if (known == nullptr || known->revision <= revision) { // an older decode keeps off newer ones
        m_decoded.insert(place, new Decoded{tile, revision}, cost);
    }
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
        if (const auto tile = decoded(nearest->key, 0, nearest->bytes)) {
            found.data.vector = tile;
            found.data.vectorKey = nearest->key;
            add(found.attributions, {QString::fromStdString(archive->attribution()), {}});
            break;
        }
        const TileKey damaged = nearest->key;
        nearest = damaged.zoom > 0 ? archive->nearestTile(damaged.ancestor(1)) : std::nullopt;
    }
    m_vectorArchives.giveBack(std::move(archive));
}

bool TileProvider::readReceivedVector(TileKey key, ProvidedTile& found) {
    const ServiceTile sent{TileContent::vector, key};
    const auto held = received(sent);
    if (!held) {
        return false;
    }
    const auto tile = decoded(key, held->revision, viewOf(held->bytes));
    if (!tile) {
        forget(sent, held->revision, found);
        return false;
    }
    found.data.vector = tile;
    found.data.vectorKey = key;
    found.vectorRevision = held->revision;
    add(found.attributions, attributionOf(sent));
    return true;
}

/// What there is of the next zoom and, unless that is all of it, below it the nearest ancestor.
void TileProvider::readImagery(TileKey key, ProvidedTile& found) {
    auto archive = m_imageryArchives.take();
    std::vector<CreditedImagery> tiles;
    for (const int number : {0, 1, 2, 3}) {
        if (auto child = imagery(key.child(number), archive.get(), found)) {
            tiles.push_back(std::move(*child));
        }
    }
    const bool isWhole = tiles.size() == 4;
    for (int levels = 0; levels <= key.zoom && !isWhole; ++levels) {
        if (auto ancestor = imagery(key.ancestor(levels), archive.get(), found)) {
            if (ancestor->tile.needsWaters(key)) {
                addMargin(ancestor->tile, key, [&](TileKey beside) {
                    const auto neighbour = imagery(beside, archive.get(), found);
                    return neighbour ? neighbour->tile.image : QImage();
                });
            }
            tiles.insert(tiles.begin(), std::move(*ancestor));
            break;
        }
    }
    m_imageryArchives.giveBack(std::move(archive));
    const int sharpest = m_sources.lastZoom(TileContent::imagery);
    for (CreditedImagery& each : tiles) {
        const bool isOnlyColor = each.tile.enlargement(key) >= onlyColorFrom;
        found.lacksSharperImagery |= isOnlyColor && each.tile.key.zoom < sharpest;
        found.data.imagery.push_back(std::move(each.tile));
        add(found.attributions, std::move(each.attribution));
    }
}

std::optional<TileProvider::CreditedImagery>
TileProvider::imagery(TileKey key, TileArchive* archive, ProvidedTile& provided) {
    const auto credited = [key](const QByteArray& bytes, const Attribution& attribution) {
        QImage image = decodedImagery(bytes);
        return image.isNull()
                   ? std::nullopt
                   : std::optional(CreditedImagery{{key, std::move(image)}, attribution});
    };
    const ServiceTile sent{TileContent::imagery, key};
    if (const auto held = received(sent)) {
        if (auto found = credited(held->bytes, attributionOf(sent))) {
            return found;
        }
        forget(sent, held->revision, provided);
    }
    const auto stored = archive != nullptr ? archive->tile(key) : std::nullopt;
    return stored ? credited(QByteArray::fromRawData(stored->data(),
                                                     static_cast<qsizetype>(stored->size())),
                             {QString::fromStdString(archive->attribution()), {}})
                  : std::nullopt;
}

/// What was received has a source.
Attribution TileProvider::attributionOf(const ServiceTile& tile) const {
    const TileSource* source = m_sources.covering(tile.content, tile.key.zoom);
    return source == nullptr ? Attribution()
                             : Attribution{source->attribution, source->attributionAddress};
}

} // namespace vasker
