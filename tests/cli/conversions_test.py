#!/usr/bin/env python3
"""Compares colour conversions with independent ones: ImageMagick, Python's colorsys and the formulas of CSS
Color 4. Compares names with a plain search of the list.

    conversions_test.py PROGRAM CONVERT
"""
import colorsys
import json
import math
import random
import re
import subprocess
import unittest

from program import ProgramTest, os, sys

CONVERT = sys.argv[2] if len(sys.argv) > 2 else ""
SHORT = [f"#{value:03x}" for value in range(0x1000)]
LONG = [f"#{value:06X}" for value in random.Random(20).choices(range(1 << 24), k=100_000)]
ONE_SNIPPET = '{CodeSnippets = ({NameSnippet = one; FormatSnippet = "%d"; VarsSnippet = rgbPackedInt;});}'


def oklch(red, green, blue):
    def linear(channel):
        return channel / 12.92 if channel <= 0.04045 else ((channel + 0.055) / 1.055) ** 2.4

    r, g, b = (linear(channel / 255) for channel in (red, green, blue))
    l = (0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b) ** (1 / 3)
    m = (0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b) ** (1 / 3)
    s = (0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b) ** (1 / 3)
    lightness = 0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s
    a = 1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s
    b = 0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s
    return lightness, a, b


class Conversions(ProgramTest):
    @classmethod
    def setUpClass(cls):
        pixels = b"".join(bytes.fromhex(text[1:] if len(text) == 7 else "".join(c * 2 for c in text[1:])) for text in SHORT + LONG)
        cls.count = len(SHORT) + len(LONG)
        # Not a single row, because policies limit the width of pictures.
        width = 400
        height = -(-cls.count // width)
        pixels += bytes(3 * (width * height - cls.count))
        run = subprocess.run([CONVERT, "-size", f"{width}x{height}", "-depth", "8", "rgb:-", "-depth", "8", "txt:-"], input=pixels,
                             capture_output=True, check=True, timeout=300)
        cls.rows = re.findall(r"\((\d+),(\d+),(\d+)\)\s+(#[0-9A-F]{6})\b", run.stdout.decode())[:cls.count]

    def test_hex_codes_and_decimals_are_those_of_imagemagick(self):
        self.assertEqual(len(self.rows), self.count)
        expected = "".join(f"{code}\trgb({red}, {green}, {blue})\n" for red, green, blue, code in self.rows)
        self.assertEqual(self.output_of("show", stdin="\n".join(SHORT + LONG)), expected)
        # Decimals and percentages convert back.
        self.assertEqual(self.output_of("show", stdin="".join(f"rgb({r}, {g}, {b})\n" for r, g, b, _ in self.rows)), expected)
        self.assertEqual(self.output_of("show", stdin="".join(
            "rgb({}% {}% {}%)\n".format(*(int(n) / 2.55 for n in row[:3])) for row in self.rows)), expected)

    def test_names_read_as_imagemagick_reads_them(self):
        names = [row.split("\t")[1] for row in self.output_of("list", "SVG Keyword").splitlines()]
        # The picker's list has keys that other programs do not know.
        known = [name for name in names if name not in ("atniquewhite", "transparent")]
        run = subprocess.run([CONVERT] + [f"xc:{name}" for name in known] + ["+append", "-depth", "8", "rgb:-"],
                             capture_output=True, timeout=120)
        unknown = re.findall(r"unrecognized color `([a-z]+)'", run.stderr.decode())
        known = [name for name in known if name not in unknown]
        self.assertGreater(len(known), 130)
        codes = [f"#{run.stdout[i:i + 3].hex().upper()}" for i in range(0, len(run.stdout), 3)]
        printed = [line.split("\t")[0] for line in self.output_of("show", stdin="\n".join(known)).splitlines()]
        # Some names are different colours in X11 and CSS; see CSS Color 4, section 6.1.
        differing = [name for name, ours, theirs in zip(known, printed, codes) if ours != theirs]
        self.assertLessEqual(set(differing), {"gray", "grey", "green", "maroon", "purple"})

    def test_hsl_components_and_oklch_are_right(self):
        self.write_settings(ONE_SNIPPET)
        lines = self.output_of("show", "--json", "-", stdin="\n".join(SHORT + LONG[:20_000])).splitlines()
        self.assertEqual(len(lines), len(SHORT) + 20_000)
        for line, row in zip(lines, self.rows):
            printed = json.loads(line)
            red, green, blue = (int(n) for n in row[:3])
            self.assertEqual((printed["hex"], printed["red"], printed["green"], printed["blue"]), (row[3], red, green, blue))
            self.assertEqual(printed["components"], {"Hex": [row[3][1:3], row[3][3:5], row[3][5:]], "Integer": list(row[:3]),
                                                  "Fraction": [f"{n / 255:.3f}" for n in (red, green, blue)]})
            self.assertEqual(printed["snippets"][0]["text"], str(int(row[3][1:], 16)))
            hue, lightness, saturation = colorsys.rgb_to_hls(red / 255, green / 255, blue / 255)
            h, s, l = (float(n) for n in re.fullmatch(r"hsl\(([\d.]+) ([\d.]+)% ([\d.]+)%\)", printed["hsl"]).groups())
            self.assertTrue(abs((h - hue * 360 + 180) % 360 - 180) < 0.006 and abs(s - saturation * 100) < 0.006 and
                            abs(l - lightness * 100) < 0.006, line)
            wanted = oklch(red, green, blue)
            l, c, h = (float(n) for n in re.fullmatch(r"oklch\(([\d.]+)% ([\d.]+) ([\d.]+)\)", printed["oklch"]).groups())
            found = (l / 100, c * math.cos(math.radians(h)), c * math.sin(math.radians(h)))
            self.assertTrue(all(abs(a - b) < 2e-4 for a, b in zip(found, wanted)), line)

    def test_names_are_those_of_a_plain_search(self):
        css4 = {tuple(bytes.fromhex(code[1:])): key for code, key in
                (row.split("\t") for row in self.output_of("list", "CSS Color 4").splitlines())}
        for name in ("CSS Keyword", "SVG Keyword", "Browser Safe"):
            entries = [(bytes.fromhex(code[1:]), key) for code, key in
                       (row.split("\t") for row in self.output_of("list", name).splitlines())]
            colors = SHORT + LONG[:5000]
            printed = self.output_of("name", "--list", name, stdin="\n".join(colors)).splitlines()
            for row, title in zip(self.rows, printed):
                color = tuple(int(n) for n in row[:3])
                exact = [key for code, key in entries if tuple(code) == color]
                close = [key for code, key in entries if all(abs(a - b) <= 16 for a, b in zip(code, color))]
                if not exact and color in css4:
                    self.assertRegex(title, r"^\w+ \(CSS Color 4\)$")
                    continue
                self.assertEqual(title, exact[0] if exact else "* " + ", ".join(close) if close else "No Match")


if __name__ == "__main__":
    if not os.path.exists(CONVERT):
        print("ImageMagick is not installed")
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
