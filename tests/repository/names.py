#!/usr/bin/env python3
"""Finds functions in anonymous namespaces that hide a function of a header of the same part.

Sources are compiled in groups. There a source that calls the header's function may get the other
source's instead, without a word where the argument converts.

Usage: names.py ROOT
"""

import re
import sys
from pathlib import Path

PARTS = ("app", "data", "detail", "map", "platform", "presentation", "tools")

# Not indented, and no other kind of declaration: its last word before the parenthesis is the name.
FUNCTION = re.compile(
    r"^(?!using|class|struct|enum|namespace|template|return)(?=[\w\[])[^\n;{}(=]*?\b(\w+)\(", re.MULTILINE
)
ANONYMOUS = re.compile(r"^namespace \{\n(.*?)^\} // namespace\n", re.MULTILINE | re.DOTALL)


def hidden(root):
    """Each such function: (path of the source, name, path of the header)."""
    for part in PARTS:
        headers = {}
        for header in sorted((root / part).rglob("*.h")):
            for name in FUNCTION.findall(header.read_text("utf-8")):
                headers.setdefault(name, header)
        for source in sorted((root / part).rglob("*.cpp")):
            for body in ANONYMOUS.findall(source.read_text("utf-8")):
                for name in sorted(set(FUNCTION.findall(body)) & headers.keys()):
                    if headers[name] != source.with_suffix(".h"):
                        yield source.relative_to(root), name, headers[name].relative_to(root)


def main():
    root = Path(sys.argv[1]).resolve()
    if not any((root / "data").rglob("*.cpp")):
        sys.exit(f"no sources below {root}")
    found = [f"{source}: {name}() hides that of {header}" for source, name, header in hidden(root)]
    print("\n".join(found))
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
