#pragma once
// One colour below everything.

#include <QColor>

namespace vasker {

struct BackgroundLayer {
    QColor color;
};

} // namespace vasker
