import QtQuick
import Vasker.Platform

// The bar over the map: the title, and the buttons at the trailing edge. When room runs out the
// title goes first, then the labels of the buttons.
Rectangle {
    id: root

    readonly property real buttonsWidth: reset.fullWidth
    readonly property bool labelsVisible: width >= buttonsWidth + 24
    readonly property bool titleVisible: width >= buttonsWidth + 12 + 20 + title.implicitWidth + 20

    signal cameraReset

    implicitHeight: Theme.headerHeight
    color: Theme.window

    Label {
        id: title

        visible: root.titleVisible
        x: 20
        anchors.verticalCenter: parent.verticalCenter
        textStyle: Theme.headline
        text: qsTr("Vasker Beta")
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        HeaderButton {
            id: reset

            objectName: "open-map-reset"
            icon: "globe.americas"
            text: qsTr("Canada")
            labelVisible: root.labelsVisible
            onClicked: root.cameraReset()
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.line
    }
}
