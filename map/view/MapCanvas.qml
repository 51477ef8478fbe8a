import QtQuick
import Vasker.Map
import Vasker.Platform

// The map with all that lies over it: caption strip, compass, zoom, scale and attribution.
MapView {
    id: root

    readonly property string captionText: caption.text

    coveredBelow: caption.height
    dark: Theme.dark
    reducedMotion: Theme.still
    textScale: Theme.textScale
    controls: [bar, attribution, compass, zoom]
    activeFocusOnTab: true
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Canadian energy infrastructure map")
    Accessible.focusable: true
    onChoiceOffered: (records, place) => choice.offer(records, place)

    CameraReadout {
        id: readout

        map: root
    }
    MapTextColors {
        id: textColors

        status: root.status
    }

    // Imagery may be on its way: only after a while it is true to say that it is missing.
    Timer {
        id: imageryWait

        readonly property bool missing: root.status.lacksImagery || root.status.lacksSharperImagery
        property bool over: false

        interval: 2000
        onMissingChanged: {
            over = false;
            missing ? restart() : stop();
        }
        onTriggered: over = true
    }

    // Where Enter picks, for those who steer by keys.
    Rectangle {
        id: aim

        x: Math.round((root.width - root.coveredRight - width) / 2)
        y: Math.round((root.height - root.coveredBelow - height) / 2)
        width: 12
        height: 12
        radius: 6
        color: "transparent"
        border.width: 2
        border.color: Theme.colors.accent
        visible: ring.shown
    }
    ScaleBar {
        id: bar

        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.bottom: caption.top
        anchors.bottomMargin: 12
        barLength: readout.barLength
        text: readout.barText
        colors: textColors
    }
    Attribution {
        id: attribution

        anchors.right: parent.right
        anchors.rightMargin: 12 + root.coveredRight
        anchors.bottom: caption.top
        anchors.bottomMargin: 10
        maximumWidth: parent.width - anchors.rightMargin - bar.x - bar.width - 24
        note: !imageryWait.over ? "" : root.status.lacksImagery ? qsTr("Satellite imagery needs a network connection") : qsTr("Sharper imagery needs a network connection")
        links: root.status.attribution
        colors: textColors
    }
    Compass {
        id: compass

        objectName: "open-map-compass"
        anchors.right: parent.right
        // What covers the map there keeps it from use as well: no need to make way.
        anchors.rightMargin: 12
        y: 12
        bearing: readout.bearing
        pitch: readout.pitch
        upright: readout.upright
        onClicked: root.resetNorth()
    }
    ZoomButtons {
        id: zoom

        anchors.right: compass.right
        anchors.top: compass.bottom
        anchors.topMargin: 8
        nearest: readout.nearest
        farthest: readout.farthest
        onZoomedIn: root.zoomIn()
        onZoomedOut: root.zoomOut()
    }
    Caption {
        id: caption

        anchors.bottom: parent.bottom
        width: parent.width
    }
    HoverCard {
        place: root.hover.place
        name: root.hover.name
        caption: root.hover.caption
        mapWidth: root.width - root.coveredRight
    }
    PickList {
        id: choice

        anchor: root
        onPicked: id => root.picked(id)
    }
    FocusRing {
        id: ring

        around: 0
        inside: true
    }
}
