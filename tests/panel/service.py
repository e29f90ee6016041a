"""Tests the panel on the session bus: its interface, further starts of the program, and failures.

Usage: service.py PANEL SCRATCH, on a separate X server.
"""

import os
import signal
import subprocess
import sys
import unittest
import xml.etree.ElementTree as ElementTree

from gi.repository import Gio, GLib

from bussession import INTERFACE, NAME, PROPERTIES, RED, BusSession, close_window, eventually, shown_windows, xdotool

PANEL, SCRATCH = os.path.abspath(sys.argv[1]), sys.argv[2]
DESCRIPTION = os.path.join(os.path.dirname(__file__), "../../src/panel/bus/org.vantorel.ColorPanel1.xml")
# The black root window is visible there.
EMPTY_SPOT = (980, 780)


def clipboard():
    run = subprocess.run(["xclip", "-o", "-selection", "clipboard"], capture_output=True, text=True, check=False)
    return run.stdout


def take_clipboard(text):
    subprocess.run(["xclip", "-selection", "clipboard"], input=text, text=True, check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def windows_from_top():
    tree = subprocess.run(["xwininfo", "-root", "-children"], capture_output=True, text=True, check=True).stdout
    return [str(int(line.split()[0], 16)) for line in tree.splitlines() if '"Vantorel"' in line]


def magnifier_is_shown():
    return [window for window in xdotool("search", "--onlyvisible", "--class", "vantorel-panel")
            if window not in shown_windows()]


class ServiceTest(unittest.TestCase):
    def setUp(self):
        xdotool("mousemove", *EMPTY_SPOT)
        self.session = BusSession(PANEL, SCRATCH)
        self.addCleanup(self.session.close)

    def answer_of(self, answers):
        return eventually(lambda: answers, "an answer")[0]

    def click_with_the_magnifier(self):
        eventually(magnifier_is_shown, "the magnifier")
        xdotool("mousemove", *EMPTY_SPOT, "click", 1)

    def leave_the_magnifier(self):
        eventually(magnifier_is_shown, "the magnifier")
        xdotool("key", "Escape")


class InterfaceTest(ServiceTest):
    def setUp(self):
        super().setUp()
        self.process = self.session.start_panel("--color", RED)

    def tearDown(self):
        self.assertIsNone(self.process.poll(), "the panel still runs")
        self.session.call("GetColor")

    def test_the_bus_shows_what_the_file_describes(self):
        def members(node):
            interface = next(each for each in node.iter("interface") if each.get("name") == INTERFACE)
            return {(each.tag, each.get("name"), each.get("type"),
                     tuple((arg.get("type"), arg.get("direction")) for arg in each.iter("arg")))
                    for each in interface if each.tag != "annotation"}

        shown = self.session.call("Introspect", interface="org.freedesktop.DBus.Introspectable")
        described = members(ElementTree.parse(DESCRIPTION).getroot())
        self.assertEqual(members(ElementTree.fromstring(shown)), described)
        self.assertEqual(len(described), 8)

    def test_every_text_of_css_sets_the_colour(self):
        for text, color in [("#08f", "#0088ff"), ("rgb(255 128 0 / 50%)", "#ff800080"), ("navy", "#000080"),
                            ("hsl(210 100% 50%)", "#0080ff"), ("color(display-p3 1 0 0)", "#ff0b0c")]:
            with self.subTest(text):
                self.session.call("SetColor", "s", text)
                self.assertEqual(self.session.call("GetColor")[:6], color[:6])
                self.assertEqual(len(self.session.call("GetColor")), len(color))

    def test_texts_that_are_not_colours_are_rejected_with_a_message(self):
        for text in ["", "nonsense", "#12345", "rgb(1, 2", "\U0001f3a8", "x" * 20_000_000, "#" + "f" * 5000]:
            with self.subTest(text[:20]):
                name, sentence = self.session.error_of("SetColor", "s", text)
                self.assertEqual(name, "NotAColor")
                self.assertRegex(sentence, r"(?s)^.{10,200}\.$")
        self.assertEqual(self.session.call("GetColor"), RED)

    def test_the_property_has_the_channels(self):
        self.session.call("SetColor", "s", "rgb(255 128 0 / 0.25)")
        red, green, blue, alpha = self.session.call("Get", "ss", INTERFACE, "Color", interface=PROPERTIES)
        self.assertEqual((red, blue, alpha), (1, 0, 0.25))
        self.assertAlmostEqual(green, 128 / 255)
        name, _ = self.session.error_of("Set", "ssv", INTERFACE, "Color", GLib.Variant("(dddd)", (0, 0, 0, 1)),
                                        interface=PROPERTIES)
        self.assertEqual(name, "org.freedesktop.DBus.Error.PropertyReadOnly")

    def test_a_change_is_announced_once_and_no_change_never(self):
        colors = self.session.listen(INTERFACE, "ColorChanged")
        changes = self.session.listen(PROPERTIES, "PropertiesChanged")
        self.session.call("SetColor", "s", RED)
        self.session.call("SetColor", "s", "lime")
        eventually(lambda: changes, "the change of the property")
        self.session.call("GetColor")
        self.assertEqual(colors, [("#00ff00",)])
        self.assertEqual(changes, [(INTERFACE, {"Color": (0, 1, 0, 1)}, [])])

    def test_of_many_changes_the_last_always_arrives(self):
        colors = self.session.listen(INTERFACE, "ColorChanged")
        for shade in range(256):
            self.session.begin("SetColor", "s", f"rgb(0, 0, {shade})")
        self.session.begin("SetColor", "s", "white")
        eventually(lambda: ("#ffffff",) in colors, "the last colour")
        self.assertLess(len(colors), 256, "some are left out")
        self.assertEqual(colors[-1], ("#ffffff",))

    def test_copy_takes_the_form_that_is_named(self):
        for form, text in [("", "#FF0000"), ("Hex Code", "#FF0000"), ("HSL (CSS)", "hsl(0 100% 50%)")]:
            with self.subTest(form):
                self.assertEqual(self.session.call("Copy", "s", form), text)
                self.assertEqual(clipboard(), text)
        name, sentence = self.session.error_of("Copy", "s", "Nothing")
        self.assertEqual(name, "NoSuchForm")
        self.assertIn("HSL (CSS)", sentence)

    def test_pick_replies_when_the_user_has_picked(self):
        answers = self.session.begin("Pick", "b", True)
        self.click_with_the_magnifier()
        self.assertEqual(self.answer_of(answers), "#000000")
        self.assertEqual(self.session.call("GetColor"), "#000000")
        self.assertEqual(clipboard(), "#000000")

    def test_a_pick_that_the_user_leaves_is_cancelled(self):
        answers = self.session.begin("Pick", "b", False)
        self.leave_the_magnifier()
        self.assertEqual(self.answer_of(answers), "Cancelled")
        self.assertEqual(self.session.call("GetColor"), RED)

    def test_a_pick_ends_with_the_caller(self):
        caller = self.session.connect()
        self.session.begin("Pick", "b", False, connection=caller)
        eventually(magnifier_is_shown, "the magnifier")
        caller.close_sync(None)
        eventually(lambda: not magnifier_is_shown(), "the end of the magnifier")

    def test_show_brings_the_window_to_the_front(self):
        first = eventually(shown_windows, "the window")[0]
        self.session.start("--new")
        eventually(lambda: len(shown_windows()) == 2, "the second window")
        eventually(lambda: windows_from_top()[0] != first, "the second window on top")
        self.session.call("Show")
        eventually(lambda: windows_from_top()[0] == first, "the first window on top")

    def test_wrong_arguments_are_rejected(self):
        wrong = [("SetColor", "i", 1), ("SetColor", "as", ["#fff"]), ("SetColor", ""), ("Pick", "s", "yes"),
                 ("Pick", ""), ("Copy", "v", GLib.Variant("s", "")), ("Activate", "as", ["token"]),
                 ("Activate", "a{ss}", {"activation-token": "x"}), ("NoSuchMethod", ""), ("getColor", "")]
        for method, signature, *values in wrong:
            with self.subTest(method=method, signature=signature):
                name, _ = self.session.error_of(method, signature, *values)
                self.assertIn(name.rsplit(".", 1)[-1], ("UnknownMethod", "InvalidArgs"))

    def test_any_activation_token_is_accepted(self):
        tokens = [{}, {"activation-token": GLib.Variant("s", "t" * 5_000_000)},
                  {"activation-token": GLib.Variant("i", 5), "desktop-startup-id": GLib.Variant("as", ["x", "y"])},
                  {"desktop-startup-id": GLib.Variant("s", "id_TIME12"), "other": GLib.Variant("(sv)", ("", GLib.Variant("y", 1)))},
                  {"desktop-startup-id": GLib.Variant("s", "\n=\"_TIME99999999999999999999999")}]
        for token in tokens:
            self.session.call("Activate", "a{sv}", token)

    def test_thousands_of_calls_are_answered(self):
        answers = []
        for i in range(3000):
            answers.append(self.session.begin("SetColor", "s", f"junk {i}"))
            answers.append(self.session.begin("Copy", "s", ""))
            answers.append(self.session.begin("Show", ""))
        eventually(lambda: all(answers[0::3]) and all(answers[1::3]), "all answers")
        self.assertEqual({each[0] for each in answers[0::3]}, {"NotAColor"})
        self.assertEqual({each[0] for each in answers[1::3]}, {"#FF0000"})

    def test_of_a_thousand_picks_the_last_one_counts(self):
        answers = [self.session.begin("Pick", "b", False) for _ in range(1000)]
        eventually(lambda: all(answers[:-1]), "the end of all but the last")
        self.assertEqual({each[0] for each in answers[:-1]}, {"Cancelled"})
        self.click_with_the_magnifier()
        self.assertEqual(self.answer_of(answers[-1]), "#000000")


class ClosedPanelTest(ServiceTest):
    def test_a_pick_of_a_panel_that_is_closed_is_cancelled(self):
        calls = self.session.offer_portal()
        # Under Wayland there is no magnifier of our own, which would come first.
        process = self.session.start_panel(WAYLAND_DISPLAY="none", QT_QPA_PLATFORM="xcb")
        answers = self.session.begin("Pick", "b", False)
        eventually(lambda: calls == ["PickColor"], "the portal's pick")
        close_window()
        self.assertEqual(self.answer_of(answers), "Cancelled")
        self.assertEqual(self.session.end_of(process)[0], 0)

    def test_pick_reports_a_desktop_that_cannot_pick(self):
        self.session.start_panel(WAYLAND_DISPLAY="none", QT_QPA_PLATFORM="xcb")
        name, sentence = self.session.error_of("Pick", "b", False)
        self.assertEqual(name, "NotPossible")
        self.assertRegex(sentence, r"no way to pick a colour: .*\.$")
        self.assertEqual(self.session.run("--pick"), (3, "", "vantorel-panel: " + sentence))


class SecondStartTest(ServiceTest):
    def test_it_passes_its_options_on(self):
        self.session.start_panel("--color", RED)
        rows = [(["--color", "rgb(0, 0, 255)"], (0, "", ""), "#0000ff"),
                (["--color", "#ff000080"], (0, "", ""), "#ff000080"),
                ([], (0, "", ""), "#ff000080"),
                (["--copy"], (0, "#FF000080", ""), "#ff000080"),
                (["--color", "lime", "--copy"], (0, "#00FF00", ""), "#00ff00"),
                (["--copy-as", "HSL (CSS)"], (0, "hsl(120 100% 50%)", ""), "#00ff00")]
        for options, end, color in rows:
            with self.subTest(options):
                self.assertEqual(self.session.run(*options), end)
                self.assertEqual(self.session.call("GetColor"), color)
        status, output, errors = self.session.run("--copy-as", "Nothing")
        self.assertEqual((status, output), (2, ""))
        self.assertIn("HSL (CSS)", errors)

    def test_it_reports_the_options_that_only_a_new_panel_can_apply(self):
        self.session.start_panel()
        status, _, errors = self.session.run("--size", "300x300", "--theme", "dark")
        self.assertEqual(status, 0)
        self.assertIn("--size, --theme", errors)

    def test_it_prints_the_picked_colour(self):
        self.session.start_panel("--color", RED)
        start = self.session.start("--pick")
        self.click_with_the_magnifier()
        self.assertEqual(self.session.end_of(start), (0, "#000000", ""))
        start = self.session.start("--pick-and-copy")
        self.leave_the_magnifier()
        status, output, _ = self.session.end_of(start)
        self.assertEqual((status, output), (1, ""))

    def test_the_pick_ends_with_it(self):
        self.session.start_panel()
        start = self.session.start("--pick")
        eventually(magnifier_is_shown, "the magnifier")
        start.terminate()
        eventually(lambda: not magnifier_is_shown(), "the end of the magnifier")

    def test_two_simultaneous_starts_end_as_one_panel(self):
        colors = ["#0000ff", "#00ff00"]
        for _ in range(10):
            pair = [self.session.start("--color", color) for color in colors]
            eventually(lambda: any(start.poll() is not None for start in pair), "the end of one")
            ended = next(i for i, start in enumerate(pair) if start.poll() is not None)
            self.assertEqual(self.session.end_of(pair[ended]), (0, "", ""))
            other = pair[1 - ended]
            self.assertEqual(self.session.process_of(NAME), other.pid)
            self.assertEqual(self.session.call("GetColor"), colors[ended], "the colour is handed on")
            self.assertIsNone(other.poll())
            other.kill()
            other.wait()
            eventually(lambda: not self.session.owner(), "the end of the panel")

    def test_it_does_not_wait_for_a_panel_that_hangs(self):
        stopped = self.session.start_panel("--color", RED)
        # Wait for the window, too: a panel that is stopped before its window opens never shows it.
        eventually(shown_windows, "the first window")
        os.kill(stopped.pid, signal.SIGSTOP)
        self.addCleanup(os.kill, stopped.pid, signal.SIGCONT)
        second = self.session.start("--print-color", "--color", "lime")
        self.assertEqual(second.stdout.readline(), "#00ff00ff\n")
        self.assertIn("does not answer", second.stderr.readline())
        eventually(lambda: len(shown_windows()) == 2, "the second window")
        stopped.kill()
        eventually(lambda: self.session.owner() and self.session.process_of(NAME) == second.pid,
                   "the second one in its place")
        self.assertEqual(self.session.call("GetColor"), "#00ff00")

    def test_it_takes_the_place_of_a_panel_that_has_crashed(self):
        first = self.session.start_panel()
        first.kill()
        first.wait()
        self.session.start_panel()


class OtherBusTest(ServiceTest):
    def test_another_program_with_the_name_is_reported(self):
        self.session.client.call_sync(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
            GLib.Variant("(su)", (NAME, 4)), None, Gio.DBusCallFlags.NONE, -1, None)
        panel = self.session.start("--color", RED)
        self.assertRegex(panel.stderr.readline(), "Another program has the name")
        eventually(shown_windows, "the window")

    def test_the_end_of_the_bus_is_reported(self):
        panel = self.session.start_panel("--print-color", "--color", RED)
        self.session.bus.kill()
        self.session.bus.wait()
        self.assertRegex(panel.stderr.readline(), "session bus has gone")
        self.assertIsNone(panel.poll())
        close_window()
        self.assertEqual(self.session.end_of(panel)[0], 0)

    def test_without_a_bus_each_start_is_a_panel(self):
        for address in ["disabled:", "unix:path=/no/such", "nonsense"]:
            with self.subTest(address):
                panel = self.session.start("--color", RED, DBUS_SESSION_BUS_ADDRESS=address)
                close_window()
                self.assertEqual(self.session.end_of(panel), (0, "", ""))


class WithoutAPanelTest(ServiceTest):
    def environments(self):
        return {"with a bus": {}, "without a bus": {"DBUS_SESSION_BUS_ADDRESS": "disabled:"}}.items()

    def test_the_picked_colour_is_printed_and_kept(self):
        for name, environment in self.environments():
            with self.subTest(name):
                start = self.session.start("--pick", **environment)
                self.click_with_the_magnifier()
                self.assertEqual(self.session.end_of(start), (0, "#000000", ""))
                eventually(lambda: not self.session.owner(), "the end of the panel")
                self.assertEqual(shown_windows(), [])
                self.assertEqual(self.session.run("--copy", **environment), (0, "#000000", ""))
                take_clipboard("something else")
                eventually(lambda: not self.session.owner(), "the end of the panel")

    def test_a_cancelled_pick_ends_the_program(self):
        start = self.session.start("--pick-and-copy")
        self.leave_the_magnifier()
        self.assertEqual(self.session.end_of(start)[:2], (1, ""))
        eventually(lambda: not self.session.owner(), "the end of the panel")

    def test_the_clipboard_outlives_the_program_until_it_is_taken_over(self):
        for name, environment in self.environments():
            with self.subTest(name):
                start = self.session.start("--pick-and-copy", **environment)
                self.click_with_the_magnifier()
                self.assertEqual(self.session.end_of(start), (0, "#000000", ""))
                self.assertEqual(clipboard(), "#000000")
                take_clipboard("something else")
                eventually(lambda: not self.session.owner(), "the end of the panel")
                eventually(lambda: not xdotool("search", "--class", "vantorel-panel"), "its end on the display")

    def test_the_panel_that_holds_the_clipboard_can_be_shown(self):
        self.assertEqual(self.session.run("--color", "#ff8000", "--copy"), (0, "#FF8000", ""))
        self.assertEqual(self.session.run(), (0, "", ""))
        eventually(shown_windows, "the window")
        take_clipboard("something else")
        self.assertEqual(self.session.call("GetColor"), "#ff8000")
        self.assertEqual(len(shown_windows()), 1)

    def test_ending_a_script_ends_its_pick(self):
        start = self.session.start("--pick")
        eventually(magnifier_is_shown, "the magnifier")
        start.kill()
        eventually(lambda: not magnifier_is_shown(), "the end of the magnifier")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0]], verbosity=2)
