pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Window
import Vasker.Platform

// A menu of entries. While it is open the keyboard is its rows': arrows, Home, End and first letters
// move, Enter or space picks, Escape leaves; then it goes back to where it was.
PopupSurface {
    id: root

    // Stands above the rows; a menu without one has a name all the same.
    property string title
    property string name: title
    default property list<MenuEntry> entries

    property Item before: null

    function pick(entry: MenuEntry): void {
        root.close();
        entry.picked();
    }
    // The row of the first offered entry after `from`, in steps of 1 or -1, that `fits`; around the
    // end; -1: none.
    function nextRow(from: int, step: int, fits: var): int {
        for (let turn = 1; turn <= root.entries.length; ++turn) {
            const row = (from + step * turn + 2 * root.entries.length) % root.entries.length;
            if (root.entries[row].offered && fits(root.entries[row])) {
                return row;
            }
        }
        return -1;
    }
    function enter(row: int): void {
        if (row >= 0) {
            (rows.itemAt(row) as Item).forceActiveFocus(Qt.PopupFocusReason);
        }
    }
    function step(from: int, by: int): void {
        enter(nextRow(from, by, () => true));
    }
    function enterFirst(): void {
        const checked = nextRow(-1, 1, entry => entry.checked);
        enter(checked >= 0 ? checked : nextRow(-1, 1, () => true));
    }
    // A single letter goes on to the next row, further ones make sure of this one.
    function find(from: int): void {
        enter(nextRow(search.typed.length > 1 ? from - 1 : from, 1, entry => search.begins(entry.text)));
    }
    function show(row: Item): void {
        view.contentY = Math.max(Math.min(view.contentY, row.y), row.y + row.height - view.height);
    }

    contentHeight: column.implicitHeight
    surfaceWidth: Math.min(Math.max(216, column.implicitWidth + 12), root.width - 8)

    onOpenedChanged: {
        search.forget();
        if (opened) {
            root.before = root.Window.activeFocusItem;
            root.enterFirst();
        } else if (root.before !== null) {
            root.before.forceActiveFocus(Qt.PopupFocusReason);
        }
    }

    content: [
        Flickable {
            id: view

            anchors.fill: parent
            contentHeight: column.implicitHeight
            clip: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds

            ColumnLayout {
                id: column

                readonly property bool indented: root.nextRow(-1, 1, entry => entry.checkable || entry.icon.length > 0) >= 0

                width: view.width
                spacing: 0
                Accessible.role: Accessible.PopupMenu
                Accessible.name: root.name
                Accessible.ignored: !root.opened

                Label {
                    visible: root.title.length > 0
                    Layout.leftMargin: column.indented ? 12 + 16 * Theme.iconScale : 10
                    Layout.rightMargin: 10
                    Layout.topMargin: 6
                    Layout.bottomMargin: 4
                    textStyle: Theme.type.captionMedium
                    color: Theme.colors.text2
                    text: root.title
                }
                Repeater {
                    id: rows

                    model: root.entries

                    MenuRow {
                        id: row

                        required property MenuEntry modelData
                        required property int index

                        Layout.fillWidth: true
                        visible: modelData.offered
                        indented: column.indented
                        text: modelData.text
                        icon: modelData.icon
                        note: modelData.shortcut
                        checkable: modelData.checkable
                        checked: modelData.checked
                        startsGroup: modelData.startsGroup
                        current: activeFocus
                        onPointed: forceActiveFocus(Qt.MouseFocusReason)
                        onPicked: root.pick(modelData)
                        onActiveFocusChanged: if (activeFocus) {
                            root.show(row);
                        }
                        Keys.onReturnPressed: picked()
                        Keys.onEnterPressed: picked()
                        Keys.onDownPressed: root.step(index, 1)
                        Keys.onUpPressed: root.step(index, -1)
                        Keys.onPressed: event => {
                            event.accepted = true;
                            if (event.key === Qt.Key_Home) {
                                root.step(-1, 1);
                            } else if (event.key === Qt.Key_End) {
                                root.step(root.entries.length, -1);
                            } else if (search.takes(event.text)) {
                                root.find(index);
                            } else if (event.key === Qt.Key_Space) {
                                picked();
                            } else {
                                event.accepted = false;
                            }
                        }
                    }
                }
            }
        },
        TypeAhead {
            id: search
        }
    ]
}
