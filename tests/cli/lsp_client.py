"""A client of the Language Server Protocol for tests."""
import json
import os
import select
import subprocess


class Client:
    """Talks with a server that it starts. `read` waits for a message, at most a minute."""

    def __init__(self, command, env):
        self.server = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, bufsize=0, env=env)
        self.received = b""
        self.last_id = 0

    def close(self):
        for stream in (self.server.stdin, self.server.stdout):
            if not stream.closed:
                stream.close()
        self.server.kill()
        self.server.wait()

    def write(self, data):
        """Writes bytes as they are."""
        view = memoryview(data)
        while view:
            view = view[self.server.stdin.write(view):]

    def send(self, message):
        body = message if isinstance(message, bytes) else json.dumps(message).encode()
        self.write(b"Content-Length: %d\r\n\r\n" % len(body) + body)

    def read(self):
        """Returns the next message, or None if the server has closed its output."""
        while True:
            header, separator, rest = self.received.partition(b"\r\n\r\n")
            if separator:
                length = int(header.split(b":")[1])
                if len(rest) >= length:
                    self.received = rest[length:]
                    return json.loads(rest[:length])
            if not select.select([self.server.stdout], [], [], 60)[0]:
                raise TimeoutError("the server does not answer")
            data = os.read(self.server.stdout.fileno(), 1 << 20)
            if not data:
                return None
            self.received += data

    def notify(self, method, params=None):
        self.send({"jsonrpc": "2.0", "method": method, "params": params})

    def start_request(self, method, params=None):
        self.last_id += 1
        self.send({"jsonrpc": "2.0", "id": self.last_id, "method": method, "params": params})
        return self.last_id

    def answer(self, method, params=None):
        """Returns the answer to a request."""
        expected = self.start_request(method, params)
        message = self.read()
        assert message is not None and message["id"] == expected, message
        return message

    def result(self, method, params=None):
        message = self.answer(method, params)
        assert "result" in message, message
        return message["result"]

    def initialize(self, process=None, **capabilities):
        result = self.result("initialize", {"processId": process, "capabilities": capabilities})
        self.notify("initialized", {})
        return result

    def open(self, uri, language, text):
        self.notify("textDocument/didOpen", {
            "textDocument": {"uri": uri, "languageId": language, "version": 1, "text": text}})

    def colors(self, uri):
        return self.result("textDocument/documentColor", {"textDocument": {"uri": uri}})
