import QtQuick
import Vasker.Platform

// The colours of what is written straight on the map. Photographs are dark in either appearance.
QtObject {
    property bool overImagery: false

    readonly property color text: overImagery ? "#ECEEF0" : Theme.colors.text
    readonly property color text2: overImagery ? "#ECEEF0" : Theme.colors.text2
    readonly property color halo: overImagery ? "#D10A0F14" : (Theme.dark ? "#EB1E2328" : "#EBFAF9F6")
}
