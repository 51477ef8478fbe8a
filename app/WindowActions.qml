import QtQuick

// What the window does for its workspace beyond that.
QtObject {
    signal windowWanted
    signal shortcutsWanted
    signal aboutWanted
    signal quitWanted
}
