import QtQuick
import Vasker.Platform

// The button of what concerns the whole program, as desktops have it at the end of the header bar.
HeaderButton {
    id: root

    required property WindowActions actions

    signal recordsWanted

    objectName: "open-map-menu"
    icon: "line.3.horizontal"
    text: qsTr("Main menu")
    labelVisible: false
    compactWidth: Theme.controlHeight
    menu: Menu {
        anchor: root
        name: root.text

        MenuEntry {
            text: qsTr("New window")
            shortcut: "Ctrl+N"
            onPicked: root.actions.windowWanted()
        }
        MenuEntry {
            text: qsTr("Records…")
            shortcut: "Ctrl+R"
            startsGroup: true
            onPicked: root.recordsWanted()
        }
        MenuEntry {
            text: qsTr("Keyboard shortcuts")
            shortcut: "Ctrl+?"
            startsGroup: true
            onPicked: root.actions.shortcutsWanted()
        }
        MenuEntry {
            text: qsTr("About Vasker Beta")
            onPicked: root.actions.aboutWanted()
        }
        MenuEntry {
            text: qsTr("Quit")
            shortcut: "Ctrl+Q"
            startsGroup: true
            onPicked: root.actions.quitWanted()
        }
    }
}
