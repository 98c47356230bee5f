#!/usr/bin/python3
"""The viewer with --follow: its bars are as their files are, while these are edited.

usage: follow_test.py BIN_DIR [TEST...]
"""
import os
import sys
import tempfile
import unittest

from viewer import Viewer, copy_installation, edit_file

BIN_DIR = ""
# By the file: what stands there, and the same with a shortcut that names no key. A command of the menu has one only where it is
# in no file before.
KEYLESS = {"keys.xml": ('HOTKEY="Ctrl+I"', 'HOTKEY="Ctrl+"'),
           "menu.xml": ("</menu>", '<item KEYWORD="Keyless" HOTKEY="Ctrl+"/></menu>')}


class ChangedAtTheStart(Viewer):
    """Meets a message about the ribbon's file before the frame appears; the file is whole when the message goes."""

    def begin(self):
        self.wait_for_message("Map viewer", windows=1)
        edit_file(self._bin, "cfg/ribbon.xml", 'KEYWORD="CatLayers" NAME="', 'KEYWORD="CatLayers" NAME=""')
        self.key("Return")
        super().begin()


class ToldAtTheStart(Viewer):
    """Meets a message about a file before the frame appears, and goes on."""

    def begin(self):
        self.wait_for_message("Map viewer", windows=1)
        self.key("Return")
        super().begin()


