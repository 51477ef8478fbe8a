#!/usr/bin/python3
"""Starts the real program as users and desktops do, and counts its windows on the display: twice in a
row, twice at once, by the session bus, beside one that hangs, and without a session bus.

Usage: starts.py PROGRAM SERVICE, within an X display of its own. SERVICE is the bus's service file as
it is installed; it is tried with the path of PROGRAM.
"""

import os
import re
import signal
import subprocess
import sys
import tempfile
import time
from collections import Counter
from pathlib import Path

from gi.repository import Gio, GLib

from bus import private_bus

PATIENCE_SECONDS = 60
QUIET_SECONDS = 2

PROGRAM = Path(sys.argv[1]).resolve()
NAME = Path(sys.argv[2]).stem
OBJECT = "/" + NAME.replace(".", "/")

WINDOW = re.compile(r'^ +0x([0-9a-f]+) "Vasker Beta": \("vasker-open-map"', re.MULTILINE)
# The part of a window's number that all windows of one X client share.
CLIENT = ~0x1FFFFF


def windows():
    """The windows on the display, counted for each program that has some, in rising order."""
    tree = subprocess.run(
        ["xwininfo", "-root", "-children"], capture_output=True, text=True, check=True
    ).stdout
    return sorted(Counter(int(window, 16) & CLIENT for window in WINDOW.findall(tree)).values())


def expect(what, counts):
    """Waits until the programs' numbers of windows are `counts`, and stay so."""
    end = time.monotonic() + PATIENCE_SECONDS
    while windows() != counts:
        assert time.monotonic() < end, f"{what}: windows {windows()}, expected {counts}"
        time.sleep(0.1)
    time.sleep(QUIET_SECONDS)
    assert windows() == counts, f"{what}: windows {windows()}, no longer {counts}"
    print(f"{what}: windows {counts}")


class Programs:
    """The programs that were started here."""

    def __init__(self):
        self.processes = []

    def start(self, **environment):
        process = subprocess.Popen([PROGRAM], env=dict(os.environ, **environment))
        self.processes.append(process)
        return process

    def end(self):
        for process in self.processes:
            process.kill()
            process.wait(timeout=10)
        self.processes.clear()
        expect("all ended", [])


def second_start(programs):
    first = programs.start()
    expect("one start", [1])
    second = programs.start(XDG_ACTIVATION_TOKEN="a-token")
    expect("a second start", [2])
    assert second.wait(timeout=10) == 0, "the second start has failed"
    assert first.poll() is None


def starts_at_once(programs):
    both = [programs.start(), programs.start()]
    expect("two starts at once", [2])
    ended = [each.poll() for each in both]
    assert sorted(ended, key=str) == [0, None], f"statuses {ended}"


def beside_one_that_hangs(programs):
    first = programs.start()
    expect("one that will hang", [1])
    first.send_signal(signal.SIGSTOP)
    second = programs.start()
    expect("a start beside it", [1, 1])
    assert second.poll() is None


def without_a_bus(programs):
    for _ in range(2):
        programs.start(DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent/bus")
    expect("two starts without a session bus", [1, 1])


def ask(method, arguments):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    bus.call_sync(NAME, OBJECT, "org.freedesktop.Application", method, arguments, None, 0, -1, None)


def by_the_bus(_programs):
    ask("Activate", GLib.Variant("(a{sv})", ({},)))
    expect("started by the bus", [1])
    ask("ActivateAction", GLib.Variant("(sava{sv})", ("new-window", [], {})))
    expect("the entry's action", [2])


def install_service(home):
    """The folder with the program's service and no other."""
    services = home / "dbus-1/services"
    services.mkdir(parents=True)
    installed = Path(sys.argv[2]).read_text("utf-8")
    service, places = re.subn(
        r"\S+/vasker-open-map$", str(PROGRAM), installed, flags=re.MULTILINE
    )
    assert places == 1, installed
    (services / f"{NAME}.service").write_text(service, "utf-8")
    return services


def main():
    with tempfile.TemporaryDirectory() as folder:
        home = Path(folder)
        home.chmod(0o700)
        os.environ.update(
            HOME=folder,
            XDG_CONFIG_HOME=folder,
            XDG_DATA_HOME=folder,
            XDG_CACHE_HOME=folder,
            XDG_RUNTIME_DIR=folder,
            LC_ALL="C.UTF-8",
        )
        with private_bus(install_service(home)) as (_, address):
            os.environ["DBUS_SESSION_BUS_ADDRESS"] = address
            programs = Programs()
            try:
                for scene in (second_start, starts_at_once, beside_one_that_hangs, without_a_bus):
                    scene(programs)
                    programs.end()
                # Last: what the bus has started ends with the display.
                by_the_bus(programs)
            finally:
                for process in programs.processes:
                    process.kill()


if __name__ == "__main__":
    main()
