pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Platform

// The button for everything that concerns the whole program, at the end of the header bar, as
// desktops have it.
HeaderButton {
    id: root

    required property OpenMapApp application
    required property SheetStack sheets
    required property SaveCommands saves
    // Buttons that find no room in the header bar, at most three; the menu begins with them.
    property list<HeaderButton> hidden

    component Hidden: MenuRow {
        property HeaderButton button: null

        visible: button !== null
        height: visible ? implicitHeight : 0
        label: button?.label ?? ""
        onPicked: button.menu === null ? button.clicked() : button.menu.openAt(root, Qt.point(0, root.height + 4))
    }

    objectName: "open-map-menu"
    symbol: "line.3.horizontal"
    label: qsTr("Main menu")
    labelVisible: false
    compactWidth: Theme.controlHeight
    menu: Menu {
        anchor: root
        title: root.label

        Hidden {
            button: root.hidden[0] ?? null
        }
        Hidden {
            button: root.hidden[1] ?? null
        }
        Hidden {
            button: root.hidden[2] ?? null
        }
        MenuRow {
            startsGroup: root.hidden.length > 0
            label: qsTr("New window")
            note: "Ctrl+N"
            onPicked: root.application.openWindow()
        }
        MenuRow {
            label: qsTr("Save the records shown…")
            note: "Ctrl+S"
            startsGroup: true
            onPicked: root.saves.saveRecords(root.Window.window)
        }
        MenuRow {
            label: qsTr("Save a picture of the map…")
            note: qsTr("Ctrl+Shift+S")
            onPicked: root.saves.savePicture(root.Window.window)
        }
        MenuRow {
            label: qsTr("Save a picture at twice the size…")
            onPicked: root.saves.savePicture(root.Window.window, 2)
        }
        MenuRow {
            label: qsTr("Save a picture at four times the size…")
            onPicked: root.saves.savePicture(root.Window.window, 4)
        }
        MenuRow {
            label: qsTr("Save the map as PDF or SVG…")
            onPicked: root.saves.savePage(root.Window.window)
        }
        MenuRow {
            label: qsTr("Copy picture of the map")
            note: qsTr("Ctrl+Shift+C")
            onPicked: root.saves.copyPicture()
        }
        MenuRow {
            label: qsTr("Print the map…")
            note: "Ctrl+P"
            onPicked: root.saves.print(root.Window.window)
        }
        MenuRow {
            label: qsTr("Records…")
            note: "Ctrl+R"
            startsGroup: true
            onPicked: root.sheets.request(SheetStack.Records)
        }
        MenuRow {
            label: qsTr("Keyboard shortcuts")
            note: "Ctrl+?"
            startsGroup: true
            onPicked: root.sheets.request(SheetStack.Shortcuts)
        }
        MenuRow {
            label: qsTr("User guide")
            note: "F1"
            onPicked: root.sheets.request(SheetStack.Guide)
        }
        MenuRow {
            label: qsTr("About Vasker Beta")
            onPicked: root.sheets.request(SheetStack.About)
        }
        MenuRow {
            label: qsTr("Quit")
            note: "Ctrl+Q"
            startsGroup: true
            onPicked: root.application.closeAllWindows()
        }
    }
    Shortcut {
        sequence: "Ctrl+S"
        autoRepeat: false
        onActivated: root.saves.saveRecords(root.Window.window)
    }
    Shortcut {
        sequence: "Ctrl+Shift+S"
        autoRepeat: false
        onActivated: root.saves.savePicture(root.Window.window)
    }
    Shortcut {
        sequence: "Ctrl+P"
        autoRepeat: false
        onActivated: root.saves.print(root.Window.window)
    }
    Shortcut {
        sequence: "Ctrl+Shift+C"
        autoRepeat: false
        onActivated: root.saves.copyPicture()
    }
}
