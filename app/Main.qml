import QtQuick
import QtQuick.Window
import Vasker.App
import Vasker.Platform

// A window of the application: one of three screens.
Window {
    id: window

    required property OpenMapRoot root
    required property OpenMapApp application

    title: qsTr("Vasker Beta")
    width: 1280
    height: 800
    minimumWidth: 900
    minimumHeight: 620
    visible: true
    color: Theme.window

    Loader {
        anchors.fill: parent
        active: window.root.screen === OpenMapRoot.Loading
        sourceComponent: LoadingScreen {}
    }
    Loader {
        anchors.fill: parent
        active: window.root.screen === OpenMapRoot.Failed
        sourceComponent: FailureScreen {
            description: window.root.failureText
        }
    }
    Loader {
        anchors.fill: parent
        active: window.root.screen === OpenMapRoot.Ready
        focus: true
        sourceComponent: WorkspaceView {
            workspace: window.root.workspace
        }
    }
    Shortcut {
        sequences: [StandardKey.New]
        onActivated: window.application.openWindow()
    }
    Shortcut {
        sequences: [StandardKey.Close]
        onActivated: window.close()
    }
    Shortcut {
        sequences: [StandardKey.Quit]
        onActivated: Qt.quit()
    }
}
