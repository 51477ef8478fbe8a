import QtQuick
import Vasker.Platform

// A list with one long text.
GroupedList {
    id: root

    property alias longText: longText
    property string shownText

    // What is laid out, from the top.
    function edits(): var {
        const found = [];
        for (let i = 0; i < longText.children.length; ++i) {
            if (longText.children[i].textFormat !== undefined) {
                found.push(longText.children[i]);
            }
        }
        return found.sort((a, b) => a.y - b.y);
    }

    width: 400
    height: 300

    LongText {
        id: longText

        width: parent.width
        text: root.shownText
    }
}
