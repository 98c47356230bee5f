#!/usr/bin/python3
"""barview --watch: the bars follow the files.

usage: watch_test.py BIN_DIR [TEST...]
"""
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import random_configuration
from wine_session import ROOT

BIN_DIR = ""
DEADLINE = 40

RIBBON = """<ribbon>
<row KEYWORD="Main">
<category KEYWORD="Map" NAME=""><panel KEYWORD="Views" NAME="">
<item KEYWORD="Open" NAME="" TYPE="BUTTON" PICPATH="pic\\a.ico" CMD="open"/>
<item KEYWORD="Scale" TYPE="SLIDER" CMD="scale"/></panel></category>
<category KEYWORD="Tools" NAME=""><panel KEYWORD="Measures" NAME="">
<item KEYWORD="Measure" NAME="" TYPE="BUTTON" CMD="measure"/></panel></category>
</row>
</ribbon>
"""
MENU = """<menu><group><popup KEYWORD="File" MENUNAME=""><item KEYWORD="Open" MENUNAME=""/>
<item KEYWORD="Save" MENUNAME="" HOTKEY="Ctrl+S" CMD="save"/></popup></group></menu>
"""
BARS = """<bars><group KEYWORD="Main"><bar PROMPT="Standard"><item TYPE="button" KEYWORD="Open" PROMPT="Open" PICPATH="pic\\a.ico"/>
<item TYPE="button" KEYWORD="Extra" PROMPT="Extra"/></bar></group></bars>
"""
TABLE = """<xliff xmlns="urn:oasis:names:tc:xliff:document:2.0" version="2.0" srcLang="en"><file id="RibbonBarCfg">
<unit id="Open"><segment><source>Open it</source></segment></unit>
</file></xliff>
"""


class Watched:
    """barview over an installation that is edited while it runs."""

    def __init__(self, changes, *arguments):
        self._folder = tempfile.TemporaryDirectory()
        self.root = self._folder.name
        for name, text in {"cfg/ribbon.xml": RIBBON, "cfg/menu.xml": MENU, "cfg/toolbar.xml": BARS, "lang/en/a.xlf": TABLE}.items():
            self.write(name, text)
        for side in (16, 32):
            os.makedirs(os.path.join(self.root, "pic", str(side)))
            with open(os.path.join(self.root, "pic", str(side), "a.ico"), "wb") as file:
                file.write(random_configuration.icon(side))
        self._dump = os.path.join(self.root, "dump.json")
        self._process = subprocess.Popen(
            [os.path.join(ROOT, "scripts", "wine-run"), "--null", os.path.join(BIN_DIR, "barview.exe"), self.root, "--lang", "en",
             "--watch", "--changes", str(changes), "--dump", self._dump, *arguments],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, errors="replace", start_new_session=True)

    def __enter__(self):
        self._last = None
        self.first = self.next()
        return self

    def __exit__(self, *_):
        self._end()
        self._folder.cleanup()

    def _end(self):
        """Both outputs. The program goes with its runner, else it would hold them open."""
        if self._process.poll() is None:
            os.killpg(self._process.pid, signal.SIGKILL)
        return self._process.communicate()

    def write(self, name, text):
        path = os.path.join(self.root, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)

    def edit(self, name, old, new):
        with open(os.path.join(self.root, name), encoding="utf-8") as file:
            text = file.read()
        assert old in text, (name, old)
        self.write(name, text.replace(old, new))

    def next(self):
        """The dump that is written next."""
        end = time.monotonic() + DEADLINE
        while time.monotonic() < end:
            try:
                stamp = os.stat(self._dump).st_ino
                if stamp != self._last:
                    self._last = stamp
                    with open(self._dump, encoding="utf-8") as file:
                        return json.load(file)
            except FileNotFoundError:
                pass
            if self._process.poll() is not None:
                break
            time.sleep(0.05)
        raise AssertionError("no dump came: " + "".join(self._end()))

    def finish(self):
        """Standard output and error; the program leaves by itself after its last change."""
        out, err = self._process.communicate(timeout=DEADLINE)
        assert self._process.returncode == 0, (self._process.returncode, err)
        return out, err


def elements(dump, category=0):
    return [e for p in dump["ribbon"]["categories"][category]["panels"] for e in p["elements"]]


def by_keyword(dump):
    return {entry["keyword"]: entry for entry in dump["registry"] if entry["id"] != 0}


