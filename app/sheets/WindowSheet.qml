import Vasker.App
import Vasker.Platform

// A sheet of a window: it comes and goes as the stack of the window's sheets says.
Sheet {
    id: root

    required property SheetStack sheets
    // A value of SheetStack.Sheet.
    required property int kind

    wanted: sheets.shown === kind
    onDismissed: sheets.dismiss(kind)
    onClosed: sheets.setClosed(kind)
}
