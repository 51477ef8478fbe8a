import QtQuick
import Vasker.Platform

// The colours of what is written straight on the map. Photographs are dark in either appearance.
QtObject {
    property bool overImagery: false

    readonly property color ink: overImagery ? "#ECEEF0" : Theme.ink
    readonly property color ink2: overImagery ? "#ECEEF0" : Theme.ink2
    readonly property color halo: overImagery ? "#D10A0F14" : (Theme.dark ? "#EB1E2328" : "#EBFAF9F6")
}
