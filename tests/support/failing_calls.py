"""Temporary homes, and programs whose system calls fail in them."""
import errno
import os
import re
import shutil
import signal
import stat
import subprocess
import tempfile
import unittest

NEW_FILE_PREFIX = ".vantorel-"
# Unlike other temporary files it may be left: the next writer uses and removes it.
LOCK_FILE = ".vantorel-lock"
NEVER = "no such call"


class Run:
    def __init__(self, status, output, errors):
        self.status, self.output, self.errors = status, output, errors

    @property
    def was_killed(self):
        return self.status == -signal.SIGKILL


class Home:
    """A user's home folder and its files. Entering it empties it."""

    def __init__(self, folder=None):
        self.around = tempfile.mkdtemp(prefix="vantorel-test-", dir=folder)
        self.path = os.path.join(self.around, "home")

    def __enter__(self):
        os.mkdir(self.path, 0o700)
        return self

    def __exit__(self, *_):
        for folder, _, _ in os.walk(self.path):
            os.chmod(folder, 0o700)
        shutil.rmtree(self.path)

    def remove(self):
        shutil.rmtree(self.around)

    def at(self, *parts):
        return os.path.join(self.path, *parts)

    def write(self, name, content, mode=0o600):
        path = self.at(name)
        os.makedirs(os.path.dirname(path), mode=0o700, exist_ok=True)
        with open(path, "wb") as file:
            file.write(content if isinstance(content, bytes) else content.encode())
        os.chmod(path, mode)
        return path

    def read(self, name):
        with open(self.at(name), "rb") as file:
            return file.read()

    def mode(self, name):
        return stat.S_IMODE(os.stat(self.at(name)).st_mode)

    def names(self):
        return [os.path.relpath(os.path.join(folder, name), self.path)
                for folder, folders, files in os.walk(self.path) for name in folders + files]

    def files(self):
        """The contents of every file, except temporary files of running or killed writers."""
        return {name: self.read(name) for name in self.names()
                if os.path.isfile(self.at(name)) and NEW_FILE_PREFIX not in name}

    def new_files(self):
        return [name for name in self.names() if NEW_FILE_PREFIX in name and not name.endswith(LOCK_FILE)]

    def environment(self, **more):
        kept = {name: value for name, value in os.environ.items() if name.startswith(("ASAN_", "UBSAN_", "LSAN_", "QT_"))}
        return {"HOME": self.path, "PATH": os.environ.get("PATH", "/usr/bin:/bin"), "XDG_DATA_DIRS": self.at("none"),
                "XDG_CONFIG_DIRS": self.at("none"), **kept, **more}

    def run(self, command, stdin="", library=None, at=None, how="", goes_on=False, report=None, **options):
        """Runs a command with "$HOME" replaced by this home."""
        more = {}
        if library is not None:
            more = {"LD_PRELOAD": library, "FAILING_CALLS_FOLDER": self.path, "FAILING_CALLS_HOW": str(how)}
            # The library is loaded before that of the sanitizers, which is harmless.
            more["ASAN_OPTIONS"] = ":".join(filter(None, [os.environ.get("ASAN_OPTIONS"), "verify_asan_link_order=0"]))
            if at is not None:
                more["FAILING_CALLS_AT"] = str(at)
            if goes_on:
                more["FAILING_CALLS_ON"] = "1"
            if report is not None:
                more["FAILING_CALLS_REPORT"] = report
        run = subprocess.run([word.replace("$HOME", self.path) for word in command], stdout=subprocess.PIPE,
                             stderr=subprocess.PIPE, input=stdin.replace("$HOME", self.path).encode(),
                             env=self.environment(**more), timeout=60, check=False, **options)
        return Run(run.returncode, run.stdout.decode(), run.stderr.decode())


# Failures of calls that change something, and of all others.
CHANGING = [errno.ENOSPC, errno.EACCES, errno.EROFS, errno.EIO, errno.EINTR, "kill"]
CHANGING_FROM_THEN_ON = [errno.ENOSPC]
WRITING = ["short", "kill-short"]
LOOKING = [errno.EIO, errno.EACCES]


