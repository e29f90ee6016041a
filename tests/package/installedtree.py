"""Shared code of the tests of an installed tree.

    NAME_test.py TREE SOURCES BUILD
"""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

TREE, SOURCES, BUILD = map(os.path.abspath, sys.argv[1:4])
MISSING_TOOL = 77
missing = []


def text_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def files_below(folder):
    return sorted(os.path.relpath(os.path.join(place, name), folder)
                  for place, _, names in os.walk(folder) for name in names)


class TreeTest(unittest.TestCase):
    def setUp(self):
        self.scratch = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.scratch)
        self.environment = {
            **os.environ, "HOME": self.scratch, "XDG_RUNTIME_DIR": self.scratch, "LC_ALL": "C.UTF-8",
            **{name: os.path.join(self.scratch, name) for name in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_DIRS")}}
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "DESTDIR"):
            self.environment.pop(name, None)

    def need(self, tool):
        if shutil.which(tool) is None:
            missing.append(tool)
            self.skipTest(tool + " is not installed")

    def run_tool(self, *words, **options):
        return subprocess.run(words, capture_output=True, text=True, cwd=self.scratch, timeout=120,
                              check=False, env=self.environment, **options)

    def passes(self, *words):
        """Runs a tool that must succeed without complaints, and returns its output."""
        self.need(words[0])
        run = self.run_tool(*words)
        self.assertEqual((run.returncode, run.stderr), (0, ""), run.stdout)
        return run.stdout


def main():
    failed = not unittest.main(argv=sys.argv[:1], exit=False).result.wasSuccessful()
    # A missing tool must be reported.
    sys.exit(1 if failed else MISSING_TOOL if missing else 0)
