"""The program opens its release. What is expected is computed from the release file itself."""

import json

from driver import Program


def counts_the_records_of_its_release(executable):
    release = json.loads((executable.parent / "resources/OpenMap.json").read_text("utf-8"))
    total = len(release["assets"])
    with Program(executable) as program:
        program.see(name=f"{total} of {total} records")
        print(program.dump())
