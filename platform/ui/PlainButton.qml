import QtQuick
import Vasker.Platform

// A button that is a word in the accent colour.
Button {
    id: root

    implicitWidth: title.implicitWidth + 24

    Label {
        id: title

        anchors.centerIn: parent
        textStyle: Theme.type.headline
        color: Theme.colors.accent
        text: root.label
    }
}
