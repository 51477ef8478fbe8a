#!/usr/bin/python3
"""Runs one scenario: a function that is given the path of the program.

Usage: run.py PROGRAM MODULE.FUNCTION, within a session of its own (tools/headless).
"""

import importlib
import sys
from pathlib import Path


def main():
    module, _, scenario = sys.argv[2].rpartition(".")
    getattr(importlib.import_module(module), scenario)(Path(sys.argv[1]))


if __name__ == "__main__":
    main()
