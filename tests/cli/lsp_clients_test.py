"""Replays what editors sent to the server when a style sheet was opened and the mouse or cursor was over a colour.

    lsp_clients_test.py PROGRAM

lsp_clients/EDITOR.jsonl has the messages, one per line, with other paths and without the process of the editor.
"""
import json
import os
import pathlib
import sys
import unittest

from lsp_client import Client
from program import PROGRAM, ProgramTest

FOLDER = pathlib.Path(__file__).resolve().parent / "lsp_clients"
# Requests that some clients send although the server does not offer them.
NOT_OFFERED = {"textDocument/documentSymbol"}


class Clients(ProgramTest):
    def replay(self, editor):
        """The results by method, after checking that each request was answered."""
        client = Client([PROGRAM, "lsp"], env=self.environment)
        self.addCleanup(client.close)
        results = {}
        for line in (FOLDER / (editor + ".jsonl")).read_text(encoding="utf-8").splitlines():
            message = json.loads(line)
            client.send(line.encode())
            if "id" in message:
                answer = client.read()
                self.assertEqual(answer["id"], message["id"])
                self.assertEqual("error" in answer, message["method"] in NOT_OFFERED, answer)
                results.setdefault(message["method"], []).append(answer.get("result"))
        client.server.stdin.close()
        client.server.wait(60)
        return results

    def test_neovim(self):
        results = self.replay("neovim")
        self.assertEqual(results["initialize"][0]["capabilities"]["positionEncoding"], "utf-8")
        self.assertEqual(len(results["textDocument/documentColor"][0]), 12)
        self.assertIn("#888888", results["textDocument/hover"][0]["contents"]["value"])

    def test_emacs(self):
        results = self.replay("emacs")
        self.assertEqual(len(results["textDocument/documentColor"][0]), 12)
        titles = [action["title"] for action in results["textDocument/codeAction"][-1]]
        self.assertIn("Change the text colour to #767676: a contrast of 4.54 with the background", titles)
        self.assertIn("Choose in the panel", titles)
        self.assertIn("#888888", results["textDocument/hover"][0]["contents"]["value"])

    def test_kate(self):
        results = self.replay("kate")
        self.assertIn("hsl(40 60% 97%)", results["textDocument/hover"][-1]["contents"]["value"])

    def test_no_recording_is_forgotten(self):
        recorded = {name.split(".")[0] for name in os.listdir(FOLDER)}
        self.assertEqual(recorded, {name[len("test_"):] for name in dir(self) if name.startswith("test_")
                                    and name != "test_no_recording_is_forgotten"})


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
