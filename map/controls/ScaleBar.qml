pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Platform

// The scale bar, with ticks at its ends and its middle, and its length.
Item {
    id: root

    required property real barLength
    required property string text
    required property MapTextColors colors

    implicitWidth: end.x + end.width
    implicitHeight: end.implicitHeight + 10
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("Scale: %1").arg(root.text)

    component Stroke: Rectangle {
        property bool wide: false
        property real across: 0
        property real down: 0
        property real reach: 0
        property bool upright: false
        readonly property real thick: wide ? 4 : 1.5

        x: across - thick / 2
        y: down - thick / 2
        width: (upright ? 0 : reach) + thick
        height: (upright ? reach : 0) + thick
        radius: thick / 2
        color: wide ? root.colors.halo : root.colors.text
    }
    component Strokes: Item {
        id: strokes

        property bool wide: false
        readonly property real foot: root.height - 2

        Stroke {
            wide: strokes.wide
            across: 0
            down: strokes.foot
            reach: root.barLength
        }
        Stroke {
            wide: strokes.wide
            across: 0
            down: strokes.foot - 7
            reach: 7
            upright: true
        }
        Stroke {
            wide: strokes.wide
            across: root.barLength
            down: strokes.foot - 7
            reach: 7
            upright: true
        }
        Stroke {
            wide: strokes.wide
            across: root.barLength / 2
            down: strokes.foot - 4
            reach: 4
            upright: true
        }
    }

    // One picture in one opacity: the halo's strokes cross.
    Strokes {
        wide: true
    }
    Strokes {}
    HaloText {
        x: -1
        text: "0"
        textStyle: Theme.type.mapNote
        color: root.colors.text
        halo: root.colors.halo
    }
    HaloText {
        id: end

        x: Math.round(root.barLength - implicitWidth / 2)
        text: root.text
        textStyle: Theme.type.mapNote
        color: root.colors.text
        halo: root.colors.halo
    }
}
