#!/usr/bin/env python3
"""Small made-up trees, to see that a broken arrow is found and a whole one is not."""

import tempfile
import unittest
import unittest.mock
from pathlib import Path

import arrows


def with_headers(files):
    """The tree, with an empty header for each source that has none."""
    headers = {path[:-4] + ".h": "" for path in files if path.endswith(".cpp")}
    return {**headers, **files}


def faults(files):
    """The broken rules of a tree given as {path: text}, as "path:line: what"."""
    with tempfile.TemporaryDirectory() as folder:
        for path, text in files.items():
            file = Path(folder, path)
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")
        return [f"{path}:{number}: {what}" for path, number, what in arrows.faults(folder)]


class Folders(unittest.TestCase):
    def test_includes_that_point_down_pass(self):
        tree = {
            "data/Text.h": "#pragma once\n#include <string>\n",
            "platform/Locale.h": "#include <QString>\n",
            "map/geometry/Camera.h": "#include <cmath>\n",
            "map/records/RecordSet.h": '#include "data/Text.h"\n#include "map/geometry/Camera.h"\n',
            "map/basemap/TilePyramid.h": '#include "map/geometry/Camera.h"\n',
            "map/records/Layout.h": '#include "map/records/RecordSet.h"\n',
            "map/frame/MapFrame.h": '#include "map/basemap/TilePyramid.h"\n',
            "map/scene/MapNode.h": '#include "map/frame/MapFrame.h"\n',
            "map/view/MapView.h": '#include "map/scene/MapNode.h"\n',
            "app/main.cpp": '#include "map/records/RecordSet.h"\n#include "platform/Locale.h"\n',
        }
        self.assertEqual(faults(tree), [])

    def test_every_arrow_that_points_up_or_across_is_found(self):
        headers = {
            "data/Text.h": "",
            "platform/Locale.h": "",
            "presentation/Symbols.h": "",
            "map/basemap/TilePyramid.h": "",
            "map/catalogue/Rows.h": "",
            "map/records/Layout.h": "",
            "map/view/MapView.h": "",
            "detail/Credit.h": "",
            "app/Workspace.h": "",
        }
        for user, header in (
            ("data/Text.cpp", "platform/Locale.h"),
            ("data/Text.cpp", "presentation/Symbols.h"),
            ("platform/Locale.cpp", "data/Text.h"),
            ("platform/Locale.cpp", "app/Workspace.h"),
            ("presentation/Symbols.cpp", "detail/Credit.h"),
            ("presentation/Symbols.cpp", "app/Workspace.h"),
            ("map/geometry/Camera.cpp", "data/Text.h"),
            ("map/geometry/Camera.cpp", "map/basemap/TilePyramid.h"),
            ("map/tiles/VectorTile.cpp", "map/records/Layout.h"),
            ("map/tileservice/TileFetch.cpp", "map/basemap/TilePyramid.h"),
            ("detail/Credit.cpp", "map/records/Layout.h"),
            ("tools/pack.cpp", "app/Workspace.h"),
        ):
            with self.subTest(user=user, header=header):
                found = faults(with_headers({**headers, user: f'\n#include "{header}"\n'}))
                self.assertEqual(len(found), 1, found)
                self.assertIn(f'{user}:2: "{header}" is not below', found[0])

    def test_tests_and_benches_may_include_every_folder(self):
        tree = {
            "app/Workspace.h": "",
            "data/Text.h": "",
            "tests/app/WorkspaceTest.cpp": '#include "app/Workspace.h"\n#include <simdjson.h>\n',
            "bench/kit.cpp": '#include "data/Text.h"\n#include <simdjson.h>\n',
        }
        self.assertEqual(faults(tree), [])

    def test_an_include_that_is_not_seen_from_the_root_is_found(self):
        tree = {"data/Text.h": "", "data/Text.cpp": '#include "Text.h"\n'}
        self.assertIn("data/Text.cpp:1", faults(tree)[0])


