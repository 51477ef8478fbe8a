import QtQuick
import QtQuick.Templates as T
import Vasker.Platform

// Sections one below the other, scrolled by wheel, finger and keys. What has the keyboard is in view.
Flickable {
    id: root

    default property alias sections: column.data
    // Whether something has left the view at its top.
    readonly property bool scrolled: contentY > originY
    readonly property Item focused: Window.activeFocusItem

    function scrollTo(y: real): void {
        root.contentY = Math.round(Math.max(0, Math.min(y, root.contentHeight - root.height)));
    }
    function holds(item: Item): bool {
        return item !== null && (item === column || root.holds(item.parent));
    }
    // The whole of it, or as much as there is room for from its start.
    function reveal(item: Item): void {
        const top = item.mapToItem(column, 0, 0).y + column.y - 16;
        const bottom = top + item.height + 32;
        if (bottom > root.contentY + root.height) {
            root.scrollTo(Math.min(top, bottom - root.height));
        } else if (top < root.contentY) {
            root.scrollTo(top);
        }
    }

    clip: true
    contentWidth: width
    contentHeight: column.height + 2 * column.y
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.VerticalFlick
    pixelAligned: true
    T.ScrollBar.vertical: ScrollBar {}

    onFocusedChanged: if (FocusVisibility.visible && holds(focused)) {
        reveal(focused);
    }
    Keys.onPressed: event => {
        const page = root.height - 48;
        event.accepted = event.modifiers === Qt.NoModifier || event.modifiers === Qt.KeypadModifier;
        if (event.accepted) {
            switch (event.key) {
            case Qt.Key_Up:
                return root.scrollTo(root.contentY - 48);
            case Qt.Key_Down:
                return root.scrollTo(root.contentY + 48);
            case Qt.Key_PageUp:
                return root.scrollTo(root.contentY - page);
            case Qt.Key_PageDown:
                return root.scrollTo(root.contentY + page);
            case Qt.Key_Home:
                return root.scrollTo(0);
            case Qt.Key_End:
                return root.scrollTo(root.contentHeight);
            }
        }
        event.accepted = false;
    }

    Column {
        id: column

        x: 20
        y: 16
        width: root.width - 2 * x
        spacing: 20
    }
}
