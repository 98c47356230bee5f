#!/usr/bin/python3
"""End-to-end tests of the demo: real clicks from outside, judged by its record and by pictures.

usage: viewer_test.py BIN_DIR [TEST...]
"""
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

from viewer import ROOT, Viewer, copy_installation, edit_file

BIN_DIR = ""
MAP_AREA = "800x300+100+350"
RIBBON_AREA = "1280x150+0+60"
TITLE = "Map viewer"
MANY_PIXELS = 20000
SOME_PIXELS = 300


def changed_pixels(before, after, area):
    """Number of pixels of the area (ImageMagick geometry) that differ."""
    result = subprocess.run(["compare", "-metric", "AE", f"{before}[{area}]", f"{after}[{area}]", "null:"],
                            capture_output=True, text=True)
    return int(float(result.stderr.split()[0]))


def changed_place(before, after, area):
    """Left and top, on the screen, of what differs in the area (ImageMagick geometry) by more than a shadow does."""
    result = subprocess.run(["convert", f"{before}[{area}]", f"{after}[{area}]", "-compose", "difference", "-composite",
                             "+repage", "-threshold", "22%", "-trim", "-format", "%X %Y", "info:"],
                            capture_output=True, text=True, check=True)
    left, top = map(int, result.stdout.split())
    area_left, area_top = map(int, area.split("+")[1:])
    return area_left + left, area_top + top


class ClickOnARibbonButton(unittest.TestCase):
    def test_zoom_in_doubles_the_scale_and_the_map_changes_on_the_screen(self):
        with Viewer(BIN_DIR) as viewer, tempfile.TemporaryDirectory() as folder:
            before = viewer.picture(os.path.join(folder, "before.png"))
            scale = viewer.record["map"]["pixelsPerDegree"]
            viewer.click_command("ZoomIn")
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] == 2 * scale)
            # The record is written before the map is painted.
            viewer.wait_until(lambda: changed_pixels(before, viewer.picture(os.path.join(folder, "after.png")),
                                                     MAP_AREA) > MANY_PIXELS, "the map looks different")

    def test_the_dump_names_every_configured_command_once(self):
        with Viewer(BIN_DIR) as viewer:
            registry = viewer.record["frame"]["registry"]
            keywords = [entry["keyword"] for entry in registry]
            self.assertEqual(len(keywords), len(set(keywords)))
            self.assertEqual([entry["id"] for entry in registry], sorted(entry["id"] for entry in registry))
            self.assertGreater(viewer.record["frame"]["nextCommandId"], registry[-1]["id"])

    def test_a_language_switch_rebuilds_the_ribbon_in_the_other_language(self):
        with Viewer(BIN_DIR, "--lang", "zh-CN", "--category", "2") as viewer:
            self.assertEqual(viewer.record["frame"]["ribbon"]["categories"][0]["name"], "地图")
            viewer.click_command("LanguageEnglish")
            viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][0]["name"] == "Map")


class WithClassicBars(unittest.TestCase):
    def open(self, *arguments):
        return Viewer(BIN_DIR, "--lang", "en", "--bars", "classic", *arguments)

    @staticmethod
    def scale(record):
        return record["map"]["pixelsPerDegree"]

    @staticmethod
    def middle(place):
        return (place[0] + place[2]) // 2, (place[1] + place[3]) // 2

    def button_of(self, viewer, keyword):
        """The place of the command's toolbar button."""
        wanted = viewer.id_of(keyword)
        for bar, places in zip(viewer.record["frame"]["toolbars"], viewer.record["toolbarsOnScreen"]):
            for button, place in zip(bar["buttons"], places):
                if button.get("id") == wanted:
                    return self.middle(place)
        raise AssertionError(f"no button {keyword}")


