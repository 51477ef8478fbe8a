#include "map/view/ViewScene.h"

#include "map/view/MapView.h"
#include "platform/Locale.h"

namespace vasker {

MapScene sceneOf(MapView& view, double devicePixels) {
    MapScene scene{.records = view.records(),
                   .selection = view.selection(),
                   .language = mapLanguage(messagesLocale()),
                   .state = {},
                   .camera = view.resolvedCamera(),
                   .tiles = qobject_cast<TileLibrary*>(view.tiles())};
    scene.state.devicePixels = devicePixels;
    scene.state.theme = view.status()->theme();
    scene.state.textScale = view.property("textScale").toDouble();
    return scene;
}

} // namespace vasker
