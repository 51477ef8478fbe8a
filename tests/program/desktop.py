"""What the program does when the desktop's services go, and come back."""

import subprocess
import tempfile
from pathlib import Path

from gi.repository import GLib

from bundle import RELEASE, program_with_release
from bus import private_bus
from driver import Missed, Program, Screen
from portal import Portal
from settings import DESKTOP, brightness

QUESTION = "Save the records shown, as .csv or .geojson"


def a_portal_that_goes_while_it_asks_is_replaced(executable):
    """Its dialog went with it: the program's own asks where to save."""
    with Portal(open=["SaveFile"]) as portal, program_with_release(executable, RELEASE) as copy:
        with Program(copy) as program:
            program.see(name="2 of 2 records")
            program.key("ctrl+s")
            portal.asked("SaveFile")
            program.press(id="open-map-record-A-10")  # nothing waits for the answer
            program.see(id="open-map-inspector")
            program.press(name="Done")
            program.miss(id="open-map-inspector")
            portal.go()
            program.see(role="dialog", name=QUESTION)
            program.key("Escape")
            program.miss(role="dialog", name=QUESTION)
            program.key("ctrl+s")
            program.see(role="dialog", name=QUESTION)


def a_portal_that_comes_back_is_asked_again(executable):
    """The first one goes before it has told of the settings."""
    with Portal(open=["ReadAll"]) as portal, program_with_release(executable, RELEASE) as copy:
        with Program(copy) as program:
            left, top, _, _ = program.see(id="open-map-layer").box()
            surface = lambda: brightness(Screen().pixel(left - 6, top))
            program.wait(lambda: surface() >= 220, "the window is not light")
            portal.asked("ReadAll")
            portal.go()
            program.press(id="open-map-record-A-10")
            program.see(id="open-map-inspector")
            program.press(name="Done")
            program.miss(id="open-map-inspector")
            settings = {DESKTOP: {"color-scheme": GLib.Variant("u", 1)}}
            with Portal(settings=settings) as second:
                second.asked("ReadAll")
                program.wait(lambda: surface() <= 60, "the window does not become dark")
                second.change(DESKTOP, "color-scheme", GLib.Variant("u", 2))
                program.wait(lambda: surface() >= 220, "the window does not become light again")


def a_session_bus_that_starts_again_serves_who_starts_then(executable):
    """Who was there before goes on without one."""
    with tempfile.TemporaryDirectory() as folder, program_with_release(executable, RELEASE) as copy:
        place = Path(folder) / "bus"
        with private_bus(at=place) as (bus, address):
            with Program(copy, DBUS_SESSION_BUS_ADDRESS=address) as before:
                before.wait(lambda: len(before.titles()) == 1, "there is no window")
                bus.kill()
                bus.wait()
                with private_bus(at=place) as (_, again):
                    with Program(copy, DBUS_SESSION_BUS_ADDRESS=again) as after:
                        after.wait(lambda: len(after.titles()) == 1, "no window opens on the new bus")
                        third = subprocess.run([copy], env=after.variables, timeout=20)
                        if third.returncode != 0:
                            raise Missed(f"the third start ended with {third.returncode}")
                        after.wait(lambda: len(after.titles()) == 2, "the third start opens no window")
                        before.key("ctrl+n")
                        before.wait(lambda: len(before.titles()) == 2, "no second window opens")
                        for program in (before, after):
                            program.key("ctrl+q")
                            status = program.process.wait(timeout=20)
                            if status != 0:
                                raise Missed(f"it ended with {status}")
