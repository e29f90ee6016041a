"""A mouse and a keyboard for a Wayland compositor without devices.

They are made by wlr-virtual-pointer-unstable-v1 and virtual-keyboard-unstable-v1. The few messages that this
takes are written here, because no tool of Debian 12 moves the mouse.
"""

import array
import os
import socket
import struct
import time

DISPLAY, REGISTRY = 1, 2
POINTER_MANAGER = "zwlr_virtual_pointer_manager_v1"
KEYBOARD_MANAGER = "zwp_virtual_keyboard_manager_v1"
LEFT_BUTTON = 0x110
KEYMAP = b"""xkb_keymap {
  xkb_keycodes { include "evdev+aliases(qwerty)" };
  xkb_types { include "complete" };
  xkb_compat { include "complete" };
  xkb_symbols { include "pc+us+inet(evdev)" };
};\0"""
# Codes of the kernel's input-event-codes.h.
KEYS = {"Escape": 1, "Tab": 15, "Return": 28, "space": 57, "Up": 103, "Left": 105, "Right": 106, "Down": 108,
        "a": 30, "c": 46, "q": 16, "t": 20, "v": 47}
MODIFIERS = {"shift": (42, 1), "ctrl": (29, 4)}


def text(value):
    data = value.encode() + b"\0"
    return struct.pack("=I", len(data)) + data + bytes(-len(data) % 4)


class WaylandSeat:
    """`width` and `height` are the size of the whole desktop in logical pixels."""

    def __init__(self, socket_path, width, height):
        self.size = (width, height)
        self.connection = socket.socket(socket.AF_UNIX)
        self.connection.connect(socket_path)
        self.received = b""
        self.last_id = REGISTRY
        self.globals = {}
        self.request(DISPLAY, 1, struct.pack("=I", REGISTRY))  # get_registry
        self.wait_for_the_compositor()
        seat = self.bind("wl_seat", 1)
        self.pointer = self.device(POINTER_MANAGER, seat)
        self.keyboard = self.device(KEYBOARD_MANAGER, seat)
        self.send_keymap()
        self.wait_for_the_compositor()

    def close(self):
        self.connection.close()

    # The mouse.

    def move(self, x, y):
        self.request(self.pointer, 1, struct.pack("=IIIII", self.now(), int(x), int(y), *self.size))
        self.end_of_frame()

    def press(self, button=LEFT_BUTTON):
        self.request(self.pointer, 2, struct.pack("=III", self.now(), button, 1))
        self.end_of_frame()

    def release(self, button=LEFT_BUTTON):
        self.request(self.pointer, 2, struct.pack("=III", self.now(), button, 0))
        self.end_of_frame()

    def click(self, x, y):
        self.move(x, y)
        self.press()
        self.release()

    def drag(self, start, end, pause=0.02):
        """Drags with a pause, in seconds, after each movement."""
        self.move(*start)
        self.press()
        x, y = start
        # Downwards first: sideways, the mouse would enter another column of digits.
        beginning = [(x, y + step) for step in (3, 6, 9, 12)]
        steps = 20
        for place in beginning + [(x + (end[0] - x) * step / steps, y + (end[1] - y) * step / steps)
                                  for step in range(1, steps + 1)]:
            self.move(*place)
            # Programs handle the start of a drag before the next movement.
            time.sleep(pause)
        self.release()

    # The keyboard.

    def key(self, combination):
        """Presses keys such as "Return" or "ctrl+c"."""
        *modifiers, name = combination.split("+")
        codes = [MODIFIERS[each][0] for each in modifiers]
        for code in codes:
            self.key_event(code, True)
        self.set_modifiers(sum(MODIFIERS[each][1] for each in modifiers))
        self.key_event(KEYS[name], True)
        self.key_event(KEYS[name], False)
        for code in reversed(codes):
            self.key_event(code, False)
        self.set_modifiers(0)
        self.wait_for_the_compositor()

    def key_event(self, code, is_down):
        self.request(self.keyboard, 1, struct.pack("=III", self.now(), code, is_down))

    def set_modifiers(self, mask):
        self.request(self.keyboard, 2, struct.pack("=IIII", mask, 0, 0, 0))

    def send_keymap(self):
        file = os.memfd_create("keymap")
        os.write(file, KEYMAP)
        xkb_text = 1
        self.request(self.keyboard, 0, struct.pack("=II", xkb_text, len(KEYMAP)), file)
        os.close(file)

    # The protocol.

    def new_id(self):
        self.last_id += 1
        return self.last_id

    def request(self, target, opcode, arguments, *files):
        message = struct.pack("=IHH", target, opcode, 8 + len(arguments)) + arguments
        rights = [(socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", files))] if files else []
        self.connection.sendmsg([message], rights)

    def bind(self, interface, version):
        name = self.globals[interface]
        bound = self.new_id()
        self.request(REGISTRY, 0, struct.pack("=I", name) + text(interface) + struct.pack("=II", version, bound))
        return bound

    def device(self, manager_interface, seat):
        # The compositor expects new numbers in order, so the manager has to come first.
        manager = self.bind(manager_interface, 1)
        device = self.new_id()
        self.request(manager, 0, struct.pack("=II", seat, device))
        return device

    def end_of_frame(self):
        self.request(self.pointer, 4, b"")
        self.wait_for_the_compositor()

    def wait_for_the_compositor(self):
        callback = self.new_id()
        self.request(DISPLAY, 0, struct.pack("=I", callback))  # sync
        while not self.take_event(callback):
            self.received += self.read()

    def read(self):
        data = self.connection.recv(4096)
        if not data:
            raise AssertionError("the compositor has closed the connection")
        return data

    def take_event(self, callback):
        """Takes the events that have arrived; returns whether the callback's was among them."""
        while len(self.received) >= 8:
            sender, opcode, length = struct.unpack("=IHH", self.received[:8])
            if len(self.received) < length:
                return False
            body, self.received = self.received[8:length], self.received[length:]
            if sender == callback:
                return True
            if sender == REGISTRY and opcode == 0:
                name, size = struct.unpack("=II", body[:8])
                self.globals[body[8:8 + size - 1].decode()] = name
            elif sender == DISPLAY and opcode == 0:
                raise AssertionError(f"the compositor reports an error: {body!r}")
        return False

    @staticmethod
    def now():
        return int(time.monotonic() * 1000) & 0xFFFFFFFF
