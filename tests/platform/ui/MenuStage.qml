import QtQuick
import Vasker.Platform

// A button with a menu, and another that lies beside it, for tests.
Item {
    id: stage

    property string picked
    property int presses: 0
    readonly property HeaderButton button: button
    readonly property PlainButton behind: behind
    readonly property Menu menu: menu
    readonly property MenuRow satellite: satellite

    width: 600
    height: 400

    // Of the row that has the keyboard.
    function current(): string {
        return stage.Window.activeFocusItem.label;
    }

    HeaderButton {
        id: button

        x: 20
        symbol: "map"
        label: "Map options"
        menu: menu
    }
    PlainButton {
        id: behind

        x: 300
        y: 200
        label: "Behind"
        onClicked: stage.presses += 1
    }
    Menu {
        id: menu

        anchor: button
        title: "Basemap"
        heading: title

        MenuRow {
            label: "Nowhere"
            visible: false
            height: 0
            onPicked: stage.picked = label
        }
        MenuRow {
            label: "Map"
            choice: true
            onPicked: stage.picked = label
        }
        MenuRow {
            id: satellite

            label: "Satellite"
            choice: true
            onPicked: stage.picked = label
        }
        MenuRow {
            label: "Street"
            visible: false
            height: 0
            onPicked: stage.picked = label
        }
        MenuRow {
            label: "Énergie"
            note: "Ctrl+E"
            startsGroup: true
            onPicked: stage.picked = label
        }
    }
}
