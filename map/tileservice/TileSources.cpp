#include "map/tileservice/TileService.h"

#include <QJsonArray>

#include <algorithm>
#include <iterator>
#include <optional>

namespace vasker {

namespace {

constexpr qsizetype mostSources = 16;
constexpr qsizetype longestTemplate = 1000;

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
    if (!source.isSound()) {
        return false;
    }
    const QUrl address = source.address({0, 0, 0});
    const bool isPlainLoopback = address.scheme() == u"http" && address.host() == u"127.0.0.1";
    return address.scheme() == u"https" ||
           (plainLoopback == PlainLoopback::allowed && isPlainLoopback);
}

} // namespace

bool TileSource::isSound() const {
    if (firstZoom < 0 || lastZoom < firstZoom || lastZoom > maximumTileZoom ||
        addressTemplate.size() > longestTemplate) {
        return false;
    }
    // The places stand behind the host, so that no tile can choose one.
    const qsizetype path = addressTemplate.indexOf(u'/', addressTemplate.indexOf(u"://") + 3);
    for (const QStringView place : {u"{z}", u"{x}", u"{y}"}) {
        if (addressTemplate.count(place) != 1 || addressTemplate.indexOf(place) < path) {
            return false;
        }
    }
    const QUrl example = address({0, 0, 0});
    return path > 0 && example.isValid() && !example.host().isEmpty() &&
           example.userInfo().isEmpty() && !example.hasFragment();
}

QUrl TileSource::address(TileKey key) const {
    QString text = addressTemplate;
    text.replace(QStringLiteral("{z}"), QString::number(key.zoom));
    text.replace(QStringLiteral("{x}"), QString::number(key.column));
    text.replace(QStringLiteral("{y}"), QString::number(key.row));
    return {text, QUrl::StrictMode};
}

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

} // namespace vasker
