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

        Section {
            title: qsTr("Window")

            LabelledRow {
                label: qsTr("New window")
                value: "Ctrl+N"
            }
            LabelledRow {
                label: qsTr("Close window")
                value: "Ctrl+W"
            }
            LabelledRow {
                label: qsTr("Quit")
                value: "Ctrl+Q"
            }
            LabelledRow {
                label: qsTr("User guide")
                value: "F1"
            }
            LabelledRow {
                label: qsTr("Keyboard shortcuts")
                value: "Ctrl+?"
            }
            LabelledRow {
                label: qsTr("Main menu")
                value: "F10"
            }
            LabelledRow {
                label: qsTr("Next control, previous control")
                value: qsTr("Tab, Shift+Tab")
            }
            LabelledRow {
                label: qsTr("Press a button, open a menu")
                value: qsTr("Enter or Space")
            }
        }
        Section {
            title: qsTr("Records")

            LabelledRow {
                label: qsTr("Search")
                value: "Ctrl+F"
            }
            LabelledRow {
                label: qsTr("Clear the search")
                value: qsTr("Esc")
            }
            LabelledRow {
                label: qsTr("From the search to the list")
                value: qsTr("Down")
            }
            LabelledRow {
                label: qsTr("Next, previous record")
                value: qsTr("Down, Up")
            }
            LabelledRow {
                label: qsTr("A record by its name")
                value: qsTr("First letters")
            }
            LabelledRow {
                label: qsTr("A page further, back")
                value: qsTr("Page Down, Page Up")
            }
            LabelledRow {
                label: qsTr("First, last record")
                value: qsTr("Home, End")
            }
            LabelledRow {
                label: qsTr("Pick a record")
                value: qsTr("Enter or Space")
            }
            LabelledRow {
                label: qsTr("Pick none")
                value: qsTr("Esc")
            }
            LabelledRow {
                label: qsTr("Records in a sheet")
                value: "Ctrl+R"
            }
            LabelledRow {
                label: qsTr("Save the records shown")
                value: "Ctrl+S"
            }
        }
        MapShortcuts {}
        Section {
            title: qsTr("Sheets and menus")

            LabelledRow {
                label: qsTr("Close")
                value: qsTr("Esc")
            }
            LabelledRow {
                label: qsTr("Scroll a sheet")
                value: qsTr("Arrow keys")
            }
            LabelledRow {
                label: qsTr("Make the records sheet large, medium")
                value: qsTr("Ctrl+Up, Ctrl+Down")
            }
            LabelledRow {
                label: qsTr("Another row of a menu")
                value: qsTr("Arrow keys or first letters")
            }
        }
    }
}
