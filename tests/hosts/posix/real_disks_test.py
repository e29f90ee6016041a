#!/usr/bin/env python3
"""Tests real disks, folders and links: full, read-only, in the way; and the permissions of new files.

    real_disks_test.py PROGRAM DRIVER LIST_CHANGES
"""
import json
import os
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../support"))
from failing_calls import Home  # noqa: E402

PROGRAM, DRIVER, LIST_CHANGES = sys.argv[1:4]
DATA = ".local/share"
LISTS = DATA + "/Vantorel/Palettes/"
SETTINGS = DATA + "/Vantorel/Settings.plist"
GIMP = ".config/GIMP/2.10/palettes"
BUILT_IN = [LISTS + name + ".gpl" for name in ("Browser Safe", "CSS Keyword", "SVG Keyword")]
NOBODY = 65534
FIRST_START = json.dumps({"op": "open", "home": "$HOME/" + DATA}) + "\n"


def palette(shade, count=2000):
    return "GIMP Palette\nName: Mine\nColumns: 0\n" + f"{shade:3} {shade:3} {shade:3}\tx\n" * count


class RealDisksTest(unittest.TestCase):
    def setUp(self):
        self.enter(Home())

    def enter(self, home):
        self.home = home
        self.addCleanup(home.remove)
        home.__enter__()
        self.addCleanup(home.__exit__)

    def change(self, *words, **options):
        return self.home.run([LIST_CHANGES, "$HOME/" + DATA, *words], **options)

    def put_lists(self):
        self.home.write(LISTS + "Mine.gpl", palette(1))
        self.home.write(SETTINGS, "{ NColorCubeRings = 5; }")
        self.home.write("file.gpl", palette(7))

    def refuses(self, run, reason):
        self.assertIn(reason, run.errors)
        self.assertEqual(self.home.new_files(), [])


class FullDisks(RealDisksTest):
    def look_at_full_disk(self, reason, **options):
        before = self.home.files()
        self.refuses(self.change("change", "Mine", "9", **options), reason)
        self.refuses(self.change("settings", "9", **options), reason)
        run = self.home.run([PROGRAM, "list", "import", "--yes", "$HOME/file.gpl"], **options)
        self.refuses(run, "cannot be saved")
        self.assertEqual(run.status, 2)
        run = self.home.run([PROGRAM, "list", "export", "Mine", "--format", "css", "--output", "$HOME/x.css"], **options)
        self.refuses(run, "cannot be written")
        self.assertEqual(run.status, 2)
        self.assertTrue(self.home.files() == before, "something has changed")

    def test_a_full_file_system(self):
        disk = tempfile.mkdtemp(prefix="vantorel-test-")
        self.addCleanup(os.rmdir, disk)
        mounting = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=256k", "none", disk], capture_output=True, check=False)
        if mounting.returncode != 0:
            self.skipTest("a file system can be mounted by root alone")
        self.addCleanup(subprocess.run, ["umount", disk], check=True)
        self.enter(Home(disk))
        self.put_lists()
        filling = self.home.at("filling")
        with open(filling, "wb", buffering=0) as file:
            try:
                while True:
                    file.write(bytes(4096))
            except OSError:
                pass
        self.look_at_full_disk("No space left on device")
        os.remove(filling)
        self.assertEqual(self.change("change", "Mine", "9").status, 0)

    def test_a_limit_on_file_size(self):
        self.put_lists()

        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (500, 500))
        self.look_at_full_disk("File too large", preexec_fn=limit)

    def test_a_full_device(self):
        self.put_lists()
        run = self.home.run([PROGRAM, "list", "export", "Mine", "--format", "css", "--output", "/dev/full"])
        self.assertEqual(run.status, 2)
        self.assertIn("cannot be written", run.errors)


