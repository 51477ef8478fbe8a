"""A desktop that a scenario plays: portal, file manager. It keeps what it was asked, and answers."""

import os
import threading

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib

from driver import wait

INTERFACES = """
<node>
  <interface name="org.freedesktop.portal.FileChooser">
    <method name="SaveFile">
      <arg type="s" direction="in"/><arg type="s" direction="in"/>
      <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
    </method>
  </interface>
  <interface name="org.freedesktop.portal.OpenURI">
    <method name="OpenURI">
      <arg type="s" direction="in"/><arg type="s" direction="in"/>
      <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
    </method>
    <method name="OpenFile">
      <arg type="s" direction="in"/><arg type="h" direction="in"/>
      <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
    </method>
    <method name="OpenDirectory">
      <arg type="s" direction="in"/><arg type="h" direction="in"/>
      <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
    </method>
  </interface>
  <interface name="org.freedesktop.portal.Print">
    <method name="PreparePrint">
      <arg type="s" direction="in"/><arg type="s" direction="in"/>
      <arg type="a{sv}" direction="in"/><arg type="a{sv}" direction="in"/>
      <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
    </method>
    <method name="Print">
      <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="h" direction="in"/>
      <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
    </method>
  </interface>
  <interface name="org.freedesktop.portal.Settings">
    <method name="ReadAll">
      <arg type="as" direction="in"/><arg type="a{sa{sv}}" direction="out"/>
    </method>
    <signal name="SettingChanged">
      <arg type="s"/><arg type="s"/><arg type="v"/>
    </signal>
  </interface>
  <interface name="org.freedesktop.FileManager1">
    <method name="ShowItems">
      <arg type="as" direction="in"/><arg type="s" direction="in"/>
    </method>
  </interface>
</node>
"""

DONE = 0
CANCELLED = 1


class Portal:
    """Serves until it is closed. `save_to`: the path that the user chooses; None: they cancel.
    `lacks`: the interface that this desktop does not have. `settings`: the desktop's, by group and
    key. What is asked by a method of `open` is kept open."""

    def __init__(self, save_to=None, lacks=None, settings=None, open=()):
        self.save_to = save_to
        self._lacks = lacks
        self.calls = []
        self._settings = settings or {}
        self._open = open
        ready = threading.Event()
        self._thread = threading.Thread(target=self._serve, args=[ready], daemon=True)
        self._thread.start()
        if not ready.wait(10):
            raise RuntimeError("the portal did not start")

    def __enter__(self):
        return self

    def __exit__(self, *fault):
        self.go()

    def go(self):
        """Leaves the bus, and with that whatever is open."""
        self._context.invoke_full(GLib.PRIORITY_DEFAULT, self._loop.quit)
        self._thread.join(10)

    def asked(self, method, times=1):
        """Waits until `method` has been called so often; its arguments, of the last call."""
        found = lambda: [arguments for name, arguments in self.calls if name == method]
        wait(lambda: len(found()) >= times, f"nobody called {method}")
        return found()[-1]

    def change(self, group, key, value):
        """The user changes a setting of the desktop. `value`: a GLib.Variant."""
        self._bus.emit_signal(
            None,
            "/org/freedesktop/portal/desktop",
            "org.freedesktop.portal.Settings",
            "SettingChanged",
            GLib.Variant("(ssv)", (group, key, value)),
        )

    def _serve(self, ready):
        self._context = GLib.MainContext.new()
        self._context.push_thread_default()
        self._loop = GLib.MainLoop.new(self._context, False)
        self._bus = Gio.DBusConnection.new_for_address_sync(
            os.environ["DBUS_SESSION_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION,
            None,
            None,
        )
        for interface in Gio.DBusNodeInfo.new_for_xml(INTERFACES).interfaces:
            if interface.name == self._lacks:
                continue
            path = "/org/freedesktop/portal/desktop"
            if interface.name == "org.freedesktop.FileManager1":
                path = "/org/freedesktop/FileManager1"
            self._bus.register_object(path, interface, self._answer, None, None)
        for name in ("org.freedesktop.portal.Desktop", "org.freedesktop.FileManager1"):
            Gio.bus_own_name_on_connection(
                self._bus, name, Gio.BusNameOwnerFlags.NONE, None, None
            )
        ready.set()
        self._loop.run()
        self._bus.close_sync(None)
        self._context.pop_thread_default()

    def _answer(self, bus, sender, path, interface, method, parameters, invocation):
        arguments = list(parameters.unpack())
        if method in ("OpenFile", "Print"):
            # What it holds counts, not its number; read on from where it stands, as portals do.
            place = 1 if method == "OpenFile" else 2
            files = invocation.get_message().get_unix_fd_list()
            with os.fdopen(files.get(arguments[place]), "rb") as file:
                arguments[place] = file.read()
        self.calls.append((method, arguments))
        if method == "ReadAll":
            if method not in self._open:
                invocation.return_value(GLib.Variant("(a{sa{sv}})", (self._settings,)))
            return
        if method == "ShowItems":
            return invocation.return_value(None)
        token = arguments[-1]["handle_token"]
        handle = f"/org/freedesktop/portal/desktop/request/{sender[1:].replace('.', '_')}/{token}"
        invocation.return_value(GLib.Variant("(o)", (handle,)))
        if method in self._open:
            return
        code, results = DONE, {}
        if method == "SaveFile" and self.save_to is None:
            code = CANCELLED
        elif method == "SaveFile":
            results = {"uris": GLib.Variant("as", [self.save_to.as_uri()])}
        elif method == "PreparePrint":
            page = {"Orientation": GLib.Variant("s", "landscape")}
            results = {"token": GLib.Variant("u", 7), "page-setup": GLib.Variant("a{sv}", page)}
        bus.emit_signal(
            sender,
            handle,
            "org.freedesktop.portal.Request",
            "Response",
            GLib.Variant("(ua{sv})", (code, results)),
        )
