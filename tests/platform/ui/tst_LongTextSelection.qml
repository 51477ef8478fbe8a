import QtQuick
import QtTest
import Vasker.Platform

TestCase {
    id: test

    name: "LongTextSelection"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: maker

        LongTextStage {}
    }

    // The numbers from 1 on, each in a line of its own.
    function lines(count: int): string {
        return Array.from({
            "length": count
        }, (nothing, index) => `line ${index + 1}`).join("\n");
    }
    function show(text: string): Item {
        const list = createTemporaryObject(maker, test, {
            "shownText": text
        });
        waitForRendering(list);
        return list;
    }
    function test_the_whole_text_is_selected_and_copied_with_keys(): void {
        const text = lines(2000);
        const list = show(text);
        list.longText.forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        compare(list.longText.selectedText, text);
        list.edits().forEach(edit => compare(edit.selectedText, edit.text));
    }
    function test_a_selection_by_keys_goes_on_beyond_a_piece(): void {
        const list = show(lines(100));
        list.scrollTo(600);
        waitForRendering(list);
        list.longText.forceActiveFocus();
        const first = list.edits()[0].text;
        list.longText.select(first.length - 1, first.length - 1);
        keyClick(Qt.Key_Right, Qt.ShiftModifier);
        keyClick(Qt.Key_Right, Qt.ShiftModifier);
        keyClick(Qt.Key_Right, Qt.ShiftModifier);
        compare(list.longText.selectedText, "0\nl");
        compare(list.edits()[1].selectedText, "l");
    }
    function test_a_selection_by_the_mouse_reaches_over_pieces(): void {
        const list = show(lines(100));
        list.scrollTo(600);
        waitForRendering(list);
        const second = list.edits().filter(edit => edit.piece === 1)[0];
        const middle = second.mapToItem(list, 0, 0).y;
        mousePress(list, 25, middle - 30);
        mouseMove(list, 25, middle + 4);
        mouseMove(list, 25, middle + 30);
        mouseRelease(list, 25, middle + 30);
        const selected = list.longText.selectedText;
        verify(selected.includes("line 40\nline 41"), selected);
        compare(second.selectedText, selected.slice(selected.indexOf("line 41")));
    }
    function test_a_double_click_selects_a_word(): void {
        const list = show(lines(100));
        mouseDoubleClickSequence(list.longText, 6, 10);
        compare(list.longText.selectedText, "line");
    }
    function test_the_selection_ends_with_the_focus(): void {
        const list = show(lines(100));
        list.longText.forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        list.forceActiveFocus();
        compare(list.longText.selectedText, "");
        compare(list.edits()[0].selectedText, "");
    }
}
