#!/usr/bin/env python3
"""The arrows between the folders: who may include whom, and which file alone knows a library.

Reads every #include and every QML import below a root folder and prints one line for each that
breaks a rule. The rules are the tables below; docs/architecture.md draws them.
"""

import re
import sys
from pathlib import Path

FOLDERS = ("data", "platform", "presentation", "map", "detail", "app", "tools", "bench", "fuzz", "tests")

# What a folder may include beside itself. The innermost folder that a file stands in decides.
ARROWS = {
    "data/": set(),
    "platform/": set(),
    "presentation/": {"data/", "platform/"},
    "map/geometry/": set(),
    "map/layers/": {"map/geometry/"},
    "map/tiles/": {"map/geometry/"},
    "map/tileservice/": {"map/tiles/", "map/geometry/"},
    "map/style/": {"map/tiles/", "map/geometry/", "platform/"},
    "map/labels/": {"map/layers/", "map/style/", "map/tiles/", "map/geometry/", "platform/"},
    "map/basemap/": {
        "map/labels/", "map/layers/", "map/style/", "map/tileservice/", "map/tiles/", "map/geometry/",
        "platform/",
    },
    "map/raster/": {"map/geometry/"},
    "map/pins/": {"map/style/", "map/geometry/", "presentation/", "platform/"},
    "map/records/": {
        "map/layers/", "map/pins/", "map/raster/", "map/style/", "map/geometry/", "presentation/", "data/", "platform/",
    },
    "map/frame/": {
        "map/basemap/", "map/records/", "map/labels/", "map/layers/", "map/style/", "map/geometry/",
    },
    "map/scene/": {"map/frame/", "map/layers/", "map/geometry/"},
    "map/input/": {"map/records/", "map/geometry/"},
    "map/controls/": {"platform/"},
    "map/view/": {
        "map/input/", "map/scene/", "map/frame/", "map/records/", "map/pins/", "map/basemap/", "map/style/",
        "map/layers/", "map/geometry/", "presentation/", "data/", "platform/",
    },
    "map/exploration/": {
        "map/view/", "map/labels/", "map/records/", "map/geometry/", "presentation/", "data/", "platform/",
    },
    "map/catalogue/": {"map/records/", "presentation/", "data/", "platform/"},
    "detail/": {"presentation/", "data/", "platform/"},
    "app/": {"map/", "detail/", "presentation/", "data/", "platform/"},
    "tools/": {"data/"},
    "bench/": {folder + "/" for folder in FOLDERS},
    "fuzz/": {folder + "/" for folder in FOLDERS},
    "tests/": {folder + "/" for folder in FOLDERS},
}

# The folders of the product; tests, tools and benches may use every library.
PRODUCT = ("data/", "platform/", "presentation/", "map/", "detail/", "app/")

# Headers that only some files of the product may include: pattern, who may, what to call it.
PRIVATE_HEADERS = (
    (r"simdjson", ("data/ReleaseReader",), "simdjson"),
    (r"unicode/", ("data/text/",), "ICU"),
    (r"openssl/", ("data/Digest",), "libcrypto"),
    (r"uriparser/", ("data/WebAddress",), "the URL parser"),
    (r"sqlite3", ("map/tiles/", "map/tileservice/"), "SQLite"),
    (r"protozero/", ("map/tiles/",), "protozero"),
    (r"zlib|zconf", ("map/tiles/",), "zlib"),
    (
        r"QtNetwork$|QNetwork|QSsl|QTcp|QUdp|QHttp|QHost|QDns|QAbstractSocket|QLocalS(erver|ocket)",
        ("map/tileservice/",),
        "the network",
    ),
    (r"QSGNode$", ("map/scene/", "map/view/MapView", "platform/ui/"), "the scene graph"),
    # Icons and shadows are pictures: the stock node draws them.
    (r"QSGImageNode$", ("map/scene/", "platform/ui/theme/Icon", "platform/ui/theme/Shadow"), "the scene graph"),
    (
        r"QSG(?!(Image)?Node$)|QRhi|private/(qsg|qrhi)|rhi/|"
        r"Qt?OpenGL|GL/|GLES|EGL/|vulkan/",
        ("map/scene/",),
        "the GPU",
    ),
)

QT = re.compile(r"Q[A-Z]|Qt|private/q")
STANDARD = re.compile(r"[a-z_0-9]+$")

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')
QML_IMPORT = re.compile(r'^\s*import\s+(?:"([^"]+)"|([A-Za-z][\w.]*))')
QML_MODULE = re.compile(r"^\s*URI\s+([\w.]+)", re.MULTILINE)

# Lines of a unit, the header and the source of one class together, after which its job is split.
MOST_LINES = {".qml": 150, ".cpp": 400, ".h": 400, ".vert": 400, ".frag": 400}

# Units of a folder of the product, after which it is split.
MOST_UNITS = 16

# Sources whose header would say nothing: programs.
WITHOUT_HEADER = {"main"}


def within(path, places):
    """Whether the file at `path` stands in one of the folders or bears one of the names."""
    return any(
        path.startswith(place)
        if place.endswith("/")
        else re.fullmatch(re.escape(place) + r"\w*\.(h|cpp)", path)
        for place in places
    )


