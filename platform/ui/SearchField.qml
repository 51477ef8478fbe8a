import QtQuick
import Vasker.Platform

// A one-line field for a search text. `text` is what it shows; `edited` tells what the user types.
Rectangle {
    id: root

    required property string prompt
    property string text

    signal edited(string text)
    signal leaveDown

    function focusText(): void {
        input.forceActiveFocus(Qt.ShortcutFocusReason);
        input.selectAll();
    }

    implicitHeight: Theme.controlHeight
    radius: Theme.controlRadius
    color: Theme.colors.control
    border.width: 1
    border.color: Theme.colors.controlLine

    onTextChanged: if (input.text !== text) {
        input.text = text;
    }

    FocusRing {
        shown: input.activeFocus
    }
    Icon {
        id: magnifier

        anchors.left: parent.left
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        name: "search"
        size: 16 * Theme.iconScale
        color: Theme.colors.text2
    }
    TextInput {
        id: input

        anchors.left: magnifier.right
        anchors.leftMargin: 7
        anchors.right: clear.visible ? clear.left : parent.right
        anchors.rightMargin: clear.visible ? 2 : 10
        anchors.verticalCenter: parent.verticalCenter
        font: Theme.type.field.font
        color: Theme.colors.text
        selectionColor: Theme.colors.accent
        selectedTextColor: Theme.colors.onAccent
        selectByMouse: true
        clip: true
        focus: true
        activeFocusOnTab: true
        inputMethodHints: Qt.ImhNoPredictiveText

        Accessible.role: Accessible.EditableText
        Accessible.name: root.prompt
        Accessible.searchEdit: true
        Keys.onEscapePressed: event => {
            event.accepted = input.length > 0;
            input.clear();
        }
        Keys.onDownPressed: root.leaveDown()

        onTextChanged: if (text !== root.text) {
            root.edited(text);
        }
    }
    Label {
        visible: input.length === 0 && input.preeditText.length === 0
        anchors.left: input.left
        anchors.right: input.right
        anchors.verticalCenter: parent.verticalCenter
        textStyle: Theme.type.footnote
        color: Theme.colors.text2
        elide: Text.ElideRight
        text: root.prompt
    }
    Button {
        id: clear

        visible: input.length > 0
        anchors.right: parent.right
        width: height
        height: parent.height
        focusPolicy: Qt.NoFocus
        label: qsTr("Clear search")
        onClicked: input.clear()

        background: Item {}
        contentItem: Item {
            Icon {
                anchors.centerIn: parent
                name: "xmark"
                size: 16 * Theme.iconScale
                color: Theme.colors.text2
            }
            HoverHandler {
                cursorShape: Qt.ArrowCursor
            }
        }
    }
    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }
}
