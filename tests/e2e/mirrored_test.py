#!/usr/bin/python3
"""The viewer in a language that is written from right to left.

usage: mirrored_test.py BIN_DIR [TEST...]
"""
import os
import sys
import unittest

from PIL import ImageChops

from viewer import Viewer

BIN_DIR = ""


def middle(place):
    return (place[0] + place[2]) // 2, (place[1] + place[3]) // 2


class WrittenFromTheRight(unittest.TestCase):
    def settled(self, viewer):
        viewer.hover(640, 600)
        viewer.wait_for(lambda record: record["map"]["finished"])
        return viewer.settled_look().crop((0, 0, 1280, 800))

    def test_tabs_begin_at_the_right_and_the_list_lies_there(self):
        with Viewer(BIN_DIR, "--lang", "he") as viewer:
            record = viewer.record
            pane = record["paneOnScreen"]
            self.assertGreater(min(pane["list"][0], pane["list"][2]), max(pane["map"][0], pane["map"][2]) - 1)
            self.assertEqual(record["frame"]["ribbon"]["categories"][0]["name"], "מפה")

    def test_a_bar_at_the_side_shows_itself_when_the_row_above_goes(self):
        """The pixels that a moved window takes along are its own."""
        def grip(viewer, index):
            left, top, right, bottom = viewer.record["toolbarsOnScreen"][index][0]
            return right + 6, (top + bottom) // 2

        def strip(viewer):
            look = self.settled(viewer)
            places = viewer.record["toolbarsOnScreen"][0]
            return look.crop((places[0][0], places[0][1], places[-1][2], places[-1][3]))

        with Viewer(BIN_DIR, "--lang", "he", "--skin", "silver", "--bars", "classic") as viewer:
            first = viewer.record["toolbarsOnScreen"]
            status = viewer.record["statusOnScreen"]
            for index, target in ((0, (12, 420)), (1, (700, status[1] - 8)), (2, (700, 420))):
                viewer.drag(*grip(viewer, index), *target)
                viewer.hover(640, 300)
                viewer.wait_for(lambda record: record["toolbarsOnScreen"][index] != first[index])
                if index == 1:
                    before = strip(viewer)
            self.assertIsNone(ImageChops.difference(strip(viewer), before).getbbox())

    def test_the_map_is_not_turned_round(self):
        """West stays left: a drag to the left shows what lies in the east."""
        with Viewer(BIN_DIR, "--lang", "he") as viewer:
            pane = viewer.record["paneOnScreen"]["map"]
            viewer.drag(*middle(pane), middle(pane)[0] - 100, middle(pane)[1])
            viewer.wait_for(lambda record: record["map"]["longitude"] > 10)

    def test_texts_are_not_drawn_the_other_way_round(self):
        """In one language and both directions: a row of the list is the same picture, at the other side."""
        rows = []
        for language, side in (("en", 0), ("he", 1)):
            with Viewer(BIN_DIR, "--lang", "en", "--direction", ("ltr", "rtl")[side]) as viewer:
                look = self.settled(viewer)
                place = viewer.record["paneOnScreen"]["list"]
                left, right = min(place[0], place[2]), max(place[0], place[2])
                # From the ninth row on there are headings and cities, without marks.
                row = look.crop((left, place[1] + 10 * 26, right, place[1] + 20 * 26))
                text = row.convert("L").point(lambda value: 255 if value < 140 else 0)
                box = text.getbbox()
                rows.append(look.crop((left + box[0], place[1] + 260 + box[1], left + box[2], place[1] + 260 + box[3])).convert("L"))
        lines = []
        for row in rows:
            # Each line as the columns that have ink, from its own left end.
            line = row.crop((0, 0, row.width, 12)).point(lambda value: 255 if value < 140 else 0)
            ink = line.crop(line.getbbox())
            lines.append((ink.size, ink.tobytes()))
        self.assertEqual(lines[0], lines[1])

    def test_a_switch_turns_the_frame_round_and_back_as_a_fresh_start_would(self):
        with Viewer(BIN_DIR, "--lang", "he", "--category", "2", "--skin", "silver") as viewer:
            hebrew = self.settled(viewer)
        with Viewer(BIN_DIR, "--lang", "en", "--category", "2", "--skin", "silver") as viewer:
            english = self.settled(viewer)
            viewer.click_command("LanguageHebrew")
            viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][0]["name"] == "מפה")
            switched = self.settled(viewer)
            viewer.click(*self.mirrored_command(viewer, "LanguageEnglish"))
            viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][0]["name"] == "Map")
            back = self.settled(viewer)
        self.assertLess(self.differing(switched, hebrew), 200)  # the place of the pointer in the status bar
        self.assertLess(self.differing(back, english), 200)

    @staticmethod
    def differing(one, other):
        difference = ImageChops.difference(one, other).convert("L")
        return sum(1 for value in difference.getdata() if value)

    @staticmethod
    def mirrored_command(viewer, keyword):
        """In a mirrored bar places count from its right end."""
        wanted = viewer.id_of(keyword)
        left, top, right, bottom = next(e["rect"] for e in viewer.elements() if e["id"] == wanted and e["rect"][2] > e["rect"][0])
        bar = viewer.record["ribbonOnScreen"]
        return max(bar[0], bar[2]) - (left + right) // 2, bar[1] + (top + bottom) // 2


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
