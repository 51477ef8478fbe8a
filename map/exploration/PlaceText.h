#pragma once
// Places on the map in words, for screen readers: in the language of the user interface, names as
// they are.

#include "data/OpenMapRelease.h"
#include "map/labels/PlaceLabel.h"
#include "map/records/NearRecords.h"

#include <QCoreApplication>
#include <QString>

#include <span>

namespace vasker {

struct PlaceText {
    Q_DECLARE_TR_FUNCTIONS(vasker::PlaceText)

  public:
    /// "12 km north-east", or "here" within 10 metres.
    [[nodiscard]] static QString way(double metres, double degrees);
    /// "Dunvegan Sour Gas Plant, gas plant, 12 km north-east".
    [[nodiscard]] static QString record(const OpenMapRelease::Asset& asset, const NearRecord& near);
    /// "Nearest: Long Lake Project, 84 km south-west".
    [[nodiscard]] static QString nearest(const OpenMapRelease::Asset& asset,
                                         const NearRecord& near);
    /// "12 km north-east of Edmonton", from the nearest settlement among `labels`, or its name
    /// alone within a kilometre; without any, latitude and longitude.
    [[nodiscard]] static QString center(MapPoint center, std::span<const PlaceLabel> labels);
    /// "34 records in view".
    [[nodiscard]] static QString inView(std::size_t records);
};

} // namespace vasker
