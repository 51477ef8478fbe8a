import QtQuick
import Vasker.Platform

// What a control without a visible label is called, below it, once the pointer rests there.
Rectangle {
    id: root

    required property string text
    property bool wanted: false

    visible: false
    z: 10
    x: Math.round((parent.width - width) / 2)
    y: parent.height + 4
    width: label.implicitWidth + 20
    height: label.implicitHeight + 12
    radius: Theme.menuRowRadius
    color: Theme.raised
    border.width: 1
    border.color: Theme.controlLine

    onWantedChanged: wanted ? delay.restart() : hide()

    function hide(): void {
        delay.stop();
        visible = false;
    }

    Timer {
        id: delay

        interval: 600
        onTriggered: root.visible = true
    }
    Label {
        id: label

        anchors.centerIn: parent
        textStyle: Theme.caption
        text: root.text
    }
}
