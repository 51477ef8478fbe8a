import QtQuick
import QtTest
import Vasker.Platform

TestCase {
    name: "EmptyState"
    when: windowShown
    width: 320
    height: 400

    EmptyState {
        id: state

        width: 320
        title: ""
        advice: "Check the spelling or try a new search."
    }

    function init(): void {
        state.title = "No results for “<b>montreal</b> lng”";
    }

    function textsIn(item) {
        const texts = [];
        const open = [item];
        while (open.length > 0) {
            const next = open.shift();
            for (let i = 0; i < next.children.length; ++i) {
                open.push(next.children[i]);
            }
            if (next.textFormat !== undefined) {
                compare(next.textFormat, Text.PlainText);
                texts.push(next.text);
            }
        }
        return texts;
    }

    function test_the_searched_text_is_shown_as_plain_text(): void {
        const texts = textsIn(state);
        compare(texts.length, 2);
        compare(texts[0], "No results for “<b>montreal</b> lng”");
        compare(texts[1], "Check the spelling or try a new search.");
    }

    function test_a_title_too_long_for_a_line_wraps(): void {
        wait(0);
        const before = state.implicitHeight;
        state.title = "No results for “a text that is much too long to stand in a single line of the column”";
        tryVerify(() => state.implicitHeight > before);
    }
}
