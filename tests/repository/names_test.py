#!/usr/bin/env python3
"""Small made-up trees, to see that a hidden function is found and another one is not."""

import tempfile
import unittest
from pathlib import Path

import names

HEADER = "namespace vasker {\nvoid require(Status status);\n[[nodiscard]] int\nlong_name(int value);\n}\n"


def source(function):
    return f"namespace vasker {{\n\nnamespace {{\n\n{function}\n\n}} // namespace\n\n}} // namespace vasker\n"


def hidden(files):
    with tempfile.TemporaryDirectory() as folder:
        for path, text in files.items():
            file = Path(folder, path)
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, "utf-8")
        return [(str(path), name) for path, name, _ in names.hidden(Path(folder))]


class Names(unittest.TestCase):
    def test_a_function_that_hides_one_of_a_header_is_found(self):
        files = {
            "data/text/Status.h": HEADER,
            "data/Digest.cpp": source("void require(int result) {\n}"),
            "data/Other.cpp": source("int long_name(int value) {\n}"),
        }
        self.assertEqual(hidden(files), [("data/Digest.cpp", "require"), ("data/Other.cpp", "long_name")])

    def test_other_names_and_other_parts_are_not(self):
        files = {
            "data/text/Status.h": HEADER,
            "data/Digest.cpp": source("void requireDigest(int result) {\n    require(result);\n}"),
            "map/view/View.cpp": source("void require(int result) {\n}"),
        }
        self.assertEqual(hidden(files), [])


if __name__ == "__main__":
    unittest.main()
