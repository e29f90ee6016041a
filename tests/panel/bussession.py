"""A private session bus with panels on it, and a client that calls them."""

import ctypes
import os
import signal
import subprocess
import time

from gi.repository import Gio, GLib

NAME = "org.vantorel.ColorPanel"
PATH = "/org/vantorel/ColorPanel"
INTERFACE = "org.vantorel.ColorPanel1"
PROPERTIES = "org.freedesktop.DBus.Properties"
PATIENCE = 40  # seconds

RED = "#ff0000"


def eventually(condition, what, patience=PATIENCE):
    """Waits until the condition is true, and returns its value."""
    end = time.monotonic() + patience
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"has not come: {what}")
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.02)


def xdotool(*arguments):
    """Returns the lines that xdotool prints; empty if it finds no window."""
    run = subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True, check=False)
    return run.stdout.split()


def shown_windows():
    return xdotool("search", "--onlyvisible", "--name", "^Vantorel$")


class ClientMessage(ctypes.Structure):
    """XClientMessageEvent, padded to the size of an XEvent."""

    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5), ("rest", ctypes.c_long * 24)]


def close_window():
    """Closes the visible panel as a window manager does, which xdotool cannot."""
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XInternAtom.restype = ctypes.c_ulong
    x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
    x11.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long, ctypes.c_void_p]
    x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
    window = int(eventually(shown_windows, "the window")[0])
    display = x11.XOpenDisplay(None)
    client_message = 33
    event = ClientMessage(
        type=client_message, window=window, format=32,
        message_type=x11.XInternAtom(display, b"WM_PROTOCOLS", False),
        data=(x11.XInternAtom(display, b"WM_DELETE_WINDOW", False), 0, 0, 0, 0))
    x11.XSendEvent(display, window, False, 0, ctypes.byref(event))
    x11.XCloseDisplay(display)


