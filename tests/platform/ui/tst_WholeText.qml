import QtQuick
import QtTest
import Vasker.Platform

TestCase {
    id: test

    name: "WholeText"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: maker

        WholeTextStage {}
    }

    function show(text: string): Item {
        const list = createTemporaryObject(maker, test, {
            "shown": text
        });
        waitForRendering(list);
        return list;
    }
    function test_a_text_of_up_to_a_piece_is_one_text_data(): list<var> {
        return [
            {
                "tag": "empty",
                "text": ""
            },
            {
                "tag": "a word",
                "text": "12.5 t"
            },
            {
                "tag": "one letter less than a piece",
                "text": "x".repeat(1199)
            },
            {
                "tag": "a piece",
                "text": "x".repeat(1200)
            },
            {
                "tag": "one line less than a piece",
                "text": "\n".repeat(39)
            }
        ];
    }
    function test_a_text_of_up_to_a_piece_is_one_text(data): void {
        const list = show(data.text);
        verify(list.pieced(list) === null);
        list.texts(list.note).forEach(each => compare(each.text, data.text));
        compare(list.texts(list.note).length, data.text.length > 0 ? 1 : 0);
    }
    function test_a_longer_text_is_laid_out_in_pieces_data(): list<var> {
        return [
            {
                "tag": "one letter more than a piece",
                "text": "x".repeat(1201)
            },
            {
                "tag": "a line more than a piece",
                "text": "\n".repeat(40)
            }
        ];
    }
    function test_a_longer_text_is_laid_out_in_pieces(data): void {
        const list = show(data.text);
        for (const row of [list.note, list.labelled, list.selectable, list.link]) {
            compare(list.pieced(row).text, data.text);
        }
        compare(list.pieced(list.note).Accessible.name, data.text);
    }
    function test_of_a_megabyte_only_what_is_in_view_is_laid_out(): void {
        const text = "A word, and another one. ".repeat(40000);
        const list = show(text);
        for (const place of [0, 0.1, 0.3, 0.5, 0.9, 1]) {
            list.scrollTo(place * list.contentHeight);
            waitForRendering(list);
            const shown = list.texts(list).reduce((sum, each) => sum + each.text.length, 0);
            verify(shown > 0 && shown < 10000, shown);
        }
    }
    function test_a_long_text_is_spaced_as_a_short_one(): void {
        const list = show("word\n".repeat(100));
        const line = Theme.type.footnote.lineHeight;
        list.scrollTo(40 * line);
        waitForRendering(list);
        const laidOut = list.texts(list.note);
        verify(laidOut.length > 1);
        laidOut.forEach(each => compare(each.height % line, 0));
        compare(laidOut[1].y - laidOut[0].y, 40 * line);
    }
    function test_a_note_cannot_be_selected_however_long_it_is(): void {
        for (const length of [100, 10000]) {
            const list = show("x".repeat(length));
            list.texts(list.note).forEach(each => verify(each.selectByKeyboard === undefined));
        }
    }
    function test_a_selectable_text_is_copied_whole_data(): list<var> {
        return [
            {
                "tag": "a short one",
                "length": 100
            },
            {
                "tag": "a long one",
                "length": 100000
            }
        ];
    }
    function test_a_selectable_text_is_copied_whole(data): void {
        const list = show("x".repeat(data.length));
        list.selectable.takeFocus();
        verify(list.Window.activeFocusItem.activeFocus);
        keyClick(Qt.Key_A, Qt.ControlModifier);
        compare(list.Window.activeFocusItem.selectedText, list.shown);
    }
    function test_a_long_value_stands_below_its_label(): void {
        const list = show("x".repeat(10000));
        const value = list.pieced(list.labelled);
        compare(value.width, 400 - 40 - 28);
        verify(value.mapToItem(list.labelled, 0, 0).y >= Theme.type.body.lineHeight);
    }
    function test_a_long_link_is_as_wide_as_its_row(): void {
        const list = show("x ".repeat(10000));
        compare(list.link.width, 400 - 40 - 28);
        verify(list.pieced(list.link).width < list.link.width);
        verify(list.link.height > 1000);
    }
}
