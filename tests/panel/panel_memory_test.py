#!/usr/bin/env python3
"""Tests the panel's memory: failing calls, killed processes, several processes at once, and permissions.

    panel_memory_test.py LIBRARY PANEL_MEMORY_CHANGES
"""
import os
import random
import subprocess
import sys
import time
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../support"))
from failing_calls import FailingCallsTest  # noqa: E402

LIBRARY, CHANGES = sys.argv[1:3]
MEMORY = ".config/Vantorel/Panel.plist"
OLDER_MEMORY = ".config/Vantorel/panel.ini"
DAMAGES = 15
KILLS = 40
ROUNDS = 15


def older_memory(shade):
    """The file of an older panel, with what `CHANGES shade` writes."""
    color = f"#ff{shade:02x}{shade:02x}{shade:02x}"
    geometry = f"\\x{shade:x}" * 66
    page = "".join(f"\\x{ord(c):x}" for c in f'page, "{shade}" é')
    return (f"[General]\nbackground={color}\ncolor={color}\ngeometry=@ByteArray({geometry})\n"
            f"onTop={'true' if shade % 2 else 'false'}\npage={page}\nrecent={', '.join([color] * 500)}\n")


class PanelMemory(FailingCallsTest):
    preloaded = LIBRARY

    def test_calls_that_fail(self):
        self.check_command(lambda home: home.run([CHANGES, "1"]), [CHANGES, "200"])

    def test_memory_is_read_as_written(self):
        with self.home as home:
            for shade in range(0, 256, 5):
                home.run([CHANGES, str(shade)])
                written = home.read(MEMORY)
                run = home.run([CHANGES])
                self.assertEqual((run.status, home.read(MEMORY)), (0, written), run.errors)

    def test_what_older_panels_wrote_is_read_until_there_is_newer(self):
        with self.home as home:
            home.run([CHANGES, "7"])
            expected = home.read(MEMORY)
        with self.home as home:
            home.write(OLDER_MEMORY, older_memory(7))
            run = home.run([CHANGES])
            self.assertEqual((run.status, home.read(MEMORY)), (0, expected), run.errors)
            home.write(OLDER_MEMORY, older_memory(9))
            home.run([CHANGES])
            self.assertEqual(home.read(MEMORY), expected)

    def test_a_damaged_file_does_no_harm(self):
        rand = random.Random(5)
        with self.home as home:
            home.run([CHANGES, "1"])
            whole = home.read(MEMORY)
            damaged = [whole[:rand.randrange(len(whole))] for _ in range(DAMAGES)]
            for _ in range(DAMAGES):
                place = rand.randrange(len(whole))
                damaged.append(whole[:place] + rand.randbytes(rand.randrange(1, 9)) + whole[place + 1:])
            for content in damaged + [b"", b"{", b"(a)", b"\xff\xfe", b"(" * 100_000, b" " * 2_000_000]:
                home.write(MEMORY, content)
                run = home.run([CHANGES])
                self.assertIn(run.status, (0, 1), content[-40:])
                self.assertEqual(home.run([CHANGES, "2"]).status, 0)

    def test_a_killed_panel_leaves_it_whole(self):
        rand = random.Random(3)
        with self.home as home:
            home.run([CHANGES, "1"])
            for i in range(KILLS):
                process = subprocess.Popen([CHANGES, str(i), "keep-on"], env=home.environment(), stderr=subprocess.DEVNULL)
                time.sleep(rand.uniform(0.01, 0.05))
                process.kill()
                process.wait()
                self.assertEqual(home.run([CHANGES]).status, 0, "not whole")
                self.assertEqual(home.names(), [".config", ".config/Vantorel", MEMORY])

    def test_several_at_once(self):
        with self.home as home:
            for i in range(ROUNDS):
                writers = [subprocess.Popen([CHANGES, str(4 * i + k)], env=home.environment()) for k in range(4)]
                self.assertEqual([writer.wait(60) for writer in writers], [0] * 4)
                self.assertEqual(home.run([CHANGES]).status, 0, "not whole")

    def test_only_the_user_can_read_it(self):
        for mask in (0o000, 0o022, 0o077):
            with self.home as home:
                home.run([CHANGES, "1"], umask=mask)
                self.assertEqual([home.mode(name) for name in home.names()], [0o700, 0o700, 0o600])
                os.chmod(home.at(MEMORY), 0o640)
                home.run([CHANGES, "2"], umask=mask)
                self.assertEqual(home.mode(MEMORY), 0o640)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
