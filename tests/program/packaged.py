#!/usr/bin/python3
"""The Debian packages of a build: they say nothing about when and where they were made, are hardened, and
what they name is enough to open the window in a Debian that holds nothing else.

Usage: packaged.py BUILD PROJECT HARDENED. HARDENED is "ON" where the programs are built as installed ones
are. Ends with 77 where the user is not root, who alone can make another Debian.
"""

import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

SKIPPED = 77
# An instruction at which an indirect jump may end; the processor refuses all others.
LANDING = bytes([0xF3, 0x0F, 0x1E, 0xFA])
WATER = bytes([0xCB, 0xDF, 0xEA])


def run(*command, **options):
    done = subprocess.run(
        command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=300, **options
    )
    assert done.returncode == 0, f"{command} ended with {done.returncode}:\n{done.stdout}"
    return done.stdout


def run_binary(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, check=True).stdout


def pack(build, folder, time_zone, mask):
    """The packages, by name. Compressed less than those for people, which takes most of the time."""
    folder.mkdir()
    command = ["cpack", "--config", build / "CPackConfig.cmake", "-G", "DEB", "-B", folder]
    command += ["-D", "CPACK_DEBIAN_COMPRESSION_TYPE=gzip"]
    run(*command, cwd=folder, env=dict(os.environ, TZ=time_zone), umask=mask)
    return {package.name: package for package in folder.glob("*.deb")}


def members(package):
    """What a package consists of, by name; all but the permissions of whoever made it."""
    names = run("ar", "t", package).split()
    return {name: run_binary("ar", "p", package, name) for name in names}


def are_the_same_each_time(build, folder):
    packages = pack(build, folder / "one", "UTC", 0o022)
    again = pack(build, folder / "other", "America/Edmonton", 0o077)
    assert sorted(packages) == sorted(again) and len(packages) == 2, (packages, again)
    for name, package in packages.items():
        assert members(package) == members(again[name]), f"{name} is not the same twice"
    return list(packages.values())


def are_hardened(packages, folder):
    for package in packages:
        run("dpkg-deb", "--extract", package, folder)
    for name in ("vasker-open-map", "openmap-release"):
        program = folder / "usr/bin" / name
        told = run("readelf", "--wide", "--file-header", "--program-headers", "--dynamic", program)
        told += run("readelf", "--wide", "--dyn-syms", "--notes", program)
        for sign in (r"Type: +DYN", r"GNU_RELRO", r"BIND_NOW|\bNOW\b", r"__stack_chk_fail", r"__(?!stack)\w+_chk@"):
            assert re.search(sign, told), f"{name} shows no {sign}"
        assert not re.search(r"GNU_STACK.* RWE ", told), f"{name} has a stack that can be run"
        if os.uname().machine == "x86_64":
            assert program.read_bytes().count(LANDING) > 1000, f"{name} lets control flow anywhere"


def open_the_window(project, packages, folder):
    run(project / "packaging/try-packages", "--from-this-machine", *packages, cwd=folder)
    pixels = run_binary("pngtopnm", "-quiet", folder / "installed-window.png")
    shown = sum(pixels[at : at + 3] == WATER for at in range(len(pixels) % 3, len(pixels), 3))
    assert shown > 10_000, f"{shown} pixels of water are no map"


def main():
    if os.geteuid() != 0:
        sys.exit(SKIPPED)
    build, project = Path(sys.argv[1]), Path(sys.argv[2])
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        packages = are_the_same_each_time(build, folder)
        if sys.argv[3] == "ON":
            are_hardened(packages, folder / "extracted")
        open_the_window(project, packages, folder)


if __name__ == "__main__":
    main()
