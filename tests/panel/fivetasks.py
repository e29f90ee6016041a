"""Does the five tasks of docs/comparison.md in the real panel, counting what the hand does.

Usage: fivetasks.py PANEL SOURCE COMPARISON FOLDER, on a separate X server and session bus. SOURCE is a program from
which a file can be dragged. COMPARISON is the document with the counts, which must be those that are needed.
"""

import pathlib
import re
import struct
import subprocess
import sys
import time
import zlib

import pyatspi

from accessibility import application, eventually, find, walk, windows

PANEL, SOURCE, COMPARISON, FOLDER = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3]), pathlib.Path(sys.argv[4])

ON_SCREEN = "#3b82f6"
GREY = "#9ca3af"
PLACE_BESIDE = (800, 600)
# From the middle of the menu's button to that of its first entry, in pixels.
BELOW_COPY_ALL = 69
STRIPES = ["d32f2f", "7b1fa2", "303f9f", "0288d1", "00796b", "689f38", "fbc02d", "f57c00", "5d4037", "eceff1"]


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


class Hand:
    """Counts a press of a mouse button, a drag, a key and a chord of keys as one each; moving the mouse is free."""

    def __init__(self):
        self.count = 0

    def move(self, x, y):
        xdotool("mousemove", x, y)
        time.sleep(0.2)

    def click(self, x, y):
        self.move(x, y)
        xdotool("click", 1)
        self.count += 1

    def key(self, keys):
        xdotool("key", keys)
        self.count += 1

    def drag(self, start, end):
        self.move(*start)
        xdotool("mousedown", 1)
        for step in range(1, 11):
            self.move(*(round(a + (b - a) * step / 10) for a, b in zip(start, end)))
        time.sleep(0.3)
        xdotool("mouseup", 1)
        self.count += 1


def frame_of(role, name):
    frame = eventually(lambda: find(role, name), f"a {role} {name!r}").queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return frame.x, frame.y, frame.width, frame.height


def middle_of(role, name):
    x, y, width, height = frame_of(role, name)
    return x + width // 2, y + height // 2


def clipboard():
    run = subprocess.run(["xclip", "-o", "-selection", "clipboard"], capture_output=True, text=True, timeout=10, check=False)
    return run.stdout


def expect_copied(matches, what):
    eventually(lambda: matches(clipboard()), lambda: f"{what}: the clipboard has {clipboard()!r}")


def shows_magnifier():
    return windows("--name", "^Colour magnifier$")


def open_magnifier(hand):
    hand.key("ctrl+p")
    eventually(shows_magnifier, "the magnifier")
    hand.move(*PLACE_BESIDE)


def open_scales(hand):
    hand.click(*middle_of("page tab", "Scales"))
    # Until then, a click would reach the page before.
    eventually(lambda: find("panel", "Scales"), "the page Scales")
    time.sleep(0.3)


def pick_and_copy_as_rgb(hand, _):
    open_magnifier(hand)
    hand.key("r")
    expect_copied(lambda text: text == "rgb(59, 130, 246)", "the colour as rgb()")


def scale_as_custom_properties(hand, _):
    open_scales(hand)
    x, y = middle_of("combo box", "Scale: Copy all")
    hand.click(x, y)
    time.sleep(0.5)
    # The entries of menus are not in the tree of accessible objects.
    hand.click(x, y + BELOW_COPY_ALL)
    wanted = "".join(rf"\s*--[a-z]+-{step}: #[0-9a-f]{{6}};" for step in (50, *range(100, 1000, 100), 950))
    expect_copied(lambda text: re.search(wanted, text, re.IGNORECASE), "the scale as custom properties")


def luminance(code):
    """The relative luminance of WCAG 2.2."""
    channels = [int(code[i:i + 2], 16) / 255 for i in (1, 3, 5)]
    light = [c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4 for c in channels]
    return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2]


def contrast_with_white(code):
    return 1.05 / (luminance(code) + 0.05)


