import QtQuick
import Vasker.App
import Vasker.Map
import Vasker.Platform

// How saving ended, or that it is under way. A success disappears by itself, a failure when it is
// pressed.
Button {
    id: root

    required property SaveCommands saves
    // It stands over the free part of it.
    required property MapCanvas map
    readonly property real maximumWidth: Math.min(480, map.width - map.coveredLeft - map.coveredRight - 24)

    objectName: "open-map-save-notice"
    anchors.horizontalCenter: map.horizontalCenter
    anchors.horizontalCenterOffset: (map.coveredLeft - map.coveredRight) / 2
    anchors.bottom: map.bottom
    anchors.bottomMargin: map.coveredBelow + map.exploration.clearanceAbovePill(width)
    label: root.saves.message
    visible: label.length > 0
    radius: 16
    implicitWidth: Math.min(text.implicitWidth + 24, maximumWidth)
    implicitHeight: text.implicitHeight + 14
    Accessible.role: Accessible.AlertMessage
    onClicked: root.saves.forget()

    background: RaisedSurface {
        radius: root.radius
    }
    Label {
        id: text

        x: 12
        y: 7
        width: root.width - 24
        wrapMode: Text.Wrap
        textStyle: Theme.type.footnote
        text: root.label
    }
    Timer {
        running: root.visible && !root.saves.failed && !root.saves.underWay
        interval: 4000
        onTriggered: root.saves.forget()
    }
}
