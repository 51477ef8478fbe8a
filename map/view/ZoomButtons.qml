import QtQuick
import Vasker.Platform

// Nearer and farther.
Item {
    id: root

    property bool nearest: false
    property bool farthest: false


    signal zoomedIn
    signal zoomedOut

    implicitWidth: 40
    implicitHeight: 80

    component Half: Item {
        id: half

        required property string icon
        required property string text
        property bool atEnd: false

        signal clicked

        width: 40
        height: 40
        activeFocusOnTab: true
        Accessible.role: Accessible.Button
        Accessible.name: half.text
        Accessible.focusable: true
        Accessible.onPressAction: half.clicked()
        Keys.onSpacePressed: half.clicked()
        Keys.onReturnPressed: half.clicked()
        Keys.onEnterPressed: half.clicked()

        Rectangle {
            anchors.fill: parent
            anchors.margins: 3
            radius: 7
            color: tap.pressed ? Theme.colors.pressed : Theme.colors.hover
            visible: !half.atEnd && (hover.hovered || tap.pressed)
        }
        Icon {
            anchors.centerIn: parent
            name: half.icon
            size: 20
            color: half.atEnd ? Theme.colors.text3 : Theme.colors.text
        }
        FocusRing {
            around: 10
            inside: true
        }
        ToolTip {
            x: -width - 6
            y: Math.round((parent.height - height) / 2)
            text: half.text
            wanted: hover.hovered
        }
        HoverHandler {
            id: hover

            cursorShape: Qt.ArrowCursor
        }
        TapHandler {
            id: tap

            gesturePolicy: TapHandler.ReleaseWithinBounds
            onTapped: half.clicked()
        }
    }

    Shadow {
        anchors.fill: parent
        radius: 10
        dark: Theme.dark
        level: 1
    }
    Rectangle {
        anchors.fill: parent
        radius: 10
        color: Theme.colors.raised
    }
    Rectangle {
        y: 40
        width: parent.width
        height: 1
        color: Theme.colors.pressed
    }
    Half {
        objectName: "open-map-zoom-in"
        icon: "plus"
        text: qsTr("Zoom in")
        atEnd: root.nearest
        onClicked: root.zoomedIn()
    }
    Half {
        objectName: "open-map-zoom-out"
        y: 40
        icon: "minus"
        text: qsTr("Zoom out")
        atEnd: root.farthest
        onClicked: root.zoomedOut()
    }
}
