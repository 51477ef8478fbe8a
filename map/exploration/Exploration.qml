import QtQuick
import Vasker.Map

// What shows and tells of the map to those who steer by keys, and to all where no record is in view.
// It fills the free part of the map.
Item {
    id: root

    required property MapView map
    required property MapTextColors colors
    // Whether the map has the keyboard, and it shows.
    property bool steered: false
    readonly property Item pill: pill

    signal spoken(string text)
    signal moved(cameraPosition camera)
    signal picked(string id)

    MapExplorer {
        map: root.map
        onSpoken: text => root.spoken(text)
        onMoved: camera => root.moved(camera)
        onPicked: id => root.picked(id)
    }
    Crosshair {
        x: Math.round((root.width - width) / 2)
        y: Math.round((root.height - height) / 2)
        colors: root.colors
        // A record that is stood at has its card instead.
        visible: root.steered && root.map.hover.recordId.length === 0
    }
    NearestPill {
        id: pill

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        maximumWidth: root.width - 24
        nearest: NearestRecord {
            map: root.map
            onMoved: camera => root.moved(camera)
        }
    }
}
