"""Tests the panel under Wayland: its window, the clipboard, further starts, drags.

Usage: wayland.py PANEL QT_PROGRAM SCRATCH, under a compositor of sway's kind with a screen of 1000 x 800.
"""

import json
import os
import re
import subprocess
import sys
import unittest

from bussession import PATIENCE, RED, BusSession, eventually
from waylandproxy import WaylandProxy
from waylandseat import WaylandSeat

PANEL, QT_PROGRAM, SCRATCH = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2]), sys.argv[3]
COMPOSITOR = os.environ["WAYLAND_DISPLAY"]
DATA_CONTROL = {"ext_data_control_manager_v1", "zwlr_data_control_manager_v1"}
TEXT_FIELD_OF_TARGET = (150, 24)
WIDTH, HEIGHT = 1000, 800
# Positions in the panel's window, whose page is 260 x 340.
CELL_A0_OF_RED = (36, 322)
READ_OUT = (12, 224, 60, 16)  # of the digits below the mouse: place and size
NAMES_POP_UP = (178, 508)
BETWEEN_COLUMNS = (52, 348)


def sway(*arguments):
    run = subprocess.run(["swaymsg", "--raw", *arguments], capture_output=True, text=True, check=True)
    return json.loads(run.stdout)


def windows():
    def below(node):
        if node.get("pid"):
            yield node
        for child in node["nodes"] + node["floating_nodes"]:
            yield from below(child)

    return list(below(sway("--type", "get_tree")))


def window_called(title):
    return next((each for each in windows() if each["name"] == title), None)


def picture(place=(0, 0), size=None):
    """The bytes of the pixels of the screen, or of a part of it."""
    part = ["-g", f"{place[0]},{place[1]} {size[0]}x{size[1]}"] if size else []
    return subprocess.run(["grim", "-t", "ppm", *part, "-"], capture_output=True, check=True).stdout


def still_picture():
    """The picture when it does not change any more."""
    pictures = [picture()]

    def is_still():
        pictures.append(picture())
        return len(pictures) > 2 and pictures[-1] == pictures[-2] == pictures[-3]

    eventually(is_still, "a picture that stays")
    return pictures[-1]


def contents(path):
    with open(path, encoding="utf-8", errors="replace") as file:
        return file.read()


def clipboard(kind="text/plain;charset=utf-8"):
    run = subprocess.run(["wl-paste", "--no-newline", "--type", kind], capture_output=True, check=False,
                         timeout=PATIENCE)
    return run.stdout