class ThingsInTheWay(RealDisksTest):
    def test_a_file_in_place_of_each_folder(self):
        for place in (DATA, DATA + "/Vantorel", LISTS.rstrip("/")):
            with self.subTest(place=place):
                shutil.rmtree(self.home.at(".local"), ignore_errors=True)
                self.home.write("file.gpl", palette(7))
                self.home.write(place, "mine")
                run = self.home.run([PROGRAM, "list", "import", "$HOME/file.gpl"])
                self.assertEqual(run.status, 2, run.errors)
                run = self.home.run([DRIVER], FIRST_START)
                self.assertEqual((run.status, run.output), (0, '{"ok":true}\n'))
                self.assertIn("cannot be written", run.errors)
                self.assertEqual(self.home.read(place), b"mine")

    def test_a_folder_in_place_of_a_file(self):
        os.makedirs(self.home.at(LISTS + "Mine.gpl"))
        os.makedirs(self.home.at(SETTINGS))
        self.home.write("file.gpl", palette(7))
        self.assertEqual(self.home.run([PROGRAM, "list", "import", "$HOME/file.gpl"]).status, 0)
        self.assertEqual(self.home.read(LISTS + "Mine 2.gpl").count(b"\tx"), 2000)
        self.refuses(self.change("settings", "9"), "Is a directory")

    def test_links(self):
        """A link is kept, and its target is replaced as a whole: people keep settings in a folder shared between
        machines."""
        self.put_lists()
        for name in (SETTINGS, LISTS + "Mine.gpl"):
            kept = self.home.at("kept-" + os.path.basename(name))
            os.rename(self.home.at(name), kept)
            os.symlink(kept, self.home.at(name))
        self.assertEqual(self.change("change", "Mine", "9").status, 0)
        self.change("settings", "9")
        self.assertIn(b"NColorCubeRings = 9;", self.home.read("kept-Settings.plist"))
        self.assertIn(b"  9   9   9\t", self.home.read("kept-Mine.gpl"))
        for name in (SETTINGS, LISTS + "Mine.gpl"):
            self.assertTrue(os.path.islink(self.home.at(name)))

    def test_dangling_and_circular_links(self):
        os.makedirs(self.home.at(LISTS))
        os.symlink("later.plist", self.home.at(SETTINGS))
        os.symlink("Mine.gpl", self.home.at(LISTS + "Mine.gpl"))
        self.change("settings", "9")
        self.assertIn(b"NColorCubeRings = 9;", self.home.read(DATA + "/Vantorel/later.plist"))
        self.home.write("file.gpl", palette(7))
        self.assertEqual(self.home.run([PROGRAM, "list", "import", "$HOME/file.gpl"]).status, 0)
        self.assertEqual(os.readlink(self.home.at(LISTS + "Mine.gpl")), "Mine.gpl")
        self.assertEqual(self.home.read(LISTS + "Mine 2.gpl").count(b"\tx"), 2000)
        os.remove(self.home.at(SETTINGS))
        os.symlink("Settings.plist", self.home.at(SETTINGS))
        self.refuses(self.change("settings", "9"), "symbolic links")

    def test_files_that_come_and_go(self):
        os.makedirs(self.home.at(LISTS))
        stop = threading.Event()

        def come_and_go():
            while not stop.is_set():
                for i in range(20):
                    self.home.write(LISTS + f"{i}.gpl", palette(i, 20))
                for i in range(20):
                    os.remove(self.home.at(LISTS + f"{i}.gpl"))
        thread = threading.Thread(target=come_and_go)
        thread.start()
        try:
            for _ in range(30):
                run = self.home.run([PROGRAM, "lists"])
                self.assertEqual((run.status, run.errors), (0, ""))
                self.assertEqual(self.change("make", "Kept", "7").status, 0)
        finally:
            stop.set()
            thread.join()
        self.assertEqual(sum("Kept" in name for name in self.home.names()), 30)

    def test_long_names(self):
        self.put_lists()
        name = "x" * 250 + ".css"
        self.assertEqual(self.home.run([PROGRAM, "list", "export", "Mine", "--format", "css", "--output", "$HOME/" + name]).status, 0)
        self.assertIn(name, self.home.names())

    def test_unreadable_settings_are_kept(self):
        self.home.write(SETTINGS, "{ NColorCubeRings = 5")
        choice = {"op": "choose", "popUp": "hexColorsListPopUp", "path": ["SVG Keyword"]}
        run = self.home.run([DRIVER], FIRST_START + json.dumps(choice) + "\n")
        self.assertEqual((run.status, run.errors), (0, ""))
        self.assertIn(b"SVG Keyword", self.home.read(SETTINGS))
        self.assertEqual(self.home.read(SETTINGS + "~"), b"{ NColorCubeRings = 5")

    def test_an_unreadable_record_of_publishing_is_kept(self):
        self.put_lists()
        os.makedirs(self.home.at(GIMP))
        record = DATA + "/Vantorel/Published/Mine.gpl.plist"
        self.home.write(record, "{ Publishes = (((")
        self.assertEqual(self.home.run([PROGRAM, "list", "publish", "Mine"]).status, 0)
        self.assertEqual(self.home.read(record + "~"), b"{ Publishes = (((")


