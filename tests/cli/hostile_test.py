#!/usr/bin/env python3
"""Hostile input and environments.

    hostile_test.py PROGRAM
"""
import contextlib
import random
import resource
import signal
import subprocess
import unittest

from program import PROGRAM, ProgramTest, os, sys

LONGEST_LINE = 65536


class Hostile(ProgramTest):
    def test_a_line_that_is_too_long_is_skipped(self):
        for longer in (1, 300000, 2000000):
            for ending in ("\n#010203\n", ""):
                with self.subTest(longer=longer, ending=ending):
                    run = self.run_program("show", stdin="red\n" + " " * (LONGEST_LINE + longer) + ending)
                    self.assertEqual(run.stderr, b"vantorel: standard input, line 2: the line is longer than 64 KiB: "
                                                 b"give one colour per line\n")
                    self.assertEqual((run.returncode, run.stdout.count(b"\n")), (2, 2 if ending else 1))

    def test_the_longest_line_is_read(self):
        line = "#010203" + " " * (LONGEST_LINE - 7)
        self.assertEqual(self.output_of("show", stdin=line + "\n" + line), "#010203\trgb(1, 2, 3)\n" * 2)

    def test_lines_come_in_any_pieces(self):
        process = subprocess.Popen([PROGRAM, "show"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, env=self.environment, bufsize=0)
        for piece in (b"#0", b"10203\n#", b"0", b"40506", b"\n\n"):
            process.stdin.write(piece)
        # Each line is answered before the next is read.
        self.assertEqual(os.read(process.stdout.fileno(), 1000)[:8], b"#010203\t")
        rest, _ = process.communicate(b"red")
        self.assertTrue(rest.endswith(b"#FF0000\trgb(255, 0, 0)\n"))
        self.assertEqual(process.returncode, 0)

    def test_bytes_that_are_not_text_are_reported(self):
        generator = random.Random(4)
        for stdin in (bytes(range(256)), generator.randbytes(200000), b"\0" * 100000, b"\n" * 100000, b"\xff\xfe#\0f\0", b"\0"):
            for command in ("show", "name"):
                run = self.run_program(command, stdin=stdin)
                self.assertIn(run.returncode, (0, 2))
                # The number of messages is limited.
                self.assertLessEqual(run.stderr.count(b"\n"), 101)
                self.assertNotRegex(run.stderr, rb"[\x00-\x09\x0b-\x1f\x7f]")

    def test_messages_beyond_a_hundred_are_only_counted(self):
        run = self.run_program("show", stdin="x\n" * 1234 + "red\n")
        self.assertEqual(run.stderr.splitlines()[-1],
                         b"vantorel: standard input has 1134 more lines that are not colours: give one colour per line")
        self.assertEqual((run.returncode, run.stdout), (2, b"#FF0000\trgb(255, 0, 0)\n"))

    def test_giant_arguments(self):
        for text in ("#" + "f" * 100000, "rgb(" * 30000, "x" * 130000, "rgb(" + "9" * 100000 + " 0 0)"):
            run = self.run_program("show", "--", text)
            self.assertIn(run.returncode, (0, 2))
            self.assertLess(len(run.stderr), 400)

    def test_arguments_that_are_not_text(self):
        run = subprocess.run([PROGRAM, b"show", b"\xff\x1b[2J\n"], capture_output=True, env=self.environment)
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertEqual((run.stderr.count(b"\n"), run.stderr.count(b"\x1b")), (1, 0))

    def test_a_stream_needs_little_memory(self):
        limit = 64 << 20
        if self.is_sanitized():
            self.skipTest("sanitizers need address space of their own")
        lines = b"#12ab9f\nrgb(1 2 3)\n" * 500000
        run = self.run_program("show", stdin=lines, preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (limit, limit)))
        self.assertEqual((run.returncode, run.stdout.count(b"\n")), (0, 1000000))
        run = self.run_program("show", stdin=b"x" * (limit * 2),
                               preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (limit, limit)))
        self.assertEqual((run.returncode, run.stderr.count(b"\n")), (2, 1))

    def is_sanitized(self):
        with open(PROGRAM, "rb") as file:
            return b"__asan_init" in file.read()

    def test_a_reader_that_goes_away_ends_it_quietly(self):
        for arguments, stdin in ((["show"], b"#ff8000\n" * 1000000), (["wheel", "--rings", "128", "--svg", "-"], b"")):
            for restore in (True, False):
                process = subprocess.Popen([PROGRAM, *arguments], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                           stderr=subprocess.PIPE, env=self.environment, restore_signals=restore)
                if stdin:
                    process.stdin.write(stdin[:16])
                    process.stdin.flush()
                process.stdout.read(10)
                process.stdout.close()
                try:
                    process.stdin.write(stdin)
                except BrokenPipeError:
                    pass
                with contextlib.suppress(BrokenPipeError):
                    process.stdin.close()
                self.assertEqual(process.stderr.read(), b"")
                process.stderr.close()
                # If the signal is ignored, the exit status reports the failure.
                self.assertEqual(process.wait(60), -signal.SIGPIPE if restore else 2)

    def test_standard_output_that_cannot_be_written(self):
        for redirection in (">&-", "> /dev/full"):
            for arguments in ("show red", "lists", "--help", "--version", "manpage", "completions zsh", "contrast red blue"):
                run = self.shell(f'"$0" {arguments} {redirection}')
                self.assertEqual(run.returncode, 2, (redirection, arguments))
                self.assertRegex(run.stderr.decode(), r"\Avantorel: standard output cannot be written \(.*\): .*\n\Z")

    def test_standard_input_that_cannot_be_read(self):
        for redirection in ("<&-", "< /"):
            run = self.shell(f'"$0" show {redirection}')
            self.assertEqual((run.returncode, run.stderr.decode()),
                             (2, "vantorel: standard input cannot be read: give colours as arguments, or redirect standard "
                                 "input from a file or program\n"))

    def test_no_message_is_written_into_a_file(self):
        # Standard error is closed, so the next opened file would get its number.
        file = os.path.join(self.root, "x.css")
        run = self.shell(f'"$0" list export "CSS Keyword" --format css --output {file} 2>&- <&-; "$0" show nope 2>&-')
        self.assertEqual(run.returncode, 2)
        self.assertTrue(self.read(file).endswith(b"}\n"))

    def shell(self, command):
        return subprocess.run(["sh", "-c", command, PROGRAM], capture_output=True, env=self.environment, timeout=60)

    def test_without_a_home_the_default_settings_apply(self):
        self.environment["HOME"] = "nowhere"
        usual = self.output_of("show", "red")
        for home in ("/nowhere", "/dev/null", self.path("missing")):
            self.environment["HOME"] = home
            self.assertEqual(self.output_of("show", "red"), usual)
            self.assertEqual(len(self.output_of("lists").splitlines()), 4)
        self.assertEqual(self.files_at_home(), [])

    def test_commands_that_need_a_home_say_so(self):
        file = self.write(os.path.join(self.root, "x.txt"), "red\tr\n")
        self.environment["HOME"] = "/dev/null"
        self.assertIn("cannot be saved", self.error_of("list", "import", file))

    def test_a_read_only_home(self):
        if os.geteuid() == 0:
            self.skipTest("root may write anywhere")
        self.write_list("Mine", ["1 2 3\tone"])
        file = self.write(os.path.join(self.root, "x.txt"), "red\tr\n")
        for folder, _, _ in os.walk(self.home):
            os.chmod(folder, 0o500)
        self.assertEqual(self.output_of("list", "Mine"), "#010203\tone\n")
        self.assertIn("cannot be saved", self.error_of("list", "import", file))

    def test_damaged_and_unusual_lists(self):
        folder = self.path(".local/share/Vantorel/Palettes")
        self.write(os.path.join(folder, "a.gpl"), b"\0" * 1000)
        self.write(os.path.join(folder, "b.gpl"), b"GIMP Palette\nName: B\n" + b"x\n" * 10000 + b"1 2 3\tone\n")
        os.mkfifo(os.path.join(folder, "c.gpl"))
        os.symlink("d.gpl", os.path.join(folder, "d.gpl"))
        os.mkdir(os.path.join(folder, "e.gpl"))
        self.assertEqual(self.output_of("list", "B"), "#010203\tone\n")
        run = self.run_program("lists")
        self.assertEqual((run.returncode, len(run.stdout.splitlines())), (2, 5))
        self.assertEqual([name in run.stderr.decode() for name in ("a.gpl", "b.gpl", "c.gpl", "d.gpl", "e.gpl")],
                         [False, False, True, False, False])

    def test_lists_reports_files_that_are_too_large(self):
        file = self.write(self.path(".local/share/Vantorel/Palettes/Large.gpl"), "GIMP Palette\nName: Large\n")
        os.truncate(file, (64 << 20) + 1)
        for options in ([], ["--json"], ["--names"]):
            run = self.run_program("lists", *options)
            self.assertEqual((run.returncode, len(run.stdout.splitlines())), (2, 4))
            self.assertIn(f'"{file}" cannot be read: File too large', run.stderr.decode())

    def test_snippets_with_hostile_formats(self):
        self.write_settings('{CodeSnippets = ({NameSnippet = "x\\033[2J"; FormatSnippet = "%n%s%999999999d%*d\\033]0;";'
                            ' VarsSnippet = rgbFixed;}, {NameSnippet = y;});}')
        printed = self.output_of("show", "red")
        self.assertNotIn("\x1b", printed)
        self.assertIn("  y: ??\n", printed)

    def test_colours_far_outside_are_computed_with(self):
        colors = ["color(xyz 1e300 -1e300 5)", "oklch(100% 1e308 3e300)", "lab(50 calc(infinity) calc(-infinity))",
                  "rgb(calc(NaN) 1 2)", "color(srgb 1e40 1e40 1e40)", "color(srgb -1e40 -1e40 -1e40)",
                  "color(prophoto-rgb -1e9 1e9 0)", "hsl(1e308 1e308% 50%)", "oklch(none none none / none)"]
        for command in ("lighten 0.5", "darken 1 --in lch", "saturate 1 --in oklch", "desaturate 1", "rotate 1e308", "complement",
                        "mix red", "mix red --in lch", "gradient -n 3 --in xyz", "scale", "scale --kind tones", "distinct 12 -",
                        "sort", "sort --by luminance", "nearest", "simulate grey", "simulate tritanopia"):
            for form in ("hex", "oklch", "xyz"):
                printed = self.output_of(*command.split(), "--to", form, stdin="\n".join(colors))
                self.assertNotRegex(printed, "nan|inf", command)
                if form == "hex":
                    self.assertRegex(printed, r"\A(#[0-9a-f]{6}([0-9a-f]{2})?(\t[a-z]+)?\n)+\Z", command)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
