#!/usr/bin/env python3
"""Publishes lists and opens them in GIMP 2.10. Skipped if that is not installed, because it is large.

    gimp_test.py PROGRAM

By hand: tests/cli/gimp_test.py build/release/bin/vantorel prints what GIMP reads of each palette.
"""
import re
import shutil

from program import ProgramTest, subprocess, sys, unittest

GIMP = shutil.which("gimp-console-2.10")

# GIMP writes its messages to standard error, each followed by an empty line.
PRINT_PALETTE = """
(define (print-palette name)
  (let ((count (car (gimp-palette-get-info name))) (i 0))
    (gimp-message (string-append "palette " name))
    (while (< i count)
      (let ((color (car (gimp-palette-entry-get-color name i))))
        (gimp-message (string-append
          (number->string (car color)) " " (number->string (cadr color)) " " (number->string (caddr color)) " "
          (car (gimp-palette-entry-get-name name i)))))
      (set! i (+ i 1)))))
"""

LISTS = {
    "brand": [(255, 128, 0, "Pumpkin"), (16, 32, 48, "Ink"), (0, 0, 0, "Black"), (255, 255, 255, "White")],
    "Käse & Öl": [(250, 200, 60, "Ümläute"), (1, 2, 3, 'A "quoted" name'), (7, 8, 9, "two  blanks # and a sign")],
    "thousand": [(i % 256, i // 4, 255 - i % 200, f"colour {i}") for i in range(1000)],
}


class GimpTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.environment["LC_ALL"] = "C.UTF-8"
        # GIMP needs its own data; installed palettes come with it.
        self.environment["XDG_DATA_DIRS"] = "/usr/local/share:/usr/share"
        # The first start creates the folder for the user's palettes.
        self.gimp()

    def gimp(self, *batches):
        words = [GIMP, "--no-interface", "--console-messages"]
        for batch in (*batches, "(gimp-quit 0)"):
            words += ["--batch", batch]
        run = subprocess.run(words, capture_output=True, env=self.environment, timeout=200, check=True)
        return run.stdout.decode() + run.stderr.decode()

    def palettes_in_gimp(self):
        """The colours of each list in order; empty if GIMP does not know the palette."""
        # Definitions of one batch are unknown in the next.
        printed = self.gimp(*(f'{PRINT_PALETTE} (print-palette "{name}")' for name in LISTS))
        palettes = {name: None for name in re.findall(r"Palette '(.*)' not found", printed)}
        for line in re.findall(r"script-fu-Warning: (.*)", printed):
            name = line.removeprefix("palette ")
            if name != line:
                palettes[name] = colors = []
                continue
            if len(colors) < 4:
                print(f"GIMP, {list(palettes)[-1]}: {line}")
            red, green, blue, entry = line.split(" ", 3)
            colors.append((int(red), int(green), int(blue), entry))
        return palettes

    def test_gimp_opens_published_lists_until_publishing_is_undone(self):
        for name, colors in LISTS.items():
            self.write_list(name, [f"{r} {g} {b}\t{entry}" for r, g, b, entry in colors])
        self.assertEqual(self.palettes_in_gimp(), dict.fromkeys(LISTS))
        for name in LISTS:
            self.assertIn("written for GIMP: ", self.output_of("list", "publish", name))
        self.assertEqual(self.palettes_in_gimp(), LISTS)
        for name in LISTS:
            self.output_of("list", "publish", name, "--undo")
        self.assertEqual(self.palettes_in_gimp(), dict.fromkeys(LISTS))


if __name__ == "__main__":
    if GIMP is None:
        print("skipped: gimp-console-2.10 is not installed")
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
