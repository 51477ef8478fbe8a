#!/usr/bin/env python3
"""The script ./run in a made-up tree, on made-up systems: which packages it asks for, and what it starts.

Usage: run_test.py ROOT
"""

import os
import shutil
import socket
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1))

# What the scripts need of any system; the rest of this machine is out of their sight.
COMMON_TOOLS = ("bash", "env", "dirname", "grep", "cat")

BUILD = """#!/bin/bash
echo "cmake $*" >>"$LOG"
[[ -z ${BUILD_FAILS:-} ]] || exit 1
mkdir -p build/release/app
printf '#!/bin/bash\\necho "window on $QT_QPA_PLATFORM" >>"$LOG"\\n' >build/release/app/vasker-open-map
chmod +x build/release/app/vasker-open-map
"""
LOGS = '#!/bin/bash\necho "{name} $*" >>"$LOG"\n'
# The lines of a system where everything is installed but what MISSING names.
DPKG_QUERY = """#!/bin/bash
for package; do :; done
[[ " ${MISSING:-} " == *" $package "* ]] || echo "install ok installed"
"""
APT_CACHE = '#!/bin/bash\nfor package; do :; done\n[[ " ${UNKNOWN:-} " != *" $package "* ]]\n'


class Run(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name) / "tree"
        self.bin = Path(folder.name) / "bin"
        self.log = Path(folder.name) / "log"
        self.runtime = Path(folder.name) / "runtime"
        for each in (self.root / "tools", self.bin, self.runtime):
            each.mkdir(parents=True)
        shutil.copy(ROOT / "run", self.root)
        shutil.copy(ROOT / "tools/packages.sh", self.root / "tools")
        for tool in (*COMMON_TOOLS, "mkdir", "chmod"):
            (self.bin / tool).symlink_to(shutil.which(tool))
        self.add(self.bin / "cmake", BUILD)
        self.add(self.root / "tools/headless", LOGS.format(name="headless $VASKER_SCREEN"))

    def add(self, path, text):
        path.write_text(text, "utf-8")
        path.chmod(0o755)

    def add_debian(self):
        self.add(self.bin / "dpkg-query", DPKG_QUERY)
        self.add(self.bin / "apt-cache", APT_CACHE)
        self.add(self.bin / "apt-get", LOGS.format(name="apt-get"))
        self.add(self.bin / "sudo", '#!/bin/bash\nexec "$@"\n')

    def run_it(self, **environment):
        environment = {"PATH": str(self.bin), "LOG": str(self.log), **environment}
        done = subprocess.run(
            [self.root / "run"], env=environment, capture_output=True, text=True, timeout=60
        )
        log = self.log.read_text("utf-8").splitlines() if self.log.exists() else []
        return done, log

    def listen(self):
        """The environment of a graphical session that answers."""
        server = socket.socket(socket.AF_UNIX)
        self.addCleanup(server.close)
        server.bind(str(self.runtime / "wayland-7"))
        server.listen()
        return {"WAYLAND_DISPLAY": "wayland-7", "XDG_RUNTIME_DIR": str(self.runtime)}

    def test_with_a_display_it_builds_and_opens_the_window_there(self):
        self.add_debian()
        done, log = self.run_it(**self.listen())
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(
            log, ["cmake --preset release", "cmake --build --preset release", "window on wayland"]
        )

    def test_without_a_display_it_saves_a_picture_and_says_where(self):
        self.add_debian()
        for nowhere in ({}, {"DISPLAY": ":58231"}, {"WAYLAND_DISPLAY": "wayland-8"}):
            with self.subTest(nowhere):
                self.log.unlink(missing_ok=True)
                done, log = self.run_it(**nowhere)
                self.assertEqual(done.returncode, 0, done.stderr)
                self.assertEqual(
                    log[2:],
                    ["headless 1280x800 tools/picture build/window.png"
                     " build/release/app/vasker-open-map"],
                )
                self.assertIn(f"{self.root}/build/window.png", done.stdout)

    def test_a_picture_that_cannot_be_taken_is_a_failure(self):
        self.add_debian()
        self.add(self.root / "tools/headless", "#!/bin/bash\nexit 1\n")
        self.assertNotEqual(self.run_it()[0].returncode, 0)

    def test_missing_packages_are_installed_and_no_others(self):
        self.add_debian()
        _, log = self.run_it(MISSING="qt6-base-dev libicu-dev", **self.listen())
        self.assertEqual(log[0], "apt-get update")
        self.assertTrue(log[1].endswith(" qt6-base-dev libicu-dev"), log[1])
        self.assertIn("--no-remove", log[1])

    def test_what_takes_pictures_is_needed_only_without_a_display(self):
        self.add_debian()
        self.assertNotIn("apt-get", "".join(self.run_it(MISSING="netpbm", **self.listen())[1]))
        self.assertIn("netpbm", self.run_it(MISSING="netpbm")[1][-4])

    def test_packages_that_the_system_does_not_know_are_named_and_it_goes_on(self):
        self.add_debian()
        done, log = self.run_it(
            MISSING="linguist-qt6 libicu-dev", UNKNOWN="linguist-qt6", **self.listen()
        )
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("could not be checked: linguist-qt6\n", done.stderr)
        self.assertTrue(log[1].endswith(" libicu-dev"), log[1])
        self.assertEqual(log[-1], "window on wayland")

    def test_on_another_system_it_names_what_it_could_not_check_and_goes_on(self):
        done, log = self.run_it(**self.listen())
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("could not be checked", done.stderr)
        self.assertIn("qt6-base-dev", done.stderr)
        self.assertIn("docs/installing.md", done.stderr)
        self.assertEqual(log[-1], "window on wayland")

    def test_on_another_system_it_stops_where_the_build_misses_something(self):
        done, log = self.run_it(BUILD_FAILS="1", **self.listen())
        self.assertNotEqual(done.returncode, 0)
        self.assertEqual(log, ["cmake --preset release"])


if __name__ == "__main__":
    os.umask(0o022)
    unittest.main()
