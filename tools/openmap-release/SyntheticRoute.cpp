#include "tools/openmap-release/SyntheticRoute.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vasker {
namespace {

constexpr double westDegrees = -140;
constexpr double eastDegrees = -53;
constexpr double southDegrees = 42;
constexpr double northDegrees = 70;

constexpr auto areas = std::to_array<SyntheticArea>({
    {"Alberta", -114.9, 54.4, 2.6, 24},
    {"Alberta", -118.4, 55.2, 1.2, 14},
    {"Alberta", -113.4, 53.6, 0.7, 10},
    {"Alberta", -111.4, 56.8, 1.1, 6},
    {"Alberta", -112.6, 50.9, 1.6, 8},
    {"British Columbia", -121.0, 56.4, 1.6, 12},
    {"British Columbia", -122.9, 49.3, 0.8, 3},
    {"British Columbia", -128.8, 54.2, 0.9, 1},
    {"Saskatchewan", -103.2, 49.6, 1.1, 10},
    {"Saskatchewan", -109.3, 53.1, 1.2, 6},
    {"Manitoba", -99.8, 50.0, 2.4, 2},
    {"Ontario", -82.2, 42.9, 0.9, 3},
    {"Ontario", -79.6, 43.8, 1.8, 3},
    {"Quebec", -72.9, 46.1, 1.9, 3},
    {"New Brunswick", -66.0, 45.6, 0.9, 1},
    {"Nova Scotia", -62.9, 44.9, 1.4, 1},
    {"Newfoundland and Labrador", -54.4, 47.6, 1.2, 1},
    {"Northwest Territories", -127.0, 65.3, 3.6, 1},
    {"Yukon", -136.0, 62.6, 2.6, 1},
});

double sixDecimals(double degrees) {
    return std::round(degrees * 1e6) / 1e6;
}

OpenMapRelease::Position bounded(double longitude, double latitude) {
    return {sixDecimals(std::clamp(longitude, westDegrees, eastDegrees)),
            sixDecimals(std::clamp(latitude, southDegrees, northDegrees))};
}

struct Heading {
    double east;
    double north;
};

Heading unitHeading(double east, double north) {
    const double length = std::sqrt(east * east + north * north);
    return length > 0 ? Heading{east / length, north / length} : Heading{1, 0};
}

} // namespace

const SyntheticArea& syntheticArea(RandomSequence& random) {
    std::size_t total = 0;
    for (const SyntheticArea& area : areas) {
        total += area.weight;
    }
    std::size_t drawn = random.below(total);
    for (const SyntheticArea& area : areas) {
        if (drawn < area.weight) {
            return area;
        }
        drawn -= area.weight;
    }
    return areas.front();
}

OpenMapRelease::Position syntheticPoint(const SyntheticArea& area, RandomSequence& random) {
    // A degree of longitude is about 0.6 degrees of latitude wide at these latitudes.
    const double longitude = area.longitude + area.reach * 1.7 * random.bell();
    const double latitude = area.latitude + area.reach * random.bell();
    return bounded(longitude, latitude);
}

OpenMapRelease::Route syntheticRoute(OpenMapRelease::Position start,
                                     std::size_t points,
                                     double lengthDegrees,
                                     RandomSequence& random) {
    const double step = lengthDegrees / static_cast<double>(points - 1);
    Heading heading = unitHeading(random.between(-1, 1), random.between(-1, 1));
    double bend = 0;
    double longitude = start.longitude;
    double latitude = start.latitude;
    OpenMapRelease::Route route;
    route.reserve(points);
    route.push_back(bounded(longitude, latitude));
    while (route.size() < points) {
        bend = 0.85 * bend + 0.09 * random.bell();
        heading =
            unitHeading(heading.east - bend * heading.north, heading.north + bend * heading.east);
        const double nextLongitude = longitude + 1.6 * step * heading.east;
        const double nextLatitude = latitude + step * heading.north;
        if (nextLongitude < westDegrees || nextLongitude > eastDegrees) {
            heading.east = -heading.east;
        }
        if (nextLatitude < southDegrees || nextLatitude > northDegrees) {
            heading.north = -heading.north;
        }
        longitude += 1.6 * step * heading.east;
        latitude += step * heading.north;
        route.push_back(bounded(longitude, latitude));
    }
    return route;
}

} // namespace vasker
