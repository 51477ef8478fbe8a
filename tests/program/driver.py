"""Starts the real program and uses it over the accessibility bus, as a screen reader does.

Needs a session bus and an X display of its own, see tools/headless.
"""

import os
import signal
import struct
import subprocess
import tempfile
import time
from dataclasses import dataclass, field
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
gi.require_version("Gio", "2.0")
from gi.repository import Atspi, Gio, GLib

PATIENCE_SECONDS = 30
PAUSE_SECONDS = 0.1
# What newer versions of the accessibility library call a role, and how the scenarios do.
OLDER_ROLES = {"button": "push button"}


class Missed(AssertionError):
    """What a scenario waited for did not come."""


@dataclass(repr=False)
class Control:
    """One object of the accessibility tree, as it was when the tree was read."""

    node: object
    parent: "Control | None"
    role: str
    name: str
    id: str
    description: str
    states: frozenset
    children: list = field(default_factory=list)

    def __repr__(self):
        return self.text()

    def below(self):
        """Itself and all below it, from top to bottom."""
        yield self
        for child in self.children:
            yield from child.below()

    def find(self, **wanted):
        return next((each for each in self.below() if each.fits(**wanted)), None)

    def find_all(self, **wanted):
        return [each for each in self.below() if each.fits(**wanted)]

    def fits(self, id=None, role=None, name=None, state=None, starts=None):
        return (
            (id is None or self.id == id)
            and (role is None or self.role == role)
            and (name is None or self.name == name)
            and (starts is None or self.name.startswith(starts))
            and (state is None or state in self.states)
        )

    def names(self):
        return [each.name for each in self.below() if each.name]

    def text(self, depth=0):
        """The tree below it, a line each, for people to read."""
        line = f"{'  ' * depth}{self.role} {self.name!r}"
        line += f" #{self.id}" if self.id else ""
        line += f" ({self.description})" if self.description else ""
        interesting = self.states & {"focused", "selected", "checked", "expanded", "editable", "modal"}
        line += f" {sorted(interesting)}" if interesting else ""
        return "\n".join([line] + [child.text(depth + 1) for child in self.children])

    def actions(self):
        return [Atspi.Action.get_action_name(self.node, at) for at in range(self.node.get_n_actions())]

    def press(self):
        """What a screen reader does when its user presses the control."""
        actions = self.actions()
        if "Press" not in actions or not self.node.do_action(actions.index("Press")):
            raise Missed(f"cannot be pressed: {self.text()}")

    def set_text(self, text):
        if not Atspi.EditableText.set_text_contents(self.node, text):
            raise Missed(f"takes no text: {self.text()}")

    def box(self):
        """Where it is on the display: left, top, width, height in pixels."""
        box = Atspi.Component.get_extents(self.node, Atspi.CoordType.SCREEN)
        return box.x, box.y, box.width, box.height

    def contents(self):
        return Atspi.Text.get_text(self.node, 0, -1)

    def focus(self):
        return self.node.grab_focus()

    def is_there(self):
        """Whether the program still knows it."""
        try:
            self.node.clear_cache()
            return bool(self.node.get_accessible_id() or self.node.get_role_name())
        except GLib.Error:
            return False


def identifier(node):
    """Empty where it has none, for which newer versions of Qt tell the names of classes."""
    id = node.get_accessible_id() or ""
    return "" if id.startswith("QGuiApplication.") else id


def read(node, parent=None, depth=0):
    """The tree below a node; None where it is gone by now."""
    try:
        role = node.get_role_name()
        control = Control(
            node,
            parent,
            OLDER_ROLES.get(role, role),
            node.get_name() or "",
            identifier(node),
            node.get_description() or "",
            frozenset(each.value_nick for each in node.get_state_set().get_states()),
        )
        if depth < 40:
            for place in range(min(node.get_child_count(), 500)):
                child = node.get_child_at_index(place)
                seen = read(child, control, depth + 1) if child is not None else None
                if seen is not None:
                    control.children.append(seen)
        return control
    except GLib.Error:
        return None


def wait(question, what, patience=PATIENCE_SECONDS):
    """The first answer to `question` that is true; it is asked again and again."""
    end = time.monotonic() + patience
    while True:
        answer = question()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Missed(what)
        time.sleep(PAUSE_SECONDS)


def ask_accessibility(interface, method, arguments=None):
    """Calls the service that every session has for assistive tools."""
    session = Gio.bus_get_sync(Gio.BusType.SESSION)
    return session.call_sync(
        "org.a11y.Bus", "/org/a11y/bus", interface, method, arguments, None, 0, -1
    ).unpack()


def switch_accessibility(on):
    """What a desktop does when its user starts a screen reader, or ends it."""
    change = GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", on)))
    ask_accessibility("org.freedesktop.DBus.Properties", "Set", change)


def ask_display(*words):
    """What the display answers; nothing where it finds nothing."""
    return subprocess.run(["xdotool", *words], capture_output=True, text=True).stdout


