"""How the program ends."""

import os
import time

from bundle import RELEASE, program_with_release
from driver import Missed, Program

# What a slow machine may need beside the half second that a user may have to wait.
PATIENCE_SECONDS = 3


def a_load_that_hangs_keeps_nobody(executable):
    """The file of the release lies on a disk that does not answer: reading it never ends."""
    dead = {"LD_PRELOAD": os.environ["VASKER_DEAD_MOUNT"]}
    with program_with_release(executable, RELEASE) as copy, Program(copy, **dead) as program:
        program.see(name="Opening the bundled map…")
        program.key("ctrl+n")
        program.see(window=1, name="Opening the bundled map…")
        program.key("ctrl+w", window=1)
        program.wait(lambda: len(program.windows()) == 1, "the second window is still there")
        program.key("ctrl+w")
        closed = time.monotonic()
        status = program.process.wait(timeout=20)
        seconds = time.monotonic() - closed
        print(f"ended {seconds:.2f} s after its last window was closed")
        if status != 0 or seconds > PATIENCE_SECONDS:
            raise Missed(f"it ended with {status} after {seconds:.2f} s")
