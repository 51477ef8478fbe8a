"""The map explored by keys, as one hears it: Plant 2 stands at 56 north, Plant 10 at 64 north."""

from announcing import Reader
from bundle import RELEASE, program_with_release
from driver import Missed, Program


def the_map_is_explored_by_ear(executable):
    with program_with_release(executable, RELEASE) as copy, Reader() as reader, Program(copy) as program:
        reader.expect(program, "The map is open: 2 records")
        canvas = program.see(id="open-map-canvas", role="canvas")
        if "Ctrl with an arrow key" not in canvas.description:
            raise Missed(canvas.text())
        canvas.focus()
        program.see(id="open-map-canvas", state="focused")
        program.key("ctrl+Up")
        reader.expect(program, "Plant 2, gas plant, 222 km north")
        program.key("ctrl+Up")
        reader.expect(program, "Plant 10, gas plant, 890 km north")
        program.key("ctrl+Down")
        reader.expect(program, "Plant 2, gas plant, 890 km south")
        program.key("Home")
        program.key("r")
        reader.expect(program, "Plant 2, gas plant, 222 km north")
        program.key("Return")
        program.see(id="open-map-inspector")
        reader.expect(program, "Picked: Plant 2, Gas plant")


def older_readers_hear_where_the_map_is_and_what_is_there(executable):
    """Both in one notification: the second would take the place of the first before that is read."""
    with program_with_release(executable, RELEASE) as copy:
        with Reader("object:state-changed:showing") as reader, Program(copy) as program:
            reader.expect(program, "The map is open: 2 records")
            canvas = program.see(id="open-map-canvas")
            canvas.focus()
            program.see(id="open-map-canvas", state="focused")
            program.key("ctrl+Up")
            reader.expect(program, "Plant 2, gas plant, 222 km north")
            program.key("plus")
            reader.expect_match(program, r"records? in view\. Plant 2, gas plant, ")
