import QtQuick
import QtTest
import Vasker.Detail
import DetailTest
import Vasker.Platform
import "walk.js" as Walk

TestCase {
    id: test

    name: "InspectorInput"
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
    function test_tab_reaches_links_and_passes_values(): void {
        const view = open(Releases.twoFacts());
        view.takeFocus();
        const reached = [];
        for (let i = 0; i < 6; ++i) {
            reached.push(Walk.list(view).focused.text);
            keyClick(Qt.Key_Tab);
        }
        compare(reached, ["Plant 0", "Gas plant · A-0", "NPRI · 2016", "NPRI · 2015", "Source data", "Licence"]);
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
        tryVerify(() => Walk.withText(view, "12.5 t").length === 12); // rows come one a frame
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
