"""The catalogue, as found in a small release: Plant 2 and Plant 10, both gas plants."""

from bundle import RELEASE, changed, program_with_release
from driver import Missed, Program

PROMPT = "Facility, pipeline or reporting company"
ROWS = ["Plant 2, Gas plant, source period 2016", "Plant 10, Gas plant, source period 2016"]


def rows(program):
    records = program.find(id="open-map-records")
    return [row.name for row in records.find_all(role="list item")] if records else None


def see_rows(program, expected):
    program.wait(lambda: rows(program) == expected, f"rows are {rows(program)}, not {expected}")


def a_record_is_found_by_search(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        see_rows(program, ROWS)
        field = program.see(name=PROMPT)
        if "editable" not in field.states:
            raise Missed(field.text())
        field.set_text("pLANT 1")
        program.see(name="1 of 2 records")
        see_rows(program, ROWS[1:])
        program.see(name=PROMPT).set_text("nothing of that name")
        program.see(name="0 of 2 records")
        program.miss(id="open-map-records")
        program.press(name="Clear search")
        program.see(name="2 of 2 records")
        if program.find(name=PROMPT).contents() != "":
            raise Missed("the field still holds a text")
        see_rows(program, ROWS)


def a_category_is_chosen(executable):
    release = changed("assets", 1, "kind", to="refinery")
    with program_with_release(executable, release) as copy, Program(copy) as program:
        program.press(id="open-map-layer", role="combo box", name="Layer")
        # The window's other lists do not offer it.
        program.press(role="menu item", name="Gas plant")
        program.see(name="1 of 2 records")
        see_rows(program, ROWS[:1])
        picker = program.see(id="open-map-layer")
        if picker.description != "Gas plant":
            raise Missed(picker.text())
        program.press(id="open-map-layer")
        program.see(role="menu item", name="Gas plant", state="checked")
        program.press(role="menu item", name="All categories")
        program.see(name="2 of 2 records")
        program.press(id="open-map-layer")
        program.see(role="menu item", name="Gas plant")
        program.key("Escape")
        program.miss(role="menu item")


def places(program):
    """Of each row in the tree, in its order: its attributes "posinset" and "setsize"."""
    found = []
    for row in program.see(id="open-map-records").find_all(role="list item"):
        told = row.node.get_attributes()
        found.append((int(told.get("posinset", 0)), int(told.get("setsize", 0))))
    return found


def a_short_list_has_all_its_rows(executable):
    """In view or not: some screen readers count them."""
    assets = [
        dict(RELEASE["assets"][0], id=f"A-{number}", name=f"Plant {number}") for number in range(60)
    ]
    with program_with_release(executable, changed("assets", to=assets)) as copy, Program(copy) as program:
        program.see(name="60 of 60 records")
        told = [(place, 60) for place in range(1, 61)]
        program.wait(lambda: places(program) == told, f"the rows tell {places(program)}")


def the_rows_of_a_long_list_tell_their_places(executable):
    """Though only those in view have been made."""
    assets = [
        dict(RELEASE["assets"][0], id=f"A-{number}", name=f"Plant {number}") for number in range(400)
    ]
    assets[250]["name"] = "Žeta"
    with program_with_release(executable, changed("assets", to=assets)) as copy, Program(copy) as program:
        program.see(name="400 of 400 records")

        def expect(first, last):
            def told():
                found = places(program)
                positions = [position for position, _ in found]
                return (
                    {size for _, size in found} == {400}
                    and positions == list(range(positions[0], positions[-1] + 1))
                    and positions[0] <= first
                    and positions[-1] >= last
                )

            program.wait(told, f"the rows tell {places(program)}")

        expect(1, 10)
        program.see(name=PROMPT).focus()
        program.key("Down")
        for _ in range(5):
            program.key("Next")
        expect(40, 50)
        program.key("Home")
        expect(1, 10)
        program.key("End")
        expect(395, 400)
        last = "Žeta, Gas plant, source period 2016"
        program.see(role="list item", name=last, state="focused")
        program.key("Home")
        expect(1, 10)
        program.type("z")
        program.see(role="list item", name=last, state="focused")
