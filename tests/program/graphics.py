"""What the window shows, whatever it can be drawn with: by a painter, or by OpenGL where there is a
graphics card, where the environment asks for it, and at scales between whole numbers."""

import os
import subprocess
from collections import Counter
from contextlib import contextmanager
from itertools import groupby
from pathlib import Path

from driver import Missed, Program, Screen

LAND = (0xF4, 0xF2, 0xEC)
WATER = (0xCB, 0xDF, 0xEA)
GREY = (0x50, 0x56, 0x5F)  # of many kinds, and of no route
DIMMED_GREY = (0x48, 0x4D, 0x56)  # the same beside a sheet


def longest_run(rows, colour):
    """Of pixels of nearly that colour side by side."""
    alike = lambda pixel: max(abs(a - b) for a, b in zip(pixel, colour)) <= 2
    return max((sum(1 for _ in run) for row in rows for same, run in groupby(row, alike) if same), default=0)


def shows_a_map(box):
    """Whether land, water, dots and pins are in it; a pin is wider than a dot."""
    rows = Screen().rows(box)
    counted = Counter(pixel for row in rows for pixel in row)
    total = sum(counted.values())
    return (
        counted[LAND] > total / 10
        and counted[WATER] > total / 20
        and counted[GREY] > 2000
        and longest_run(rows, GREY) >= 12
    )


def has_graphics_card():
    return any(Path("/dev/dri").glob("renderD*"))


def has_a_driver(program):
    """Whether it has loaded what OpenGL is drawn with."""
    loaded = Path(f"/proc/{program.process.pid}/maps").read_text()
    return any(name in loaded for name in ("_dri.so", "libgallium", "libLLVM"))


def expect_a_map_and_a_record(executable, by_opengl=None, **environment):
    """`by_opengl`: whether a driver is expected to be loaded; None where that depends."""
    with Program(executable, **environment) as program:
        box = program.see(id="open-map-canvas").box()
        program.wait(lambda: shows_a_map(box), "there is no map")
        first = program.see(id="open-map-records").find(role="list item")
        first.press()
        sheet = program.see(id="open-map-inspector", role="dialog")
        # What the sheet leaves of the map has the record in its middle, as a larger pin.
        seen = (box[0], box[1], sheet.box()[0] - box[0], box[3])
        program.wait(lambda: longest_run(Screen().rows(seen), DIMMED_GREY) >= 18, "there is no selected pin")
        if longest_run(Screen().rows(sheet.box()), (255, 255, 255)) < 200:
            raise Missed("the inspector is not drawn")
        if by_opengl is not None and by_opengl != has_a_driver(program):
            raise Missed("OpenGL" if by_opengl else "a painter, and no driver in memory")


def is_painted_without_a_graphics_card(executable):
    expect_a_map_and_a_record(executable, by_opengl=None if has_graphics_card() else False)


def is_painted_on_the_software_renderer(executable):
    expect_a_map_and_a_record(executable, by_opengl=False, QT_QUICK_BACKEND="software")


def is_drawn_by_opengl_where_that_is_asked_for(executable):
    expect_a_map_and_a_record(executable, by_opengl=True, QSG_RHI_BACKEND="opengl")


def is_drawn_by_opengl_at_a_scale_between_whole_numbers(executable):
    with another_display(size="1700x1100"):
        expect_a_map_and_a_record(executable, by_opengl=True, QT_SCALE_FACTOR="1.25")


def is_painted_whole_on_a_screen_of_scale_2(executable):
    with another_display(size="2600x1700"), Program(executable, QT_SCALE_FACTOR="2") as program:
        box = program.see(id="open-map-canvas").box()
        program.wait(lambda: shows_a_map(box), "there is no map")
        program.see(id="open-map-records").find(role="list item").press()
        left, top, *_ = program.see(id="open-map-inspector", role="dialog").box()
        # Beside the sheet stands the bar above the map, in one colour, and the sheet's shadow on it.
        brightness = lambda x: sum(Screen().pixel(x, top + 40))
        program.wait(lambda: brightness(left - 4) < brightness(left - 120) - 6, "there is no shadow")
        if sum(Screen().pixel(4, top + 40)) < 300:
            raise Missed("the column is not drawn")


def stands_without_a_driver(executable):
    """Newer versions of Mesa have the drivers in their library: there, none can be missing."""
    expect_a_map_and_a_record(
        executable,
        by_opengl=None if any(Path("/usr/lib").glob("*/libgallium-*")) else False,
        QSG_RHI_BACKEND="opengl",
        LIBGL_DRIVERS_PATH="/nonexistent",
        LIBGL_ALWAYS_SOFTWARE="1",
    )


def stands_without_opengl(executable):
    expect_a_map_and_a_record(
        executable, by_opengl=False, QSG_RHI_BACKEND="opengl", QT_XCB_GL_INTEGRATION="none"
    )


@contextmanager
def another_display(*options, size="1400x900"):
    """For this scenario; its server is told the options."""
    usual = os.environ["DISPLAY"]
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", "1", "-screen", "0", f"{size}x24", "-nolisten", "tcp", *options],
        stdout=subprocess.PIPE,
        stderr=subprocess.DEVNULL,
    )
    try:
        os.environ["DISPLAY"] = ":" + server.stdout.readline().decode().strip()
        yield
    finally:
        os.environ["DISPLAY"] = usual
        server.terminate()
        server.wait()


def stands_on_a_display_without_opengl(executable):
    with another_display("-extension", "GLX"):
        expect_a_map_and_a_record(executable, QSG_RHI_BACKEND="opengl")


def stands_on_opengl_2_0(executable):
    """Whose shaders are too old for the toolkit."""
    expect_a_map_and_a_record(executable, QSG_RHI_BACKEND="opengl", MESA_GL_VERSION_OVERRIDE="2.0")


def stands_on_opengl_2_1(executable):
    expect_a_map_and_a_record(executable, QSG_RHI_BACKEND="opengl", MESA_GL_VERSION_OVERRIDE="2.1")


def stands_where_vulkan_is_asked_for_in_vain(executable):
    expect_a_map_and_a_record(executable, QSG_RHI_BACKEND="vulkan")


def stands_where_another_systems_graphics_are_asked_for(executable):
    expect_a_map_and_a_record(executable, QSG_RHI_BACKEND="d3d11")


def without_a_display_one_sentence_is_said(executable):
    hidden = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}
    environment = {key: value for key, value in os.environ.items() if key not in hidden}
    ended = subprocess.run([executable], env=environment, capture_output=True, text=True, timeout=30)
    if ended.returncode != 1 or ended.stderr != "vasker-open-map: there is no display for a window\n":
        raise Missed(f"{ended.returncode}: {ended.stderr}")
