#include "map/labels/PlaceLabels.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace vasker {

namespace {

/// Sources cut long lakes in two and name both: within this many pixels one label is enough.
constexpr double sameTextPixels = 300;
/// Of these the labels are taken: others repeat them, or have no name.
constexpr std::ptrdiff_t mostCandidates = 3'000;
/// A water without rank is labelled when it is about this many pixels across.
constexpr double labelledWaterPixels = 48;
constexpr double never = 99; ///< a zoom that no map reaches
constexpr double metresAroundTheEquator = 40'075'016.686;
/// Smaller capitals of regions are set as towns are, and come a little later.
constexpr std::int64_t peopleOfACity = 200'000;

using Kind = PlaceLabel::Kind;

/// From which zoom a label is shown, up to which, and how it competes.
struct Appearance {
    Kind kind;
    double firstZoom;
    double lastZoom = never;
    double priority;
};

/// A zoom for each rank from 0 on; ranks beyond take the last.
template <std::size_t count>
double byRank(const std::array<double, count>& zooms, int rank) {
    return zooms[std::min(static_cast<std::size_t>(std::max(rank, 0)), count - 1)];
}

// clang-format off
// rank                                         0    1    2    3    4    5    6    7    8    9    10   11   12
constexpr std::array<double, 4>  countryZooms{  1.0, 1.5, 2.4, 3.2};
constexpr std::array<double, 4>  regionZooms{   2.8, 2.8, 3.4, 4.2};
constexpr std::array<double, 11> placeZooms{    1.5, 2.4, 2.9, 3.2, 4.2, 4.6, 4.9, 6.0, 6.9, 8.0, 9.0};
constexpr std::array<double, 13> waterZooms{    3.4, 3.4, 4.0, 4.6, 5.0, 5.4, 5.8, 6.2, 6.6, 7.0, 7.4, 8.0, 8.6};

struct PlaceKind {
    std::string_view name;
    Kind kind;
    double rank;      ///< of one without a rank of its own, to compete with those that have one
    double firstZoom; ///< of the same
    double delay;     ///< zooms that one with a rank comes later than a city
};
constexpr std::array<PlaceKind, 10> placeKinds{{
    {"capital",       Kind::capital, 1,  2.4,  0},
    {"state_capital", Kind::city,    2,  3.0,  0},
    {"city",          Kind::city,    4,  5.0,  0},
    {"town",          Kind::town,    7,  7.5,  0.6},
    {"suburb",        Kind::village, 9,  11,   1},
    {"village",       Kind::village, 9,  9.5,  1},
    {"hamlet",        Kind::village, 10, 11.5, 1},
    {"quarter",       Kind::village, 10, 12.5, 1},
    {"neighbourhood", Kind::village, 11, 13,   1},
    {"island",        Kind::village, 10, 11,   1},
}};
// clang-format on

std::optional<Appearance> placeAppearance(const VectorFeature& feature) {
    const auto* const kind =
        std::find_if(placeKinds.begin(), placeKinds.end(), [&](const PlaceKind& entry) {
            return entry.name == feature.kind;
        });
    if (kind == placeKinds.end()) {
        return std::nullopt;
    }
    const bool isCapital = feature.kind == "capital" || feature.kind == "state_capital";
    const auto people = static_cast<double>(std::max<std::int64_t>(feature.population, 0));
    const double rank = feature.rank > 0 ? feature.rank : kind->rank;
    const bool isMetropolis = people >= 1e6;
    Appearance appearance{.kind = kind->kind,
                          .firstZoom = kind->firstZoom,
                          .priority = 3 + rank - (isCapital ? 1 : 0) - std::log10(1 + people) / 20};
    if (feature.rank > 0) {
        appearance.firstZoom = byRank(placeZooms, feature.rank) + kind->delay;
    } else if (isMetropolis) {
        appearance.firstZoom = std::min(appearance.firstZoom, 3.0);
    }
    if (feature.kind == "state_capital" && feature.population < peopleOfACity) {
        appearance.kind = Kind::town;
        appearance.firstZoom += 0.4;
    }
    return appearance;
}

std::optional<Appearance> boundaryAppearance(const VectorFeature& feature) {
    if (feature.adminLevel == 2) {
        return Appearance{
            Kind::country, byRank(countryZooms, feature.rank), 3.6, feature.rank / 10.0};
    }
    if (feature.adminLevel == 4) {
        return Appearance{
            Kind::region, byRank(regionZooms, feature.rank), 7.5, 1 + feature.rank / 10.0};
    }
    return std::nullopt;
}

Appearance waterAppearance(const VectorFeature& feature) {
    const bool isOcean = feature.kind == "ocean";
    if (feature.wayArea > 0) {
        const double pixelsAtZoomZero =
            std::sqrt(feature.wayArea) / metresAroundTheEquator * tilePixels;
        const double firstZoom = std::log2(labelledWaterPixels / pixelsAtZoomZero);
        return {Kind::water, firstZoom, never, 6.5 + std::clamp(firstZoom - 3, 0.0, 20.0)};
    }
    return {Kind::water,
            isOcean ? 1.0 : byRank(waterZooms, feature.rank),
            isOcean ? 6.0 : never,
            isOcean ? 1.5 : 6.5 + feature.rank};
}

std::optional<Appearance> appearanceOf(std::string_view layer, const VectorFeature& feature) {
    if (layer == "place_labels") {
        return placeAppearance(feature);
    }
    if (layer == "boundary_labels") {
        return boundaryAppearance(feature);
    }
    if (layer == "water_polygons_labels") {
        return waterAppearance(feature);
    }
    return std::nullopt;
}

QString textOf(const VectorFeature& feature, MapLanguage language) {
    const std::string& own =
        language == MapLanguage::french ? feature.nameFrench : feature.nameEnglish;
    return QString::fromStdString(own.empty() ? feature.name : own).simplified();
}

/// The first point of a feature, where it lies in the tile; the west and north edges count.
std::optional<MapPoint> pointIn(TileKey key, TileKey dataKey, const VectorFeature& feature) {
    if (feature.geometry != VectorFeature::Geometry::points || feature.parts.empty() ||
        feature.parts.front().empty()) {
        return std::nullopt;
    }
    const TilePoint place = feature.parts.front().front();
    const MapRect data = dataKey.bounds();
    const MapRect own = key.bounds();
    const MapPoint point{data.x + static_cast<double>(place.x) * data.width,
                         data.y + static_cast<double>(place.y) * data.height};
    const bool isInside = point.x >= own.x && point.y >= own.y && point.x < own.x + own.width &&
                          point.y < own.y + own.height;
    return isInside ? std::optional(point) : std::nullopt;
}

/// The texts that were kept, each with its places, and whether another one is near.
class KeptTexts {
  public:
    explicit KeptTexts(double distance) noexcept : m_distance(distance) {}

