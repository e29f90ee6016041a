#!/usr/bin/env python3
"""Tests every command and option: its output, and its errors for wrong arguments.

    commands_test.py PROGRAM
"""
import json
import re
import unittest

from computing_examples import COMPUTING_ERRORS, COMPUTING_EXAMPLES
from program import PROGRAM, ProgramTest, os, shutil, subprocess, sys

SETTINGS = """{
    EntryForm = Lowercase;
    UsePoundSign = NO;
    HexColorLlst = "SVG Keyword";
    NColorCubeRings = 3;
    CodeSnippets = ({NameSnippet = "Mine"; FormatSnippet = "mine(%d, %d, %d)"; VarsSnippet = rgbFixed;});
}
"""

# Arguments, standard input, and standard output (or a pattern that it contains).
EXAMPLES = [
    (["show", "#ff8000"], "", re.compile(r"\Ahex: #FF8000\nrgb: rgb\(255, 128, 0\)\nhsl: hsl\(30.12 100% 50%\)\n")),
    (["show", "red"], "", re.compile(r"components:\n  Hex: FF 00 00\n  Integer: 255 0 0\n  Fraction: 1.000 0.000 0.000\n")),
    (["show", "red"], "", re.compile(r"name \(CSS Keyword\): red\n")),
    (["show", "red"], "", re.compile(r"\nsnippets:\n  ObjC fraction: .*\n(  .*\n){10}  VBasic: RGB\(255, 0, 0\)\n\Z")),
    (["show", "--snippet", "TikZ", "Color( 0xFFFF8000 )"], "", "{rgb,255:red,255; green,128; blue,0}\n"),
    (["convert", "--to", "hex"], "[NSColor colorWithCalibratedRed:1.00000 green:0.50196 blue:0.00000 alpha:0.50196]\n"
                                 "    background = QColor(1, 2, 3, 255);\n", "#ff800080\n#010203\n"),
    (["show", "#0008"], "", re.compile(r"\Ahex: #00000088\nrgb: rgba\(0, 0, 0, 0.533\)\n")),
    (["show", "red", "blue"], "", re.compile(r"VBasic: RGB\(255, 0, 0\)\n\nhex: #0000FF\n")),
    (["show", "--list", "SVG Keyword", "salmon"], "", re.compile(r"name \(SVG Keyword\): salmon\n")),
    (["show", "--snippet", "VBasic", "#ff8000"], "", "RGB(255, 128, 0)\n"),
    (["show", "--snippet=Java NSInteger A", "rgb(255 128 0 / 50%)"], "", "Color(0x7fff8000)\n"),
    (["show", "--lowercase", "#FF8000"], "", re.compile(r"\Ahex: #ff8000\n")),
    (["show", "--uppercase", "#ff8000"], "", re.compile(r"\Ahex: #FF8000\n")),
    (["show", "--no-pound-sign", "#ff8000"], "", re.compile(r"\Ahex: FF8000\n")),
    (["show", "--pound-sign", "#ff8000"], "", re.compile(r"\Ahex: #FF8000\n")),
    (["show", "--json", "#ff8000"], "", re.compile(r'\A\{"hex":"#FF8000","rgb":"rgb\(255, 128, 0\)",.*\}\n\Z')),
    (["show"], "#ff8000\n\n  \nf80\r\nrgb(1,2,3)\norange", "#FF8000\trgb(255, 128, 0)\n#FF8800\trgb(255, 136, 0)\n"
     "#010203\trgb(1, 2, 3)\n#FFA500\trgb(255, 165, 0)\n"),
    (["convert", "--to", "oklch", "#ff8000", "red"], "", "oklch(73.189% 0.1858 52.985)\noklch(62.796% 0.25768 29.234)\n"),
    (["convert", "--to", "hex"], "color(display-p3 0 1 0)\n\nrgb(1 2 3 / 50%)\nhwb(120 30% 50%)", "#00fb29\n#01020380\n#4d804d\n"),
    (["convert", "--to", "display-p3", "color(display-p3 0 1 0)"], "", "color(display-p3 0 1 0)\n"),
    (["convert", "--to", "hwb", "color(display-p3 0 1 0)", "CSS: rgb(255, 128, 0)"], "",
     "hwb(129.72 0% 1.42%)\nhwb(30.12 0% 0%)\n"),
    (["convert", "--to", "rgb", "--theme", "dark", "light-dark(red, blue)"], "", "rgb(0, 0, 255)\n"),
    (["show", "--theme", "light", "--snippet", "VBasic", "light-dark(red, blue)"], "", "RGB(255, 0, 0)\n"),
    (["show", "--theme", "dark", "--snippet", "VBasic", "light-dark(red, blue)"], "", "RGB(0, 0, 255)\n"),
    (["show", "-"], "#12345680\n", "#12345680\trgba(18, 52, 86, 0.5)\n"),
    (["show", "--lowercase", "--no-pound-sign"], "#AB0\n", "aabb00\trgb(170, 187, 0)\n"),
    (["show", "--list", "CSS Keyword"], "red\n#fe0000\n#123\n", "#FF0000\trgb(255, 0, 0)\tred\n"
     "#FE0000\trgb(254, 0, 0)\t* red\n#112233\trgb(17, 34, 51)\tNo Match\n"),
    (["show", "--snippet", "VBasic"], "#010203\n", "RGB(1, 2, 3)\n"),
    (["show"], "", ""),
    (["name", "red", "#fe0101", "#123"], "", "red\n* red\nNo Match\n"),
    (["name", "--list", "SVG Keyword", "#ffa500"], "", "orange\n"),
    (["name"], "#ff0000\n#00f\n", "red\nblue\n"),
    (["name", "--json", "#fe0101"], "", '{"list":"CSS Keyword","exact":null,"close":["red"]}\n'),
    (["lists"], "", "216\tBrowser Safe\t(built in)\n148\tCSS Color 4\t(built in)\n17\tCSS Keyword\t(built in)\n"
     "146\tSVG Keyword\t(built in)\n"),
    (["lists", "--names"], "", "Browser Safe\nCSS Color 4\nCSS Keyword\nSVG Keyword\n"),
    (["snippets", "--names"], "", re.compile(r"\AObjC fraction\n(.*\n){10}VBasic\nSwiftUI\n(.*\n){14}ANSI 24 bit\n\Z")),
    (["name", "#663399", "#008080", "#008081"], "", "rebeccapurple (CSS Color 4)\nteal\n* teal\n"),
    (["name", "#663399", "--json"], "", '{"list":"CSS Color 4","exact":"rebeccapurple","close":[]}\n'),
    (["name", "#7fff00", "--list", "SVG Keyword"], "", re.compile(r"\Achartreuse")),
    (["list", "CSS Color 4"], "", re.compile(r"\A#F0F8FF\taliceblue\n(.*\n){146}#9ACD32\tyellowgreen\n\Z", re.I)),
    (["lists", "--json"], "", re.compile(r'\{"name":"CSS Keyword","count":17,"place":null\}\n')),
    (["list", "CSS Keyword"], "", re.compile(r"\A#800000\tmaroon\n(#[0-9a-f]{6}\t[a-z]+\n){16}\Z")),
    (["list", "--json", "CSS Keyword"], "", re.compile(r'\A\{\n  "name": "CSS Keyword",\n')),
    (["list", "export", "--format", "txt", "CSS Keyword"], "", re.compile(r"\A#800000\tmaroon\n")),
    (["list", "export", "CSS Keyword", "--format", "css", "--output", "-"], "", re.compile(r":root \{\n  --maroon: #800000; /\* maroon \*/\n")),
    (["snippets"], "", re.compile(r"\AObjC fraction\trgbaFloats\t\[NSColor (.*\n){28}\Z")),
    (["snippets"], "", re.compile(r"\nJava NSInteger A\trgbaPackedInt\tColor\(0x%x\)\tan opacity of 0 is lost .*\n")),
    (["snippets", "--json"], "", re.compile(r'\n\{"name":"VBasic","format":"RGB\(%d, %d, %d\)","variables":"rgbFixed",'
                                            r'"from":"settings","limits":\[\]\}\n')),
    (["contrast", "white", "#767676"], "", "ratio: 4.54\nnormal text AA: passes\nnormal text AAA: fails\n"
     "large text AA: passes\nlarge text AAA: passes\ncomponents AA: passes\n"),
    (["contrast", "white", "#777777"], "", re.compile(r"\Aratio: 4.47\nnormal text AA: fails\n")),
    (["contrast", "--json", "black", "white"], "", re.compile(r'\A\{"ratio":21.00,"normal text AA":true,')),
    (["wheel", "--rings", "2", "--svg", "-"], "", re.compile(r"\A<\?xml (.*\n){5}(<path .*/>\n){24}</g>\n</svg>\n\Z")),
    (["wheel", "--svg", "-", "--size", "100x50"], "", re.compile(r'width="100" height="50"')),
    (["palette", "CSS Keyword", "--svg", "-"], "", re.compile(r"(<rect x=.*</rect>\n){17}")),
    (["completions", "bash"], "", re.compile(r"complete .*vantorel\n\Z")),
    (["completions", "zsh"], "", re.compile(r"\A#compdef vantorel\n")),
    (["completions", "fish"], "", re.compile(r"complete -c vantorel -f\n")),
    (["manpage"], "", re.compile(r"\A\.TH VANTOREL 1 ")),
    (["completions", "bash", "--panel"], "", re.compile(r"complete .*vantorel-panel\n\Z")),
    (["manpage", "--panel"], "", re.compile(r"\A\.TH VANTOREL\\-PANEL 1 ")),
    (["--version"], "", re.compile(r"\Avantorel \d+\.\d+\.\d+\n\Z")),
    (["--help"], "", re.compile(r"\AUsage: vantorel COMMAND")),
    (["-h"], "", re.compile(r"\AUsage: vantorel COMMAND")),
    *COMPUTING_EXAMPLES,
]

