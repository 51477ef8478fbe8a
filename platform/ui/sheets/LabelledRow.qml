import QtQuick
import Vasker.Platform

// A label and its value, side by side; the value below its label where it needs more room.
SectionRow {
    id: root

    required property string label
    required property string value
    // Whether the value is what a search found.
    property bool found: false

    Accessible.role: Accessible.StaticText
    Accessible.description: root.found ? qsTr("Found by the search") : ""
    Accessible.name: qsTr("%1: %2").arg(root.label).arg(root.value)
    Accessible.ignored: !root.visible

    Item {
        id: pair

        // Half of the list, whose edges are 34 away on both sides.
        readonly property real half: (width + 68) / 2
        readonly property bool stacked: valueText.isLong || valueText.implicitWidth > half || labelText.implicitWidth + 16 + valueText.implicitWidth > width

        width: parent.width
        height: valueText.y + valueText.height

        Label {
            id: labelText

            anchors.left: parent.left
            width: Math.min(implicitWidth, parent.width)
            wrapMode: Text.Wrap
            text: root.label
        }
        WholeText {
            id: valueText

            y: pair.stacked ? labelText.height + 2 : 0
            anchors.right: parent.right
            width: pair.stacked ? parent.width : implicitWidth
            textStyle: root.found ? Theme.type.headline : Theme.type.body
            color: Theme.colors.text2
            content: root.value
        }
    }
}
