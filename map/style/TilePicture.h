#pragma once
// A tile to be painted, and the picture that comes of it. Values: made and used on any thread.

#include "map/geometry/MapRect.h"
#include "map/geometry/TileKey.h"
#include "map/tiles/VectorTile.h"

#include <QImage>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class QPainter;

namespace vasker {

/// What the ground looks like.
enum class BasemapTheme : std::uint8_t { light, dark, satellite, hybrid };

/// Which names a map shows where a place has several.
enum class MapLanguage : std::uint8_t { english, french };

/// What is drawn on the ground, into the same picture: the records, where the map bakes them in.
class RecordOverlay {
  public:
    virtual ~RecordOverlay() = default;
    /// Paints what lies in and around `bounds` (map points), which is all that the picture covers.
    /// The painter's unit is the device pixel, its origin the corner of `bounds`. Any thread,
    /// several at once.
    virtual void
    paint(QPainter& painter, const MapRect& bounds, double devicePixelsPerMapPoint) const = 0;
};

/// A rectangle of whole device pixels, counted from the world's north-west corner.
struct PixelRect {
    std::int64_t x;
    std::int64_t y;
    int width;
    int height;
    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

struct TileRequest {
    TileKey key{};
    double devicePixelsPerMapPoint = 1; ///< exactly as the picture will be seen at rest
    double devicePixelsPerPixel = 1;    ///< the screen's density
    BasemapTheme look = BasemapTheme::light;
    MapLanguage language = MapLanguage::english;
    std::shared_ptr<const RecordOverlay> ink; ///< null: nothing

    /// What the picture covers. Pictures of one scale stand on one grid of pixels, so that they
    /// meet without a seam and need no smoothing. A pixel that two tiles touch is the eastern's and
    /// the southern's alone: covered twice, it would be seen while a picture fades in.
    [[nodiscard]] PixelRect pixels() const noexcept;
};

/// A photograph of the ground of one tile. Services cut theirs into tiles of 256 pixels, so that
/// four of the next zoom make one of ours.
struct ImageryPiece {
    TileKey key;
    QImage image;
};

/// What is known of the ground of a tile: its own data, or an ancestor's, of which a part is shown.
struct TileData {
    std::shared_ptr<const VectorTile> vector; ///< null: none
    TileKey vectorKey{};                      ///< the tile itself or an ancestor
    std::vector<ImageryPiece> imagery;        ///< drawn in this order; ancestors and descendants

    /// Whether the photographs leave nothing of `key` open: one of itself or of an ancestor, or of
    /// all four of its quarters.
    [[nodiscard]] bool isPhotographed(TileKey key) const noexcept;
};

/// A name to be set on the map.
struct PlaceLabel {
    enum class Kind : std::uint8_t { country, region, capital, city, town, village, water };
    QString text;
    MapPoint point;
    Kind kind;
    double priority; ///< the smaller goes first where names compete
    friend bool operator==(const PlaceLabel&, const PlaceLabel&) = default;
};

/// The picture of a tile, opaque, of the size of request.pixels(). Where the look asks for imagery
/// and there is none, also in a part of the tile, the drawn map in its dark dress.
[[nodiscard]] QImage paintTile(const TileData& ground, const TileRequest& request);

/// The names whose points lie in the tile, in the request's language, those that its zoom shows.
[[nodiscard]] std::vector<PlaceLabel> placeLabels(const TileData& ground,
                                                  const TileRequest& request);

} // namespace vasker
