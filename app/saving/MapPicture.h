#pragma once
// A picture of the map to save or print: the map as it is seen, and below it what it shows and the
// attribution of its data. Any painter draws it: on an image, on a page. Immutable; any thread.

#include "map/frame/MapDrawing.h"

#include <QColor>
#include <QImage>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <memory>

class QPainter;

namespace vasker {

struct MapPicture {
    std::shared_ptr<const MapDrawing> map; ///< not null
    QSizeF mapSize;                        ///< the part of it from the top left that is shown
    double scale = 1;                      ///< device pixels for a logical one, of images of it

    double barLength = 0; ///< of the scale bar, in logical pixels; 0: there is none
    QString barText;
    double bearing = 0; ///< degrees; an arrow tells where north is unless that is up
    QColor mapText;     ///< of texts over the map
    QColor mapHalo;
    QColor north; ///< of the arrow

    QString title;
    QStringList notes; ///< a paragraph each; empty ones are left out
    QColor background;
    QColor text;
    QColor quietText;

    /// In logical pixels: the map, and the title and the notes in a strip below it, as wide as the
    /// map.
    [[nodiscard]] QSizeF size() const;
    /// Draws it from the painter's origin on. A painter that is not of an image gets the basemap as
    /// one image, at the density of its tiles, and all else as lines, areas and text.
    void draw(QPainter& painter) const;
    /// The picture as an image at `scale`.
    [[nodiscard]] QImage composed() const;

  private:
    double drawStrip(QPainter* painter) const;
    [[nodiscard]] QImage basemap() const;
    void drawScaleBar(QPainter& painter) const;
    void drawNorth(QPainter& painter) const;
};

} // namespace vasker
