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

    component Half: Button {
        id: half

        required property string symbol
        property bool atEnd: false

        implicitWidth: 40
        implicitHeight: 40
        radius: 10
        ringInside: true
        tip: label
        tipPlace: ToolTip.Beside

        background: Item {
            ButtonFill {
                visible: !half.atEnd
                anchors.fill: parent
                anchors.margins: 3
                radius: 7
                shown: half.hovered
                held: half.down
            }
        }
        contentItem: Item {
            Icon {
                anchors.centerIn: parent
                name: half.symbol
                size: 20
                color: half.atEnd ? Theme.colors.text3 : Theme.colors.text
            }
        }
    }

    RaisedSurface {
        anchors.fill: parent
        radius: 10
        level: 1
    }
    Rectangle {
        y: 40
        width: parent.width
        height: 1
        color: Theme.colors.pressed
    }
    Half {
        objectName: "open-map-zoom-in"
        symbol: "plus"
        label: qsTr("Zoom in")
        atEnd: root.nearest
        onClicked: root.zoomedIn()
    }
    Half {
        objectName: "open-map-zoom-out"
        y: 40
        symbol: "minus"
        label: qsTr("Zoom out")
        atEnd: root.farthest
        onClicked: root.zoomedOut()
    }
}
