#!/usr/bin/env python3
"""Runs the examples of the document. Lines after "$ " are shell commands; the following lines are their output.
A line "..." matches any lines.

    document_test.py PROGRAM DOCUMENT
"""
import re
import shutil
import subprocess
import unittest

from program import PROGRAM, ProgramTest, os, sys

with open(sys.argv[2], encoding="utf-8") as file:
    DOCUMENT = file.read()


def examples():
    for block in re.findall(r"^((?:    .*\n)+)", DOCUMENT, re.M):
        lines = [line[4:] for line in block.splitlines()]
        for i, line in enumerate(lines):
            if line.startswith("$ "):
                output = []
                for following in lines[i + 1:]:
                    if following.startswith("$ "):
                        break
                    output.append(following)
                yield line[2:], output


class Document(ProgramTest):
    def setUp(self):
        super().setUp()
        bin_folder = os.path.join(self.root, "bin")
        os.mkdir(bin_folder)
        shutil.copy(PROGRAM, os.path.join(bin_folder, "vantorel"))
        shutil.copytree(os.path.join(os.path.dirname(PROGRAM), "../share"), os.path.join(self.root, "share"))
        user = "#!/bin/sh\n# Picks #ff8000, and chooses what is offered.\n[ \"$1\" = --choose ] && echo \"$3\" || echo '#ff8000'\n"
        os.chmod(self.write(os.path.join(bin_folder, "vantorel-panel"), user), 0o755)
        self.environment["PATH"] = bin_folder + ":" + self.environment["PATH"]
        os.makedirs(self.path(".config/GIMP/2.10/palettes"))
        self.write(self.path("brand.txt"), "#ff8000\tPumpkin\n#102030\tInk\n")
        self.write(self.path("style.css"), "a { color: #ff0000; background: #000080 }\n")

    def test_examples_give_what_the_document_says(self):
        found = list(examples())
        self.assertGreater(len(found), 12)
        for command, output in found:
            with self.subTest(command=command):
                run = subprocess.run(["bash", "-c", command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                     env=self.environment, cwd=self.home, timeout=60)
                pattern = "".join("(.*\n)*" if line == "..." else re.escape(line) + "\n" for line in output)
                printed = run.stdout.decode().replace(self.home, "~")
                self.assertRegex(printed, rf"\A{pattern}\Z")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
