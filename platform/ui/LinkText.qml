import QtQuick
import Vasker.Platform

// A link in the accent colour, with an arrow that leads out of the program.
Link {
    id: root

    implicitWidth: label.isLong ? parent?.width ?? 0 : label.implicitWidth + 4 + arrow.width
    implicitHeight: label.height

    WholeText {
        id: label

        anchors.left: parent.left
        width: label.isLong ? root.width - 4 - arrow.width : Math.min(implicitWidth, root.width - 4 - arrow.width)
        textStyle: Theme.type.captionMedium
        color: Theme.colors.accent
        content: root.text
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
