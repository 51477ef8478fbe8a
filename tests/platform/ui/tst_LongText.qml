import QtQuick
import QtTest
import Vasker.Platform

TestCase {
    id: test

    name: "LongText"
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
    function isSeen(list: Item, edit: Item): bool {
        const top = edit.mapToItem(list, 0, 0).y;
        return top < list.height && top + edit.height > 0;
    }
    // From the top of the view to its bottom there is text, without a gap and without overlap.
    function verifyFilled(list: Item): void {
        const seen = list.edits().filter(edit => isSeen(list, edit));
        verify(seen.length > 0);
        for (let i = 1; i < seen.length; ++i) {
            compare(seen[i].y, seen[i - 1].y + seen[i - 1].height);
        }
        verify(seen[0].mapToItem(list, 0, 0).y <= 0);
        const last = seen[seen.length - 1];
        verify(last.mapToItem(list, 0, last.height).y >= list.height);
    }

    function test_a_short_text_stands_in_its_place(): void {
        const list = show("12.5 t");
        compare(list.edits().length, 1);
        compare(list.edits()[0].text, "12.5 t");
        compare(list.longText.height, list.edits()[0].height + 2 * Theme.type.body.halfLeading);
    }
    function test_only_what_is_in_view_is_laid_out(): void {
        const list = show(lines(10000));
        verify(list.edits().length <= 3, list.edits().length);
        verify(list.contentHeight > 10000 * 10);
        for (const place of [1000, 90000, 50000]) {
            list.scrollTo(place);
            waitForRendering(list);
            verify(list.edits().length <= 4, list.edits().length);
            verifyFilled(list);
        }
    }
    function test_scrolling_up_and_down_again_leads_to_the_same_place(): void {
        const list = show("A word, and another one. ".repeat(2000));
        const start = list.contentY;
        for (let i = 0; i < 30; ++i) {
            list.scrollTo(list.contentY + 100);
            waitForRendering(list);
            verifyFilled(list);
        }
        for (let i = 0; i < 30; ++i) {
            list.scrollTo(list.contentY - 100);
            waitForRendering(list);
        }
        compare(list.contentY, start);
    }
    function test_what_is_read_stays_in_its_place_while_what_is_above_is_laid_out(): void {
        const list = show("A wide word, MMMMMMMMMM. ".repeat(40) + "\n" + "i".repeat(20000));
        list.scrollTo(list.contentHeight / 2);
        waitForRendering(list);
        const seen = list.edits().filter(edit => edit.mapToItem(list, 0, 0).y >= 0)[0];
        const number = seen.piece;
        const place = seen.mapToItem(list, 0, 0).y;
        list.scrollTo(list.contentY - 40);
        waitForRendering(list);
        const again = list.edits().filter(edit => edit.piece === number)[0];
        compare(again.mapToItem(list, 0, 0).y, place + 40);
    }
    function test_the_whole_text_is_read_by_assistive_tools(): void {
        const text = lines(10000);
        const list = show(text);
        compare(list.longText.Accessible.name, text);
        compare(list.longText.text, text);
    }
    function test_keys_scroll_the_list(): void {
        const list = show(lines(1000));
        list.longText.forceActiveFocus();
        keyClick(Qt.Key_PageDown);
        compare(list.contentY, list.height - 48);
        keyClick(Qt.Key_Home);
        compare(list.contentY, 0);
    }
    function test_another_text_takes_its_place(): void {
        const list = show(lines(1000));
        list.shownText = "short";
        waitForRendering(list);
        compare(list.edits().length, 1);
        compare(list.edits()[0].text, "short");
        compare(list.longText.selectedText, "");
    }
    function test_texts_are_never_markup(): void {
        const list = show("<b>bold</b> &amp; ".repeat(200));
        list.edits().forEach(edit => compare(edit.textFormat, TextEdit.PlainText));
        verify(list.edits()[0].text.startsWith("<b>bold</b> &amp;"));
    }
}
