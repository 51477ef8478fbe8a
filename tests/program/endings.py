"""How the program ends, and what it outlives."""

import signal
import time

from bundle import RELEASE, encoded, program_with, program_with_release
from bus import private_bus
from disks import BASEMAP, choose_satellite
from driver import Missed, Program, Screen, wait
from faults import faults
from portal import Portal

# What a slow machine may need beside the half second that a user may have to wait.
PATIENCE_SECONDS = 3
BEFORE = "what was there before\n"


def a_load_that_hangs_keeps_nobody(executable):
    """The file of the release lies on a disk that does not answer: opening it never ends."""
    with faults("open wait */OpenMap.json") as dead, program_with_release(executable, RELEASE) as copy:
        with Program(copy, **dead.environment) as program:
            program.see(name="Opening the bundled map…")
            program.key("ctrl+n")
            program.see(window=1, name="Opening the bundled map…")
            program.key("ctrl+w", window=1)
            program.wait(lambda: len(program.windows()) == 1, "the second window is still there")
            program.key("ctrl+w")
            closed = time.monotonic()
            status = program.process.wait(timeout=20)
            seconds = time.monotonic() - closed
            print(f"ended {seconds:.2f} s after its last window was closed")
            if status != 0 or seconds > PATIENCE_SECONDS:
                raise Missed(f"it ended with {status} after {seconds:.2f} s")


def the_keys_of_a_window_work_where_the_map_cannot_be_shown(executable):
    """Also while the text is selected that says why."""
    information = {"VaskerOpenMapSHA256": "0" * 64}
    with program_with(executable, encoded(RELEASE), information) as copy, Program(copy) as program:
        program.see(id="open-map-error")
        program.key("Tab")
        program.key("ctrl+a")
        program.see(starts="The bundled map does not match", state="focused")
        program.key("ctrl+n")
        program.see(window=1, id="open-map-error")
        program.key("ctrl+w")
        program.wait(lambda: len(program.windows()) == 1, "the first window is still there")
        program.key("Tab")
        program.key("ctrl+a")
        program.key("F1")
        program.see(id="open-map-guide")
        program.key("ctrl+q")
        status = program.process.wait(timeout=20)
        if status != 0:
            raise Missed(f"it ended with {status}")


# When the program is ended while it writes a file, and whether the file is the new one then.
MOMENTS = [("write wait", False), ("sync wait", False), ("rename wait", False), ("rename stay", True)]
SIGNALS = [signal.SIGTERM, signal.SIGKILL]


def end_at(moment, folder, present, program, act, how):
    """Has the program `act`, and ends it when it writes a file in `folder`, at that moment."""
    fault = f"{moment} {folder}/*"
    present.set(fault)
    act()
    present.expect(fault)
    program.process.send_signal(how)
    program.process.wait(timeout=20)


def an_end_while_a_file_is_saved_leaves_the_old_or_the_new_one(executable):
    with faults() as present, program_with_release(executable, RELEASE) as copy:
        folder = copy.parent / "documents"
        folder.mkdir()
        place = folder / "shown.csv"
        for moment, is_new in MOMENTS:
            for how in SIGNALS:
                place.write_text(BEFORE)
                present.set()
                with Portal(save_to=place), Program(copy, **present.environment) as program:
                    program.see(name="2 of 2 records")
                    save = lambda: program.key("ctrl+s")
                    end_at(moment, folder, present, program, save, how)
                found = place.read_text("utf-8")
                rows = [line.partition(",")[0] for line in found.splitlines()]
                if (rows == ["id", "A-2", "A-2", "A-10", "A-10"]) != is_new or (found == BEFORE) == is_new:
                    raise Missed(f"{moment}, {how.name}: {found}")


def an_end_while_a_preference_is_written_leaves_the_old_or_the_new_one(executable):
    before = {BASEMAP: "hybrid", "another": "value"}
    with faults() as present, program_with_release(executable, RELEASE) as copy:
        for moment, is_new in MOMENTS:
            for how in SIGNALS:
                present.set()
                with Program(copy, preferences=before, **present.environment) as program:
                    program.see(name="2 of 2 records")

                    def choose_the_first():
                        # By keys: a program that hangs answers no screen reader.
                        program.press(id="open-map-options")
                        program.see(role="menu item", name="Hybrid", state="focused")
                        program.key("Home")
                        program.key("Return")

                    folder = "*/config/vasker-open-map"
                    end_at(moment, folder, present, program, choose_the_first, how)
                    stored = program.preference(BASEMAP), program.preference("another")
                if stored != ("standard" if is_new else "hybrid", "value"):
                    raise Missed(f"{moment}, {how.name}: {stored}")


def a_hanging_disk_holds_no_window_up(executable):
    """A choice is written to a disk that never answers: the window goes on, and so does its closing; the
    program waits some seconds for the disk, out of sight."""
    fault = "sync wait */config/vasker-open-map/*"
    with faults(fault) as present, program_with_release(executable, RELEASE) as copy:
        with Program(copy, **present.environment) as program:
            program.see(name="2 of 2 records")
            choose_satellite(program)
            present.expect(fault)
            program.press(id="open-map-record-A-10")
            program.see(id="open-map-inspector")
            program.press(name="Done")
            program.miss(id="open-map-inspector")
            program.press(id="open-map-options")
            program.see(role="menu item", name="Satellite", state="checked")
            program.key("Escape")
            program.miss(role="menu item", name="Satellite")
            program.key("ctrl+q")
            closed = time.monotonic()
            wait(lambda: not program.titles(), "the window stays")
            print(f"the window was gone after {time.monotonic() - closed:.2f} s")
            status = program.process.wait(timeout=10 + 2 * PATIENCE_SECONDS)
            print(f"the program ended after {time.monotonic() - closed:.2f} s")
            if status != 0:
                raise Missed(f"it ended with {status}")


def picture_at_rest(program, unlike=None):
    """What the display shows once something is drawn, stays the same, and is another than `unlike`."""

    def asked():
        first = Screen()
        time.sleep(0.3)
        second = Screen()
        at_rest = second.is_drawn() and second.shows(first)
        return second if at_rest and not (unlike and second.shows(unlike)) else None

    return program.wait(asked, "the display does not change, or does not come to rest")


def a_session_bus_that_ends_is_not_missed(executable):
    """Nor is there an accessibility bus then: what shows is on the display."""
    with private_bus() as (bus, place):
        address = {"DBUS_SESSION_BUS_ADDRESS": place}
        with program_with_release(executable, RELEASE) as copy, Program(copy, **address) as program:
            program.wait(lambda: len(program.titles()) == 1, "there is no window")
            workspace = picture_at_rest(program)
            bus.kill()
            program.key("ctrl+question")
            sheet = picture_at_rest(program, unlike=workspace)
            program.key("Escape")
            picture_at_rest(program, unlike=sheet)
            program.key("ctrl+n")
            program.wait(lambda: len(program.titles()) == 2, "there is no second window")
            program.key("ctrl+q")
            status = program.process.wait(timeout=20)
            if status != 0:
                raise Missed(f"it ended with {status}")
