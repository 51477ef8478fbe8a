"""Copies of the program with other resources beside them."""

import contextlib
import copy
import hashlib
import json
import os
import shutil
import tempfile
from pathlib import Path

SOURCE = "0" * 64
RELEASE = {
    "schemaVersion": 1,
    "releaseID": "test-1",
    "generatedAt": "2025-01-31T12:00:00Z",
    "coverageName": "Two records",
    "limitations": ["Two records are few."],
    "sources": [
        {
            "id": SOURCE,
            "publisher": "A publisher",
            "dataset": "npri-facility-locations-2024",
            "sourceURL": "https://example.org/data",
            "licenceURL": "https://example.org/licence",
            "attribution": "An attribution.",
            "conditions": "Conditions.",
            "modifications": "Modifications.",
        }
    ],
    "assets": [
        {
            "id": f"A-{number}",
            "name": f"Plant {number}",
            "kind": "gas_plant",
            "jurisdiction": "Alberta",
            "sourceID": SOURCE,
            "status": "Reported for 2016",
            "asOf": "2016",
            "latitude": 54.0 + number,
            "longitude": -112.0,
            "reportedCompany": "A company",
            "facts": [{"label": "City", "value": "Fairview", "sourceID": SOURCE, "asOf": "2016"}],
            "routes": [],
        }
        for number in (2, 10)
    ],
}


def changed(*path, to):
    """The release with one value replaced; a missing last key is added."""
    release = copy.deepcopy(RELEASE)
    place = release
    for step in path[:-1]:
        place = place[step]
    place[path[-1]] = to
    return release


def encoded(release):
    return json.dumps(release, ensure_ascii=False).encode("utf-8")


def digest(content):
    return hashlib.sha256(content).hexdigest()


@contextlib.contextmanager
def program_with(executable, content, information):
    """The path of a copy of the program, for as long as the context lasts. `content`: the bytes of
    its release, or None for no such file. `information`: its bundle information, or None."""
    # In the same folder: there the program, which is large, can be linked.
    with tempfile.TemporaryDirectory(dir=executable.parent, prefix="copy-") as folder:
        twin = Path(folder) / executable.name
        try:
            os.link(executable, twin)
        except OSError:
            shutil.copy2(executable, twin)
        resources = Path(folder) / "resources"
        resources.mkdir()
        if content is not None:
            (resources / "OpenMap.json").write_bytes(content)
        if information is not None:
            (resources / "BundleInformation.json").write_text(json.dumps(information), "utf-8")
        yield twin


def program_with_release(executable, release):
    """As above, with a release and the digest that fits."""
    content = release if isinstance(release, bytes) else encoded(release)
    return program_with(executable, content, {"VaskerOpenMapSHA256": digest(content)})
