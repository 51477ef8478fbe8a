import QtQuick
import Vasker.Platform

// The button of the map's options, with the choice of the basemap.
HeaderButton {
    id: root

    // The stored preference; a value that is not offered marks nothing.
    required property string basemap

    signal basemapPicked(string basemap)

    objectName: "open-map-options"
    icon: "map"
    text: qsTr("Map options")
    menu: Menu {
        anchor: root
        title: qsTr("Basemap")

        MenuEntry {
            text: qsTr("Map")
            checkable: true
            checked: root.basemap === "standard"
            onPicked: root.basemapPicked("standard")
        }
        MenuEntry {
            text: qsTr("Satellite")
            checkable: true
            checked: root.basemap === "satellite"
            onPicked: root.basemapPicked("satellite")
        }
        MenuEntry {
            text: qsTr("Hybrid")
            checkable: true
            checked: root.basemap === "hybrid"
            onPicked: root.basemapPicked("hybrid")
        }
    }
}
