"""Calls the desktop portal on a private session bus, and its back end directly: portal.py BACKEND PORTAL FOLDER"""

import pathlib
import subprocess
import sys
import time

from gi.repository import Gio, GLib

from bussession import PATIENCE, eventually, xdotool

BACKEND, PORTAL, FOLDER = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3])
NAME = "org.freedesktop.impl.portal.desktop.vantorel"
PATH = "/org/freedesktop/portal/desktop"
PICKED, CANCELLED, OTHER = range(3)

SERVICES = FOLDER / "services"
CONFIGURATION = f"""<busconfig><type>session</type><listen>unix:path={FOLDER}/bus</listen>
<servicedir>{SERVICES}</servicedir>
<policy context="default"><allow send_destination="*"/><allow eavesdrop="true"/><allow own="*"/></policy></busconfig>"""


def settle(is_over):
    """Handles messages for half a second, or until that is true."""
    end = time.monotonic() + 0.5
    while not is_over() and time.monotonic() < end:
        GLib.MainContext.default().iteration(False)
        time.sleep(0.02)


def magnifier_is_shown():
    return bool(xdotool("search", "--onlyvisible", "--name", "^Colour magnifier$"))


def connection():
    """None as long as the bus does not listen."""
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    try:
        return Gio.DBusConnection.new_for_address_sync(f"unix:path={FOLDER}/bus", flags, None, None)
    except GLib.Error:
        return None


def main():
    SERVICES.mkdir()
    for name, program in ((NAME, BACKEND), ("org.freedesktop.portal.Desktop", PORTAL)):
        (SERVICES / f"{name}.service").write_text(f"[D-BUS Service]\nName={name}\nExec={program}\n", encoding="utf-8")
    (FOLDER / "bus.conf").write_text(CONFIGURATION, encoding="utf-8")
    daemon = subprocess.Popen(["dbus-daemon", f"--config-file={FOLDER}/bus.conf", "--nofork"])
    try:
        test(eventually(connection, "the session bus"))
    finally:
        daemon.terminate()
        daemon.wait()


def pick_by_portal(bus, action):
    """Picks as programs do. Returns the response and the colour, if there is one."""
    answers = []
    token = "trial"
    sender = bus.get_unique_name()[1:].replace(".", "_")
    bus.signal_subscribe(None, "org.freedesktop.portal.Request", "Response",
                         f"/org/freedesktop/portal/desktop/request/{sender}/{token}", None, 0,
                         lambda *arguments: answers.append(arguments[5].unpack()))
    bus.call_sync("org.freedesktop.portal.Desktop", PATH, "org.freedesktop.portal.Screenshot", "PickColor",
                  GLib.Variant("(sa{sv})", ("", {"handle_token": GLib.Variant("s", token)})), None, 0, 60000, None)
    eventually(magnifier_is_shown, "the magnifier")
    # It takes the mouse and the keyboard a moment after it is shown.
    end = time.monotonic() + PATIENCE
    while not answers and time.monotonic() < end:
        action()
        settle(lambda: answers)
    expect(len(answers), 1, "responses of the portal")
    code, results = answers[0]
    return code, results.get("color")


class Call:
    """A call of the back end, as the portal makes it."""

    def __init__(self, bus, handle, method="PickColor"):
        self.answer = None
        bus.call(NAME, PATH, "org.freedesktop.impl.portal.Screenshot", method,
                 GLib.Variant("(ossa{sv})", (handle, "trial", "", {})), None, 0, 60000, None, self.take)

    def take(self, bus, result):
        self.answer = bus.call_finish(result).unpack()

    def code(self):
        eventually(lambda: self.answer, "an answer of the back end")
        return self.answer[0]


def close(bus, handle):
    bus.call_sync(NAME, handle, "org.freedesktop.impl.portal.Request", "Close", None, None, 0, 60000, None)


def click_at(x, y):
    xdotool("mousemove", x, y)
    xdotool("click", 1)


def expect(found, wanted, what):
    if found != wanted:
        sys.exit(f"{what}: {found}, not {wanted}")


def test(bus):
    code, color = pick_by_portal(bus, lambda: click_at(300, 200))
    expect(code, PICKED, "a pick through the portal")
    expect(tuple(round(channel * 255) for channel in color), (300 % 256, 200, 300 // 256 * 16), "its colour")
    eventually(lambda: not magnifier_is_shown(), "the end of the magnifier")

    code, color = pick_by_portal(bus, lambda: xdotool("key", "Escape"))
    expect((code, color), (CANCELLED, None), "Escape")
    eventually(lambda: not magnifier_is_shown(), "the end of the magnifier")

    first = Call(bus, "/trial/first")
    eventually(magnifier_is_shown, "the magnifier")
    expect(Call(bus, "/trial/second").code(), OTHER, "a second pick at the same time")
    expect(first.answer, None, "the first pick meanwhile")
    close(bus, "/trial/first")
    expect(first.code(), CANCELLED, "a pick that the portal has closed")
    eventually(lambda: not magnifier_is_shown(), "the end of the magnifier")

    expect(Call(bus, "/trial/third", "Screenshot").code(), OTHER, "a picture of the whole screen")
    version = bus.call_sync(NAME, PATH, "org.freedesktop.DBus.Properties", "Get",
                            GLib.Variant("(ss)", ("org.freedesktop.impl.portal.Screenshot", "version")),
                            None, 0, 60000, None).unpack()
    expect(version, (2,), "the version")
    print("the portal picks colours")


main()
