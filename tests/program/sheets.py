"""The sheets over the workspace: what they tell, their order, and what is out of reach behind."""

import tempfile
from pathlib import Path

from gi.repository import GLib

from bundle import RELEASE, changed, program_with_release
from driver import Missed, Program, Screen
from portal import Portal

PROMPT = "Facility, pipeline or reporting company"
NO_PRINTING = (
    "This desktop has no dialog to print with. Save the map as PDF and print that."
)
BEHIND = [
    "open-map-options",
    "open-map-reset",
    "open-map-sources",
    "open-map-layer",
    "open-map-records",
    "open-map-canvas",
]
CREDIT = ["A publisher", "An attribution.", "Conditions.", "Modifications."]


def expect_in_order(names, expected):
    """Whether `expected` stands in `names` in that order; other texts may stand between."""
    rest = iter(names)
    for text in expected:
        if text not in rest:
            raise Missed(f"{text!r} is missing, or not in its place, in {names}")


def expect_nothing_behind(program, dialog):
    program.see(role="dialog", name=dialog)
    inside = program.find(role="dialog", name=dialog)
    reachable = {each.id for each in inside.below()}
    for id in BEHIND:
        if id not in reachable:
            program.miss(id=id)
    program.miss(name=PROMPT)


def the_inspector_tells_of_a_record(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.press(id="open-map-record-A-10")
        sheet = program.see(id="open-map-inspector", role="dialog", name="Record")
        expected = [
            "Plant 10",
            "Gas plant · A-10",
            "Source period: 2016",
            "Reported status: Reported for 2016",
            "Reporting company: A company",
            "Company and status describe the cited release."
            " They do not establish the current operator or current operation.",
            "Reported information",
            "City, Fairview",
            "City",
            "Fairview",
            "NPRI · 2016",
            "Sources & licences",
            *CREDIT,
            "Source data",
            "Licence",
            "Location",
            "Publisher-reported location."
            " Equipment position, physical-site boundary and survey precision are not established.",
        ]
        expect_in_order(sheet.names(), expected)
        if "modal" not in sheet.states:
            raise Missed(sheet.text())
        fact = sheet.find(name="City, Fairview")
        if not fact.find(role="link", name="NPRI · 2016"):
            raise Missed(fact.text())
        expect_nothing_behind(program, "Record")


def a_record_without_a_company_has_no_row_for_it(executable):
    release = changed("assets", 1, "reportedCompany", to=None)
    del release["assets"][1]["reportedCompany"]
    with program_with_release(executable, release) as copy, Program(copy) as program:
        program.press(id="open-map-record-A-10")
        names = program.see(id="open-map-inspector").names()
        if "Reported status: Reported for 2016" not in names:
            raise Missed(f"the sheet tells {names}")
        if any(name.startswith("Reporting company") for name in names):
            raise Missed(f"a row that is omitted: {names}")


def closing_the_inspector_clears_the_selection(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        for close in (lambda: program.press(name="Done"), lambda: program.key("Escape")):
            row = program.see(id="open-map-record-A-10")
            name = "Plant 10, Gas plant, source period 2016"
            if not row.fits(role="list item", name=name, state="selectable"):
                raise Missed(row.text())
            row.press()
            program.see(id="open-map-inspector")
            close()
            program.miss(id="open-map-inspector")
            row = program.see(id="open-map-record-A-10")
            if "selected" in row.states:
                raise Missed(row.text())


def a_source_link_opens_in_the_browser(executable):
    with Portal() as portal, program_with_release(executable, RELEASE) as copy:
        with Program(copy) as program:
            program.press(id="open-map-record-A-10")
            link = program.see(role="link", name="NPRI · 2016")
            if "https://example.org/data" not in link.description:
                raise Missed(link.text())
            link.press()
            if portal.asked("OpenURI")[1] != "https://example.org/data":
                raise Missed(f"opened: {portal.calls}")
            program.press(role="link", name="Licence")
            if portal.asked("OpenURI", times=2)[1] != "https://example.org/licence":
                raise Missed(f"opened: {portal.calls}")


def what_no_program_opens_is_told_of(executable):
    with tempfile.TemporaryDirectory() as nothing, program_with_release(executable, RELEASE) as copy:
        with Program(copy, PATH=nothing, BROWSER=None) as program:
            program.press(id="open-map-sources")
            program.press(id="open-map-share")
            program.press(role="menu item", name="Open with…")
            file = Path(copy).parent / "resources/OpenMap.json"
            program.see(name=f"No program was found that opens the file: {file}")
            program.press(role="link", name="Source data")
            said = "No browser was found that opens https://example.org/data"
            program.wait(
                lambda: program.see(role="link", name="Source data").description == said,
                "the link does not say that there is no browser",
            )


def the_sources_sheet_tells_of_the_release(executable):
    release = changed("assets", 0, "routes", to=[[[-112.0, 54.0], [-111.0, 55.0]]])
    with program_with_release(executable, release) as copy, Program(copy) as program:
        program.press(id="open-map-sources")
        sheet = program.see(role="dialog", name="Sources & coverage")
        expected = [
            "This release",
            "Two records",
            "2 records · 1 routes",
            "test-1 · packaged 2025-01-31",
            "The packaged date is not the observation date."
            " Each record shows its source period.",
            "Coverage & limitations",
            "Two records are few.",
            "Sources & reuse",
            *CREDIT,
            "The data retain their source licences. Vasker app terms do not restrict your rights"
            " under OGL-Canada or CC BY 4.0. No government or publisher endorsement is implied.",
            "Share the open-data file",
            "Privacy",
            "This beta has no account, advertising, analytics or location tracking. Search and"
            " filters run on your device. Map tiles come from OpenStreetMap, and imagery from NASA;"
            " source links open the publisher's website. Those services receive the requests you"
            " make to them.",
            "No private Vasker library or raw source documents are included."
            " Data updates arrive in a new app release.",
        ]
        expect_in_order(sheet.names(), expected)
        expect_nothing_behind(program, "Sources & coverage")
        program.press(name="Done")
        program.miss(role="dialog")
        program.see(id="open-map-sources")


def a_copy_of_the_release_is_saved(executable):
    with program_with_release(executable, RELEASE) as copy:
        original = (copy.parent / "resources/OpenMap.json").read_bytes()
        place = copy.parent / "saved copy.json"
        with Portal(save_to=place) as portal, Program(copy) as program:
            program.press(id="open-map-sources")
            program.press(role="push button", name="Share the open-data file")
            program.press(role="menu item", starts="Save")
            if portal.asked("SaveFile")[2]["current_name"] != "OpenMap.json":
                raise Missed(f"asked: {portal.calls}")
            program.see(name=f"Saved to {place}")
            if place.read_bytes() != original:
                raise Missed("the copy is not the file")


def without_a_portal_the_program_asks_where(executable):
    """In its own appearance; the name is ready to be typed, and stands where the folder is."""
    dark = GLib.Variant("u", 1)
    with program_with_release(executable, RELEASE) as copy:
        with Portal(lacks="org.freedesktop.portal.FileChooser") as portal, Program(copy) as program:
            program.see(id="open-map-canvas")
            portal.asked("ReadAll")
            portal.change("org.freedesktop.appearance", "color-scheme", dark)
            program.key("ctrl+s")
            program.see(role="text", name="File name", state="focused")
            dialog = program.see(role="dialog")
            fields = [("combo box", "Show"), ("text", "File name")]
            parts = [("push button", "Parent folder"), ("text", "Folder"), *fields]
            if not all(dialog.find(role=role, name=name) for role, name in parts):
                raise Missed(dialog.text())
            heights = [dialog.find(role=role, name=name).box()[3] for role, name in fields]
            if heights[0] < heights[1]:
                raise Missed(f"which files are shown is cut: {heights}")
            left, top, width, height = dialog.box()
            shown = Screen().rows((left + 1, top + 1, width - 2, height - 2))
            bright = sum(sum(pixel) > 3 * 128 for row in shown for pixel in row)
            if bright > 0.1 * width * height:
                raise Missed(f"of {width * height} pixels {bright} are bright")
            program.key("Return")
            program.see(starts="Saved to ")
            program.miss(starts="Saved to ")
            program.see(role="text", name=PROMPT, state="focused")
            # With a file of that name in the folder, whose row wants the focus.
            program.key("ctrl+s")
            program.see(role="label", starts="test-1")
            program.see(role="text", name="File name", state="focused")
            program.type("typed")
            program.key("Return")
            place = program.home / "typed.csv"
            program.see(name=f"Saved to {place}")
            if not place.read_text("utf-8"):
                raise Missed("nothing is saved")


def the_records_shown_are_saved(executable):
    with program_with_release(executable, RELEASE) as copy:
        place = copy.parent / "shown.csv"
        with Portal(save_to=place) as portal, Program(copy) as program:
            program.see(name=PROMPT).set_text("plant 1")
            program.see(name="1 of 2 records")
            program.key("ctrl+s")
            program.see(name=f"Saved to {place}")
            offered = portal.asked("SaveFile")[2]["current_name"]
            if not offered.endswith("-plant-1.csv"):
                raise Missed(f"offered: {offered}")
            heading, *rows = place.read_text(encoding="utf-8").splitlines()
            if "query=plant 1,filter=all" not in heading:
                raise Missed(f"the heading: {heading}")
            if not rows or not all(row.startswith("A-10,") for row in rows):
                raise Missed(f"the rows: {rows}")
            program.miss(name=f"Saved to {place}")


def a_picture_of_the_map_is_saved(executable):
    with program_with_release(executable, RELEASE) as copy:
        sizes = []
        for row in ("Save a picture of the map…", "Save a picture at twice the size…"):
            place = copy.parent / f"map {len(sizes)}.png"
            with Portal(save_to=place) as portal, Program(copy) as program:
                map_width = program.see(id="open-map-canvas").box()[2]
                program.press(id="open-map-menu")
                program.press(role="menu item", name=row)
                program.see(name=f"Saved to {place}")
                if portal.asked("SaveFile")[2]["current_name"] != "test-1-map.png":
                    raise Missed(f"asked: {portal.calls}")
            head = place.read_bytes()[:24]
            sizes.append((int.from_bytes(head[16:20], "big"), int.from_bytes(head[20:24], "big")))
        (width, height), doubled = sizes
        if width != map_width or doubled != (2 * width, 2 * height):
            raise Missed(f"a map {map_width} wide gives {sizes}")


def the_map_is_saved_as_a_page(executable):
    with program_with_release(executable, RELEASE) as copy:
        for name, beginning in (("map.pdf", b"%PDF"), ("map.svg", b"<?xml")):
            place = copy.parent / name
            with Portal(save_to=place) as portal, Program(copy) as program:
                program.press(id="open-map-menu")
                program.press(role="menu item", name="Save the map as PDF or SVG…")
                program.see(name=f"Saved to {place}")
                if portal.asked("SaveFile")[2]["current_name"] != "test-1-map.pdf":
                    raise Missed(f"asked: {portal.calls}")
            if not place.read_bytes().startswith(beginning):
                raise Missed(f"{name} begins with {place.read_bytes()[:10]}")


def the_map_is_printed(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(id="open-map-canvas")
        program.key("ctrl+p")
        program.see(name=NO_PRINTING)
    with program_with_release(executable, RELEASE) as copy, Portal() as portal:
        with Program(copy) as program:
            program.see(id="open-map-canvas")
            program.key("ctrl+p")
            program.see(name="The map is on its way to the printer.")
            page, options = portal.asked("Print")[2:]
            if not page.startswith(b"%PDF") or options["token"] != 7:
                raise Missed(f"printed: {page[:10]}, {options}")


def the_records_sheet_comes_before_the_inspector(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        program.key("ctrl+r")
        program.see(role="dialog", name="Records")
        expect_nothing_behind(program, "Records")
        program.see(name="Name or reporting company").set_text("plant 1")
        program.wait(
            lambda: program.see(role="dialog", name="Records").find(name="1 of 2 records"),
            "the sheet's own search does not filter",
        )
        sheet = program.see(role="dialog", name="Records")
        sheet.find(id="open-map-record-A-10").press()

        def inspector_alone():
            dialogs = program.windows()[0].find_all(role="dialog")
            if len(dialogs) > 1:
                raise Missed(f"two sheets at once: {[each.name for each in dialogs]}")
            return [each.name for each in dialogs] == ["Record"]

        program.wait(inspector_alone, "the inspector does not follow")
        program.press(name="Done")
        program.miss(role="dialog")
        program.see(name="1 of 2 records")
        if program.see(name=PROMPT).contents() != "plant 1":
            raise Missed("the two search fields are not one")


def done_closes_the_records_sheet_and_opens_nothing(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        program.key("ctrl+r")
        program.see(role="dialog", name="Records")
        program.press(name="Done")
        program.miss(role="dialog")
        program.see(id="open-map-records")
