#include "map/geometry/KeyNavigation.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

/// In pixels, doublings of the scale, or degrees.
struct AxisRate {
    double step;  ///< of a short press
    double speed; ///< a second
};

// By NavigationAxis.
constexpr std::array<AxisRate, 5> rates{{{100, 600}, {100, 600}, {1, 3.5}, {15, 90}, {10, 60}}};
/// From full speed to rest, at least.
constexpr double shortestStop = 0.16;

constexpr std::array axes{NavigationAxis::right,
                          NavigationAxis::down,
                          NavigationAxis::nearer,
                          NavigationAxis::clockwise,
                          NavigationAxis::back};

const AxisRate& rateOf(NavigationAxis axis) {
    return rates[static_cast<std::size_t>(axis)]; // NOLINT(*-constant-array-index): an enumerator
}

Camera moved(const Camera& camera, NavigationAxis axis, double length) {
    switch (axis) {
    case NavigationAxis::right:
        return camera.panned(length, 0);
    case NavigationAxis::down:
        return camera.panned(0, length);
    case NavigationAxis::nearer:
        return camera.zoomed(std::exp2(length), camera.focus());
    case NavigationAxis::clockwise:
        return camera.rotated(length, camera.focus());
    case NavigationAxis::back:
        return camera.tilted(length);
    }
    return camera;
}

} // namespace

Camera stepped(const Camera& camera, NavigationAxis axis, int direction) {
    return moved(camera, axis, direction * rateOf(axis).step);
}

double KeyNavigation::Way::rest(double speed) const noexcept {
    const double made = speed * (released - pressed);
    return std::max(least - made, speed * shortestStop / 2);
}

double KeyNavigation::Way::lengthAt(double seconds, double speed) const noexcept {
    if (seconds <= released) {
        return speed * (seconds - pressed);
    }
    // From full speed evenly slower, so that the rest ends at rest.
    const double duration = 2 * rest(speed) / speed;
    const double time = std::min(seconds - released, duration);
    return speed * (released - pressed) + speed * time * (1 - time / (2 * duration));
}

void KeyNavigation::rebase(double seconds) {
    m_start = cameraAt(seconds);
    for (const NavigationAxis axis : axes) {
        Way& each = way(axis);
        each.counted = each.direction == 0 ? 0 : each.lengthAt(seconds, rateOf(axis).speed);
    }
}

void KeyNavigation::press(NavigationAxis axis, int direction, double seconds) {
    Way& old = way(axis);
    if (old.direction == direction && old.released == never) {
        return; // by another key already
    }
    rebase(seconds);
    double least = rateOf(axis).step;
    if (old.direction == direction) { // a step on top of what is left of the last one
        const double speed = rateOf(axis).speed;
        least += std::max(0.0, old.lengthAt(never, speed) - old.counted);
    }
    old = {direction, seconds, never, least, 0};
}

void KeyNavigation::release(NavigationAxis axis, int direction, double seconds) {
    Way& each = way(axis);
    if (each.direction == direction && each.released == never) {
        each.released = seconds;
    }
}

void KeyNavigation::releaseAll(double seconds) {
    for (const NavigationAxis axis : axes) {
        release(axis, way(axis).direction, seconds);
    }
}

Camera KeyNavigation::cameraAt(double seconds) const {
    Camera camera = m_start;
    for (const NavigationAxis axis : axes) {
        const Way& each = m_ways[static_cast<std::size_t>(axis)]; // NOLINT(*-constant-array-index)
        if (each.direction != 0) {
            const double length = each.lengthAt(seconds, rateOf(axis).speed) - each.counted;
            camera = moved(camera, axis, each.direction * length);
        }
    }
    return camera;
}

bool KeyNavigation::isFinished(double seconds) const noexcept {
    return std::ranges::all_of(axes, [&](NavigationAxis axis) {
        const Way& each = m_ways[static_cast<std::size_t>(axis)]; // NOLINT(*-constant-array-index)
        const double speed = rateOf(axis).speed;
        return each.direction == 0 || seconds >= each.released + 2 * each.rest(speed) / speed;
    });
}

} // namespace vasker
