import QtQuick
import QtQuick.Templates as T
import Vasker.Platform

// The tool tip of its parent, below it or beside it and within the window, once the pointer rests
// there. Where there is no room below it is above.
T.ToolTip {
    id: root

    enum Place {
        Below,
        AtStart,
        Beside
    }

    property int place: ToolTip.Below
    readonly property bool rightToLeft: parent.LayoutMirroring.enabled
    readonly property real start: rightToLeft ? parent.width - width : 0
    readonly property real before: rightToLeft ? parent.width + 6 : -width - 6

    x: place === ToolTip.Beside ? before : place === ToolTip.AtStart ? start : Math.round((parent.width - width) / 2)
    y: place === ToolTip.Beside ? Math.round((parent.height - height) / 2) : parent.height + 4
    margins: place === ToolTip.AtStart ? 8 : 4
    implicitWidth: Math.min(implicitContentWidth + 20, 480)
    implicitHeight: implicitContentHeight + 12
    horizontalPadding: 10
    verticalPadding: 6
    delay: 600
    Component.onCompleted: visible = true
    closePolicy: T.Popup.NoAutoClose

    contentItem: Label {
        wrapMode: Text.Wrap
        textStyle: Theme.type.caption
        text: root.text
    }
    background: Rectangle {
        radius: Theme.menuRowRadius
        color: Theme.colors.raised
        border.width: 1
        border.color: Theme.colors.controlLine
    }
}
