"""Uses the real window at random, as long as is asked for, and tells what that costs.

    tools/headless /usr/bin/python3 tests/program/endurance.py PROGRAM [SECONDS [SEED]]

It fails where the program ends by itself, says anything on standard error, or keeps descriptors or
threads. A user who has closed the last window starts the program again.
Memory at rest, in a window of one size, and the longest times without an answer are printed, with what of
them the program's first thread computed, and how long it could have and got no processor. In the rest it
waited for the display. The same seed does the same again.
"""

import contextlib
import os
import random
import re
import sys
import threading
import time
from collections import Counter
from pathlib import Path

from gi.repository import Gio, GLib

from driver import Missed, Program, ask_display, wait

NAME = "ca.vasker.OpenMap"
MOST_WINDOWS = 3
# After this time what is made once is there, and memory is to stay.
WARM_SECONDS = 120
# How often memory is measured from then on.
REST_SECONDS = 120
# A user interface that does not answer for so long stalls.
STALL_SECONDS = 0.1
WORDS = ["gas", "pipeline", "alberta", "usine", "é", "42", "  ", "coast", "zzzz", "compressor station", "Σ"]
SIZES = [(900, 620), (1000, 700), (1280, 800), (1400, 900)]


class Hand:
    """A user who does anything."""

    def __init__(self, program, seed):
        self._program = program
        self._random = random.Random(seed)
        self._window = None
        self._size = SIZES[0]
        self._actions = [
            (8, self.drag),
            (8, self.scroll),
            (6, self.click),
            (3, self.open_menu),
            (6, self.search),
            (6, self.walk_the_list),
            (6, self.steer),
            (2, self.rotate),
            (3, self.open_sheet),
            (3, self.escape),
            (2, self.tab),
            (1, self.resize),
            (1, self.open_window),
            (1, self.close_window),
        ]

    def act(self):
        """One action in one of the program's windows, where there is one; its name. From time to time
        an action closes a window: a second one keeps the program from ending with it."""
        windows = self.windows() or [self._window]
        self._window = self._random.choice(windows)
        self._display("windowraise", "windowfocus")
        if len(windows) == 1:
            self.open_window()
        weights = [weight for weight, _ in self._actions]
        action = self._random.choices(self._actions, weights)[0][1]
        action()
        return action.__name__

    def windows(self):
        """The program's windows, or None once it has ended. While a window goes, the display may say that
        there is none."""
        process = self._program.process
        found = []

        def asked():
            found[:] = ask_display("search", "--onlyvisible", "--pid", str(process.pid)).split()
            return found or process.poll() is not None

        wait(asked, "there is neither a window nor an end")
        return found or None

    def _display(self, *commands):
        for command in commands:
            words = command.split(" ")
            ask_display(words[0], self._window, *words[1:])

    def _keys(self, *keys):
        ask_display("key", "--delay", "20", *keys)

    def _somewhere(self, left=0):
        width, height = self._size
        x = self._random.randrange(left, width)
        y = self._random.randrange(height)
        ask_display("mousemove", "--window", self._window, str(x), str(y))

    def _on_the_map(self):
        self._somewhere(left=340)

    def drag(self):
        self._on_the_map()
        button = self._random.choice("113")
        ask_display("mousedown", button)
        for _ in range(self._random.randrange(2, 12)):
            dx, dy = (self._random.randrange(-60, 61) for _ in range(2))
            ask_display("mousemove_relative", "--", str(dx), str(dy))
        ask_display("mouseup", button)

    def scroll(self):
        self._somewhere()
        ask_display("click", "--repeat", str(self._random.randrange(1, 9)), "--delay", "30",
                    self._random.choice("45"))

    def click(self):
        self._somewhere()
        ask_display("click", "--repeat", self._random.choice("112"), "1")

    def open_menu(self):
        self._somewhere()
        ask_display("click", "3")

    def search(self):
        self._keys("ctrl+f")
        if self._random.random() < 0.5:
            self._keys("ctrl+a", "BackSpace")
        ask_display("type", "--delay", "25", self._random.choice(WORDS))

    def walk_the_list(self):
        self._keys("ctrl+f", *["Down"] * self._random.randrange(1, 9), "Return")

    def steer(self):
        self._on_the_map()
        self._keys(*self._random.choices(["Left", "Right", "Up", "Down", "plus", "minus", "Home"], k=5))

    def rotate(self):
        self._keys(*self._random.choices(["shift+Left", "shift+Right", "shift+Up", "shift+Down", "n"], k=4))

    def open_sheet(self):
        self._keys(self._random.choice(["ctrl+r", "ctrl+question", "F1", "F10", "F11", "ctrl+s", "ctrl+shift+c"]))

    def escape(self):
        self._keys(*["Escape"] * self._random.randrange(1, 4))

    def tab(self):
        self._keys(*self._random.choices(["Tab", "shift+Tab", "space"], [6, 3, 1], k=6))

    def resize(self):
        self.resize_to(self._random.choice(SIZES))

    def resize_to(self, size):
        self._size = size
        self._display("windowsize {} {}".format(*size))

    def open_window(self):
        if len(self.windows() or []) < MOST_WINDOWS:
            self._keys("Escape", "Escape", "Escape", "ctrl+n")

    def close_window(self):
        if len(self.windows() or []) > 1:
            self._keys("Escape", "Escape", "Escape", "ctrl+w")


