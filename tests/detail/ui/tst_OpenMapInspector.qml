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
    function test_fifty_huge_facts_open_at_once_and_arrive_one_by_one(): void {
        const before = Date.now();
        const view = open(Releases.withFiftyHugeFacts());
        verify(Date.now() - before < 500);
        verify(Walk.all(view, child => child.selectByKeyboard === true).length < 10);
        tryVerify(() => Walk.all(view, child => child.selectByKeyboard === true).length === 52, 20000);
    }
    function test_credits_and_labels_cannot_be_selected(): void {
        const texts = Walk.all(open(Releases.twoFacts()), child => child.selectByKeyboard === true);
        compare(texts.map(text => text.text), ["Plant 0", "Gas plant · A-0", "12.5 t", "7 t"]);
    }
}