# Options that other tests cover.
TRIED_ELSEWHERE = {"lsp": {"--stdio"},
                   "sheet": {"--fail-on", "--json", "--list", "--svg", "--png", "--size"},
                   "list import": {"--name", "--yes"}, "list publish": {"--yes", "--undo"},
                   "palette": {"--png", "--size"}, "pick": {"--copy"}, "list export": {"--output"},
                   "dialogs": {"--status", "--on", "--off"}}

USAGE_ERRORS = [
    ([], "the command is missing"),
    (["shw"], '"shw" is not a command'),
    (["--foo"], '"--foo"'),
    (["show", "--foo", "red"], '"vantorel show" has no option "--foo"'),
    (["show", "--list"], "--list requires a value"),
    (["list", "x", "import", "y"], '"x" precedes the command'),
    (["list", "--json", "import", "y"], "--json precedes the command"),
    (["show", "red", "--version"], '"vantorel show" has no option "--version"'),
    (["show", "--list", "a", "--list=b"], "--list is given twice"),
    (["show", "--json=yes"], "--json takes no value"),
    (["--json", "show"], '"vantorel" has no option "--json"'),
    (["show", "--lowercase", "--uppercase", "red"], "--lowercase cannot be combined with --uppercase"),
    (["show", "--pound-sign", "--no-pound-sign", "red"], "--pound-sign"),
    (["lists", "more"], '"more" is one argument too many'),
    (["list"], "NAME is missing"),
    (["list", "a", "b"], '"b" is one argument too many'),
    (["list", "import"], "FILE is missing"),
    (["list", "import", "--name", "x", "a", "b"], "--name is given for 2 files"),
    (["list", "import", "--name", "", "a"], "--name is empty"),
    (["list", "export", "x"], "--format is required"),
    (["list", "export", "--format", "css"], "NAME is missing"),
    (["list", "export", "x", "--format", "pdf"], '--format cannot be "pdf": use gpl, css, scss, json, tokens, ase, aco, kpl, soc, svg or txt'),
    (["list", "publish"], "NAME is missing"),
    (["contrast", "red"], "COLOR is missing"),
    (["contrast", "red", "red", "red"], '"red" is one argument too many'),
    (["wheel"], "--svg is required"),
    (["wheel", "--svg", "-", "--rings", "1"], '--rings cannot be "1": use a whole number from 2 to 128'),
    (["wheel", "--svg", "-", "--rings", "129"], "--rings"),
    (["wheel", "--svg", "-", "--rings", "8.5"], "--rings"),
    (["wheel", "--svg", "-", "--size", "7x100"], '--size cannot be "7x100"'),
    (["wheel", "--svg", "-", "--size", "100"], "--size"),
    (["wheel", "--svg", "-", "--size", "100x"], "--size"),
    (["wheel", "--svg", "-", "--size", "16385x8"], "--size"),
    (["palette", "CSS Keyword"], "give --svg FILE or --png FILE"),
    (["palette", "CSS Keyword", "--svg", "-", "--png", "-"], "--svg"),
    (["lists", "--names", "--json"], "--names cannot be combined with --json"),
    (["completions", "tcsh"], 'SHELL cannot be "tcsh": use bash, zsh or fish'),
    (["completions"], "SHELL is missing"),
    (["manpage", "x"], '"x" is one argument too many'),
    (["pick", "x"], '"x" is one argument too many'),
    *COMPUTING_ERRORS,
]

