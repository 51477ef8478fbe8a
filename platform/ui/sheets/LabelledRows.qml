pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Platform

// A section of labelled rows, and what rows a view adds to them.
Section {
    id: root

    // The label and the value of each row, one after the other.
    required property list<string> table

    Repeater {
        model: root.table.length / 2
        delegate: LabelledRow {
            required property int index

            label: root.table[2 * index]
            value: root.table[2 * index + 1]
        }
    }
}
