#!/usr/bin/python3
"""The picture that ./run saves where there is no display: of the whole window, in its colours.

Usage: picture.py PICTURE PROGRAM, within a desktop session of its own (tools/headless). PICTURE is
tools/picture.
"""

import subprocess
import sys
import tempfile
from pathlib import Path


def take(file, *command):
    return subprocess.run(
        [sys.argv[1], file, *command], capture_output=True, text=True, timeout=150, check=False
    )


def main():
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "window.png"
        done = take(file, sys.argv[2])
        assert done.returncode == 0, done.stderr
        pixels = subprocess.run(["pngtopnm", "-quiet", file], capture_output=True, check=True).stdout
        kind, width, height, _ = pixels.split(maxsplit=4)[:4]
        assert (kind, width, height) == (b"P6", b"1400", b"900"), (kind, width, height)
        colours = {pixels[at : at + 3] for at in range(len(pixels) % 3, len(pixels), 3)}
        assert len(colours) > 1000, f"{len(colours)} colours are no map"

        file.unlink()
        done = take(file, "true")
        assert done.returncode != 0 and "ended" in done.stderr, done
        assert not file.exists()


if __name__ == "__main__":
    main()