class Watching(unittest.TestCase):
    maxDiff = None

    def test_an_edited_ribbon_file_is_shown_and_commands_keep_their_ids(self):
        with Watched(1) as barview:
            barview.edit("cfg/ribbon.xml", '<item KEYWORD="Open" NAME="" TYPE="BUTTON" PICPATH="pic\\a.ico" CMD="open"/>',
                         '<item KEYWORD="New" NAME="" TYPE="BUTTON"/>\n<item KEYWORD="Open" NAME="" TYPE="BUTTON" CMD="other"/>')
            dump = barview.next()
            out, err = barview.finish()
        self.assertEqual([e["text"] for e in elements(dump)], ["New", "Open it", ""])
        before, after = by_keyword(barview.first), by_keyword(dump)
        for keyword, entry in before.items():
            self.assertEqual(after[keyword]["id"], entry["id"], keyword)
        self.assertEqual(after["Open"]["cmd"], "other")
        self.assertEqual(after["New"]["id"], barview.first["nextCommandId"])
        for bars in ("menu", "accelerators", "toolbars"):
            self.assertEqual(dump[bars], barview.first[bars], bars)
        self.assertIn(r"built anew: cfg\ribbon.xml", out)
        self.assertNotIn("barview:", err)

    def test_a_new_ribbon_file_is_shown_and_its_removal_too(self):
        with Watched(2) as barview:
            barview.write("cfg/ribbon-more.xml", '<ribbon><row KEYWORD="More"><category KEYWORD="Extras" NAME=""/></row></ribbon>')
            added = barview.next()
            os.remove(os.path.join(barview.root, "cfg", "ribbon-more.xml"))
            removed = barview.next()
            barview.finish()
        names = [[category["name"] for category in dump["ribbon"]["categories"]] for dump in (barview.first, added, removed)]
        self.assertEqual(names[0], ["Map", "Tools"])
        self.assertEqual(sorted(names[1]), ["Extras", "Map", "Tools"])
        self.assertEqual(names[2], names[0])

    def test_a_file_that_is_removed_before_it_is_written_anew_leaves_what_is_shown(self):
        with Watched(2) as barview:
            os.remove(os.path.join(barview.root, "cfg", "ribbon.xml"))
            self.assertEqual(barview.next()["ribbon"]["categories"], barview.first["ribbon"]["categories"])
            barview.write("cfg/ribbon.xml", RIBBON.replace('KEYWORD="Tools"', 'KEYWORD="Gauges"'))
            self.assertEqual([category["name"] for category in barview.next()["ribbon"]["categories"]], ["Map", "Gauges"])
            barview.finish()

    def test_an_icon_that_a_file_refers_to_before_it_is_there_is_shown_when_it_comes(self):
        with Watched(2) as barview:
            barview.edit("cfg/toolbar.xml", "pic\\a.ico", "pic\\b.ico")
            missing = barview.next()["toolbars"]
            shutil.copy(os.path.join(barview.root, "pic", "16", "a.ico"), os.path.join(barview.root, "pic", "16", "b.ico"))
            there = barview.next()["toolbars"]
            barview.finish()
        self.assertNotEqual(missing, there)
        self.assertEqual(there, barview.first["toolbars"])

    def test_an_edited_menu_keeps_its_shortcuts(self):
        with Watched(1) as barview:
            barview.edit("cfg/menu.xml", "Ctrl+S", "Ctrl+E")
            dump = barview.next()
            barview.finish()
        self.assertEqual(barview.first["accelerators"], [{"virt": 9, "key": 0x53, "cmd": by_keyword(barview.first)["Save"]["id"]}])
        self.assertEqual(dump["accelerators"], [{"virt": 9, "key": 0x45, "cmd": by_keyword(dump)["Save"]["id"]}])
        self.assertEqual(dump["registry"], barview.first["registry"])
        self.assertEqual(dump["menu"], barview.first["menu"])
        self.assertEqual(dump["nextCommandId"], barview.first["nextCommandId"])

    def test_an_edited_toolbar_file_is_shown_in_the_same_place(self):
        with Watched(1) as barview:
            barview.edit("cfg/toolbar.xml", 'PROMPT="Extra"', 'PROMPT="More"')
            dump = barview.next()
            barview.finish()
        self.assertEqual(dump["toolbars"][0]["buttons"][1]["text"], "More")
        first, now = barview.first["toolbars"][0], dump["toolbars"][0]
        self.assertEqual((now["controlId"], now["buttons"][0], len(dump["toolbars"])), (first["controlId"], first["buttons"][0], 1))

    def test_a_new_file_that_takes_the_old_ones_name_is_one_change(self):
        with Watched(1) as barview:
            with open(os.path.join(barview.root, "cfg", "ribbon.xml"), encoding="utf-8") as file:
                text = file.read()
            barview.write("cfg/ribbon.xml~", text.replace('KEYWORD="Measure"', 'KEYWORD="Area"'))
            os.rename(os.path.join(barview.root, "cfg", "ribbon.xml"), os.path.join(barview.root, "cfg", "ribbon.old"))
            os.rename(os.path.join(barview.root, "cfg", "ribbon.xml~"), os.path.join(barview.root, "cfg", "ribbon.xml"))
            dump = barview.next()
            out, _ = barview.finish()
        self.assertEqual([e["text"] for e in elements(dump, 1)], ["Area"])
        self.assertEqual(out.count("built anew"), 1, out)

    def test_a_broken_file_leaves_what_is_shown_until_it_is_mended(self):
        with Watched(2) as barview:
            barview.edit("cfg/ribbon.xml", "</ribbon>", "</ribon>")
            broken = barview.next()
            barview.write("cfg/ribbon.xml", RIBBON.replace('KEYWORD="Measure"', 'KEYWORD="Area"'))
            mended = barview.next()
            out, err = barview.finish()
        self.assertEqual(broken["ribbon"], barview.first["ribbon"])
        self.assertEqual([e["text"] for e in elements(mended, 1)], ["Area"])
        self.assertRegex(err, r"(?m)^cfg/ribbon\.xml:\d+:\d+: error: .+ \[xml-syntax\]$")
        self.assertIn(r"as before: cfg\ribbon.xml", out)

    def test_standard_error_has_what_barcheck_says_of_the_broken_file(self):
        with Watched(1) as barview:
            barview.edit("cfg/menu.xml", "Ctrl+S", "Ctrl+")
            broken = barview.next()
            checked = subprocess.run([os.path.join(ROOT, "scripts", "wine-run"), "--null", os.path.join(BIN_DIR, "barcheck.exe"),
                                      barview.root, "cfg/menu.xml"], capture_output=True, text=True, errors="replace").stdout
            out, err = barview.finish()
        self.assertEqual((broken["menu"], broken["accelerators"]), (barview.first["menu"], barview.first["accelerators"]))
        lines = checked.splitlines()
        start = [line.startswith("cfg/menu.xml:2:") and line.endswith(" [shortcut-syntax]") for line in lines].index(True)
        self.assertEqual(lines[start + 1], "    " + MENU.splitlines()[1].replace("Ctrl+S", "Ctrl+"))
        self.assertEqual(lines[start + 2].strip(), "^")
        self.assertTrue(lines[start + 3].startswith("    fix: "))
        self.assertIn("\n".join(lines[start:start + 4]) + "\n", err)
        self.assertIn(r"as before: cfg\menu.xml", out)

    def test_of_two_files_that_change_at_once_the_good_one_is_shown_and_the_mended_one_follows(self):
        with Watched(2) as barview:
            barview.edit("cfg/menu.xml", "Ctrl+S", "Ctrl+")
            barview.edit("cfg/ribbon.xml", 'KEYWORD="Measure"', 'KEYWORD="Area"')
            first = barview.next()
            barview.edit("cfg/menu.xml", "Ctrl+", "Ctrl+E")
            mended = barview.next()
            out, _ = barview.finish()
        self.assertEqual([e["text"] for e in elements(first, 1)], ["Area"])
        self.assertEqual(first["accelerators"], barview.first["accelerators"])
        self.assertEqual([entry["key"] for entry in mended["accelerators"]], [0x45])
        self.assertEqual(out.splitlines(), [r"barview: built anew: cfg\ribbon.xml", r"barview: as before: cfg\menu.xml",
                                            r"barview: built anew: cfg\menu.xml"])

    def test_a_broken_table_is_told_with_its_place_until_it_is_mended(self):
        with Watched(3) as barview:
            barview.edit("lang/en/a.xlf", "</file>", "</fil>")
            broken = barview.next()
            barview.edit("cfg/ribbon.xml", 'KEYWORD="Measure"', 'KEYWORD="Area"')
            changed = barview.next()
            barview.write("lang/en/a.xlf", TABLE.replace("Open it", "Open now"))
            mended = barview.next()
            _, err = barview.finish()
        self.assertEqual([elements(dump)[0]["text"] for dump in (broken, changed, mended)], ["Open it", "Open it", "Open now"])
        self.assertEqual([e["text"] for e in elements(changed, 1)], ["Area"])
        self.assertEqual(len(re.findall(r"(?m)^lang/en/a\.xlf:\d+:\d+: error: .+ \[xml-syntax\]$", err)), 2, err)

    def test_an_edited_text_is_shown_everywhere(self):
        with Watched(1) as barview:
            barview.edit("lang/en/a.xlf", "Open it", "Open now")
            dump = barview.next()
            barview.finish()
        self.assertEqual(elements(dump)[0]["text"], "Open now")
        self.assertEqual(dump["menu"][0]["popup"][0]["text"], "Open now")
        self.assertEqual(by_keyword(dump)["Open"]["name"], "Open now")

    def test_the_active_tab_stays(self):
        with Watched(1, "--category", "Tools") as barview:
            barview.edit("cfg/ribbon.xml", 'KEYWORD="Measure"', 'KEYWORD="Area"')
            dump = barview.next()
            barview.finish()
        self.assertEqual([c["active"] for c in dump["ribbon"]["categories"]], [False, True])


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
