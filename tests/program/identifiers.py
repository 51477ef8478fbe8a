"""The names under which tests and assistive tools find a control, each on exactly one."""

from bundle import RELEASE, program_with_release
from driver import Atspi, Missed, Program, switch_accessibility

# Identifier: role, name, whether it can be pressed.
CONTROLS = {
    "open-map-layer": ("combo box", "Layer", True),
    "open-map-records": ("list", "Records", False),
    "open-map-options": ("push button", "Map options", True),
    "open-map-sources": ("push button", "Sources & coverage", True),
    "open-map-reset": ("push button", "Canada", True),
    "open-map-canvas": ("canvas", "Canadian energy infrastructure map", False),
}


def expect_controls(window, controls):
    for id, (role, name, pressable) in controls.items():
        found = window.find_all(id=id)
        if len(found) != 1 or not found[0].fits(role=role, name=name, state="showing"):
            raise Missed(f"{id}: {[each.text() for each in found]}")
        if found[0].actions().count("Press") != int(pressable) or "SetFocus" not in found[0].actions():
            raise Missed(f"{id} has the actions {found[0].actions()}")
        if found[0].node.get_attributes().get("id") != id:
            raise Missed(f"{id} has the attributes {found[0].node.get_attributes()}")


def stand_on_their_controls(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        expect_controls(program.windows()[0], CONTROLS)
        others = [each for each in program.windows()[0].below() if each.id and "open-map-" not in each.id]
        if others:
            raise Missed(f"names that nobody asked for: {others}")


def stand_where_the_screen_has_them(executable):
    """In its pixels, whatever the scale."""
    with program_with_release(executable, RELEASE) as copy, Program(copy, QT_SCALE_FACTOR="2") as program:
        program.see(name="2 of 2 records")
        program.resize(1400, 900)

        def edges():
            left, _, width, _ = program.find(id="open-map-canvas").box()
            return left, left + width

        program.wait(lambda: edges() == (642, 1400), f"the map is at {edges()}")
        left, top, width, height = program.see(id="open-map-menu").box()
        found = Atspi.Component.get_accessible_at_point(
            program.windows()[0].node, left + width // 2, top + height // 2, Atspi.CoordType.SCREEN
        )
        if found is None or found.get_accessible_id() != "open-map-menu":
            raise Missed(f"at the menu's place is {found and found.get_role_name()}")


def stand_on_the_controls_of_every_window(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        program.key("ctrl+n")
        program.see(window=1, name="2 of 2 records")
        for window in program.windows():
            expect_controls(window, CONTROLS)
        program.see(window=1, name="Facility, pipeline or reporting company").set_text("plant 1")
        program.see(window=1, name="1 of 2 records")
        program.see(window=0, name="2 of 2 records")
        program.key("ctrl+w", window=1)
        program.wait(lambda: len(program.windows()) == 1, "the second window is still there")
        expect_controls(program.windows()[0], CONTROLS)


def are_there_before_a_screen_reader_starts(executable):
    """Qt notices none that starts later: the program is on the bus from the start."""
    switch_accessibility(False)
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        expect_controls(program.windows()[0], CONTROLS)


def survive_a_tree_that_changes(executable):
    """Rows come and go, and are asked about when they are gone."""
    with Program(executable) as program:
        rows = program.see(id="open-map-records").find_all(role="list item")
        field = program.see(name="Facility, pipeline or reporting company")
        for text in ["no such record", "gas", "a", ""] * 5:
            field.set_text(text)
            for row in rows:
                row.is_there()
        program.see(id="open-map-records")
        expect_controls(program.windows()[0], CONTROLS)
