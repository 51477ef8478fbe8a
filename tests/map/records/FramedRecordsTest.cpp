// Every record of the packaged release, framed in windows of many sizes. What must be seen is
// computed here anew, from the degrees.

#include "map/records/Framing.h"
#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

namespace vasker {
namespace {

const OpenMapRelease& packagedRelease() {
    static const OpenMapRelease release = [] {
        std::ostringstream bytes;
        bytes << std::ifstream(VASKER_RESOURCES "/OpenMap.json", std::ios::binary).rdbuf();
        return decoded(bytes.str());
    }();
    return release;
}

/// A fraction of the world: Web Mercator as EPSG:3857 states it, ln(tan(pi/4 + latitude/2)).
struct Fraction {
    double x;
    double y;
};

Fraction project(double latitudeDegrees, double longitudeDegrees) {
    const double pi = std::acos(-1.0);
    const double latitude = latitudeDegrees * pi / 180;
    return {longitudeDegrees / 360 + 0.5,
            0.5 - std::log(std::tan(pi / 4 + latitude / 2)) / (2 * pi)};
}

/// What of the world must be seen, in fractions of it.
struct Bounds {
    double west = 9;
    double north = 9;
    double east = -9;
    double south = -9;

    void add(Fraction f) {
        west = std::min(west, f.x);
        north = std::min(north, f.y);
        east = std::max(east, f.x);
        south = std::max(south, f.y);
    }
};

Bounds boundsOf(const OpenMapRelease::Asset& asset) {
    Bounds bounds;
    bool hasVertex = false;
    for (const auto& route : asset.routes) {
        for (const auto& position : route) {
            hasVertex = true;
            bounds.add(project(position.latitude, position.longitude));
        }
    }
    if (!hasVertex) {
        bounds.add(project(asset.latitude + 0.2, asset.longitude - 0.3));
        bounds.add(project(asset.latitude - 0.2, asset.longitude + 0.3));
    }
    return bounds;
}

/// The map's part of windows from the smallest to a large one, less the strip below it.
constexpr Viewport shapes[] = {{579, 568, 52, 0},
                               {579, 568, 68, 240},
                               {959, 748, 36, 0},
                               {1599, 1028, 36, 0},
                               {2239, 1388, 36, 0}};

TEST(FramedRecords, EveryRecordOfTheReleaseIsSeenWholeInTheFreePartOfEveryWindow) {
    ASSERT_GT(packagedRelease().assets.size(), 1000U);
    for (const auto& asset : packagedRelease().assets) {
        const Bounds bounds = boundsOf(asset);
        for (const Viewport& shape : shapes) {
            const Camera camera(framing(asset), shape);
            ASSERT_TRUE(camera.isUpright());
            const double freeWidth = shape.width - shape.coveredRight;
            const double freeHeight = shape.height - shape.coveredBelow;
            const double worldPixels = camera.scale() * worldSize;
            const double middleX = camera.center().x / worldSize;
            const double middleY = camera.center().y / worldSize;
            const double left = freeWidth / 2 + (bounds.west - middleX) * worldPixels;
            const double right = freeWidth / 2 + (bounds.east - middleX) * worldPixels;
            const double top = freeHeight / 2 + (bounds.north - middleY) * worldPixels;
            const double bottom = freeHeight / 2 + (bounds.south - middleY) * worldPixels;
            ASSERT_GE(left, -0.001) << asset.name;
            ASSERT_GE(top, -0.001) << asset.name;
            ASSERT_LE(right, freeWidth + 0.001) << asset.name;
            ASSERT_LE(bottom, freeHeight + 0.001) << asset.name;
        }
    }
}

TEST(FramedRecords, NoRecordIsShownSmallerThanItMustBe) {
    for (const auto& asset : packagedRelease().assets) {
        const Bounds bounds = boundsOf(asset);
        for (const Viewport& shape : shapes) {
            const Camera camera(framing(asset), shape);
            const double worldPixels = camera.scale() * worldSize;
            const double freeWidth = shape.width - shape.coveredRight;
            const double freeHeight = shape.height - shape.coveredBelow;
            const double across = (bounds.east - bounds.west) * worldPixels / freeWidth;
            const double down = (bounds.south - bounds.north) * worldPixels / freeHeight;
            // A facility's region fills the window one way; a route fills 1 of 1.3 parts.
            const double least = asset.hasRoute() ? 1 / 1.301 : 0.99;
            const bool isNearest = camera.scale() == Camera::maximumScale;
            ASSERT_TRUE(std::max(across, down) >= least || isNearest) << asset.name;
        }
    }
}

TEST(FramedRecords, AFacilityStandsInTheMiddleOfTheFreePart) {
    for (const auto& asset : packagedRelease().assets) {
        if (asset.hasRoute()) {
            continue;
        }
        const Camera camera(framing(asset), shapes[1]);
        const Fraction place = project(asset.latitude, asset.longitude);
        const ScreenPoint seen = camera.worldToScreen({place.x * worldSize, place.y * worldSize});
        ASSERT_NEAR(seen.x, (579 - 240) / 2.0, 0.001) << asset.name;
        ASSERT_NEAR(seen.y, (568 - 68) / 2.0, 0.001) << asset.name;
    }
}

} // namespace
} // namespace vasker
