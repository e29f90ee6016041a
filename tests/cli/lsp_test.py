"""`vantorel lsp` with a client: a usual session, damaged input, floods, cancelled requests, and the end of either.

    lsp_test.py PROGRAM
"""
import json
import os
import shutil
import signal
import subprocess
import sys
import unittest

from lsp_client import Client
from program import PROGRAM, ProgramTest

URI = "file:///styles/a.css"


def text_at(text, where):
    """The text of a range, whose columns are UTF-16."""
    lines = [line.encode("utf-16-le") for line in text.split("\n")]
    start, end = where["start"], where["end"]
    assert start["line"] == end["line"]
    return lines[start["line"]][2 * start["character"]:2 * end["character"]].decode("utf-16-le")


def peak_memory(pid):
    """In bytes."""
    with open(f"/proc/{pid}/status", encoding="ascii") as status:
        return next(int(line.split()[1]) << 10 for line in status if line.startswith("VmHWM:"))


class LspTest(ProgramTest):
    def client(self, program=PROGRAM):
        client = Client([program, "lsp"], env=self.environment)
        self.addCleanup(client.close)
        return client

    def assert_works(self, client):
        client.open(URI, "css", "a { color: red }")
        self.assertEqual(len(client.colors(URI)), 1)

    def test_a_session(self):
        client = self.client()
        capabilities = client.initialize()["capabilities"]
        self.assertTrue(capabilities["colorProvider"])
        text = ":root { --accent: #FF8000 } /* 😀 red */\na { color: VAR(--accent, tan); fill: RGB(1 2 3) }"
        client.open(URI, "css", text)
        self.assertEqual([text_at(text, each["range"]) for each in client.colors(URI)],
                         ["#FF8000", "VAR(--accent, tan)", "tan", "RGB(1 2 3)"])
        self.assertEqual(client.result("shutdown"), None)
        client.notify("exit")
        self.assertEqual(client.server.wait(60), 0)

    def test_the_option_of_some_editors_has_no_effect(self):
        client = Client([PROGRAM, "lsp", "--stdio"], env=self.environment)
        self.addCleanup(client.close)
        client.initialize()
        self.assert_works(client)

    def test_settings_and_lists_are_those_of_the_user(self):
        self.write(self.path(".local/share/Vantorel/Palettes/Mine.gpl"),
                   "GIMP Palette\nName: Mine\n1 2 3 My Colour\n")
        self.write(self.path(".local/share/Vantorel/Settings.plist"),
                   '{ EntryForm = Lowercase; HexColorLlst = Mine; CodeSnippets = '
                   '({ NameCodeSnippet = S; FormatCodeSnippet = "S(%d,%d,%d)"; VarFormCodeSnippet = rgbFixed; }); }')
        client = self.client()
        client.initialize()
        client.open(URI, "css", "a { color: #ABCDEF }")
        where = {"start": {"line": 0, "character": 11}, "end": {"line": 0, "character": 18}}
        presentations = client.result("textDocument/colorPresentation", {
            "textDocument": {"uri": URI}, "range": where, "color": {"red": 1, "green": 0, "blue": 0, "alpha": 1}})
        self.assertEqual(presentations[0]["label"], "#ff0000")
        hover = client.result("textDocument/hover", {"textDocument": {"uri": URI}, "position": where["start"]})
        self.assertIn("My Colour (Mine)", hover["contents"]["value"])

    def test_the_exit_status_tells_whether_there_was_a_shutdown(self):
        client = self.client()
        client.initialize()
        client.notify("exit")
        self.assertEqual(client.server.wait(60), 1)
        client = self.client()
        client.initialize()
        client.result("shutdown")
        client.server.stdin.close()
        self.assertEqual(client.server.wait(60), 0)

    def test_damaged_input_is_survived(self):
        client = self.client()
        client.initialize()
        good = json.dumps({"jsonrpc": "2.0", "id": "good", "method": "unknown"}).encode()
        for damage in (b"\r\n\r\n", b"Content-Length: -5\r\n\r\n", b"Content-Length: 1\r\n\r\n{}}}}",
                       b"Content-Length: 3\r\n\r\n\xff\xff\xff", b"\0" * 10000, b"Content-Length: 1000\r\n\r\n{}",
                       b"Content-Length: 99999999999999\r\n\r\n"):
            client.write(damage)
            # The first may be part of a message with a wrong length.
            for _ in range(40):
                client.send(good)
            while client.read()["id"] != "good":
                pass
        client.notify("unknown")
        client.start_request("shutdown")
        while client.read()["id"] != client.last_id:
            pass

    def test_a_flood_is_answered_in_order(self):
        client = self.client()
        client.initialize()
        client.open(URI, "css", "a { color: red }" * 200)
        first = client.last_id + 1
        # More than the pipes hold in both directions, before anything is read.
        for _ in range(300):
            client.start_request("textDocument/documentColor", {"textDocument": {"uri": URI}})
        for expected in range(first, first + 300):
            message = client.read()
            self.assertEqual((message["id"], len(message["result"])), (expected, 200))
        self.assert_works(client)

    def test_requests_are_cancelled(self):
        client = self.client()
        client.initialize()
        client.open(URI, "css", "a { color: red }")
        message = b""
        for body in ({"id": 1000, "method": "textDocument/documentColor", "params": {"textDocument": {"uri": URI}}},
                     {"id": 1001, "method": "textDocument/documentColor", "params": {"textDocument": {"uri": URI}}},
                     {"method": "$/cancelRequest", "params": {"id": 1001}}):
            encoded = json.dumps(body).encode()
            message += b"Content-Length: %d\r\n\r\n" % len(encoded) + encoded
        client.write(message)
        answers = {each["id"]: each for each in (client.read(), client.read())}
        self.assertIn("result", answers[1000])
        self.assertEqual(answers[1001]["error"]["code"], -32800)

    def test_a_giant_message_takes_no_memory(self):
        client = self.client()
        client.initialize()
        before = peak_memory(client.server.pid)
        size = 100 << 20
        client.write(b"Content-Length: %d\r\n\r\n" % size)
        chunk = b"[" * (1 << 20)
        for _ in range(100):
            client.write(chunk)
        self.assertEqual(client.read()["error"]["code"], -32600)
        self.assertLess(peak_memory(client.server.pid) - before, size / 4)
        self.assert_works(client)

    def test_it_ends_with_its_client(self):
        client = self.client()
        client.initialize()
        client.server.stdin.close()
        self.assertEqual(client.server.wait(60), 1)
        # The process of the client ends, while somebody else keeps the input open.
        with subprocess.Popen(["sleep", "1000"]) as editor:
            client = self.client()
            client.initialize(process=editor.pid)
            self.assert_works(client)
            editor.send_signal(signal.SIGKILL)
            self.assertEqual(client.server.wait(60), 1)

    def test_it_ends_when_nobody_reads(self):
        client = self.client()
        client.initialize()
        client.server.stdout.close()
        client.start_request("shutdown")
        self.assertEqual(client.server.wait(60), 0)

    def test_a_process_that_it_does_not_see_is_no_reason_to_end(self):
        client = self.client()
        client.initialize(process=2147483647)
        self.assert_works(client)

    def test_a_colour_is_chosen_in_the_panel(self):
        folder = os.path.join(self.root, "bin")
        os.mkdir(folder)
        program = shutil.copy(PROGRAM, folder)
        said = os.path.join(self.root, "said")
        panel = self.write(os.path.join(folder, "vantorel-panel"), f'#!/bin/sh\necho "$@" > {said}\necho "#123456"\n')
        os.chmod(panel, 0o755)
        client = self.client(program)
        client.initialize(workspace={"applyEdit": True})
        client.open(URI, "css", "a { color: red }")
        where = client.colors(URI)[0]["range"]
        expected = client.start_request("workspace/executeCommand", {
            "command": "vantorel.chooseInPanel", "arguments": [URI, where]})
        self.assertEqual(client.read(), {"jsonrpc": "2.0", "id": expected, "result": None})
        request = client.read()
        self.assertEqual(request["method"], "workspace/applyEdit")
        self.assertEqual(request["params"]["edit"], {"changes": {URI: [{"range": where, "newText": "#123456"}]}})
        client.send({"jsonrpc": "2.0", "id": request["id"], "result": {"applied": True}})
        self.assertEqual(self.read(said), b"--choose --color #ff0000\n")
        self.assert_works(client)

    def test_nothing_is_written_to_the_home(self):
        client = self.client()
        client.initialize()
        self.assert_works(client)
        self.assertEqual(self.files_at_home(), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
