"""Walks the panel's tree of accessible objects, and operates the picker through it.

Usage: accessibility.py PANEL, on a separate X server and session bus.
"""

import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

PATIENCE = 15  # seconds

# Pure containers need no name.
GROUNDS = {"filler", "panel"}
# Roles of a widget without accessibility information.
NO_ROLES = {"unknown", "invalid", "redundant object", "extended"}

BOTH_FACES = [
    ("frame", "Vantorel"),
    ("page tab", "Hex"),
    ("page tab", "Mix"),
    ("page tab", "Scales"),
    ("text", "Colour as a text"),
    ("image", "Colour"),
    ("slider", "Opacity"),
    ("panel", "Hex colour"),
    ("text", "Hex code"),
    ("text", "RGB or colour name"),
    ("check box", "Slider"),
    ("check box", "Palette"),
    ("check box", "Wheel"),
    ("button", "Settings"),
    ("text", "Red"),
    ("text", "Green"),
    ("text", "Blue"),
    ("combo box", "Colour list"),
    ("combo box", "Colour name"),
]
MIX_PAGE = [
    ("frame", "Vantorel"),
    ("panel", "Mix"),
    ("panel", "Colour space"),
    ("check box", "OKLCH"),
    ("check box", "Lab"),
    ("color chooser", "Chroma, Lightness"),
    ("color chooser", "Hue"),
    ("color chooser", "Opacity"),
    ("text", "Lightness"),
    ("text", "Opacity"),
]
SCALES_PAGE = [
    ("frame", "Vantorel"),
    ("panel", "Scales"),
    ("panel", "Scale"),
    ("color chooser", "Scale"),
    ("color chooser", "Tints"),
    ("combo box", "Scale: Copy all"),
]
COLORS_FACE = BOTH_FACES + [("color chooser", "Colours")]
WHEEL_FACE = COLORS_FACE + [("button", "More rings"), ("button", "Fewer rings")]
SETTINGS_FACE = BOTH_FACES + [
    ("panel", "Settings"),
    ("check box", "Lead hex codes with #"),
    ("combo box", "Letter case"),
    ("label", "Show"),
    ("combo box", "Component display"),
    ("label", "Code"),
    ("combo box", "Code snippet form"),
    ("label", "Drag"),
    ("combo box", "Drag type"),
    ("button", "Done"),
    ("button", "Help"),
    ("label", "Version"),
]


def eventually(condition, what):
    """Waits until the condition is true, and returns its value."""
    end = time.monotonic() + PATIENCE
    while True:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            result = condition()
        except (LookupError, NotImplementedError, GLib.Error):
            result = None  # the tree changes while it is read
        if result:
            return result
        if time.monotonic() > end:
            sys.exit(f"waited in vain: {what() if callable(what) else what}")
        time.sleep(0.05)


def is_showing(node):
    return node.getState().contains(pyatspi.STATE_SHOWING)


def role_of(node):
    """The role's name in AT-SPI 2.56; 2.46 has "push button" for "button"."""
    role = node.getRoleName()
    return "button" if role == "push button" else role


def walk(node):
    """Returns all visible objects below a node."""
    for child in node:
        if child is not None and is_showing(child):
            yield child
            yield from walk(child)


def application():
    for candidate in pyatspi.Registry.getDesktop(0):
        if candidate is not None and candidate.name == "vantorel-panel" and candidate.childCount:
            return candidate
    return None


def find(role, name):
    for node in walk(application() or ()):
        if (role_of(node), node.name) == (role, name):
            return node
    raise LookupError(f"{role} {name}")


def text(role, name):
    return find(role, name).queryText().getText(0, -1)


def description(role, name):
    return find(role, name).description


def expect(reader, role, name, wanted):
    def agrees():
        nonlocal seen
        seen = reader(role, name)
        return seen == wanted

    seen = None
    eventually(agrees, lambda: f"the {role} {name} shows {seen!r}, not {wanted!r}")


def do(role, name, action):
    actions = find(role, name).queryAction()
    for i in range(actions.nActions):
        if actions.getName(i) == action:
            actions.doAction(i)
            return
    sys.exit(f"the {role} {name} has no action {action}")


def check_pages():
    do("page tab", "Mix", "Press")
    check_face("mix", MIX_PAGE)
    do("page tab", "Scales", "Press")
    check_face("scales", SCALES_PAGE)
    do("page tab", "Hex", "Press")
    check_face("colours, after another page", COLORS_FACE)


