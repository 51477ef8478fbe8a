import Vasker.App
import Vasker.Platform

// A sheet of a window, which opens and closes as the window's SheetStack says.
Sheet {
    id: root

    required property SheetStack sheets
    // A value of SheetStack.Sheet.
    required property int kind

    requested: sheets.shown === kind || sheets.shownHelp === kind
    onDismissed: sheets.dismiss(kind)
    onClosed: sheets.setClosed(kind)
}
