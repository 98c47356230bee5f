#!/usr/bin/python3
"""The search of commands, by real keys and the mouse.

usage: search_test.py BIN_DIR [TEST...]
"""
import os
import sys
import unittest

from viewer import Viewer

BIN_DIR = ""


class CommandSearch(unittest.TestCase):
    def open(self, *arguments):
        return Viewer(BIN_DIR, "--lang", "en", *arguments)

    def search(self, viewer, text, found):
        """Opens the search by its key and writes; waits until the first ones that it shows have these keywords."""
        viewer.key("ctrl+f")
        viewer.wait_for(lambda record: record["search"]["open"])
        viewer.write(text)
        viewer.wait_for(lambda record: self.keywords(record)[:len(found)] == found)

    @staticmethod
    def keywords(record):
        return [command["keyword"] for command in record["search"]["found"]]

    @staticmethod
    def scale(record):
        return record["map"]["pixelsPerDegree"]

    def test_enter_runs_what_was_found_by_its_name(self):
        with self.open() as viewer:
            before = self.scale(viewer.record)
            self.search(viewer, "zoom in", ["ZoomIn"])
            first = viewer.record["search"]["found"][0]
            self.assertEqual((first["name"], first["place"], first["keys"], first["enabled"]), ("Zoom in", "Map \u203a Zoom", "Ctrl+I", True))
            viewer.key("Return")
            viewer.wait_for(lambda record: self.scale(record) == 2 * before and not record["search"]["open"])
            viewer.key("ctrl+u")  # the keys are the frame's again
            viewer.wait_for(lambda record: self.scale(record) == before)

    def test_a_command_is_found_by_its_keyword_and_by_its_name_in_another_language(self):
        with Viewer(BIN_DIR, "--lang", "zh-CN") as viewer:
            self.search(viewer, "zoomout", ["ZoomOut"])
            viewer.key("Escape")
            viewer.wait_for(lambda record: not record["search"]["open"])
            self.search(viewer, "coastl", ["LayerCoast"])
            self.assertNotEqual(viewer.record["search"]["found"][0]["name"], "Coastlines")
            viewer.key("Return")
            viewer.wait_for(lambda record: not record["map"]["layers"][1])

    def test_the_field_is_whole_where_there_is_room_for_it(self):
        for scale, width, is_whole in (("100", 720, True), ("150", 1200, True), ("150", 900, False)):
            with self.subTest(scale=scale, width=width), self.open("--scale", scale, "--size", f"{width}x700") as viewer:
                left, _, right, _ = viewer.record["searchFieldOnScreen"]
                self.assertEqual(right - left > 200 * int(scale) / 100, is_whole, right - left)
                self.assertGreater(left, viewer.record["tabsOnScreen"][-1][2], "beside the tabs")

    def test_accents_and_letter_case_do_not_matter(self):
        with self.open() as viewer:
            self.search(viewer, "SAO paulo", ["CitySaoPaulo"])

    def test_the_arrow_keys_choose(self):
        with self.open() as viewer:
            self.search(viewer, "zoom", ["ZoomIn", "ZoomOut"])
            before = self.scale(viewer.record)
            viewer.key("Down")
            viewer.wait_for(lambda record: record["search"]["marked"] == 1)
            viewer.key("Up", "Down", "Return")
            viewer.wait_for(lambda record: self.scale(record) == before / 2)

    def test_a_click_on_the_field_opens_it_and_a_click_on_a_row_runs(self):
        with self.open() as viewer:
            left, top, right, bottom = viewer.record["searchFieldOnScreen"]
            viewer.click((left + right) // 2, (top + bottom) // 2)
            viewer.wait_for(lambda record: record["search"]["open"])
            viewer.write("graticule")
            viewer.wait_for(lambda record: self.keywords(record)[:1] == ["LayerGraticule"])
            left, top, right, bottom = viewer.record["search"]["found"][0]["onScreen"]
            viewer.hover((left + right) // 2, (top + bottom) // 2)
            viewer.click((left + right) // 2, (top + bottom) // 2)
            viewer.wait_for(lambda record: not record["map"]["layers"][3] and not record["search"]["open"])

    def test_a_command_that_cannot_be_run_is_shown_and_stays(self):
        with self.open() as viewer:
            self.search(viewer, "previous view", ["ZoomPrevious"])
            self.assertFalse(viewer.record["search"]["found"][0]["enabled"])
            viewer.key("Return", "Down")
            viewer.write("x")
            viewer.wait_for(lambda record: record["search"]["open"] and record["search"]["found"] == [])
            self.assertEqual(viewer.record["search"]["marked"], -1)
            viewer.key("Return")
            viewer.key("Escape")
            viewer.wait_for(lambda record: not record["search"]["open"])

    def test_a_click_elsewhere_closes_it(self):
        with self.open() as viewer:
            self.search(viewer, "zoom", ["ZoomIn"])
            viewer.click(700, 650)
            viewer.wait_for(lambda record: not record["search"]["open"])

    def test_above_menus_it_tells_the_way_through_them(self):
        with self.open("--bars", "classic") as viewer:
            before = self.scale(viewer.record)
            self.search(viewer, "zoom in", ["ZoomIn"])
            self.assertEqual(viewer.record["search"]["found"][0]["place"], "Zoom")
            viewer.key("Return")
            viewer.wait_for(lambda record: self.scale(record) == 2 * before)

    def test_in_a_narrow_window_the_field_is_a_button(self):
        with Viewer(BIN_DIR, "--lang", "en", "--size", "700x600") as viewer:
            left, top, right, bottom = viewer.record["searchFieldOnScreen"]
            self.assertLess(right - left, 40)
            viewer.click((left + right) // 2, (top + bottom) // 2)
            viewer.wait_for(lambda record: record["search"]["open"])


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