def mend_a_contrast(hand, panel):
    assert contrast_with_white(panel.color()) < 4.5, "there is nothing to mend"
    open_scales(hand)
    hand.click(*middle_of("check box", "Contrast"))
    x, y, width, height = frame_of("color chooser", "Nearest colours that pass")
    hand.click(x + width // 4, y + height // 4)
    eventually(lambda: 4.5 <= contrast_with_white(panel.color()) < 4.6,
               lambda: f"the contrast is mended: {panel.color()} has {contrast_with_white(panel.color()):.2f}")


def name_a_colour(hand, _):
    open_magnifier(hand)
    def descriptions():
        return [node.description for node in walk(application()) if node.name == "Colour magnifier"]

    eventually(lambda: descriptions() == [f"{ON_SCREEN}, \u2248 dodgerblue"], lambda: f"the colour's name: {descriptions()}")


def picture_of_stripes():
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    rows = [b"\0" + bytes.fromhex(code) * 60 for code in STRIPES for _ in range(6)]
    path = FOLDER / "Stripes.png"
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", 60, len(rows), 8, 2, 0, 0, 0)) +
                     chunk(b"IDAT", zlib.compress(b"".join(rows))) + chunk(b"IEND", b""))
    return path


def collect_ten_colours(hand, panel):
    with subprocess.Popen([SOURCE, "--offer", picture_of_stripes()], stdout=subprocess.PIPE, text=True) as source:
        try:
            start = tuple(map(int, source.stdout.readline().split()))
            hand.drag(start, middle_of("panel", "Hex colour"))
            hand.click(*middle_of("button", "Keep as a list"))
            eventually(lambda: panel.colours_of_list("Stripes") == sorted(STRIPES),
                       lambda: f"ten colours are kept: {panel.colours_of_list('Stripes')}")
        finally:
            source.kill()


TASKS = {
    "pick a colour, copy it as `rgb()`": (pick_and_copy_as_rgb, GREY),
    "make a scale, copy it as custom properties": (scale_as_custom_properties, ON_SCREEN),
    "mend a contrast": (mend_a_contrast, GREY),
    "name a colour on the screen": (name_a_colour, GREY),
    "collect ten colours of a picture": (collect_ten_colours, GREY),
}


class Panel:
    """A panel of a new user."""

    def __init__(self, name, color):
        self.folder = FOLDER / name
        self.folder.mkdir()
        with open(self.folder / "colors", "w", encoding="utf-8") as colors:
            self.process = subprocess.Popen([PANEL, "--new", "--color", color, "--data", self.folder, "--print-color"],
                                            stdout=colors)
        eventually(lambda: find("frame", "Vantorel"), "the panel")
        time.sleep(0.5)

    def color(self):
        lines = (self.folder / "colors").read_text(encoding="utf-8").split()
        return lines[-1][:7] if lines else ""

    def colours_of_list(self, name):
        path = self.folder / "Vantorel" / "Palettes" / f"{name}.gpl"
        rows = path.read_text(encoding="utf-8").splitlines() if path.exists() else []
        return sorted("".join(f"{int(part):02x}" for part in row.split()[:3]) for row in rows if re.match(r"\s*\d", row))

    def end(self):
        self.process.terminate()
        self.process.wait()
        eventually(lambda: application() is None, "the end of the panel")


def counts_of_document():
    counts = {}
    for line in COMPARISON.read_text(encoding="utf-8").splitlines():
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        if cells[0] in TASKS:
            counts[cells[0]] = [int(re.match(r"\d+", cell)[0]) if cell[:1].isdigit() else None for cell in cells[1:]]
    return counts


def main():
    subprocess.run(["xsetroot", "-solid", ON_SCREEN], check=True)
    documented = counts_of_document()
    for number, (task, (do, color)) in enumerate(TASKS.items()):
        panel = Panel(f"panel{number}", color)
        hand = Hand()
        # As a window manager would when the window opens.
        xdotool("windowfocus", "--sync", windows("--name", "^Vantorel$")[0])
        try:
            do(hand, panel)
        finally:
            panel.end()
        print(f"{task}: {hand.count}")
        if task not in documented:
            sys.exit(f"{task}: not in {COMPARISON}")
        ours, *others = documented[task]
        if hand.count != ours:
            sys.exit(f"{task}: {hand.count} clicks and keys, but {COMPARISON} says {ours}")
        if any(other is not None and other <= ours for other in others):
            sys.exit(f"{task}: another program needs no more than {ours}")


if __name__ == "__main__":
    main()