class Screen:
    """What the display shows: a picture in the format of xwd. A pixel has 32 bits, or 24 where windows
    of several visuals are on the display."""

    def __init__(self):
        data = subprocess.run(["xwd", "-root", "-silent"], capture_output=True, check=True).stdout
        header = struct.unpack(">25I", data[:100])
        self.width, self.height, self._stride = header[4], header[5], header[12]
        self._step = header[11] // 8
        if self._step not in (3, 4) or header[7] != 0:
            raise RuntimeError(f"the display has no 24 or 32 bits a pixel, lowest first: {header}")
        self._pixels = data[header[0] + 12 * header[19] :]

    def shows(self, other):
        """Whether both pictures are the same but for the lines of one text cursor, which blinks."""
        return sum(line != before for line, before in zip(self._lines(), other._lines())) <= 32

    def is_drawn(self):
        """Whether there is more to see than the display and an empty window: few lines are alike."""
        return len(set(self._lines())) > 100

    def _lines(self):
        return (
            self._pixels[start : start + self._stride]
            for start in range(0, len(self._pixels), self._stride)
        )

    def pixel(self, x, y):
        """Red, green and blue."""
        place = y * self._stride + self._step * x
        blue, green, red = self._pixels[place : place + 3]
        return red, green, blue

    def rows(self, box):
        """The pixels of a box (left, top, width, height), a list a row."""
        left, top, width, height = box
        return [
            [self.pixel(x, y) for x in range(left, left + width)] for y in range(top, top + height)
        ]


class Program:
    """The running program. Its settings are its own, and gone when it ends. What is given besides
    changes its environment; None takes a variable away. It is to say nothing on standard error."""

    def __init__(self, executable, preferences=None, **environment):
        self._private = tempfile.TemporaryDirectory()
        self.home = Path(self._private.name)
        self._stored = self.home / "config/vasker-open-map/preferences"
        if preferences is not None:
            self._stored.parent.mkdir(parents=True)
            lines = [f"{key}={value}\n" for key, value in preferences.items()]
            self._stored.write_text("".join(lines), "utf-8")
        os.chmod(self.home, 0o700)
        variables = dict(
            os.environ,
            LC_ALL="C.UTF-8",
            HOME=str(self.home),
            XDG_CONFIG_HOME=str(self.home / "config"),
            XDG_CACHE_HOME=str(self.home / "cache"),
            XDG_DATA_HOME=str(self.home / "data"),
            XDG_RUNTIME_DIR=str(self.home),
        )
        variables.update(environment)
        self.variables = {key: value for key, value in variables.items() if value is not None}
        self.executable = executable
        self._errors = tempfile.TemporaryFile("w+")
        self.process = subprocess.Popen([executable], env=self.variables, stderr=self._errors)

    def __enter__(self):
        return self

    def __exit__(self, kind, fault, trace):
        if kind is not None:
            print(self.dump())
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGTERM)
        try:
            self.process.wait(timeout=10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self._private.cleanup()
        self._errors.seek(0)
        said = self._errors.read()
        if kind is not None:
            print(said)
        elif said:
            raise Missed(f"nothing on standard error; it said:\n{said}")

    def windows(self):
        """The program's windows as they are now, in the order of their opening."""
        desktop = Atspi.get_desktop(0)
        for place in range(desktop.get_child_count()):
            try:
                application = desktop.get_child_at_index(place)
                if application is None or application.get_process_id() != self.process.pid:
                    continue
                application.clear_cache()
            except GLib.Error:
                continue
            tree = read(application)
            return tree.children if tree is not None else []
        return []

    def find(self, window=0, **wanted):
        """The first control of a window that fits, or None."""
        windows = self.windows()
        return windows[window].find(**wanted) if window < len(windows) else None

    def wait(self, question, what):
        def asked():
            if self.process.poll() is not None:
                raise Missed(f"the program ended with {self.process.poll()}; waited for {what}")
            return question()

        return wait(asked, what)

    def see(self, window=0, **wanted):
        """Waits for a control of a window that fits."""
        return self.wait(lambda: self.find(window, **wanted), f"there is no {wanted}")

    def miss(self, window=0, **wanted):
        """Waits until no control of a window fits."""
        self.wait(
            lambda: window < len(self.windows()) and not self.find(window, **wanted),
            f"there still is {wanted}",
        )

    def press(self, window=0, **wanted):
        self.see(window, **wanted).press()

    def titles(self):
        """The titles of its windows on the display, in the order of their opening."""
        return [ask_display("getwindowname", number).strip() for number in self._on_display()]

    def key(self, keys, window=0):
        """Presses keys in a window, as in "ctrl+f"; nobody but us gives it the keyboard here."""
        found = self.wait(lambda: self._on_display()[window:], "there is no such window")
        ask_display("windowfocus", "--sync", found[0], "key", "--clearmodifiers", keys)

    def type(self, text):
        """Types a text in its first window."""
        ask_display("windowfocus", "--sync", self._on_display()[0], "type", text)

    def hold(self, keys, seconds):
        """Holds keys in its first window, so that the display repeats them."""
        ask_display("windowfocus", "--sync", self._on_display()[0], "keydown", keys)
        time.sleep(seconds)
        ask_display("keyup", keys)

    def resize(self, width, height):
        """Makes its first window so large, as a window manager does."""
        ask_display("windowsize", self._on_display()[0], str(width), str(height))

    def _on_display(self):
        found = ask_display("search", "--onlyvisible", "--pid", str(self.process.pid)).split()
        return sorted(found, key=int)

    def preference(self, key):
        """The stored text, or None."""
        try:
            lines = self._stored.read_text("utf-8").splitlines()
        except FileNotFoundError:
            return None
        found = [line.partition("=")[2] for line in lines if line.partition("=")[0] == key]
        return found[-1] if found else None

    def dump(self):
        return "\n".join(window.text() for window in self.windows())
