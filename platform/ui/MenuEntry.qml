import QtQuick

// What a row of a menu says and does.
QtObject {
    required property string text
    property string icon
    // How the keyboard reaches the same, shown at the row's end; the menu does not listen for it.
    property string shortcut
    property bool checkable: false
    property bool checked: false
    // Whether the row is there at all.
    property bool offered: true
    // A line stands above it.
    property bool startsGroup: false

    signal picked
}