ERRORS = [
    (["show", "nope"], '"nope" is not a CSS colour name: write a colour'),
    (["show", ""], "no colour"),
    (["show", "[red,blue]"], '"[" is not a colour'),
    (["convert", "--to", "lab", "redd"], '"redd" is not a CSS colour name'),
    (["show", "rgb(1 2 3 4)"], 'there is "4"'),
    (["show", "light-dark(white, black)"], "depends on the theme of the page"),
    (["show", "red", "--list", "Nope"], 'there is no colour list "Nope"'),
    (["show", "red", "--snippet", "Nope"], 'there is no snippet "Nope"'),
    (["name", "red", "--list", ""], 'there is no colour list ""'),
    (["list", "Nope"], 'there is no colour list "Nope"'),
    (["list", "--", "import"], 'there is no colour list "import"'),
    (["list", "export", "Nope", "--format", "css"], 'there is no colour list "Nope"'),
    (["list", "export", "CSS Keyword", "--format", "css", "--output", "/nowhere/x.css"], '"/nowhere/x.css" cannot be written'),
    (["list", "publish", "Nope"], 'there is no colour list "Nope"'),
    (["list", "publish", "CSS Keyword"], "no graphics program has a folder"),
    (["list", "publish", "--undo", "CSS Keyword"], "has not been published"),
    (["list", "import", "/nowhere/x.gpl"], '"/nowhere/x.gpl" cannot be read'),
    (["list", "import", "/"], '"/" cannot be read'),
    (["contrast", "red", "nope"], '"nope" is not a CSS colour name'),
    (["palette", "Nope", "--svg", "-"], 'there is no colour list "Nope"'),
    (["wheel", "--svg", "/nowhere/x.svg"], "cannot be written"),
]

