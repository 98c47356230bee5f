#!/usr/bin/python3
"""barview and the demo's picture with a configuration of the tests' own: two ribbon files, one language.

usage: preview_test.py BIN_DIR [TEST...]
"""
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest

from wine_session import ROOT, alone_in_prefix

BIN_DIR = ""
F1_HINT = "按F1键获得此功能视频"

# Named so that the order differs when letter case counts.
FIRST_FILE = r"cfg\ribbon-a.xml"
SECOND_FILE = r"cfg\Ribbon-B.XML"

FILES = {
    "cfg/ribbon-a.xml": """<ribbon>
  <row KEYWORD="main">
    <category KEYWORD="Map" NAME="">
      <panel KEYWORD="View" NAME="">
        <element KEYWORD="Large" NAME="" TOOLTIP="" TYPE="BUTTON" PICPATH="pic\\a.ico" CMD="do" PARAM="1"/>
        <element KEYWORD="Small" NAME="" TYPE="BUTTON" SIZE="16" AcceptF1="N" GROUPBEFORE="Y"/>
      </panel>
    </category>
  </row>
</ribbon>
""",
    "cfg/Ribbon-B.XML": """<ribbon>
  <row KEYWORD="QK_Rbbion_QAToolbar"><item KEYWORD="Small"/></row>
  <row KEYWORD="StatusEx_btns">
    <item KEYWORD="Every" NAME="" TYPE="BUTTON" TOOLTIP="" PICPATH="pic\\e.ico" PICDisPATH="pic\\d.ico" SIZE="16"
          VALUEGROUP="a,,地" WIDTH="-50" CMD="run &lt;it&gt;" PARAM="7" help="own.swf" CateTab="Y" AcceptF1="N" GROUPBEFORE="Y"/>
    <item KEYWORD="Unknown" NAME="" TOOLTIP=""/>
  </row>
  <row KEYWORD="more">
    <category KEYWORD="Plain" NAME="" CateTab="Y">
      <panel KEYWORD="View" NAME=""><element KEYWORD="Large" NAME="" TYPE="BUTTON"/></panel>
    </category>
  </row>
</ribbon>
""",
    "cfg/status.xml": """<ribbon><row KEYWORD="StatusEx_btns"><element KEYWORD="Large" NAME="" TYPE="label"/>
<element KEYWORD="Separator"/><element KEYWORD="Small" NAME="" TYPE="SLIDER"/><element KEYWORD="Unknown"/></row></ribbon>""",
    "cfg/other.xml": "<ribbon><row><category KEYWORD='Other' NAME=''/></row></ribbon>",
    "cfg/ribbon.txt": "<ribbon><row><category KEYWORD='Other' NAME=''/></row></ribbon>",
    "lang/en/table.xlf": """<xliff xmlns="urn:oasis:names:tc:xliff:document:2.0" version="2.0" srcLang="en"><file id="RibbonBarCfg">
""" + "".join(f'<unit id="u{i}" name="{key}"><segment><source>{text}</source></segment></unit>\n' for i, (key, text) in enumerate({
        "Map": "The map", "View": "Sight", "Large": "Enlarge", "Large.tooltip": "Makes it larger", "Small": "Reduce",
        "Plain": "No command", "Every": "Everything", "Every.tooltip": "Has it all"}.items())) + "</file></xliff>\n",
    "lang/bad/table.xlf": "<xliff>",
}


def make_installation(folder):
    for name, text in FILES.items():
        path = os.path.join(folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)


def run(program, *arguments, display=None):
    wine_run = os.path.join(ROOT, "scripts", "wine-run")
    words = [os.path.join(BIN_DIR, program), *arguments]
    if not display:
        return subprocess.run([wine_run, "--null", *words], capture_output=True, text=True)
    with alone_in_prefix() as prefix:
        # A display and a prefix of its own, as the demo's clicks have them.
        environment = dict(os.environ, BARWRIGHT_WINEPREFIX=prefix)
        environment.pop("DISPLAY", None)
        return subprocess.run([wine_run, *words], capture_output=True, text=True, env=environment)


def picture_facts(path):
    """Width, height, number of colours, mean brightness from 0 to 1."""
    result = subprocess.run(["identify", "-format", "%m %w %h %k %[fx:mean]", path], capture_output=True, text=True, check=True)
    kind, width, height, colours, mean = result.stdout.split()
    assert kind == "PNG", kind
    return int(width), int(height), int(colours), float(mean)


def without_problems(text):
    """What a program says beside the problems of configuration files: these end in their code, and lines below are set in."""
    return "".join(line for line in text.splitlines(True)
                   if not re.search(r": (error|warning|note): .*\[[a-z-]+\]", line) and not line.startswith("    "))


