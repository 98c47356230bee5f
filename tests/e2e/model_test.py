#!/usr/bin/python3
"""What barcheck says that files build, beside what barview builds from them, for installations at random.

usage: model_test.py BIN_DIR [TEST...]

BARWRIGHT_MODELS asks for another number of installations than 50.
"""
import json
import os
import subprocess
import sys
import tempfile
import unittest

import random_configuration
from wine_session import ROOT

BIN_DIR = ""
# What stands in texts of the language alone.
TEXTS = {"en": "& co", "de": "übersetzt"}


def run(program, *arguments):
    return subprocess.run([os.path.join(ROOT, "scripts", "wine-run"), "--null", os.path.join(BIN_DIR, program), *arguments],
                          capture_output=True, text=True, errors="replace")


def read(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def differences(model, dump, place=""):
    """Where the dump does not say what the model says. It says more: places, states, the skin."""
    if isinstance(model, dict):
        if isinstance(dump, dict) and "children" in dump and "children" not in model:
            yield f"{place}: children that the model does not have"
        for key, value in model.items():
            if not isinstance(dump, dict) or key not in dump:
                yield f"{place}/{key}: only in the model: {value!r}"
            else:
                yield from differences(value, dump[key], f"{place}/{key}")
    elif isinstance(model, list):
        if len(model) != len(dump):
            yield f"{place}: {len(model)} in the model, {len(dump)} built"
        for number, (a, b) in enumerate(zip(model, dump)):
            yield from differences(a, b, f"{place}/{number}")
    elif model != dump:
        yield f"{place}: {model!r} in the model, {dump!r} built"


class ModelOfTheFiles(unittest.TestCase):
    def test_it_is_what_is_built_for_installations_at_random(self):
        count = int(os.environ.get("BARWRIGHT_MODELS", "50"))
        with tempfile.TemporaryDirectory() as folder:
            directories = [os.path.join(folder, str(seed)) for seed in range(count)]
            for seed, directory in enumerate(directories):
                random_configuration.write(directory, seed)
            found, seen = [], set()
            for language in ("en", "de"):
                self.build(folder, directories, language)
                for directory in directories:
                    model, dump = (read(os.path.join(directory, f"{name}.json")) for name in ("model", "dump"))
                    found += [f"{os.path.basename(directory)} in {language}{text}" for text in differences(model, dump)]
                    seen |= {kind for kind in ("registry", "menu", "accelerators", "toolbars", "statusExtras") if model[kind]}
                    seen |= {f"{language} text" for entry in model["registry"] if TEXTS[language] in entry["name"]}
            self.assertEqual(found[:20], [], f"{len(found)} differences")
            self.assertEqual(seen, {"registry", "menu", "accelerators", "toolbars", "statusExtras", "en text", "de text"})

    def build(self, folder, directories, language):
        """Both write what they have to say of each directory into it."""
        lists = {}
        for name, drive in (("dump", ""), ("model", "Z:")):
            lists[name] = os.path.join(folder, f"{name}.txt")
            with open(lists[name], "w", encoding="utf-8") as file:
                file.writelines(f"{drive}{directory}\t{drive}{directory}/{name}.json\n" for directory in directories)
        built = run("barview.exe", "--lang", language, "--batch", lists["dump"])
        self.assertIn(built.returncode, (0, 1), built.stderr)  # 1: some files are broken
        result = run("barcheck.exe", "--lang", language, "--models", lists["model"])
        self.assertEqual(result.returncode, 0, result.stderr)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
