"""Runs the program in a temporary home for each test."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM = os.path.abspath(sys.argv[1])
CSS_KEYWORD_COUNT = 17


class ProgramTest(unittest.TestCase):
    def setUp(self):
        self.root = tempfile.mkdtemp()
        self.addCleanup(self.remove_root)
        self.home = os.path.join(self.root, "home")
        os.mkdir(self.home)
        self.environment = {
            "HOME": self.home,
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
            # Files installed on the machine must not affect the test.
            "XDG_DATA_DIRS": os.path.join(self.root, "nothing"),
            "XDG_CONFIG_DIRS": os.path.join(self.root, "nothing"),
        }
        for name, value in os.environ.items():
            if name.startswith(("ASAN_", "UBSAN_", "LSAN_")):
                self.environment[name] = value

    def remove_root(self):
        for folder, _, _ in os.walk(self.root):
            os.chmod(folder, 0o700)
        shutil.rmtree(self.root)

    def path(self, *parts):
        return os.path.join(self.home, *parts)

    def write(self, path, content):
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(content if isinstance(content, bytes) else content.encode())
        return path

    def read(self, path):
        with open(path, "rb") as file:
            return file.read()

    def files_at_home(self):
        return sorted(os.path.relpath(os.path.join(folder, name), self.home)
                      for folder, folders, names in os.walk(self.home) for name in folders + names)

    def run_program(self, *arguments, stdin=b"", **options):
        run = subprocess.run([PROGRAM, *arguments], input=stdin if isinstance(stdin, bytes) else stdin.encode(),
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=self.environment, timeout=120, **options)
        return run

    def output_of(self, *arguments, stdin=b"", **options):
        """Returns the standard output of a run that must succeed."""
        run = self.run_program(*arguments, stdin=stdin, **options)
        self.assertEqual((run.returncode, run.stderr.decode()), (0, ""), arguments)
        return run.stdout.decode()

    def error_of(self, *arguments, stdin=b"", **options):
        """Returns the error message of a run that must fail."""
        run = self.run_program(*arguments, stdin=stdin, **options)
        message = run.stderr.decode()
        self.assertEqual(run.returncode, 2, (arguments, message))
        for line in message.splitlines():
            # What is wrong, and what to do.
            self.assertRegex(line, r"^vantorel: .+: .+", arguments)
        self.assertNotEqual(message, "", arguments)
        return message

    def write_settings(self, text):
        return self.write(self.path(".local/share/Vantorel/Settings.plist"), text)

    def write_list(self, name, rows, file=None):
        text = f"GIMP Palette\nName: {name}\nColumns: 0\n#\n" + "".join(f"{row}\n" for row in rows)
        return self.write(self.path(".local/share/Vantorel/Palettes", file or name + ".gpl"), text)
