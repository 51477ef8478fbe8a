#pragma once
// The vector form of a sprite: drawn by a painter, so that it is sharp at any size. Owns all that
// it uses; any thread.

#include <functional>

class QPainter;

namespace vasker {

/// Draws in item pixels and leaves the painter's state as it was.
using Shape = std::function<void(QPainter& painter)>;

} // namespace vasker
