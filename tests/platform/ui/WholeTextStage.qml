import QtQuick
import Vasker.Platform

// A list with one text in every kind of row that shows a whole one.
GroupedList {
    id: root

    required property string shown
    property alias note: note
    property alias labelled: labelled
    property alias selectable: selectable
    property alias link: link

    // Below `item`, whatever shows a part of a text.
    function texts(item: Item): var {
        let found = item.textFormat !== undefined && item.text.length > 0 ? [item] : [];
        for (let i = 0; i < item.children.length; ++i) {
            found = found.concat(root.texts(item.children[i]));
        }
        return found;
    }
    // Below `item`, the text that is laid out in pieces; null: there is none.
    function pieced(item: Item): Item {
        if (item.rowAt !== undefined) {
            return item;
        }
        for (let i = 0; i < item.children.length; ++i) {
            const found = root.pieced(item.children[i]);
            if (found !== null) {
                return found;
            }
        }
        return null;
    }

    width: 400
    height: 300

    Section {
        NoteRow {
            id: note

            text: root.shown
        }
        LabelledRow {
            id: labelled

            label: "Label"
            value: root.shown
        }
        SectionRow {
            SelectableWholeText {
                id: selectable

                width: parent.width
                content: root.shown
                keyTarget: root
            }
            LinkText {
                id: link

                width: Math.min(implicitWidth, parent.width)
                text: root.shown
                address: "https://data.example.ca/"
            }
        }
    }
}
