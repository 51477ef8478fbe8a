import QtQuick
import Vasker.Platform

// Shown for good when the release cannot be opened. There is nothing to press.
Item {
    id: root

    required property string description

    objectName: "open-map-error"
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title.text
    Accessible.description: root.description
    Accessible.ignored: !root.visible

    Column {
        id: column

        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.max(16, Math.round((parent.height - height) / 2) - 16)
        width: Math.min(384 * Theme.textScale, parent.width - 48)

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "map"
            size: 64 * Theme.iconScale
            color: Theme.colors.text3
        }
        Item {
            width: 1
            height: 18
        }
        Label {
            id: title

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            textStyle: Theme.type.title2
            text: qsTr("Map unavailable")
            spoken: true
        }
        Item {
            width: 1
            height: 6
        }
        SelectableText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            textStyle: Theme.type.field
            color: Theme.colors.text2
            text: root.description
        }
    }
}
