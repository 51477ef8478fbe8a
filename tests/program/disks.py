"""What the program does where files cannot be read or written, or no more of them be opened."""

import contextlib
import os
import resource
import time

from bundle import RELEASE, digest, encoded, program_with, program_with_release
from driver import Missed, Program
from failures import KEY, REASSURANCE
from faults import faults
from portal import Portal
from workspace import PROMPT

BASEMAP = "open-map.basemap"
FULL = "The file could not be saved: No space left on device"
BROKEN = "The file could not be saved: Input/output error"
SERVICE = "https://127.0.0.1:1/{z}/{x}/{y}"


def a_release_that_cannot_be_read_is_told_of(executable):
    for fault, message in [
        ("read EIO */OpenMap.json", "Input/output error"),
        ("open EIO */OpenMap.json", "Input/output error"),
        ("open EMFILE */OpenMap.json", "Too many open files"),
        ("open EACCES */OpenMap.json", "Permission denied"),
    ]:
        with faults(fault) as present, program_with_release(executable, RELEASE) as copy:
            with Program(copy, **present.environment) as program:
                screen = program.see(id="open-map-error")
                present.expect(fault)
                if screen.description != message + REASSURANCE:
                    raise Missed(screen.text())


def a_byte_at_a_time_is_enough(executable):
    fault = "read 1 */resources/*.json"
    with faults(fault) as present, program_with_release(executable, RELEASE) as copy:
        with Program(copy, **present.environment) as program:
            program.see(name="2 of 2 records")
            if len(present.met()) < len(encoded(RELEASE)):
                raise Missed(f"it was read in {len(present.met())} steps")


def save_records(program):
    program.key("ctrl+s")


def choose(row):
    def save(program):
        program.press(id="open-map-menu")
        program.press(role="menu item", name=row)

    return save


def copy_release(program):
    if not program.find(role="push button", name="Share the open-data file"):
        program.press(id="open-map-sources")
    program.press(role="push button", name="Share the open-data file")
    program.press(role="menu item", starts="Save")


SAVED = [
    ("shown.csv", save_records),
    ("shown.geojson", save_records),
    ("map.png", choose("Save a picture of the map…")),
    ("map.pdf", choose("Save the map as PDF or SVG…")),
    ("map.svg", choose("Save the map as PDF or SVG…")),
    ("copy.json", copy_release),
]


def fails_to_save(executable, fault, message):
    """Each kind of file, over one that is there, and again when the fault is gone."""
    with contextlib.ExitStack() as stack:
        present = stack.enter_context(faults())
        copy = stack.enter_context(program_with_release(executable, RELEASE))
        portal = stack.enter_context(Portal())
        program = stack.enter_context(Program(copy, **present.environment))
        program.see(name="2 of 2 records")
        folder = copy.parent / "documents"
        folder.mkdir()
        for name, save in SAVED:
            place = portal.save_to = folder / name
            place.write_bytes(b"what was there before")
            # The new file has no name until it is whole.
            present.set(f"{fault} {folder}/*")
            save(program)
            program.see(name=message)
            present.expect(f"{fault} {folder}/*")
            if place.read_bytes() != b"what was there before":
                raise Missed(f"{name} is another file")
            if list(folder.iterdir()) != [place]:
                raise Missed(f"it left {sorted(folder.iterdir())}")
            present.set()
            save(program)
            program.see(name=f"Saved to {place}")
            program.miss(name=message)
            place.unlink()


def a_full_disk_keeps_what_was_there(executable):
    fails_to_save(executable, "write ENOSPC", FULL)


def a_file_is_saved_once_it_is_on_the_disk(executable):
    """Some disks tell only then that something is wrong."""
    fails_to_save(executable, "sync EIO", BROKEN)


def a_slow_disk_is_waited_for_in_sight_and_holds_up_nothing(executable):
    with faults() as present, program_with_release(executable, RELEASE) as copy:
        place = copy.parent / "shown.csv"
        fault = f"write wait {copy.parent}/*"
        with Portal(save_to=place), Program(copy, **present.environment) as program:
            program.see(name="2 of 2 records")
            present.set(fault)
            save_records(program)
            present.expect(fault)
            program.see(name="Saving shown.csv…")
            program.see(name=PROMPT).set_text("plant 1")
            program.see(name="1 of 2 records")
            time.sleep(5)  # good news would be gone by then
            program.see(name="Saving shown.csv…")
            program.process.kill()  # it would wait for the disk


def choose_satellite(program):
    program.press(id="open-map-options")
    program.press(role="menu item", name="Satellite")
    program.miss(role="menu item", name="Satellite")


def a_preference_on_a_full_disk_holds_as_long_as_the_program(executable):
    before = {BASEMAP: "hybrid", "another": "value"}
    for fault in ("write ENOSPC", "sync EIO", "rename EROFS"):
        fault += " */config/vasker-open-map/*"
        with faults() as present, program_with_release(executable, RELEASE) as copy:
            with Program(copy, preferences=before, **present.environment) as program:
                program.see(name="2 of 2 records")
                present.set(fault)
                choose_satellite(program)
                present.expect(fault)
                stored = program.home / "config/vasker-open-map"
                if (program.preference(BASEMAP), program.preference("another")) != ("hybrid", "value"):
                    raise Missed(f"stored: {(stored / 'preferences').read_bytes()}")
                if [each.name for each in stored.iterdir()] != ["preferences"]:
                    raise Missed(f"it left {list(stored.iterdir())}")
                program.press(id="open-map-options")
                program.see(role="menu item", name="Satellite", state="checked")


def a_cache_on_a_full_disk_is_none(executable):
    """Tiles are looked up and not kept, and the built-in basemap is there."""
    content = encoded(RELEASE)
    service = {"template": SERVICE, "firstZoom": 0, "lastZoom": 14}
    information = {
        KEY: digest(content),
        "VaskerTileServices": {"vector": [service], "imagery": [service]},
    }
    for fault in ("write ENOSPC */tiles.sqlite*", "read EIO */tiles.sqlite*", "open EMFILE */tiles.sqlite*"):
        with faults(fault) as present, program_with(executable, content, information) as copy:
            with Program(copy, **present.environment) as program:
                program.see(name="2 of 2 records")
                present.expect(fault)
                program.press(id="open-map-record-A-10")
                program.see(id="open-map-inspector")


def without_descriptors_what_is_open_stays(executable):
    with program_with_release(executable, RELEASE) as copy, Program(copy) as program:
        program.see(name="2 of 2 records")
        program.key("ctrl+f")  # the keyboard's own files are read at the first key
        program.wait(lambda: program.find(role="text", state="focused"), "no key arrives")
        pid = program.process.pid
        used = lambda: len(os.listdir(f"/proc/{pid}/fd"))
        limit = resource.prlimit(pid, resource.RLIMIT_NOFILE)
        for spare in (0, 1, 2, 8, 40):
            resource.prlimit(pid, resource.RLIMIT_NOFILE, (used() + spare, limit[1]))
            program.key("ctrl+n")
            program.press(id="open-map-record-A-10")
            program.see(id="open-map-inspector")
            program.press(name="Done")
            program.miss(id="open-map-inspector")
        if len(program.titles()) != 1:
            raise Missed(f"there are {len(program.titles())} windows")
        before = used()
        # What the program wants to be spare is enough.
        resource.prlimit(pid, resource.RLIMIT_NOFILE, (before + 50, limit[1]))
        program.key("ctrl+n")
        program.see(window=1, name="2 of 2 records")
        print(f"a window takes {used() - before} descriptors")
