"""Starts editors with the blocks of the document, and looks at what they show. Exits with 77 if none is installed.

    lsp_editors_test.py PROGRAM DOCUMENT
"""
import os
import re
import shutil
import subprocess
import sys
import unittest

from program import PROGRAM, ProgramTest

with open(sys.argv[2], encoding="utf-8") as file:
    DOCUMENT = file.read()

SHEET = ":root { --accent: #ff8000; }\na { color: var(--accent); fill: RGB(1 2 3) } /* ä red */\n#add { top: tan(1) }\n"


def block(heading):
    """The first block of code below a heading."""
    return re.search(rf"^## {heading}\n.*?^```\w+\n(.*?)^```", DOCUMENT, re.M | re.S).group(1)


class Editors(ProgramTest):
    def setUp(self):
        super().setUp()
        folder = os.path.join(self.root, "bin")
        os.mkdir(folder)
        os.symlink(PROGRAM, os.path.join(folder, "vantorel"))
        self.environment["PATH"] = folder + ":" + self.environment["PATH"]
        self.sheet = self.write(self.path("style.css"), SHEET)

    def run_editor(self, *arguments):
        run = subprocess.run(arguments, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, env=self.environment,
                             cwd=self.home, timeout=120, stdin=subprocess.DEVNULL)
        return run.stdout.decode(errors="replace")

    @unittest.skipUnless(shutil.which("nvim"), "neovim is not installed")
    def test_neovim_shows_the_colours(self):
        configuration = self.write(self.path("init.lua"), block("Neovim"))
        self.write(self.path("look.lua"), """
            local function marks()
              return vim.api.nvim_buf_get_extmarks(0, vim.api.nvim_create_namespace("vantorel"), 0, -1, { details = true })
            end
            vim.wait(60000, function() return #marks() > 0 end)
            for _, mark in ipairs(marks()) do
              io.write(table.concat(vim.api.nvim_buf_get_text(0, mark[2], mark[3], mark[4].end_row, mark[4].end_col, {})),
                " is ", mark[4].hl_group, "\\n")
            end
            vim.cmd("quit")
            """)
        printed = self.run_editor("nvim", "--headless", "-u", configuration, self.sheet, "+luafile look.lua")
        self.assertEqual(printed.replace("\r", "").splitlines(),
                         ["#ff8000 is Vantorelff8000", "var(--accent) is Vantorelff8000", "RGB(1 2 3) is Vantorel010203"])

    @unittest.skipUnless(shutil.which("emacs") and os.path.isdir("/usr/share/emacs/site-lisp/elpa")
                         and any(name.startswith("lsp-mode") for name in os.listdir("/usr/share/emacs/site-lisp/elpa")),
                         "emacs with lsp-mode is not installed")
    def test_emacs_shows_the_colours(self):
        configuration = self.write(self.path("init.el"), block("Emacs"))
        look = self.write(self.path("look.el"), """
            (setq lsp-auto-guess-root t lsp-warn-no-matched-clients nil lsp-enable-suggest-server-download nil)
            (find-file "style.css")
            (lsp)
            (let ((count 600))
              (while (and (> count 0) (null (overlays-in (point-min) (point-max))))
                (setq count (1- count))
                (accept-process-output nil 0.1)
                (when (lsp-workspaces) (lsp--document-color))))
            (dolist (each (sort (overlays-in (point-min) (point-max))
                                (lambda (a b) (< (overlay-start a) (overlay-start b)))))
              (when (overlay-get each 'before-string)
                (princ (format "COLOUR %s\\n" (buffer-substring (overlay-start each) (overlay-end each))))))
            """)
        self.environment["LC_ALL"] = "C.UTF-8"
        printed = self.run_editor("emacs", "--batch", "--eval", "(package-initialize)", "-l", configuration, "-l", look)
        self.assertEqual(re.findall("^COLOUR (.*)$", printed, re.M), ["#ff8000", "var(--accent)", "RGB(1 2 3)"], printed)


if __name__ == "__main__":
    program = unittest.main(argv=sys.argv[:1], exit=False)
    if not program.result.wasSuccessful():
        sys.exit(1)
    if len(program.result.skipped) == program.result.testsRun:
        print("no editor is installed")
        sys.exit(77)
