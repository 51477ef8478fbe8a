// Whatever lies in the cache's place, a tile that is given to it is found again, at the latest the
// second time: the cache is used or replaced.

#include "fuzz/support/ForeignDatabase.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/ScratchFolder.h"
#include "map/tileservice/TileCache.h"

#include <cstddef>
#include <cstdint>

using namespace vasker;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder folder;
    static const QDateTime now(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::UTC);
    for (const char* name : {"tiles.sqlite", "tiles.sqlite-journal"}) {
        std::filesystem::remove(folder.path(name));
    }
    makeForeignDatabase(folder.path("tiles.sqlite"), {reinterpret_cast<const char*>(data), size});
    const TileCache::Entry entry{.bytes = QByteArray(3'000, 'x'),
                                 .freshUntil = now.addDays(7),
                                 .entityTag = "tag",
                                 .lastModified = "then"};
    const QString address = QStringLiteral("a");
    TileCache cache(QString::fromStdString(folder.path()), 1'000'000);
    (void)cache.find(QStringLiteral("b"), now);
    std::optional<TileCache::Entry> found;
    for (int tries = 0; tries < 2 && !found; ++tries) {
        cache.keep(address, entry, now);
        found = cache.find(address, now);
    }
    require(found && found->bytes == entry.bytes && found->freshUntil == entry.freshUntil &&
            found->entityTag == entry.entityTag && found->lastModified == entry.lastModified);
    cache.refresh(address, now.addDays(9));
    cache.drop(address);
    require(!cache.find(address, now));
    return 0;
}
