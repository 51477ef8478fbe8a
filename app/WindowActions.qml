import QtQuick

// What a window does for its workspace beyond that, and what each must know of the other so that
// there is never more than one sheet.
QtObject {
    // Kept by the window and by the workspace: one of theirs is to be shown, or has not yet left.
    property bool windowSheetOnScreen: false
    property bool workspaceSheetOnScreen: false
    readonly property bool sheetsAllowed: !windowSheetOnScreen && !workspaceSheetOnScreen

    signal windowWanted
    signal shortcutsWanted
    signal aboutWanted
    signal quitWanted
}
