import QtQuick
import Vasker.Platform

// Shown while the release is read and checked; a quick load never shows it.
Item {
    id: root

    opacity: 0
    Accessible.role: Accessible.ProgressBar
    Accessible.name: label.text
    Accessible.ignored: !root.visible

    Timer {
        interval: 150
        running: root.visible
        onTriggered: root.opacity = 1
    }
    Behavior on opacity {
        NumberAnimation {
            duration: Theme.menuDuration
        }
    }
    Column {
        anchors.centerIn: parent
        spacing: 16

        ProgressRing {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 36
            height: 36
            track: Theme.colors.line
            quarter: Theme.colors.accent

            RotationAnimation on rotation {
                from: 0
                to: 360
                duration: 1100
                loops: Animation.Infinite
                running: root.opacity > 0 && !Theme.still
            }
        }
        Label {
            id: label

            textStyle: Theme.type.body
            color: Theme.colors.text2
            text: qsTr("Opening the bundled map…")
        }
    }
}