PICKERS_TEXTS = [
    ("ff8000", "FF8000"), ("#ff8000", "FF8000"), ("f80", "FF8800"), ("#f80", "FF8800"), ("a", "AAAAAA"),
    ("#a", "AAAAAA"), ("RGB(255, 128, 0);", "FF8000"), ("= rgb(255, 128, 0", "FF8000"),
    ("orange: rgb(255, 165, 0);", "FFA500"), ("in Rgb(1 2,3) and more", "010203"),
    (" #ff8000 ", "FF8000"), ("hsl(30 100% 50%)", "FF8000"), ("hwb(30 0% 0%)", "FF8000"), ("rgb(50% 50% 50%)", "808080"),
    ("oklch(73.189% 0.1858 52.985)", "FF8000"), ("color(display-p3 0 1 0)", "00FB29"), ("REBECCAPURPLE", "663399"),
    ("lab(50% 0 0)", "777777"), ("transparent", "00000000"), ("#12345678", "12345678"),
]


class Commands(ProgramTest):
    def test_examples_give_the_documented_output(self):
        for arguments, stdin, expected in EXAMPLES:
            with self.subTest(arguments=arguments, stdin=stdin):
                printed = self.output_of(*arguments, stdin=stdin)
                if isinstance(expected, str):
                    self.assertEqual(printed, expected)
                else:
                    self.assertRegex(printed, expected)

    def test_reading_commands_write_no_files(self):
        for arguments, stdin, _ in EXAMPLES:
            self.run_program(*arguments, stdin=stdin)
        self.assertEqual(self.files_at_home(), [])

    def test_wrong_command_lines_end_with_2(self):
        for arguments, message in USAGE_ERRORS:
            with self.subTest(arguments=arguments):
                self.assertIn(message, self.error_of(*arguments))

    def test_failures_end_with_1(self):
        for arguments, message in ERRORS:
            with self.subTest(arguments=arguments):
                self.assertIn(message, self.error_of(*arguments))

    def test_the_texts_of_the_picker_are_read(self):
        for text, code in PICKERS_TEXTS:
            with self.subTest(text=text):
                self.assertEqual(self.output_of("show", "--json", "--no-pound-sign", "--", text).split('"')[3], code)

    def test_valid_colours_are_shown_beside_invalid_ones(self):
        run = self.run_program("show", "--snippet", "VBasic", "red", "nope", "blue")
        self.assertEqual((run.returncode, run.stdout), (2, b"RGB(255, 0, 0)\nRGB(0, 0, 255)\n"))
        self.assertEqual(run.stderr.count(b"\n"), 1)

    def test_json_holds_everything(self):
        report = json.loads(self.output_of("show", "--json", "color(display-p3 0 1 0 / 0.25)"))
        self.assertEqual(report["hex"], "#00FB2940")
        self.assertEqual((report["red"], report["green"], report["blue"], report["alpha"]), (0, 251, 41, 0.25))
        self.assertIs(report["outsideSRGB"], True)
        self.assertEqual(report["components"], {"Hex": ["00", "FB", "29"], "Integer": ["0", "251", "41"],
                                                "Fraction": ["0.000", "0.984", "0.161"]})
        self.assertEqual([snippet["name"] for snippet in report["snippets"]][-1], "VBasic")

    def test_results_are_written_before_the_next_line_is_awaited(self):
        for command, results in ((["lighten", "0"], 1), (["simulate", "grey"], 1), (["nearest"], 1), (["scale"], 11)):
            with subprocess.Popen([PROGRAM, *command], stdin=subprocess.PIPE, stdout=subprocess.PIPE, env=self.environment) as run:
                for _ in range(2):
                    run.stdin.write(b"#808080\n")
                    run.stdin.flush()
                    for _ in range(results):
                        self.assertRegex(run.stdout.readline(), rb"\A#[0-9a-f]{6}", command)

    def test_settings_are_applied(self):
        self.write_settings(SETTINGS)
        self.assertEqual(self.output_of("show", "#FFA500"), "hex: ffa500\nrgb: rgb(255, 165, 0)\nhsl: hsl(38.82 100% 50%)\n"
                         "oklch: oklch(79.269% 0.17103 70.67)\ncomponents:\n  Hex: ff a5 00\n  Integer: 255 165 0\n"
                         "  Fraction: 1.000 0.647 0.000\nname (SVG Keyword): orange\nsnippets:\n  Mine: mine(255, 165, 0)\n")
        self.assertEqual(self.output_of("name", "orange"), "orange\n")
        self.assertTrue(self.output_of("snippets").startswith("Mine\trgbFixed\tmine(%d, %d, %d)\nSwiftUI\t"))
        self.assertEqual(self.output_of("show", stdin="#FFA500\n"), "ffa500\trgb(255, 165, 0)\n")
        self.assertEqual(self.output_of("show", "--uppercase", "--pound-sign", stdin="#ffa500\n"), "#FFA500\trgb(255, 165, 0)\n")
        self.assertEqual(self.output_of("wheel", "--svg", "-").count("<path"), 6 * 9)

    def test_the_users_own_snippets_come_before_those_of_the_program(self):
        own = self.write(self.path(".local/share/Vantorel/Snippets.plist"),
                         '({NameSnippet = "UIKit"; FormatSnippet = "UIColor(hex: 0x%06x)"; VarsSnippet = rgbPackedInt;},'
                         ' {NameSnippet = Odd; FormatSnippet = "odd(%d%d, %d)"; VarsSnippet = rgbFixed;},'
                         ' {NameSnippet = GLSL; FormatSnippet = "vec3(%.3f, %.3f, %.3f)"; VarsSnippet = rgbFloats;})')
        content = self.read(own)
        names = self.output_of("snippets", "--names").splitlines()
        self.assertEqual(names[11:16], ["VBasic", "UIKit", "Odd", "GLSL", "SwiftUI"])
        self.assertEqual(names.count("GLSL"), 1)
        self.assertEqual(self.output_of("show", "--snippet", "UIKit", "vec3(1.0, 0.502, 0)"), "UIColor(hex: 0xff8000)\n")
        self.assertTrue(self.output_of("show", "UIColor( hex:0xFF8000 )").endswith(
            "  VBasic: RGB(255, 128, 0)\n  UIKit: UIColor(hex: 0xff8000)\n  Odd: odd(255128, 0)\n"
            "  GLSL: vec3(1.000, 0.502, 0.000)\n"))
        rows = {row["name"]: row for row in map(json.loads, self.output_of("snippets", "--json").splitlines())}
        self.assertEqual([rows[name]["from"] for name in ("VBasic", "UIKit", "SwiftUI")], ["settings", "own", "program"])
        self.assertEqual(rows["Odd"]["limits"], ["red is not separated from what follows, so that some lines have two meanings"])
        self.assertEqual(self.read(own), content)

    def test_errors_in_the_users_snippets_are_reported_and_the_others_are_there(self):
        own = self.write(self.path(".local/share/Vantorel/Snippets.plist"),
                         '({NameSnippet = Mine; FormatSnippet = "mine(%d)"; VarsSnippet = rgbPackedInt;}, {NameSnippet = Half;})')
        error = self.error_of("snippets", "--names")
        self.assertEqual(error, f'vantorel: "{own}", entry 2, has no FormatSnippet: write it as {{ NameSnippet = "..."; '
                         'FormatSnippet = "..."; VarsSnippet = ...; }\n')
        run = self.run_program("show", "--snippet", "Mine", "mine(255)")
        self.assertEqual((run.returncode, run.stdout, run.stderr.decode()), (0, b"mine(255)\n", error))
        self.write(own, "(\n{NameSnippet = a b;}\n)")
        self.assertIn(", line 2: this is not a property list: ", self.error_of("snippets"))
        self.assertEqual(self.output_of("show", stdin="#ff8000\n"), "#FF8000\trgb(255, 128, 0)\n", "they are not needed")

    def test_a_style_sheet_is_checked(self):
        self.write(self.path("a.css"), ":root { --sun: #ff8000 }\na { color: var(--sun); background: white }\n")
        self.write(self.path("b.scss"), "$near: #ff8103;\nb { color: #000; background: $near; border-color: rgb(255 128 0 / 50%) }\n")
        self.write(self.path("clean.css"), "a { color: black; background: white }")

        def sheet(*arguments, stdin=b""):
            run = self.run_program("sheet", *arguments, cwd=self.home, stdin=stdin)
            return run.returncode, run.stdout.decode(), run.stderr.decode()

        self.assertEqual(sheet("a.css", "b.scss"), (1, "colours: 5\n  2\t#ff8000\t--sun\n  2\t#ff8103\t$near\n  1\t#ffffff\twhite\n"
                                                    "  1\t#000000\tblack\n  1\t#ff800080\nnear doubles: 1\n"
                                                    "  #ff8000\t#ff8103\t0.22\tb.scss:1\ncontrast below AA: 1\n"
                                                    "  #ff8000\t#ffffff\t2.51\ta.css:2\n", ""))
        for what, status in (("any", 1), ("contrast", 0), ("doubles", 1), ("never", 0)):
            self.assertEqual(sheet("b.scss", "-", "--fail-on", what, stdin=b"p { color: #ff8000 }")[0], status, what)
        self.assertEqual(sheet("clean.css"), (0, "colours: 2\n  1\t#000000\tblack\n  1\t#ffffff\twhite\nnear doubles: 0\n"
                                              "contrast below AA: 0\n", ""))
        found = json.loads(sheet("a.css", "b.scss", "--json")[1])
        self.assertEqual(found["colors"][0], {"hex": "#ff8000", "count": 2, "variables": ["--sun"], "name": None, "file": "a.css", "line": 1})
        self.assertEqual(found["nearDoubles"], [{"first": "#ff8000", "second": "#ff8103", "difference": 0.22, "file": "b.scss", "line": 1}])
        self.assertEqual(found["lowContrasts"], [{"foreground": "#ff8000", "background": "#ffffff", "ratio": 2.51, "file": "a.css", "line": 2}])
        self.write(self.path("Sun.swift"), "let sun = Color(red: 1.000, green: 0.502, blue: 0.000, opacity: 1.000)")
        self.assertIn("  1\t#ff8000\n", sheet("Sun.swift")[1])
        self.write_list("Mine", ["255 128 0 Sun", "0 0 0 Ink"])
        self.assertIn("  2\t#ff8000\t--sun, Sun\n", sheet("a.css", "--list", "Mine")[1])

    def test_pictures_of_style_sheets_have_every_colour(self):
        self.write(self.path("a.css"), "a { color: #ff8000; background: rgb(0 0 255 / 50%) }")
        picture = self.output_of("sheet", "a.css", "--fail-on", "never", "--svg", "-", "--size", "200x100", cwd=self.home)
        self.assertTrue(picture.startswith("<?xml"), picture)
        self.assertIn('width="200" height="100"', picture)
        self.assertIn("#ff8000 x 1", picture)
        self.assertIn('fill="#7f7fff"', picture)
        self.assertNotIn("colours: 2", picture)
        self.assertTrue(self.output_of("sheet", "a.css", "--fail-on", "never", "--png", "a.png", cwd=self.home).startswith("colours: 2"))
        self.assertTrue(self.read(self.path("a.png")).startswith(b"\x89PNG"))
        error = self.error_of("sheet", "a.css", "none.css", cwd=self.home)
        self.assertIn('"none.css" cannot be read', error)

    def test_damaged_settings_count_as_defaults_and_are_kept(self):
        for damage in (b"{ EntryForm = ", b"\xff\x00\xfe", b""):
            path = self.write_settings(damage)
            self.assertTrue(self.output_of("show", "#f80").startswith("hex: #FF8800\n"))
            self.assertEqual(self.read(path), damage)

    def test_names_of_the_users_lists_are_colours(self):
        self.write_list("Mine", ["255 128 0\tPumpkin Pie", "1 2 3\tink"])
        self.write_settings("{HexColorLlst = Mine;}")
        self.assertEqual(self.output_of("show", "--snippet", "VBasic", "Pumpkin Pie", "pumpkin pie", "INK"),
                         "RGB(255, 128, 0)\nRGB(255, 128, 0)\nRGB(1, 2, 3)\n")
        self.assertEqual(self.output_of("name", "#ff8000"), "Pumpkin Pie\n")

    def test_a_missing_list_of_names_is_not_an_error(self):
        self.write_settings("{HexColorLlst = Gone;}")
        self.assertNotIn("name", self.output_of("show", "red"))
        self.assertIn("no colour list with names", self.error_of("name", "red"))

    def test_every_option_in_help_is_tried(self):
        commands = re.findall(r"^  ([a-z]+)  ", self.output_of("--help"), re.M)
        self.assertEqual(len(commands), 31)
        for command in commands + ["list import", "list export", "list publish"]:
            if command == "panel":
                continue
            text = self.output_of(*command.split(), "--help")
            self.assertTrue(text.startswith(f"Usage: vantorel {command}"), text)
            self.assertLessEqual(max(map(len, text.splitlines())), 79)
            options = set(re.findall(r"^  (?:-[a-z], )?(--[a-z-]+)", text, re.M)) - {"--help"}
            tried = {argument.split("=")[0] for arguments, _, _ in EXAMPLES
                     if arguments[:len(command.split())] == command.split() for argument in arguments}
            self.assertEqual(options - tried - TRIED_ELSEWHERE.get(command, set()), set(), command)

    def test_names_cannot_control_a_terminal(self):
        self.write_list("Evil\x1b[2J", ["255 0 0\tred\x1b]0;x\x07\u009b1m"], "evil.gpl")
        for arguments in (["lists"], ["list", "Evil\x1b[2J"], ["name", "red", "--list", "Evil\x1b[2J"],
                          ["show", "red", "--list", "Evil\x1b[2J"], ["nearest", "red", "--list", "Evil\x1b[2J"]):
            printed = self.output_of(*arguments)
            self.assertNotRegex(printed, "[\x00-\x08\x0b-\x1f\x7f-\x9f]", arguments)
        self.assertNotIn("\x1b", self.error_of("list", "\x1b[2J"))


