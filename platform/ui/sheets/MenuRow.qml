import QtQuick
import QtQuick.Templates as T
import Vasker.Platform

// One choice in a menu; the current one is filled, the chosen one marked. A symbol may stand before
// its label, and a note stands dimmed at its end. Picked, it closes the menu first.
T.MenuItem {
    id: root

    required property string label
    // How the keyboard reaches the same; the menu does not listen for it.
    property string note
    property string spokenNote: note
    // Whether it is one of several choices, and the one that is made.
    property bool choice: false
    property bool chosen: false
    // Whether the label leaves room for a mark before it.
    property bool indented: choice
    // The icon before the label, or the room for one: whether it has a place, its name and colour.
    property bool symbolic: false
    property string symbol
    property color symbolColor: Theme.colors.text2
    // A line stands above it.
    property bool startsGroup: false
    readonly property MenuList list: ListView.view as MenuList

    signal picked

    implicitWidth: title.anchors.leftMargin + title.implicitWidth + 10 + (note.length > 0 ? noteLabel.implicitWidth + 24 : 0)
    implicitHeight: topInset + Math.max(34 * Theme.iconScale, title.implicitHeight + 12)
    width: list?.width ?? 0
    topInset: startsGroup ? 9 : 0
    hoverEnabled: true
    Accessible.role: Accessible.MenuItem
    Accessible.name: root.label
    Accessible.description: root.spokenNote
    Accessible.ignored: !root.visible
    Accessible.focusable: true
    Accessible.checkable: root.choice
    Accessible.checked: root.chosen
    // Qt 6.4 sets both from the properties of the template, which would check itself when clicked.
    Accessible.onCheckableChanged: Accessible.checkable = root.choice
    Accessible.onCheckedChanged: Accessible.checked = root.chosen
    onChosenChanged: Accessible.checked = root.chosen
    Accessible.onPressAction: root.clicked()
    Keys.forwardTo: [root.list, keys]
    onClicked: {
        root.list.menu.close();
        root.picked();
    }

    background: Rectangle {
        radius: Theme.menuRowRadius
        color: root.down ? Theme.colors.pressed : Theme.colors.hover
        visible: root.ListView.isCurrentItem
    }
    Item {
        anchors.fill: parent
        anchors.topMargin: root.topInset

        Icon {
            visible: root.chosen
            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            name: "check"
            size: 16 * Theme.iconScale
            color: Theme.colors.accent
        }
        Icon {
            id: mark

            visible: root.symbolic && name.length > 0
            anchors.left: parent.left
            anchors.leftMargin: root.indented ? 12 + 16 * Theme.iconScale : 10
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            size: 18 * Theme.iconScale
            color: root.symbolColor
        }
        Label {
            id: title

            anchors.left: parent.left
            anchors.leftMargin: mark.anchors.leftMargin + (root.symbolic ? Theme.iconColumn + 8 : 0)
            anchors.right: noteLabel.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.Wrap
            textStyle: Theme.type.subheadline
            text: root.label
        }
        Label {
            id: noteLabel

            anchors.right: parent.right
            anchors.rightMargin: root.note.length > 0 ? 10 : 0
            anchors.verticalCenter: parent.verticalCenter
            textStyle: Theme.type.caption
            color: Theme.colors.text2
            text: root.note
        }
    }
    PressKeys {
        id: keys

        button: root
    }
    Rectangle {
        visible: root.startsGroup
        y: 4
        width: parent.width
        height: 1
        color: Theme.colors.line
    }
}
