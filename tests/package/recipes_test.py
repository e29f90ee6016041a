#!/usr/bin/env python3
"""Checks that the recipes for other distributions agree with the project and list the files it installs.

    recipes_test.py TREE SOURCES BUILD
"""
import fnmatch
import json
import os
import re
import shutil
import xml.etree.ElementTree as ElementTree

from installedtree import SOURCES, TREE, TreeTest, files_below, main, text_of

ID = "org.vantorel.ColorPanel"
PACKAGING = f"{SOURCES}/packaging"
FLATPAK = f"{PACKAGING}/{ID}.json"
SPEC = f"{PACKAGING}/vantorel.spec"
PKGBUILD = f"{PACKAGING}/PKGBUILD"

# Fedora's folders below the prefix.
SPEC_FOLDERS = {"_bindir": "bin", "_datadir": "share", "_docdir": "share/doc", "_includedir": "include",
                "_mandir": "share/man", "_metainfodir": "share/metainfo", "_prefix": "."}


def value(pattern, text):
    return re.search(pattern, text, re.M).group(1)


def cmake_options(text):
    return re.findall(r"-D(VANTOREL_[A-Z_]+)=", text)


class FactsTest(TreeTest):
    def test_the_recipes_have_the_projects_version(self):
        version = value(r"^project\(Vantorel VERSION ([0-9.]+)", text_of(f"{SOURCES}/CMakeLists.txt"))
        self.assertEqual(value(r"^Version: +(\S+)", text_of(SPEC)), version)
        self.assertEqual(value(r"^\* .* - ([0-9.]+)-[0-9]+$", text_of(SPEC)), version)
        self.assertEqual(value(r"^pkgver=(\S+)", text_of(PKGBUILD)), version)

    def test_the_recipes_provide_the_interface_of_plug_ins(self):
        number = value(r"hostPluginABI = (\d+);", text_of(f"{SOURCES}/src/host/HostPlugin.h"))
        self.assertEqual(value(r"^%global picker_abi (\d+)$", text_of(SPEC)), number)
        self.assertEqual(value(r"^provides=\('vantorel-picker-abi-(\d+)'\)", text_of(PKGBUILD)), number)

    def test_the_recipes_have_the_home_page_of_the_metainfo(self):
        homepage = ElementTree.parse(f"{PACKAGING}/{ID}.metainfo.xml").getroot().findtext("url[@type='homepage']")
        self.assertEqual(value(r"^URL: +(\S+)", text_of(SPEC)), homepage)
        self.assertEqual(value(r"^url='([^']*)'", text_of(PKGBUILD)), homepage)

    def test_the_recipes_say_that_no_licence_is_chosen(self):
        self.assertIn("License: none-chosen\n", text_of(f"{SOURCES}/debian/copyright"))
        self.assertEqual(value(r"^License: +(\S+)", text_of(SPEC)), "LicenseRef-none-chosen")
        self.assertEqual(value(r"^license=\('([^']*)'\)", text_of(PKGBUILD)), "LicenseRef-none-chosen")

    def test_the_recipes_set_options_that_the_build_has(self):
        build_files = [os.path.join(folder, name) for top in ("src", "cmake")
                       for folder, _, names in os.walk(f"{SOURCES}/{top}") for name in names
                       if name == "CMakeLists.txt" or name.endswith(".cmake")]
        build = "".join(text_of(path) for path in [f"{SOURCES}/CMakeLists.txt", *build_files])
        for recipe in (FLATPAK, SPEC, PKGBUILD, f"{SOURCES}/debian/rules"):
            options = cmake_options(text_of(recipe))
            self.assertTrue(options, recipe)
            for option in options:
                self.assertRegex(build, rf"(?:option\({option} |set\({option} .* CACHE )", recipe)


class FlatpakTest(TreeTest):
    def setUp(self):
        super().setUp()
        self.manifest = json.loads(text_of(FLATPAK))

    def test_it_is_built_from_the_checkout(self):
        module = self.manifest["modules"][-1]
        self.assertEqual(module["name"], "vantorel")
        folders = [source["path"] for source in module["sources"] if source["type"] == "dir"]
        self.assertTrue(os.path.samefile(os.path.join(PACKAGING, folders[0]), SOURCES))

    def test_it_starts_the_panel_under_its_id(self):
        self.assertEqual(self.manifest["id"], ID)
        self.assertTrue(os.access(f"{TREE}/bin/{self.manifest['command']}", os.X_OK))

    def test_excluded_files_are_installed(self):
        for path in self.manifest["cleanup"]:
            self.assertTrue(os.path.exists(TREE + path), path)

    def test_flatpak_builder_reads_it(self):
        shown = json.loads(self.passes("flatpak-builder", "--show-manifest", FLATPAK))
        self.assertEqual(shown["finish-args"], self.manifest["finish-args"])


class SpecTest(TreeTest):
    def packaged(self):
        """Returns the patterns of the %files sections, below the prefix."""
        lines = [line for section in re.findall(r"^%files.*\n((?:[%/].*\n)+)", text_of(SPEC), re.M)
                 for line in section.splitlines() if not line.startswith("%doc ")]
        library_folder = os.path.dirname(next(
            os.path.dirname(name) for name in files_below(TREE) if name.endswith("VantorelPickerConfig.cmake")))
        folders = {**SPEC_FOLDERS, "_libdir": os.path.dirname(library_folder)}
        return [os.path.normpath(re.sub(r"%\{(\w+)\}", lambda macro: folders[macro.group(1)], line)) for line in lines]

    def test_it_packages_every_installed_file(self):
        patterns = self.packaged()
        moved = [name.replace("zsh/vendor-completions", "zsh/site-functions") for name in files_below(TREE)]
        for name in moved:
            self.assertTrue(any(fnmatch.fnmatch(name, each) or name.startswith(each + "/") for each in patterns), name)
        for each in patterns:
            self.assertTrue(any(fnmatch.fnmatch(name, each) or name.startswith(each + "/") for name in moved), each)

    def test_rpm_reads_it(self):
        packages = self.passes("rpmspec", "--query", "--queryformat", "%{name}\n", SPEC)
        self.assertEqual(packages.split(), ["vantorel", "vantorel-devel"])
        self.assertIn("Recommends:     qt6-qttranslations\n", self.passes("rpmspec", "--parse", SPEC))


class PkgbuildTest(TreeTest):
    def test_bash_reads_it(self):
        self.passes("bash", "-n", PKGBUILD)

    def test_makepkg_reads_it(self):
        self.need("makepkg")
        folder = os.path.join(self.scratch, "packaging")
        os.mkdir(folder)
        shutil.copy(PKGBUILD, folder)
        # makepkg does not run as root, and outside Arch there is no pacman that it could ask.
        words = ["makepkg", "--printsrcinfo"]
        if os.geteuid() == 0:
            for path in (self.scratch, folder):
                shutil.chown(path, "nobody")
            words = ["setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups", *words]
        self.environment["PACMAN"] = "true"
        run = self.run_tool("env", "-C", folder, *words)
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertIn("pkgbase = vantorel\n", run.stdout)
        self.assertIn(f"source = vantorel::git+file://{self.scratch}\n", run.stdout)


if __name__ == "__main__":
    main()