class ClassicBars(WithClassicBars):
    """Menu bar and toolbars in the ribbon's place, by real keys and the mouse."""

    def items_of(self, record, class_name):
        return next(button for bar in record["frame"]["toolbars"] for button in bar["buttons"] if button.get("class") == class_name)["items"]

    def test_the_command_shows_them_and_gives_the_ribbon_back(self):
        with Viewer(BIN_DIR, "--lang", "en") as viewer:
            self.assertEqual(viewer.record["menuBarOnScreen"], [])
            viewer.key("ctrl+m")
            viewer.wait_for(lambda record: record["classicBars"] and len(record["menuBarOnScreen"]) == 5)
            viewer.key("ctrl+m")
            viewer.wait_for(lambda record: not record["classicBars"] and record["menuBarOnScreen"] == [])

    def test_a_shortcut_acts_once_in_either_mode(self):
        with Viewer(BIN_DIR, "--lang", "en") as viewer:
            for _ in range(2):
                before = self.scale(viewer.record)
                viewer.key("ctrl+i")
                viewer.wait_for(lambda record: self.scale(record) != before)
                self.assertAlmostEqual(self.scale(viewer.record), 2 * before)
                viewer.key("ctrl+m")
                viewer.wait_for(lambda record: record["classicBars"])

    def test_a_shortcut_acts_once_with_a_file_open_and_without(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "place.geojson")
            with open(path, "w", encoding="utf-8") as file:
                file.write('{"type": "Point", "coordinates": [10, 20]}')
            for arguments, opened in (((), 0), (("--open", path), 1)):
                with self.open(*arguments) as viewer:
                    viewer.wait_for(lambda record: record["map"]["opened"] == opened)
                    whole = 3  # about; the one place of the file has brought the map as near as it comes
                    viewer.key("ctrl+w")
                    before = self.scale(viewer.wait_for(lambda record: abs(self.scale(record) - whole) < 0.3))
                    viewer.key("ctrl+i")
                    viewer.wait_for(lambda record: self.scale(record) != before)
                    self.assertAlmostEqual(self.scale(viewer.record), 2 * before)

    def test_a_toolbar_button_does_what_the_ribbons_does(self):
        with self.open() as viewer:
            before = self.scale(viewer.record)
            viewer.click(*self.button_of(viewer, "ZoomIn"))
            viewer.wait_for(lambda record: self.scale(record) != before)
            self.assertAlmostEqual(self.scale(viewer.record), 2 * before)

    def test_the_menu_is_walked_by_keys(self):
        with self.open() as viewer:
            before = self.scale(viewer.record)
            viewer.key("alt+z")
            viewer.key("o")
            viewer.wait_for(lambda record: self.scale(record) != before)
            self.assertAlmostEqual(self.scale(viewer.record), before / 2)
            viewer.key("F10")
            viewer.key("Right", "Right", "Down", "Down", "Return")  # the second of the layers
            viewer.wait_for(lambda record: record["map"]["layers"][1] is False)

    def test_the_menu_is_walked_by_the_mouse(self):
        with self.open() as viewer:
            places = viewer.record["menuBarOnScreen"]
            self.assertEqual(places[4][2], max(place[2] for place in places))
            self.assertGreater(places[4][2], 1200)  # the help menu at the right edge
            viewer.click(*self.middle(places[0]))
            viewer.hover(*self.middle(places[2]))
            viewer.key("g")  # of the menu that the pointer has opened
            viewer.wait_for(lambda record: record["map"]["layers"][3] is False)

    def test_combos_of_toolbars_and_ribbon_stay_in_step(self):
        with self.open() as viewer:
            self.assertTrue(self.items_of(viewer.record, "CMFCCheckCombo")[0]["state"]["check"])
            x, y = self.button_of(viewer, "LayersShown")
            viewer.click(x - 66, y)  # the box of the closed face
            viewer.wait_for(lambda record: record["map"]["layers"][0] is False)
            viewer.wait_for(lambda record: self.items_of(record, "CMFCCheckCombo")[0]["state"]["check"] is False)
            shown = next(e for e in viewer.elements() if e["id"] == viewer.id_of("LayersShown"))
            self.assertFalse(shown["items"][0]["state"]["check"])

    def test_a_recent_file_opens_from_the_menu(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "place.geojson")
            with open(path, "w", encoding="utf-8") as file:
                file.write('{"type": "Point", "coordinates": [10, 20]}')
            with self.open("--open", path) as viewer:
                viewer.key("ctrl+w")
                shown = self.scale(viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] < 10))
                viewer.key("alt+m")
                viewer.key("1")  # the first of the recent files has the mnemonic 1
                viewer.wait_for(lambda record: self.scale(record) > shown)

    def test_a_language_switch_builds_the_menus_in_the_other_language(self):
        with self.open() as viewer:
            viewer.key("alt+s")
            viewer.key("l")
            viewer.key("Return")
            viewer.wait_for(lambda record: record["language"] == "zh-CN" and record["frame"]["menu"][0]["text"] == "地图(&M)")
            self.assertTrue(viewer.record["classicBars"])
            before = self.scale(viewer.record)
            viewer.key("ctrl+i")
            viewer.wait_for(lambda record: self.scale(record) != before)


class CustomizeDialog(WithClassicBars):
    """The dialog for toolbars and shortcuts, over the viewer's bars."""

    def open_dialog(self, viewer):
        viewer.key("alt+s")
        viewer.key("c")
        self.wait_for_dialog(viewer)

    @staticmethod
    def wait_for_dialog(viewer, is_there=True):
        viewer.wait_until(lambda: bool(viewer.windows("Customize")) == is_there, "the dialog")

    def has_button(self, record, viewer, keyword):
        wanted = viewer.id_of(keyword)
        return any(button.get("id") == wanted for bar in record["frame"]["toolbars"] for button in bar["buttons"])

    def test_the_menu_opens_it_and_a_button_is_dragged_off_its_bar(self):
        with self.open() as viewer:
            x, y = self.button_of(viewer, "ZoomIn")
            scale = self.scale(viewer.record)
            self.open_dialog(viewer)
            viewer.click(x, y)
            viewer.drag(x, y, 40, 700)
            viewer.wait_for(lambda record: not self.has_button(record, viewer, "ZoomIn"))
            self.assertEqual(self.scale(viewer.record), scale)  # the click was none of the button's
            # Without a window manager the frame has come to lie over its own dialog.
            viewer.act("search", "--name", "^Customize$", "windowraise", "%1", "sleep", 0.2, "mousemove", "--window", "%1", 200, 10, "click", 1, "sleep", 0.2)
            viewer.key("Escape")
            self.wait_for_dialog(viewer, False)
            viewer.click(*self.button_of(viewer, "ZoomOut"))
            viewer.wait_for(lambda record: self.scale(record) == scale / 2)

    def test_a_right_click_on_a_toolbar_leads_to_it(self):
        with self.open() as viewer:
            x, y = self.button_of(viewer, "ZoomIn")
            viewer.act("mousemove", x, y, "sleep", 0.2, "click", 3, "sleep", 0.5)
            viewer.key("Up", "Return")  # the last one
            self.wait_for_dialog(viewer)


class NamesOfButtons(WithClassicBars):
    """Menus show what has no room on its bar."""

    @staticmethod
    def names(record):
        return [button["text"] for bar in record["frame"]["toolbars"] for button in bar["buttons"] if button.get("text")]

    def test_buttons_and_combos_are_called_what_their_commands_are_in_the_language_in_force(self):
        with Viewer(BIN_DIR, "--lang", "zh-CN", "--bars", "classic") as viewer:
            self.assertEqual(self.names(viewer.record)[:2], ["放大", "缩小"])
            self.assertEqual(self.names(viewer.record)[-4:], ["图层", "颜色", "文字", "锁定图层"])
            viewer.key("alt+s", "l", "Down", "Return")  # the second language
            viewer.wait_for(lambda record: record["language"] == "en" and self.names(record)[-4:] == ["Layers", "Colors", "Texts", "Lock layer"])


