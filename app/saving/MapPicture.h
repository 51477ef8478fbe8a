#pragma once
// A picture of the map to take along: the map as it is seen, and below it what it shows and whose
// data it is drawn from.

#include <QColor>
#include <QImage>
#include <QStringList>

namespace vasker {

struct MapPicture {
    QImage map;       ///< in device pixels
    double scale = 1; ///< device pixels for a logical one
    QString title;
    QStringList notes; ///< a paragraph each; empty ones are left out
    QColor background;
    QColor text;
    QColor quietText;

    /// The map with the title and the notes in a strip below it, as wide as the map.
    [[nodiscard]] QImage composed() const;
    /// Writes composed() at `path` as PNG, whole or not at all; returns what went wrong, or
    /// nothing. Any thread.
    [[nodiscard]] QString write(const QString& path) const;
};

} // namespace vasker