def allowed_for(path):
    """What the file at `path` may include; nothing where no rule knows its folder."""
    folders = [folder for folder in ARROWS if path.startswith(folder)]
    return ARROWS[max(folders, key=len)] | {max(folders, key=len)} if folders else set()


def include_faults(root, path, own, system):
    """What is wrong with one include of the file at `path`, in words."""
    header = own or system
    if own:
        if own.endswith(".moc") or own.startswith("moc_"):
            return
        if not (root / own).is_file():
            yield f'"{own}" is not a file, seen from the root of the repository'
        elif not within(own, allowed_for(path)):
            yield f'"{own}" is not below {path.rsplit("/", 1)[0]}'
    if not path.startswith(PRODUCT):
        return
    bare = re.sub(r"^Qt[A-Z]\w*/", "", header)
    for pattern, places, name in PRIVATE_HEADERS:
        if re.match(pattern, bare) and not within(path, places):
            yield f"<{header}>: only {' and '.join(places)} may know {name}"
    if system and path.startswith("data/") and QT.match(system):
        yield f"<{system}>: data knows no Qt"
    if system and path.startswith("map/geometry/") and not (
        STANDARD.match(system) and not QT.match(system)
    ):
        yield f"<{system}>: map/geometry knows the standard library only"


def qml_modules(root):
    """The folder in which each of our QML modules is made."""
    modules = {}
    for folder in FOLDERS:
        for recipe in sorted((root / folder).rglob("CMakeLists.txt")):
            for uri in QML_MODULE.findall(recipe.read_text(encoding="utf-8")):
                modules[uri] = recipe.parent.relative_to(root).as_posix()
    return modules


def import_faults(root, path, folder, module, modules):
    """What is wrong with one import of the QML file at `path`, in words."""
    if folder:
        target = (root / path).parent.joinpath(folder).resolve()
        if not target.is_relative_to(root) or not target.exists():
            yield f'"{folder}" is not in the repository'
            return
        target = target.relative_to(root).as_posix()
    elif module in modules:
        target = modules[module]
    elif module.startswith("Vasker."):
        yield f"{module} is made nowhere"
        return
    else:
        return
    # A module may hold several folders: all of map is one module.
    if not path.startswith(target + "/") and not within(target + "/", allowed_for(path)):
        yield f"{target} is not below {path.rsplit('/', 1)[0]}"


def source_files(root):
    for folder in FOLDERS:
        for file in sorted((root / folder).rglob("*")):
            if file.suffix in MOST_LINES and file.is_file():
                yield file


def unit_faults(root, files):
    """What is too large, and the sources without a header: (path, line number, what is wrong)."""
    lengths = {}
    units = {}
    for file in files:
        path = file.relative_to(root).as_posix()
        unit = path[: -len(file.suffix)]
        kind = "qml" if file.suffix == ".qml" else "code"
        length = len(file.read_text(encoding="utf-8").splitlines())
        total = lengths[unit, kind] = lengths.get((unit, kind), 0) + length
        most = MOST_LINES[file.suffix]
        if total > most >= total - length:
            yield path, length, f"{unit} is longer than {most} lines: split its job"
        if not path.startswith(PRODUCT):
            continue
        folder = path.rpartition("/")[0]
        had = units.setdefault(folder, set())
        if unit not in had and len(had) == MOST_UNITS:
            yield path, 1, f"{folder} has more than {MOST_UNITS} units: split it"
        had.add(unit)
        if file.suffix == ".cpp" and file.stem not in WITHOUT_HEADER:
            if not file.with_suffix(".h").is_file():
                yield path, 1, "has no header"


def circles():
    """Folders that may include each other, by whatever way."""
    for start in ARROWS:
        reached, ahead = set(), [start]
        while ahead:
            allowed = {
                folder
                for place in ARROWS[ahead.pop()]
                for folder in ARROWS
                if folder.startswith(place)
            }
            ahead += allowed - reached
            reached |= allowed
        if start in reached and start.startswith(PRODUCT):
            yield start


def faults(root):
    """Every broken rule below `root`: (path, line number, what is wrong)."""
    root = Path(root).resolve()
    modules = qml_modules(root)
    for folder in circles():
        yield folder, 1, "may include itself by way of others"
    yield from unit_faults(root, source_files(root))
    for file in source_files(root):
        path = file.relative_to(root).as_posix()
        lines = file.read_text(encoding="utf-8").splitlines()
        for number, line in enumerate(lines, start=1):
            if file.suffix == ".qml":
                found = QML_IMPORT.match(line)
                wrong = found and import_faults(root, path, *found.groups(), modules)
            else:
                found = INCLUDE.match(line)
                wrong = found and include_faults(root, path, *found.groups())
            for what in wrong or ():
                yield path, number, what


def main():
    root = Path(sys.argv[1])
    if not any(source_files(root)):
        sys.exit(f"no sources below {root}")
    broken = [f"{path}:{number}: {what}" for path, number, what in faults(root)]
    print("\n".join(broken))
    sys.exit(1 if broken else 0)


if __name__ == "__main__":
    main()
