import QtQuick
import Vasker.Map
import Vasker.Platform

// The map with everything on it: caption strip, compass, zoom, scale and attribution.
MapView {
    id: root

    readonly property string captionText: caption.text
    readonly property bool mirrored: LayoutMirroring.enabled
    readonly property Exploration exploration: exploring
    // What lies over the map from either edge on, in logical pixels.
    property real coveredAtStart: 0
    property real coveredAtEnd: 0

    // To screen readers.
    signal spoken(string text)

    objectName: "open-map-canvas"
    coveredLeft: mirrored ? coveredAtEnd : coveredAtStart
    coveredRight: mirrored ? coveredAtStart : coveredAtEnd
    coveredBelow: caption.height
    dark: Theme.dark
    highContrast: Theme.highContrast
    reducedMotion: Theme.still
    textScale: Theme.textScale
    controls: [bar, attribution, compass, zoom, exploring.pill]
    activeFocusOnTab: true
    Accessible.role: Accessible.Canvas
    Accessible.name: qsTr("Canadian energy infrastructure map")
    Accessible.description: qsTr("Arrow keys move the map, plus and minus zoom. Ctrl with an arrow key goes to the nearest record there; R and Shift+R go through the records in view. Enter opens the record.")
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

    Exploration {
        id: exploring

        anchors.fill: parent
        anchors.leftMargin: root.coveredAtStart
        anchors.rightMargin: root.coveredAtEnd
        anchors.bottomMargin: root.coveredBelow
        map: root
        colors: textColors
        steered: ring.shown
        cornerWidth: Math.max(14 + bar.width, 12 + attribution.width)
        cornerHeight: Math.max(bar.height, attribution.height + (attribution.isAboveScale ? bar.height + 6 : 0))
        onSpoken: text => root.spoken(text)
        onMoved: camera => root.moved(camera)
        onPicked: id => root.picked(id)
    }
    ScaleBar {
        id: bar

        anchors.left: parent.left
        anchors.leftMargin: 14 + root.coveredAtStart
        anchors.bottom: caption.top
        anchors.bottomMargin: 12
        barLength: readout.barLength
        text: readout.barText
        colors: textColors
    }
    Attribution {
        id: attribution

        anchors.right: parent.right
        anchors.rightMargin: 12 + root.coveredAtEnd
        anchors.bottom: caption.top
        anchors.bottomMargin: isAboveScale ? bar.anchors.bottomMargin + bar.height + 6 : 10
        room: parent.width - anchors.rightMargin - bar.anchors.leftMargin
        roomBesideScale: room - bar.width - 24
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
