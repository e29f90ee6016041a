#!/usr/bin/env python3
"""Compares the manual with the program.

    manual_test.py DRIVER PAGE INTERFACE_FILE TRANSLATIONS

PAGE is supportManual.htm, or supportManual_LANGUAGE.htm for a language of the folder TRANSLATIONS. Names come
from the driver and the interface file, examples from the page. The program must do what the page
says of each example. Attributes mark the elements:

    data-control="NAME"         explains the control
    data-marks="NAME"           a number on a picture, near the control
    data-enters="FIELD"         a row: the entry, and the resulting hex code
    data-component="DISPLAY"    a row: display, form, the entry for red, and red's hex digits
    data-typed="TEXT"           the RGB field's text after TEXT has been typed into it
    data-drag="TYPE"            a row: type, content, kind, the text for the example colour
    data-format, data-vars      a row: a placeholder of a format, and its text for red
    data-list="NAME"            a built-in list, with its number of colours in data-count
"""
import html.parser
import json
import os
import re
import struct
import subprocess
import sys
import unittest
import xml.etree.ElementTree as ElementTree

DRIVER, PAGE, INTERFACE_FILE, TRANSLATIONS = sys.argv[1:5]
FOLDER = os.path.dirname(PAGE)
ENGLISH_PAGE = os.path.join(FOLDER, "supportManual.htm")
LANGUAGE = os.path.basename(PAGE).removesuffix(".htm").removeprefix("supportManual").removeprefix("_")
VOID = {"meta", "img", "br", "hr"}
EXAMPLE_COLOR = [1, 127 / 255, 80 / 255, 1]
EXAMPLE_COMPONENTS = [255, 127, 80]
OPEN = {"op": "open", "panel": [0, 0, 320, 372], "color": EXAMPLE_COLOR}
# The size of the picker's page in pictures, in points: that of the panel without its bar.
PICTURED = (320, 340)
LARGEST_PICTURE = 60_000


def ask(*requests):
    """Returns the replies to requests in one run of the driver."""
    lines = "".join(json.dumps(request) + "\n" for request in requests)
    run = subprocess.run([DRIVER], input=lines.encode(), capture_output=True, check=True)
    replies = [json.loads(line) for line in run.stdout.decode().splitlines()]
    for request, reply in zip(requests, replies):
        if not reply["ok"]:
            raise AssertionError(f"{request}: {reply['error']}")
    return replies


def call(name, *arguments):
    return ask({"op": "call", "fn": name, "args": list(arguments)})[0]["result"]


def state_after(*requests, **opening):
    return ask({**OPEN, **opening}, {"op": "panel.setColor", "color": EXAMPLE_COLOR}, *requests, {"op": "state"})[-1]


def translations(language, context):
    """Returns what a context of a language's file shows for each text."""
    root = ElementTree.parse(os.path.join(TRANSLATIONS, f"vantorel_{language}.ts")).getroot()
    return {message.findtext("source"): message.findtext("translation") for each in root.iter("context")
            if each.findtext("name") == context for message in each.iter("message")}


SHOWN = {**translations(LANGUAGE, "Vantorel"), **translations(LANGUAGE, "DisplayNames")} if LANGUAGE else {}


def shown(name):
    """Returns a name as the user of the page sees it."""
    return SHOWN.get(name, name)


class Element:
    def __init__(self, tag, attributes, parent):
        self.tag, self.attributes, self.parent, self.content = tag, attributes, parent, []

    def text(self):
        return "".join(part if isinstance(part, str) else part.text() for part in self.content)

    def all(self, want):
        for part in self.content:
            if isinstance(part, Element):
                if want(part):
                    yield part
                yield from part.all(want)

    def tagged(self, *tags):
        return list(self.all(lambda element: element.tag in tags))

    def having(self, attribute):
        return list(self.all(lambda element: attribute in element.attributes))

    def cells(self):
        return [cell.text() for cell in self.tagged("td")]


