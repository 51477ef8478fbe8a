import QtQuick
import QtTest
import Vasker.Detail
import DetailTest
import Vasker.Platform
import "walk.js" as Walk

TestCase {
    id: test

    name: "OpenMapSources"
    when: windowShown
    visible: true
    width: 640
    height: 600

    Component {
        id: maker

        OpenMapSources {
            width: 640
            height: 600
        }
    }
    Component {
        id: inspectorMaker

        OpenMapInspector {
            width: 640
            height: 600
        }
    }

    readonly property string licence: "The data retain their source licences. Vasker app terms do not restrict your rights under OGL-Canada or CC BY 4.0. No government or publisher endorsement is implied."

    function open(record: releaseRecord, file: string): Item {
        const view = createTemporaryObject(maker, test, {
            "record": record,
            "packagedFile": file
        });
        waitForRendering(view);
        view.takeFocus();
        return view;
    }
    function creditOf(view: Item): Item {
        return Walk.all(view, child => child.credit !== undefined)[0];
    }

    function test_everything_stands_in_its_order(): void {
        const texts = Walk.texts(open(Releases.twoFacts(), "/tmp/OpenMap.json"));
        compare(texts.slice(0, 7), ["This release", "Canada", "2 records · 1 routes", "2025.1 · packaged 2025-11-20", "The packaged date is not the observation date. Each record shows its source period.", "Coverage & limitations", "Not a survey."]);
        compare(texts.slice(7, 14), ["Sources & reuse", "Environment and Climate Change Canada", "Contains information licensed under an open licence.", "Attribution", "Selected columns", "[Source data]", "[Licence]"]);
        compare(texts.slice(14, 17), [licence, "Share the open-data file", "Privacy"]);
        compare(texts.length, 19);
    }
    function test_without_a_file_there_is_nothing_to_share(): void {
        const texts = Walk.texts(open(Releases.twoFacts(), ""));
        compare(texts.slice(14, 16), [licence, "Privacy"]);
    }
    function test_a_section_without_rows_keeps_its_title(): void {
        const texts = Walk.texts(open(Releases.withoutAnything(), ""));
        compare(texts.slice(5, 9), ["Coverage & limitations", "Sources & reuse", licence, "Privacy"]);
    }
    function test_rows_of_a_list_without_end_are_made_as_they_come_into_view(): void {
        const view = open(Releases.withManyLimitations(100000), "");
        const rows = () => Walk.texts(view).filter(text => text.startsWith("Limit "));
        tryVerify(() => rows().length === 100);
        wait(300);
        compare(rows().length, 100);
        compare(rows()[99], "Limit 99");
        keyClick(Qt.Key_End);
        tryVerify(() => rows().length > 100);
        wait(300);
        verify(rows().length < 250, rows().length);
    }
    function test_an_empty_text_of_a_credit_keeps_its_place(): void {
        const credit = creditOf(open(Releases.withoutModifications(), ""));
        const texts = Walk.all(credit, child => child.textFormat !== undefined);
        compare(Walk.texts(credit), ["Environment and Climate Change Canada", "Contains information licensed under an open licence.", "Attribution", "", "[Source data]", "[Licence]"]);
        compare(texts[3].height, Theme.type.caption.lineHeight);
        verify(Walk.withText(credit, "Source data")[0].mapToItem(credit, 0, 0).y >= texts[3].y + texts[3].height);
    }
    function test_a_licence_that_does_not_parse_leaves_one_link(): void {
        compare(Walk.texts(creditOf(open(Releases.withLicenceThatDoesNotParse(), ""))).slice(4), ["[Source data]"]);
    }
    function test_a_source_that_does_not_parse_leaves_the_licence(): void {
        compare(Walk.texts(creditOf(open(Releases.withSourceThatDoesNotParse(), ""))).slice(4), ["[Licence]"]);
    }
    function test_both_views_show_the_same_credit(): void {
        const here = creditOf(open(Releases.twoFacts(), ""));
        const inspector = createTemporaryObject(inspectorMaker, test, {
            "record": Releases.twoFacts()
        });
        waitForRendering(inspector);
        const there = creditOf(inspector);
        compare(Walk.texts(here), Walk.texts(there));
        compare(here.width, there.width);
        compare(here.height, there.height);
        const one = grabImage(here);
        const other = grabImage(there);
        verify(one.equals(other));
    }
    function test_credits_cannot_be_selected(): void {
        const credit = creditOf(open(Releases.twoFacts(), ""));
        compare(Walk.all(credit, child => child.textFormat !== undefined).length, 6);
        compare(Walk.all(credit, child => child.selectByKeyboard === true).length, 0);
    }
    function test_texts_of_the_release_are_never_markup(): void {
        const view = open(Releases.hostile(), "");
        const texts = Walk.all(view, child => child.textFormat !== undefined);
        verify(texts.length > 12);
        texts.forEach(text => {
            compare(text.textFormat, Text.PlainText);
            verify(text.contentWidth <= text.width + 1 && text.width <= 600, text.text);
        });
    }
    function test_keys_scroll_the_view(): void {
        const view = open(Releases.twoFacts(), "/tmp/OpenMap.json");
        const list = Walk.list(view);
        view.takeFocus();
        keyClick(Qt.Key_End);
        verify(view.scrolled);
        compare(list.contentY, Math.round(list.contentHeight - view.height));
        keyClick(Qt.Key_Home);
        verify(!view.scrolled);
    }
    function test_the_file_is_offered_in_a_menu_that_gives_the_keyboard_back(): void {
        const view = open(Releases.twoFacts(), "/tmp/OpenMap.json");
        const button = Walk.all(view, child => child.objectName === "open-map-share")[0];
        button.forceActiveFocus();
        keyClick(Qt.Key_Return);
        const rows = () => Walk.all(view.Window.contentItem, child => child.picked !== undefined && child.chosen !== undefined);
        tryVerify(() => rows().length === 4);
        compare(rows().map(row => row.label), ["Save a copy…", "Show in file manager", "Copy file", "Open with…"]);
        rows().forEach(row => verify(row.mapToItem(null, 0, row.height).y <= view.Window.height));
        keyClick(Qt.Key_Escape);
        verify(button.activeFocus);
    }
    function test_the_file_is_copied_for_file_managers(): void {
        const view = open(Releases.twoFacts(), "/tmp/OpenMap.json");
        const button = Walk.all(view, child => child.objectName === "open-map-share")[0];
        button.forceActiveFocus();
        keyClick(Qt.Key_Space);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        tryVerify(() => Releases.clipboard() === "/tmp/OpenMap.json");
    }
}
