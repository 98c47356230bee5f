#!/usr/bin/python3
"""Files of the viewer that break or go while it runs.

usage: damage_test.py BIN_DIR [TEST...]
"""
import os
import shutil
import sys
import tempfile
import unittest

from viewer import Viewer

BIN_DIR = ""
TITLE = "Map viewer"


class BrokenFiles(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        for name in os.listdir(BIN_DIR):
            path = os.path.join(BIN_DIR, name)
            if name == "demo.exe":
                shutil.copy(path, self.folder)
            elif name in ("cfg", "lang"):
                shutil.copytree(path, os.path.join(self.folder, name))
            elif os.path.isdir(path) or name.endswith(".dll"):
                os.symlink(path, os.path.join(self.folder, name))

    def file(self, *parts):
        return os.path.join(self.folder, *parts)

    def rewrite(self, path, change):
        with open(path, encoding="utf-8") as file:
            text = file.read()
        with open(path, "w", encoding="utf-8") as file:
            file.write(change(text))
        return text

    @staticmethod
    def read_again(viewer):
        viewer.key("ctrl+shift+r")

    def warned(self, viewer, act):
        """What the message says that comes of it, and the record after it has gone."""
        count = len(viewer.record["warnings"])
        act()
        viewer.wait_for_message(TITLE)
        viewer.key("Return")
        viewer.wait_until(lambda: len(viewer.windows(TITLE)) == 1, "the message is gone")
        record = viewer.wait_for(lambda record: len(record["warnings"]) == count + 1 and record["idle"])
        return record["warnings"][-1], record

    def names(self, record):
        ribbon = record["frame"]["ribbon"]
        return ([category["name"] for category in ribbon["categories"]], ribbon["quickAccess"], record["frame"]["menu"],
                record["frame"]["toolbars"], record["toolbarsOnScreen"])

    def check(self, path, place, *arguments):
        """Broken, then missing, then mended with another text."""
        with Viewer(self.folder, "--lang", "en", *arguments) as viewer:
            before = self.names(viewer.wait_for(lambda record: record["idle"]))
            self.assertTrue(all(before[:4]))
            whole = self.rewrite(path, lambda text: text[:len(text) // 2])
            words, _ = self.warned(viewer, lambda: self.read_again(viewer))
            self.assertRegex(words, place)
            os.remove(path)
            words, _ = self.warned(viewer, lambda: self.read_again(viewer))
            self.assertIn(os.path.basename(path), words)
            viewer.key("ctrl+i")  # it goes on
            record = viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > 5)
            self.assertEqual(self.names(record), before)
            self.assertRegex(viewer.errors(), place)
            with open(path, "w", encoding="utf-8") as file:
                file.write(whole)
            self.rewrite(self.file("lang", "en", "viewer.xlf"), lambda text: text.replace("<source>Layers<", "<source>Strata<"))
            self.read_again(viewer)
            viewer.wait_for(lambda record: self.names(record)[0][1] == "Strata")

    def test_the_ribbons_file(self):
        self.check(self.file("cfg", "ribbon.xml"), r"ribbon\.xml:\d+:\d+: ")

    def test_the_menus_file(self):
        self.check(self.file("cfg", "menu.xml"), r"menu\.xml:\d+:\d+: ")

    def test_the_toolbars_file(self):
        self.check(self.file("cfg", "toolbar.xml"), r"toolbar\.xml:\d+:\d+: ", "--bars", "classic")

    def test_the_file_of_the_language(self):
        self.check(self.file("lang", "en", "viewer.xlf"), r"viewer\.xlf:\d+:\d+: ")

    def test_the_file_of_a_modes_extras(self):
        path = self.file("cfg", "status-edit.xml")
        with Viewer(self.folder, "--lang", "en", "--mode", "edit") as viewer:
            shown = viewer.wait_for(lambda record: record["idle"])["frame"]
            self.rewrite(path, lambda text: text[:len(text) // 2])
            words, record = self.warned(viewer, lambda: viewer.key("ctrl+shift+r"))
            self.assertRegex(words, r"status-edit\.xml:\d+:\d+: ")
            self.assertEqual(record["frame"], shown)

    def test_a_switch_to_a_broken_language_leaves_the_one_that_is_shown(self):
        with Viewer(self.folder, "--lang", "en", "--category", "2") as viewer:
            self.rewrite(self.file("lang", "zh-CN", "viewer.xlf"), lambda text: text[:300])
            viewer.click_command("LanguageChinese")
            viewer.wait_for_message(TITLE)
            viewer.key("Return")
            viewer.key("ctrl+i")
            record = viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > 5)
            self.assertEqual((record["language"], record["frame"]["ribbon"]["categories"][0]["name"]), ("en", "Map"))

    def test_a_switch_to_a_language_that_is_gone_leaves_the_one_that_is_shown(self):
        with Viewer(self.folder, "--lang", "en", "--category", "2") as viewer:
            shown = viewer.wait_for(lambda record: record["idle"])["frame"]["ribbon"]["categories"]
            shutil.rmtree(self.file("lang", "zh-CN"))
            words, record = self.warned(viewer, lambda: viewer.click_command("LanguageChinese"))
            self.assertIn(r"lang\zh-CN\viewer.xlf:", words)
            self.assertEqual((record["language"], [category["name"] for category in record["frame"]["ribbon"]["categories"]]),
                             ("en", [category["name"] for category in shown]))
            viewer.key("ctrl+i")
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > 5)

    def test_problems_are_printed_with_their_places_and_whole_files_have_none(self):
        with Viewer(self.folder, "--lang", "en") as viewer:
            self.assertNotRegex(viewer.errors(), r"\.x(ml|lf):\d")
        self.rewrite(self.file("cfg", "ribbon.xml"), lambda text: text.replace('TYPE="SLIDER"', 'TYPE="SLYDER"', 1))
        with Viewer(self.folder, "--lang", "en") as viewer:
            self.assertRegex(viewer.errors(), r"ribbon\.xml:\d+:\d+: \w+: .*SLYDER")


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
