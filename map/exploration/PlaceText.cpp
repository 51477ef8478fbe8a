#include "map/exploration/PlaceText.h"

#include "map/geometry/GreatCircle.h"
#include "map/view/CameraReadout.h"
#include "platform/Locale.h"
#include "presentation/RecordText.h"

#include <QLocale>

#include <array>
#include <cmath>
#include <limits>

namespace vasker {

namespace {

constexpr double hereMetres = 10;
constexpr double samePlaceMetres = 1000;

QLocale locale() {
    return QLocale(messagesLocale());
}

QString directionText(CompassPoint direction) {
    static constexpr std::array<const char*, 8> names{
        QT_TRANSLATE_NOOP("vasker::PlaceText", "north"),
        QT_TRANSLATE_NOOP("vasker::PlaceText", "north-east"),
        QT_TRANSLATE_NOOP("vasker::PlaceText", "east"),
        QT_TRANSLATE_NOOP("vasker::PlaceText", "south-east"),
        QT_TRANSLATE_NOOP("vasker::PlaceText", "south"),
        QT_TRANSLATE_NOOP("vasker::PlaceText", "south-west"),
        QT_TRANSLATE_NOOP("vasker::PlaceText", "west"),
        QT_TRANSLATE_NOOP("vasker::PlaceText", "north-west")};
    return PlaceText::tr(names.at(static_cast<std::size_t>(direction)));
}

/// A category within a sentence; an abbreviation stays as it is.
QString inSentence(const QString& category) {
    const bool isAbbreviation = category.size() > 1 && category[1].isUpper();
    return isAbbreviation ? category : category.left(1).toLower() + category.mid(1);
}

bool isSettlement(const PlaceLabel& label) {
    return label.kind == PlaceLabel::Kind::capital || label.kind == PlaceLabel::Kind::city ||
           label.kind == PlaceLabel::Kind::town || label.kind == PlaceLabel::Kind::village;
}

QString coordinateText(Coordinate place) {
    const QString latitude = locale().toString(std::abs(place.latitude), 'f', 1);
    const QString longitude = locale().toString(std::abs(place.longitude), 'f', 1);
    return PlaceText::tr("%1, %2").arg(
        place.latitude < 0 ? PlaceText::tr("%1 degrees south").arg(latitude)
                           : PlaceText::tr("%1 degrees north").arg(latitude),
        place.longitude < 0 ? PlaceText::tr("%1 degrees west").arg(longitude)
                            : PlaceText::tr("%1 degrees east").arg(longitude));
}

} // namespace

QString PlaceText::way(double metres, double degrees) {
    if (metres < hereMetres) {
        return tr("here");
    }
    //: %1: a distance, %2: a direction, as in "12 km north-east"
    return tr("%1 %2").arg(distanceText(metres, locale()), directionText(compassPoint(degrees)));
}

QString PlaceText::record(const OpenMapRelease::Asset& asset, const NearRecord& near) {
    //: %1: the record's name, %2: its category, %3: distance and direction
    return tr("%1, %2, %3")
        .arg(nameText(asset.name),
             inSentence(categoryText(asset.kind)),
             way(near.metres, near.degrees));
}

QString PlaceText::nearest(const OpenMapRelease::Asset& asset, const NearRecord& near) {
    //: The record nearest to a map that shows none. %1: its name, %2: distance and direction
    return tr("Nearest: %1, %2").arg(nameText(asset.name), way(near.metres, near.degrees));
}

QString PlaceText::center(MapPoint center, std::span<const PlaceLabel> labels) {
    const Coordinate here = mapPointToCoordinate(center);
    const PlaceLabel* nearest = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (const PlaceLabel& label : labels) {
        const double metres = distanceMetres(mapPointToCoordinate(label.point), here);
        if (isSettlement(label) && metres < least) {
            nearest = &label;
            least = metres;
        }
    }
    if (nearest == nullptr) {
        return coordinateText(here);
    }
    if (least < samePlaceMetres) {
        return nearest->text;
    }
    //: %1: distance and direction, %2: a town, as in "12 km north-east of Edmonton"
    return tr("%1 of %2")
        .arg(way(least, bearingDegrees(mapPointToCoordinate(nearest->point), here)), nearest->text);
}

QString PlaceText::inView(std::size_t records) {
    return records == 0 ? tr("no record in view")
                        : tr("%n records in view", nullptr, static_cast<int>(records));
}

} // namespace vasker
