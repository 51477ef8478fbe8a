import QtQuick
import Vasker.Platform

// The surface of a sheet: its title row, "Done", and the content below.
Item {
    id: root

    required property string title
    required property Component content
    required property bool atBottom
    required property bool atEnd
    required property bool atStart
    required property bool scrolled
    required property bool large
    // 0 gone, 1 in place.
    required property real shown
    required property size usualSize
    readonly property bool holdsFocus: holder.activeFocus
    // For assistive tools.
    readonly property bool modal: true
    readonly property bool atSide: atStart || atEnd
    readonly property bool atRight: atSide && atStart === LayoutMirroring.enabled
    readonly property real away: 1 - shown
    readonly property real largeHeight: Math.max(0, parent.height - 40)
    readonly property real mediumHeight: Math.min(usualSize.height, atBottom ? largeHeight : parent.height)

    signal dismissed
    signal resized(bool large)

    function open(): void {
        holder.made = root.content.createObject(holder, {
            "width": Qt.binding(() => holder.width),
            "height": Qt.binding(() => holder.height)
        }) as Item;
    }
    function close(): void {
        holder.made.visible = false;
        holder.made.destroy();
    }
    function focusDone(): void {
        done.forceActiveFocus(Qt.PopupFocusReason);
    }

    width: Math.min(parent.width, usualSize.width)
    height: Math.round(mediumHeight + (atBottom ? (largeHeight - mediumHeight) * grabber.reach : 0))
    x: atRight ? parent.width - width - 16 + 24 * away : atSide ? 16 - 24 * away : Math.round((parent.width - width) / 2)
    y: atBottom ? parent.height - height * shown + grabber.pulled : atSide ? 16 : Math.round((parent.height - height) / 2) + 16 * away
    opacity: atBottom ? 1 : shown
    Accessible.role: Accessible.Dialog
    Accessible.name: root.title
    Accessible.ignored: !root.visible

    RaisedSurface {
        width: parent.width
        // At the bottom its lower corners are below the edge of the window.
        height: parent.height + (root.atBottom ? radius : 0)
        radius: Theme.sheetRadius
        level: 3
        color: Theme.colors.sheet
        solid: root.opacity === 1
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
    }
    Item {
        id: titleRow

        width: parent.width
        height: Math.max(Theme.headerHeight, title.implicitHeight + 20)

        SheetGrabber {
            id: grabber

            visible: root.atBottom
            anchors.horizontalCenter: parent.horizontalCenter
            handle: titleRow
            large: root.large
            travel: root.largeHeight - root.mediumHeight
            onMoved: large => root.resized(large)
            onPulledDown: root.dismissed()
        }
        Label {
            id: title

            anchors.centerIn: parent
            width: parent.width - 2 * (done.width + 24)
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            textStyle: Theme.type.headline
            text: root.title
        }
        PlainButton {
            id: done

            anchors.right: parent.right
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            label: qsTr("Done")
            onClicked: root.dismissed()
        }
        Rectangle {
            visible: root.scrolled
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.colors.line
        }
    }
    FocusScope {
        id: holder

        property Item made

        anchors.top: titleRow.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
    }
}