    /// Keeps the text; whether there was no equal one near it.
    bool keep(const QString& text, MapPoint point) {
        const Cell own{static_cast<qint64>(point.x / m_distance),
                       static_cast<qint64>(point.y / m_distance)};
        for (qint64 y = own.second - 1; y <= own.second + 1; ++y) {
            for (qint64 x = own.first - 1; x <= own.first + 1; ++x) {
                for (const MapPoint& other : m_kept.value({text, {x, y}})) {
                    if (std::hypot(other.x - point.x, other.y - point.y) < m_distance) {
                        return false;
                    }
                }
            }
        }
        m_kept[{text, own}].push_back(point);
        return true;
    }

  private:
    using Cell = std::pair<qint64, qint64>;

    double m_distance;
    QHash<std::pair<QString, Cell>, std::vector<MapPoint>> m_kept;
};

/// A place that may get a label.
struct PlaceCandidate {
    const VectorFeature* feature;
    MapPoint point;
    Kind kind;
    double priority;
};

std::vector<PlaceCandidate> placeCandidates(const TileData& data, const TileRequest& request) {
    std::vector<PlaceCandidate> found;
    const double zoom = request.zoom();
    for (const VectorLayer& layer : data.vector->layers) {
        for (const VectorFeature& feature : layer.features) {
            const std::optional<Appearance> appearance = appearanceOf(layer.name, feature);
            if (!appearance || zoom < appearance->firstZoom || zoom >= appearance->lastZoom) {
                continue;
            }
            if (const auto point = pointIn(request.key, data.vectorKey, feature)) {
                found.push_back({&feature, *point, appearance->kind, appearance->priority});
            }
        }
    }
    std::ranges::stable_sort(found, {}, &PlaceCandidate::priority);
    if (std::ssize(found) > mostCandidates) {
        found.erase(found.begin() + mostCandidates, found.end());
    }
    return found;
}

} // namespace

std::vector<PlaceLabel>
placeLabels(const TileData& data, const TileRequest& request, MapLanguage language) {
    std::vector<PlaceLabel> labels;
    if (!data.vector || !std::isfinite(request.zoom())) {
        return labels;
    }
    const double pixelsPerMapPoint = request.devicePixelsPerMapPoint / request.devicePixelsPerPixel;
    KeptTexts kept(sameTextPixels / pixelsPerMapPoint);
    for (const PlaceCandidate& place : placeCandidates(data, request)) {
        QString text = textOf(*place.feature, language);
        if (!text.isEmpty() && kept.keep(text, place.point)) {
            labels.push_back({std::move(text), place.point, place.kind, place.priority});
        }
        if (labels.size() == mostPlaceLabels) {
            break;
        }
    }
    return labels;
}

} // namespace vasker
