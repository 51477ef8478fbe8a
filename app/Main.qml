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
    // For the toolkit's own dialogs.
    palette {
        window: Theme.colors.sheet
        windowText: Theme.colors.text
        base: Theme.colors.card
        text: Theme.colors.text
        placeholderText: Theme.colors.text2
        button: Theme.colors.control
        buttonText: Theme.colors.text
        light: Theme.colors.raised
        mid: Theme.colors.controlLine
        dark: Theme.colors.text2
        highlight: Theme.colors.accent
        highlightedText: Theme.colors.onAccent
    }
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    // How it was shown before it filled the screen.
    property int visibilityBefore: Window.Windowed
    readonly property bool fullScreen: visibility === Window.FullScreen

    function toggleFullScreen(): void {
        if (window.fullScreen) {
            window.visibility = window.visibilityBefore;
        } else {
            window.visibilityBefore = window.visibility;
            window.visibility = Window.FullScreen;
        }
    }
    function showWorkspace(): void {
        if (root.screen === OpenMapRoot.Ready) {
            view.setSource("WorkspaceView.qml", {
                "focus": true,
                "application": window.application,
                "workspace": root.workspace,
                "sheets": root.sheets
            });
        }
    }

    Component.onCompleted: showWorkspace()
    onFullScreenChanged: announcer.announce(fullScreen ? qsTr("Full screen") : qsTr("Full screen ended"))

    Backdrop {
        anchors.fill: parent
        covered: guide.onScreen || shortcuts.onScreen

        Backdrop {
            anchors.fill: parent
            covered: about.onScreen

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

            sheets: window.root.sheets
            version: window.application.version
        }
    }
    GuideSheet {
        id: guide

        sheets: window.root.sheets
        application: window.application
    }
    ShortcutsSheet {
        id: shortcuts

        sheets: window.root.sheets
    }
    Announcer {
        id: announcer

        Accessible.role: Accessible.Notification
        Accessible.name: notice
        Accessible.ignored: notice.length === 0
    }
    Announcements {
        root: window.root
        onSpoken: text => announcer.announce(text)
    }
    Connections {
        target: view.item as WorkspaceView

        function onSpoken(text: string): void {
            announcer.announce(text);
        }
    }
    Connections {
        target: window.root

        function onScreenChanged(): void {
            window.showWorkspace();
        }
    }
    WindowKeys {
        window: window
        onHelpRequested: window.root.sheets.request(SheetStack.Guide)
        onShortcutsRequested: window.root.sheets.request(SheetStack.Shortcuts)
        onMenuRequested: (view.item as WorkspaceView)?.headerBar.openMenu()
        onFullScreenRequested: window.toggleFullScreen()
        onNewRequested: window.application.openWindow()
        onCloseRequested: window.close()
        onQuitRequested: window.application.closeAllWindows()
    }
}
