#!/usr/bin/env python3
"""Fails every system call on the user's files in every way: nothing may be lost, and the failure is reported.

    failing_calls_test.py LIBRARY PROGRAM DRIVER LIST_CHANGES
"""
import json
import os
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../support"))
from failing_calls import FailingCallsTest  # noqa: E402

LIBRARY, PROGRAM, DRIVER, LIST_CHANGES = sys.argv[1:5]
DATA = ".local/share"
LISTS = DATA + "/Vantorel/Palettes/"
RECORD = DATA + "/Vantorel/Published/Mine.gpl.plist"
GIMP = ".config/GIMP/2.10/palettes"


def palette(name, shade, count=500):
    return f"GIMP Palette\nName: {name}\nColumns: 0\n" + "".join(f"{shade:3} {shade:3} {shade:3}\tcolour {i}\n" for i in range(count))


def driver_requests(*requests):
    return "".join(json.dumps(request) + "\n" for request in requests)


class ListChanges(FailingCallsTest):
    preloaded = LIBRARY

    def changes(self, *words):
        return [LIST_CHANGES, "$HOME/" + DATA, *words]

    def with_lists(self, home):
        home.write(LISTS + "Mine.gpl", palette("Mine", 1))
        home.write(LISTS + "Other.gpl", palette("Other", 2))

    def test_a_list_is_created(self):
        self.check_command(lambda home: os.makedirs(home.at(DATA), 0o700), self.changes("make", "Mine", "7"), also_whole=["Mine 2.gpl"])

    def test_a_list_is_changed(self):
        self.check_command(self.with_lists, self.changes("change", "Mine", "7"), also_whole=["Mine 2.gpl"])

    def test_a_list_is_renamed(self):
        self.check_command(self.with_lists, self.changes("rename", "Mine", "New"), also_whole=["New 2.gpl"])

    def test_a_list_is_removed(self):
        self.check_command(self.with_lists, self.changes("remove", "Mine"))

    def test_a_list_with_comments_is_changed(self):
        def prepare(home):
            home.write(LISTS + "Mine.gpl", palette("Mine", 1) + "# by hand\n")
        self.check_command(prepare, self.changes("change", "Mine", "7"), also_whole=["Mine 2.gpl"])

    def test_settings_are_saved(self):
        def prepare(home):
            home.write(DATA + "/Vantorel/Settings.plist", "{ NColorCubeRings = 5; }")
        self.check_command(prepare, self.changes("settings", "9"), also_whole=["Settings.plist~"])


class Driver(FailingCallsTest):
    preloaded = LIBRARY

    def test_the_first_start_writes_settings_and_lists(self):
        self.check_command(lambda home: os.makedirs(home.at(DATA), 0o700), [DRIVER],
                           driver_requests({"op": "open", "home": "$HOME/" + DATA}), also_whole=[" 2.gpl"])

    def test_a_choice_is_saved_in_the_settings(self):
        def prepare(home):
            os.makedirs(home.at(DATA), 0o700)
            home.run([DRIVER], driver_requests({"op": "open", "home": "$HOME/" + DATA}))
        self.check_command(prepare, [DRIVER],
                           driver_requests({"op": "open", "home": "$HOME/" + DATA},
                                           {"op": "choose", "popUp": "hexColorsListPopUp", "path": ["SVG Keyword"]}),
                           also_whole=["Settings.plist~", " 2.gpl"])


class Program(FailingCallsTest):
    preloaded = LIBRARY

    def prepare(self, home):
        os.makedirs(home.at(GIMP), 0o700)
        home.write("file.gpl", palette("Mine", 7))
        home.write(LISTS + "Mine.gpl", palette("Mine", 1))
        home.write(LISTS + "Other.gpl", palette("Other", 2))
        home.write(GIMP + "/Mine.gpl", palette("Mine", 3))
        home.write("exported.css", "old")

    def test_import(self):
        def prepare(home):
            home.write("file.gpl", palette("Mine", 7))
        self.check_command(prepare, [PROGRAM, "list", "import", "$HOME/file.gpl"], also_whole=["Mine 2.gpl"])

    def test_import_of_an_existing_list(self):
        self.check_command(self.prepare, [PROGRAM, "list", "import", "--yes", "$HOME/file.gpl"], also_whole=["Mine 2.gpl"])

    def test_export_to_a_new_file(self):
        self.check_command(self.prepare, [PROGRAM, "list", "export", "Mine", "--format", "css", "--output", "$HOME/new.css"])

    def test_export_to_an_existing_file(self):
        self.check_command(self.prepare, [PROGRAM, "list", "export", "Mine", "--format", "css", "--output", "$HOME/exported.css"])

    def test_undo(self):
        def prepare(home):
            self.prepare(home)
            home.run([PROGRAM, "list", "publish", "--yes", "Mine"])
        self.check_command(prepare, [PROGRAM, "list", "publish", "--undo", "Mine"], unlike=[RECORD])

    def test_publish(self):
        def take_all_back(home):
            while home.run([PROGRAM, "list", "publish", "--undo", "Mine"]).status == 0:
                pass
            self.assertEqual(home.files()[GIMP + "/Mine.gpl"], self.before[GIMP + "/Mine.gpl"])
            self.assertNotIn(RECORD, home.files())
        self.check_command(self.prepare, [PROGRAM, "list", "publish", "--yes", "Mine"], unlike=[RECORD], at_the_end=take_all_back)


if __name__ == "__main__":
    result = unittest.main(argv=sys.argv[:1] + sys.argv[5:], exit=False).result
    print(f"{FailingCallsTest.calls} calls, {FailingCallsTest.tried} failures tried")
    sys.exit(not result.wasSuccessful())
