import QtQuick
import QtQuick.Templates as T
import Vasker.Platform

// Rows to choose from, on a raised surface over everything else in the window: below `anchor`, or
// above it where only there is room, or at a point. While it is open the keyboard is its rows'; then
// it goes back to where it was. Escape, Tab or a press beside it closes it; what lies there does not
// learn of it.
T.Menu {
    id: root

    // What opens it; its `title` tells assistive tools what it is.
    required property Item anchor
    // How far along its anchor it begins.
    property real inset: 0
    // Where its rows come from, made by its delegate, and what they say; null: they are declared in it.
    property QtObject model: null
    property list<string> labels
    property real mostHeight: Infinity
    // Stands above the rows, so far from the edge.
    property string heading
    property real headingInset: 18 + 16 * Theme.iconScale
    // The row that has the keyboard first; negative: the one that is chosen, else the first.
    property int firstRow: -1
    // From when it opens until it is to close.
    property bool shown: false
    property bool again: false

    // The item at whose `place` it opens; null: at the anchor.
    property Item over: null
    property point place
    // Where it begins, counted from the edge that lines begin at; how far along it may end instead,
    // and how much it leaves free below it.
    property point corner
    property real span: 0
    property real gap: 0
    property Item before: null

    readonly property MenuList list: contentItem as MenuList
    readonly property bool rightToLeft: anchor.LayoutMirroring.enabled
    readonly property real begin: Math.round(Math.max(4, corner.x + width > parent.width - 4 ? corner.x + span - width : corner.x))
    readonly property real neededHeight: Math.min(Math.min(list.implicitHeight, mostHeight) + topPadding + 6, parent.height - 16)
    readonly property bool goesUp: corner.y + neededHeight > parent.height - 8 && (span === 0 || corner.y - gap - neededHeight >= 8)

    function toggle(): void {
        root.shown ? root.close() : root.show();
    }
    // Unlike open(), also while it fades out; Qt 6.8 and newer do not interrupt that.
    function show(): void {
        root.open();
        root.again = !root.shown;
    }
    // Keeps pointer and shortcuts from all that lies below, but not while it fades out.
    function block(): void {
        const blocks = root.shown || !root.visible;
        root.modal = blocks;
        root.closePolicy = blocks ? T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside : T.Popup.NoAutoClose;
    }
    // `place` is the menu's corner, in the coordinates of `item`.
    function openAt(item: Item, place: point): void {
        root.over = item;
        root.place = place;
        root.show();
    }

    parent: anchor.Window.contentItem
    x: rightToLeft ? parent.width - begin - width : begin
    y: Math.round(goesUp ? Math.max(8, corner.y - gap - neededHeight) : corner.y)
    width: Math.min(Math.max(216, list.widestRow() + 12), parent.width - 8)
    height: Math.min(neededHeight, parent.height - y - 8)
    padding: 6
    topPadding: heading.length > 0 ? 16 + Theme.type.captionMedium.lineHeight : 6
    modal: true
    onAboutToShow: {
        const atPoint = root.over !== null;
        root.before = atPoint ? root.parent.Window.activeFocusItem : root.anchor;
        root.span = atPoint ? 0 : root.anchor.width - root.inset;
        root.gap = atPoint ? 0 : root.anchor.height + 8;
        const edge = root.rightToLeft ? root.anchor.width - root.inset : root.inset;
        const corner = atPoint ? root.over.mapToItem(root.parent, root.place) : root.anchor.mapToItem(root.parent, edge, root.anchor.height + 4);
        root.corner = Qt.point(root.rightToLeft ? root.parent.width - corner.x : corner.x, corner.y);
        root.over = null;
        root.shown = true;
        root.block();
    }
    onVisibleChanged: if (visible) {
        root.list.enter(root.firstRow);
    }
    onAboutToHide: {
        root.shown = false;
        // The press that closes it is still its own.
        afterThat.start();
        root.before?.forceActiveFocus(Qt.PopupFocusReason);
    }
    onClosed: root.again ? root.show() : root.block()

    // Takes the pointer from what lies below.
    T.Overlay.modal: MouseArea {
        hoverEnabled: true
    }
    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.menuDuration
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.menuDuration
        }
    }
    background: RaisedSurface {
        Label {
            visible: text.length > 0
            y: 12
            anchors.left: parent.left
            anchors.leftMargin: root.headingInset
            textStyle: Theme.type.captionMedium
            color: Theme.colors.text2
            text: root.heading
        }
    }
    contentItem: MenuList {
        menu: root
        model: root.model ?? root.contentModel
        delegate: root.delegate
        labels: root.labels
    }
    Timer {
        id: afterThat

        interval: 0
        onTriggered: root.block()
    }
    // It would stand in the wrong place.
    Connections {
        target: root.parent

        function onWidthChanged(): void {
            root.close();
        }
        function onHeightChanged(): void {
            root.close();
        }
    }
}
