import QtQuick
import Vasker.Platform

// Creates a tool tip when it is needed. It loads a file: Qt 6.4 cannot create a Component inside a
// type that another type derives from.
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
