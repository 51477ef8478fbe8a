"""A session bus of a test's own, which starts no service of the machine."""

import contextlib
import os
import subprocess
import tempfile
from pathlib import Path

CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>{listen}</listen>
{services}  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


@contextlib.contextmanager
def private_bus(services=None, at=None, **environment):
    """The running bus and its address, at the path `at` where that is told. It starts what the folder
    `services` holds; without one, nothing. What is given besides is in its environment."""
    with tempfile.TemporaryDirectory() as folder:
        known = f"  <servicedir>{services}</servicedir>\n" if services else ""
        listen = f"unix:path={at}" if at else f"unix:dir={folder}"
        configuration = Path(folder) / "bus.conf"
        configuration.write_text(CONFIGURATION.format(listen=listen, services=known), "utf-8")
        process = subprocess.Popen(
            ["dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address"],
            stdout=subprocess.PIPE,
            env=dict(os.environ, **environment),
            text=True,
        )
        try:
            yield process, process.stdout.readline().strip()
        finally:
            process.terminate()
            process.wait(timeout=10)
