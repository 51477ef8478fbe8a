#include "map/tileservice/TileSource.h"

namespace vasker {

namespace {

constexpr qsizetype longestTemplate = 1000;

} // namespace

bool TileSource::isValid() const {
    if (firstZoom < 0 || lastZoom < firstZoom || lastZoom > maximumTileZoom ||
        addressTemplate.size() > longestTemplate) {
        return false;
    }
    // The places stand after the host, so that no tile can choose one.
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

} // namespace vasker
