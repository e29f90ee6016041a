#!/usr/bin/env python3
"""Tests colour lists: where they are found, export, import and pictures.

    lists_test.py PROGRAM
"""
import json
import struct
import unittest
import xml.etree.ElementTree
import zlib

from program import CSS_KEYWORD_COUNT, ProgramTest, os, sys

ROWS = ["255   0   0\tred", "  0   0   0\tBlack & <White>", "  1   2   3\tzażółć 🎨", "  9   9   9\t*/ odd; } -- $x // y",
        "200 100   0\t123", "200 100   1\t---", "  4   5   6\tRed"]
KEYS = [row.split("\t")[1] for row in ROWS]
# Text in a CSS comment must not contain the comment's end.
KEYS_IN_CSS = [key.replace("*/", "* /") for key in KEYS]
SVG = "{http://www.w3.org/2000/svg}"


def rows_of(palette):
    return [line.split("\t") for line in palette.splitlines()]


class Lists(ProgramTest):
    def test_lists_of_the_user_and_of_programs_show_their_file(self):
        mine = self.write_list("Mine", ["1 2 3\tone", "4 5 6\ttwo"], "any file.gpl")
        theirs = self.write(self.path(".config/GIMP/2.10/palettes/x.gpl"), "GIMP Palette\nName: Reds\n255 0 0\tred\n")
        saved = self.write_list("SVG Keyword", ["1 2 3\tone"])
        self.assertEqual(self.output_of("lists"), f"216\tBrowser Safe\t(built in)\n148\tCSS Color 4\t(built in)\n17\tCSS Keyword\t(built in)\n"
                         f"2\tMine\t{mine}\n1\tReds\t{theirs}\n1\tSVG Keyword\t{saved}\n")
        self.assertEqual(self.output_of("list", "Reds"), "#ff0000\tred\n")
        self.assertEqual(self.output_of("list", "SVG Keyword"), "#010203\tone\n")

    def test_a_list_with_the_name_of_a_command_can_be_named(self):
        self.write_list("import", ["1 2 3\tone"])
        self.assertEqual(self.output_of("list", "--", "import"), "#010203\tone\n")
        self.assertEqual(self.output_of("list", "export", "--format", "txt", "--", "import"), "#010203\tone\n")

    def test_exported_lists_can_be_imported(self):
        self.write_list("Mine", ROWS)
        original = rows_of(self.output_of("list", "Mine"))
        for ending in ("gpl", "scss", "json", "tokens", "ase", "aco", "kpl", "soc", "txt", "css"):
            with self.subTest(format=ending):
                file = os.path.join(self.root, "Some list." + ending)
                self.output_of("list", "export", "Mine", "--format", ending, "--output", file)
                self.output_of("list", "import", "--name", "Back " + ending, file)
                back = rows_of(self.output_of("list", "Back " + ending))
                self.assertEqual([color for color, _ in back], [color for color, _ in original])
                self.assertEqual([key for _, key in back], KEYS_IN_CSS if ending == "css" else KEYS)
                known = self.output_of("list", "import", "--yes", file)
                name = "Some list" if ending in ("aco", "soc", "txt") else "Mine"
                self.assertIn(f'"{name}"', known)

    def test_exports_have_their_format(self):
        self.write_list("Mine", ROWS)
        text = self.output_of("list", "export", "Mine", "--format", "gpl")
        self.assertEqual(text, "GIMP Palette\nName: Mine\nColumns: 0\n" + "".join(row + "\n" for row in ROWS))
        css = self.output_of("list", "export", "Mine", "--format", "css").splitlines()
        self.assertEqual(css[:4], ["/* Mine */", ":root {", "  --red: #ff0000; /* red */",
                                   "  --black-white: #000000; /* Black & <White> */"])
        self.assertEqual([line.split(":")[0].strip() for line in css[2:-1]],
                         ["--red", "--black-white", "--zażółć-🎨", "--odd-x-y", "--color-123", "--color", "--red-2"])
        scss = self.output_of("list", "export", "Mine", "--format", "scss").splitlines()
        self.assertEqual(scss[:2], ["// Mine", "$red: #ff0000; // red"])
        as_json = json.loads(self.output_of("list", "export", "Mine", "--format", "json"))
        self.assertEqual(as_json["name"], "Mine")
        self.assertEqual([color["name"] for color in as_json["colors"]], KEYS)
        self.assertEqual(as_json["colors"][2]["hex"], "#010203")

    def test_swatch_exchange_files_hold_blocks(self):
        self.write_list("Mine", ROWS)
        run = self.run_program("list", "export", "Mine", "--format", "ase")
        data = run.stdout
        self.assertEqual(data[:12], b"ASEF" + struct.pack(">HHI", 1, 0, len(ROWS) + 2))
        place, blocks = 12, []
        while place < len(data):
            kind, length = struct.unpack_from(">HI", data, place)
            blocks.append((kind, data[place + 6:place + 6 + length]))
            place += 6 + length
        self.assertEqual([kind for kind, _ in blocks], [0xC001] + [1] * len(ROWS) + [0xC002])
        names = []
        for kind, block in blocks[:-1]:
            (units,) = struct.unpack_from(">H", block)
            names.append(block[2:2 + units * 2].decode("utf-16-be").rstrip("\0"))
            if kind == 1:
                self.assertEqual(block[2 + units * 2:][:4], b"RGB ")
                self.assertEqual(len(block), 2 + units * 2 + 4 + 12 + 2)
        self.assertEqual(names, ["Mine"] + KEYS)
        self.assertEqual([round(x * 255) for x in struct.unpack_from(">3f", blocks[3][1], len(blocks[3][1]) - 14)], [1, 2, 3])

    def test_pictures_hold_every_colour_with_its_name(self):
        self.write_list("Mine", ROWS)
        for arguments in (["palette", "Mine", "--svg", "-"], ["list", "export", "Mine", "--format", "svg"]):
            root = xml.etree.ElementTree.fromstring(self.output_of(*arguments))
            swatches = {rect.find(SVG + "title").text: rect.get("fill") for rect in root.iter(SVG + "rect")
                        if rect.find(SVG + "title") is not None}
            self.assertEqual(swatches, {key: f"#{int(r):02x}{int(g):02x}{int(b):02x}" for row, key in zip(ROWS, KEYS)
                                        for r, g, b in [row.split("\t")[0].split()]})
            self.assertEqual(root.find(SVG + "title").text, "Mine")

    def test_png_shows_the_swatches_where_svg_has_them(self):
        file = os.path.join(self.root, "palette.png")
        self.output_of("palette", "SVG Keyword", "--png", file, "--size", "300x200")
        width, height, pixel = decoded_png(self.read(file))
        self.assertEqual((width, height), (300, 200))
        root = xml.etree.ElementTree.fromstring(self.output_of("palette", "SVG Keyword", "--svg", "-", "--size", "300x200"))
        group = root.find(SVG + "g")
        self.assertEqual(len(group), 146)
        for rect in group:
            x, y, w, h = (float(rect.get(name)) for name in ("x", "y", "width", "height"))
            self.assertEqual("#%02x%02x%02x" % pixel(int(x + w / 2), int(y + h / 2)), rect.get("fill"))
        for corner in [(0, 0), (299, 0), (0, 199), (299, 199)]:
            self.assertEqual(pixel(*corner), (241, 241, 245))

    def test_a_picture_replaces_one_and_new_files_can_be_shared(self):
        file = self.write(os.path.join(self.root, "x.svg"), "old")
        os.chmod(file, 0o640)
        self.output_of("wheel", "--rings", "2", "--svg", file)
        self.assertTrue(self.read(file).startswith(b"<?xml"))
        self.assertEqual(os.stat(file).st_mode & 0o777, 0o640)
        new = os.path.join(self.root, "y.svg")
        mask = os.umask(0o022)
        try:
            self.output_of("wheel", "--rings", "2", "--svg", "y.svg", cwd=self.root)
        finally:
            os.umask(mask)
        self.assertEqual(os.stat(new).st_mode & 0o777, 0o644)
        self.assertEqual(self.output_of("wheel", "--rings", "2", "--svg", "/dev/stdout")[:5], "<?xml")

    def test_wheels_have_the_requested_rings_and_size(self):
        for rings in (2, 7, 128):
            root = xml.etree.ElementTree.fromstring(self.output_of("wheel", "--rings", str(rings), "--svg", "-", "--size", "400x300"))
            paths = root.findall(f"{SVG}g/{SVG}path")
            self.assertEqual(len(paths), 6 * rings * rings)
            numbers = [float(n) for path in paths for n in path.get("d").strip("MZ").replace("L", " ").split()]
            self.assertTrue(all(0 <= x <= 400 for x in numbers[::2]) and all(0 <= y <= 300 for y in numbers[1::2]))
            # The first side runs from red to yellow, up the left edge.
            self.assertEqual(paths[0].get("fill"), "#ff0000")

    def test_imports_of_many_formats(self):
        cases = [
            ("kde.colors", b"KDE RGB Palette\r\n1 2 3 one\r\n", [["#010203", "one"]]),
            ("latin.gpl", b"GIMP Palette\nName: Latin\n1 2 3\tgr\xfcn\n", [["#010203", "gr\u00fcn"]]),
            ("min.css", b":root{--a:#123;--b:rgb(1 2 3);--c:12px;color:red}", [["#112233", "a"], ["#010203", "b"]]),
            ("x.scss", b"$a: red !default;\n$b: $a;\n$c: hsl(0 100% 50%); // Sea\n", [["#ff0000", "a"], ["#ff0000", "Sea"]]),
            ("flat.json", b'{"one": "#010203", "two": "red", "no": 3}', [["#010203", "one"], ["#ff0000", "two"]]),
            ("array.json", b'["#010203", {"name": "x", "hex": "f80"}]', [["#010203", "Untitled"], ["#ff8800", "x"]]),
            ("names.txt", b"\xef\xbb\xbf#010203\tone\n\n#040506 two words\nnonsense\nrgb(7, 8, 9)\tthree\nred\n",
             [["#010203", "one"], ["#040506", "two words"], ["#070809", "three"], ["#ff0000", "Untitled"]]),
            ("twice.txt", b"#010203\tx\n#040506\tx\n", [["#010203", "x"], ["#040506", "x 2"]]),
            ("cmyk.ase", ase((b"CMYK", [0, 0.5, 1, 0], "ink"), (b"Gray", [0.5], "grey"), (b"LAB ", [0.5, 0, 0], "lab"),
                             (b"XXXX", [1], "none")), [["#ff8000", "ink"], ["#808080", "grey"], ["#777777", "lab"]]),
        ]
        for file, content, rows in cases:
            with self.subTest(file=file):
                path = self.write(os.path.join(self.root, file), content)
                run = self.run_program("list", "import", path, "--name", file)
                self.assertEqual(run.returncode, 0, run.stderr)
                self.assertEqual(rows_of(self.output_of("list", file)), rows)

    def test_files_that_are_not_lists_are_rejected_and_others_imported(self):
        good = self.write(os.path.join(self.root, "good.txt"), "red\tr\n")
        bad = [self.write(os.path.join(self.root, name), content) for name, content in [
            ("empty.txt", b""), ("empty.gpl", b"GIMP Palette\n"), ("bytes.bin", bytes(range(256)) * 50), ("x.json", b'{"colors":'),
            ("deep.json", b"[" * 100000), ("number.json", b"[3]"), ("x.css", b"a { color: red }"), ("picture.svg", b"<svg/>"),
            ("short.ase", ase((b"RGB ", [1, 0, 0], "x"))[:-9]), ("head.ase", b"ASEF"), ("long.ase", b"ASEF\0\1\0\0\xff\xff\xff\xff\0\1\xff\xff\xff\xff"),
            ("line.txt", b"x" * 1000000),
        ]]
        for path in bad:
            with self.subTest(file=path):
                message = self.error_of("list", "import", path)
                self.assertIn(os.path.basename(path), message)
        run = self.run_program("list", "import", bad[0], good, bad[1])
        self.assertEqual(run.returncode, 2)
        self.assertEqual(len(run.stderr.splitlines()), 2)
        self.assertEqual(self.output_of("list", "good"), "#ff0000\tr\n")

    def test_a_list_is_replaced_only_on_request(self):
        mine = self.write_list("Mine", ["1 2 3\tone"])
        before = self.read(mine)
        other = self.write(os.path.join(self.root, "o.gpl"), "GIMP Palette\nName: Mine\n9 9 9\tnine\n")
        same = self.write(os.path.join(self.root, "s.gpl"), "GIMP Palette\nName: Mine\n# same\n1 2 3 one\n")
        self.assertIn("already exists", self.output_of("list", "import", same))
        self.assertEqual(self.read(mine), before)
        self.assertIn('use "--yes" to replace it', self.error_of("list", "import", other))
        self.assertEqual(self.read(mine), before)
        self.output_of("list", "import", "--yes", other)
        self.assertEqual(self.output_of("list", "Mine"), "#090909\tnine\n")
        self.assertEqual(self.files_at_home().count(".local/share/Vantorel/Palettes/Mine.gpl"), 1)

    def test_the_built_in_lists_can_be_exported_without_being_saved(self):
        self.assertEqual(len(self.output_of("list", "export", "CSS Keyword", "--format", "txt").splitlines()), CSS_KEYWORD_COUNT)
        self.assertEqual(self.files_at_home(), [])


