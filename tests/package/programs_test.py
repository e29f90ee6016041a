#!/usr/bin/env python3
"""Tests the installed programs in the tree they were installed into.

    programs_test.py TREE SOURCES BUILD
"""
import os
import shutil
import tempfile

from installedtree import SOURCES, TREE, TreeTest, main

VANTOREL = f"{TREE}/bin/vantorel"
PANEL = f"{TREE}/bin/vantorel-panel"
RESOURCES = f"{TREE}/lib/vantorel/pickers/QTXHexColorPicker.resources"


class ProgramsTest(TreeTest):
    def picture(self, *options):
        file = os.path.join(self.scratch, "picture.png")
        run = self.run_tool(PANEL, "--screenshot", file, *options)
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        with open(file, "rb") as opened:
            return opened.read()

    def test_the_command_line_shows_a_colour(self):
        printed = self.passes(VANTOREL, "show", "#ff8000")
        self.assertTrue(printed.startswith("hex: #FF8000\nrgb: rgb(255, 128, 0)\n"), printed)

    def test_the_panel_finds_its_installed_page(self):
        pictures = {self.picture("--page", page) for page in ("hex", "mix", "scales", "palettes")}
        self.assertEqual(len(pictures), 4, "each page looks its own way")
        for picture in pictures:
            self.assertTrue(picture.startswith(b"\x89PNG"))

    def test_a_sandbox_without_the_administrator_loads_the_installed_page(self):
        """As in a Flatpak installed for the whole system."""
        if os.geteuid() != 0:
            self.skipTest("it takes root to own what another user runs")
        visitor = 54321
        in_sandbox = ["setpriv", f"--reuid={visitor}", f"--regid={visitor}", "--clear-groups",
                      "unshare", "--user", "--map-current-user"]
        os.chown(self.scratch, visitor, visitor)
        if self.run_tool(*in_sandbox, "true").returncode != 0:
            self.skipTest("user namespaces are not allowed here")
        tree = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, tree)
        os.chmod(tree, 0o755)
        shutil.copytree(TREE, tree, symlinks=True, dirs_exist_ok=True)
        run = self.run_tool(*in_sandbox, f"{tree}/bin/vantorel-panel", "--page", "hex", "--screenshot", "picture.png")
        self.assertEqual((run.returncode, run.stderr), (0, ""))

    def test_an_unknown_page_is_rejected(self):
        run = self.run_tool(PANEL, "--screenshot", "picture.png", "--page", "tints")
        self.assertEqual(run.returncode, 2)
        self.assertIn('there is no page "tints": use one of: hex, mix, scales, palettes', run.stderr)

    def test_the_help_button_finds_the_manual_and_its_pictures_in_a_tree_that_was_moved(self):
        pages = [name for name in os.listdir(f"{SOURCES}/docs/manual") if name.endswith(".htm")]
        self.assertIn("supportManual_de.htm", pages)
        for name in (*pages, "pictures", "pictures/de/settings.png"):
            self.assertTrue(os.path.samefile(f"{RESOURCES}/{name}", f"{TREE}/share/doc/vantorel/{name}"))
        self.assertIn("settings.png", os.listdir(f"{RESOURCES}/pictures"))

    def test_the_programs_know_no_other_folder_for_their_libraries(self):
        self.need("readelf")
        pickers = [f"{TREE}/lib/vantorel/pickers/{name}.so" for name in ("QTXHexColorPicker", "VantorelMix", "VantorelScales")]
        for file in (VANTOREL, PANEL, *pickers):
            self.assertNotRegex(self.passes("readelf", "-d", file), "RPATH|RUNPATH")


if __name__ == "__main__":
    main()
