#!/usr/bin/env python3
"""Whether the metainfo passes both checkers, strictly, and tells of what there is: pictures and changes.

Usage: metainfo.py METAINFO ROOT
"""

import re
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml
from pathlib import Path

# Elements of AppStream that appstream-util 0.8, of Debian 12, calls unknown.
NEWER = ("branding", "supports")


def checkers(path):
    yield ["appstreamcli", "validate", "--strict", "--no-net", path]
    text = path.read_text("utf-8")
    for element in NEWER:
        text, count = re.subn(rf"\s*<{element}>.*?</{element}>", "", text, flags=re.DOTALL)
        assert count == 1, element
    with tempfile.TemporaryDirectory() as folder:
        known = Path(folder) / path.name
        known.write_text(text, "utf-8")
        yield ["appstream-util", "validate-strict", "--nonet", known]


def faults(path, root):
    for command in checkers(path):
        done = subprocess.run(command, capture_output=True, text=True)
        if done.returncode != 0:
            yield f"{command[0]}: {done.stdout}{done.stderr}"

    component = xml.parse(path).getroot()
    for summary in component.findall("summary"):
        if len(summary.text) > 35:
            yield f"a summary of {len(summary.text)} characters: {summary.text}"
    for image in component.iterfind("screenshots/screenshot/image"):
        picture = root / "docs/screenshots" / Path(image.text).name
        size = struct.unpack(">II", picture.read_bytes()[16:24]) if picture.exists() else None
        if size != (int(image.get("width")), int(image.get("height"))):
            yield f"{picture}: {size}"
    newest = component.find("releases/release")
    heading = f"## {newest.get('version')} ({newest.get('date')})"
    changes = (root / "CHANGELOG.md").read_text("utf-8").splitlines()
    if heading not in changes:
        yield f"CHANGELOG.md has no \"{heading}\""


def main():
    found = list(faults(Path(sys.argv[1]), Path(sys.argv[2])))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
