pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Platform

// The button of the map's options, with the choice of the basemap.
HeaderButton {
    id: root

    // The stored preference; a value that is not offered marks nothing.
    required property string basemap

    signal basemapPicked(string basemap)

    component Choice: MenuRow {
        required property string value

        choice: true
        chosen: root.basemap === value
        onPicked: root.basemapPicked(value)
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
