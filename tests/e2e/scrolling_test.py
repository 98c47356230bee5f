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

    def test_a_map_that_is_seen_whole_has_the_room_of_its_bars(self):
        with Viewer(BIN_DIR, "--lang", "en") as viewer:
            viewer.click_command("ZoomWorld")
            whole = viewer.wait_for(lambda record: record["paneOnScreen"]["map"][3] == record["paneOnScreen"]["list"][3])
            right, bottom = whole["paneOnScreen"]["map"][2:]
            viewer.click_command("ZoomIn")
            viewer.click_command("ZoomIn")
            part = viewer.wait_for(lambda record: record["paneOnScreen"]["map"][3] < bottom)
            self.assertEqual(part["paneOnScreen"]["down"][2], right)
            self.assertEqual(part["paneOnScreen"]["across"][3], bottom)
            viewer.click_command("ZoomWorld")
            viewer.wait_for(lambda record: record["paneOnScreen"]["map"] == whole["paneOnScreen"]["map"])
            self.assertEqual(viewer.leave(), 0)

    def test_the_first_start_shows_the_whole_map_without_bars(self):
        for size in ("1280x720", "1000x560"):
            with self.subTest(size), Viewer(BIN_DIR, "--lang", "en", "--size", size) as viewer:
                left, top, right, bottom = self.place(viewer, "map")
                self.assertEqual(bottom, self.place(viewer, "list")[3])
                self.assertEqual(right, viewer.record["statusOnScreen"][2])
                self.assertEqual(bottom, viewer.record["statusOnScreen"][1])
                self.assertAlmostEqual(viewer.record["map"]["pixelsPerDegree"], min((right - left) / 360, (bottom - top) / 180))
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