class Watch(threading.Thread):
    """Asks the program again and again, and keeps the times until it answered that were long."""

    def __init__(self, pid):
        super().__init__(daemon=True)
        self.answers = 0
        self.stalls = []  # (seconds until the answer, computing, without a processor; when)
        self._schedule = Path(f"/proc/{pid}/schedstat")
        self._over = threading.Event()

    def run(self):
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        start = time.monotonic()
        while not self._over.wait(0.02):
            try:
                computed, waited = self._processor_times()
                begin = time.monotonic()
                bus.call_sync(
                    NAME, "/" + NAME.replace(".", "/"), "org.freedesktop.DBus.Introspectable",
                    "Introspect", None, None, Gio.DBusCallFlags.NO_AUTO_START, 10_000,
                )
                seconds = time.monotonic() - begin
                self.answers += 1
                if seconds > STALL_SECONDS:
                    computing, waiting = self._processor_times()
                    self.stalls.append((seconds, computing - computed, waiting - waited, begin - start))
            except (GLib.Error, OSError):
                continue  # the program has ended, which its user sees

    def _processor_times(self):
        """How many seconds the program's first thread has run, and how many it could have run and did not."""
        ran, waited = self._schedule.read_text().split()[:2]
        return int(ran) / 1e9, int(waited) / 1e9

    def end(self):
        self._over.set()
        self.join()

    def tell(self):
        print(f"{self.answers} answers, {len(self.stalls)} of them after more than {1000 * STALL_SECONDS:.0f} ms")
        for seconds, computing, waiting, when in sorted(self.stalls, reverse=True)[:10]:
            print(f"  {1000 * seconds:.0f} ms after {when:.0f} s: {1000 * computing:.0f} ms computing,"
                  f" {1000 * waiting:.0f} ms without a processor")


def links(folder):
    """What the descriptors below `folder` lead to; one may go meanwhile."""
    found = []
    for name in os.listdir(folder):
        try:
            found.append(re.sub(r"\[\d+\]", "", os.readlink(f"{folder}/{name}")))
        except FileNotFoundError:
            continue
    return found


def costs(pid):
    """What the program holds: memory of its own in MB, descriptors, threads. Unchanged pages of files,
    such as its libraries, do not count: whether they are there, and private, depends on what else runs."""
    lines = Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
    kilobytes = sum(int(line.split()[1]) for line in lines if line.startswith("Private_Dirty"))
    return {
        "memory": kilobytes / 1024,
        "descriptors": Counter(links(f"/proc/{pid}/fd")),
        "threads": Counter(each.read_text().strip() for each in Path(f"/proc/{pid}/task").glob("*/comm")),
    }


def expect_none_kept(what, first, last):
    """But for a few that are made once, and the toolkit's pool of threads, which comes and goes, each with
    an event counter. Which are kept is told by name."""
    kept = last - first
    for pooled in ("Thread (pooled)", "anon_inode:[eventfd]"):
        del kept[pooled]
    if kept.total() > 4:
        raise AssertionError(f"{what} are kept: {dict(kept)}")


def rested_costs(hand, pid):
    """The same with one window of the first size and no sheet, a while after the last action; None
    where it has ended."""
    while (windows := hand.windows()) is not None:
        hand._window = windows[-1]
        hand._display("windowraise", "windowfocus")
        hand._keys("Escape", "Escape", "Escape")
        if len(windows) == 1:
            hand.resize_to(SIZES[0])
            hand._keys("ctrl+f", "ctrl+a", "BackSpace", "Escape", "Home")
            time.sleep(8)
            return costs(pid)
        hand._keys("ctrl+w")
        with contextlib.suppress(Missed):  # what was open took the keys: once more
            wait(lambda: len(hand.windows() or []) < len(windows), "a window does not close", 5)
    return None


def use(executable, seconds, seed):
    """Uses the program for that long, or until its user has closed it; the seconds it was used."""
    with Program(executable) as program:
        hand = Hand(program, seed)
        if hand.windows() is None:
            raise AssertionError(f"it ended with {program.process.poll()} before it had a window")
        time.sleep(3)
        watch = Watch(program.process.pid)
        watch.start()
        done = []
        begin = time.monotonic()
        rests = []
        next_rest = min(WARM_SECONDS, seconds / 2)
        while (used := time.monotonic() - begin) < seconds and hand.windows() is not None:
            done.append(hand.act())
            if program.process.poll():
                raise AssertionError(f"it ended with {program.process.poll()} after {done[-20:]}")
            if used > next_rest:
                next_rest += REST_SECONDS
                rests.append((used, rested_costs(hand, program.process.pid)))
        rests.append((used, rested_costs(hand, program.process.pid)))
        rests = [(when, found) for when, found in rests if found is not None]
        for when, found in rests:
            print(f"after {when:.0f} s: {found['memory']:.1f} MB, {found['descriptors'].total()} descriptors,"
                  f" {found['threads'].total()} threads")
        if len(rests) > 1:
            memory = [found["memory"] for _, found in rests]
            print(f"memory at rest: from {min(memory):.1f} to {max(memory):.1f} MB")
        for what in ("descriptors", "threads"):
            for _, found in rests[1:]:
                expect_none_kept(what, rests[0][1][what], found[what])
        if hand.windows() is not None:
            hand._keys("ctrl+q")
        watch.end()
        print(f"seed {seed}: {len(done)} actions in {used:.0f} s, then {done[-5:]}")
        watch.tell()
        status = program.process.wait(timeout=30)
        assert status == 0, f"it ended with {status}"
        return used


def use_again_and_again(executable, seconds, seed):
    while seconds > 0:
        seconds -= use(executable, seconds, seed)
        seed += 1


if __name__ == "__main__":
    use_again_and_again(
        sys.argv[1],
        float(sys.argv[2]) if len(sys.argv) > 2 else 60,
        int(sys.argv[3]) if len(sys.argv) > 3 else 1,
    )
