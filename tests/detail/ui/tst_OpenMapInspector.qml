import QtQuick
import QtTest
import Vasker.Detail
import DetailTest
import Vasker.Platform
import "walk.js" as Walk

TestCase {
    id: test

    name: "OpenMapInspector"
    when: windowShown
    visible: true
    width: 560
    height: 560

    Component {
        id: maker

        OpenMapInspector {
            width: 560
            height: 560
        }
    }

    readonly property list<string> credit: ["Environment and Climate Change Canada", "Contains information licensed under an open licence.", "Attribution", "Selected columns", "[Source data]", "[Licence]"]
    readonly property string caveat: "Company and status describe the cited release. They do not establish the current operator or current operation."
    readonly property string location: "Publisher-reported location. Equipment position, physical-site boundary and survey precision are not established."

    function open(record: releaseRecord): Item {
        const view = createTemporaryObject(maker, test, {
            "record": record
        });
        waitForRendering(view);
        return view;
    }
    function isReadable(text: Item): bool {
        return text.width <= 520 && text.x >= 0 && text.height > 0 && text.contentWidth <= text.width + 1;
    }

    function test_everything_stands_in_its_order(): void {
        compare(Walk.texts(open(Releases.twoFacts())), ["Plant 0", "Gas plant · A-0", "Source period", "2016", "Reported status", "Reported", "Reporting company", "Prairie Gas", caveat, "Reported information", "Sulphur dioxide", "12.5 t", "[NPRI · 2016]", "Sulphur dioxide", "7 t", "[NPRI · 2015]", "Sources & licences"].concat(credit).concat(["Location", location]));
    }
    function test_without_a_company_there_is_no_row_for_it(): void {
        compare(Walk.texts(open(Releases.withoutCompany())).slice(0, 8), ["Plant 0", "Gas plant · A-0", "Source period", "2016", "Reported status", "Reported", caveat, "Reported information"]);
    }
    function test_a_section_without_rows_keeps_its_title(): void {
        compare(Walk.texts(open(Releases.withoutAnything())).slice(-4), ["Reported information", "Sources & licences", "Location", location]);
    }
    function test_a_fact_without_an_address_has_no_link(): void {
        compare(Walk.texts(open(Releases.withSourceThatDoesNotParse())).slice(9, 14), ["Reported information", "Sulphur dioxide", "12.5 t", "Sulphur dioxide", "7 t"]);
    }
    function test_texts_of_the_release_are_never_markup(): void {
        const view = open(Releases.hostile());
        tryVerify(() => Walk.withText(view, "7 t").length === 1);
        const texts = Walk.all(view, child => child.textFormat !== undefined);
        verify(texts.length > 15);
        texts.forEach(text => compare(text.textFormat, Text.PlainText));
    }
    function test_hostile_texts_stay_within_their_card_and_do_not_move_their_neighbours(): void {
        const view = open(Releases.hostile());
        tryVerify(() => Walk.withText(view, "7 t").length === 1);
        Walk.all(view, child => child.textFormat !== undefined).forEach(text => tryVerify(() => isReadable(text), 1000, text.text.slice(0, 40)));
        compare(Walk.withText(view, "Sulphur dioxide")[1].mapToItem(view, 0, 0).x, 34);
        compare(Walk.withText(view, "7 t")[0].mapToItem(view, 0, 0).x, 34);
    }
    function test_fifty_huge_facts_are_laid_out_where_they_are_seen_data(): list<var> {
        return [
            {
                "tag": "words",
                "part": "A word, and another one. "
            },
            {
                "tag": "no blanks",
                "part": "x"
            },
            {
                "tag": "line breaks",
                "part": "\n"
            },
            {
                "tag": "from right to left",
                "part": "\u05E9\u05DC\u05D5\u05DD "
            }
        ];
    }
    function test_fifty_huge_facts_are_laid_out_where_they_are_seen(data): void {
        const before = Date.now();
        const view = open(Releases.withFiftyHugeFacts(data.part));
        verify(Date.now() - before < 500);
        const list = Walk.list(view);
        const longTexts = () => Walk.all(view, child => child.rowAt !== undefined);
        const edits = () => Walk.all(view, child => child.positionAt !== undefined && child.textFormat !== undefined && child.text.length > 0);
        tryVerify(() => longTexts().length === 50, 20000);
        for (const place of [0.3, 0.7, 0.1]) {
            list.scrollTo(place * list.contentHeight);
            waitForRendering(view);
            verify(edits().length < 12, edits().length);
        }
        list.scrollTo(list.contentHeight);
        waitForRendering(view);
        const end = Walk.withText(view, test.location)[0];
        verify(end.mapToItem(view, 0, end.height).y <= view.height);
    }
    function test_a_huge_value_is_copied_whole(): void {
        const view = open(Releases.withFiftyHugeFacts("A word, and another one. "));
        const value = Walk.all(view, child => child.rowAt !== undefined)[0];
        value.forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        keyClick(Qt.Key_C, Qt.ControlModifier);
        compare(Releases.clipboard(), "A word, and another one. ".repeat(400));
    }
    function test_credits_and_labels_cannot_be_selected(): void {
        const texts = Walk.all(open(Releases.twoFacts()), child => child.selectByKeyboard === true);
        compare(texts.map(text => text.text), ["Plant 0", "Gas plant · A-0", "12.5 t", "7 t"]);
    }
}
