#!/usr/bin/env python3
"""Tests output to a terminal: swatches, progress, and escape sequences that must not reach it.

    terminal_test.py PROGRAM
"""
import pty
import subprocess
import time
import unittest

from program import PROGRAM, ProgramTest, os, sys

SWATCH = "\x1b[48;2;255;128;0m      \x1b[0m "


class Terminal(ProgramTest):
    def at_terminal(self, *arguments, **variables):
        """Returns the exit status and the output when standard output is a terminal."""
        controller, terminal = pty.openpty()
        process = subprocess.Popen([PROGRAM, *arguments], stdin=subprocess.DEVNULL, stdout=terminal, stderr=terminal,
                                   env={**self.environment, **variables})
        os.close(terminal)
        seen = b""
        try:
            while chunk := os.read(controller, 65536):
                seen += chunk
        except OSError:
            pass
        os.close(controller)
        return process.wait(60), seen.decode().replace("\r\n", "\n")

    def test_swatches_need_a_terminal_that_shows_them(self):
        for depth in ("truecolor", "24bit"):
            for arguments in (["show", "#ff8000"], ["show", "#ff8000", "#fff"]):
                status, seen = self.at_terminal(*arguments, COLORTERM=depth, TERM="xterm")
                self.assertEqual((status, seen[:len(SWATCH) + 5]), (0, SWATCH + "hex: "))
        for variables in ({}, {"COLORTERM": "yes"}, {"COLORTERM": "truecolor", "NO_COLOR": "1"},
                          {"COLORTERM": "truecolor", "TERM": "dumb"}):
            self.assertNotIn("\x1b", self.at_terminal("show", "#ff8000", **variables)[1], variables)
        # Set but empty counts as not set.
        self.assertIn("\x1b", self.at_terminal("show", "red", COLORTERM="truecolor", NO_COLOR="")[1])
        for color, number in (("#ff8700", 208), ("#ff8000", 208), ("black", 16), ("white", 231), ("#808080", 244), ("#5f87af", 67)):
            seen = self.at_terminal("convert", "--to", "hex", color, TERM="screen-256color", COLORTERM="")[1]
            self.assertIn(f"\x1b[48;5;{number}m      \x1b[0m #", seen, color)
        self.assertNotIn("\x1b", self.at_terminal("show", "red", TERM="xterm-256color", NO_COLOR="1")[1])
        self.assertIn("\x1b[48;2;", self.at_terminal("show", "red", TERM="xterm-256color", COLORTERM="24bit")[1])
        for command in (["convert", "--to", "rgb"], ["lighten", "0"], ["gradient", "red"]):
            self.assertIn("\x1b[48;2;255;128;0m      \x1b[0m ", self.at_terminal(*command, "#ff8000", "#ff8000", COLORTERM="truecolor")[1])
        self.assertIn("\x1b[48;2;255;0;0m", self.at_terminal("list", "CSS Keyword", COLORTERM="truecolor")[1])

    def test_a_pipe_gets_plain_text(self):
        self.environment["COLORTERM"] = "truecolor"
        self.assertNotIn("\x1b", self.output_of("show", "#ff8000"))

    def test_a_translucent_swatch_is_shown_over_white(self):
        self.assertIn("\x1b[48;2;255;128;128m", self.at_terminal("show", "rgb(255 0 0 / 50%)", COLORTERM="truecolor")[1])

    def test_bytes_are_not_sent_to_a_terminal(self):
        for arguments in (["list", "export", "CSS Keyword", "--format", "ase"], ["palette", "CSS Keyword", "--png", "-"]):
            status, seen = self.at_terminal(*arguments)
            self.assertEqual(status, 2)
            self.assertTrue(seen.startswith("vantorel: "), seen)

    def progress_of(self, stdout):
        controller, terminal = pty.openpty()
        process = subprocess.Popen([PROGRAM, "show"], stdin=subprocess.PIPE, stdout=stdout(terminal), stderr=terminal,
                                   env=self.environment)
        os.close(terminal)
        for _ in range(4):
            process.stdin.write(b"#ff8000\n" * 10)
            process.stdin.flush()
            time.sleep(0.15)
        process.stdin.close()
        seen = b""
        try:
            while chunk := os.read(controller, 65536):
                seen += chunk
        except OSError:
            pass
        os.close(controller)
        self.assertEqual(process.wait(60), 0)
        return seen

    def test_progress_is_shown_on_a_terminal_without_other_output(self):
        seen = self.progress_of(lambda terminal: subprocess.DEVNULL)
        self.assertRegex(seen, rb"\r\d+ lines")
        self.assertTrue(seen.endswith(b"\r\x1b[K"))
        self.assertNotIn(b"lines", self.progress_of(lambda terminal: terminal))

    def test_progress_is_not_written_to_a_file(self):
        self.assertEqual(self.run_program("show", stdin=b"#ff8000\n" * 100000).stderr, b"")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
