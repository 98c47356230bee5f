#!/usr/bin/python3
"""What the guides tell people to write does what they say.

usage: guide_test.py BIN_DIR [TEST...]
"""
import os
import re
import sys
import tempfile
import unittest

from viewer import Viewer, copy_installation, edit_file
from wine_session import ROOT

BIN_DIR = ""
# Behind which line of which file each piece of the guide goes.
PLACES = (("cfg/ribbon.xml", '<panel KEYWORD="PanelRegions" NAME="">'), ("lang/en/viewer.xlf", '<file id="RibbonBarCfg">'))


def follow_the_first_button(bin_dir, folder):
    """A copy of the viewer's installation with what docs/first-button.md adds to it."""
    with open(os.path.join(ROOT, "docs", "first-button.md"), encoding="utf-8") as file:
        pieces = re.findall(r"^```xml\n(.*?)^```$", file.read(), re.DOTALL | re.MULTILINE)
    if len(pieces) != len(PLACES):
        raise AssertionError(f"the guide has {len(pieces)} pieces of XML instead of {len(PLACES)}")
    copy_installation(bin_dir, folder)
    for piece, (path, line) in zip(pieces, PLACES):
        edit_file(folder, path, line, line + "\n" + piece)


class FirstButton(unittest.TestCase):
    def test_it_is_the_first_of_its_panel_and_goes_to_its_place(self):
        with tempfile.TemporaryDirectory() as folder:
            follow_the_first_button(BIN_DIR, folder)
            with Viewer(folder, "--lang", "en") as viewer:
                panel = next(panel for category in viewer.record["frame"]["ribbon"]["categories"] for panel in category["panels"]
                             if panel["name"] == "Regions")
                self.assertEqual(panel["elements"][0]["text"], "Nairobi")
                viewer.click_command("CityNairobi")
                viewer.wait_for(lambda record: abs(record["map"]["latitude"] + 1.29) < 0.5
                                and abs(record["map"]["longitude"] - 36.82) < 0.5)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main()