def take_clipboard(text):
    subprocess.run(["wl-copy", text], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


class WaylandSession(BusSession):
    def shown_windows(self):
        return windows()


class WaylandTest(unittest.TestCase):
    def setUp(self):
        self.seat = WaylandSeat(COMPOSITOR, WIDTH, HEIGHT)
        self.addCleanup(self.seat.close)
        self.session = WaylandSession(PANEL, SCRATCH)
        self.addCleanup(self.session.close)
        take_clipboard("before")

    def open_panel(self, color=RED, **environment):
        self.seat.move(0, 0)
        self.panel = self.session.start_panel("--size", "260x340", "--color", color, **environment)
        self.expect_focus("Vantorel")
        still_picture()  # the compositor has placed the window
        self.window = window_called("Vantorel")
        self.expect_mouse()

    def expect_mouse(self):
        """Until the program has answered the compositor, sway finds no window below the mouse, and clicks are lost."""
        read_out = self.at(READ_OUT[:2])
        without_mouse = picture(read_out, READ_OUT[2:])
        self.seat.move(*self.at(CELL_A0_OF_RED))
        eventually(lambda: picture(read_out, READ_OUT[2:]) != without_mouse, "the digits below the mouse")

    def expect_focus(self, title):
        eventually(lambda: window_called(title) and window_called(title)["focused"], f"the focus of {title}")

    def run_with_portal(self, *options, **environment):
        """Like `run`. The portal answers from this process, so waiting must not block it."""
        process = self.session.start(*options, **environment)
        eventually(lambda: process.poll() is not None, "the end of the program")
        return self.session.end_of(process)

    def open_gtk_program(self):
        os.makedirs(os.path.join(self.session.folder, "gtk-3.0"))
        with open(os.path.join(self.session.folder, "gtk-3.0/settings.ini"), "w", encoding="ascii") as settings:
            settings.write("[Settings]\ngtk-cursor-blink=false\n")
        started = self.start_program("Target", "yad", "--title=Target", "--entry")
        self.expect_focus("Target")
        return started

    def expect_color(self, color):
        eventually(lambda: self.session.call("GetColor") == color, f"the colour {color}")

    def at(self, place, window=None):
        """A position in a window, on the screen."""
        rect = (window or self.window)["rect"]
        return rect["x"] + place[0], rect["y"] + place[1]

    def start_program(self, title, *command):
        """Returns the program and the file that it writes to."""
        output = os.path.join(self.session.folder, title)
        with open(output, "w", encoding="utf-8") as file:
            program = subprocess.Popen(command, env=self.session.environment, stdin=subprocess.DEVNULL,
                                       stdout=file, stderr=subprocess.DEVNULL)

        def end():
            program.kill()
            program.wait()

        self.addCleanup(end)
        eventually(lambda: window_called(title), f"the window of {command[0]}")
        return program, output


class WindowTest(WaylandTest):
    def test_mouse_and_keyboard_work(self):
        self.open_panel("#000000")
        self.seat.click(*self.at(CELL_A0_OF_RED))
        self.expect_color("#a00000")
        self.seat.key("ctrl+q")
        self.assertEqual(self.panel.wait(PATIENCE), 0)

    def test_a_pop_up_opens_and_an_item_is_chosen(self):
        self.open_panel("#123456")
        self.seat.move(*self.at(NAMES_POP_UP))
        closed = still_picture()
        self.seat.press()
        self.seat.release()
        eventually(lambda: picture() != closed, "the list")
        self.seat.key("Down")
        self.seat.key("Return")
        self.expect_color("#800000")

    def test_staying_on_top_is_not_offered(self):
        self.open_panel()
        self.seat.key("ctrl+t")
        self.seat.key("ctrl+q")
        self.panel.wait(PATIENCE)
        memory = contents(os.path.join(self.session.folder, "Vantorel/Panel.plist"))
        self.assertIn("StaysOnTop = NO", memory)

    def test_it_opens_at_a_fractional_scale(self):
        output = sway("--type", "get_outputs")[0]["name"]
        sway("output", output, "scale", "1.25")
        self.addCleanup(sway, "output", output, "scale", "1")
        self.seat = WaylandSeat(COMPOSITOR, WIDTH * 4 // 5, HEIGHT * 4 // 5)
        self.addCleanup(self.seat.close)
        self.open_panel("#000000")
        self.assertEqual(self.window["rect"]["width"], 264)
        self.seat.click(*self.at(CELL_A0_OF_RED))
        self.expect_color("#a00000")


class ClipboardTest(WaylandTest):
    def test_the_shortcuts_copy_and_paste(self):
        self.open_panel("#ff8000")
        self.seat.key("ctrl+c")
        eventually(lambda: clipboard() == b"#FF8000", "the copied text")
        take_clipboard("hsl(210 100% 50%)")
        self.seat.key("ctrl+v")
        self.expect_color("#0080ff")

    def test_a_gtk_program_pastes_what_was_copied(self):
        self.assertEqual(self.session.run("--color", "#ff8000", "--copy"), (0, "#FF8000", ""))
        program, output = self.open_gtk_program()
        empty = still_picture()
        self.seat.key("ctrl+v")
        eventually(lambda: picture() != empty, "the text in the field")
        self.seat.key("Return")
        program.wait(PATIENCE)
        self.assertEqual(contents(output), "#FF8000\n")


class CopyWithoutAWindowTest(WaylandTest):
    """The compositor ignores a selection of a program that has had no input."""

    def test_a_start_without_a_running_panel_copies(self):
        self.assertEqual(self.session.run("--color", "#ff8000", "--copy"), (0, "#FF8000", ""))
        self.assertEqual(clipboard(), b"#FF8000")
        self.assertEqual(clipboard("application/x-color"), b"\xff\xff\x80\x80\0\0\xff\xff")
        self.assertTrue(self.session.owner(), "the program keeps the text")
        take_clipboard("something else")
        eventually(lambda: not self.session.owner(), "its end")

    def test_a_running_panel_copies_while_another_window_has_the_focus(self):
        self.open_panel("#ff8000")
        self.open_gtk_program()
        self.assertEqual(self.session.run("--copy"), (0, "#FF8000", ""))
        self.assertEqual(clipboard(), b"#FF8000")
        self.assertTrue(window_called("Target")["focused"])

    def test_a_panel_pastes_what_it_has_copied_for_another(self):
        self.open_panel("#ff8000")
        self.session.run("--copy")
        self.session.call("SetColor", "s", "blue")
        self.seat.key("ctrl+v")
        self.expect_color("#ff8000")

    def test_a_picked_colour_is_copied(self):
        self.session.offer_portal(picked=(1.0, 0.0, 0.0))
        self.assertEqual(self.run_with_portal("--pick-and-copy"), (0, RED, ""))
        self.assertEqual(clipboard(), b"#FF0000")

    def test_many_copies_in_a_row_are_answered(self):
        self.open_panel("#ff8000")
        answers = [self.session.begin("Copy", "s", "") for _ in range(20)]
        eventually(lambda: all(answers), "all answers")
        self.assertEqual({each[0] for each in answers}, {"#FF8000"})
        self.assertEqual(clipboard(), b"#FF8000")


class CopyByFocusTest(WaylandTest):
    """Compositors without data control, such as that of GNOME."""

    def hide(self, *interfaces):
        path = os.path.join(self.session.folder, "compositor")
        WaylandProxy(path, COMPOSITOR, {*DATA_CONTROL, *interfaces})
        return {"WAYLAND_DISPLAY": path}

    def test_a_start_without_a_running_panel_copies(self):
        self.open_gtk_program()
        self.assertEqual(self.session.run("--color", "#ff8000", "--copy", **self.hide()), (0, "#FF8000", ""))
        self.assertEqual(clipboard(), b"#FF8000")
        self.expect_focus("Target")
        self.assertEqual(len(windows()), 1)

    def test_what_cannot_be_copied_is_reported_after_the_picked_colour(self):
        self.session.offer_portal(picked=(1.0, 0.0, 0.0))
        status, output, errors = self.run_with_portal("--pick-and-copy", **self.hide("wl_data_device_manager"))
        self.assertEqual((status, output), (3, RED))
        self.assertRegex(errors, "did not let the panel copy")
        self.assertEqual(clipboard(), b"before")
        eventually(lambda: not self.session.owner(), "the panel's end")

    def test_a_running_panel_reports_it_in_the_same_way(self):
        self.session.offer_portal(picked=(1.0, 0.0, 0.0))
        self.open_panel(**self.hide("wl_data_device_manager"))
        status, output, errors = self.run_with_portal("--pick-and-copy")
        self.assertEqual((status, output), (3, RED))
        self.assertRegex(errors, "did not let the panel copy")


class SecondStartTest(WaylandTest):
    def test_it_passes_its_options_on(self):
        self.open_panel()
        self.assertEqual(self.session.run("--color", "#00ff00"), (0, "", ""))
        self.expect_color("#00ff00")
        self.assertEqual(len(windows()), 1)

    def test_without_a_token_the_running_panel_asks_for_attention(self):
        log = os.path.join(self.session.folder, "protocol.log")
        with open(log, "w", encoding="utf-8") as file:
            self.session.errors = file
            self.open_panel(WAYLAND_DEBUG="client")
        self.session.errors = subprocess.PIPE
        self.open_gtk_program()
        self.assertEqual(self.session.run()[0], 0)

        # Newer versions of the library write # instead of @.
        request = re.compile(r'xdg_activation_v1[@#]\d+\.activate\("[^"]+"')
        eventually(lambda: request.search(contents(log)), "the request for attention")


class DragTest(WaylandTest):
    def test_text_reaches_a_qt_program(self):
        self.open_panel("#ff8000")
        sway('[title="^Vantorel$"]', "move", "position", "20", "20")
        _, output = self.start_program("Qt target", QT_PROGRAM)
        sway('[title="^Qt target$"]', "move", "position", "400", "20")
        self.window, target = window_called("Vantorel"), window_called("Qt target")
        still_picture()

        def arrives():
            return "text #FF8000\n" in contents(output)

        # Neither program shows from outside when it is ready for the next movement, and both may be slow.
        for pause in (0.02, 0.1, 0.3):
            self.seat.drag(self.at(BETWEEN_COLUMNS), self.at(TEXT_FIELD_OF_TARGET, target), pause)
            try:
                return eventually(arrives, "the dropped text", PATIENCE / 4)
            except AssertionError:
                continue
        self.fail("the text was not dropped")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[4:]], verbosity=2)
