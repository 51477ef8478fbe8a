#pragma once
// What a picture of the map shows instead of a sprite: drawn anew by a painter, so that it is sharp
// at any size. Owns all that it uses; any thread.

#include <functional>

class QPainter;

namespace vasker {

/// Draws in item pixels and leaves the painter's state as it was.
using Shape = std::function<void(QPainter& painter)>;

} // namespace vasker
