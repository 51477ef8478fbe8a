import QtQuick
import Vasker.Map
import Vasker.Platform

// The colours of texts over the map. Imagery is dark in either theme.
QtObject {
    required property MapStatus status

    readonly property color text: status.showsImagery ? Theme.darkColors.text : Theme.colors.text
    readonly property color text2: status.showsImagery ? text : Theme.colors.text2
    readonly property color halo: status.halo
}