class Following(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        copy_installation(BIN_DIR, self.folder)

    def edit(self, path, old, new):
        edit_file(self.folder, path, old, new)

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

    def test_what_is_mended_before_the_frame_appears_is_shown(self):
        self.edit("cfg/ribbon.xml", 'KEYWORD="CatLayers" NAME=""', 'KEYWORD="CatLayers" NAME="')
        with ChangedAtTheStart(self.folder, "--lang", "en", "--follow") as viewer:
            viewer.wait_for(lambda record: "Layers" in self.names(record))

    def test_a_command_does_what_its_file_says_now(self):
        with Viewer(self.folder, "--lang", "en", "--follow") as viewer:
            self.edit("cfg/ribbon.xml", '<item KEYWORD="ZoomIn" NAME="" TOOLTIP="" TYPE="BUTTON" SIZE="32" PICPATH="pic\\skin\\icon\\modle\\zoom-in.ico" CMD="zoom" PARAM="2"/>',
                      '<item KEYWORD="ZoomIn" NAME="" TOOLTIP="" TYPE="BUTTON" SIZE="16" PICPATH="pic\\skin\\icon\\modle\\zoom-in.ico" CMD="zoom" PARAM="0.5"/>')
            before = viewer.record["map"]["pixelsPerDegree"]
            viewer.wait_for(lambda record: any(entry["keyword"] == "ZoomIn" and entry["param"] == "0.5"
                                               for entry in record["frame"]["registry"]))
            viewer.click_command("ZoomIn")
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] < before)

    @staticmethod
    def bars(record):
        return [places[0][:2] for places in record["toolbarsOnScreen"]]

    def test_toolbars_are_as_their_file_is_and_where_they_were(self):
        with Viewer(self.folder, "--lang", "en", "--bars", "classic", "--follow") as viewer:
            first = self.bars(viewer.record)
            left, top, _, bottom = viewer.record["toolbarsOnScreen"][0][0]
            viewer.drag(left - 5, (top + bottom) // 2, left + 90, bottom + 200)  # by its grip, off into a window of its own
            viewer.wait_for(lambda record: self.bars(record)[0] != first[0])
            left, top, _, bottom = viewer.record["toolbarsOnScreen"][1][0]
            viewer.drag(left - 5, (top + bottom) // 2, left + 300, (top + bottom) // 2)  # along its row
            viewer.wait_for(lambda record: self.bars(record)[1] != first[1])
            viewer.hover(700, 600)
            viewer.settled_look()  # the drag is told of on its way, too
            moved = self.bars(viewer.wait_for(lambda record: True))
            # One more stands in front of them, and one of them has a button less.
            self.edit("cfg/toolbar.xml", '<group KEYWORD="MapBars">',
                      '<group KEYWORD="MapBars"><toolbar PROMPT="New"><button TYPE="button" KEYWORD="ZoomOut"/></toolbar>')
            viewer.wait_for(lambda record: len(record["toolbarsOnScreen"]) == 4 and self.bars(record)[1:] == moved)
            buttons = [len(places) for places in viewer.record["toolbarsOnScreen"]]
            self.edit("cfg/toolbar.xml", '<button TYPE="button" KEYWORD="PanHome"', '<!-- "" --><x TYPE="separate" KEYWORD=""')
            self.edit("cfg/toolbar.xml", '<button TYPE="button" KEYWORD="PanWest"', '<button TYPE="" KEYWORD="PanWest"')
            viewer.wait_for(lambda record: len(record["toolbarsOnScreen"][2]) == buttons[2] - 1 and self.bars(record)[1:] == moved)
            # They work, and go with their elements.
            before = viewer.record["map"]["pixelsPerDegree"]
            left, top, right, bottom = viewer.record["toolbarsOnScreen"][0][0]
            viewer.click((left + right) // 2, (top + bottom) // 2)
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] < before)
            self.edit("cfg/toolbar.xml", '<toolbar PROMPT="New"><button TYPE="button" KEYWORD="ZoomOut"/></toolbar>', "")
            viewer.wait_for(lambda record: len(record["toolbarsOnScreen"]) == 3 and self.bars(record) == moved)

    def test_toolbars_change_while_a_broken_file_stands_beside_them(self):
        with Viewer(self.folder, "--lang", "en", "--bars", "classic", "--follow") as viewer:
            count = len(viewer.record["toolbarsOnScreen"][1])
            self.edit("cfg/menu.xml", "</menu>", "</men>")
            viewer.wait_until(lambda: viewer.windows(r".*menu\.xml.*"), "the caption says what is broken")
            self.edit("cfg/toolbar.xml", '<button TYPE="button" KEYWORD="PanWest"', '<button TYPE="" KEYWORD="PanWest"')
            viewer.wait_until(lambda: viewer.errors().count("menu.xml:") > 1, "the change was seen")
            self.assertEqual(len(viewer.record["toolbarsOnScreen"][1]), count)
            self.edit("cfg/menu.xml", "</men>", "</menu>")
            viewer.wait_for(lambda record: len(record["toolbarsOnScreen"][1]) == count - 1)

    def test_a_shortcut_that_names_no_key_leaves_menu_and_keys_as_they_were(self):
        with Viewer(self.folder, "--lang", "en", "--follow") as viewer:
            def zoomed():
                """Its key works; what is shown then."""
                before = viewer.record["map"]["pixelsPerDegree"]
                viewer.key("ctrl+i")
                frame = viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > before)["frame"]
                return frame["menu"], frame["accelerators"]
            first = zoomed()
            for name, (whole, keyless) in KEYLESS.items():
                self.edit("cfg/" + name, whole, keyless)
                viewer.wait_until(lambda: viewer.windows(f".*{name}:.*"), "the caption says what is broken")
                self.assertRegex(viewer.errors(), name + r":\d+:\d+: nothing stands where the shortcut's key belongs")
                self.assertEqual(zoomed(), first)
                self.edit("cfg/" + name, keyless, whole)
                viewer.wait_until(lambda: not viewer.windows(f".*{name}:.*"), "the caption is the viewer's again")
                self.assertEqual(zoomed(), first)

    def test_a_shortcut_that_names_no_key_is_told_at_the_start_and_the_viewer_goes_on(self):
        shown = {"keys.xml": lambda frame: "I" in {chr(entry["key"]) for entry in frame["accelerators"]},
                 "menu.xml": lambda frame: bool(frame["menu"])}
        for name, (whole, keyless) in KEYLESS.items():
            self.edit("cfg/" + name, whole, keyless)
            with ToldAtTheStart(self.folder, "--lang", "en", "--follow") as viewer:
                viewer.wait_until(lambda: viewer.windows(f".*{name}:.*"), "the caption says what is broken")
                self.assertFalse(shown[name](viewer.record["frame"]))
                self.edit("cfg/" + name, keyless, whole)
                viewer.wait_for(lambda record: shown[name](record["frame"]))
                viewer.wait_until(lambda: not viewer.windows(f".*{name}:.*"), "the caption is the viewer's again")

    def test_keys_are_as_their_file_is(self):
        with Viewer(self.folder, "--lang", "en", "--follow") as viewer:
            def keys(record):
                return {chr(entry["key"]) for entry in record["frame"]["accelerators"] if entry["cmd"] == zoom_in}
            zoom_in = viewer.id_of("ZoomIn")
            count = len(viewer.record["frame"]["accelerators"])
            self.assertEqual(keys(viewer.record), {"I"})
            self.edit("cfg/keys.xml", 'HOTKEY="Ctrl+I"', 'HOTKEY="Ctrl+J"')
            record = viewer.wait_for(lambda record: keys(record) == {"J"})
            self.assertEqual(len(record["frame"]["accelerators"]), count)
            before = record["map"]["pixelsPerDegree"]
            viewer.key("ctrl+i")
            viewer.key("ctrl+j")
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] == 2 * before)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
