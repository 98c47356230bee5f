#!/usr/bin/python3
"""Whatever is opened and closed again, or switched there and back, leaves nothing behind, however often it is done.

usage: growth_test.py BIN_DIR [TEST...]

How often: BARWRIGHT_REPETITIONS of the environment.
"""
import os
import sys
import tempfile
import time
import unittest

from hands import Hands
from machine_time import program_of
from monkey import REST, Held, read_record
from viewer import DEADLINE, Viewer

BIN_DIR = ""
REPETITIONS = int(os.environ.get("BARWRIGHT_REPETITIONS", "20"))
FIRST = 5  # times at the beginning, which make what is made once
# By so many objects the viewer may grow, however often it does something: its caches get their last pictures late.
MOST = {"gdi": 10, "icons": 2, "menus": 2, "windows": 2}
BETWEEN_LOOKS = 0.005


def keys(*names):
    return [["key", *names]]


def click(place, button=1):
    left, top, right, bottom = place
    return [["mousemove", (left + right) // 2, (top + bottom) // 2, "mousedown", button, "mouseup", button]]


def double_click(x, y):
    return [["mousemove", x, y, *["mousedown", 1, "mouseup", 1] * 2]]


def search(text):
    return [*keys("ctrl+f"), ["type", text]]


def says(name, value):
    return lambda record: record[name] == value


def is_dialog(name):
    return lambda record: record.get("dialog", {}).get("name") == name


def is_no_dialog(record):
    return "dialog" not in record


def is_found(record):
    return bool(record["search"]["found"])


def is_no_search(record):
    return not record["search"]["open"]


def dialog(name, *order):
    """Opens and cancels it: pairs of what is done and what the record says then."""
    return [*order, ([], is_dialog(name)), (keys("Escape"), is_no_dialog)]


def command(text, condition):
    """By the search."""
    return [(search(text), is_found), (keys("Return"), condition)]


class Growth(unittest.TestCase):
    """After a few times there are as many objects of the system as after many more."""

    def repeat(self, plan, *arguments):
        """`plan` gets the viewer and gives pairs: what is done, or what gives that for a record; and what the record is to
        say then, or None."""
        with tempfile.TemporaryDirectory() as notes:
            watch = os.path.join(notes, "watch.txt")
            with Viewer(BIN_DIR, "--lang", "en", "--skin", "silver", "--watch", watch, *arguments) as viewer:
                viewer.wait_for(lambda record: record["map"]["finished"])
                steps, process = plan(viewer), program_of(viewer.record_file)
                with Hands(viewer.environment, process) as hands:
                    self.do(viewer, hands, steps, FIRST)
                    before = Held(process, watch).objects
                    self.do(viewer, hands, steps, REPETITIONS)
                    after = Held(process, watch).objects
        grown = {name: (before[name], after[name]) for name, most in MOST.items() if after[name] > before[name] + most}
        self.assertEqual(grown, {}, f"after {REPETITIONS} times")

    def do(self, viewer, hands, steps, times):
        for number in range(times):
            for place, (parts, condition) in enumerate(steps):
                hands.give(parts(read_record(viewer.record_file)) if callable(parts) else parts)
                if condition is not None:
                    self.wait_for(viewer, condition, f"step {place} of time {number}")
        hands.give([REST])

    def wait_for(self, viewer, condition, what):
        end = time.monotonic() + DEADLINE
        while True:
            record = read_record(viewer.record_file)
            if record is not None and condition(record):
                return
            if viewer.has_left() or time.monotonic() > end:
                self.fail(f"{what}: {record and record.get('dialog')}")
            time.sleep(BETWEEN_LOOKS)

    def test_messages(self):
        self.repeat(lambda viewer: dialog("message", (keys("F1"), None)))

    def test_the_words_about_the_program(self):
        self.repeat(lambda viewer: dialog("about", *command("about", None)))

    def test_the_options(self):
        self.repeat(lambda viewer: dialog("options", *command("options", None)))

    def test_the_lists_of_the_options(self):
        def plan(viewer):
            return [*command("options", is_dialog("options")), *[(keys("alt+Down", "Escape", "Tab"), None)] * 6,
                    (keys("Escape"), is_no_dialog)]
        self.repeat(plan)

    def test_the_print_preview(self):
        self.repeat(lambda viewer: dialog("preview", (keys("ctrl+shift+v"), None)))

    def test_the_zoom_of_the_print_preview(self):
        def plan(viewer):
            return [(keys("ctrl+shift+v"), is_dialog("preview")), (keys("plus", "plus", "0"), None), (keys("Escape"), is_no_dialog)]
        self.repeat(plan)

    def test_a_message_over_the_print_preview(self):
        def plan(viewer):
            return [(keys("ctrl+shift+v"), is_dialog("preview")), (keys("ctrl+p"), is_dialog("message")),
                    (keys("Escape"), is_dialog("preview")), (keys("Escape"), is_no_dialog)]
        self.repeat(plan, "--mode", "print")

    def test_the_search(self):
        self.repeat(lambda viewer: [(search("zoom"), is_found), (keys("Escape"), is_no_search)])

    def test_the_application_menu(self):
        self.repeat(lambda viewer: [(click(viewer.record["applicationButtonOnScreen"]), says("popupOpen", True)),
                                    (keys("Escape", "Escape"), says("popupOpen", False))])

    def test_the_menu_of_a_button(self):
        def plan(viewer):
            left, top, right, bottom = viewer.place_of("PlaceCities")
            arrow = (right - 12, top, right, bottom) if right - left > bottom - top else (left, bottom - 12, right, bottom)
            return [(click(arrow), says("popupOpen", True)), (keys("Escape"), says("popupOpen", False))]
        self.repeat(plan)

    def test_the_list_of_a_combo(self):
        def plan(viewer):
            _, top, right, bottom = viewer.place_of("LayersShown")
            return [(click((right - 12, top, right, bottom)), says("popupOpen", True)), (keys("Escape"), says("popupOpen", False))]
        self.repeat(plan, "--category", "1")

    def test_the_menu_of_the_right_button(self):
        self.repeat(lambda viewer: [(click(viewer.place_of("ZoomIn"), 3), says("popupOpen", True)), (keys("Escape"), says("popupOpen", False))])

    def test_the_menu_of_the_quick_access_toolbar(self):
        def plan(viewer):
            _, top, right, bottom = viewer.record["quickAccessOnScreen"]
            return [(click((right - 10, top, right, bottom)), says("popupOpen", True)), (keys("Escape"), says("popupOpen", False))]
        self.repeat(plan)

    def test_a_menu_of_the_menu_bar(self):
        self.repeat(lambda viewer: [(keys("alt+z"), says("popupOpen", True)), (keys("Escape", "Escape"), says("popupOpen", False))],
                    "--bars", "classic")

    def test_the_customize_dialog(self):
        def plan(viewer):
            is_shown = lambda expected: lambda _: bool(viewer.windows("Customize")) == expected
            return [*command("customize", is_shown(True)), (keys("Tab", "Escape"), is_shown(False))]
        self.repeat(plan)

    def test_key_tips(self):
        self.repeat(lambda viewer: [(keys("F10"), None), (keys("m"), None), (keys("Escape", "Escape", "Escape"), None)])

    def test_tooltips(self):
        def plan(viewer):
            left, top, right, bottom = viewer.place_of("ZoomIn")
            return [([["mousemove", (left + right) // 2, (top + bottom) // 2, "sleep", 0.7], ["mousemove", 640, 500]], None)]
        self.repeat(plan)

    def test_tabs(self):
        def plan(viewer):
            places = viewer.record["tabsOnScreen"][:3]
            return [(click(place), lambda record, index=index: record["frame"]["ribbon"]["categories"][index]["active"])
                    for index, place in enumerate(places)]
        self.repeat(plan)

    def test_the_minimised_ribbon(self):
        self.repeat(lambda viewer: [(keys("ctrl+F1"), says("ribbonMinimized", True)), (keys("ctrl+F1"), says("ribbonMinimized", False))])

    def test_the_quick_access_toolbar_below(self):
        self.repeat(lambda viewer: [*command("below", says("quickAccessBelow", True)), *command("below", says("quickAccessBelow", False))])

    def test_modes(self):
        self.repeat(lambda viewer: [step for mode in ("edit", "print", "browse") for step in command(mode, says("mode", mode))])

    def test_skins(self):
        def plan(viewer):
            button = viewer.record["skinButtonOnScreen"]
            return [(click(button), says("skin", "black")), (click(button), says("skin", "silver"))]
        self.repeat(plan)

    def test_languages(self):
        def plan(viewer):
            return [step for text, language in (("chinese", "zh-CN"), ("hebrew", "he"), ("english", "en"))
                    for step in command(text, lambda record, language=language: record["language"] == language and record["idle"])]
        self.repeat(plan)

    def test_bars_that_are_built_anew(self):
        self.repeat(lambda viewer: [(keys("ctrl+shift+r"), None)])

    def test_toolbars_that_are_built_anew(self):
        self.repeat(lambda viewer: [(keys("ctrl+shift+r"), None)], "--bars", "classic")

    def test_menus_and_toolbars_in_the_ribbons_place(self):
        self.repeat(lambda viewer: [(keys("ctrl+m"), says("classicBars", True)), (keys("ctrl+m"), says("classicBars", False))])

    def test_a_toolbar_that_floats_and_docks(self):
        def plan(viewer):
            left, top, _, bottom = docked = viewer.record["toolbarsOnScreen"][0][0]
            by_grip = double_click(left - 5, (top + bottom) // 2)

            def by_caption(record):
                """It lies above the first button."""
                left, top, _, _ = record["toolbarsOnScreen"][0][0]
                return double_click(left + 10, top - 10)
            is_docked = lambda record: record["toolbarsOnScreen"][0][0] == docked
            return [(by_grip, lambda record: not is_docked(record)), (by_caption, is_docked)]
        self.repeat(plan, "--bars", "classic")

    def test_the_size_of_the_window(self):
        def plan(viewer):
            _, _, right, bottom = viewer.record["statusOnScreen"]
            x, y = right - 5, bottom - 5

            def drag(from_x, from_y, to_x, to_y):
                return [["mousemove", from_x, from_y, "mousedown", 1], ["mousemove", (from_x + to_x) // 2, (from_y + to_y) // 2],
                        ["mousemove", to_x, to_y], ["mouseup", 1]]
            right_end = lambda end: lambda record: abs(record["statusOnScreen"][2] - end) < 3
            return [(drag(x, y, x - 600, y - 300), right_end(right - 600)), (drag(x - 600, y - 300, x, y), right_end(right))]
        self.repeat(plan)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
