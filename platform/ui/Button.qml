import QtQuick
import QtQuick.Templates as T
import Vasker.Platform

// What all buttons have in common: hover and press, the ring of the keyboard focus, keys, a tool tip
// and a name for assistive tools.
T.AbstractButton {
    id: root

    // What it is called. Not `text`, in which an ampersand makes a shortcut.
    required property string label
    property real radius: Theme.controlRadius
    // Whether what it has opened is there still.
    property bool opened: false
    // Shown while the pointer rests on it; empty: nothing is.
    property string tip
    property int tipPlace: ToolTip.Below
    // What the ring of the focus is around, or inside of.
    property Item ringed: root
    property bool ringInside: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: root.label
    Accessible.focusable: true
    Accessible.ignored: !root.visible
    Accessible.onPressAction: root.clicked()
    Keys.forwardTo: PressKeys {
        button: root
    }

    background: ButtonFill {
        radius: root.radius
        shown: root.hovered
        held: root.down || root.opened
    }
    FocusRing {
        parent: root.ringed
        around: root.radius
        inside: root.ringInside
        shown: root.activeFocus && FocusVisibility.visible
    }
    HoverTip {
        control: root
        shown: root.hovered && root.tip.length > 0
        tip: root.tip
        place: root.tipPlace
    }
}