class MenuOfTheMap(WithClassicBars):
    """The context menu that the application keeps, and the user's tools at its end."""

    def test_a_right_click_on_the_map_and_the_key_for_menus_offer_its_commands(self):
        with self.open() as viewer:
            before = self.scale(viewer.record)
            viewer.hover(640, 500)
            viewer.act("click", 3, "sleep", 0.5)
            viewer.key("Down", "Return")  # the first one
            viewer.wait_for(lambda record: self.scale(record) == 2 * before)
            viewer.key("shift+F10")
            viewer.key("Down", "Return")  # the first one is chosen already
            viewer.wait_for(lambda record: self.scale(record) == before)

    def test_a_changed_menu_comes_back_in_another_language_and_with_other_numbers(self):
        with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as program:
            copy_installation(BIN_DIR, program)
            settings = os.path.join(folder, "settings")

            def open_viewer(language):
                return Viewer(program, "--lang", language, "--bars", "classic", "--size", "1280x800", memory=("--settings", settings))

            def zoom_out_by_the_first(viewer):
                start = self.scale(viewer.record)
                viewer.key("ctrl+i")
                before = self.scale(viewer.wait_for(lambda record: self.scale(record) > start))
                viewer.hover(640, 500)
                viewer.act("click", 3, "sleep", 0.5)
                viewer.key("Down", "Return")
                viewer.wait_for(lambda record: self.scale(record) == before / 2)
            with open_viewer("en") as viewer:
                viewer.key("alt+s", "c")
                viewer.wait_until(lambda: viewer.windows("Customize"), "the dialog")
                viewer.key(*["ctrl+Tab"] * 4)
                left, top = viewer.corner_of_window("Customize")
                # The button of the menu on the page, and its first row, off everything.
                viewer.click(left + 54, top + 300)
                viewer.drag(left + 80, top + 328, 1330, 850)
                viewer.key("Escape", "Escape")
                viewer.wait_until(lambda: not viewer.windows("Customize"), "the end of the dialog")
                zoom_out_by_the_first(viewer)
                viewer.leave()
            edit_file(program, "cfg/keys.xml", "<group>", '<group><item KEYWORD="Another" MENUNAME="" CMD="none"/>')
            with open_viewer("zh-CN") as viewer:
                zoom_out_by_the_first(viewer)

    def test_a_tool_that_the_user_writes_down_is_told_the_place_and_kept(self):
        with tempfile.TemporaryDirectory() as folder:
            told = os.path.join(folder, "told.txt")

            def open_menu_and_start(viewer):
                viewer.key("alt+s", "Up", "Return")  # the last one of the menu
                viewer.wait_until(lambda: os.path.exists(told) and os.path.getsize(told) > 0, "what the tool has written")
                with open(told, encoding="utf-8") as file:
                    self.assertRegex(file.read().strip(), r"^-?\d+\.\d{4},-?\d+\.\d{4}$")
                os.remove(told)

            def viewer_of_the_folder():
                return Viewer(BIN_DIR, "--lang", "en", "--bars", "classic", memory=("--settings", folder))
            with viewer_of_the_folder() as viewer:
                viewer.key("alt+s", "c")
                viewer.wait_until(lambda: viewer.windows("Customize"), "the dialog")
                viewer.key("ctrl+Tab", "ctrl+Tab", "alt+n")
                viewer.write("Place")
                viewer.key("Tab")
                viewer.write("cmd.exe")
                viewer.key("Tab", "Tab")
                viewer.write("/c echo $(Place)>Z:" + told.replace("/", "\\"))
                viewer.key("Escape")
                viewer.wait_until(lambda: not viewer.windows("Customize"), "the end of the dialog")
                open_menu_and_start(viewer)
                viewer.leave()
            with viewer_of_the_folder() as viewer:
                open_menu_and_start(viewer)


class ApplicationMenu(unittest.TestCase):
    """The button at the head of the tabs and its menu: open, save, print, settings, about; at the right recent files."""

    def open(self, *arguments):
        viewer = Viewer(BIN_DIR, "--lang", "en", "--skin", "silver", *arguments)
        return viewer

    def drop(self, viewer):
        left, top, right, bottom = viewer.record["applicationButtonOnScreen"]
        viewer.click((left + right) // 2, (top + bottom) // 2)
        time.sleep(0.5)

    def test_its_commands_are_those_of_the_ribbon(self):
        with self.open() as viewer:
            self.drop(viewer)
            viewer.key("Down", "Down", "Down", "Return")
            viewer.wait_for(lambda record: record["mode"] == "print")

    def test_language_and_skin_are_among_its_settings(self):
        with self.open() as viewer:
            self.drop(viewer)
            viewer.key(*["Down"] * 5, "Right", "Down", "Right", "Down", "Return")
            viewer.wait_for(lambda record: record["skin"] == "black")

    def test_after_a_language_switch_it_speaks_the_other_language(self):
        with self.open() as viewer:
            self.drop(viewer)
            viewer.key(*["Down"] * 5, "Right", "Right", "Return")
            viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][0]["name"] == "地图")
            self.drop(viewer)
            viewer.key("Down", "Down", "Down", "Return")
            viewer.wait_for(lambda record: record["mode"] == "print")

    def test_a_recent_file_opens_from_it_by_keys(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "place.geojson")
            with open(path, "w", encoding="utf-8") as file:
                file.write('{"type": "Point", "coordinates": [10, 20]}')
            with self.open("--open", path) as viewer:
                viewer.key("ctrl+w")
                shown = viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] < 10)["map"]["pixelsPerDegree"]
                viewer.key("alt+f", "Down", *["Tab"] * 7, "Return")  # past the commands
                viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > shown)

    def test_a_recent_file_opens_from_it_by_its_number(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "place.geojson")
            with open(path, "w", encoding="utf-8") as file:
                file.write('{"type": "Point", "coordinates": [10, 20]}')
            with self.open("--open", path) as viewer:
                viewer.key("ctrl+w")
                shown = viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] < 10)["map"]["pixelsPerDegree"]
                viewer.key("alt+f", "1")
                viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > shown)

    def test_its_exit_leaves(self):
        with self.open() as viewer:
            viewer.key("alt+f", "x")
            self.assertEqual(viewer.wait_for_end(), 0)


