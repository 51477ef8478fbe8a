import QtQuick
import Vasker.Platform

// A link in the accent colour, with an arrow that leads out of the program.
Link {
    id: root

    implicitWidth: label.implicitWidth + 4 + arrow.width
    implicitHeight: label.height

    Label {
        id: label

        anchors.left: parent.left
        width: Math.min(implicitWidth, root.width - 4 - arrow.width)
        wrapMode: Text.Wrap
        textStyle: Theme.type.captionMedium
        color: Theme.colors.accent
        text: root.text
    }
    Icon {
        id: arrow

        anchors.left: label.right
        anchors.leftMargin: 4
        y: label.height - Theme.type.captionMedium.lineHeight + Math.round((Theme.type.captionMedium.lineHeight - height) / 2)
        name: "link.out"
        transform: Scale {
            origin.x: arrow.width / 2
            xScale: root.LayoutMirroring.enabled ? -1 : 1
        }
        size: 12 * Theme.iconScale
        color: Theme.colors.accent
    }
}
