#!/usr/bin/python3
"""The viewer's own windows: options, and the preview of what is printed.

usage: dialogs_test.py BIN_DIR [TEST...]
"""
import os
import sys
import tempfile
import unittest

from viewer import Viewer, text_of

BIN_DIR = ""


class DialogViewer(Viewer):
    def open_dialog(self, name, *keys):
        self.key(*keys)
        self.wait_for(lambda record: record.get("dialog", {}).get("name") == name)

    def values(self):
        return self.record["dialog"]["values"]

    def click_part(self, name):
        left, top, right, bottom = self.record["dialog"]["parts"][name]["onScreen"]
        self.click((left + right) // 2, (top + bottom) // 2)

    def is_enabled(self, name):
        return self.record["dialog"]["parts"][name]["enabled"]

    def wait_for_value(self, name, value):
        self.wait_for(lambda record: record.get("dialog", {}).get("values", {}).get(name) == value)

    def wait_for_closed(self):
        self.wait_for(lambda record: "dialog" not in record)

    def choose(self, name, line):
        """The line of a list, by the keyboard."""
        self.click_part(name)
        self.key("Escape", "Home", *["Down"] * line)
        self.wait_for_value(name, line)


class Skins(unittest.TestCase):
    """The viewer's windows are painted in its skin, down to the controls."""
    BRIGHT = 170  # of 255: brighter than any edge or ground of the dark skin, darker than its texts

    def part(self, viewer, look, name):
        return look.crop(viewer.record["dialog"]["parts"][name]["onScreen"]).convert("L")

    def test_the_lists_of_the_dark_options_have_no_bright_edge_or_arrow_field(self):
        with DialogViewer(BIN_DIR, "--lang", "en", "--skin", "black") as viewer:
            viewer.open_dialog("options", "alt+s", "o")
            for turn in ("at first", "after the keyboard", "after the mouse"):
                look = viewer.settled_look()
                for name in ("language", "skin", "bars", "quickAccess", "startMode", "scale"):
                    with self.subTest(name, turn=turn):
                        list_ = self.part(viewer, look, name)
                        for side in ((0, 0, list_.width, 2), (0, 0, 2, list_.height), (list_.width - 4, 0, list_.width, list_.height),
                                     (0, list_.height - 2, list_.width, list_.height)):
                            self.assertLess(list_.crop(side).getextrema()[1], self.BRIGHT, side)
                if turn == "at first":
                    viewer.key("Tab", "Down", "Up")
                else:
                    viewer.click_part("bars")
                    viewer.key("Escape")

    def test_the_caption_has_the_ground_of_the_skin(self):
        for skin, is_dark in (("black", True), ("silver", False)):
            for name, keys in (("options", ("alt+s", "o")), ("preview", ("ctrl+shift+v",))):
                with self.subTest(skin, dialog=name), DialogViewer(BIN_DIR, "--lang", "en", "--skin", skin) as viewer:
                    viewer.open_dialog(name, *keys)
                    caption = viewer.settled_look().crop(viewer.record["dialog"]["captionOnScreen"]).convert("L")
                    most = max(range(256), key=caption.histogram().__getitem__)
                    self.assertEqual(most < 128, is_dark, f"the ground has {most}")
                    self.assertGreater(caption.getextrema()[1] - caption.getextrema()[0], 100, "a title can be read")

    def test_the_captions_button_closes_it(self):
        with DialogViewer(BIN_DIR, "--lang", "en", "--skin", "black") as viewer:
            viewer.open_dialog("options", "alt+s", "o")
            _, top, right, bottom = viewer.record["dialog"]["captionOnScreen"]
            viewer.click(right - 12, (top + bottom) // 2)
            viewer.wait_for_closed()

    def test_the_caption_moves_it(self):
        with DialogViewer(BIN_DIR, "--lang", "en", "--skin", "black") as viewer:
            viewer.open_dialog("options", "alt+s", "o")
            left, top, _, bottom = viewer.record["dialog"]["captionOnScreen"]
            middle = (top + bottom) // 2
            viewer.drag(left + 80, middle, left + 120, middle + 30)
            viewer.wait_for(lambda record: record["dialog"]["captionOnScreen"][:2] == [left + 40, top + 30])

    def test_the_words_about_the_program_stand_on_the_skins_ground(self):
        for skin, is_dark in (("black", True), ("silver", False)):
            with self.subTest(skin), DialogViewer(BIN_DIR, "--lang", "en", "--skin", skin) as viewer:
                viewer.open_dialog("about", "ctrl+f", *"about", "Return")
                text = self.part(viewer, viewer.settled_look(), "text")
                most = max(range(256), key=text.histogram().__getitem__)
                self.assertEqual(most < 128, is_dark, f"the ground has {most}")
                viewer.click_part("close")
                viewer.wait_for_closed()


class Messages(unittest.TestCase):
    """What the viewer tells, in a window of its skin, with the keys of the system's message box."""
    WARNING = 2

    def open(self, skin="black", language="en"):
        return DialogViewer(BIN_DIR, "--lang", language, "--skin", skin, "--mode", "print")

    def ask(self, viewer, language="en"):
        viewer.key("ctrl+p")
        title = text_of(BIN_DIR, language, "ViewerTitle")
        viewer.wait_for_message(title)
        viewer.wait_for(lambda record: record.get("dialog", {}).get("name") == "message")
        return title

    def wait_for_answer(self, viewer, title):
        viewer.wait_for(lambda record: "dialog" not in record and record["warnings"])
        viewer.wait_until(lambda: len(viewer.windows(title)) == 1, "the message is gone")

    def test_it_says_its_text_on_the_ground_of_the_skin(self):
        for skin, is_dark in (("black", True), ("silver", False)):
            for language in ("en", "zh-CN", "he"):
                with self.subTest(skin, language=language), self.open(skin, language) as viewer:
                    title = self.ask(viewer, language)
                    dialog = viewer.record["dialog"]
                    self.assertEqual(dialog["parts"]["text"]["text"], text_of(BIN_DIR, language, "NoPrinter"))
                    self.assertEqual(dialog["parts"]["ok"]["text"], text_of(BIN_DIR, language, "ButtonOk"))
                    self.assertEqual(dialog["values"]["kind"], self.WARNING)
                    look = viewer.settled_look()
                    for place in (dialog["parts"]["text"]["onScreen"], dialog["captionOnScreen"]):
                        part = look.crop(place).convert("L")
                        most = max(range(256), key=part.histogram().__getitem__)
                        self.assertEqual(most < 128, is_dark, f"the ground has {most}")
                        self.assertGreater(part.getextrema()[1] - part.getextrema()[0], 100, "a text can be read")
                    viewer.key("Return")
                    self.wait_for_answer(viewer, title)

    def test_keys_clicks_and_its_caption_answer_it(self):
        with self.open() as viewer:
            def click_close():
                _, top, right, bottom = viewer.record["dialog"]["captionOnScreen"]
                viewer.click(right - 12, (top + bottom) // 2)

            for number, answer in enumerate((lambda: viewer.key("Return"), lambda: viewer.key("Escape"), lambda: viewer.key("space"),
                                             lambda: viewer.click_part("ok"), click_close), 1):
                title = self.ask(viewer)
                answer()
                self.wait_for_answer(viewer, title)
                viewer.wait_for(lambda record: len(record["warnings"]) == number)

    def test_the_viewer_takes_no_command_until_it_is_answered(self):
        with self.open() as viewer:
            title = self.ask(viewer)
            before = viewer.record["map"]["pixelsPerDegree"]
            viewer.key("ctrl+i")
            viewer.click_command("ModeBrowse")
            viewer.click_part("ok")
            self.wait_for_answer(viewer, title)
            record = viewer.wait_for(lambda record: record["idle"])
            self.assertEqual((record["map"]["pixelsPerDegree"], record["mode"]), (before, "print"))


class WithoutAPrinter(unittest.TestCase):
    """A system without any printer, as the tests' one is."""

    def answer(self, viewer, language):
        """Reads the message that stands above the frame, and gives the record after it has gone."""
        title = text_of(BIN_DIR, language, "ViewerTitle")
        count = len(viewer.record["warnings"])
        viewer.wait_for_message(title)
        viewer.key("Return")
        record = viewer.wait_for(lambda record: len(record["warnings"]) == count + 1)
        viewer.wait_until(lambda: len(viewer.windows(title)) == 1, "it was the only one")
        return record

    def check(self, language):
        with DialogViewer(BIN_DIR, "--lang", language, "--mode", "print") as viewer:
            viewer.key("ctrl+p")
            record = self.answer(viewer, language)
            self.assertEqual(record["warnings"], [text_of(BIN_DIR, language, "NoPrinter")])
            viewer.key("ctrl+i")  # it goes on
            viewer.wait_for(lambda now: now["map"]["pixelsPerDegree"] > record["map"]["pixelsPerDegree"])

    def test_printing_says_so_in_english(self):
        self.check("en")

    def test_printing_says_so_in_chinese(self):
        self.check("zh-CN")

    def test_printing_says_so_in_hebrew(self):
        self.check("he")

    def test_the_preview_says_so_and_stays(self):
        with DialogViewer(BIN_DIR, "--lang", "en", "--mode", "print") as viewer:
            viewer.open_dialog("preview", "ctrl+shift+v")
            viewer.click_part("print")
            self.assertEqual(self.answer(viewer, "en")["warnings"], [text_of(BIN_DIR, "en", "NoPrinter")])
            before = viewer.values()["zoom"]
            viewer.key("plus")
            viewer.wait_for(lambda record: record["dialog"]["values"]["zoom"] > before)
            viewer.click_part("close")
            viewer.wait_for_closed()


class PrintPreview(unittest.TestCase):
    def open(self):
        return DialogViewer(BIN_DIR, "--lang", "en", "--skin", "silver", "--mode", "edit")

    def set_marks(self, viewer, count):
        for number in range(1, count + 1):
            viewer.click_command("MarkAdd")
            viewer.wait_for(lambda record: len(record["map"]["marks"]) == number)

    def test_pages_are_turned_by_buttons_and_keys(self):
        with self.open() as viewer:
            self.set_marks(viewer, 2)
            viewer.open_dialog("preview", "ctrl+shift+v")
            self.assertEqual((viewer.values()["page"], viewer.values()["pages"]), (0, 2))
            self.assertFalse(viewer.is_enabled("previous"))
            viewer.click_part("next")
            viewer.wait_for_value("page", 1)
            viewer.wait_for(lambda record: not record["dialog"]["parts"]["next"]["enabled"])
            viewer.key("Prior")
            viewer.wait_for_value("page", 0)
            viewer.key("End")
            viewer.wait_for_value("page", 1)
            viewer.click_part("close")
            viewer.wait_for_closed()

    def test_the_list_of_marks_is_on_the_second_page(self):
        with self.open() as viewer:
            self.set_marks(viewer, 1)
            viewer.open_dialog("preview", "ctrl+shift+v")
            viewer.key("Next")
            viewer.wait_for_value("page", 1)
            left, top, right, bottom = viewer.record["dialog"]["parts"]["sheet"]["onScreen"]
            sheet = viewer.settled_look().crop((left, top, right, bottom))
            colors = dict((color, count) for count, color in sheet.getcolors(1 << 20))
            self.assertGreater(colors[(255, 255, 255)], sheet.width * sheet.height // 3, "a white sheet")
            self.assertGreater(sum(count for color, count in colors.items() if max(color) < 100), 50, "with letters")

    def test_without_marks_the_map_is_the_only_page(self):
        with self.open() as viewer:
            viewer.open_dialog("preview", "ctrl+shift+v")
            self.assertEqual(viewer.values()["pages"], 1)
            self.assertFalse(viewer.is_enabled("next"))
            viewer.key("Escape")
            viewer.wait_for_closed()

    def test_it_enlarges_by_buttons_keys_and_the_wheel_and_goes_back_to_the_whole_page(self):
        with self.open() as viewer:
            viewer.open_dialog("preview", "ctrl+shift+v")
            whole = viewer.values()["zoom"]
            self.assertFalse(viewer.is_enabled("whole"))
            viewer.click_part("larger")
            larger = viewer.wait_for(lambda record: record["dialog"]["values"]["zoom"] > whole)["dialog"]["values"]["zoom"]
            viewer.key("plus")
            viewer.wait_for(lambda record: record["dialog"]["values"]["zoom"] > larger)
            viewer.wheel(*self.middle_of_sheet(viewer), -3)
            viewer.wait_for(lambda record: record["dialog"]["values"]["scrollDown"] > 0)
            viewer.click_part("whole")
            viewer.wait_for_value("zoom", whole)
            self.assertEqual(viewer.values()["scrollDown"], 0)

    def middle_of_sheet(self, viewer):
        left, top, right, bottom = viewer.record["dialog"]["parts"]["sheet"]["onScreen"]
        return (left + right) // 2, (top + bottom) // 2

    def test_the_application_menu_opens_it(self):
        with self.open() as viewer:
            viewer.open_dialog("preview", "alt+f", "Down", "Down", "Down", "Down", "Return")


class OneAtATime(unittest.TestCase):
    """The pages of a preview take a moment to draw, in which the viewer can be used."""

    def open(self):
        return DialogViewer(BIN_DIR, "--lang", "en", "--skin", "silver", "--scale", "200")

    def test_a_preview_that_is_ordered_twice_opens_once(self):
        with self.open() as viewer:
            viewer.open_dialog("preview", "ctrl+shift+v", "ctrl+shift+v")
            viewer.settled_look()
            self.assertEqual(len(viewer.windows("Print preview")), 1)
            viewer.key("Escape")
            viewer.wait_for_closed()
            viewer.open_dialog("message", "F1")
            self.assertEqual(viewer.windows("Print preview"), [])

    def test_a_preview_waits_until_a_message_that_came_before_it_is_answered(self):
        with self.open() as viewer:
            viewer.open_dialog("message", "ctrl+shift+v", "F1")
            viewer.settled_look()
            self.assertEqual(viewer.windows("Print preview"), [])
            viewer.key("Escape")
            viewer.wait_for(lambda record: record.get("dialog", {}).get("name") == "preview")
            viewer.key("Escape")
            viewer.wait_for_closed()
            viewer.key("ctrl+i")  # and the frame has the keys
            before = viewer.record["map"]["pixelsPerDegree"]
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > before)

    def test_a_click_on_the_frame_leaves_what_it_waits_for_before_it(self):
        with self.open() as viewer:
            viewer.open_dialog("message", "F1")
            left, top, right, _ = viewer.record["frameOnScreen"]
            viewer.double_click((left + right) // 2, top + 10)
            viewer.click_part("ok")
            viewer.wait_for_closed()


class Options(unittest.TestCase):
    OPEN = ("alt+f", "Down", "Down", "Down", "Down", "Down", "Down", "Return")

    def open(self, *arguments, **options):
        return DialogViewer(BIN_DIR, "--lang", "en", "--skin", "silver", *arguments, **options)

    def test_what_is_chosen_is_in_force_and_shown_the_next_time(self):
        with self.open() as viewer:
            viewer.open_dialog("options", *self.OPEN)
            self.assertEqual(viewer.values(), {"language": 1, "skin": 0, "bars": 0, "quickAccess": 0, "startMode": 0, "scale": 0})
            viewer.choose("skin", 1)
            viewer.choose("quickAccess", 1)
            viewer.key("Return")
            viewer.wait_for(lambda record: record["skin"] == "black" and record["quickAccessBelow"] and "dialog" not in record)
            viewer.open_dialog("options", *self.OPEN)
            self.assertEqual((viewer.values()["skin"], viewer.values()["quickAccess"]), (1, 1))

    def test_another_language_speaks_at_once(self):
        with self.open() as viewer:
            viewer.open_dialog("options", *self.OPEN)
            viewer.choose("language", 0)
            viewer.click_part("take")
            viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][0]["name"] == "地图")

    def test_the_bars_above_the_map_are_chosen(self):
        with self.open() as viewer:
            for line, check in ((2, lambda record: record["classicBars"]), (1, lambda record: record["ribbonMinimized"])):
                if line == 2:
                    viewer.open_dialog("options", *self.OPEN)
                else:
                    viewer.open_dialog("options", "alt+s", "o")
                viewer.choose("bars", line)
                viewer.key("Return")
                viewer.wait_for(lambda record: check(record) and "dialog" not in record)

    def test_escape_changes_nothing(self):
        with self.open() as viewer:
            viewer.open_dialog("options", *self.OPEN)
            viewer.choose("skin", 1)
            viewer.key("Escape")
            viewer.wait_for_closed()
            self.assertEqual(viewer.record["skin"], "silver")

    def test_mode_and_scale_of_the_next_start(self):
        with tempfile.TemporaryDirectory() as folder:
            memory = ("--settings", os.path.join(folder, "settings"))
            with self.open(memory=memory) as viewer:
                height = viewer.record["ribbonOnScreen"][3] - viewer.record["ribbonOnScreen"][1]
                viewer.open_dialog("options", *self.OPEN)
                viewer.choose("startMode", 2)
                viewer.choose("scale", 3)
                viewer.key("Return")
                viewer.wait_for_closed()
                self.assertEqual(viewer.record["mode"], "browse")
                self.assertEqual(viewer.leave(), 0)
            with self.open(memory=memory) as viewer:
                self.assertEqual(viewer.record["mode"], "print")
                now = viewer.record["ribbonOnScreen"][3] - viewer.record["ribbonOnScreen"][1]
                self.assertGreater(now, 1.3 * height)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
