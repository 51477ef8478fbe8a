import QtQuick
import QtTest
import Vasker.Detail
import Vasker.DetailTest
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
    Component {
        id: spyMaker

        SignalSpy {}
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
    function spyOn(target: QtObject, signal: string): SignalSpy {
        return createTemporaryObject(spyMaker, test, {
            "target": target,
            "signalName": signal
        });
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
    function test_a_value_is_copied_with_the_keyboard(): void {
        const view = open(Releases.twoFacts());
        Walk.withText(view, "12.5 t")[0].forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        keyClick(Qt.Key_C, Qt.ControlModifier);
        compare(Releases.clipboard(), "12.5 t");
    }
    function test_a_part_of_a_text_is_selected_with_shift_and_arrows(): void {
        const view = open(Releases.twoFacts());
        const name = Walk.withText(view, "Plant 0")[0];
        view.takeFocus();
        verify(name.activeFocus);
        keyClick(Qt.Key_Right, Qt.ShiftModifier);
        keyClick(Qt.Key_Right, Qt.ShiftModifier);
        compare(name.selectedText, "Pl");
        keyClick(Qt.Key_End, Qt.ShiftModifier);
        compare(name.selectedText, "Plant 0");
    }
    function test_a_text_is_selected_with_the_mouse(): void {
        const value = Walk.withText(open(Releases.twoFacts()), "12.5 t")[0];
        mouseDoubleClickSequence(value, 4, value.height / 2);
        verify(value.selectedText.length > 0);
    }
    function test_credits_and_labels_cannot_be_selected(): void {
        const texts = Walk.all(open(Releases.twoFacts()), child => child.selectByKeyboard === true);
        compare(texts.map(text => text.text), ["Plant 0", "Gas plant · A-0", "12.5 t", "7 t"]);
    }
    function test_tab_reaches_texts_and_links_in_order(): void {
        const view = open(Releases.twoFacts());
        view.takeFocus();
        const reached = [];
        for (let i = 0; i < 8; ++i) {
            reached.push(Walk.list(view).focused.text);
            keyClick(Qt.Key_Tab);
        }
        compare(reached, ["Plant 0", "Gas plant · A-0", "12.5 t", "NPRI · 2016", "7 t", "NPRI · 2015", "Source data", "Licence"]);
    }
    function test_what_the_keyboard_reaches_is_in_view(): void {
        const view = open(Releases.withManyFacts());
        const list = Walk.list(view);
        view.takeFocus();
        for (let i = 0; i < 26; ++i) {
            keyClick(Qt.Key_Tab);
        }
        const place = list.focused.mapToItem(view, 0, 0).y;
        verify(place >= 0 && place + list.focused.height <= view.height, place);
        verify(view.scrolled);
    }
    function test_keys_scroll_from_a_text_too(): void {
        const view = open(Releases.withManyFacts());
        const list = Walk.list(view);
        view.takeFocus();
        verify(!view.scrolled);
        keyClick(Qt.Key_Down);
        compare(list.contentY, 48);
        keyClick(Qt.Key_Up);
        compare(list.contentY, 0);
        keyClick(Qt.Key_PageDown);
        compare(list.contentY, view.height - 48);
        verify(view.scrolled);
        keyClick(Qt.Key_End);
        compare(list.contentY, Math.round(list.contentHeight - view.height));
        keyClick(Qt.Key_Home);
        compare(list.contentY, 0);
    }
    function test_a_link_is_opened_by_pointer_and_keyboard(): void {
        const link = Walk.withText(open(Releases.withInsecureLinks()), "NPRI · 2016")[0];
        const spy = spyOn(link, "activated");
        mouseClick(link);
        compare(spy.count, 1);
        link.forceActiveFocus();
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Space);
        compare(spy.count, 3);
    }
    function test_the_address_of_a_link_shows_while_it_is_pointed_at(): void {
        const view = open(Releases.withInsecureLinks());
        const link = Walk.withText(view, "NPRI · 2016")[0];
        const root = view.Window.contentItem;
        const shown = () => Walk.withText(root, "http://data.example.ca/npri").length > 0;
        verify(!shown());
        mouseMove(link, 4, 4);
        tryVerify(shown, 2000);
        mouseMove(view, 4, 4);
        tryVerify(() => !shown());
    }
    function test_the_menu_is_asked_for_by_button_and_by_key(): void {
        const view = open(Releases.twoFacts());
        const spy = spyOn(view, "menuRequested");
        mouseClick(view, 100, 200, Qt.RightButton);
        compare(spy.count, 1);
        compare(spy.signalArguments[0][0], Qt.point(100, 200));
        mouseClick(Walk.withText(view, "12.5 t")[0], 4, 4, Qt.RightButton);
        compare(spy.count, 2);
        view.takeFocus();
        keyClick(Qt.Key_Menu);
        compare(spy.count, 3);
        keyClick(Qt.Key_F10, Qt.ShiftModifier);
        compare(spy.count, 4);
    }
}
