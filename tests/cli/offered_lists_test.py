#!/usr/bin/env python3
"""Tests the colour lists that are installed with the program.

    offered_lists_test.py PROGRAM FOLDER
"""
import re
import unittest

from program import ProgramTest, os, sys

FOLDER = sys.argv[2]
TAILWIND_FAMILIES = set("slate gray zinc neutral stone red orange amber yellow lime green emerald teal cyan sky blue "
                        "indigo violet purple fuchsia pink rose".split())
TAILWIND_STEPS = ["50", *(str(step) for step in range(100, 1000, 100)), "950"]
MATERIAL_FAMILIES = set("red pink purple deep-purple indigo blue light-blue cyan teal green light-green lime yellow amber "
                        "orange deep-orange brown grey blue-grey".split())


def text_of(name):
    with open(f"{FOLDER}/{name}.gpl", encoding="utf-8") as file:
        return file.read()


def rows_of(name):
    """Returns the hex codes by their names."""
    rows = re.findall(r"^ *(\d+) +(\d+) +(\d+)\t(.+)$", text_of(name), re.M)
    return {row[3]: "#%02x%02x%02x" % tuple(int(number) for number in row[:3]) for row in rows}


def luminance(code):
    linear = [(c / 255 / 12.92 if c <= 10 else ((c / 255 + 0.055) / 1.055) ** 2.4) for c in bytes.fromhex(code[1:])]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


class OfferedListsTest(ProgramTest):
    def test_every_list_is_read_whole_and_names_its_source(self):
        files = sorted(os.listdir(FOLDER))
        self.assertEqual(files, ["Material.gpl", "Tailwind 3.gpl", "Tailwind 4.gpl"])
        for file in files:
            name = file.removesuffix(".gpl")
            imported = self.output_of("list", "import", f"{FOLDER}/{file}")
            self.assertIn(f"{len(rows_of(name))} colours", imported)
            listed = [row.split("\t") for row in self.output_of("list", name).splitlines()]
            self.assertEqual({key: code.lower() for code, key in listed}, rows_of(name))
            self.assertRegex(text_of(name), r"\n# The .*colours of .*package")

    def test_every_colour_has_all_its_steps(self):
        for name in ("Tailwind 3", "Tailwind 4"):
            rows = rows_of(name)
            self.assertEqual(set(rows), {f"{family}-{step}" for family in TAILWIND_FAMILIES for step in TAILWIND_STEPS})
        rows = rows_of("Material")
        steps = {family: [key.rpartition("-")[2] for key in rows if key.rpartition("-")[0] == family]
                 for family in MATERIAL_FAMILIES}
        self.assertEqual(sum(len(each) for each in steps.values()), len(rows))
        for family, each in steps.items():
            accents = [] if family in ("brown", "grey", "blue-grey") else ["a100", "a200", "a400", "a700"]
            self.assertEqual(each, TAILWIND_STEPS[:-1] + accents, family)

    def test_steps_get_darker(self):
        for name, families in (("Tailwind 3", TAILWIND_FAMILIES), ("Tailwind 4", TAILWIND_FAMILIES),
                               ("Material", MATERIAL_FAMILIES)):
            rows = rows_of(name)
            for family in families:
                values = [luminance(rows[f"{family}-{step}"]) for step in TAILWIND_STEPS if f"{family}-{step}" in rows]
                self.assertEqual(values, sorted(values, reverse=True), f"{name} {family}")

    def test_the_colours_of_tailwind_4_are_those_of_their_oklch(self):
        originals = dict(re.findall(r"^# ([a-z]+-\d+): (oklch\(.*\))$", text_of("Tailwind 4"), re.M))
        self.assertEqual(len(originals), 242)
        codes = self.output_of("convert", "--to", "hex", stdin="\n".join(originals.values())).splitlines()
        self.assertEqual(dict(zip(originals, codes)), rows_of("Tailwind 4"))

    def test_the_colours_of_both_tailwinds_are_much_the_same(self):
        earlier = rows_of("Tailwind 3")
        for key, code in rows_of("Tailwind 4").items():
            both = zip(bytes.fromhex(code[1:]), bytes.fromhex(earlier[key][1:]))
            self.assertLess(max(abs(a - b) for a, b in both), 80, f"{key}: {code}, {earlier[key]}")

    def test_known_colours_are_right(self):
        for name, key, code in (("Tailwind 3", "blue-500", "#3b82f6"), ("Tailwind 3", "rose-950", "#4c0519"),
                                ("Material", "indigo-500", "#3f51b5"), ("Material", "light-blue-a700", "#0091ea"),
                                ("Material", "blue-grey-900", "#263238")):
            self.assertEqual(rows_of(name)[key], code)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
