#!/usr/bin/python3
"""barview's dump of the demo's configuration, element by element, beside what the files say.

usage: dump_test.py BIN_DIR [TEST...]
"""
import json
import os
import subprocess
import sys
import tempfile
import unittest

from configuration import Expectation
from viewer import ROOT

BIN_DIR = ""
DUMP_KEYS = ["nextCommandId", "registry", "ribbon", "menu", "accelerators", "toolbars", "skin", "statusExtras", "status"]


def barview(*arguments):
    return subprocess.run([os.path.join(ROOT, "scripts", "wine-run"), "--null", os.path.join(BIN_DIR, "barview.exe"), *arguments],
                          capture_output=True, text=True)


def dump(*arguments):
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "dump.json")
        result = barview(*arguments, "--dump", path)
        with open(path, encoding="utf-8") as file:
            return result, json.load(file)


class DumpOfTheDemo(unittest.TestCase):
    maxDiff = None

    def check(self, language):
        result, got = dump(BIN_DIR, "--lang", language)
        self.assertEqual(result.returncode, 0, result.stderr)
        want = Expectation(os.path.join(BIN_DIR, "cfg", "ribbon.xml"), os.path.join(BIN_DIR, "lang", language))
        want.add_menu(os.path.join(BIN_DIR, "cfg", "menu.xml"))
        self.assertEqual(list(got), DUMP_KEYS)
        self.assertEqual(got["nextCommandId"], want.next_id + 1)  # a menu skips one id
        # All popups of menus share the id 0.
        self.assertEqual([entry for entry in got["registry"] if entry["id"] != 0],
                         sorted(want.registry.values(), key=lambda entry: entry["id"]))
        self.assertEqual(got["ribbon"]["quickAccess"], want.quick_access)
        self.assertEqual(got["ribbon"]["commands"], [want.commands])
        self.assertEqual(len(got["ribbon"]["categories"]), len(want.categories))
        for index, (category, expected) in enumerate(zip(got["ribbon"]["categories"], want.categories)):
            self.assertEqual((category["name"], category["class"], category.get("id")),
                             (expected["name"], expected["class"], expected.get("id")))
            self.assertEqual((category["visible"], category["active"]), (True, index == 0))
            self.assertEqual([p["name"] for p in category["panels"]], [p["name"] for p in expected["panels"]])
            for panel, expected_panel in zip(category["panels"], expected["panels"]):
                self.check_elements(panel["elements"], expected_panel["elements"])

    def check_elements(self, got, want):
        self.assertEqual([e["class"] for e in got], [e["class"] for e in want])
        for element, expected in zip(got, want):
            self.assertEqual("children" in element, "children" in expected, element)
            for key, value in expected.items():
                if key == "children":
                    self.check_elements(element["children"], value)
                elif value is not None:
                    self.assertEqual(element[key], value, f"{key} of {element}")
            self.assertTrue(element["visible"])
            self.assertEqual(len(element["rect"]), 4)

    def test_every_element_is_what_the_files_say_in_chinese(self):
        self.check("zh-CN")

    def test_every_element_is_what_the_files_say_in_english(self):
        self.check("en")

    def test_elements_of_the_shown_category_lie_apart_inside_the_bar(self):
        _, got = dump(BIN_DIR, "--lang", "en", "--size", "1280x300")
        panels = got["ribbon"]["categories"][0]["panels"]
        rects = [e["rect"] for p in panels for e in p["elements"]]
        for left, top, right, bottom in rects:
            self.assertTrue(0 <= left < right <= 1280 and 0 < top < bottom <= 300)
        for i, a in enumerate(rects):
            for b in rects[:i]:
                self.assertFalse(a[0] < b[2] and b[0] < a[2] and a[1] < b[3] and b[1] < a[3], (a, b))

    def test_narrow_and_enlarged_bars_keep_their_elements_inside(self):
        nowhere = [0, 0, 0, 0]
        for width, scale in ((300, 100), (300, 175), (300, 200), (1280, 150)):
            _, got = dump(BIN_DIR, "--lang", "en", "--size", f"{width}x400", "--scale", str(scale))
            panels = got["ribbon"]["categories"][0]["panels"]
            # What a collapsed panel holds has no place, nor has a panel that is scrolled out of view.
            rects = [rect for p in panels for rect in [p["rect"]] + [e["rect"] for e in p["elements"]] if rect != nowhere]
            for left, top, right, bottom in rects:
                self.assertTrue(0 <= left < right <= width and 0 < top < bottom, (width, scale, left, right))
            shown = [p["rect"] for p in panels if p["rect"] != nowhere]
            self.assertTrue(shown, (width, scale))
            self.assertEqual(shown[0], panels[0]["rect"], "the first panel leads the row")
            self.assertGreater(shown[0][3] - shown[0][1], 60 * scale // 100, (width, scale))

    def test_elements_of_other_categories_have_no_place(self):
        _, got = dump(BIN_DIR, "--lang", "en")
        for panel in got["ribbon"]["categories"][1]["panels"]:
            for element in panel["elements"]:
                self.assertEqual(element["rect"], [0, 0, 0, 0])


class DumpOfAMenu(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        os.mkdir(os.path.join(self.folder, "cfg"))
        self.write("cfg/ribbon.xml", "<ribbon><row><category KEYWORD='Tab' NAME=''><panel KEYWORD='P' NAME=''>"
                   "<element KEYWORD='Open' NAME='' TYPE='BUTTON'/></panel></category></row></ribbon>")

    def write(self, name, text):
        with open(os.path.join(self.folder, name), "w", encoding="utf-8") as file:
            file.write(text)

    def test_commands_are_shared_with_the_ribbon_and_shortcuts_are_listed(self):
        self.write("cfg/menu.xml", "<menu><g><p KEYWORD='File' MENUNAME='' SHORTKEY='F'><i KEYWORD='Open' MENUNAME=''/>"
                   "<i MENUNAME='SEPARATOR'/><i KEYWORD='Save' MENUNAME='' HOTKEY='Ctrl+S' CMD='save'/></p></g></menu>")
        result, got = dump(self.folder)
        self.assertEqual(result.returncode, 0, result.stderr)
        button = got["ribbon"]["categories"][0]["panels"][0]["elements"][0]
        save = got["registry"][-1]
        self.assertEqual((save["keyword"], save["cmd"]), ("Save", "save"))
        self.assertEqual(got["menu"], [{"text": "File(&F)", "popup": [{"id": button["id"], "text": "Open"}, {"separator": True},
                                                                      {"id": save["id"], "text": "Save"}]}])
        self.assertEqual(got["accelerators"], [{"virt": 9, "key": 0x53, "cmd": save["id"]}])
        self.assertEqual(got["nextCommandId"], save["id"] + 2)

    def test_a_menu_that_cannot_be_loaded_gives_1_and_a_line_that_says_why(self):
        self.write("cfg/menu.xml", "<menu><i KEYWORD='A' HOTKEY='Ctrl+'/></menu>")
        result, got = dump(self.folder)
        self.assertEqual(result.returncode, 1)
        self.assertIn("not loaded: cfg\\menu.xml: a shortcut names no key", result.stderr)
        self.assertEqual(got["menu"], [])


class Batch(unittest.TestCase):
    """Many directories in one process give what each gives in a process of its own."""
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def make(self, name, keyword):
        directory = os.path.join(self.folder, name)
        os.makedirs(os.path.join(directory, "cfg"))
        files = {"ribbon.xml": "<ribbon><row><category KEYWORD='Tab' NAME=''><panel KEYWORD='P' NAME=''>"
                               f"<element KEYWORD='{keyword}' NAME='' TYPE='BUTTON'/></panel></category></row></ribbon>",
                 "menu.xml": f"<menu><g><p KEYWORD='File'><i KEYWORD='{keyword}' MENUNAME=''/>"
                             "<i KEYWORD='New' MENUNAME='' HOTKEY='Ctrl+N'/></p></g></menu>",
                 "toolbar.xml": f"<bars><g KEYWORD='G'><t PROMPT='Bar'><b TYPE='button' KEYWORD='{keyword}' PROMPT='Text'/>"
                                "<b TYPE='qkLayerCheckCtrl' KEYWORD='Checks' PROMPT='C'/></t></g></bars>"}
        for file_name, text in files.items():
            with open(os.path.join(directory, "cfg", file_name), "w", encoding="utf-8") as file:
                file.write(text)
        return directory

    def run_batch(self, directories):
        outputs = [os.path.join(self.folder, f"{number}.json") for number in range(len(directories))]
        list_file = os.path.join(self.folder, "list.txt")
        with open(list_file, "w", encoding="utf-8") as file:
            file.writelines(f"{directory}\t{output}\n" for directory, output in zip(directories, outputs))
        result = barview("--batch", list_file)
        dumps = []
        for output in outputs:
            if os.path.exists(output):
                with open(output, encoding="utf-8") as file:
                    dumps.append(json.load(file))
        return result, dumps

    def test_each_directory_is_built_as_if_it_were_the_first(self):
        directories = [self.make("one", "Open"), BIN_DIR, self.make("two", "Save"), BIN_DIR]
        result, dumps = self.run_batch(directories)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(len(dumps), len(directories))
        for directory, got in zip(directories, dumps):
            _, alone = dump(directory)
            del got["skin"]["images"], alone["skin"]["images"]  # one may be written in another way
            self.assertEqual(got, alone, directory)

    def test_a_directory_that_is_not_there_gives_1_and_the_others_are_built(self):
        result, dumps = self.run_batch(["/no/such/place", self.make("one", "Open")])
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(dumps), 1)
        self.assertIn("no such directory", result.stderr)

    def test_a_list_that_is_no_list_gives_2(self):
        list_file = os.path.join(self.folder, "list.txt")
        with open(list_file, "w", encoding="utf-8") as file:
            file.write("no tab\n")
        self.assertEqual(barview("--batch", list_file).returncode, 2)
        self.assertEqual(barview("--batch", os.path.join(self.folder, "missing")).returncode, 2)
        self.assertEqual(barview(BIN_DIR, "--batch", list_file).returncode, 2)


class ExitCodes(unittest.TestCase):
    def test_a_file_that_cannot_be_loaded_gives_1_and_a_line_that_names_it(self):
        with tempfile.TemporaryDirectory() as folder:
            result = barview(BIN_DIR, "--ribbon", "cfg\\missing.xml", "--dump", os.path.join(folder, "dump.json"))
        self.assertEqual(result.returncode, 1)
        self.assertIn("not loaded: cfg\\missing.xml", result.stderr)
        self.assertIn("请确认文件:", result.stderr)

    def test_wrong_usage_gives_2(self):
        for arguments in ([], [BIN_DIR, "--size", "wide"], [BIN_DIR, "--nonsense"], ["/no/such/place"]):
            self.assertEqual(barview(*arguments).returncode, 2, arguments)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
