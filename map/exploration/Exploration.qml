import QtQuick
import Vasker.Map

// What the map shows and announces to people who use it by keys, and to all where no record is in
// view. It fills the free part of the map.
Item {
    id: root

    required property MapView map
    required property MapTextColors colors
    // Whether the map has the keyboard, and it shows.
    property bool steered: false
    // How wide and high is what stands in the lower corners.
    property real cornerWidth: 0
    property real cornerHeight: 0
    readonly property NearestPill pill: pill

    signal spoken(string text)
    signal moved(cameraPosition camera)
    signal picked(string id)

    // How far above the lower edge a pill that wide stands clear of the corners, in the middle.
    function clearance(width: real): real {
        return 12 + (width / 2 + 12 > root.width / 2 - root.cornerWidth ? root.cornerHeight + 8 : 0);
    }
    // The same of one above the pill of the nearest record.
    function clearanceAbovePill(width: real): real {
        return Math.max(root.clearance(width), pill.visible ? pill.anchors.bottomMargin + pill.height + 8 : 0);
    }

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
        anchors.bottomMargin: root.clearance(width)
        maximumWidth: root.width - 24
        nearest: NearestRecord {
            map: root.map
            onMoved: camera => root.moved(camera)
        }
    }
}
