import QtQuick
import Vasker.Platform

// A link to a web page, which opens in the user's browser. Its address shows while it is pointed at.
Item {
    id: root

    required property string text
    required property string address

    signal activated

    function open(): void {
        root.activated();
        SystemBrowser.open(root.address);
    }

    implicitWidth: label.implicitWidth + 4 + arrow.width
    implicitHeight: label.height
    activeFocusOnTab: true

    Accessible.role: Accessible.Link
    Accessible.name: root.text
    Accessible.description: root.address
    Accessible.ignored: !root.visible
    Accessible.focusable: true
    Accessible.onPressAction: root.open()
    Keys.onSpacePressed: root.open()
    Keys.onReturnPressed: root.open()
    Keys.onEnterPressed: root.open()

    FocusRing {
        around: 4
    }
    Label {
        id: label

        width: Math.min(implicitWidth, root.width - 4 - arrow.width)
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        textStyle: Theme.type.captionMedium
        color: Theme.colors.accent
        text: root.text
    }
    Icon {
        id: arrow

        x: label.width + 4
        y: label.height - Theme.type.captionMedium.lineHeight + Math.round((Theme.type.captionMedium.lineHeight - height) / 2)
        name: "link.out"
        size: 12 * Theme.iconScale
        color: Theme.colors.accent
    }
    Loader {
        id: tip
    }
    HoverHandler {
        cursorShape: Qt.PointingHandCursor
        onHoveredChanged: hovered ? tip.setSource("LinkAddress.qml", {
            "link": root,
            "text": root.address
        }) : tip.setSource("")
    }
    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.open()
    }
}
