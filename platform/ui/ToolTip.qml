import QtQuick
import QtQuick.Window
import Vasker.Platform

// What a control without a visible label is called, below it and within the window, once the pointer
// rests there.
Rectangle {
    id: root

    required property string text
    property bool wanted: false
    property real mostWidth: 480

    visible: false
    z: 10
    y: parent.height + 4
    width: label.width + 20
    height: label.implicitHeight + 12
    radius: Theme.menuRowRadius
    color: Theme.colors.raised
    border.width: 1
    border.color: Theme.colors.controlLine

    onWantedChanged: wanted ? delay.restart() : hide()

    function show(): void {
        const room = root.Window.width - 4 - parent.mapToItem(null, 0, 0).x - width;
        x = Math.round(Math.min((parent.width - width) / 2, room));
        visible = true;
    }
    function hide(): void {
        delay.stop();
        visible = false;
    }

    Timer {
        id: delay

        interval: 600
        onTriggered: root.show()
    }
    Label {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.mostWidth - 20)
        wrapMode: Text.Wrap
        textStyle: Theme.type.caption
        text: root.text
    }
}
