import QtQuick
import Vasker.Platform

// Opens a web page in the user's browser; its address shows while it is hovered, or that no browser was
// found. To assistive tools a button of Qt's templates is a button whatever its role: this is none of
// them.
Item {
    id: root

    required property string text
    // Empty: it is only a text.
    required property string address
    property bool addressShown: true
    readonly property bool hovered: hover.hovered
    readonly property bool unopened: root.enabled && SystemBrowser.unopened === root.address

    signal activated

    function open(): void {
        root.activated();
        SystemBrowser.open(root.address);
    }

    enabled: address.length > 0
    activeFocusOnTab: true
    Accessible.role: root.enabled ? Accessible.Link : Accessible.StaticText
    Accessible.name: root.text
    Accessible.description: root.unopened ? SystemBrowser.message : root.address
    Accessible.ignored: !root.visible
    Accessible.focusable: root.enabled
    Accessible.onPressAction: root.open()
    Keys.onPressed: event => {
        event.accepted = [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter].includes(event.key);
        if (event.accepted && !event.isAutoRepeat) {
            root.open();
        }
    }

    FocusRing {
        around: 4
    }
    HoverTip {
        control: root
        shown: root.unopened ? root.hovered || root.activeFocus : root.hovered && root.addressShown
        tip: root.unopened ? SystemBrowser.message : root.address
        place: ToolTip.AtStart
    }
    HoverHandler {
        id: hover

        cursorShape: Qt.PointingHandCursor
    }
    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.open()
    }
}
