#!/usr/bin/env python3
"""Tests the manual page and the completions with the programs that read them.

    descriptions_test.py PROGRAM
"""
import re
import shutil
import subprocess
import unittest

from program import PROGRAM, ProgramTest, os, sys

TRANSLATIONS = os.path.join(os.path.dirname(PROGRAM), "../share/vantorel/translations")
# English first, which is the language without a translation.
LANGUAGES = ["C", *sorted(name.removeprefix("vantorel_").removesuffix(".ts") for name in os.listdir(TRANSLATIONS))]


class Descriptions(ProgramTest):
    def commands(self):
        names = re.findall(r"^  ([a-z]+)  ", self.output_of("--help"), re.M)
        return names + [f"list {name}" for name in ("import", "export", "publish")]

    def need(self, program):
        if shutil.which(program) is None:
            self.skipTest(program + " is not installed")

    def test_the_manual_page_has_every_command_and_option(self):
        page = self.output_of("manpage").replace("\\-", "-")
        for command in self.commands():
            section = re.search(rf"^\.SS vantorel {command}\b(.*?)(?=^\.S[SH])", page, re.M | re.S)
            self.assertIsNotNone(section, command)
            if command == "panel":
                continue
            for option in re.findall(r"^  ((?:-[a-z], )?--[a-z-]+)", self.output_of(*command.split(), "--help"), re.M):
                if option != "-h, --help":
                    self.assertIn(".B " + option, section.group(0), command)

    def page_in(self, language, *options):
        """Returns the path of a manual page in a language."""
        self.environment["LC_ALL"] = language
        return self.write(os.path.join(self.root, f"page.{language}.1"), self.output_of("manpage", *options))

    def test_man_has_no_warnings(self):
        self.need("man")
        for language in LANGUAGES:
            run = subprocess.run(["man", "--warnings", "-l", self.page_in(language)], capture_output=True, timeout=60,
                                 env={**self.environment, "LC_ALL": "C.UTF-8", "MANWIDTH": "80", "MAN_DISABLE_SECCOMP": "1"})
            self.assertEqual((run.returncode, run.stderr), (0, b""), language)
            self.assertIn("vantorel list export --format FORMAT [OPTION...] NAME", run.stdout.decode().replace("\u2010", "-"))

    def test_mandoc_has_no_warnings(self):
        self.need("mandoc")
        for language in LANGUAGES:
            # The page has no date, so that builds are reproducible.
            run = subprocess.run(["mandoc", "-T", "lint", "-W", "warning", self.page_in(language)], capture_output=True, timeout=60)
            problems = [line for line in run.stdout.decode().splitlines() if "missing date" not in line]
            self.assertEqual(problems, [], language)

    def test_the_manual_page_is_in_the_users_language(self):
        english = self.read(self.page_in("C")).decode().splitlines()
        self.assertEqual([line for line in english if line.startswith(".SH ")],
                         [".SH " + title for title in ("NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "COMMANDS", "EXIT STATUS",
                                                       "ENVIRONMENT", "FILES", "EXAMPLES", "SEE ALSO")])
        for options in ((), ("--panel",)):
            english = self.read(self.page_in("C", *options)).decode().splitlines()
            # What people read; not requests, terms, the synopsis and examples.
            texts = {line for before, line in zip(english, english[1:])
                     if not line.startswith((".", "[")) and line.endswith(".") and not before.startswith(".SH NAME")}
            self.assertGreater(len(texts), 20)
            for language in LANGUAGES[1:]:
                translated = self.read(self.page_in(language, *options)).decode().splitlines()
                self.assertEqual(len(translated), len(english), language)
                self.assertEqual(texts & set(translated), set(), language)

    def test_whatis_finds_the_name_in_each_language(self):
        self.need("lexgrog")
        for language in LANGUAGES:
            run = subprocess.run(["lexgrog", self.page_in(language)], capture_output=True, timeout=60,
                                 env={**self.environment, "LC_ALL": "C.UTF-8"})
            self.assertRegex(run.stdout.decode(), r': "vantorel - .+"\n$', language)

    def test_descriptions_of_completions_are_in_the_users_language(self):
        self.environment["LC_ALL"] = "de"
        for shell in ("zsh", "fish"):
            script = self.output_of("completions", shell)
            for text in ("Zeichnet das Farbrad.", "Zeigt diese Hilfe.", "Schreibt Hex-Ziffern klein."):
                self.assertIn(text, script, shell)
            self.assertNotIn("Draw the colour wheel", script)

    def complete_in_bash(self, *words):
        script = self.output_of("completions", "bash")
        lines = " ".join("'" + word + "'" for word in (PROGRAM,) + words)
        run = subprocess.run(["bash", "-c", f"{script}\nCOMP_WORDS=({lines}); COMP_CWORD={len(words)}; _vantorel\n"
                              'printf "%s\\n" "${COMPREPLY[@]}"'], capture_output=True, cwd=self.root, env=self.environment, timeout=60)
        self.assertEqual(run.stderr, b"")
        return set(run.stdout.decode().splitlines()) - {""}

    def test_bash_completes_commands_options_and_values(self):
        self.need("bash")
        self.write(os.path.join(self.root, "palette.gpl"), "x")
        for words, completions in [
            (("she",), {"sheet"}), (("sh",), {"show", "sheet"}), (("sheet", "--fail-on", "d"), {"doubles"}), (("simulate", "d"), {"deuteranopia"}), (("sort", "--by", "c"), {"chroma", "contrast"}),
            (("nearest", "--list", "C"), {"CSS Color 4", "CSS Keyword"}), (("show", "--l"), {"--lowercase", "--list"}), (("list", "p"), {"publish", "palette.gpl"} - {"palette.gpl"}),
            (("list", "export", "x", "--format", "s"), {"scss", "soc", "svg"}), (("completions", ""), {"bash", "zsh", "fish", "-h", "--help", "--panel"}),
            (("list", "import", "pal"), {"palette.gpl"}), (("palette", "x", "--svg", "pal"), {"palette.gpl"}),
            (("show", "--list", ""), {"Browser Safe", "CSS Color 4", "CSS Keyword", "SVG Keyword"}),
            (("palette", "CSS\\ K"), {"CSS Keyword"}), (("list", "export", '"CSS K'), {"CSS Keyword"}),
            (("list", "S"), {"SVG Keyword"}), (("show", "--snippet", "VB"), {"VBasic"}),
            (("panel", "--screen"), {"--screenshot"}), (("panel", "--mode", ""), {"slider", "palette", "wheel"}),
            (("list", "publish", "--u"), {"--undo"}), (("--v",), {"--version"}), (("mix", "--in", "ok"), {"oklab", "oklch"}),
            (("gradient", "--h"), {"--help", "--hue"}), (("gradient", "-n", ""), set()),
        ]:
            with self.subTest(words=words):
                self.assertEqual(self.complete_in_bash(*words), completions)

    def test_bash_knows_every_command(self):
        self.need("bash")
        for command in self.commands():
            self.assertIn(command.split()[-1], self.complete_in_bash(*command.split()[:-1], ""), command)

    def complete_in_fish(self, line):
        script = self.write(os.path.join(self.root, "vantorel.fish"), self.output_of("completions", "fish"))
        run = subprocess.run(["fish", "--no-config", "-c", f"source {script}; complete -C'{line}'"], capture_output=True,
                             env={**self.environment, "PATH": os.path.dirname(PROGRAM) + ":" + self.environment["PATH"]},
                             cwd=self.root, timeout=60)
        self.assertEqual(run.stderr, b"")
        return {row.split("\t")[0] for row in run.stdout.decode().splitlines()}

    def test_fish_completes_commands_options_and_values(self):
        self.need("fish")
        self.write(os.path.join(self.root, "palette.gpl"), "x")
        self.assertEqual({name for name in self.complete_in_fish("vantorel ") if not name.startswith("-")},
                         {name for name in self.commands() if " " not in name})
        self.assertEqual(self.complete_in_fish("vantorel show --lo"), {"--lowercase"})
        self.assertEqual(self.complete_in_fish("vantorel list export --format s"), {"scss", "soc", "svg"})
        self.assertEqual(self.complete_in_fish("vantorel list imp"), {"import"})
        self.assertEqual(self.complete_in_fish("vantorel completions "), {"bash", "zsh", "fish"})
        self.assertEqual(self.complete_in_fish("vantorel list import pal"), {"palette.gpl"})
        self.assertEqual(self.complete_in_fish("vantorel show --list SVG"), {"SVG Keyword"})
        self.assertEqual(self.complete_in_fish("vantorel show --snippet VB"), {"VBasic"})
        self.assertEqual(self.complete_in_fish("vantorel panel --screen"), {"--screenshot"})

    def test_zsh_loads_the_completions(self):
        self.need("zsh")
        script = self.write(os.path.join(self.root, "_vantorel"), self.output_of("completions", "zsh"))
        run = subprocess.run(["zsh", "-f", "-c", f"autoload -Uz compinit && compinit -u -D && source {script} && "
                              "print $_comps[vantorel] && whence -w _vantorel_list_export"],
                             capture_output=True, env=self.environment, timeout=60)
        self.assertEqual((run.stderr, run.stdout), (b"", b"_vantorel\n_vantorel_list_export: function\n"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
