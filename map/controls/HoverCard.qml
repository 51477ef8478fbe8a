import QtQuick
import Vasker.Platform

// What the record under the pointer is, once the pointer rests on it.
Item {
    id: root

    // The mark's place on the map; the card stands above it, or below where that has no room.
    required property point place
    required property string name
    required property string caption
    required property real mapWidth

    readonly property bool needed: root.name.length > 0
    readonly property real gap: 14

    width: texts.width + 22
    height: texts.height + 14
    x: Math.round(Math.max(4, Math.min(root.place.x - width / 2, root.mapWidth - width - 4)))
    y: Math.round(root.place.y - height - root.gap < 4 ? root.place.y + root.gap + 8 : root.place.y - height - root.gap)
    visible: false
    enabled: false
    Accessible.ignored: true

    onNeededChanged: if (!needed) {
        hide();
    }
    // Later: where a timer starts, all that is animated takes a step, and a map that moves under the
    // pointer may have another record there. The linter takes the function for a property.
    onNameChanged: Qt.callLater(root.prepare) // qmllint disable

    function prepare(): void {
        if (needed && !visible) {
            delay.restart();
        }
    }
    function hide(): void {
        delay.stop();
        visible = false;
    }

    Timer {
        id: delay

        interval: 120
        onTriggered: root.visible = true
    }
    RaisedSurface {
        anchors.fill: parent
        radius: Theme.controlRadius
    }
    Column {
        id: texts

        readonly property real most: 258

        x: 11
        y: 7
        width: Math.min(most, Math.max(nameText.implicitWidth, captionText.implicitWidth))

        Label {
            id: nameText

            width: Math.min(implicitWidth, texts.most)
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            textStyle: Theme.type.subheadline
            text: root.name
        }
        Label {
            id: captionText

            width: Math.min(implicitWidth, texts.most)
            wrapMode: Text.Wrap
            textStyle: Theme.type.captionLine
            color: Theme.colors.text2
            text: root.caption
        }
    }
}
