#!/usr/bin/python3
"""barview --matrix: pictures of every tab in every combination, and their page.

usage: matrix_test.py BIN_DIR [TEST...]
"""
import os
import re
import subprocess
import sys
import tempfile
import unittest

from wine_session import ROOT, alone_in_prefix

BIN_DIR = ""

RIBBON = """<ribbon><row><category KEYWORD='Map' NAME=''><panel KEYWORD='P' NAME=''><i KEYWORD='Open' NAME='' TYPE='BUTTON'/></panel>
</category><category KEYWORD='Tools' NAME=''><panel KEYWORD='Q' NAME=''><i KEYWORD='%s' NAME='' TYPE='BUTTON'/></panel></category>
</row></ribbon>"""
GONE = "<category KEYWORD='Old' NAME=''><panel KEYWORD='R' NAME=''><i KEYWORD='Older' NAME='' TYPE='BUTTON'/></panel></category>"
TABLE = """<xliff xmlns="urn:oasis:names:tc:xliff:document:2.0" version="2.0" srcLang="en"><file id="RibbonBarCfg">
<unit id="Open"><segment><source>Open the file</source></segment></unit>
<unit id="Tools"><segment><source>Tools</source></segment></unit></file></xliff>"""


class Pictures(unittest.TestCase):
    def installation(self, name, keyword):
        directory = os.path.join(self.folder, name)
        for file_name, text in (("cfg/ribbon.xml", RIBBON % keyword), ("lang/en/a.xlf", TABLE)):
            path = os.path.join(directory, file_name)
            os.makedirs(os.path.dirname(path))
            with open(path, "w", encoding="utf-8") as file:
                file.write(text)
        return directory

    def test_every_tab_is_shown_in_every_combination_and_changes_are_marked(self):
        with tempfile.TemporaryDirectory() as self.folder, alone_in_prefix():
            now, before = self.installation("now", "Measure"), self.installation("before", "Area")
            out = os.path.join(self.folder, "out")
            result = subprocess.run([os.path.join(ROOT, "scripts", "wine-run"), os.path.join(BIN_DIR, "barview.exe"), now, "--matrix", out,
                                     "--against", before, "--skins", "silver,black", "--langs", "en,pseudo,mirrored", "--scales", "100",
                                     "--sizes", "500x200"], capture_output=True, text=True, errors="replace")
            self.assertEqual(result.returncode, 0, result.stderr)
            pictures = {}
            for name in os.listdir(os.path.join(out, "pictures")):
                with open(os.path.join(out, "pictures", name), "rb") as file:
                    pictures[name] = file.read()
            self.assertEqual(len(pictures), 2 * 2 * 3)
            self.assertEqual(len(set(pictures.values())), len(pictures), "no two are alike")
            with open(os.path.join(out, "index.html"), encoding="utf-8") as file:
                page = file.read()
            shown = set(re.findall(r'src="(pictures/[^"]+)"', page))
            self.assertEqual(shown, {f"pictures/{name}" for name in pictures})
            # The second tab's button is another one.
            self.assertEqual(page.count('<figure class="changed">'), 2 * 3)
            self.assertEqual({name[0] for name in re.findall(r'src="before/([^"]+)"', page)}, {"2"})

    def test_a_tab_that_only_the_other_one_has_is_shown_as_gone(self):
        with tempfile.TemporaryDirectory() as self.folder, alone_in_prefix():
            now, before = self.installation("now", "Area"), self.installation("before", "Area")
            with open(os.path.join(before, "cfg", "ribbon.xml"), "w", encoding="utf-8") as file:
                file.write((RIBBON % "Area").replace("</row>", GONE + "</row>"))
            out = os.path.join(self.folder, "out")
            result = subprocess.run([os.path.join(ROOT, "scripts", "wine-run"), os.path.join(BIN_DIR, "barview.exe"), now, "--matrix", out,
                                     "--against", before, "--skins", "silver", "--langs", "en", "--scales", "100", "--sizes", "500x200"],
                                    capture_output=True, text=True, errors="replace")
            self.assertEqual(result.returncode, 0, result.stderr)
            with open(os.path.join(out, "index.html"), encoding="utf-8") as file:
                page = file.read()
            self.assertIn("<h2>Old</h2>", page)
            self.assertEqual(page.count("<b>gone</b>"), 1)
            self.assertEqual(page.count("<b>changed</b>"), 2, "its tab stands beside the others")
            old = re.search(r"<h2>Old</h2>.*?</section>", page, re.S).group()
            self.assertRegex(old, r'src="before/3-en-silver-100-500x200\.png"')
            self.assertNotIn("pictures/", old)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
