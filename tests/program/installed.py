#!/usr/bin/python3
"""An installation: into a folder with a space in its name, used there, moved, and used again; and what is
told about the tool's commands, by its help, its manual and the shell's completion.

Usage: installed.py BUILD PICTURE, within a desktop session of its own (tools/headless). PICTURE is
tools/picture.
"""

import gzip
import os
import re
import signal
import shlex
import subprocess
import sys
import tempfile
from pathlib import Path

from bus import private_bus
from gi.repository import Gio, GLib

NAME = "ca.vasker.OpenMap"
OPTION = re.compile(r"--[a-z][a-z0-9-]+")


def run(*command, **options):
    return subprocess.run(
        command, capture_output=True, text=True, check=True, timeout=150, **options
    ).stdout


def opens_its_release(prefix, picture):
    release = prefix / "share/vasker-open-map/OpenMap.json"
    assert run(prefix / "bin/openmap-release", "check", release).startswith("ok: ")
    run(picture, prefix.parent / "window.png", prefix / "bin/vasker-open-map")


def names_its_program(prefix):
    service = (prefix / f"share/dbus-1/services/{NAME}.service").read_text("utf-8")
    command = shlex.split(re.search("^Exec=(.*)$", service, re.MULTILINE)[1])
    assert command[-1] == str(prefix / "bin/vasker-open-map"), command
    entry = (prefix / f"share/applications/{NAME}.desktop").read_text("utf-8")
    assert set(re.findall("^Exec=(.*)$", entry, re.MULTILINE)) == {"vasker-open-map"}, entry


def is_started_by_the_bus(prefix, **environment):
    with private_bus(prefix / "share/dbus-1/services", **environment) as (_, address):
        flags = Gio.DBusConnectionFlags
        bus = Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None
        )

        def ask(name, path, interface, method, arguments):
            return bus.call_sync(name, path, interface, method, arguments, None, 0, -1).unpack()

        path = "/" + NAME.replace(".", "/")
        activation = GLib.Variant("(a{sv})", ({},))
        ask(NAME, path, "org.freedesktop.Application", "Activate", activation)
        own = "org.freedesktop.DBus"
        (process,) = ask(own, "/", own, "GetConnectionUnixProcessID", GLib.Variant("(s)", (NAME,)))
        assert Path(f"/proc/{process}/exe").resolve() == (prefix / "bin/vasker-open-map").resolve()
        os.kill(process, signal.SIGTERM)


def tells_who_made_it(prefix):
    for name in ("LICENSE", "NOTICE", "README.md", "CHANGELOG.md"):
        assert (prefix / "share/doc/vasker-open-map" / name).stat().st_size > 0, name
    for package in ("vasker-open-map", "vasker-open-map-data"):
        assert (prefix / "share/doc" / package / f"{package}.spdx.json").stat().st_size > 0, package


def manual(prefix, name):
    text = gzip.decompress((prefix / f"share/man/man1/{name}.1.gz").read_bytes()).decode("utf-8")
    assert "@" not in text, "a value is missing"
    return text.replace("\\-", "-")


def completed(prefix, *words):
    """What the shell offers for the last of these words."""
    completion = prefix / "share/bash-completion/completions/openmap-release"
    script = (
        'source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); compopt() { :; }; '
        '_openmap_release; printf "%s\\n" "${COMPREPLY[@]}"'
    )
    tool = str(prefix / "bin/openmap-release")
    return set(run("bash", "-c", script, "bash", completion, tool, *words).split("\n")) - {""}


def tells_the_same_everywhere(prefix):
    help_text = run(prefix / "bin/openmap-release", "--help")
    commands = re.findall(r"^  ([a-z]+) ", help_text, re.MULTILINE)
    assert {"check", "pack"} <= set(commands), help_text
    assert completed(prefix, "") == {*commands, "--help", "--version"}
    told = manual(prefix, "openmap-release")
    all_options = {"--help", "--version"}
    for command in commands:
        options = set(OPTION.findall(run(prefix / "bin/openmap-release", command, "--help")))
        all_options |= options
        assert completed(prefix, command, "--") == options | {"--help"}, command
        assert f".B {command}\n" in told, command
    assert set(OPTION.findall(told)) == all_options
    assert "vasker-open-map" in manual(prefix, "vasker-open-map")

    release = str(prefix / "share/vasker-open-map/OpenMap.json")
    kinds = run(prefix / "bin/openmap-release", "kinds", release).splitlines()
    keys = {line.split("\t")[0] for line in kinds}
    assert completed(prefix, "list", release, "--kind", "") == keys | {"all"}
    assert completed(prefix, "list", release, "--kind", "=", "gas_pl") == {"gas_plant"}
    assert completed(prefix, "check", release[:-3]) == {release}


def main():
    build, picture = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        prefix = Path(folder) / "a prefix"
        run("cmake", "--install", build, "--prefix", prefix)
        names_its_program(prefix)
        tells_who_made_it(prefix)
        tells_the_same_everywhere(prefix)
        opens_its_release(prefix, picture)
        is_started_by_the_bus(prefix)
        moved = prefix.rename(Path(folder) / "moved")
        opens_its_release(moved, picture)
        # By its name, as the desktop's own entry.
        is_started_by_the_bus(moved, PATH=f"{moved / 'bin'}:{os.environ['PATH']}")


if __name__ == "__main__":
    main()
