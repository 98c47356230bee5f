#!/usr/bin/python3
"""The viewer is asked to close by a message, as another program or the system does it, whatever is open over its window.

usage: leaving_test.py BIN_DIR [TEST...]
"""
import json
import os
import subprocess
import sys
import tempfile
import unittest

from viewer import ROOT, Viewer, text_of

BIN_DIR = ""


class LeavingViewer(Viewer):
    def __init__(self, *arguments):
        super().__init__(BIN_DIR, "--lang", "en", "--skin", "silver", *arguments)

    def ask_to_close(self, *how):
        subprocess.run([os.path.join(ROOT, "scripts", "wine-run"), os.path.join(BIN_DIR, "close_window.exe"), text_of(BIN_DIR, "en", "ViewerTitle"), *how],
                       env=self.environment, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def open_dialog(self, name, *keys):
        self.key(*keys)
        self.wait_for(lambda record: record.get("dialog", {}).get("name") == name)

    def find_command(self, text):
        self.key("ctrl+f")
        self.wait_for(lambda record: record["search"]["open"])
        self.write(text)
        self.wait_for(lambda record: record["search"]["found"])

    def wait_for_popup(self):
        self.wait_for(lambda record: record["popupOpen"])

    def wait_for_window(self, title):
        self.wait_until(lambda: self.windows(title), f"{title} is shown")


class Leaving(unittest.TestCase):
    """What is open is answered as its close button does it, and then the viewer leaves as after its own command."""

    def leaves(self, show, *arguments, how=()):
        with LeavingViewer(*arguments) as viewer:
            show(viewer)
            viewer.ask_to_close(*how)
            self.assertEqual(viewer.wait_for_end(), 0)
            self.assertNotIn("dialog", viewer.last_record(), "it was answered before the window went")

    def test_with_nothing_open_it_leaves(self):
        self.leaves(lambda viewer: None)

    def test_with_nothing_open_it_leaves_at_the_end_of_the_session(self):
        self.leaves(lambda viewer: None, how=["session"])

    def test_at_the_end_of_the_session_a_message_over_the_print_preview_is_answered_first(self):
        def show(viewer):
            viewer.open_dialog("preview", "ctrl+shift+v")
            viewer.open_dialog("message", "ctrl+p")
        self.leaves(show, "--mode", "print", how=["session"])

    def test_a_message_is_answered_first(self):
        self.leaves(lambda viewer: viewer.open_dialog("message", "F1"))

    def test_the_options_are_cancelled_first(self):
        self.leaves(lambda viewer: viewer.open_dialog("options", "alt+s", "o"))

    def test_an_open_list_of_the_options_is_closed_first(self):
        def show(viewer):
            viewer.open_dialog("options", "alt+s", "o")
            viewer.key("alt+Down")
        self.leaves(show)

    def test_the_words_about_the_program_are_closed_first(self):
        self.leaves(lambda viewer: viewer.open_dialog("about", "ctrl+f", *"about", "Return"))

    def test_the_print_preview_is_closed_first(self):
        self.leaves(lambda viewer: viewer.open_dialog("preview", "ctrl+shift+v"))

    def test_a_message_over_the_print_preview_is_answered_and_both_are_closed_first(self):
        def show(viewer):
            viewer.open_dialog("preview", "ctrl+shift+v")
            viewer.open_dialog("message", "ctrl+p")
        self.leaves(show, "--mode", "print")

    def test_a_dialog_of_the_system_is_cancelled_first(self):
        def show(viewer):
            viewer.key("ctrl+o")
            viewer.wait_for_window("Open")
        self.leaves(show)

    def test_the_customize_dialog_goes_with_the_window(self):
        def show(viewer):
            viewer.find_command("customize")
            viewer.key("Return")
            viewer.wait_for_window("Customize")
        self.leaves(show)

    def test_the_search_goes_with_the_window(self):
        self.leaves(lambda viewer: viewer.find_command("zoom"))

    def test_the_application_menu_goes_with_the_window(self):
        def show(viewer):
            left, top, right, bottom = viewer.record["applicationButtonOnScreen"]
            viewer.click((left + right) // 2, (top + bottom) // 2)
            viewer.wait_for_popup()
        self.leaves(show)

    def test_the_quick_access_menu_goes_with_the_window(self):
        def show(viewer):
            viewer.open_quick_access_menu()
            viewer.wait_for_popup()
        self.leaves(show)

    def test_the_menu_of_a_button_goes_with_the_window(self):
        def show(viewer):
            viewer.open_menu("PlaceCities")
            viewer.wait_for_popup()
        self.leaves(show)

    def test_the_list_of_a_combo_goes_with_the_window(self):
        def show(viewer):
            left, top, right, bottom = viewer.place_of("LayersShown")
            viewer.click(right - 6, (top + bottom) // 2)
            viewer.wait_for_popup()
        self.leaves(show, "--category", "1")

    def test_the_menu_of_the_right_button_goes_with_the_window(self):
        def show(viewer):
            viewer.right_click_command("ZoomIn")
            viewer.wait_for_popup()
        self.leaves(show)

    def test_a_menu_of_the_menu_bar_goes_with_the_window(self):
        def show(viewer):
            viewer.key("alt+z")
            viewer.wait_for_popup()
        self.leaves(show, "--bars", "classic")

    def test_key_tips_go_with_the_window(self):
        self.leaves(lambda viewer: viewer.key("F10"))

    def test_the_menu_of_the_window_goes_with_it(self):
        def show(viewer):
            viewer.key("alt+space")
            viewer.act("sleep", 0.5)
        self.leaves(show)

    def test_a_drag_of_the_map_ends_with_the_window(self):
        def show(viewer):
            viewer.press(640, 500)
            viewer.move(600, 480)
        self.leaves(show)

    def test_a_drag_of_a_toolbar_ends_with_the_window(self):
        def show(viewer):
            left, top, _, bottom = viewer.record["toolbarsOnScreen"][0][0]
            viewer.press(left - 5, (top + bottom) // 2)
            viewer.move(left + 200, bottom + 200)
            viewer.move(left + 210, bottom + 210)
        self.leaves(show, "--bars", "classic")


class Staying(unittest.TestCase):
    """What random input needs: nothing that is done in the viewer closes it, and its records may be fewer."""

    def test_what_closes_it_otherwise_leaves_it_as_it_is(self):
        with LeavingViewer("--stay") as viewer:
            for close in (lambda: viewer.key("alt+F4"), viewer.ask_to_close):
                before = viewer.record["map"]["pixelsPerDegree"]
                close()
                viewer.key("ctrl+i")
                viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > before)

    def test_a_message_that_waits_is_answered_all_the_same(self):
        with LeavingViewer("--stay") as viewer:
            viewer.open_dialog("message", "F1")
            viewer.ask_to_close()
            viewer.wait_for(lambda record: "dialog" not in record)

    def test_the_last_state_is_recorded_when_the_pause_has_passed(self):
        with LeavingViewer("--record-pause", 1500) as viewer:
            before = viewer.record["map"]["pixelsPerDegree"]
            viewer.act("key", "ctrl+i", "ctrl+i")  # within one pause
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > 3 * before and record["map"]["finished"])

    def test_it_says_what_closed_it(self):
        with tempfile.TemporaryDirectory() as notes:
            watch = os.path.join(notes, "watch.txt")
            with LeavingViewer("--watch", watch) as viewer:
                self.assertEqual(viewer.leave(), 0)
            with open(watch, encoding="utf-8") as file:
                last = json.loads(file.readlines()[-1])
        alt_and_f4 = (0x0104, 0x73)
        self.assertIn(alt_and_f4, [(message["message"], message["wParam"]) for message in last["left"]])


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
