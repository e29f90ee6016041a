#!/usr/bin/env python3
"""Tests the installed files with the programs of the desktop and the shells.

    files_test.py TREE SOURCES BUILD
"""
import configparser
import os
import re
import struct
import xml.etree.ElementTree as ElementTree

from installedtree import SOURCES, TREE, TreeTest, main, text_of

ID = "org.vantorel.ColorPanel"
DESKTOP = f"{TREE}/share/applications/{ID}.desktop"
METAINFO = f"{TREE}/share/metainfo/{ID}.metainfo.xml"
ICONS = f"{TREE}/share/icons/hicolor"
TRANSLATIONS = ["de", "es", "fr"]
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"


def ini(path):
    parser = configparser.RawConfigParser(delimiters="=")
    parser.optionxform = str
    parser.read(path, encoding="utf-8")
    return parser


class DesktopTest(TreeTest):
    def test_the_desktop_file_is_valid(self):
        self.assertEqual(self.passes("desktop-file-validate", DESKTOP), "")

    def test_the_metainfo_is_valid(self):
        self.passes("appstreamcli", "validate", "--no-net", METAINFO)

    def test_each_text_of_the_desktop_file_is_translated(self):
        file = ini(DESKTOP)
        for section in file.sections():
            for key in ("Name", "GenericName", "Comment", "Keywords"):
                if file.has_option(section, key):
                    for language in TRANSLATIONS:
                        self.assertTrue(file.has_option(section, f"{key}[{language}]") or file[section][key] == "Vantorel",
                                        (section, key, language))

    def test_each_text_of_the_metainfo_is_translated(self):
        root = ElementTree.parse(METAINFO).getroot()
        for tag in ("summary", "p", "li", "caption"):
            languages = [each.get(LANGUAGE) for each in root.iter(tag)]
            self.assertEqual(languages, [None, *TRANSLATIONS] * (len(languages) // (1 + len(TRANSLATIONS))), tag)

    def test_the_metainfo_chooses_no_licence_for_the_program(self):
        self.assertIsNone(ElementTree.parse(METAINFO).getroot().find("project_license"))

    def test_the_metainfo_names_the_developer_for_each_version_of_appstream(self):
        root = ElementTree.parse(METAINFO).getroot()
        self.assertEqual(root.findtext("developer/name"), root.findtext("developer_name"))

    def test_the_screenshots_are_pictures_of_ours_below_the_homepage(self):
        root = ElementTree.parse(METAINFO).getroot()
        homepage = root.findtext("url[@type='homepage']")
        images = list(root.iter("image"))
        self.assertGreaterEqual(len(images), 3)
        self.assertEqual([each.get("type") for each in root.iter("screenshot")].index("default"), 0)
        for image in images:
            self.assertTrue(image.text.startswith(homepage + "images/"), image.text)
            with open(f"{SOURCES}/docs/images/{os.path.basename(image.text)}", "rb") as picture:
                # A PNG's width and height follow its signature and the header's length and name.
                size = struct.unpack(">II", picture.read(24)[16:])
            self.assertEqual((int(image.get("width")), int(image.get("height"))), size, image.text)

    def test_the_desktop_file_starts_an_installed_program_with_valid_options(self):
        file = ini(DESKTOP)
        actions = file["Desktop Entry"]["Actions"].rstrip(";").split(";")
        self.assertEqual({"Desktop Entry"} | {"Desktop Action " + name for name in actions}, set(file.sections()))
        for section in file.sections():
            program, *options = file[section]["Exec"].split()
            path = os.path.join(TREE, "bin", program)
            self.assertTrue(os.access(path, os.X_OK), path)
            offered = re.findall(r"^  (--[a-z-]+)", self.passes(path, "--help"), re.M)
            self.assertLessEqual(set(options), set(offered))

    def test_the_icons_are_in_the_folders_of_their_sizes(self):
        self.assertEqual(ini(DESKTOP)["Desktop Entry"]["Icon"], ID)
        for path, size in [(f"16x16/apps/{ID}.svg", "16"), (f"scalable/apps/{ID}.svg", "128"), (f"symbolic/apps/{ID}-symbolic.svg", "16")]:
            root = ElementTree.parse(f"{ICONS}/{path}").getroot()
            self.assertEqual((root.get("width"), root.get("height")), (size, size), path)

    def test_the_symbolic_icon_has_only_fills_which_desktops_recolour(self):
        for each in ElementTree.parse(f"{ICONS}/symbolic/apps/{ID}-symbolic.svg").getroot().iter():
            self.assertIsNone(each.get("stroke"))

    def test_the_bus_finds_the_panel(self):
        service = ini(f"{TREE}/share/dbus-1/services/{ID}.service")["D-BUS Service"]
        program, option = service["Exec"].split()
        self.assertEqual((service["Name"], option), (ID, "--service"))
        self.assertTrue(os.path.samefile(program, f"{TREE}/bin/vantorel-panel"))

    def test_the_interface_on_the_bus_is_described(self):
        root = ElementTree.parse(f"{TREE}/share/dbus-1/interfaces/{ID}1.xml").getroot()
        self.assertEqual(root.find("interface").get("name"), ID + "1")


class VersionTest(TreeTest):
    def test_every_file_has_the_same_version(self):
        version = re.search(r"^project\(Vantorel VERSION ([0-9.]+)", text_of(f"{SOURCES}/CMakeLists.txt"), re.M).group(1)
        releases = ElementTree.parse(METAINFO).getroot().iter("release")
        self.assertEqual(next(releases).get("version"), version)
        self.assertEqual(self.passes(f"{TREE}/bin/vantorel-panel", "--version"), f"vantorel-panel {version}\n")
        changelog = text_of(f"{SOURCES}/debian/changelog")
        self.assertEqual(re.match(r"vantorel \(([^)]+)\)", changelog).group(1), version)


class SharedDataTest(TreeTest):
    def test_the_list_of_css_color_4_is_offered_by_its_file(self):
        path = f"{TREE}/share/vantorel/palettes/CSS Color 4.gpl"
        lines = text_of(path).splitlines()
        self.assertEqual(lines[:2], ["GIMP Palette", "Name: CSS Color 4"])
        self.assertEqual(len([line for line in lines if re.match(r" *\d+ +\d+ +\d+\t[a-z]+$", line)]), 148)

    def test_lists_of_web_designers_are_offered(self):
        names = self.passes(f"{TREE}/bin/vantorel", "lists", "--names").splitlines()
        self.assertLessEqual({"Material", "Tailwind 3", "Tailwind 4"}, set(names))
        self.assertEqual(self.passes(f"{TREE}/bin/vantorel", "name", "--list", "Tailwind 3", "#3b82f6"), "blue-500\n")

    def test_the_snippets_of_the_program_are_found(self):
        self.assertIn("\nSwiftUI\n", self.passes(f"{TREE}/bin/vantorel", "snippets", "--names"))

    def test_the_command_line_speaks_the_users_language(self):
        for language, usage in (("de", "Aufruf"), ("es", "Uso"), ("fr", "Utilisation")):
            for program in ("vantorel", "vantorel-panel"):
                run = self.run_tool("env", "LC_ALL=" + language, f"{TREE}/bin/{program}", "--help")
                self.assertTrue(run.stdout.startswith(f"{usage} : {program}" if language == "fr" else f"{usage}: {program}"),
                                run.stdout[:80])


class ManualPageTest(TreeTest):
    def test_mandoc_has_no_warnings(self):
        self.need("mandoc")
        for name in ("vantorel", "vantorel-panel"):
            for folder in ("", *(language + "/" for language in TRANSLATIONS)):
                run = self.run_tool("mandoc", "-T", "lint", "-W", "warning", f"{TREE}/share/man/{folder}man1/{name}.1")
                # The pages have no date, so that builds are reproducible.
                self.assertEqual([line for line in run.stdout.splitlines() if "missing date" not in line], [], folder + name)

    def test_the_pages_of_a_language_are_in_its_folder(self):
        # man needs an installed locale to choose the folder itself.
        for name in ("vantorel", "vantorel-panel"):
            english = text_of(f"{TREE}/share/man/man1/{name}.1")
            self.assertIn("\n.SH OPTIONS\n.TP\n.B \\-h, \\-\\-help\nShow", english)
            pages = [text_of(f"{TREE}/share/man/{language}/man1/{name}.1") for language in TRANSLATIONS]
            self.assertEqual(len({english, *pages}), 1 + len(TRANSLATIONS))

    def test_the_completions_for_everyone_are_english(self):
        for path in ("zsh/vendor-completions/_vantorel", "fish/vendor_completions.d/vantorel.fish"):
            self.assertIn("Draw the colour wheel.", text_of(f"{TREE}/share/{path}"))

    def test_the_panels_page_explains_every_option_as_its_help_does(self):
        help_text = self.passes(f"{TREE}/bin/vantorel-panel", "--help")
        self.need("mandoc")
        page = self.passes("mandoc", "-T", "ascii", "-O", "width=200", f"{TREE}/share/man/man1/vantorel-panel.1")
        words = re.sub(r".\x08", "", page).split()
        options = re.findall(r"^  (--[a-z-]+)(?: \w+)?(?: {2,}|\n +)(\S.*(?:\n {6,}.*)*)", help_text, re.M)
        self.assertGreater(len(options), 15)
        for option, text in options:
            start = words.index(option, words.index("OPTIONS"))
            self.assertIn(" ".join(text.split()), " ".join(words[start:start + 60]))


class CompletionTest(TreeTest):
    def test_bash_loads_the_completions(self):
        printed = self.passes("bash", "-c", f"source '{TREE}/share/bash-completion/completions/vantorel' && complete -p vantorel")
        self.assertRegex(printed, r"^complete .*_vantorel vantorel\n$")
        printed = self.passes("bash", "-c", f"source '{TREE}/share/bash-completion/completions/vantorel-panel'; "
                           "COMP_WORDS=(vantorel-panel --mode w); COMP_CWORD=2; _vantorel_panel; echo $COMPREPLY")
        self.assertEqual(printed, "wheel\n")

    def test_zsh_finds_the_completions_by_name(self):
        printed = self.passes("zsh", "-f", "-c", f"fpath=('{TREE}/share/zsh/vendor-completions' $fpath); "
                           "autoload -Uz compinit && compinit -u -D && print $_comps[vantorel] $_comps[vantorel-panel]")
        self.assertEqual(printed, "_vantorel _vantorel-panel\n")

    def test_fish_loads_the_completions(self):
        printed = self.passes("fish", "--no-config", "-c",
                           f"source '{TREE}/share/fish/vendor_completions.d/vantorel.fish'; complete -C'vantorel sho'")
        self.assertTrue(printed.startswith("show"), printed)


if __name__ == "__main__":
    main()
