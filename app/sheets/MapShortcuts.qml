import QtQuick
import Vasker.Platform

// The keys of the map.
Section {
    title: qsTr("Map")

    LabelledRow {
        label: qsTr("Move")
        value: qsTr("Arrow keys")
    }
    LabelledRow {
        label: qsTr("Zoom in, out")
        value: "+, −"
    }
    LabelledRow {
        label: qsTr("Rotate")
        value: qsTr("Shift+Left, Shift+Right")
    }
    LabelledRow {
        label: qsTr("Tilt")
        value: qsTr("Shift+Up, Shift+Down")
    }
    LabelledRow {
        label: qsTr("North up, from above")
        value: "N"
    }
    LabelledRow {
        label: qsTr("Overview of Canada")
        value: qsTr("Home")
    }
    LabelledRow {
        label: qsTr("To the nearest record in a direction")
        value: qsTr("Ctrl+arrow keys")
    }
    LabelledRow {
        label: qsTr("Next, previous record in view")
        value: qsTr("R, Shift+R")
    }
    LabelledRow {
        label: qsTr("Save a picture of the map")
        value: qsTr("Ctrl+Shift+S")
    }
    LabelledRow {
        label: qsTr("Copy picture of the map")
        value: qsTr("Ctrl+Shift+C")
    }
    LabelledRow {
        label: qsTr("Print the map")
        value: "Ctrl+P"
    }
    LabelledRow {
        label: qsTr("Pick what is in the middle")
        value: qsTr("Enter or Space")
    }
    LabelledRow {
        label: qsTr("Pick none")
        value: qsTr("Esc")
    }
}
