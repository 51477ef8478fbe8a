#!/usr/bin/env python3
"""Whether the Flatpak manifest has the form of one, asks for no more than the program needs, and pins
what it fetches. It builds nothing.

Usage: flatpak.py MANIFEST
"""

import json
import re
import sys
from pathlib import Path

NEEDED = {
    "--share=network",
    "--share=ipc",
    "--socket=wayland",
    "--socket=fallback-x11",
    "--device=dri",
}
BUILD_SYSTEMS = {"cmake-ninja", "autotools"}


def source_faults(module, source):
    if source.get("type") == "dir":
        if module != "vasker-open-map":
            yield f"{module}: a folder of this machine"
    elif source.get("type") != "archive":
        yield f"{module}: neither an archive nor a folder"
    elif not source.get("url", "").startswith("https://"):
        yield f"{module}: not fetched over HTTPS"
    elif not re.fullmatch("[0-9a-f]{64}", source.get("sha256", "")):
        yield f"{module}: no SHA-256 digest"


def faults(path):
    manifest = json.loads(path.read_text("utf-8"))
    for key in ("id", "runtime", "runtime-version", "sdk", "command", "finish-args", "modules"):
        if not manifest.get(key):
            yield f"no {key}"
            return
    if manifest["id"] != path.stem:
        yield f"{manifest['id']} in {path.name}"
    if manifest["command"] != "vasker-open-map":
        yield f"the command is {manifest['command']}"
    if set(manifest["finish-args"]) != NEEDED:
        yield f"permissions {sorted(set(manifest['finish-args']) ^ NEEDED)}"
    names = [module.get("name") for module in manifest["modules"]]
    if names[-1] != "vasker-open-map" or len(set(names)) != len(names):
        yield f"modules {names}"
    for module in manifest["modules"]:
        if module.get("buildsystem") not in BUILD_SYSTEMS:
            yield f"{module['name']}: build system {module.get('buildsystem')}"
        if not module.get("sources"):
            yield f"{module['name']}: no sources"
        for source in module.get("sources", []):
            yield from source_faults(module["name"], source)


def main():
    found = list(faults(Path(sys.argv[1])))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
