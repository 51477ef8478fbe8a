// A tile service's response of any status, headers and body is judged, and what counts as a tile
// is decoded or refused. Input: two bytes, the headers, each a line, an empty line, the body.

#include "fuzz/support/Require.h"
#include "map/style/ImageryDecoding.h"
#include "map/tiles/TileInflation.h"
#include "map/tiles/VectorTileDecoding.h"
#include "map/tileservice/RetryDelay.h"
#include "map/tileservice/TileResponse.h"

#include <array>
#include <cstddef>
#include <cstdint>

using namespace vasker;

namespace {

const QDateTime now(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::UTC);

QByteArray takeLine(QByteArray& bytes) {
    const qsizetype end = bytes.indexOf('\n');
    const QByteArray line = bytes.left(end);
    bytes = end < 0 ? QByteArray() : bytes.mid(end + 1);
    return line;
}

TileResponse responseOf(QByteArray bytes) {
    static constexpr std::array<int, 12> statuses{
        200, 200, 200, 0, 304, 404, 429, 503, 500, 301, 206, 403};
    TileResponse response;
    const auto first = static_cast<unsigned char>(bytes[0]);
    response.status = statuses.at(first % statuses.size());
    response.isTooLong = bytes[1] == 'l';
    response.isWhole = bytes[1] != 'b' && !response.isTooLong;
    bytes.remove(0, 2);
    for (QByteArray* const header : {&response.contentType,
                                     &response.cacheControl,
                                     &response.expires,
                                     &response.retryAfter,
                                     &response.entityTag,
                                     &response.lastModified}) {
        *header = takeLine(bytes);
    }
    takeLine(bytes);
    response.body = bytes;
    return response;
}

void checkTimes(const TileResponse& response) {
    const auto until = freshUntil(response, now);
    require(until ? *until >= now.addDays(7) && *until <= now.addDays(365)
                  : response.cacheControl.toLower().contains("no-store"));
    const auto asked = retryAfter(response.retryAfter, now);
    require(!asked || asked->count() >= 0);
    const RetryRule rule;
    for (const int failures : {1, 5, 1'000'000}) {
        const auto delay = retryDelay(failures, asked, rule);
        require(delay >= rule.first && delay <= std::max(rule.longest, rule.longestAsked));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    const TileResponse response =
        responseOf(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    checkTimes(response);
    for (const TileContent content : {TileContent::vector, TileContent::imagery}) {
        if (verdict(content, response) != TileVerdict::tile) {
            continue;
        }
        require(response.status == 200 && response.isWhole && !response.body.isEmpty());
        require(looksLikeTile(content, response.body));
        if (content == TileContent::imagery) {
            (void)decodedImagery(response.body);
        } else if (const auto inflated = inflatedTile(response.body.toStdString())) {
            (void)decodeVectorTile(*inflated);
        }
    }
    return 0;
}