class OwnInstallation(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self._folder = tempfile.TemporaryDirectory()
        self.addCleanup(self._folder.cleanup)
        self.folder = self._folder.name
        make_installation(self.folder)
        self.dump_file = os.path.join(self.folder, "dump.json")

    def preview(self, *arguments):
        result = run("barview.exe", self.folder, *arguments, "--dump", self.dump_file)
        with open(self.dump_file, encoding="utf-8") as file:
            return result, json.load(file)

    def dump(self, *arguments):
        result, got = self.preview("--lang", "en", *arguments)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(without_problems(result.stderr), "")
        return got


def button(kind, identity, text, tooltip="", description="", large=False):
    return {"class": kind, "id": identity, "text": text, "tooltip": tooltip, "description": description, "visible": True,
            "enabled": True, "large": large}


def without_places(value):
    if isinstance(value, dict):
        return {key: without_places(part) for key, part in value.items() if key != "rect"}
    return [without_places(part) for part in value] if isinstance(value, list) else value


def names(dump):
    return [category["name"] for category in dump["ribbon"]["categories"]]


class DumpOfTwoFiles(OwnInstallation):
    def test_problems_of_the_files_are_told_with_their_places(self):
        result, _ = self.preview("--lang", "en")
        self.assertIn('cfg/ribbon-a.xml:5:67: warning: "pic\\16\\a.ico" and "pic\\32\\a.ico" are not there, nor is anything else in that folder '
                      "[missing-icon]", result.stderr)

    def test_every_part_is_what_the_files_say(self):
        got = self.dump("--size", "900x300")
        # A button without a tooltip of its own shows its text.
        separator = button("CMFCRibbonSeparator", 0, "", large=True)
        skin = got.pop("skin")
        self.assertEqual(skin["manager"], "CQKVisualManagerOffice2007Silver")
        self.assertEqual(len(skin["colours"]), 38)
        self.assertEqual(len(skin["images"]), 16)
        self.assertEqual(without_places(got), {
            "nextCommandId": 41003,
            "registry": [
                {"id": 41000, "keyword": "Map", "name": "The map", "tooltip": "", "cmd": "", "param": "", "help": "The map.swf"},
                {"id": 41001, "keyword": "Large", "name": "Enlarge", "tooltip": "Makes it larger", "cmd": "do", "param": "1",
                 "help": "Enlarge.swf"},
                {"id": 41002, "keyword": "Small", "name": "Reduce", "tooltip": "", "cmd": "", "param": "", "help": ""}],
            "ribbon": {
                "categories": [
                    {"name": "The map", "class": "CMFCRibbonCategoryEx", "id": 41000, "visible": True, "active": True,
                     "panels": [{"name": "Sight", "elements": [
                         button("CMFCRibbonUNIcoButton", 41001, "Enlarge", "Makes it larger", F1_HINT, large=True),
                         separator,
                         button("CMFCRibbonSmallButton", 41002, "Reduce", "Reduce")]}]},
                    {"name": "No command", "class": "CMFCRibbonCategory", "visible": True, "active": False,
                     "panels": [{"name": "Sight", "elements": [
                         button("CMFCRibbonUNIcoButton", 41001, "Enlarge", "Enlarge", F1_HINT, large=True)]}]}],
                "quickAccess": [41002],
                "commands": [["", "", "do", ""], ["", "", ""]]},
            "menu": [], "accelerators": [], "toolbars": [],
            "statusExtras": [{"path": SECOND_FILE, "row": "StatusEx_btns", "records": [
                {"groupBefore": True, "name": "Everything", "type": "BUTTON", "tooltip": "Has it all", "keyword": "Every",
                 "picPath": "pic\\e.ico", "picDisPath": "pic\\d.ico", "size": 16, "cmd": "run <it>", "param": "7",
                 "help": "own.swf", "acceptF1": False, "cateTab": True, "valueGroup": ["a", "", "地"], "width": -50},
                {"groupBefore": False, "name": "Unknown", "type": "", "tooltip": "", "keyword": "Unknown", "picPath": "",
                 "picDisPath": "", "size": 0, "cmd": "", "param": "", "help": "Unknown.swf", "acceptF1": True,
                 "cateTab": False, "valueGroup": [], "width": 0}]}],
            "status": {"app": "", "elements": [], "extended": []}})

    def test_files_are_built_in_the_order_in_which_they_are_given(self):
        got = self.dump("--ribbon", SECOND_FILE, "--ribbon", FIRST_FILE)
        self.assertEqual(names(got), ["No command", "The map"])
        self.assertEqual([entry["keyword"] for entry in got["registry"]], ["Large", "Map", "Small"])
        self.assertEqual(names(self.dump("--ribbon", r"cfg\other.xml")), ["Other"])

    def test_the_category_asked_for_is_the_active_one(self):
        for name in ("The map", "No command"):
            got = self.dump("--category", name)
            for category in got["ribbon"]["categories"]:
                left, top, right, bottom = category["panels"][0]["elements"][0]["rect"]
                self.assertEqual(category["active"], category["name"] == name)
                self.assertEqual(right > left and bottom > top, category["name"] == name)


    def test_a_path_shows_the_categories_and_the_quick_access_of_its_file(self):
        for path, shown, quick in (("ribbon-a", "The map", []), ("Ribbon-B", "No command", [41002])):
            got = self.dump("--path", path)
            for category in got["ribbon"]["categories"]:
                self.assertEqual(category["visible"], category["name"] == shown)
                self.assertEqual(category["active"], category["name"] == shown)
            self.assertEqual(got["ribbon"]["quickAccess"], quick)


    def test_an_application_has_the_elements_of_its_status_row_in_a_status_bar(self):
        files = ("--ribbon", FIRST_FILE, "--ribbon", SECOND_FILE, "--ribbon", r"cfg\status.xml")
        self.assertEqual(self.dump(*files)["status"], {"app": "", "elements": [], "extended": []})
        status = self.dump(*files, "--app", r"cfg\status.xml")["status"]
        self.assertEqual((status["app"], status["elements"]), (r"cfg\status.xml", []))
        self.assertEqual([(e["class"], e["id"], e["text"]) for e in status["extended"]],
                         [("CMFCRibbonLabelEx", 41001, "Enlarge"), ("CMFCRibbonSeparator", 0, ""),
                          ("CMFCRibbonSliderSync", 41002, "Reduce")])
        edges = [edge for e in status["extended"] for edge in (e["rect"][0], e["rect"][2])]
        self.assertEqual(edges, sorted(edges))
        self.assertGreater(edges[0], 0)


class ExitCode1(OwnInstallation):
    def check(self, line, *arguments, built=("The map", "No command")):
        result, got = self.preview(*arguments)
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertIn(line, result.stderr)
        self.assertEqual(len(names(got)), len(built))

    def test_a_category_that_is_not_there(self):
        self.check("no category named Nowhere", "--lang", "en", "--category", "Nowhere")

    def test_a_path_that_is_not_there(self):
        self.check("no path named nowhere", "--lang", "en", "--path", "nowhere")

    def test_an_application_that_is_not_there(self):
        self.check("no status row in a ribbon file named nowhere", "--lang", "en", "--app", "nowhere")

    def test_a_category_that_the_path_does_not_show(self):
        self.check("no category named The map", "--lang", "en", "--path", "Ribbon-B", "--category", "The map")

    def test_a_language_that_is_not_there_or_is_broken(self):
        self.check("no usable language fr", "--lang", "fr")
        self.check("no usable language bad", "--lang", "bad")

    def test_a_directory_without_ribbon_files(self):
        for name in ("ribbon-a.xml", "Ribbon-B.XML"):
            os.remove(os.path.join(self.folder, "cfg", name))
        self.check(r"cfg\ribbon*.xml", built=())

    def test_a_picture_that_cannot_be_written(self):
        self.check("not written: ", "--screenshot", os.path.join(self.folder, "missing", "picture.png"))


class Pictures(OwnInstallation):
    def picture(self, program, *arguments):
        path = os.path.join(self.folder, "picture.png")
        result = run(program, *arguments, "--screenshot", path, display=True)
        self.assertEqual(result.returncode, 0, result.stderr)
        facts = picture_facts(path)
        os.remove(path)
        return facts

    def test_barview_shows_the_bars_in_either_skin(self):
        brightness = {}
        for skin in ("silver", "black"):
            width, height, colours, brightness[skin] = self.picture("barview.exe", self.folder, "--lang", "en", "--skin", skin,
                                                                    "--size", "700x320")
            # The size is that of the client area.
            self.assertTrue(700 <= width < 760 and 320 <= height < 380, (width, height))
            self.assertGreater(colours, 20)
        self.assertLess(brightness["black"], brightness["silver"] - 0.05)

    def test_the_demo_shows_its_frame(self):
        width, height, colours, _ = self.picture("demo.exe", "--lang", "en", "--size", "900x600")
        self.assertEqual((width, height), (900, 600))
        self.assertGreater(colours, 200)


class BarviewUsage(unittest.TestCase):
    def test_help_lists_every_option_and_itself(self):
        result = run("barview.exe", "--help")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        options = set(re.findall(r"--[a-z]+", result.stdout))
        self.assertEqual(options, {"--help", "--ribbon", "--menu", "--toolbars", "--lang", "--skin", "--size", "--scale", "--category",
                                   "--path", "--app", "--screenshot", "--dump", "--watch", "--changes", "--matrix", "--skins", "--langs",
                                   "--scales", "--sizes", "--against", "--batch"})


class DemoUsage(unittest.TestCase):
    def test_an_unknown_skin_is_refused(self):
        result = run("demo.exe", "--skin", "gold")
        self.assertEqual(result.returncode, 2)
        self.assertIn("--skin needs a proper value", result.stderr)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
