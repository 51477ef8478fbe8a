#include "map/tileservice/TileSources.h"

#include <QJsonArray>

#include <algorithm>
#include <iterator>
#include <optional>

namespace vasker {

namespace {

constexpr qsizetype mostSources = 16;

bool isWhole(const QJsonValue& value) {
    return value.isDouble() && value.toDouble() == static_cast<double>(value.toInt(-1));
}

std::optional<TileSource> source(const QJsonObject& entry) {
    const QJsonValue first = entry.value(u"firstZoom");
    const QJsonValue last = entry.value(u"lastZoom");
    if (!isWhole(first) || !isWhole(last)) {
        return std::nullopt;
    }
    const QUrl about(entry.value(u"attributionURL").toString(), QUrl::StrictMode);
    const bool isWeb = about.scheme() == u"https" || about.scheme() == u"http";
    TileSource result{.addressTemplate = entry.value(u"template").toString(),
                      .firstZoom = first.toInt(),
                      .lastZoom = last.toInt(),
                      .attribution = entry.value(u"attribution").toString(),
                      .attributionAddress = isWeb ? about : QUrl()};
    return result;
}

std::vector<TileSource> sources(const QJsonValue& entries) {
    std::vector<TileSource> result;
    const QJsonArray array = entries.toArray();
    for (qsizetype i = 0; i < qMin(array.size(), mostSources); ++i) {
        if (std::optional<TileSource> one = source(array[i].toObject())) {
            result.push_back(*std::move(one));
        }
    }
    return result;
}

bool isUsable(const TileSource& source, PlainLoopback plainLoopback) {
    if (!source.isValid()) {
        return false;
    }
    const QUrl address = source.address({0, 0, 0});
    const bool isPlainLoopback = address.scheme() == u"http" && address.host() == u"127.0.0.1";
    return address.scheme() == u"https" ||
           (plainLoopback == PlainLoopback::allowed && isPlainLoopback);
}

} // namespace

TileSources TileSources::fromInformation(const QJsonObject& services) {
    return TileSources{.vector = sources(services.value(u"vector")),
                       .imagery = sources(services.value(u"imagery"))}
        .usable(PlainLoopback::refused);
}

TileSources TileSources::usable(PlainLoopback plainLoopback) const {
    TileSources result;
    const auto isGood = [&](const TileSource& source) { return isUsable(source, plainLoopback); };
    std::ranges::copy_if(vector, std::back_inserter(result.vector), isGood);
    std::ranges::copy_if(imagery, std::back_inserter(result.imagery), isGood);
    return result;
}

const TileSource* TileSources::covering(TileContent content, int zoom) const noexcept {
    const auto& sources = of(content);
    const auto found = std::ranges::find_if(sources, [zoom](const TileSource& source) {
        return source.firstZoom <= zoom && zoom <= source.lastZoom;
    });
    return found == sources.end() ? nullptr : &*found;
}

int TileSources::lastZoom(TileContent content) const noexcept {
    int last = -1;
    for (const TileSource& source : of(content)) {
        last = std::max(last, source.lastZoom);
    }
    return last;
}

} // namespace vasker
