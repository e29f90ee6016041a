"""A compositor that lacks some protocols: it passes everything on to another one, except their announcement."""

import array
import os
import select
import socket
import struct
import threading

DISPLAY, GET_REGISTRY, GLOBAL = 1, 1, 0
MOST_FILES = 28


class Half:
    """The messages of one direction."""

    def __init__(self, source, target, keeps):
        self.source, self.target, self.keeps = source, target, keeps
        self.rest, self.files = b"", []

    def pass_on(self):
        """Passes on what has arrived; false at the end of the connection."""
        data, rights, _, _ = self.source.recvmsg(65536, socket.CMSG_SPACE(4 * MOST_FILES))
        for _, _, numbers in rights:
            files = array.array("i")
            files.frombytes(numbers[:len(numbers) - len(numbers) % files.itemsize])
            self.files += files
        if not data:
            return False
        self.rest += data
        kept = b""
        while len(self.rest) >= 8:
            sender, opcode, length = struct.unpack("=IHH", self.rest[:8])
            if len(self.rest) < length:
                break
            message, self.rest = self.rest[:length], self.rest[length:]
            if self.keeps(sender, opcode, message[8:]):
                kept += message
        if kept:
            rights = [(socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", self.files))] if self.files else []
            sent = self.target.sendmsg([kept], rights)
            self.target.sendall(kept[sent:])
            for file in self.files:
                os.close(file)
            self.files = []
        return True


class WaylandProxy:
    """Listens at `path`; `hidden` are the interfaces that it does not announce."""

    def __init__(self, path, compositor, hidden):
        self.compositor, self.hidden = compositor, hidden
        self.listener = socket.socket(socket.AF_UNIX)
        self.listener.bind(path)
        self.listener.listen()
        threading.Thread(target=self.accept, daemon=True).start()

    def accept(self):
        while True:
            client = self.listener.accept()[0]
            threading.Thread(target=self.connect, args=(client,), daemon=True).start()

    def connect(self, client):
        registries = set()

        def keeps_request(sender, opcode, body):
            if (sender, opcode) == (DISPLAY, GET_REGISTRY):
                registries.add(struct.unpack("=I", body)[0])
            return True

        def keeps_event(sender, opcode, body):
            if sender not in registries or opcode != GLOBAL:
                return True
            size = struct.unpack("=I", body[4:8])[0]
            return body[8:8 + size - 1].decode() not in self.hidden

        server = socket.socket(socket.AF_UNIX)
        server.connect(self.compositor)
        halves = {client: Half(client, server, keeps_request), server: Half(server, client, keeps_event)}
        try:
            while all(halves[each].pass_on() for each in select.select(list(halves), [], [])[0]):
                pass
        except OSError:
            pass  # one side has closed the connection
        client.close()
        server.close()
