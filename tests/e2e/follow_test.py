#!/usr/bin/python3
"""The viewer with --follow: its bars are as their files are, while these are edited.

usage: follow_test.py BIN_DIR [TEST...]
"""
import os
import shutil
import sys
import tempfile
import unittest

from viewer import Viewer

BIN_DIR = ""


class Following(unittest.TestCase):
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

    def edit(self, path, old, new):
        """As an editor does that writes a file of its own and then gives it the other's name."""
        path = os.path.join(self.folder, *path.split("/"))
        with open(path, encoding="utf-8") as file:
            text = file.read()
        self.assertIn(old, text)
        with open(path + "~", "w", encoding="utf-8") as file:
            file.write(text.replace(old, new))
        os.replace(path + "~", path)

    @staticmethod
    def names(record):
        return [category["name"] for category in record["frame"]["ribbon"]["categories"]]

    def test_what_is_written_is_shown_and_a_broken_file_leaves_what_was(self):
        with Viewer(self.folder, "--lang", "en", "--follow") as viewer:
            identity = viewer.id_of("ZoomIn")
            before = self.names(viewer.record)
            self.edit("lang/en/viewer.xlf", "<source>Layers<", "<source>Strata<")
            viewer.wait_for(lambda record: "Strata" in self.names(record))
            self.edit("cfg/ribbon.xml", 'KEYWORD="CatLayers" NAME=""', 'KEYWORD="CatLayers" NAME="')
            viewer.wait_until(lambda: viewer.windows(r".*ribbon\.xml.*"), "the caption says what is broken")
            self.assertRegex(viewer.errors(), r"ribbon\.xml:\d+:\d+: ")
            self.assertIn("Strata", self.names(viewer.record))
            self.edit("cfg/ribbon.xml", 'KEYWORD="CatLayers" NAME="', 'KEYWORD="CatSettings" NAME=""')
            record = viewer.wait_for(lambda record: "Strata" not in self.names(record))
            viewer.wait_until(lambda: not viewer.windows(r".*ribbon\.xml.*"), "the caption is the viewer's again")
            self.assertEqual(len(self.names(record)), len(before))
            self.assertEqual(viewer.id_of("ZoomIn"), identity)

    def test_a_command_does_what_its_file_says_now(self):
        with Viewer(self.folder, "--lang", "en", "--follow") as viewer:
            self.edit("cfg/ribbon.xml", '<item KEYWORD="ZoomIn" NAME="" TOOLTIP="" TYPE="BUTTON" SIZE="32" PICPATH="pic\\skin\\icon\\modle\\zoom-in.ico" CMD="zoom" PARAM="2"/>',
                      '<item KEYWORD="ZoomIn" NAME="" TOOLTIP="" TYPE="BUTTON" SIZE="16" PICPATH="pic\\skin\\icon\\modle\\zoom-in.ico" CMD="zoom" PARAM="0.5"/>')
            before = viewer.record["map"]["pixelsPerDegree"]
            viewer.wait_for(lambda record: any(entry["keyword"] == "ZoomIn" and entry["param"] == "0.5"
                                               for entry in record["frame"]["registry"]))
            viewer.click_command("ZoomIn")
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] < before)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
