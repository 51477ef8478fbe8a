pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Platform

// Every key that does something.
WindowSheet {
    id: root

    kind: SheetStack.Shortcuts
    identifier: "open-map-shortcuts"
    title: qsTr("Keyboard shortcuts")
    preferredWidth: 560
    preferredHeight: Math.min(height - 80, 760)

    content: GroupedList {
        onScrolledChanged: root.scrolled = scrolled
        Component.onCompleted: forceActiveFocus(Qt.TabFocusReason)

        LabelledRows {
            title: qsTr("Window")
            table: [
                qsTr("New window"), "Ctrl+N",
                qsTr("Close window"), "Ctrl+W",
                qsTr("Quit"), "Ctrl+Q",
                qsTr("User guide"), "F1",
                qsTr("Keyboard shortcuts"), "Ctrl+?",
                qsTr("Main menu"), "F10",
                qsTr("Full screen, and back"), "F11",
                qsTr("Next control, previous control"), qsTr("Tab, Shift+Tab"),
                qsTr("Press a button, open a menu"), qsTr("Enter or Space")
            ]
        }
        LabelledRows {
            title: qsTr("Records")
            table: [
                qsTr("Search"), "Ctrl+F",
                qsTr("Clear the search"), qsTr("Esc"),
                qsTr("From the search to the list"), qsTr("Down"),
                qsTr("Next, previous record"), qsTr("Down, Up"),
                qsTr("A record by its name"), qsTr("First letters"),
                qsTr("A page further, back"), qsTr("Page Down, Page Up"),
                qsTr("First, last record"), qsTr("Home, End"),
                qsTr("Pick a record"), qsTr("Enter or Space"),
                qsTr("Pick none"), qsTr("Esc"),
                qsTr("Records in a sheet"), "Ctrl+R",
                qsTr("Save the records shown"), "Ctrl+S"
            ]
        }
        LabelledRows {
            title: qsTr("Map")
            table: [
                qsTr("Move"), qsTr("Arrow keys"),
                qsTr("Zoom in, out"), "+, −",
                qsTr("Rotate"), qsTr("Shift+Left, Shift+Right"),
                qsTr("Tilt"), qsTr("Shift+Up, Shift+Down"),
                qsTr("North up, from above"), "N",
                qsTr("Overview of Canada"), qsTr("Home"),
                qsTr("To the nearest record in a direction"), qsTr("Ctrl+arrow keys"),
                qsTr("Next, previous record in view"), qsTr("R, Shift+R"),
                qsTr("Save a picture of the map"), qsTr("Ctrl+Shift+S"),
                qsTr("Copy picture of the map"), qsTr("Ctrl+Shift+C"),
                qsTr("Print the map"), "Ctrl+P",
                qsTr("Pick what is in the middle"), qsTr("Enter or Space"),
                qsTr("Pick none"), qsTr("Esc")
            ]
        }
        LabelledRows {
            title: qsTr("Sheets and menus")
            table: [
                qsTr("Close"), qsTr("Esc"),
                qsTr("Scroll a sheet"), qsTr("Arrow keys"),
                qsTr("Make the records sheet large, medium"), qsTr("Ctrl+Up, Ctrl+Down"),
                qsTr("Another row of a menu"), qsTr("Arrow keys or first letters")
            ]
        }
    }
}
