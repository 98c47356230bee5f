#!/usr/bin/python3
"""What the viewer finds again at its next start, and what becomes of damage to it.

usage: memory_test.py BIN_DIR [TEST...]
"""
import json
import os
import subprocess
import sys
import tempfile
import unittest

from viewer import ROOT, Viewer, copy_installation, edit_file
from wine_session import PREFIX

BIN_DIR = ""
TITLES = ("Map viewer", "地图浏览器")


class KeptViewer(Viewer):
    """Its window lies where it was left, and it keeps its settings in a folder of the test's."""
    PROGRAM = ("demo.exe",)

    def __init__(self, folder, *arguments, registry=(), message=False, program=None):
        super().__init__(program or BIN_DIR, *arguments, registry=registry, memory=("--settings", folder))
        self._has_message = message

    def begin(self):
        if self._has_message:
            self.wait_until(lambda: any(len(self.windows(title)) > 1 for title in TITLES), "a message is shown")
            self.key("Return")
        super().begin()

    def titles(self):
        return {title for title in TITLES if self.windows(title)}


class NextStart(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = os.path.join(folder.name, "settings")
        self.file = os.path.join(self.folder, "viewer.json")
        self.bars = os.path.join(self.folder, "bars.xml")

    def run_once(self, *arguments, act=lambda viewer: None, **options):
        """One whole run; gives the last record."""
        with KeptViewer(self.folder, *arguments, **options) as viewer:
            act(viewer)
            self.assertEqual(viewer.leave(), 0)
            return viewer.record

    def kept(self):
        with open(self.file, encoding="utf-8") as file:
            return json.load(file)

    def damage(self, path):
        with open(path, "w", encoding="utf-8") as file:
            file.write('{"version": 1, "lang')

    def change(self, viewer):
        """Nothing is as at the first start."""
        viewer.click_command("LanguageChinese")
        viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][0]["name"] == "地图")
        viewer.click_command("SkinBlack")
        viewer.wait_for(lambda record: record["skin"] == "black" and record["map"]["palette"] == 1)
        viewer.click(*viewer.tab_middle(1))
        viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][1]["active"])
        viewer.click_command("PaletteNatural")  # not this skin's
        viewer.wait_for(lambda record: record["map"]["palette"] == 0)
        viewer.click(*viewer.tab_middle(2))
        viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][2]["active"])
        viewer.click_command("QuickAccessBelow")
        viewer.wait_for(lambda record: record["quickAccessBelow"])
        viewer.key("ctrl+g")
        viewer.wait_for(lambda record: not record["map"]["layers"][3])
        viewer.key("ctrl+i")
        viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > 5)
        viewer.open_quick_access_menu()
        viewer.key("Down", "Return")
        viewer.wait_for(lambda record: len(record["frame"]["ribbon"]["quickAccess"]) == 4)
        viewer.key("ctrl+F1")
        viewer.wait_for(lambda record: record["ribbonMinimized"])

    def assert_alike(self, now, before):
        for key in ("language", "skin", "ribbonMinimized", "quickAccessBelow", "classicBars", "statusOnScreen"):
            self.assertEqual(now[key], before[key], key)
        for key in ("longitude", "latitude", "pixelsPerDegree", "layers", "palette"):
            self.assertEqual(now["map"][key], before["map"][key], key)
        self.assertEqual(now["frame"]["ribbon"]["quickAccess"], before["frame"]["ribbon"]["quickAccess"])

    def test_all_that_was_changed_is_there_again(self):
        before = self.run_once("--lang", "en", "--skin", "silver", "--category", "2", act=self.change)
        self.assertEqual((before["map"]["palette"], self.kept()["map"]["palette"]), (0, "natural"))
        after = self.run_once()
        self.assert_alike(after, before)
        self.assert_alike(self.run_once(), before)  # what was found again is kept, too

    def test_a_kept_command_that_is_gone_is_named_and_kept_for_later(self):
        self.run_once("--lang", "en", "--skin", "silver", "--category", "2", act=self.change)
        with open(self.bars, encoding="utf-8") as file:
            text = file.read()
        self.assertIn('<item KEYWORD="ZoomOut"/>', text)
        with open(self.bars, "w", encoding="utf-8") as file:
            file.write(text.replace('<item KEYWORD="ZoomOut"/>', '<item KEYWORD="GoneCommand"/>'))
        with KeptViewer(self.folder) as viewer:
            self.assertEqual(viewer.leave(), 0)
            self.assertEqual(viewer.errors().count('"GoneCommand"'), 1, viewer.errors())
        with open(self.bars, encoding="utf-8") as file:
            self.assertIn('"GoneCommand"', file.read())

    def test_opened_files_are_open_again_and_one_that_is_gone_is_told(self):
        with tempfile.TemporaryDirectory() as folder:
            paths = [os.path.join(folder, name) for name in ("first.geojson", "second.geojson")]
            for path, place in zip(paths, ([8.5, 47.4], [116.4, 39.9])):
                with open(path, "w", encoding="utf-8") as file:
                    json.dump({"type": "Point", "coordinates": place}, file)
            windows = ["Z:" + path.replace("/", "\\") for path in paths]
            self.run_once("--lang", "en", "--open", windows[0])
            self.assertEqual(self.kept()["openedFiles"], windows[:1])
            kept = self.kept()
            kept["openedFiles"] = windows
            with open(self.file, "w", encoding="utf-8") as file:
                json.dump(kept, file)
            before = self.run_once(act=lambda viewer: viewer.key("ctrl+i"))
            self.assertEqual(before["map"]["opened"], 2)
            after = self.run_once()
            self.assertEqual(after["map"]["opened"], 2)
            for key in ("longitude", "latitude", "pixelsPerDegree", "layers"):
                self.assertEqual(after["map"][key], before["map"][key], key)
            os.remove(paths[0])
            self.assertEqual(self.run_once(message=True)["map"]["opened"], 1)
            self.assertEqual(self.kept()["openedFiles"], windows[1:])
            self.assertEqual(self.run_once()["map"]["opened"], 1)  # told once

    def test_keys_that_the_user_gave_commands_are_theirs_again_by_keyword(self):
        def give_a_key(viewer):
            viewer.key("alt+s", "c")
            viewer.wait_until(lambda: viewer.windows("Customize"), "the dialog")
            viewer.key(*["ctrl+Tab"] * 3)  # the page of the keys
            for key in ("alt+d", "Down", "alt+p", "ctrl+shift+F9", "Tab", "space", "Escape"):
                viewer.act("sleep", 0.2, "key", key)
            viewer.wait_until(lambda: not viewer.windows("Customize"), "the end of the dialog")

        def command_of(record, flags, key):
            """Its keyword."""
            numbers = [row["cmd"] for row in record["frame"]["accelerators"] if (row["virt"], row["key"]) == (flags, key)]
            return [command["keyword"] for command in record["frame"]["registry"] if command["id"] in numbers]

        def press_it(viewer):
            viewer.key("ctrl+shift+F9")
            viewer.wait_for(lambda record: 0 < record["map"]["longitude"] < 40 and record["map"]["pixelsPerDegree"] > 5)
        with tempfile.TemporaryDirectory() as program:
            copy_installation(BIN_DIR, program)
            self.run_once("--lang", "en", "--bars", "classic", act=give_a_key, program=program)
            edit_file(program, "cfg/keys.xml", "<group>", '<group><item KEYWORD="Another" MENUNAME="" CMD="none"/>')
            after = self.run_once(act=press_it, program=program)
            self.assertEqual(command_of(after, 1 | 4 | 8, 0x78), ["RegionAfrica"])  # a virtual key with Shift and Ctrl
            self.assertEqual(command_of(after, 1 | 8, ord("I")), ["ZoomIn"])  # as configured
            with open(self.bars, encoding="utf-8") as file:
                self.assertEqual(file.read().count("<shortcut "), 1)
            self.assertEqual(command_of(self.run_once(program=program), 1 | 4 | 8, 0x78), ["RegionAfrica"])

    def test_the_window_is_where_it_was_left_and_maximised_if_it_was(self):
        self.run_once()
        kept = self.kept()
        kept["window"] = {"place": [90, 40, 1190, 740], "maximized": False}
        with open(self.file, "w", encoding="utf-8") as file:
            json.dump(kept, file)
        status = self.run_once()["statusOnScreen"]
        self.assertTrue(90 <= status[0] < 100 and 1180 < status[2] <= 1190 and 730 < status[3] <= 740, status)
        self.assertEqual(self.kept()["window"], kept["window"])
        kept["window"]["maximized"] = True
        with open(self.file, "w", encoding="utf-8") as file:
            json.dump(kept, file)
        status = self.run_once()["statusOnScreen"]
        self.assertGreaterEqual(status[2] - status[0], 1390)
        self.assertEqual(self.kept()["window"], kept["window"])

    def test_a_window_on_a_monitor_that_is_gone_comes_to_this_one(self):
        self.run_once()
        kept = self.kept()
        kept["window"]["place"] = [3000, 2000, 4000, 2700]
        with open(self.file, "w", encoding="utf-8") as file:
            json.dump(kept, file)
        status = self.run_once()["statusOnScreen"]
        self.assertTrue(0 <= status[0] and status[2] <= 1400 and status[3] <= 900, status)

    def toolbars(self, record):
        return [places[0][:2] if places else None for places in record["toolbarsOnScreen"]]

    def test_menus_and_toolbars_are_there_again_each_where_it_was(self):
        def move(viewer):
            # By its grip: the first bar goes to another row.
            left, top, _, bottom = viewer.record["toolbarsOnScreen"][0][0]
            viewer.drag(left - 5, (top + bottom) // 2, left + 90, bottom + 200)
            viewer.wait_for(lambda record: self.toolbars(record)[0] != self.toolbars(first)[0])
            viewer.hover(700, 600)
        first = self.run_once("--lang", "en", "--bars", "classic")
        moved = self.run_once(act=move)
        self.assertTrue(moved["classicBars"])
        again = self.run_once()
        self.assertEqual(self.toolbars(again), self.toolbars(moved))
        # The ribbon in between does not forget them.
        ribbon = self.run_once("--bars", "ribbon")
        self.assertFalse(ribbon["classicBars"])
        self.assertEqual(ribbon["toolbarsOnScreen"], [[] for _ in again["toolbarsOnScreen"]])
        self.assertEqual(self.toolbars(self.run_once("--bars", "classic")), self.toolbars(moved))

    def test_toolbars_stay_where_they_are_when_their_file_gains_or_loses_one(self):
        def move(viewer):
            left, top, _, bottom = viewer.record["toolbarsOnScreen"][0][0]
            viewer.drag(left - 5, (top + bottom) // 2, left + 90, bottom + 200)
            viewer.wait_for(lambda record: self.toolbars(record)[0] != self.toolbars(first)[0])
            left, top, _, bottom = viewer.record["toolbarsOnScreen"][1][0]
            viewer.drag(left - 5, (top + bottom) // 2, left + 300, (top + bottom) // 2)
            viewer.wait_for(lambda record: self.toolbars(record)[1] != self.toolbars(first)[1])
            viewer.hover(700, 600)
        with tempfile.TemporaryDirectory() as program:
            copy_installation(BIN_DIR, program)
            first = self.run_once("--lang", "en", "--bars", "classic", program=program)
            self.run_once(act=move, program=program)
            moved = self.toolbars(self.run_once(program=program))
            # A message would stand before the window, and the run would never begin.
            edit_file(program, "cfg/toolbar.xml", '<group KEYWORD="MapBars">',
                      '<group KEYWORD="MapBars"><toolbar PROMPT="New"><button TYPE="button" KEYWORD="ZoomOut"/></toolbar>')
            self.assertEqual(self.toolbars(self.run_once(program=program))[1:], moved)
            edit_file(program, "cfg/toolbar.xml", '<toolbar PROMPT="New"><button TYPE="button" KEYWORD="ZoomOut"/></toolbar>', "")
            edit_file(program, "cfg/toolbar.xml", '<group KEYWORD="StyleBars">', '<group KEYWORD="OtherBars">')
            self.assertEqual(self.toolbars(self.run_once(program=program))[:2], moved[:2])

    def test_it_starts_in_the_language_of_the_system(self):
        record = self.run_once()
        self.assertEqual(record["language"], "en")  # of the tests' prefix

    def test_a_damaged_file_gives_the_settings_of_the_run_before_and_a_message(self):
        before = self.run_once("--lang", "zh-CN", "--skin", "black")
        self.run_once("--lang", "en", "--skin", "silver")
        self.damage(self.file)
        after = self.run_once(message=True)
        self.assertEqual((after["language"], after["skin"]), (before["language"], before["skin"]))
        self.assertTrue(os.path.exists(self.file + ".damaged"))
        self.assertEqual(self.kept()["language"], "zh-CN")

    def test_damage_to_one_file_loses_nothing_of_the_other(self):
        before = self.run_once("--lang", "en", "--skin", "silver", "--category", "2", act=self.change)
        for name in os.listdir(self.folder):
            if name.startswith("viewer.json"):
                self.damage(os.path.join(self.folder, name))
        after = self.run_once(message=True)
        self.assertEqual(after["frame"]["ribbon"]["quickAccess"], before["frame"]["ribbon"]["quickAccess"])
        self.assertTrue(after["ribbonMinimized"])
        self.assertEqual(after["language"], "en")

    def test_an_entry_that_cannot_be_used_is_told_and_the_others_are_taken(self):
        self.run_once("--lang", "zh-CN", "--skin", "black")
        kept = self.kept()
        kept["map"]["palette"] = "pink"
        with open(self.file, "w", encoding="utf-8") as file:
            json.dump(kept, file)
        after = self.run_once(message=True)
        self.assertEqual((after["language"], after["skin"], after["map"]["palette"]), ("zh-CN", "black", 1))  # the palette is still the skin's

    def test_a_damaged_place_of_the_toolbars_is_told_and_loses_nothing_else(self):
        self.run_once("--lang", "zh-CN", "--bars", "classic")
        reg = os.path.join(PREFIX, "drive_c", "windows", "system32", "reg.exe")
        found = subprocess.run([os.path.join(ROOT, "scripts", "wine-run"), "--null", reg, "query", r"HKCU\Software\Barwright\demo", "/s"],
                               env=dict(os.environ, BARWRIGHT_WINEPREFIX=PREFIX), capture_output=True, text=True, check=True)
        keys = [line.strip() for line in found.stdout.splitlines() if line.strip().endswith("DockingManager")]
        self.assertTrue(keys)
        damage = [["add", key, "/v", "Places", "/t", "REG_BINARY", "/d", "0102030405", "/f"] for key in keys]
        after = self.run_once(registry=damage, message=True)
        self.assertEqual((after["language"], after["classicBars"]), ("zh-CN", True))

    def test_pictures_and_fresh_starts_keep_nothing(self):
        with Viewer(BIN_DIR, "--lang", "zh-CN", "--skin", "black", "--settings", self.folder) as viewer:
            self.assertEqual(viewer.leave(), 0)
        self.assertFalse(os.path.exists(self.folder))


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
