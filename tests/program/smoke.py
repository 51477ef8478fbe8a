#!/usr/bin/python3
"""Starts the real program on the release beside it and reads its count line from the accessibility
tree. The expected line is computed from the release file itself.

Usage: smoke.py PROGRAM, within a D-Bus session and an X display of its own.
"""

import json
import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE_SECONDS = 60


def names(node, depth=0):
    """The accessible names of a node and all below it."""
    try:
        yield node.get_name() or ""
        count = node.get_child_count()
    except GLib.Error:
        return  # gone while we looked
    if depth > 40:
        return
    for place in range(min(count, 500)):
        try:
            child = node.get_child_at_index(place)
        except GLib.Error:
            return
        if child is not None:
            yield from names(child, depth + 1)


def applications():
    desktop = Atspi.get_desktop(0)
    for place in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(place)
        if application is not None:
            yield application


def shown_names(process_id):
    for application in applications():
        try:
            if application.get_process_id() != process_id:
                continue
            application.clear_cache()
        except GLib.Error:
            continue
        yield from names(application)


def main():
    program = Path(sys.argv[1])
    release = json.loads((program.parent / "resources" / "OpenMap.json").read_text("utf-8"))
    total = len(release["assets"])
    expected = f"{total} of {total} records"
    with tempfile.TemporaryDirectory() as home:
        os.chmod(home, 0o700)
        environment = dict(
            os.environ,
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            LC_ALL="C.UTF-8",
            XDG_CONFIG_HOME=home,
            XDG_RUNTIME_DIR=home,
        )
        viewer = subprocess.Popen([program], env=environment)
        try:
            seen = set()
            end = time.monotonic() + PATIENCE_SECONDS
            while time.monotonic() < end and viewer.poll() is None:
                seen = set(shown_names(viewer.pid))
                if expected in seen:
                    print(f"the program shows: {expected}")
                    return 0
                time.sleep(0.2)
            print(f"not shown: {expected!r}; status {viewer.poll()}; shown: {sorted(seen)[:40]}")
            return 1
        finally:
            viewer.terminate()
            viewer.wait(timeout=10)


if __name__ == "__main__":
    sys.exit(main())
