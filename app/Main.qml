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
    color: Theme.colors.window

    function showWorkspace(): void {
        if (root.screen === OpenMapRoot.Ready) {
            view.setSource("WorkspaceView.qml", {
                "workspace": root.workspace,
                "tiles": window.application.tiles,
                "actions": actions
            });
        }
    }

    Component.onCompleted: showWorkspace()

    WindowActions {
        id: actions

        windowSheetOnScreen: about.onScreen || shortcuts.onScreen
        onWindowWanted: window.application.openWindow()
        onAboutWanted: if (actions.sheetsAllowed) {
            about.wanted = true;
        }
        onShortcutsWanted: if (actions.sheetsAllowed) {
            shortcuts.wanted = true;
        }
        onQuitWanted: window.application.closeAllWindows()
    }
    Backdrop {
        anchors.fill: parent
        covered: actions.windowSheetOnScreen

        LoadingScreen {
            anchors.fill: parent
            visible: window.root.screen === OpenMapRoot.Loading
        }
        FailureScreen {
            anchors.fill: parent
            visible: window.root.screen === OpenMapRoot.Failed
            description: window.root.failureText
        }
        Loader {
            id: view

            anchors.fill: parent
            focus: true
        }
    }
    AboutSheet {
        id: about

        version: window.application.version
        onDismissed: wanted = false
    }
    ShortcutsSheet {
        id: shortcuts

        onDismissed: wanted = false
    }
    Connections {
        target: window.root

        function onScreenChanged(): void {
            window.showWorkspace();
        }
    }
    Shortcut {
        sequence: "Ctrl+N"
        onActivated: actions.windowWanted()
    }
    Shortcut {
        sequence: "Ctrl+?"
        onActivated: actions.shortcutsWanted()
    }
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: window.close()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: actions.quitWanted()
    }
}
