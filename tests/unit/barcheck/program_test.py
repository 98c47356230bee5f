#!/usr/bin/python3
"""barcheck as it is run: exit codes, and which of its two outputs it uses.

usage: program_test.py COMMAND... (what starts barcheck)
"""
import os
import re
import subprocess
import sys
import tempfile
import unittest

COMMAND = []

TABLE = """<xliff xmlns="urn:oasis:names:tc:xliff:document:2.0" version="2.0" srcLang="%s"><file id="RibbonBarCfg">
<unit id="File"><segment><source>File</source></segment></unit>
<unit id="Save"><segment><source>Save</source></segment></unit>
</file></xliff>
"""
MENU = """<menu><group><popup KEYWORD="File" MENUNAME="">
<item KEYWORD="Save" MENUNAME="" HOTKEY="%s"/>
</popup></group></menu>
"""


class Program(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.write("cfg/menu.xml", MENU % "Ctrl+S")
        self.write("lang/en/texts.xlf", TABLE % "en")

    def write(self, name, text):
        path = os.path.join(self.folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)

    def run_it(self, *arguments):
        # Standard error is the program's alone: what starts it tells exit codes there when it is asked to.
        quiet = {name: value for name, value in os.environ.items() if name != "BARWRIGHT_TELL_CODE"}
        return subprocess.run([*COMMAND, *arguments], env=quiet, capture_output=True, text=True, errors="replace")

    def test_what_is_sound_gives_0_and_no_word(self):
        result = self.run_it(self.folder, "--strict")
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))

    def test_an_error_gives_1_and_is_shown_with_its_line(self):
        self.write("cfg/menu.xml", MENU % "Ctrl+")
        result = self.run_it(self.folder)
        self.assertEqual(result.returncode, 1)
        line, below, caret, fix = result.stdout.splitlines()
        self.assertRegex(line, r"^cfg/menu\.xml:2:34: error: .* \[shortcut-syntax\]$")
        self.assertEqual(below, '    <item KEYWORD="Save" MENUNAME="" HOTKEY="Ctrl+"/>')
        self.assertEqual(below[caret.index("^"):][:6], "HOTKEY")
        self.assertTrue(fix.startswith("    fix: "), fix)
        self.assertEqual(result.stderr, "barcheck: 1 error, 0 warnings, 0 notes\n")

    def test_a_warning_gives_1(self):
        self.write("cfg/menu.xml", (MENU % "Ctrl+S").replace("HOTKEY", 'COLOUR="" HOTKEY'))
        result = self.run_it(self.folder)
        self.assertEqual((result.returncode, result.stderr), (1, "barcheck: 0 errors, 1 warning, 0 notes\n"), result.stdout)

    def test_notes_give_0_and_with_strict_1(self):
        self.write("lang/en/texts.xlf", TABLE % "de")
        for arguments, code in (((), 0), (("--strict",), 1)):
            result = self.run_it(self.folder, *arguments)
            self.assertEqual(result.returncode, code, result.stdout)
            self.assertRegex(result.stdout, r"(?m)^lang/en/texts\.xlf:\d+:\d+: note: .* \[untranslated-text\]$")
            self.assertRegex(result.stderr, r"^barcheck: 0 errors, 0 warnings, [1-9]\d* notes?\n$")

    def test_wrong_usage_gives_2_and_the_usage_on_standard_error(self):
        for arguments in ((), (os.path.join(self.folder, "none"),), (self.folder, "--sstrict"), (self.folder, "--format", "xml")):
            result = self.run_it(*arguments)
            self.assertEqual((result.returncode, result.stdout), (2, ""), arguments)
            self.assertRegex(result.stderr, r"^barcheck: .+\nusage: barcheck DIR")

    def test_help_gives_0_and_lists_every_option_and_itself(self):
        for option in ("--help", "-h"):
            result = self.run_it(option)
            self.assertEqual((result.returncode, result.stderr), (0, ""))
            self.assertEqual(set(re.findall(r"--[a-z]+", result.stdout)),
                             {"--help", "--format", "--strict", "--lang", "--extract", "--model", "--models", "--schema", "--guide",
                              "--attributes"})


if __name__ == "__main__":
    COMMAND = sys.argv[1:]
    unittest.main(argv=sys.argv[:1], verbosity=2)
