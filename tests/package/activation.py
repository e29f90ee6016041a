"""Tests a panel that the bus starts for a call: what it shows, and how long it runs.

Usage: activation.py PANEL SCRATCH, on a separate X server, with XDG_DATA_DIRS leading to the
panel's service file.
"""

import os
import sys
import unittest

from gi.repository import Gio, GLib

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../panel"))
from bussession import (INTERFACE, NAME, PATH, PATIENCE, BusSession, close_window, eventually,  # noqa: E402
                        shown_windows, xdotool)

PANEL, SCRATCH = os.path.abspath(sys.argv[1]), sys.argv[2]
COLOR = "#0080ff"


class ActivationTest(unittest.TestCase):
    def setUp(self):
        self.session = BusSession(PANEL, SCRATCH)
        self.addCleanup(self.session.close)

    def call(self, method, signature="", *values):
        """Calls as any program does, so that the bus may start the panel."""
        reply = self.session.client.call_sync(
            NAME, PATH, INTERFACE, method, GLib.Variant(f"({signature})", values), None,
            Gio.DBusCallFlags.NONE, PATIENCE * 1000, None)
        return self.session.value_of(reply)

    def process(self):
        return self.session.process_of(NAME)

    def wait_for_its_end(self):
        eventually(lambda: self.session.owner() is None, "the end of the panel")

    def test_a_call_starts_the_installed_panel_without_a_window(self):
        self.assertIsNone(self.session.owner())
        self.assertRegex(self.call("GetColor"), "^#[0-9a-f]{6}$")
        self.assertTrue(os.path.samefile(f"/proc/{self.process()}/exe", PANEL))
        self.assertEqual(shown_windows(), [])

    def test_show_starts_it_with_its_window_and_closing_that_ends_it(self):
        self.call("Show")
        eventually(shown_windows, "the window")
        close_window()
        self.wait_for_its_end()

    def test_calls_in_a_row_reach_the_same_panel(self):
        self.call("SetColor", "s", COLOR)
        first = self.process()
        self.assertEqual(self.call("GetColor"), COLOR)
        self.assertEqual(self.process(), first)

    def test_it_ends_without_further_calls_and_the_next_one_has_its_colour(self):
        self.call("SetColor", "s", COLOR)
        first = self.process()
        self.wait_for_its_end()
        self.assertEqual(self.call("GetColor"), COLOR)
        self.assertNotEqual(self.process(), first)

    def test_it_stays_while_its_window_is_visible(self):
        self.call("GetColor")
        self.call("Show")
        first = self.process()
        eventually(shown_windows, "the window")
        # Longer than the panel waits for another call.
        with self.assertRaises(AssertionError):
            eventually(lambda: self.session.owner() is None, "no end", 13)
        self.assertEqual(self.process(), first)

    def test_a_pick_needs_no_window_of_the_panel(self):
        answers = []

        def take(source, result):
            try:
                answers.append(self.session.value_of(source.call_finish(result)))
            except GLib.Error as error:
                answers.append(Gio.DBusError.get_remote_error(error))

        self.session.client.call(NAME, PATH, INTERFACE, "Pick", GLib.Variant("(b)", (False,)), None,
                                 Gio.DBusCallFlags.NONE, PATIENCE * 1000, None, take)
        eventually(lambda: xdotool("search", "--onlyvisible", "--class", "vantorel-panel"), "the magnifier")
        self.assertEqual(shown_windows(), [])
        xdotool("key", "Escape")
        eventually(lambda: answers, "an answer")
        self.assertEqual(answers, [INTERFACE + ".Error.Cancelled"])

    def test_a_start_by_hand_is_the_panel_itself(self):
        process = self.session.start_panel("--color", COLOR)
        eventually(shown_windows, "the window")
        self.assertEqual(self.call("GetColor"), COLOR)
        self.assertEqual(self.process(), process.pid)

    def test_a_second_start_for_the_bus_leaves_the_panel_alone(self):
        process = self.session.start_panel("--color", COLOR)
        self.assertEqual(self.session.run("--service"), (0, "", ""))
        self.assertEqual(self.call("GetColor"), COLOR)
        self.assertEqual(self.process(), process.pid)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
