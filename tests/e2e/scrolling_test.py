#!/usr/bin/env python3
"""The viewer's scroll bars and its list of layers and cities, by a real mouse.

   scrolling_test.py BIN_DIR
"""
import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from viewer import Viewer

ARROW = 18
ROW = 26
FIRST_LAYER = 1  # below the heading
LAYERS = 8


class BarsAndList(unittest.TestCase):
    def place(self, viewer, part):
        return viewer.record["paneOnScreen"][part]

    def click_row(self, viewer, row):
        left, top, _, _ = self.place(viewer, "list")
        viewer.click(left + 60, top + row * ROW + ROW // 2)

    def step_up(self, viewer, bar):
        latitude = viewer.record["map"]["latitude"]
        viewer.click(bar[0] + 10, bar[1] + 9)
        viewer.wait_for(lambda record: record["map"]["latitude"] > latitude)

    def test_where_nothing_can_be_scrolled_what_lies_around_the_map_goes_on(self):
        with Viewer(BIN_DIR, "--lang", "en", "--skin", "silver") as viewer:
            viewer.click_command("ZoomWorld")
            across = self.place(viewer, "across")
            strip = (across[0], across[1] + 2, across[2], across[3] - 2)
            around = viewer.settled_look().crop(strip).getcolors()
            self.assertEqual(len(around), 1, "no bar")
            for _ in range(3):
                scale = viewer.record["map"]["pixelsPerDegree"]
                viewer.click_command("ZoomIn")
                viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > scale)
            bar = viewer.settled_look().crop(strip).getcolors()
            self.assertTrue(bar is None or len(bar) > 1, "a bar with its thumb")
            viewer.click_command("ZoomWorld")
            viewer.look_until(lambda look: look.crop(strip).getcolors() == around)
            self.assertEqual(viewer.leave(), 0)

    def test_bars_scroll_the_map_and_the_list_its_rows(self):
        with Viewer(BIN_DIR, "--lang", "en") as viewer:
            with self.subTest("a click in the list ticks a layer"):
                self.click_row(viewer, FIRST_LAYER)
                viewer.wait_for(lambda record: not record["map"]["layers"][0])
                self.click_row(viewer, FIRST_LAYER)
                viewer.wait_for(lambda record: record["map"]["layers"][0])
            with self.subTest("a click on a city goes there"):
                self.click_row(viewer, FIRST_LAYER + LAYERS + 1)  # Anchorage
                viewer.wait_for(lambda record: abs(record["map"]["longitude"] + 149.9) < 0.5)
            with self.subTest("the list's thumb shows later cities"):
                left, top, right, bottom = self.place(viewer, "list")
                x = right - 10
                viewer.drag(x, top + ARROW + 20, x, bottom - 30)
                self.click_row(viewer, 5)
                viewer.wait_for(lambda record: abs(record["map"]["longitude"] + 149.9) > 1)
            viewer.click_command("ZoomWorld")
            viewer.wait_for(lambda record: abs(record["map"]["longitude"]) < 1)
            for _ in range(3):
                scale = viewer.record["map"]["pixelsPerDegree"]
                viewer.click_command("ZoomIn")
                viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > scale)
            across, down = self.place(viewer, "across"), self.place(viewer, "down")
            with self.subTest("an arrow moves the map a step"):
                self.step_up(viewer, down)
            with self.subTest("a held arrow repeats"):
                step = 12 / viewer.record["map"]["pixelsPerDegree"]
                latitude = viewer.record["map"]["latitude"]
                viewer.press(down[0] + 10, down[3] - 9)
                viewer.wait_for(lambda record: record["map"]["latitude"] < latitude - 3.5 * step)
                viewer.release()
            with self.subTest("the thumb drags the map"):
                longitude = viewer.record["map"]["longitude"]
                middle, y = (across[0] + across[2]) // 2, across[1] + 10
                viewer.drag(middle, y, middle - 100, y)
                viewer.wait_for(lambda record: record["map"]["longitude"] < longitude - 20)
            with self.subTest("a click on the track does not page"):
                # An arrow between tells when all that went before has been recorded.
                self.step_up(viewer, down)
                shown = viewer.record["map"]["longitude"]
                viewer.click(across[2] - ARROW - 20, y)
                self.step_up(viewer, down)
                self.assertEqual(viewer.record["map"]["longitude"], shown)
            picture = os.environ.get("BARWRIGHT_PICTURES")
            if picture:
                viewer.hover(across[0] + 9, y)
                viewer.picture(os.path.join(picture, "scrolling.png"))
            self.assertEqual(viewer.leave(), 0)


if __name__ == "__main__":
    BIN_DIR = sys.argv.pop(1)
    unittest.main()
