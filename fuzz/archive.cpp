// Any database is an archive of tiles or none, and what it says of itself and of its tiles comes
// within bounded time.

#include "fuzz/support/ForeignDatabase.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/ScratchFolder.h"
#include "map/tiles/TileArchive.h"

#include <array>
#include <cstddef>
#include <cstdint>

using namespace vasker;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder folder;
    static constexpr std::array<TileKey, 4> keys{
        {{0, 0, 0}, {1, 1, 0}, {2, 1, 2}, {maximumTileZoom, 12'345, 54'321}}};
    const std::string path = folder.path("archive.mbtiles");
    std::filesystem::remove(path);
    makeForeignDatabase(path, {reinterpret_cast<const char*>(data), size});
    const auto archive = TileArchive::open(path);
    if (!archive) {
        return 0;
    }
    require(archive->maximumZoom() >= 0 && archive->maximumZoom() <= maximumTileZoom);
    for (const TileKey key : keys) {
        const auto tile = archive->tile(key);
        require(!tile || (!tile->empty() && tile->size() <= maximumStoredTileBytes));
        const auto nearest = archive->nearestTile(key);
        if (nearest) {
            require(nearest->key == key.ancestor(key.zoom - nearest->key.zoom));
            require(nearest->key.zoom <= archive->maximumZoom());
            require(!tile || nearest->key.zoom < key.zoom || nearest->bytes == *tile);
        }
    }
    return 0;
}
