"""What the desktop's settings change while the program runs, as the display shows it."""

from collections import Counter

from gi.repository import GLib

from driver import Program, Screen
from portal import Portal

DESKTOP = "org.freedesktop.appearance"
GNOME = "org.gnome.desktop.interface"

# Water, and the fill of the most frequent pins and dots.
MAP = [(0xCB, 0xDF, 0xEA), (0x50, 0x56, 0x5F)]
HIGH_CONTRAST_MAP = [(0xDC, 0xEA, 0xF2), (0x42, 0x47, 0x4F)]


def brightness(color):
    return sum(color) / 3


def are_followed_while_it_runs(executable):
    with Portal() as portal, Program(executable) as program:
        layer = lambda: program.see(id="open-map-layer").box()
        left, top, _, height = layer()
        portal.asked("ReadAll")

        def has_surface(least, most):
            """The surface beside the control is so bright."""
            return least <= brightness(Screen().pixel(left - 6, top)) <= most

        def edge():
            """How bright the control's outline is, the darkest that a row through it shows."""
            screen = Screen()
            return min(brightness(screen.pixel(x, top + height // 2)) for x in range(left - 3, left + 4))

        program.wait(lambda: has_surface(220, 255), "the window is not light")
        portal.change(DESKTOP, "color-scheme", GLib.Variant("u", 1))
        program.wait(lambda: has_surface(0, 60), "the window does not become dark")
        portal.change(DESKTOP, "color-scheme", GLib.Variant("u", 2))
        program.wait(lambda: has_surface(220, 255), "the window does not become light again")

        canvas = program.see(id="open-map-canvas").box()

        def map_shows(shown, gone):
            """Whether the map is in these colours, and not in those."""
            counted = Counter(pixel for row in Screen().rows(canvas) for pixel in row)
            return all(counted[each] > 1000 for each in shown) and all(counted[each] < 200 for each in gone)

        usual = edge()
        program.wait(lambda: map_shows(MAP, HIGH_CONTRAST_MAP), "the map is not light")
        portal.change(DESKTOP, "contrast", GLib.Variant("u", 1))
        program.wait(lambda: edge() < usual - 40, "no outline becomes stronger")
        program.wait(lambda: map_shows(HIGH_CONTRAST_MAP, MAP), "the map's contrast is not high")
        portal.change(DESKTOP, "contrast", GLib.Variant("u", 0))
        program.wait(lambda: map_shows(MAP, HIGH_CONTRAST_MAP), "the map's contrast stays high")

        portal.change(GNOME, "text-scaling-factor", GLib.Variant("d", 2.0))
        program.wait(lambda: layer()[3] > 1.2 * height, "no control grows with its text")
