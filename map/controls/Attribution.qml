pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Platform

// The attribution of the basemap in view: an optional note, then links, separated by dots; in
// several lines where the room is short.
Item {
    id: root

    // Of { text, address }; one without an address is read only.
    property var links: []
    property string note: ""
    // The room from edge to edge, and what the scale leaves of it.
    property real room: 1000
    property real roomBesideScale: room
    // Whether it is too long to stand beside the scale: then it stands above it.
    readonly property bool isAboveScale: measure.implicitWidth > roomBesideScale
    required property MapTextColors colors

    implicitWidth: Math.min(Math.ceil(measure.implicitWidth), isAboveScale ? room : roomBesideScale)
    implicitHeight: flow.implicitHeight

    component Piece: HaloText {
        textStyle: Theme.type.mapNote
        color: root.colors.text2
        halo: root.colors.halo
    }
    component Separator: Piece {
        text: " · "
    }

    // What all of it needs in one line.
    Row {
        id: measure

        opacity: 0

        Label {
            textStyle: Theme.type.mapNote
            text: root.note
        }
        Label {
            visible: noteEntry.separated
            textStyle: Theme.type.mapNote
            text: " · "
        }
        Repeater {
            model: root.links

            Row {
                id: measured

                required property var modelData
                required property int index

                Label {
                    textStyle: Theme.type.mapNote
                    text: measured.modelData.text
                }
                Label {
                    visible: measured.index < root.links.length - 1
                    textStyle: Theme.type.mapNote
                    text: " · "
                }
            }
        }
    }
    Flow {
        id: flow

        width: root.width

        Row {
            id: noteEntry

            readonly property bool separated: root.note.length > 0 && root.links.length > 0

            visible: root.note.length > 0

            Piece {
                text: root.note
                Accessible.role: Accessible.StaticText
                Accessible.name: root.note
                Accessible.ignored: !visible
            }
            Separator {
                visible: noteEntry.separated
            }
        }
        Repeater {
            model: root.links

            Row {
                id: entry

                required property var modelData
                required property int index

                Link {
                    id: link

                    objectName: "open-map-credit-" + entry.index
                    implicitWidth: piece.implicitWidth
                    implicitHeight: piece.implicitHeight
                    text: entry.modelData.text
                    address: entry.modelData.address
                    addressShown: false

                    Piece {
                        id: piece

                        text: link.text
                        underlined: link.enabled && link.hovered
                    }
                }
                Separator {
                    visible: entry.index < root.links.length - 1
                }
            }
        }
    }
}
