#include "map/view/MapView.h"

namespace vasker {

MapView::MapView(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

} // namespace vasker
