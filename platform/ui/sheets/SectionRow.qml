import QtQuick
import Vasker.Platform

// One row of a section: its content one below the other, a line above unless it is the first.
Item {
    id: root

    default property alias content: column.data
    property real spacing: 0
    property real padding: 10
    property bool separated: y > 0

    width: parent?.width ?? 0
    implicitHeight: column.height + 2 * root.padding

    Rectangle {
        visible: root.separated
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.right: parent.right
        anchors.rightMargin: 1
        height: 1
        color: Theme.colors.line
    }
    Column {
        id: column

        x: 14
        y: root.padding
        width: parent.width - 2 * x
        spacing: root.spacing
    }
}
