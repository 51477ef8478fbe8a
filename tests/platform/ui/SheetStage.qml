import QtQuick
import QtTest
import Vasker.Platform

// A window's worth of things with a sheet over them, for tests.
Item {
    id: stage

    property int presses: 0
    property int wheels: 0
    // Whether a click on what lies behind opens the sheet.
    property bool opener: false
    readonly property Sheet sheet: sheet
    readonly property SignalSpy closings: closings

    width: 900
    height: 620

    function reset(): void {
        sheet.placement = Sheet.Centered;
        sheet.preferredHeight = 540;
        sheet.minimumHeight = 600;
        presses = 0;
        wheels = 0;
        opener = false;
        field.text = "";
        field.focusText();
        closings.clear();
    }
    // The item that takes the keyboard and whose accessible name this is.
    function named(name: string): Item {
        const open = [stage];
        while (open.length > 0) {
            const next = open.shift();
            if (next.visible && next.activeFocusOnTab && next.Accessible.name === name) {
                return next;
            }
            for (let i = 0; i < next.children.length; ++i) {
                open.push(next.children[i]);
            }
        }
        return null;
    }
    function focusedName(): string {
        return stage.Window.activeFocusItem?.Accessible.name ?? "";
    }
    function frame(): Item {
        return named("Done").parent.parent;
    }

    Backdrop {
        anchors.fill: parent
        covered: sheet.onScreen

        SearchField {
            id: field

            x: 12
            width: 200
            prompt: "Behind"
        }
        MouseArea {
            anchors.fill: parent
            anchors.topMargin: 60
            onClicked: {
                stage.presses += 1;
                sheet.requested = stage.opener;
            }
            onWheel: stage.wheels += 1
        }
    }
    Sheet {
        id: sheet

        title: "Sources & coverage"
        preferredWidth: 640
        onDismissed: requested = false
        content: Column {
            Component.onCompleted: first.focusText()

            SearchField {
                id: first

                width: 200
                prompt: "First"
            }
            SearchField {
                width: 200
                prompt: "Second"
            }
        }
    }
    SignalSpy {
        id: closings

        target: sheet
        signalName: "closed"
    }
}
