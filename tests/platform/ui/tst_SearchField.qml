import QtQuick
import QtTest
import Vasker.Platform

TestCase {
    id: cases

    name: "SearchField"
    when: windowShown
    width: 400
    height: 200

    SearchField {
        id: field

        width: 296
        prompt: "Facility, pipeline or reporting company"
        onEdited: text => field.text = text
    }
    SignalSpy {
        id: edits

        target: field
        signalName: "edited"
    }

    function init(): void {
        field.text = "";
        edits.clear();
        field.focusText();
    }

    function test_every_typed_letter_leaves_as_an_edit(): void {
        keyClick("g");
        keyClick("a");
        compare(edits.count, 2);
        compare(field.text, "ga");
    }

    function test_escape_clears_the_text(): void {
        keyClick("g");
        keyClick(Qt.Key_Escape);
        compare(field.text, "");
    }

    function test_a_text_set_from_outside_is_shown_and_is_no_edit(): void {
        field.text = "plant";
        compare(edits.count, 0);
        keyClick(Qt.Key_End);
        keyClick("s");
        compare(field.text, "plants");
    }

    function test_focusing_selects_the_text_so_that_typing_replaces_it(): void {
        field.text = "plant";
        field.focusText();
        keyClick("x");
        compare(field.text, "x");
    }

    function test_a_blank_is_searched_for_as_it_stands(): void {
        keyClick(Qt.Key_Space);
        compare(field.text, " ");
    }
}
