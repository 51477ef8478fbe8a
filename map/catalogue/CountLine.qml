import QtQuick
import Vasker.Platform

// How many records are shown; opens the list of them.
Button {
    id: root

    objectName: "open-map-count"
    implicitHeight: implicitContentHeight + 8
    horizontalPadding: 8
    verticalPadding: 4
    radius: Theme.menuRowRadius
    Accessible.description: qsTr("Opens the list of records")

    contentItem: Label {
        wrapMode: Text.Wrap
        textStyle: Theme.type.caption
        color: Theme.colors.text2
        text: root.label
    }
}
