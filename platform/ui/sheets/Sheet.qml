pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import Vasker.Platform

// A surface over the whole of its window, to be finished with before anything else. It slides in
// when it is requested and takes the focus; when it is not requested any more it slides out and gives the
// focus back. What lies behind belongs into a Backdrop that is covered while `onScreen`.
FocusScope {
    id: root

    enum Placement {
        Centered,
        Trailing,
        Leading,
        BottomEdge
    }

    required property string title
    // Made when the sheet opens, gone after it has closed. It may take the focus when it is
    // completed; else the focus is on "Done".
    required property Component content
    property bool requested: false
    property int placement: Sheet.Centered
    property real preferredWidth: 560
    property real preferredHeight: Math.max(0, height - 80)
    property real minimumWidth: 0
    property real minimumHeight: 0
    // Whether content has gone below the title row.
    property bool scrolled: false
    // A sheet at the bottom has two heights: its preferred one and, when it is large, nearly all.
    property bool large: false
    property string identifier
    // From when it is requested until it has left the screen completely.
    property bool onScreen: false

    property real shown: 0
    property Item focusedBefore: null

    // The user is done with it.
    signal dismissed
    // It has left the screen completely; the focus is back where it was.
    signal closed

    function enter(): void {
        root.enabled = true;
        if (!root.onScreen) {
            root.focusedBefore = root.Window.activeFocusItem;
            root.onScreen = true;
            frame.open();
        }
        root.forceActiveFocus(Qt.PopupFocusReason);
        if (!frame.holdsFocus) {
            frame.focusDone();
        }
        root.move(1, root.placement === Sheet.BottomEdge ? Theme.riseDuration : Theme.sheetDuration, Easing.OutCubic);
    }
    function leave(): void {
        root.enabled = false;
        root.move(0, Theme.leaveDuration, Easing.InCubic);
    }
    function move(to: real, duration: int, easing: int): void {
        motion.stop();
        if (Theme.still) {
            root.shown = to;
            stillPause.restart();
            return;
        }
        motion.to = to;
        motion.duration = duration;
        motion.easing.type = easing;
        motion.start();
    }
    function settle(): void {
        if (root.requested || !root.onScreen) {
            return;
        }
        const before = root.focusedBefore;
        root.focusedBefore = null;
        frame.close();
        root.large = false;
        root.scrolled = false;
        root.onScreen = false;
        // Not "before?.": after a store, what Qt 6.4 compiles of that breaks its garbage collection.
        if (before) {
            before.forceActiveFocus(Qt.PopupFocusReason);
        }
        root.closed();
    }

    anchors.fill: parent
    visible: onScreen
    enabled: false
    z: 50

    onRequestedChanged: requested ? enter() : leave()
    Keys.onEscapePressed: root.dismissed()

    NumberAnimation {
        id: motion

        target: root
        property: "shown"
        onFinished: root.settle()
    }
    // Where nothing moves it is gone as soon as what asked for that is done.
    Timer {
        id: stillPause

        interval: 0
        onTriggered: root.settle()
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onClicked: mouse => {
            if (mouse.button === Qt.LeftButton) {
                root.dismissed();
            }
        }
        // The second half of a double click that began on what opened the sheet.
        onDoubleClicked: mouse => mouse.accepted = true
        onWheel: wheel => wheel.accepted = true

        Rectangle {
            anchors.fill: parent
            color: frame.atSide ? Theme.colors.sideScrim : Theme.colors.scrim
            opacity: root.shown
        }
    }
    SheetFrame {
        id: frame

        objectName: root.identifier
        title: root.title
        content: root.content
        atBottom: root.placement === Sheet.BottomEdge
        atEnd: root.placement === Sheet.Trailing
        atStart: root.placement === Sheet.Leading
        scrolled: root.scrolled
        large: root.large
        shown: root.shown
        usualSize: Qt.size(Math.max(root.minimumWidth, root.preferredWidth), Math.max(root.minimumHeight, root.preferredHeight))
        onDismissed: root.dismissed()
        onResized: large => root.large = large
    }
}