class Panel(ProgramTest):
    SCRIPT = '#!/bin/sh\nprintf "%s\\n" "$@"\nexit 7\n'

    def setUp(self):
        super().setUp()
        self.bin = os.path.join(self.root, "bin")
        self.other = os.path.join(self.root, "other")
        os.mkdir(self.bin)
        os.mkdir(self.other)
        self.copy = os.path.join(self.bin, "vantorel")
        shutil.copy(PROGRAM, self.copy)
        self.environment["PATH"] = self.other + ":/usr/bin:/bin"

    def run_copy(self, *arguments):
        run = subprocess.run([self.copy, *arguments], capture_output=True, env=self.environment, timeout=60)
        return run.returncode, run.stdout.decode(), run.stderr.decode()

    def put_panel(self, folder, script=SCRIPT):
        os.chmod(self.write(os.path.join(folder, "vantorel-panel"), script), 0o755)

    def test_arguments_output_and_status_are_passed_on(self):
        self.put_panel(self.bin)
        for arguments, handed_on in [(["pick"], "--pick\n"), (["pick", "--copy"], "--pick-and-copy\n"), (["choose"], "--choose\n"),
                                     (["choose", "rgb(255 128 0 / 50%)"], "--choose\n--color\n#ff800080\n"),
                                     (["panel"], "\n"), (["panel", "--size", "1x2", "--help", "--"], "--size\n1x2\n--help\n--\n")]:
            with self.subTest(arguments=arguments):
                self.assertEqual(self.run_copy(*arguments), (7, handed_on, ""))

    def test_the_panel_beside_the_program_precedes_that_in_path(self):
        self.put_panel(self.bin, "#!/bin/sh\necho beside\n")
        self.put_panel(self.other, "#!/bin/sh\necho path\n")
        self.assertEqual(self.run_copy("panel"), (0, "beside\n", ""))
        os.remove(os.path.join(self.bin, "vantorel-panel"))
        self.assertEqual(self.run_copy("panel"), (0, "path\n", ""))

    def test_a_missing_panel_is_reported(self):
        os.mkdir(os.path.join(self.bin, "vantorel-panel"))
        self.write(os.path.join(self.other, "vantorel-panel"), "not executable")
        for arguments in (["pick"], ["choose", "red"], ["panel", "--help"]):
            status, printed, message = self.run_copy(*arguments)
            self.assertEqual((status, printed), (2, ""))
            self.assertEqual(message, "vantorel: the program vantorel-panel is missing: install it beside vantorel or in "
                                      "a folder of PATH\n")

    def test_a_panel_that_cannot_be_run_is_reported(self):
        self.put_panel(self.bin, "#!/nowhere\n")
        self.assertEqual(self.run_copy("panel")[0], 2)
        self.assertIn("cannot be run", self.run_copy("panel")[2])


