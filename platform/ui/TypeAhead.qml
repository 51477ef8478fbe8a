import QtQuick

// The letters typed one soon after another into a list, to find what begins with them.
QtObject {
    id: root

    property string typed

    // Takes in what a key typed: true if that is a letter of a search, as a space is after others.
    function takes(text: string): bool {
        const goesOn = root.typed.length > 0 && text === " ";
        if (!goesOn && !/^[^\x00-\x20\x7f]/.test(text)) {
            return false;
        }
        root.typed += text;
        pause.restart();
        return true;
    }
    // Whether `text` begins with what was typed, accents and capitals aside, which nobody types to get
    // there.
    function begins(text: string): bool {
        return root.folded(text).startsWith(root.folded(root.typed));
    }
    function folded(text: string): string {
        return text.normalize("NFD").replace(/[\u0300-\u036f]/g, "").toLocaleLowerCase();
    }
    function forget(): void {
        root.typed = "";
    }

    readonly property Timer pause: Timer {
        id: pause

        interval: 1000
        onTriggered: root.forget()
    }
}