def ase(*colors):
    """Returns a swatch exchange file of colours without a group."""
    data = b"ASEF" + struct.pack(">HHI", 1, 0, len(colors))
    for model, values, name in colors:
        text = (name + "\0").encode("utf-16-be")
        block = struct.pack(">H", len(text) // 2) + text + model + struct.pack(f">{len(values)}f", *values) + b"\0\2"
        data += struct.pack(">HI", 1, len(block)) + block
    return data


def decoded_png(data):
    """Returns width, height, and a function that returns the colour at x and y."""
    assert data[:8] == b"\x89PNG\r\n\x1a\n"
    place, packed = 8, b""
    while place < len(data):
        length, kind = struct.unpack_from(">I4s", data, place)
        content = data[place + 8:place + 8 + length]
        assert struct.unpack_from(">I", data, place + 8 + length)[0] == zlib.crc32(kind + content)
        if kind == b"IHDR":
            width, height, depth, color = struct.unpack_from(">IIBB", content)
            assert (depth, color) == (8, 2)
        if kind == b"IDAT":
            packed += content
        place += 12 + length
    raw, rows, before = zlib.decompress(packed), [], bytes(width * 3)
    for y in range(height):
        line = raw[y * (width * 3 + 1):(y + 1) * (width * 3 + 1)]
        row = bytearray(line[1:])
        for i in range(len(row)):
            left, up = row[i - 3] if i >= 3 else 0, before[i]
            corner = before[i - 3] if i >= 3 else 0
            nearest = min((abs(up - corner), 0, left), (abs(left - corner), 1, up), (abs(left + up - 2 * corner), 2, corner))[2]
            row[i] = (row[i] + (0, left, up, (left + up) // 2, nearest)[line[0]]) & 255
        rows.append(bytes(row))
        before = row
    return width, height, lambda x, y: tuple(rows[y][x * 3:x * 3 + 3])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
