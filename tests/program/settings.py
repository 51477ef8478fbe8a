"""What the desktop's settings change while the program runs, as the display shows it."""

from gi.repository import GLib

from driver import Program, Screen
from portal import Portal

DESKTOP = "org.freedesktop.appearance"
GNOME = "org.gnome.desktop.interface"


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

        usual = edge()
        portal.change(DESKTOP, "contrast", GLib.Variant("u", 1))
        program.wait(lambda: edge() < usual - 40, "no outline becomes stronger")

        portal.change(GNOME, "text-scaling-factor", GLib.Variant("d", 2.0))
        program.wait(lambda: layer()[3] > 1.2 * height, "no control grows with its text")
