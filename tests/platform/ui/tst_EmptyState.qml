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
        title: "No results for “<b>montreal</b> lng”"
        advice: "Check the spelling or try a new search."
    }

    function labels(item) {
        let texts = [];
        for (const child of item.children) {
            if (child instanceof Text) {
                texts.push(child.text);
                compare(child.textFormat, Text.PlainText);
            }
            texts = texts.concat(labels(child));
        }
        return texts;
    }

    function test_the_searched_text_is_shown_as_plain_text(): void {
        const texts = labels(state);
        compare(texts.length, 2);
        compare(texts[0], "No results for “<b>montreal</b> lng”");
        compare(texts[1], "Check the spelling or try a new search.");
    }

    function test_a_title_too_long_for_a_line_wraps(): void {
        const before = state.implicitHeight;
        state.title = "No results for “a text that is much too long to stand in a single line of the column”";
        tryVerify(() => state.implicitHeight > before);
    }
}
