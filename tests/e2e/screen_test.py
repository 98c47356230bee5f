#!/usr/bin/python3
"""What is seen of the viewer between an input and its last effect: pictures of the screen, taken in a row.

usage: screen_test.py BIN_DIR [TEST...]
"""
import os
import re
import sys
import time
import unittest

from PIL import ImageChops

from viewer import Viewer

BIN_DIR = ""


def keep(look, name):
    """For people to look at, when they ask for it."""
    folder = os.environ.get("BARWRIGHT_PICTURES")
    if folder:
        look.save(os.path.join(folder, name + ".png"))


class LanguageSwitch(unittest.TestCase):
    """The ribbon is seen as it was and as it is afterwards, and in no state between."""
    # The panel of the choice is under the pointer and shows it at once, before the ribbon is built anew.
    CHOICES = ("LanguageEnglish", "LanguageChinese")

    def panels(self, viewer, look, first):
        """The look of the panels behind the first one."""
        _, _, right, bottom = viewer.record["ribbonOnScreen"]
        return look.crop((first, viewer.record["tabsOnScreen"][0][3] + 4, right, bottom - 4))

    def test_only_the_old_and_the_new_ribbon_are_seen(self):
        with Viewer(BIN_DIR, "--lang", "en", "--category", "2") as viewer:
            ends = [viewer.place_of(keyword)[2] for keyword in self.CHOICES]
            viewer.press_command("LanguageChinese")
            before = viewer.settled_look()
            viewer.release()
            end = time.monotonic() + 6
            looks = viewer.look_until(lambda look: time.monotonic() > end)
            viewer.wait_for(lambda record: record["language"] == "zh-CN"
                            and record["frame"]["ribbon"]["categories"][0]["name"] == "地图")
            first = max(ends + [viewer.place_of(keyword)[2] for keyword in self.CHOICES]) + 12
            after = viewer.settled_look()
            old, new = self.panels(viewer, before, first), self.panels(viewer, after, first)
            self.assertIsNotNone(ImageChops.difference(old, new).getbbox(), "the new ribbon is another one")
            neither = []
            for number, look in enumerate(looks):
                seen = self.panels(viewer, look, first)
                if ImageChops.difference(seen, old).getbbox() and ImageChops.difference(seen, new).getbbox():
                    neither.append((number, ImageChops.difference(seen, new).getbbox()))
                    keep(seen, f"neither-{number}")
            self.assertEqual(neither, [], f"of {len(looks)} looks that differ")


class SkinSwitch(unittest.TestCase):
    """The frame is seen in the skin before and in the skin after, and in no state between."""

    def parts(self, viewer):
        """What the switch repaints, one window after the other; beside it the picture of the map is drawn anew, which
        takes its time in either skin, and the skin button follows the pointer."""
        left, _, right, bottom = viewer.record["ribbonOnScreen"]
        list_left, list_top, list_right, list_bottom = viewer.record["paneOnScreen"]["list"]
        button_left, button_top, _, button_bottom = viewer.record["skinButtonOnScreen"]
        _, status_top, _, status_bottom = viewer.record["statusOnScreen"]
        return {"tabs": (left, button_top, button_left - 8, button_bottom), "panels": (left, button_bottom + 8, right, bottom - 2),
                "list": (list_left, list_top, list_right, list_bottom), "status bar": (left, status_top + 2, left + 100, status_bottom)}

    def test_only_the_old_and_the_new_skin_are_seen(self):
        for first, second in (("silver", "black"), ("black", "silver")):
            with self.subTest(to=second), Viewer(BIN_DIR, "--lang", "en", "--skin", first) as viewer:
                self.switch(viewer, second)

    def switch(self, viewer, second):
        viewer.wait_for(lambda record: record["map"]["finished"])
        left, top, right, bottom = viewer.record["skinButtonOnScreen"]
        viewer.press((left + right) // 2, (top + bottom) // 2)
        parts = self.parts(viewer)
        before = viewer.settled_look()
        viewer.act("mouseup", 1, "mousemove", 640, 500)  # away, before the tooltip comes
        end = time.monotonic() + 4
        looks = viewer.look_until(lambda look: time.monotonic() > end)
        viewer.wait_for(lambda record: record["skin"] == second and record["map"]["finished"])
        after = viewer.settled_look()
        self.assertEqual(self.parts(viewer), parts, "nothing moves between the skins")
        mixed = []
        for number, look in enumerate(looks):
            state = {}
            for name, box in parts.items():
                seen, old, new = (picture.crop(box).tobytes() for picture in (look, before, after))
                self.assertNotEqual(old, new, name)
                state[name] = "old" if seen == old else "new" if seen == new else "neither"
            if set(state.values()) not in ({"old"}, {"new"}):
                mixed.append((number, state))
                keep(look, f"to-{second}-{number}")
        self.assertEqual(mixed, [], f"of {len(looks)} looks that differ")


def longest_black(look, box):
    """The longest run of black pixels in a row of the box; every fourth row is looked at."""
    longest = 0
    area = look.crop(box)
    for y in range(0, area.height, 4):
        row = area.crop((0, y, area.width, y + 1)).tobytes()
        longest = max([longest] + [len(run) // 3 for run in re.findall(rb"(?:\x00\x00\x00){4,}", row)])
    return longest


class MapWhileItChanges(unittest.TestCase):
    """New area of the map is never black: its old picture stands in for it, or its ground."""
    # Letters and rulers have no longer strokes.
    ALLOWED = 30

    def below_the_ribbon(self, viewer, look):
        left, _, right, bottom = viewer.record["ribbonOnScreen"]
        return left + 2, bottom + 2, look.width, look.height

    def expect_no_black(self, viewer, looks):
        self.assertGreater(len(looks), 2, "the map was seen while it changed")
        black = [longest_black(look, self.below_the_ribbon(viewer, look)) for look in looks]
        keep(looks[black.index(max(black))], "blackest")
        self.assertLess(max(black), self.ALLOWED, black)

    def begin(self, viewer):
        viewer.wait_for(lambda record: record["map"]["finished"])
        look = viewer.settled_look()
        self.assertLess(longest_black(look, self.below_the_ribbon(viewer, look)), self.ALLOWED)

    def test_no_area_is_black_while_the_wheel_zooms_out_and_in(self):
        with Viewer(BIN_DIR, "--lang", "en") as viewer:
            self.begin(viewer)
            looks = []
            for steps in (-3, 5):
                viewer.wheel(640, 500, steps)
                end = time.monotonic() + 2
                looks += viewer.look_until(lambda look: time.monotonic() > end)
            self.expect_no_black(viewer, looks)

    def test_no_area_is_black_while_the_window_grows(self):
        with Viewer(BIN_DIR, "--lang", "en", "--size", "900x600") as viewer:
            self.begin(viewer)
            viewer.press(898, 598)
            looks = []
            for step in range(1, 25):
                viewer.move(898 + 18 * step, 598 + 11 * step)
                looks.append(viewer.look())
            viewer.release()
            looks += viewer.look_until(lambda look: look.getpixel((1250, 800)) != (255, 255, 255))
            looks.append(viewer.settled_look())
            self.expect_no_black(viewer, looks)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