class Libraries(unittest.TestCase):
    def found(self, path, header):
        return faults(with_headers({path: f"#include <{header}>\n"}))

    def test_each_library_has_its_one_user(self):
        for user, header in (
            ("data/ReleaseReader.cpp", "simdjson.h"),
            ("data/text/Collation.h", "unicode/coll.h"),
            ("data/Digest.cpp", "openssl/evp.h"),
            ("data/WebAddress.cpp", "uriparser/Uri.h"),
            ("map/tiles/TileArchive.cpp", "sqlite3.h"),
            ("map/tiles/VectorTile.cpp", "protozero/pbf_reader.hpp"),
            ("map/tiles/TileInflation.cpp", "zlib.h"),
            ("map/tileservice/TileFetch.cpp", "QNetworkReply"),
            ("map/scene/Renderer.cpp", "QOpenGLFunctions"),
            ("platform/Locale.h", "QLocale"),
            ("map/scene/MarkerNode.h", "QSGGeometryNode"),
            ("map/scene/MarkerNode.cpp", "rhi/qrhi.h"),
            ("map/view/MapView.cpp", "QSGNode"),
        ):
            with self.subTest(user=user, header=header):
                self.assertEqual(self.found(user, header), [])

    def test_a_library_in_any_other_file_is_found(self):
        for user, header in (
            ("data/ReleaseRules.cpp", "simdjson.h"),
            ("data/ReleaseIndex.cpp", "unicode/coll.h"),
            ("app/Workspace.cpp", "openssl/evp.h"),
            ("data/ReleaseRules.h", "uriparser/Uri.h"),
            ("app/Workspace.cpp", "sqlite3.h"),
            ("map/view/MapView.cpp", "protozero/pbf_reader.hpp"),
            ("map/scene/TileLayer.cpp", "zlib.h"),
            ("app/OpenMapApp.cpp", "QNetworkAccessManager"),
            ("platform/Bundle.cpp", "QtNetwork/QTcpSocket"),
            ("map/view/MapView.cpp", "QtNetwork"),
            ("map/basemap/TilePyramid.cpp", "QOpenGLContext"),
            ("map/view/MapView.cpp", "QtGui/QOpenGLFunctions"),
            ("map/view/MapView.cpp", "QSGGeometryNode"),
            ("map/view/Gestures.h", "QSGNode"),
            ("map/view/MapView.cpp", "private/qsgnode_p.h"),
            ("app/Frame.cpp", "QOpenGLContext"),
        ):
            with self.subTest(user=user, header=header):
                self.assertEqual(len(self.found(user, header)), 1)

    def test_qt_in_the_kit_is_found(self):
        for header in ("QString", "QtCore/QString", "private/qstringlist_p.h"):
            with self.subTest(header=header):
                self.assertEqual(len(self.found("data/Text.h", header)), 1)

    def test_anything_but_the_standard_library_in_the_geometry_is_found(self):
        self.assertEqual(self.found("map/geometry/Camera.h", "numbers"), [])
        for header in ("QPointF", "sys/mman.h", "unistd.h"):
            with self.subTest(header=header):
                self.assertEqual(len(self.found("map/geometry/Camera.h", header)), 1)


class Qml(unittest.TestCase):
    modules = {
        "platform/CMakeLists.txt": "qt_add_qml_module(P\n    URI Vasker.Platform\n)",
        "map/CMakeLists.txt": "qt_add_qml_module(M\n    URI Vasker.Map\n)",
        "detail/CMakeLists.txt": "qt_add_qml_module(D\n    URI Vasker.Detail\n)",
    }

    def found(self, path, line):
        return faults({**self.modules, path: f"{line}\n"})

    def test_imports_that_point_down_pass(self):
        for path, line in (
            ("app/Main.qml", "import Vasker.Map"),
            ("map/view/MapView.qml", "import Vasker.Platform as Platform"),
            ("map/catalogue/Catalogue.qml", "import Vasker.Map"),
            ("platform/ui/sheets/Sheet.qml", "import QtQuick.Controls"),
        ):
            with self.subTest(path=path, line=line):
                self.assertEqual(self.found(path, line), [])

    def test_imports_that_point_up_or_across_are_found(self):
        for path, line in (
            ("map/view/MapView.qml", "import Vasker.Detail"),
            ("detail/Inspector.qml", "import Vasker.Map 1.0"),
            ("platform/ui/sheets/Sheet.qml", "import Vasker.Map"),
            ("detail/Inspector.qml", 'import "../map"'),
            ("app/Main.qml", "import Vasker.Nowhere"),
        ):
            with self.subTest(path=path, line=line):
                self.assertEqual(len(self.found(path, line)), 1)


class Units(unittest.TestCase):
    def found(self, files):
        return [each.rpartition(": ")[2] for each in faults(with_headers(files))]

    def test_a_class_that_has_grown_too_long_is_found(self):
        self.assertEqual(self.found({"data/Long.cpp": "\n" * 400, "app/Long.qml": "\n" * 150}), [])
        for files in (
            {"data/Long.cpp": "\n" * 401},
            {"data/Long.h": "\n" * 100, "data/Long.cpp": "\n" * 301},
        ):
            self.assertEqual(len(self.found(files)), 1, files)
        self.assertEqual(len(self.found({"app/Long.qml": "\n" * 151})), 1)

    def test_a_folder_with_too_many_units_is_found(self):
        units = {f"map/style/Unit{number}.cpp": "" for number in range(arrows.MOST_UNITS)}
        self.assertEqual(self.found(units), [])
        self.assertEqual(
            self.found({**units, "map/style/View.qml": ""}), ["split it"]
        )

    def test_a_source_without_a_header_is_found(self):
        self.assertEqual(len(faults({"map/style/Alone.cpp": ""})), 1)
        self.assertEqual(faults({"app/main.cpp": "", "tests/map/SomeTest.cpp": ""}), [])

    def test_a_folder_that_no_rule_knows_includes_nothing(self):
        tree = {"data/Text.h": "", "map/Loose.h": '#include "data/Text.h"\n'}
        self.assertEqual(len(faults(tree)), 1)


class Circles(unittest.TestCase):
    def test_no_folder_includes_itself_by_way_of_others(self):
        self.assertEqual(list(arrows.circles()), [])

    def test_a_circle_is_found(self):
        with unittest.mock.patch.dict(arrows.ARROWS, {"data/": {"app/"}}):
            self.assertIn("app/", list(arrows.circles()))


if __name__ == "__main__":
    unittest.main()
