// Whatever the bundle information holds, the services of tiles that are taken from it are asked by
// HTTPS at the host that stands in their address, whatever the tile.

#include "platform/Bundle.h"

#include "fuzz/support/Require.h"
#include "fuzz/support/ScratchFolder.h"
#include "map/tileservice/TileSources.h"

#include <cstddef>
#include <cstdint>

using namespace vasker;

namespace {

void check(const TileSource& source) {
    require(source.isValid());
    const QUrl first = source.address({0, 0, 0});
    const QUrl last =
        source.address({maximumTileZoom, (1 << maximumTileZoom) - 1, (1 << maximumTileZoom) - 1});
    require(last.isValid() && last.scheme() == u"https" && last.userInfo().isEmpty());
    require(!last.host().isEmpty() && last.authority() == first.authority());
    require(source.attributionAddress.isEmpty() || source.attributionAddress.scheme() == u"https" ||
            source.attributionAddress.scheme() == u"http");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder folder;
    folder.write("BundleInformation.json", {reinterpret_cast<const char*>(data), size});
    const Bundle bundle(QString::fromStdString(folder.path()));
    (void)bundle.information(QStringLiteral("OpenMapSHA256")).toString();
    const auto sources = TileSources::fromInformation(
        bundle.information(QStringLiteral("VaskerTileServices")).toObject());
    for (const TileContent content : {TileContent::vector, TileContent::imagery}) {
        require(sources.of(content).size() <= 16);
        for (const TileSource& source : sources.of(content)) {
            check(source);
            require(sources.lastZoom(content) >= source.lastZoom);
        }
    }
    return 0;
}
