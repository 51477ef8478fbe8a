"""The workspace around the map: header bar, basemap, windows."""

import shutil
import subprocess
import tempfile
import time

from bundle import RELEASE, program_with_release
from driver import Missed, Program

PROMPT = "Facility, pipeline or reporting company"
BASEMAP = "open-map.basemap"


def the_header_bar_has_its_controls_in_order(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        expected = [
            ("open-map-options", "Map options"),
            ("open-map-reset", "Canada"),
            ("open-map-sources", "Sources & coverage"),
        ]
        ids = [id for id, _ in expected]
        found = [each for each in program.windows()[0].below() if each.id in ids]
        if [(each.id, each.name) for each in found] != expected:
            raise Missed(f"the header bar has {[each.text() for each in found]}")
        for control in found:
            if control.role != "push button" or "Press" not in control.actions():
                raise Missed(control.text())


def choices(program, window):
    """Opens the menu of a window, reads its basemaps and whether each is marked, and closes it."""
    program.press(window=window, id="open-map-options")
    program.see(window=window, role="menu item", name="Hybrid")
    items = program.windows()[window].find_all(role="menu item")
    program.key("Escape", window=window)
    program.miss(window=window, role="menu item", name="Hybrid")
    return [(each.name, "checked" in each.states) for each in items]


def a_basemap_is_chosen_for_every_window(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        program.key("ctrl+n")
        program.see(window=1, name="2 of 2 records")
        unchanged = [("Map", True), ("Satellite", False), ("Hybrid", False)]
        if choices(program, 0) != unchanged or program.preference(BASEMAP) is not None:
            raise Missed("the basemap is not the standard one at the start")
        program.press(id="open-map-options")
        program.press(role="menu item", name="Satellite")
        program.wait(
            lambda: program.preference(BASEMAP) == "satellite",
            f"the preference is {program.preference(BASEMAP)}",
        )
        for window in (0, 1):
            program.miss(window=window, role="menu item", name="Satellite")
            found = choices(program, window)
            if found != [("Map", False), ("Satellite", True), ("Hybrid", False)]:
                raise Missed(f"window {window} offers {found}")


def an_unknown_basemap_is_not_marked_and_stays(executable):
    with program_with_release(executable, RELEASE) as copy:
        with Program(copy, preferences={BASEMAP: "moon"}) as program:
            program.see(name="2 of 2 records")
            if any(marked for _, marked in choices(program, 0)):
                raise Missed("a choice is marked")
            if program.preference(BASEMAP) != "moon":
                raise Missed(f"the preference is {program.preference(BASEMAP)}")


def scale(program):
    return program.see(starts="Scale: ").name


def canada_restores_the_overview_and_nothing_else(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        overview = scale(program)
        program.see(name=PROMPT).set_text("plant 1")
        program.see(name="1 of 2 records")
        program.press(id="open-map-record-A-10")
        program.see(id="open-map-inspector")
        program.press(name="Done")
        program.miss(id="open-map-inspector")
        program.wait(lambda: scale(program) != overview, "the record was not framed")
        program.press(id="open-map-reset")
        program.wait(lambda: scale(program) == overview, "the overview is not back")
        if program.see(name=PROMPT).contents() != "plant 1":
            raise Missed("the search text is gone")
        program.see(name="1 of 2 records")


def a_key_held_on_the_main_menu_opens_it_and_no_window(executable):
    """The display repeats the key some 25 times a second."""
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        for key in ("Return", "space"):
            program.key("ctrl+f")
            while "focused" not in program.see(id="open-map-menu").states:
                program.key("Tab")
            program.hold(key, 2)
            program.see(role="popup menu")
            if len(program.titles()) != 1:
                raise Missed(f"{key} opened {len(program.titles()) - 1} windows")
            program.key("Escape")
            program.miss(role="popup menu")
        program.hold("ctrl+n", 2)
        program.wait(lambda: len(program.titles()) > 1, "there is no second window")
        if len(program.titles()) != 2:
            raise Missed(f"Ctrl+N opened {len(program.titles()) - 1} windows")


def a_second_start_opens_a_window_of_the_first(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        program.see(name=PROMPT).set_text("plant 1")
        second = subprocess.run([copy], env=program.variables, timeout=20)
        if second.returncode != 0:
            raise Missed(f"the second start ended with {second.returncode}")
        program.see(window=1, name="2 of 2 records")
        program.see(window=0, name="1 of 2 records")


def without_a_session_bus_every_start_stands_alone(executable):
    """Nor is there an accessibility bus then: what shows is that both have their window."""
    with program_with_release(executable, RELEASE) as copy:
        alone = {"DBUS_SESSION_BUS_ADDRESS": None}
        with Program(copy, **alone) as first, Program(copy, **alone) as second:
            for program in (first, second):
                program.wait(lambda: len(program.titles()) == 1, "there is no window")
            time.sleep(1)
            for program in (first, second):
                if program.process.poll() is not None or program.titles() != ["Vasker Beta"]:
                    raise Missed(f"a program has {program.titles()}, {program.process.poll()}")


def a_small_window_keeps_every_tool_in_reach(executable):
    """As small as a compositor may make it, whatever the window asks for."""
    tools = ["open-map-options", "open-map-reset", "open-map-sources"]
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        for tool in tools:
            program.see(id=tool)
        program.resize(500, 400)
        for tool in tools:
            program.miss(id=tool)
        program.key("F10")
        program.press(role="menu item", name="Map options")
        program.press(role="menu item", name="Satellite")
        program.wait(lambda: program.preference(BASEMAP) == "satellite", "no basemap is chosen")
        program.key("F10")
        program.press(role="menu item", name="Canada")
        program.key("F10")
        program.press(role="menu item", name="Sources & coverage")
        program.see(role="dialog", name="Sources & coverage")
        program.press(name="Done")
        program.resize(1280, 800)
        for tool in tools:
            program.see(id=tool)


def a_locale_from_right_to_left_mirrors_the_window(executable):
    """With a locale that nobody else has: the texts stay English."""
    order = ["open-map-layer", "open-map-options", "open-map-reset", "open-map-sources", "open-map-menu"]
    with tempfile.TemporaryDirectory() as locales:
        for locale in ("C.utf8", "ar_XA.utf8"):
            shutil.copytree("/usr/lib/locale/C.utf8", f"{locales}/{locale}")
        mirrored = {"LC_ALL": None, "LC_CTYPE": "C.UTF-8", "LC_MESSAGES": "ar_XA.UTF-8", "LOCPATH": locales}
        for environment, expected in [({}, order), (mirrored, order[::-1])]:
            with program_with_release(executable, RELEASE) as copy, Program(copy, **environment) as program:
                program.see(name="2 of 2 records")
                found = sorted(order, key=lambda id: program.see(id=id).box()[0])
                if found != expected:
                    raise Missed(f"from left to right: {found}")