class Permissions(RealDisksTest):
    def test_new_files_are_private_to_the_user(self):
        for mask in (0o000, 0o022, 0o077):
            with self.subTest(mask=oct(mask)):
                shutil.rmtree(self.home.at(".local"), ignore_errors=True)
                self.home.run([DRIVER], FIRST_START, umask=mask)
                for name in [*BUILT_IN, SETTINGS]:
                    self.assertEqual(oct(self.home.mode(name)), oct(0o600), name)
                for name in (".local", DATA, DATA + "/Vantorel", LISTS):
                    self.assertEqual(oct(self.home.mode(name)), oct(0o700), name)

    def test_published_files_have_the_usual_permissions(self):
        for mask in (0o000, 0o022, 0o077):
            with self.subTest(mask=oct(mask)):
                shutil.rmtree(self.home.at(".local"), ignore_errors=True)
                shutil.rmtree(self.home.at(".config"), ignore_errors=True)
                self.put_lists()
                os.makedirs(self.home.at(GIMP))
                new = self.home.at(f"{mask}.css")
                self.home.run([PROGRAM, "list", "export", "Mine", "--format", "css", "--output", new], umask=mask)
                self.home.run([PROGRAM, "list", "publish", "Mine"], umask=mask)
                for name in (f"{mask}.css", GIMP + "/Mine.gpl"):
                    self.assertEqual(oct(self.home.mode(name)), oct(0o666 & ~mask), name)
                self.assertEqual(self.home.mode(DATA + "/Vantorel/Published/Mine.gpl.plist"), 0o600)

    def test_replaced_files_keep_their_permissions(self):
        for mode in (0o600, 0o640, 0o664, 0o444):
            self.put_lists()
            self.home.write(SETTINGS, "{ NColorCubeRings = 5; }", mode)
            os.chmod(self.home.at(LISTS + "Mine.gpl"), mode)
            self.home.write("x.css", "", mode)
            self.change("change", "Mine", "9", umask=0)
            self.change("settings", "9", umask=0)
            self.home.run([PROGRAM, "list", "export", "Mine", "--format", "css", "--output", "$HOME/x.css"], umask=0)
            for name in (SETTINGS, LISTS + "Mine.gpl", "x.css"):
                self.assertEqual(oct(self.home.mode(name)), oct(mode), name)

    def test_root_leaves_files_to_their_owner(self):
        if os.geteuid() != 0:
            self.skipTest("this is about root")
        self.put_lists()
        for name in (SETTINGS, LISTS + "Mine.gpl"):
            os.chown(self.home.at(name), NOBODY, NOBODY)
        self.change("change", "Mine", "9")
        self.change("settings", "9")
        for name in (SETTINGS, LISTS + "Mine.gpl"):
            status = os.stat(self.home.at(name))
            self.assertEqual((status.st_uid, status.st_gid), (NOBODY, NOBODY), name)

    def test_a_home_without_write_permission(self):
        self.put_lists()
        user = {}
        programs = (PROGRAM, DRIVER, LIST_CHANGES)
        if os.geteuid() == 0:
            # Permissions do not bind root, so another user runs the programs. They are copied because
            # other users may have no access to the build folder.
            user = {"user": NOBODY, "group": NOBODY, "extra_groups": []}
            os.chmod(self.home.around, 0o755)
            programs = [shutil.copy(each, self.home.around) for each in programs]
            for name in [".", *self.home.names()]:
                os.chown(self.home.at(name), NOBODY, NOBODY)
        program, driver, list_changes = programs
        before = self.home.files()
        for folder, _, _ in os.walk(self.home.path):
            os.chmod(folder, 0o500)
        for words in (["change", "Mine", "9"], ["settings", "9"]):
            self.refuses(self.home.run([list_changes, "$HOME/" + DATA, *words], **user), "Permission denied")
        self.refuses(self.home.run([program, "list", "import", "--yes", "$HOME/file.gpl"], **user), "Permission denied")
        run = self.home.run([driver], FIRST_START, **user)
        self.assertEqual((run.status, run.output), (0, '{"ok":true}\n'))
        self.assertTrue(self.home.files() == before, "something has changed")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[4:])
