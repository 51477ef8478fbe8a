import QtQuick
import Vasker.Platform

// Makes a tool tip when it is needed. Not by a component: Qt 6.4 makes none that stands in a type
// from which another one derives.
Loader {
    id: root

    required property Item control
    required property bool shown
    required property string tip
    property int place: ToolTip.Below

    onShownChanged: shown ? setSource("ToolTip.qml", {
        "parent": control,
        "text": tip,
        "place": place
    }) : setSource("")
}