class BusSession:
    """`close` ends the bus and its panels."""

    def __init__(self, panel, scratch):
        self.panel = panel
        self.folder = os.path.join(scratch, str(time.monotonic_ns()))
        os.mkdir(self.folder)
        self.bus = subprocess.Popen(
            ["dbus-daemon", "--session", "--nofork", "--print-address=1", f"--address=unix:path={self.folder}/bus"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.address = self.bus.stdout.readline().strip()
        # Some leaks of Qt's are only known by whole stacks, which cost time.
        sanitizer = ":".join(filter(None, ["fast_unwind_on_malloc=0:malloc_context_size=8", os.environ.get("ASAN_OPTIONS")]))
        self.environment = dict(
            os.environ, DBUS_SESSION_BUS_ADDRESS=self.address, HOME=self.folder,
            XDG_DATA_HOME=self.folder, XDG_CONFIG_HOME=self.folder, ASAN_OPTIONS=sanitizer)
        self.started = []
        self.errors = subprocess.PIPE  # or a file
        self.client = self.connect()

    def connect(self):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                 | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        connection = Gio.DBusConnection.new_for_address_sync(self.address, flags, None, None)
        connection.set_exit_on_close(False)
        return connection

    def shown_windows(self):
        return shown_windows()

    def offer_portal(self, picked=None):
        """Adds a desktop portal whose user picks a colour, or never does; its calls are appended to the list."""
        calls = []
        description = Gio.DBusNodeInfo.new_for_xml("""
            <node><interface name="org.freedesktop.portal.Screenshot">
              <property name="version" type="u" access="read"/>
              <method name="PickColor"><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/>
                <arg type="o" direction="out"/></method>
            </interface></node>""")

        def take_call(connection, sender, _path, _interface, method, values, invocation):
            calls.append(method)
            token = values.unpack()[1]["handle_token"]
            request = f"/org/freedesktop/portal/desktop/request/{sender[1:].replace('.', '_')}/{token}"
            invocation.return_value(GLib.Variant("(o)", (request,)))
            if picked:
                answer = {"color": GLib.Variant("(ddd)", picked)}
                connection.emit_signal(sender, request, "org.freedesktop.portal.Request", "Response",
                                       GLib.Variant("(ua{sv})", (0, answer)))

        portal = self.connect()
        portal.register_object("/org/freedesktop/portal/desktop", description.interfaces[0], take_call,
                               lambda *_: GLib.Variant("u", 2), None)
        portal.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                         GLib.Variant("(su)", ("org.freedesktop.portal.Desktop", 4)), None,
                         Gio.DBusCallFlags.NONE, -1, None)
        self.portal = portal
        return calls

    def close(self):
        for process in self.started:
            # Not SIGKILL, which would lose coverage counts, except for a process that a test has
            # stopped.
            process.terminate()
            try:
                process.communicate(timeout=5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.communicate()
        if self.bus.poll() is None and self.owner():
            left = self.process_of(NAME)
            if left != os.getpid():  # a panel that went to the background
                os.kill(left, signal.SIGKILL)
        self.bus.kill()
        self.bus.communicate()
        eventually(lambda: not self.shown_windows(), "the end of all windows")

    # The bus.

    def ask_bus(self, method, *values):
        reply = self.client.call_sync(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
            GLib.Variant("(" + "s" * len(values) + ")", values) if values else None, None,
            Gio.DBusCallFlags.NONE, -1, None)
        return reply.unpack()[0]

    def owner(self):
        # A single call, because the panel may end between two calls.
        try:
            return self.ask_bus("GetNameOwner", NAME)
        except GLib.Error as error:
            if "NameHasNoOwner" in error.message or "no such name" in error.message:
                return None
            raise

    def process_of(self, name):
        return self.ask_bus("GetConnectionUnixProcessID", name)

    # Panels.

    def start(self, *options, **environment):
        process = subprocess.Popen(
            [self.panel, *options], env={**self.environment, **environment}, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=self.errors, text=True)
        self.started.append(process)
        return process

    def start_panel(self, *options, **environment):
        process = self.start(*options, **environment)
        eventually(lambda: self.owner() and self.process_of(NAME) == process.pid, "the panel's name")
        return process

    def run(self, *options, **environment):
        """Runs the program to its end; returns its exit status, output and errors."""
        return self.end_of(self.start(*options, **environment))

    @staticmethod
    def end_of(process):
        output, errors = process.communicate(timeout=PATIENCE)
        return process.returncode, output.strip(), errors.strip()

    # The client's calls.

    def call(self, method, signature="", *values, interface=INTERFACE):
        reply = self.client.call_sync(
            NAME, PATH, interface, method, GLib.Variant(f"({signature})", values), None,
            Gio.DBusCallFlags.NO_AUTO_START, PATIENCE * 1000, None)
        return self.value_of(reply)

    @staticmethod
    def value_of(reply):
        return reply.unpack()[0] if reply.n_children() else None

    def error_of(self, method, signature="", *values, interface=INTERFACE):
        """Returns a call's error: the name without our prefix, and the message."""
        try:
            self.call(method, signature, *values, interface=interface)
        except GLib.Error as error:
            name = Gio.DBusError.get_remote_error(error)
            return name.removeprefix(INTERFACE + ".Error."), error.message.split(": ", 1)[1]
        raise AssertionError(f"{method} has brought no error")

    def begin(self, method, signature, *values, connection=None):
        """Starts a call; its answer or the error's name is appended to the list."""
        answers = []

        def take(source, result):
            try:
                answers.append(self.value_of(source.call_finish(result)))
            except GLib.Error as error:
                name = Gio.DBusError.get_remote_error(error) or "not sent"
                answers.append(name.removeprefix(INTERFACE + ".Error."))

        (connection or self.client).call(
            NAME, PATH, INTERFACE, method, GLib.Variant(f"({signature})", values), None,
            Gio.DBusCallFlags.NO_AUTO_START, 0x7FFFFFFF, None, take)
        return answers

    def listen(self, interface, signal):
        """Appends the values of each such signal to the list."""
        heard = []
        self.client.signal_subscribe(
            NAME, interface, signal, PATH, None, Gio.DBusSignalFlags.NONE,
            lambda *arguments: heard.append(arguments[5].unpack()))
        self.ask_bus("GetId")  # the bus has the subscription
        return heard