class Page(html.parser.HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.root = self.place = Element("", {}, None)
        self.problems = []
        self.feed(text)
        self.close()
        while self.place is not self.root:
            self.problems.append(f"<{self.place.tag}> is not closed")
            self.place = self.place.parent

    def handle_starttag(self, tag, attrs):
        names = [name for name, _ in attrs]
        if len(names) != len(set(names)):
            self.problems.append(f"line {self.getpos()[0]}: an attribute twice in <{tag}>")
        element = Element(tag, dict(attrs), self.place)
        self.place.content.append(element)
        if tag not in VOID:
            self.place = element

    def handle_endtag(self, tag):
        if tag != self.place.tag:
            self.problems.append(f"line {self.getpos()[0]}: </{tag}> closes <{self.place.tag}>")
        if self.place.parent is not None:
            self.place = self.place.parent

    def handle_data(self, data):
        self.place.content.append(data)


def source_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


SOURCE = source_of(PAGE)
PARSED = Page(SOURCE)
ROOT = PARSED.root


def by_id(name):
    (element,) = ROOT.all(lambda element: element.attributes.get("id") == name)
    return element


def frames(state):
    """Returns the frame of every control, by name."""
    return {name: entry["frame"] for kind in ("fields", "popUps", "buttons", "views") for name, entry in state[kind].items()}


class Form(unittest.TestCase):
    def test_tags_are_balanced(self):
        self.assertEqual(PARSED.problems, [])
        self.assertEqual(len(ROOT.tagged("html", "title", "h1")), 3)

    def test_every_link_leads_to_a_place_of_the_page(self):
        ids = [element.attributes["id"] for element in ROOT.having("id")]
        self.assertEqual(len(ids), len(set(ids)), "an id twice")
        for link in ROOT.tagged("a"):
            if "hreflang" in link.attributes:
                continue
            self.assertEqual(link.attributes["href"][0], "#")
            self.assertIn(link.attributes["href"][1:], ids)

    def test_the_page_links_to_the_other_languages(self):
        links = {link.attributes["hreflang"]: link.attributes["href"] for link in ROOT.having("hreflang")}
        pages = {(re.fullmatch(r"supportManual_(.+)[.]htm", name) or ["", "en"])[1]: name
                 for name in os.listdir(FOLDER) if name.endswith(".htm")}
        self.assertEqual(pages.pop(LANGUAGE or "en"), os.path.basename(PAGE))
        self.assertEqual(links, pages)

    def test_the_page_loads_no_external_files(self):
        self.assertIsNone(re.search(r"https?:|src=\"(?!pictures/)|<script|<link|@import|url\(", SOURCE, re.IGNORECASE))

    def test_pictures_exist_and_are_sharp(self):
        folder = os.path.join(FOLDER, "pictures", LANGUAGE)
        pictures = set()
        for image in ROOT.tagged("img"):
            name = os.path.relpath(os.path.join(FOLDER, image.attributes["src"]), folder)
            pictures.add(name)
            with open(os.path.join(folder, name), "rb") as file:
                data = file.read()
            self.assertLess(len(data), LARGEST_PICTURE, name)
            pixels = struct.unpack(">II", data[16:24])
            points = (int(image.attributes["width"]), int(image.attributes["height"]))
            self.assertEqual(pixels, (2 * points[0], 2 * points[1]), name)
            self.assertGreater(len(image.attributes["alt"]), 20, name)
        files = {name for name in os.listdir(folder) if name.endswith(".png")}
        self.assertEqual(pictures, files, "pictures on the page and in its folder")


class Translation(unittest.TestCase):
    """A translated page has the parts of the English one."""

    def setUp(self):
        self.english = source_of(ENGLISH_PAGE)

    def test_it_has_the_same_elements_in_the_same_order(self):
        def elements(root):
            keys = ("id", "class", "data-control", "data-marks", "data-enters", "data-component", "data-typed", "data-drag",
                    "data-format", "data-vars", "data-list", "data-count")
            # Words may change places within a paragraph, and emphasis and links with them.
            return [(each.tag, [(key, each.attributes[key]) for key in keys if key in each.attributes])
                    for each in root.all(lambda element: element.tag in ("section", "h1", "h2", "h3", "li", "dt", "dd", "tr", "td", "th", "pre", "figure"))]
        self.assertEqual(elements(ROOT), elements(Page(self.english).root))

    def test_it_looks_the_same(self):
        style = re.search(r"<style>.*</style>", SOURCE, re.S).group(0)
        self.assertIn(style, self.english)

    def test_its_language_is_declared(self):
        (page,) = ROOT.tagged("html")
        self.assertEqual(page.attributes["lang"], LANGUAGE or "en-GB")

    def test_the_translators_name_it(self):
        for name in os.listdir(TRANSLATIONS):
            language = name.removeprefix("vantorel_").removesuffix(".ts")
            own = f"supportManual_{language}.htm"
            expected = own if os.path.exists(os.path.join(FOLDER, own)) else "supportManual.htm"
            self.assertEqual(translations(language, "Vantorel")["supportManual.htm"], expected)


class Names(unittest.TestCase):
    def test_every_choice_is_named(self):
        text = ROOT.text()
        for function in ("entryFormNames", "componentDisplayNames", "codeDragTypeNames", "allHexColorListNames"):
            names = call(function)
            self.assertTrue(names)
            for name in names:
                self.assertIn(shown(name), text, function)
        for mode in (124, 125, 126):
            self.assertIn(shown(call("stringFromPickViewMode", mode)), text)

    def test_titles_are_those_of_the_interface(self):
        text = ROOT.text()
        for title in ("Use #", "Letter case", "Show", "Code", "Drag", "Help", "Done", "Settings", "Add", "Remove", "No Match", "Empty"):
            self.assertIn(shown(title), text)

    def test_every_control_is_explained(self):
        with open(INTERFACE_FILE, encoding="utf-8") as file:
            views = ask({"op": "plist.parse", "text": file.read()})[0]["value"]["Views"]
        controls = set()
        while views:
            view = views.pop()
            views.extend(view.get("Subviews", []))
            if view["Class"] not in ("View", "QTXHexSettingsView") and not view["Name"].endswith(("Label", "LabelText")):
                controls.add(view["Name"])
        self.assertGreater(len(controls), 20)
        self.assertEqual({element.attributes["data-control"] for element in ROOT.having("data-control")}, controls)

    def test_numbers_are_at_their_controls(self):
        faces = [frames(state_after()), frames(state_after({"op": "action", "name": "settingsButtonAction"}))]
        windows = ROOT.all(lambda element: element.attributes.get("class") == "window")
        for controls, window in zip(faces, windows, strict=True):
            marks = window.having("data-marks")
            self.assertGreater(len(marks), 5)
            for number, mark in enumerate(marks, 1):
                self.assertEqual(mark.text(), str(number))
                self.assertEqual(by_id(mark.attributes["href"][1:]).text(), str(number))
                place = re.fullmatch(r"left:([\d.]+)%;top:([\d.]+)%", mark.attributes["style"])
                x, y = (float(place[i + 1]) / 100 * PICTURED[i] for i in (0, 1))
                left, bottom, width, height = controls[mark.attributes["data-marks"]]
                top = PICTURED[1] - bottom - height
                near = 16
                self.assertTrue(left - near <= x <= left + width + near and top - near <= y <= top + height + near, mark.attributes["data-marks"])


class Examples(unittest.TestCase):
    def rows(self, attribute, least):
        rows = ROOT.having(attribute)
        self.assertGreaterEqual(len(rows), least)
        return [(row.attributes[attribute], row) for row in rows]

    def test_entries_give_what_the_page_says(self):
        for field, row in self.rows("data-enters", 6):
            typed, code = row.cells()[:2]
            state = state_after({"op": "enter", "field": field, "text": typed})
            self.assertEqual(state["fields"]["_fullHexText"]["text"], code, typed)

    def test_components_give_what_the_page_says(self):
        displays = []
        for display, row in self.rows("data-component", 3):
            name, _, typed, digits = row.cells()
            displays.append(display)
            self.assertEqual(name, shown(display))
            state = state_after(
                {"op": "choose", "popUp": "componentDisplayPopUp", "path": [display]},
                {"op": "enter", "field": "_redHexText", "text": typed},
            )
            self.assertEqual(state["fields"]["_fullHexText"]["text"], f"#{digits}7F50", typed)
        self.assertEqual(displays, call("componentDisplayNames")[:3])

    def test_a_name_is_completed_as_the_page_says(self):
        for typed, element in self.rows("data-typed", 1):
            state = state_after({"op": "type", "field": "_rgbDecimalText", "text": typed})
            self.assertEqual(state["fields"]["_rgbDecimalText"]["text"], element.text())

    def test_a_rejected_entry_shows_the_message_of_the_page(self):
        state = state_after({"op": "enter", "field": "_fullHexText", "text": "12345"})
        self.assertEqual(shown(state["message"]["text"]), by_id("input-error").text())

    def test_too_many_digits_show_what_the_page_says(self):
        state = state_after({"op": "type", "field": "_fullHexText", "text": "1234567"})
        number, error = state["fields"]["_rgbDecimalText"]["text"].split(": ")
        self.assertEqual((number, shown(error)), ("7", by_id("readout-error").text()))

    def test_drags_carry_what_the_page_says(self):
        rows = self.rows("data-drag", 4)
        self.assertEqual([drag for drag, _ in rows], call("codeDragTypeNames"))
        for drag, row in rows:
            name, _, kind, text = row.cells()
            replies = ask(
                OPEN,
                {"op": "panel.setColor", "color": EXAMPLE_COLOR},
                {"op": "choose", "popUp": "codeDragTypePopUp", "path": [drag]},
                {"op": "dragString"},
            )
            self.assertEqual(name, shown(drag))
            self.assertEqual(text, replies[-1]["result"] or "–")
            self.assertEqual(kind == "application/x-color", not replies[-1]["result"], drag)

    def test_lists_have_as_many_colours_as_the_page_says(self):
        rows = self.rows("data-list", 3)
        self.assertEqual({name for name, _ in rows}, set(call("allHexColorListNames")))
        for name, row in rows:
            state = state_after({"op": "choose", "popUp": "hexColorsListPopUp", "path": [name]})
            names = [item for item in state["popUps"]["hexColorNamePopUp"]["items"][1:] if not item["separator"]]
            self.assertEqual(row.having("data-count")[0].text(), str(len(names)), name)


class Snippets(unittest.TestCase):
    def render(self, template, variables):
        return ask({"op": "snippet", "format": template, "vars": variables, "components": EXAMPLE_COMPONENTS, "alpha": 1})[0]["result"]

    def test_every_built_in_one_is_listed_with_its_line(self):
        built_in = call("buildDefaultCodeSnippetDictionaries")
        self.assertEqual(
            [row.cells() for row in by_id("snippet-table").tagged("tr")[1:]],
            [[entry["NameSnippet"], self.render(entry["FormatSnippet"], entry["VarsSnippet"])] for entry in built_in],
        )
        words = [code.text() for code in ROOT.tagged("code")]
        for entry in built_in:
            self.assertIn(entry["VarsSnippet"], words)

    def test_placeholders_give_what_the_page_says(self):
        rows = ROOT.having("data-format")
        self.assertGreater(len(rows), 4)
        for row in rows:
            template, meaning = row.tagged("td")
            self.assertEqual(template.text(), row.attributes["data-format"])
            result = meaning.tagged("code")[-1].text()
            self.assertEqual(result, self.render(template.text(), row.attributes["data-vars"]))
        self.assertEqual(by_id("unknown-vars").text(), self.render("%d", "unheardOf"))

    def test_the_steps_of_the_page_add_the_snippet(self):
        text = ask(
            OPEN,
            {"op": "check", "control": "poundSignCheckbox", "on": False},
            {"op": "check", "control": "poundSignCheckbox", "on": True},
            {"op": "settingsFile"},
        )[-1]["text"]
        place = by_id("snippet-place").text() + "\n"
        self.assertEqual(text.count(place), 1)
        edited = text.replace(place, place + by_id("snippet-entry").text())
        name = by_id("snippet-name").text()
        state = state_after(
            {"op": "choose", "popUp": "cCodeEntryFormPopUp", "path": [name]},
            {"op": "choose", "popUp": "componentDisplayPopUp", "path": ["Code Snippet"]},
            settingsFile=edited,
        )
        self.assertEqual(state["fields"]["_objCCodeText"]["text"], by_id("snippet-result").text())
        names = [item["title"] for item in state["popUps"]["cCodeEntryFormPopUp"]["items"]]
        built_in = [entry["NameSnippet"] for entry in call("buildDefaultCodeSnippetDictionaries")]
        self.assertEqual(names, [name, *built_in], "the others are still there")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