def windows(*pattern):
    found = subprocess.run(["xdotool", "search", "--onlyvisible", *pattern], capture_output=True, text=True)
    return found.stdout.split()


def press_keys(*keys):
    subprocess.run(["xdotool", "key", *keys], check=True)


def faults_of(node):
    """Returns the problems of one accessible object."""
    role, name = role_of(node), node.name
    interfaces = pyatspi.listInterfaces(node)
    # Every widget has the action interface, even without actions.
    acts = "Action" in interfaces and node.queryAction().nActions > 0
    operable = acts or "Value" in interfaces or "EditableText" in interfaces
    if role in NO_ROLES or (role == "filler" and (name or operable)):
        yield f"{name!r} has no role ({role})"
    if not name and (role not in GROUNDS or operable):
        yield f"a {role} has no name"
    if role == "combo box" and not node.queryText().getText(0, -1):
        yield f"the combo box {name!r} does not expose its value"


def check_face(face, rows):
    for role, name in rows:
        eventually(lambda role=role, name=name: find(role, name), f"the {face}: a {role} {name!r}")
    faults = [fault for node in walk(application()) for fault in faults_of(node)]
    if faults:
        sys.exit(f"the {face}:\n" + "\n".join(faults))
    print(f"{face}: {sum(1 for _ in walk(application()))} objects")


def enter(field, value):
    node = find("text", field)
    node.queryEditableText().setTextContents(value)
    node.queryComponent().grabFocus()
    eventually(lambda: find("text", field).getState().contains(pyatspi.STATE_FOCUSED), f"{field} has the focus")


def check_entry():
    announced = []
    listener = lambda event: announced.append(event.source.name)
    pyatspi.Registry.registerEventListener(listener, "object:property-change:accessible-description")
    enter("Hex code", "f00")
    expect(text, "text", "RGB or colour name", "3: R:240 G:000* B:---")
    press_keys("Return")
    for field, value in [("Hex code", "#FF0000"), ("RGB or colour name", "RGB(255, 0, 0);"), ("Red", "FF"), ("Green", "00"), ("Blue", "00")]:
        expect(text, "text", field, value)
    expect(text, "combo box", "Colour name", "red")
    expect(description, "color chooser", "Colours", "#FF0000, red, Slider")
    expect(description, "image", "Colour", "#FF0000")
    eventually(lambda: "Colours" in announced, "the colours view announces its changed description")


def check_mode():
    do("check box", "Wheel", "Toggle")
    expect(description, "color chooser", "Colours", "#FF0000, red, Wheel")
    check_face("wheel", WHEEL_FACE)
    do("check box", "Slider", "Toggle")
    expect(description, "color chooser", "Colours", "#FF0000, red, Slider")


def visible_windows():
    return len(windows("--class", "vantorel"))


def check_settings():
    do("button", "Settings", "Press")
    check_face("settings", SETTINGS_FACE)
    do("check box", "Lead hex codes with #", "Toggle")
    expect(text, "text", "Hex code", "FF0000")
    do("check box", "Lead hex codes with #", "Toggle")
    expect(text, "text", "Hex code", "#FF0000")

    expect(text, "combo box", "Letter case", "Uppercase")
    closed = visible_windows()
    do("combo box", "Letter case", "ShowMenu")
    eventually(lambda: visible_windows() > closed, "the menu opens")
    press_keys("Down", "Return")
    expect(text, "combo box", "Letter case", "Lowercase")
    expect(text, "text", "Hex code", "#ff0000")
    eventually(lambda: visible_windows() == closed, "the menu closes")

    do("button", "Done", "Press")
    check_face("colours again", COLORS_FACE)


def main():
    panel = subprocess.Popen([sys.argv[1], "--size", "260x340", "--color", "#123456"])
    try:
        eventually(application, "the panel is in the tree")
        # Without a window manager nothing else gives it the keyboard focus.
        window = eventually(lambda: windows("--name", "^Vantorel$"), "the window has come")[0]
        subprocess.run(["xdotool", "windowfocus", window], check=True)
        check_face("colours", COLORS_FACE)
        expect(description, "color chooser", "Colours", "#123456, No Match, Slider")
        check_entry()
        check_mode()
        check_settings()
        check_pages()
        if panel.poll() is not None:
            sys.exit("the panel has ended")
    finally:
        panel.terminate()
        panel.wait()
    print("the panel is accessible")


if __name__ == "__main__":
    main()