class WorkingModes(unittest.TestCase):
    """Categories in the file's order: map, layers, settings, edit, print, back to browsing."""

    SHOWN = {"browse": [True, True, True, True, True, False], "edit": [False, False, False, True, True, True],
             "print": [False, False, False, False, True, True]}
    TABS = {"edit": 3, "print": 4, "browse": 5}

    def open(self, *arguments):
        return Viewer(BIN_DIR, "--lang", "en", "--skin", "silver", *arguments)

    def wait_for_mode(self, viewer, mode):
        """Shown are the mode's categories, and its commands know it."""
        def is_shown(record):
            categories = record["frame"]["ribbon"]["categories"]
            return record["mode"] == mode and [category["visible"] for category in categories] == self.SHOWN[mode]
        viewer.wait_for(is_shown)

    def active(self, viewer):
        return [category["active"] for category in viewer.record["frame"]["ribbon"]["categories"]].index(True)

    def quick_access(self, viewer):
        keywords = {entry["id"]: entry["keyword"] for entry in viewer.record["frame"]["registry"]}
        return [keywords[identity] for identity in viewer.record["frame"]["ribbon"]["quickAccess"]]

    def click_tab(self, viewer, mode):
        viewer.click(*viewer.tab_middle(self.TABS[mode]))
        self.wait_for_mode(viewer, mode)

    def test_a_click_on_a_modes_tab_switches_to_it(self):
        with self.open() as viewer:
            self.click_tab(viewer, "edit")
            self.assertEqual(self.active(viewer), 3)
            self.click_tab(viewer, "print")
            self.assertEqual(self.active(viewer), 4)

    def test_the_commands_switch_from_mode_to_mode(self):
        with self.open("--mode", "edit") as viewer:
            for command, mode in (("ModePrint", "print"), ("ModeEdit", "edit"), ("ModeBrowse", "browse")):
                viewer.click_command(command)
                self.wait_for_mode(viewer, mode)

    def test_the_tab_that_leads_back_shows_the_page_that_was_left(self):
        with self.open("--category", "1") as viewer:
            self.click_tab(viewer, "edit")
            self.click_tab(viewer, "browse")
            self.assertEqual(self.active(viewer), 1)

    def test_every_mode_has_its_own_quick_access_toolbar_and_keeps_the_users(self):
        with self.open() as viewer:
            browse = self.quick_access(viewer)
            self.assertEqual(browse, ["ZoomIn", "ZoomOut", "ZoomWorld", "ZoomPrevious", "ZoomNext"])
            viewer.open_quick_access_menu()
            viewer.key("Down", "Return")  # the first command of the list goes
            viewer.wait_for(lambda record: len(record["frame"]["ribbon"]["quickAccess"]) == 4)
            self.click_tab(viewer, "edit")
            self.assertEqual(self.quick_access(viewer), ["MarkAdd", "MarkUndo", "ZoomIn", "ZoomOut"])
            self.click_tab(viewer, "browse")
            self.assertEqual(self.quick_access(viewer), browse[1:])

    def test_the_modes_are_there_after_a_language_switch(self):
        with self.open("--category", "2") as viewer:
            viewer.click_command("LanguageChinese")
            # The language is written before the ribbon is built anew.
            viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][0]["name"] == "地图")
            self.click_tab(viewer, "print")
            self.assertEqual(self.quick_access(viewer), ["PageSave", "PageCopy", "ZoomIn", "ZoomOut"])

    def see_the_map_change(self, viewer, change):
        with tempfile.TemporaryDirectory() as folder:
            before = viewer.picture(os.path.join(folder, "before.png"))
            change()
            viewer.wait_until(lambda: changed_pixels(before, viewer.picture(os.path.join(folder, "after.png")),
                                                     MAP_AREA) > SOME_PIXELS // 2, "the map looks different")

    def test_a_mark_is_set_and_removed_on_the_map(self):
        with self.open("--mode", "edit") as viewer:
            viewer.wait_for(lambda record: record["map"]["finished"])

            def add():
                viewer.click_command("MarkAdd")
                viewer.wait_for(lambda record: len(record["map"]["marks"]) == 1)

            def remove():
                viewer.click_command("MarkUndo")
                viewer.wait_for(lambda record: not record["map"]["marks"])
            self.see_the_map_change(viewer, add)
            self.assertEqual(viewer.record["map"]["marks"], [[viewer.record["map"]["longitude"], viewer.record["map"]["latitude"]]])
            self.see_the_map_change(viewer, remove)

    def test_the_page_turns_round_on_the_map(self):
        with self.open("--mode", "print") as viewer:
            viewer.wait_for(lambda record: record["map"]["finished"])
            self.assertEqual(viewer.record["map"]["page"], "landscape")

            def turn():
                viewer.click_command("PagePortrait")
                viewer.wait_for(lambda record: record["map"]["page"] == "portrait")
            self.see_the_map_change(viewer, turn)

    def test_the_menu_of_a_right_click_switches_and_leaves_the_button_under_it_alone(self):
        with self.open() as viewer:
            scale = viewer.record["map"]["pixelsPerDegree"]
            viewer.right_click_command("ZoomIn")
            viewer.key("Down", "Down", "Return")  # browse, edit
            self.wait_for_mode(viewer, "edit")
            self.assertEqual(viewer.record["map"]["pixelsPerDegree"], scale)


class SkinsOfTheViewer(unittest.TestCase):
    PREFERENCE = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize"
    WITH_IT = {"black": ("0", 1), "silver": ("1", 0)}  # the style of the icons, and what the map is drawn with

    def expect_what_comes_with_the_skin(self, record):
        self.assertEqual((record["iconStyle"], record["map"]["palette"]), self.WITH_IT[record["skin"]], record["skin"])

    def test_the_button_beside_the_tabs_changes_the_skin_and_back(self):
        with Viewer(BIN_DIR, "--skin", "silver") as viewer:
            left, top, right, bottom = viewer.record["skinButtonOnScreen"]
            self.expect_what_comes_with_the_skin(viewer.record)
            for skin, manager in (("black", "CQKVisualManagerOffice2007Black"), ("silver", "CQKVisualManagerOffice2007Silver")):
                viewer.click((left + right) // 2, (top + bottom) // 2)
                record = viewer.wait_for(lambda record: record["skin"] == skin)
                self.assertEqual(record["frame"]["skin"]["manager"], manager)
                self.expect_what_comes_with_the_skin(record)

    def test_a_switch_shows_what_a_fresh_start_in_that_skin_shows(self):
        with tempfile.TemporaryDirectory() as folder:
            fresh, switched = (os.path.join(folder, name) for name in ("fresh.png", "switched.png"))

            def settle(viewer, path):
                viewer.hover(640, 600)
                viewer.wait_for(lambda record: record["map"]["finished"])
                last = b""
                while True:
                    viewer.picture(path)
                    with open(path, "rb") as file:
                        now = file.read()
                    if now == last:
                        return
                    last = now
            for skin, other, command in (("black", "silver", "SkinBlack"), ("silver", "black", "SkinSilver")):
                with Viewer(BIN_DIR, "--skin", skin, "--category", "2") as viewer:
                    settle(viewer, fresh)
                    self.expect_what_comes_with_the_skin(viewer.record)
                with Viewer(BIN_DIR, "--skin", other, "--category", "2") as viewer:
                    viewer.click_command(command)
                    self.expect_what_comes_with_the_skin(viewer.wait_for(lambda record: record["skin"] == skin))
                    settle(viewer, switched)
                self.assertEqual(changed_pixels(fresh, switched, "1280x800+0+0"), 0, skin)

    def test_it_starts_in_the_skin_that_the_system_prefers(self):
        for value, skin in (("0", "black"), ("1", "silver")):
            with Viewer(BIN_DIR, registry=[["add", self.PREFERENCE, "/v", "AppsUseLightTheme", "/t", "REG_DWORD", "/d", value, "/f"]]) as viewer:
                self.assertEqual(viewer.record["skin"], skin)


class HelpVideos(unittest.TestCase):
    RECORD = r"HKLM\Software\HALVORN\Tessaly"
    HINT = "F1 shows a video of this command"

    def descriptions(self, viewer):
        return {element["description"] for element in viewer.elements() if element["id"] == viewer.id_of("ZoomIn")}

    def test_commands_hint_at_their_video_where_the_installation_has_a_folder_of_them(self):
        with tempfile.TemporaryDirectory() as folder:
            os.mkdir(os.path.join(folder, "Media"))
            with open(os.path.join(folder, "Media", "Zoom in.swf"), "wb"):
                pass
            place = "Z:" + folder.replace("/", "\\")
            with Viewer(BIN_DIR, "--lang", "en", registry=[["add", self.RECORD, "/v", "FlashPath", "/d", place, "/f"]]) as viewer:
                self.assertEqual(self.descriptions(viewer), {self.HINT})
                heights = {}
                for keyword in ("ZoomIn", "ZoomOut"):  # with a file, and without
                    viewer.hover(640, 700)
                    before = viewer.picture(os.path.join(folder, "before.png"))
                    viewer.hover_command(keyword)
                    shown = os.path.join(folder, "shown.png")
                    area = "300x90+0+%d" % (viewer.record["ribbonOnScreen"][3] + 45)  # below a tip of one part
                    end = time.monotonic() + 5
                    while time.monotonic() < end:
                        viewer.picture(shown)
                        time.sleep(0.2)
                    heights[keyword] = changed_pixels(before, shown, area)
                self.assertGreater(heights["ZoomIn"], MANY_PIXELS // 20)
                self.assertEqual(heights["ZoomOut"], 0)
        with Viewer(BIN_DIR, "--lang", "en", registry=[["delete", self.RECORD, "/v", "FlashPath", "/f"]]) as viewer:
            self.assertEqual(self.descriptions(viewer), {""})


class OpeningViewer(Viewer):
    """Meets a message over its frame."""

    def begin(self):
        self.wait_until(lambda: len(self.windows(TITLE)) > 1, "a message is shown")
        self.key("Return")
        super().begin()


class OwnFiles(unittest.TestCase):
    PLACES = {"type": "FeatureCollection", "features": [
        {"type": "Feature", "properties": {"name": "Basel"}, "geometry": {"type": "Point", "coordinates": [7.59, 47.56]}},
        {"type": "Feature", "properties": {}, "geometry": {"type": "LineString", "coordinates": [[7.6, 47.6], [4.5, 51.9]]}}]}

    def test_a_file_of_places_is_a_layer_that_can_be_hidden_and_closed(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "places.geojson")
            with open(path, "w", encoding="utf-8") as file:
                json.dump(self.PLACES, file)
            with Viewer(BIN_DIR, "--lang", "en", "--category", "1", "--open", path) as viewer:
                record = viewer.wait_for(lambda record: record["map"]["opened"] == 1)
                self.assertAlmostEqual(record["map"]["longitude"], 6.05, places=1)
                self.assertAlmostEqual(record["map"]["latitude"], 49.7, places=0)
                viewer.wait_for(lambda record: record["map"]["finished"])
                shown = viewer.picture(os.path.join(folder, "shown.png"))
                viewer.click_command("LayerOpened")
                viewer.wait_for(lambda record: not record["map"]["layers"][7])
                viewer.hover(640, 700)
                viewer.wait_for(lambda record: record["map"]["finished"])
                hidden = viewer.picture(os.path.join(folder, "hidden.png"))
                self.assertGreater(changed_pixels(shown, hidden, "800x450+300+250"), 100)
                viewer.click_command("FileClose")
                viewer.wait_for(lambda record: record["map"]["opened"] == 0)

    def test_a_file_that_is_none_gives_a_message_and_the_viewer_goes_on(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "broken.geojson")
            with open(path, "w", encoding="utf-8") as file:
                file.write("{")
            with OpeningViewer(BIN_DIR, "--lang", "en", "--open", path) as viewer:
                record = viewer.wait_for(lambda record: True)
                self.assertEqual(record["map"]["opened"], 0)
                viewer.click_command("ZoomIn")
                viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > 4)


class PlaceField(unittest.TestCase):
    def test_enter_goes_to_a_known_place_and_tells_of_an_unknown_one_once(self):
        with Viewer(BIN_DIR, "--lang", "en") as viewer:
            viewer.click_command("PlaceEdit")
            viewer.key("T", "o", "k", "y", "o", "Return")
            viewer.wait_for(lambda record: abs(record["map"]["longitude"] - 139.69) < 0.1)
            viewer.click_command("PlaceEdit")
            viewer.key("ctrl+a", "N", "o", "w", "h", "e", "r", "e", "Return")
            viewer.wait_for_message(TITLE)
            viewer.key("Escape")
            viewer.wait_until(lambda: len(viewer.windows(TITLE)) == 1, "the message is gone")
            viewer.click_command("ZoomIn")
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > 24)
            self.assertEqual(len(viewer.windows(TITLE)), 1, "leaving the field tells nothing")


class LayerCombos(unittest.TestCase):
    """The combos with marks, from the mouse to the map. Layers in the order of the viewer's lists: relief, coast, ..."""

    def open(self, *arguments):
        return Viewer(BIN_DIR, "--lang", "en", "--category", "1", *arguments)

    def test_a_tick_in_the_list_hides_the_layer_and_the_list_stays_open(self):
        with self.open() as viewer:
            viewer.open_menu("LayersShown")
            viewer.key("space")
            viewer.wait_for(lambda record: record["map"]["layers"][:2] == [False, True])
            viewer.key("Down", "space")
            viewer.wait_for(lambda record: record["map"]["layers"][:2] == [False, False])

    def test_the_mouse_ticks_two_rows_and_then_chooses_one(self):
        row_height = 22
        with self.open() as viewer, tempfile.TemporaryDirectory() as folder:
            before = viewer.picture(os.path.join(folder, "before.png"))
            left, _, right, bottom = viewer.place_of("LayersShown")
            area = f"{right - left}x100+{left}+{bottom + 1}"
            viewer.open_menu("LayersShown")
            viewer.wait_until(lambda: changed_pixels(before, viewer.picture(os.path.join(folder, "open.png")),
                                                     area) > SOME_PIXELS, "the list is shown")
            left, top = changed_place(before, os.path.join(folder, "open.png"), area)
            for row, layers in ((0, [False, True, True]), (2, [False, True, False])):
                viewer.click(left + 8, top + row * row_height + 7)
                viewer.wait_for(lambda record: record["map"]["layers"][:3] == layers)
            viewer.click(left + 60, top + row_height + 7)
            # The list is closed: Space is no longer its key.
            selected = lambda record: next(e["selected"] for e in viewer.elements() if e["class"] == "CMFCRibbonCheckComb")
            viewer.click_command("LayerLock")
            viewer.wait_for(lambda record: record["map"]["layerStyles"][1]["locked"])
            self.assertEqual(selected(viewer.record), 1)
            self.assertEqual(viewer.record["map"]["layers"][:3], [False, True, False])

    def test_a_tick_changes_the_map_at_once(self):
        with self.open() as viewer, tempfile.TemporaryDirectory() as folder:
            before = viewer.picture(os.path.join(folder, "before.png"))
            viewer.open_menu("LayersShown")
            viewer.key("space", "Escape")
            viewer.wait_for(lambda record: not record["map"]["layers"][0])
            viewer.wait_until(lambda: changed_pixels(before, viewer.picture(os.path.join(folder, "after.png")),
                                                     MAP_AREA) > MANY_PIXELS, "the map looks different")

    def see_the_map_change(self, change):
        """The deed changes what the screen shows of the map, whatever the record says."""
        with self.open() as viewer, tempfile.TemporaryDirectory() as folder:
            before = viewer.picture(os.path.join(folder, "before.png"))
            change(viewer)
            viewer.wait_until(lambda: changed_pixels(before, viewer.picture(os.path.join(folder, "after.png")),
                                                     MAP_AREA) > SOME_PIXELS, "the map looks different")

    def test_a_layers_light_changes_the_map_at_once(self):
        def switch(viewer):
            viewer.open_menu("LayerColors")
            viewer.key("space", "Escape")
            viewer.wait_for(lambda record: not record["map"]["layerStyles"][1]["lit"])
        self.see_the_map_change(switch)

    def test_a_layers_colour_changes_the_map_at_once(self):
        def colour(viewer):
            before = viewer.record["map"]["layerStyles"][1]["color"]
            self.ask_for_colour(viewer, "2", "5", "5", "Return")
            viewer.wait_for(lambda record: record["map"]["layerStyles"][1]["color"] != before)
        self.see_the_map_change(colour)

    def test_a_light_of_the_labels_changes_the_map_at_once(self):
        def switch(viewer):
            viewer.open_menu("LabelLights")
            viewer.key("Down", "space", "Escape")  # the names of cities
            viewer.wait_for(lambda record: record["map"]["labelsLit"] == [True, False, True])
        self.see_the_map_change(switch)

    def test_a_scale_slider_changes_the_map_at_once(self):
        def enlarge(viewer):
            scale = viewer.record["map"]["pixelsPerDegree"]
            left, top, right, bottom = viewer.place_of("ZoomSlider")
            viewer.click(right - (bottom - top) // 2, (top + bottom) // 2)
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > scale)
        self.see_the_map_change(enlarge)

    def test_the_dump_shows_items_and_states(self):
        def bgr(color):
            return color >> 16 & 0xFF | color & 0xFF00 | (color & 0xFF) << 16

        with self.open() as viewer:
            elements = {element["class"]: element for element in viewer.elements()}
            states = {name: [item["state"] for item in element["items"]] for name, element in elements.items() if "items" in element}
            shown = viewer.record["map"]
            self.assertEqual(states["CMFCRibbonCheckComb"], [{"check": check} for check in shown["layers"]])
            self.assertEqual(states["CMFCRibbonMultiCombo"],
                             [{"clr": bgr(style["color"]), "light": style["lit"]} for style in shown["layerStyles"]])
            self.assertEqual(states["CMFCRibbonVesMultiCombo"], [{"light": lit} for lit in shown["labelsLit"]])
            self.assertEqual(elements["CMFCRibbonMultiCombo"]["selected"], 1)
            self.assertIs(elements["CMFCRibbonLabelEx"]["right"], False)

    def test_the_light_of_a_locked_layer_cannot_be_switched(self):
        with self.open() as viewer:
            lit = lambda record: record["map"]["layerStyles"][1]["lit"]
            viewer.open_menu("LayerColors")
            viewer.key("space")
            viewer.wait_for(lambda record: not lit(record))
            viewer.key("Escape")
            viewer.click_command("LayerLock")
            viewer.wait_for(lambda record: record["map"]["layerStyles"][1]["locked"])
            viewer.open_menu("LayerColors")
            viewer.key("space", "Escape")
            viewer.open_menu("LabelLights")
            viewer.key("space")
            viewer.wait_for(lambda record: record["map"]["labelsLit"] == [False, True, True])
            self.assertFalse(lit(viewer.record))

    def test_both_scale_sliders_move_together(self):
        with self.open() as viewer:
            scale = viewer.record["map"]["pixelsPerDegree"]
            left, top, right, bottom = viewer.place_of("ZoomSlider")
            viewer.click(right - (bottom - top) // 2, (top + bottom) // 2)
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > scale)
            positions = [e["pos"] for e in viewer.elements() if e["id"] == viewer.id_of("ZoomSlider")]
            self.assertEqual(len(positions), 2)
            self.assertEqual(positions[0], positions[1])
            self.assertGreater(positions[0], 0)

    def ask_for_colour(self, viewer, *keys):
        """Answers the system's dialog, whose field of the red part has the focus."""
        viewer.open_menu("LayerColors")
        viewer.key("shift+space")
        viewer.wait_until(lambda: viewer.windows("Color"), "the dialog is shown")
        viewer.key(*keys)
        viewer.wait_until(lambda: not viewer.windows("Color"), "the dialog is gone")

    def test_the_colour_chosen_in_the_systems_dialog_is_the_layers_and_a_cancelled_one_is_not(self):
        with self.open() as viewer:
            style = lambda record: record["map"]["layerStyles"][1]
            before = style(viewer.record)["color"]
            self.ask_for_colour(viewer, "1", "7", "Escape")
            viewer.open_menu("LayerColors")
            viewer.key("space", "Escape")
            viewer.wait_for(lambda record: not style(record)["lit"])
            self.assertEqual(style(viewer.record)["color"], before)
            self.ask_for_colour(viewer, "2", "0", "0", "Return")
            wanted = 200 << 16 | before & 0xFFFF
            viewer.wait_for(lambda record: style(record)["color"] == wanted)
            self.assertEqual(style(viewer.record)["lit"], False)

    def test_the_place_under_the_pointer_is_shown_and_a_click_on_it_changes_its_form(self):
        decimal = re.compile(r"(\d+)\.(\d{4})\u00b0 [NS]  (\d+)\.(\d{4})\u00b0 [WE]")
        seconds = re.compile(r"(\d+)\u00b0 (\d\d)\u2032 (\d\d)\u2033 [NS]  (\d+)\u00b0 (\d\d)\u2032 (\d\d)\u2033 [WE]")
        with self.open() as viewer:
            def shown():
                # What the pointer does is in the record that the next change writes.
                lit = viewer.record["map"]["labelsLit"][0]
                viewer.open_menu("LabelLights")
                viewer.key("space", "Escape")
                viewer.wait_for(lambda record: record["map"]["labelsLit"][0] != lit)
                return next(element for element in viewer.elements() if element["class"] == "CMFCRibbonLabelEx")

            viewer.hover(900, 450)
            viewer.hover(700, 500)
            label = shown()
            first = decimal.fullmatch(label["text"])
            self.assertTrue(first, label["text"])
            left, top, right, bottom = label["rect"]
            bar_left, bar_top = viewer.record["ribbonOnScreen"][:2]
            viewer.click(bar_left + (left + right) // 2, bar_top + (top + bottom) // 2)
            label = shown()
            second = seconds.fullmatch(label["text"])
            self.assertTrue(second, label["text"])
            for whole, minute, second_part, degrees, fraction in (
                    (*second.groups()[:3], *first.groups()[:2]), (*second.groups()[3:], *first.groups()[2:])):
                self.assertAlmostEqual(int(whole) + int(minute) / 60 + int(second_part) / 3600,
                                       float(f"{degrees}.{fraction}"), delta=1 / 3600)
            self.assertEqual(label["rect"], [left, top, right, bottom], "the label is as wide as before")


def area_of(left, top, right, bottom):
    """The rectangle as ImageMagick's geometry."""
    return f"{right - left}x{bottom - top}+{left}+{top}"


def height(record):
    return record["ribbonOnScreen"][3] - record["ribbonOnScreen"][1]


class RibbonOnTheScreen(unittest.TestCase):
    """What a person does to the ribbon as a whole."""
    MINIMIZED = staticmethod(lambda record: record["ribbonMinimized"])
    WHOLE = staticmethod(lambda record: not record["ribbonMinimized"])

    def open(self, *arguments):
        return Viewer(BIN_DIR, "--lang", "en", "--category", "2", *arguments)

    def test_a_double_click_on_a_tab_minimises_the_ribbon_and_another_brings_it_back(self):
        with self.open() as viewer:
            whole = height(viewer.record)
            viewer.double_click(*viewer.tab_middle(2))
            minimized = height(viewer.wait_for(self.MINIMIZED))
            self.assertLess(minimized, whole / 2)
            viewer.double_click(*viewer.tab_middle(2))
            self.assertEqual(height(viewer.wait_for(self.WHOLE)), whole)

    def test_ctrl_f1_minimises_the_ribbon_and_brings_it_back(self):
        with self.open() as viewer, tempfile.TemporaryDirectory() as folder:
            whole = height(viewer.record)
            before = os.path.join(folder, "before.png")
            # Not before everything is painted and up to date.
            viewer.wait_until(lambda: changed_pixels(viewer.picture(before), viewer.picture(os.path.join(folder, "next.png")),
                                                     RIBBON_AREA) == 0, "the ribbon is settled")
            viewer.key("ctrl+F1")
            self.assertLess(height(viewer.wait_for(self.MINIMIZED)), whole / 2)
            viewer.key("ctrl+F1")
            self.assertEqual(height(viewer.wait_for(self.WHOLE)), whole)
            viewer.wait_until(lambda: changed_pixels(before, viewer.picture(os.path.join(folder, "after.png")),
                                                     RIBBON_AREA) == 0, "the ribbon looks as before")

    def test_the_command_minimises_the_ribbon_as_the_double_click_does(self):
        with self.open() as viewer:
            viewer.click_command("RibbonMinimize")
            viewer.wait_for(self.MINIMIZED)
            viewer.double_click(*viewer.tab_middle(0))
            viewer.wait_for(self.WHOLE)
            self.assertTrue(viewer.record["frame"]["ribbon"]["categories"][0]["active"])

    def test_the_command_puts_the_quick_access_toolbar_below_the_panels_and_back(self):
        with self.open() as viewer:
            before = viewer.record
            viewer.click_command("QuickAccessBelow")
            below = viewer.wait_for(lambda record: record["quickAccessBelow"])
            panels = [element["rect"][3] for element in viewer.elements()]
            self.assertGreaterEqual(below["quickAccessOnScreen"][1] - below["ribbonOnScreen"][1], max(panels))
            self.assertLessEqual(below["quickAccessOnScreen"][3], below["ribbonOnScreen"][3])
            self.assertGreater(height(below), height(before))
            viewer.click_command("QuickAccessBelow")
            after = viewer.wait_for(lambda record: not record["quickAccessBelow"])
            self.assertEqual(after["quickAccessOnScreen"], before["quickAccessOnScreen"])
            self.assertEqual(height(after), height(before))

    def test_the_command_looks_on_while_the_quick_access_toolbar_is_below(self):
        with self.open() as viewer, tempfile.TemporaryDirectory() as folder:
            left, top, right, bottom = viewer.place_of("QuickAccessBelow")
            face = area_of(left, top, right, bottom)
            tab = area_of(*viewer.record["tabsOnScreen"][0])
            off = viewer.picture(os.path.join(folder, "off.png"))
            now = os.path.join(folder, "now.png")

            def switch(is_below):
                viewer.click_command("QuickAccessBelow")
                viewer.wait_for(lambda record: record["quickAccessBelow"] == is_below)
                # Where the pointer is, a button is lit, on or off: the tab instead of this one.
                viewer.hover(*viewer.tab_middle(0))
                viewer.wait_until(lambda: changed_pixels(off, viewer.picture(now), tab) > 0, "the tab is lit")

            switch(True)
            most = (right - left) * (bottom - top) / 2
            viewer.wait_until(lambda: changed_pixels(off, viewer.picture(now), face) > most, "it looks on")
            self.assertEqual(viewer.place_of("QuickAccessBelow"), (left, top, right, bottom))
            switch(False)
            viewer.wait_until(lambda: changed_pixels(off, viewer.picture(now), face) == 0, "it looks as before")


class CustomizedQuickAccess(unittest.TestCase):
    def test_a_command_that_was_checked_in_the_menu_appears_and_survives_a_language_switch(self):
        with Viewer(BIN_DIR, "--lang", "en", "--category", "2") as viewer:
            shown = viewer.record["frame"]["ribbon"]["quickAccess"]
            width = viewer.record["quickAccessOnScreen"][2]
            added = viewer.id_of("BookmarkAdd")
            self.assertNotIn(added, shown)
            viewer.open_quick_access_menu()
            # The commands that are shown stand first, then those on offer.
            viewer.key(*["Down"] * (len(shown) + 1), "Return")
            chosen = lambda record: record["frame"]["ribbon"]["quickAccess"] == shown + [added]
            viewer.wait_for(lambda record: chosen(record) and record["quickAccessOnScreen"][2] > width)
            viewer.click_command("LanguageChinese")
            viewer.wait_for(lambda record: record["language"] == "zh-CN" and chosen(record)
                            and record["frame"]["ribbon"]["categories"][0]["name"] == "地图")

    def test_a_command_that_was_unchecked_in_the_menu_disappears(self):
        with Viewer(BIN_DIR, "--lang", "en") as viewer:
            shown = viewer.record["frame"]["ribbon"]["quickAccess"]
            viewer.open_quick_access_menu()
            viewer.key("Down", "Return")
            viewer.wait_for(lambda record: record["frame"]["ribbon"]["quickAccess"] == shown[1:])


class BrokenRibbonViewer(Viewer):
    """Meets a message before the frame appears."""

    def begin(self):
        self.wait_for_message(TITLE, windows=1)
        self.key("Return")
        super().begin()


class SizeOfTheWindow(unittest.TestCase):
    LEAST = 320, 260  # at 100 %

    def test_it_does_not_become_smaller_than_its_ribbon_can_be_shown(self):
        for percent in (100, 150):
            with self.subTest(percent=percent), Viewer(BIN_DIR, "--lang", "en", "--scale", percent) as viewer:
                _, _, right, bottom = viewer.record["statusOnScreen"]
                viewer.drag(right - 5, bottom - 5, 30, 20)
                size = [length * percent // 100 for length in self.LEAST]
                frame = viewer.wait_for(lambda record: record["frameOnScreen"][2] < right - 100 and record["idle"])["frameOnScreen"]
                self.assertEqual([frame[2] - frame[0], frame[3] - frame[1]], size)
                self.assertFalse(viewer.record["ribbonMinimized"])
                self.assertGreater(viewer.record["ribbonOnScreen"][3], viewer.record["ribbonOnScreen"][1])


class LeavingTheViewer(unittest.TestCase):
    def run_demo(self, *arguments):
        return subprocess.run([os.path.join(ROOT, "scripts", "wine-run"), "--null", os.path.join(BIN_DIR, "demo.exe"),
                               *arguments], capture_output=True, text=True, timeout=120)

    def test_closing_the_window_gives_0(self):
        with Viewer(BIN_DIR) as viewer:
            self.assertEqual(viewer.leave(), 0)

    def test_wrong_usage_gives_2_and_a_line_that_says_what_is_wrong(self):
        for arguments, line in ((["--nonsense", "1"], "demo: unknown option --nonsense"),
                                (["--size", "wide"], "demo: --size needs a proper value"),
                                (["--lang"], "demo: --lang needs a proper value")):
            result = self.run_demo(*arguments)
            self.assertEqual(result.returncode, 2, arguments)
            self.assertIn(line, result.stderr)

    def test_a_picture_that_cannot_be_written_gives_1(self):
        self.assertEqual(self.run_demo("--screenshot", "Z:\\no\\such\\folder\\picture.png").returncode, 1)

    def test_a_broken_ribbon_file_gives_a_message_and_the_viewer_goes_on_without_a_ribbon(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in os.listdir(BIN_DIR):
                path = os.path.join(BIN_DIR, name)
                if name == "demo.exe":
                    shutil.copy(path, folder)
                elif os.path.isdir(path) and name != "cfg" or name.endswith(".dll"):
                    os.symlink(path, os.path.join(folder, name))
            shutil.copytree(os.path.join(BIN_DIR, "cfg"), os.path.join(folder, "cfg"))
            with open(os.path.join(folder, "cfg", "ribbon.xml"), "w", encoding="utf-8") as file:
                file.write("<ribbon><row>")
            with BrokenRibbonViewer(folder, "--lang", "en") as viewer:
                self.assertEqual(viewer.record["frame"]["ribbon"]["categories"], [])
                self.assertEqual(viewer.leave(), 0)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
