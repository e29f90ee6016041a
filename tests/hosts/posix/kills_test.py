#!/usr/bin/env python3
"""Kills programs at random moments while they write to a real disk, and runs several writers at once.

    kills_test.py PROGRAM LIST_CHANGES
"""
import os
import random
import re
import signal
import subprocess
import sys
import time
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../support"))
from failing_calls import Home  # noqa: E402

PROGRAM, LIST_CHANGES = sys.argv[1:3]
DATA = ".local/share"
LISTS = DATA + "/Vantorel/Palettes/"
SETTINGS = DATA + "/Vantorel/Settings.plist"
ENTRIES = 1000
KILLS = 500
ROUNDS = 15


def shade_of(palette):
    """Returns the single shade of a complete list; None if the list is truncated or mixed."""
    head, _, rows = palette.decode().partition("\nColumns: 0\n")
    shades = {row.split("\t")[0] for row in rows.splitlines()}
    whole = head.startswith("GIMP Palette\nName: ") and len(rows.splitlines()) == ENTRIES and palette.endswith(b"\n")
    return shades.pop() if whole and len(shades) == 1 else None


def is_whole(name, content):
    if name.endswith("Settings.plist"):
        return bool(re.fullmatch(rb"\{.*NColorCubeRings = \d+;.*\}\n?", content, re.DOTALL))
    return shade_of(content) is not None


class WritingTest(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.addCleanup(self.home.remove)

    def start(self, *command):
        return subprocess.Popen(command, env=self.home.environment(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def look_at_files(self):
        for name, content in self.home.files().items():
            if name != "file.gpl":
                self.assertTrue(is_whole(name, content), f"{name} is not whole")

    def prepare(self, shade=1):
        os.makedirs(self.home.at(LISTS), 0o700)
        row = f"{shade:3} {shade:3} {shade:3}"
        self.home.write("file.gpl", "GIMP Palette\nName: Imported\nColumns: 0\n" +
                        "".join(f"{row}\tcolour {i}\n" for i in range(ENTRIES)))


class Kills(WritingTest):
    hits = 0
    kills = 0

    def kill_again_and_again(self, count, longest, command, tidy_up):
        """Each run continues with the files of the previous one."""
        rand = random.Random(7)
        kills = 0
        runs = 0
        while kills < count:
            runs += 1
            process = self.start(*(word.replace("$NUMBER", str(runs % 256)) for word in command))
            time.sleep(rand.uniform(0, longest))
            process.send_signal(signal.SIGKILL)
            # The program may have finished before.
            kills += process.wait() == -signal.SIGKILL
            left = self.home.new_files()
            Kills.hits += bool(left)
            self.assertLessEqual(len(left), 4, "what is left piles up")
            self.look_at_files()
        Kills.kills += kills
        for command in tidy_up:
            subprocess.run(command, env=self.home.environment(), check=True, stdout=subprocess.DEVNULL)
        self.assertEqual(self.home.new_files(), [])
        self.look_at_files()

    def test_lists_and_settings(self):
        with self.home:
            self.prepare()
            folder = self.home.at(DATA)
            subprocess.run([LIST_CHANGES, folder, "make", "Kept", "3"], check=True)
            self.kill_again_and_again(KILLS * 4 // 5, 0.035, [LIST_CHANGES, folder, "keep-on", "$NUMBER"],
                                      [[LIST_CHANGES, folder, "settings", "7"], [LIST_CHANGES, folder, "make", "New", "7"]])
            self.assertIn(LISTS + "Kept.gpl", self.home.files())

    def test_import(self):
        with self.home:
            self.prepare()
            command = [PROGRAM, "list", "import", "--yes", self.home.at("file.gpl")]
            subprocess.run(command, env=self.home.environment(), check=True, stdout=subprocess.DEVNULL)
            before = self.home.files()[LISTS + "Imported.gpl"]
            self.prepare_other()
            self.kill_again_and_again(KILLS // 5, 0.02, command, [command])
            self.assertNotEqual(self.home.files()[LISTS + "Imported.gpl"], before)

    def prepare_other(self):
        content = self.home.read("file.gpl").replace(b"  1   1   1\t", b"  2   2   2\t")
        self.home.write("file.gpl", content)


class SeveralWriters(WritingTest):
    def test_each_file_is_one_that_was_written(self):
        with self.home:
            self.prepare()
            folder = self.home.at(DATA)
            subprocess.run([LIST_CHANGES, folder, "make", "Shared", "250"], check=True)
            for i in range(ROUNDS):
                shades = [2 * i, 2 * i + 1]
                writers = [self.start(LIST_CHANGES, folder, *words) for shade in shades
                           for words in (("change", "Shared", str(shade)), ("settings", str(4 + shade)))]
                for writer in writers:
                    self.assertIn(writer.wait(60), (0, 1))
                files = self.home.files()
                self.look_at_files()
                self.assertEqual(self.home.new_files(), [])
                rings = int(re.search(rb"NColorCubeRings = (\d+);", files[SETTINGS])[1])
                self.assertIn(rings - 4, shades)
                self.assertIn(int(shade_of(files[LISTS + "Shared.gpl"]).split()[0]), shades)

    def test_no_process_replaces_a_list_that_another_creates(self):
        with self.home:
            os.makedirs(self.home.at(DATA), 0o700)
            for i in range(ROUNDS // 2):
                name = f"round {i} new"
                writers = [self.start(LIST_CHANGES, self.home.at(DATA), "make", name, str(shade)) for shade in (1, 2, 3)]
                self.assertEqual([writer.wait(60) for writer in writers], [0, 0, 0])
                made = [content for path, content in self.home.files().items() if name in path]
                self.assertEqual(sorted(int(shade_of(content).split()[0]) for content in made), [1, 2, 3], f"round {i}")
                self.assertEqual(self.home.new_files(), [])


if __name__ == "__main__":
    result = unittest.main(argv=sys.argv[:1] + sys.argv[3:], exit=False).result
    print(f"{Kills.kills} kills, {Kills.hits} within a write")
    sys.exit(not (result.wasSuccessful() and (Kills.hits > 0 or sys.argv[3:])))
