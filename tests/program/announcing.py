"""What the program says to a screen reader while its user is elsewhere, as one hears it."""

import re

from bundle import RELEASE, program_with_release
from driver import Atspi, GLib, Missed, Program
from portal import Portal

PROMPT = "Facility, pipeline or reporting company"


class Reader:
    """Listens to the announcements of every program, or to notifications as older readers do."""

    def __init__(self, event="object:announcement"):
        self.heard = []
        self._event = event
        self._listener = Atspi.EventListener.new(self._hear)
        if not self._listener.register(event):
            raise Missed(f"{event} cannot be listened to")

    def __enter__(self):
        return self

    def __exit__(self, kind, fault, trace):
        self._listener.deregister(self._event)

    def _hear(self, event):
        try:
            if self._event == "object:announcement":
                self.heard.append(event.any_data)
            elif event.detail1 and event.source.get_role_name() == "notification":
                self.heard.append(event.source.get_name())
        except GLib.Error:
            pass  # what it came from is gone

    def expect_match(self, program, pattern):
        """Something in which the pattern is found is said, after what was expected before."""

        def said():
            while GLib.MainContext.default().iteration(False):
                pass
            for place, each in enumerate(self.heard):
                if re.search(pattern, each):
                    del self.heard[: place + 1]
                    return True
            return False

        try:
            program.wait(said, f"{pattern!r} is not said")
        except Missed as missed:
            raise Missed(f"{missed}, but {self.heard}") from None

    def expect(self, program, text):
        self.expect_match(program, f"^{re.escape(text)}$")


def a_reader_hears_what_happens(executable):
    with program_with_release(executable, RELEASE) as copy:
        place = copy.parent / "shown.csv"
        with Portal(save_to=place), Reader() as reader, Program(copy) as program:
            reader.expect(program, "The map is open: 2 records")
            program.see(name=PROMPT).set_text("plant 1")
            reader.expect(program, "1 of 2 records")
            program.key("ctrl+s")
            reader.expect(program, f"Saved to {place}")
            program.see(name=PROMPT).set_text("nothing of that name")
            reader.expect(program, "No results for “nothing of that name”")
            program.press(id="open-map-options")
            program.press(role="menu item", name="Satellite")
            reader.expect(program, "Basemap: Satellite")


def a_release_that_cannot_be_shown_is_said(executable):
    with program_with_release(executable, b"no release") as copy:
        with Reader() as reader, Program(copy) as program:
            description = program.see(id="open-map-error").description
            reader.expect(program, f"Map unavailable. {description}")


def a_reader_that_knows_no_announcements_hears_a_notification(executable):
    with program_with_release(executable, RELEASE) as copy:
        with Reader("object:state-changed:showing") as reader, Program(copy) as program:
            reader.expect(program, "The map is open: 2 records")
            program.see(name=PROMPT).set_text("plant 1")
            reader.expect(program, "1 of 2 records")
            program.miss(role="notification")
