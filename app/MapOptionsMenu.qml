pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Platform

// The button of the map's options, with the choice of the basemap.
HeaderButton {
    id: root

    required property OpenMapWorkspace workspace

    // A stored basemap that is not offered marks nothing.
    component Choice: MenuRow {
        required property string value

        choice: true
        chosen: root.workspace.basemap === value
        onPicked: root.workspace.basemap = value
    }

    objectName: "open-map-options"
    symbol: "map"
    label: qsTr("Map options")
    menu: Menu {
        anchor: root
        title: qsTr("Basemap")
        heading: title

        Choice {
            label: qsTr("Map")
            value: "standard"
        }
        Choice {
            label: qsTr("Satellite")
            value: "satellite"
        }
        Choice {
            label: qsTr("Hybrid")
            value: "hybrid"
        }
    }
}
