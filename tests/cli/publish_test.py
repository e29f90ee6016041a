#!/usr/bin/env python3
"""Tests publishing colour lists to graphics programs, and undoing it.

    publish_test.py PROGRAM
"""
import pty
import subprocess
import unittest

from program import PROGRAM, ProgramTest, os, sys

PLACES = [".config/GIMP/2.10/palettes", ".config/GIMP/2.99/palettes", ".config/GIMP/3.0/palettes", ".config/inkscape/palettes",
          ".local/share/krita/palettes", ".config/colors"]
STRICT = b"GIMP Palette\nName: Mine\nColumns: 0\n  1   2   3\tone\n"


class Publishing(ProgramTest):
    def setUp(self):
        super().setUp()
        self.write_list("Mine", ["1 2 3\tone"])

    def make_places(self, *places):
        for place in places:
            os.makedirs(self.path(place), exist_ok=True)

    def target(self, place):
        return self.path(place, "Mine.gpl")

    def answer(self, text, *arguments):
        """Returns the exit status and the terminal's contents for a user who answers."""
        controller, terminal = pty.openpty()
        process = subprocess.Popen([PROGRAM, *arguments], stdin=terminal, stdout=terminal, stderr=terminal, env=self.environment)
        os.close(terminal)
        os.write(controller, text.encode())
        seen = b""
        while True:
            try:
                chunk = os.read(controller, 4096)
            except OSError:
                break
            if not chunk:
                break
            seen += chunk
        os.close(controller)
        return process.wait(60), seen.decode()

    def test_each_existing_program_folder_gets_a_strict_file(self):
        for i, place in enumerate(PLACES):
            with self.subTest(place=place):
                self.make_places(place)
                printed = self.output_of("list", "publish", "Mine")
                self.assertEqual(self.read(self.target(place)), STRICT)
                self.assertIn(self.target(place), printed)
                self.assertEqual(printed.count("written for "), 1)
                self.assertEqual(printed.count("up to date: "), i)

    def test_no_folder_is_created_for_a_program_without_one(self):
        self.make_places(".config/GIMP/2.10", ".config/inkscape", ".config/inkscape/palettes")
        self.output_of("list", "publish", "Mine")
        self.assertEqual(os.listdir(self.path(".config/GIMP/2.10")), [])

    def test_system_folders_get_no_file(self):
        self.environment["XDG_DATA_DIRS"] = self.path(".local/share/exports")
        self.make_places(".local/share/exports/gimp/2.0/palettes", PLACES[0])
        self.output_of("list", "publish", "Mine")
        self.assertEqual(os.listdir(self.path(".local/share/exports/gimp/2.0/palettes")), [])

    def test_created_files_are_removed_again(self):
        self.make_places(*PLACES)
        before = self.files_at_home()
        self.output_of("list", "publish", "Mine")
        self.assertEqual(self.output_of("list", "publish", "Mine", "--undo").count("removed: "), len(PLACES))
        self.assertEqual(set(self.files_at_home()) - set(before), {".local/share/Vantorel/Published"})
        self.assertIn("has not been published", self.error_of("list", "publish", "--undo", "Mine"))

    def test_a_different_file_is_replaced_only_on_request_and_restored(self):
        self.make_places(*PLACES[:2])
        for old in (b"GIMP Palette\nName: M\xfcne\n0 0 0\told\n", b"", bytes(range(256))):
            with self.subTest(old=old[:20]):
                path = self.write(self.target(PLACES[0]), old)
                message = self.error_of("list", "publish", "Mine")
                self.assertIn('already exists with different contents: use "--yes" to replace it', message)
                self.assertEqual(self.read(path), old)
                # The folder without a file got one nevertheless.
                self.assertEqual(self.read(self.target(PLACES[1])), STRICT)
                self.assertIn("replaced for GIMP", self.output_of("list", "publish", "Mine", "--yes"))
                self.assertEqual(self.read(path), STRICT)
                self.assertEqual(self.output_of("list", "publish", "Mine", "--undo"), f"restored: {path}\n")
                self.assertEqual(self.read(path), old)
                # The publish before the last one.
                self.assertEqual(self.output_of("list", "publish", "Mine", "--undo"), f"removed: {self.target(PLACES[1])}\n")

    def test_at_a_terminal_it_asks(self):
        self.make_places(PLACES[0])
        path = self.write(self.target(PLACES[0]), "old")
        for answer in ("n\n", "\n", "\x04", "nonsense\n"):
            status, seen = self.answer(answer, "list", "publish", "Mine")
            self.assertIn("which has different contents? [y/N]", seen)
            self.assertEqual((status, self.read(path)), (0, b"old"), answer)
        status, seen = self.answer("y\n", "list", "publish", "Mine")
        self.assertEqual((status, self.read(path)), (0, STRICT))
        status, seen = self.answer("", "list", "publish", "--undo", "Mine")
        self.assertEqual((status, self.read(path)), (0, b"old"))

    def test_import_asks_too(self):
        other = self.write(os.path.join(self.root, "o.gpl"), "GIMP Palette\nName: Mine\n9 9 9\tnine\n")
        status, seen = self.answer("n\n", "list", "import", other)
        self.assertEqual((status, self.output_of("list", "Mine")), (2, "#010203\tone\n"))
        status, seen = self.answer("yes\n", "list", "import", other)
        self.assertEqual((status, self.output_of("list", "Mine")), (0, "#090909\tnine\n"))

    def test_undo_keeps_a_file_that_has_changed_since(self):
        self.make_places(*PLACES[:3])
        self.write(self.target(PLACES[2]), "old")
        self.output_of("list", "publish", "--yes", "Mine")
        self.write(self.target(PLACES[0]), STRICT + b"9 9 9\tmy own\n")
        self.write(self.target(PLACES[2]), "changed")
        run = self.run_program("list", "publish", "--undo", "Mine")
        self.assertEqual((run.returncode, run.stdout.decode()), (2, f"removed: {self.target(PLACES[1])}\n"))
        self.assertEqual(run.stderr.decode().count("has changed since it was published"), 2)
        self.assertEqual(self.read(self.target(PLACES[0])), STRICT + b"9 9 9\tmy own\n")
        # With the published contents restored, it can be undone after all.
        self.write(self.target(PLACES[2]), STRICT)
        self.write(self.target(PLACES[0]), STRICT)
        self.output_of("list", "publish", "--undo", "Mine")
        self.assertEqual(self.read(self.target(PLACES[2])), b"old")

    def test_undo_accepts_a_missing_file(self):
        self.make_places(*PLACES[:2])
        self.output_of("list", "publish", "Mine")
        os.remove(self.target(PLACES[0]))
        self.assertIn("already undone", self.output_of("list", "publish", "--undo", "Mine"))

    def test_publishing_of_a_removed_list_can_be_undone(self):
        self.make_places(PLACES[0])
        self.output_of("list", "publish", "Mine")
        os.remove(self.path(".local/share/Vantorel/Palettes/Mine.gpl"))
        self.output_of("list", "publish", "--undo", "Mine")
        self.assertEqual(os.listdir(self.path(PLACES[0])), [])

    def test_folders_and_dangling_links_are_left_alone(self):
        self.make_places(*PLACES[:3])
        os.mkdir(self.target(PLACES[0]))
        os.symlink("/nowhere/x", self.target(PLACES[1]))
        run = self.run_program("list", "publish", "--yes", "Mine")
        self.assertEqual(run.returncode, 2)
        self.assertEqual(run.stderr.decode().count("cannot be replaced"), 2)
        self.assertEqual(self.read(self.target(PLACES[2])), STRICT)

    def test_versions_that_share_a_folder_get_one_file(self):
        self.make_places(PLACES[0])
        os.symlink("2.10", self.path(".config/GIMP/2.8"))
        self.assertEqual(len(self.output_of("list", "publish", "Mine").splitlines()), 1)

    def test_a_folder_without_write_permission_is_reported(self):
        if os.geteuid() == 0:
            self.skipTest("root may write anywhere")
        self.make_places(*PLACES[:2])
        os.chmod(self.path(PLACES[0]), 0o500)
        run = self.run_program("list", "publish", "Mine")
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"cannot be written", run.stderr)
        self.assertEqual(self.output_of("list", "publish", "--undo", "Mine"), f"removed: {self.target(PLACES[1])}\n")

    def test_names_do_not_lead_out_of_the_folder(self):
        self.make_places(PLACES[0])
        self.write_list("../../evil", ["1 2 3\tone"], "evil.gpl")
        self.output_of("list", "publish", "../../evil")
        self.assertEqual(os.listdir(self.path(PLACES[0])), ["%2E.%2F..%2Fevil.gpl"])
        self.output_of("list", "publish", "--undo", "../../evil")
        self.assertEqual(os.listdir(self.path(PLACES[0])), [])

    def test_a_damaged_record_counts_as_missing(self):
        self.make_places(PLACES[0])
        self.output_of("list", "publish", "Mine")
        record = self.path(".local/share/Vantorel/Published/Mine.gpl.plist")
        self.write(record, b"{Publishes = (((")
        self.assertIn("has not been published", self.error_of("list", "publish", "--undo", "Mine"))
        self.assertEqual(self.read(self.target(PLACES[0])), STRICT)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