class Languages(ProgramTest):
    def speak(self, **variables):
        self.environment.update(variables)

    def test_messages_and_help_are_in_the_users_language(self):
        self.speak(LANG="de_AT.UTF-8")
        self.assertEqual(self.error_of("show", "redd"),
                         "vantorel: „redd“ ist kein CSS-Farbname: schreiben Sie eine Farbe wie „#ff8000“, "
                         "„rgb(255 128 0)“ oder „orange“\n")
        self.assertEqual(self.error_of("completions", "tcsh"),
                         "vantorel: SHELL kann nicht „tcsh“ sein: verwenden Sie bash, zsh oder fish\n")
        self.assertTrue(self.output_of("list", "--help").startswith("Aufruf: vantorel list "))
        for line in self.output_of("show", "--help").splitlines():
            self.assertLessEqual(len(line), 79)

    def test_the_first_language_with_a_translation_counts(self):
        self.speak(LANG="en_GB.UTF-8", LANGUAGE="xx:fr:de")
        self.assertTrue(self.output_of("--help").startswith("Utilisation : vantorel "))

    def test_a_language_without_translation_is_english(self):
        for language in ("xx_YY", "C", "../../../etc"):
            self.speak(LC_ALL=language)
            self.assertTrue(self.output_of("--help").startswith("Usage: vantorel "), language)

    def test_output_for_programs_is_the_same_in_every_language(self):
        arguments = (["name", "#123"], ["lists"], ["contrast", "white", "black"], ["completions", "bash"])
        english = [self.output_of(*words) for words in arguments]
        self.speak(LC_ALL="de_DE.UTF-8")
        self.assertEqual([self.output_of(*words) for words in arguments], english)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
