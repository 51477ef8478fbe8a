"""Faults of files, in a program that is started for them. Faults.cpp has the format."""

import contextlib
import os
import tempfile
from pathlib import Path

from driver import wait


class Faults:
    """The faults from now on; what happened of them."""

    def __init__(self, file):
        self._file = file
        self._met = Path(f"{file}.met")
        self.environment = {
            "LD_PRELOAD": os.environ["VASKER_FAULTS_LIBRARY"],
            "VASKER_FAULTS": str(file),
        }

    def set(self, *faults):
        """These and no others, each as in "write ENOSPC */map.png"; forgets what happened."""
        self._met.unlink(missing_ok=True)
        # As a whole: the program reads it at any time.
        draft = self._file.with_suffix(".draft")
        draft.write_text("".join(f"{fault}\n" for fault in faults), "utf-8")
        draft.rename(self._file)

    def met(self):
        """The faults that happened, in their order."""
        return self._met.read_text("utf-8").splitlines() if self._met.exists() else []

    def expect(self, fault):
        """Waits until `fault` has happened: without it a scenario would prove nothing."""
        wait(lambda: fault in self.met(), f"no {fault!r} happened, but {self.met()}")


@contextlib.contextmanager
def faults(*first):
    with tempfile.TemporaryDirectory() as folder:
        made = Faults(Path(folder) / "faults")
        made.set(*first)
        yield made
