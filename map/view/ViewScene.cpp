#include "map/view/ViewScene.h"

#include "map/view/MapView.h"
#include "platform/Locale.h"

#include <QLocale>

namespace vasker {

MapLanguage mapLanguage() {
    static const bool isFrench = QLocale(messagesLocale()).language() == QLocale::French;
    return isFrench ? MapLanguage::french : MapLanguage::english;
}

MapScene sceneOf(const MapView& view, double devicePixels) {
    MapScene scene{.records = view.records(),
                   .selection = view.selection(),
                   .language = mapLanguage(),
                   .state = {},
                   .camera = view.resolvedCamera(),
                   .tiles = qobject_cast<TileLibrary*>(view.tiles())};
    scene.state.devicePixels = devicePixels;
    scene.state.theme = basemapTheme(view.basemap(), view.dark());
    scene.state.textScale = view.textScale();
    return scene;
}

} // namespace vasker