def ways_to_fail(call, number):
    """Returns (failure, whether later calls fail, too) for line `number` of the report."""
    name, effect, _ = call.split(" ", 2)
    if effect != "!":
        # These are many, so they alternate between both failures.
        return [(LOOKING[number % len(LOOKING)], False), (errno.EINTR, False)]
    return ([(how, False) for how in CHANGING + (WRITING if name == "write" else [])]
            + [(how, True) for how in CHANGING_FROM_THEN_ON])


# Slow builds try only every EVERYth failure.
EVERY = int(os.environ.get("FAILING_CALLS_EVERY", "1"))


def text_of_way(how, goes_on):
    text = errno.errorcode[how] if isinstance(how, int) else how
    return text + (" from then on" if goes_on else "")


class FailingCallsTest(unittest.TestCase):
    """Runs a command with each of its calls failing in each way, and checks the remaining files."""

    preloaded = None
    tried = 0
    calls = 0

    def setUp(self):
        # In memory if possible, because thousands of homes are created.
        self.home = Home("/dev/shm" if os.access("/dev/shm", os.W_OK) else None)
        self.addCleanup(self.home.remove)

    def check_command(self, prepare, command, stdin="", also_whole=(), unlike=(), at_the_end=None):
        """`prepare` fills a home. Contents in `also_whole` may appear under other names; files in `unlike` differ
        between runs. `at_the_end` checks a home in which the command first failed and then succeeded.

        Whatever fails, each file is afterwards what it was before, or what the command makes of it; nothing else is left,
        a failure is reported, and the command does all of its work once nothing fails any more.
        """
        home = self.home
        self.also_whole, self.unlike = also_whole, unlike
        report = os.path.join(home.around, "calls")
        with home:
            prepare(home)
            self.before = home.files()
            run = home.run(command, stdin, self.preloaded, report=report)
            self.after = home.files()
        with open(report, encoding="utf-8", errors="surrogateescape") as file:
            calls = file.read().splitlines()
        self.assertEqual((run.status, run.errors), (0, ""))
        self.assertTrue(self.before != self.after, "the command does nothing")
        self.assertGreater(len(calls), 3)
        FailingCallsTest.calls += len(calls)
        ways = [(number, call, *way) for number, call in enumerate(calls, 1) for way in ways_to_fail(call, number)]
        for number, call, how, goes_on in ways[::EVERY]:
            FailingCallsTest.tried += 1
            with home, self.subTest(call=f"{number}: {call}", how=text_of_way(how, goes_on)):
                prepare(home)
                run = home.run(command, stdin, self.preloaded, number, how, goes_on)
                self.look_at(run, how, goes_on)
                if home.files() != self.after or home.new_files():
                    self.look_at_another_run(home.run(command, stdin))
                if at_the_end is not None:
                    at_the_end(home)

    def look_at(self, run, how, goes_on):
        kills = str(how).startswith("kill")
        if kills:
            self.assertTrue(run.was_killed, run.errors)
        else:
            self.assertIn(run.status, (0, 1, 2), run.errors)
        if not kills and not goes_on:
            self.assertEqual(self.home.new_files(), [], "left behind")
        found = self.check_whole()
        if how == errno.EINTR:
            self.assertEqual(run.status, 0, run.errors)
            self.assertTrue(found == self.after, "an interrupted call is made again")
        somewhere = {self.without_name(content) for content in found.values()}
        if not kills and any(self.without_name(content) not in somewhere for content in self.after.values()):
            self.assertNotEqual(run.errors, "", "not a word about it")

    @staticmethod
    def without_name(palette):
        """A list whose name is taken gets another name."""
        return palette and re.sub(rb"^Name: .*\n", b"", palette, flags=re.MULTILINE)

    def check_whole(self):
        found = self.home.files()
        for name in {*self.before, *self.after, *found} - {*self.unlike}:
            versions = [self.before.get(name), self.after.get(name)]
            if name not in self.before and name not in self.after:
                versions += [*self.before.values(), *self.after.values()]
                self.assertTrue(any(part in name for part in self.also_whole), f"{name} has come up")
            self.assertTrue(self.without_name(found.get(name)) in map(self.without_name, versions), f"{name} is neither the old one nor the new one")
        return found

    def look_at_another_run(self, run):
        self.assertEqual(self.home.new_files(), [], "left behind after another run")
        self.assertEqual(run.status, 0, run.errors)
        found = self.check_whole()
        for name in {*self.after} - {*self.unlike}:
            self.assertTrue(found.get(name) == self.after[name], f"{name} after another run")
