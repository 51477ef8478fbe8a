import QtQuick
import Vasker.Platform

// A quiet line of a row, below its name.
Label {
    width: parent?.width ?? 0
    wrapMode: Text.Wrap
    textStyle: Theme.type.captionLine
    color: Theme.colors.text2
}
