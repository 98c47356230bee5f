#!/usr/bin/env python3
"""Docking of toolbars by a real mouse.

   docking_test.py BIN_DIR
"""
import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from viewer import Viewer

LEFT, TOP, RIGHT, BOTTOM, FLOATING = 0x1000, 0x2000, 0x4000, 0x8000, 0
KEY = r"HKCU\Software\Barwright docking host"
PLACES = r"\docking_host\Workspace\DockingManager"
FORGET = (("add", KEY, "/f"), ("delete", KEY, "/f"))  # what is not there cannot be deleted


class Host(Viewer):
    PROGRAM = ("docking_host.exe",)

    def bar(self, index):
        return self.record["bars"][index]

    def grip(self, index):
        """A point by which the bar is taken."""
        bar = self.bar(index)
        if bar["side"] == FLOATING:
            left, top, _, bottom = bar["caption"]
            return left + 20, (top + bottom) // 2
        left, top, right, bottom = bar["window"]
        return (left + 3, (top + bottom) // 2) if right - left > bottom - top else ((left + right) // 2, top + 3)

    def point(self, x, y):
        """A point of the frame's client area on the screen; from the other end below zero."""
        left, top, right, bottom = self.record["client"]
        return left + x if x >= 0 else right + x, top + y if y >= 0 else bottom + y

    def move(self, x, y):
        self._xdotool("mousemove", x, y, "sleep", 0.1)

    def pause(self, seconds):
        self._xdotool("sleep", seconds)

    def take_to(self, index, x, y):
        self.drag(*self.grip(index), x, y)

    def wait_for_side(self, index, side):
        return self.wait_for(lambda record: record["bars"][index]["side"] == side)


def apart(first, second):
    return first[2] <= second[0] or second[2] <= first[0] or first[3] <= second[1] or second[3] <= first[1]


class Docking(unittest.TestCase):
    def host(self):
        return Host(BIN_DIR, registry=FORGET)

    def check_apart(self, host):
        bars = [bar["window"] for bar in host.record["bars"]]
        for index, first in enumerate(bars):
            for second in bars[index + 1:]:
                self.assertTrue(apart(first, second), f"{first} lies on {second}")

    def test_a_bar_is_dragged_within_its_row_to_the_other_sides_off_and_back(self):
        with self.host() as host:
            with self.subTest("behind its neighbour"):
                before = host.bar(1)["window"]
                x, y = host.grip(0)
                host.take_to(0, x + (before[2] - before[0]) + 20, y)
                host.wait_for(lambda record: record["bars"][0]["window"][0] > record["bars"][1]["window"][0])
                self.check_apart(host)
            for name, side, x, y in (("left", LEFT, 4, 200), ("right", RIGHT, -4, 200), ("bottom", BOTTOM, 300, -4)):
                with self.subTest(name):
                    host.take_to(0, *host.point(x, y))
                    host.wait_for_side(0, side)
                    self.check_apart(host)
            with self.subTest("off"):
                host.take_to(0, *host.point(300, 200))
                host.wait_for_side(0, FLOATING)
            with self.subTest("back to the top, under the others"):
                x, _ = host.point(200, 0)
                host.take_to(0, x, host.bar(1)["window"][3] + 6)
                host.wait_for_side(0, TOP)
                self.assertGreaterEqual(host.bar(0)["window"][1], host.bar(1)["window"][3])
                self.check_apart(host)

    def test_escape_puts_a_dragged_bar_back(self):
        with self.host() as host:
            before = host.bar(1)["window"]
            host.press(*host.grip(1))
            x, y = host.point(300, 250)
            for step in range(4):
                host.move(x + step, y + step)
            host.wait_for_side(1, FLOATING)
            host.key("Escape")
            host.wait_for_side(1, TOP)
            host.release()
            self.assertEqual(host.bar(1)["window"], before)

    def test_a_double_click_floats_a_bar_and_docks_it_where_it_was(self):
        with self.host() as host:
            before = host.bar(1)["window"]
            host.double_click(*host.grip(1))
            host.wait_for_side(1, FLOATING)
            host.double_click(*host.grip(1))
            host.wait_for_side(1, TOP)
            self.assertEqual(host.bar(1)["window"], before)

    def test_a_floating_bar_sends_its_commands_and_breaks_into_rows(self):
        with self.host() as host:
            host.take_to(2, *host.point(300, 200))
            host.wait_for_side(2, FLOATING)
            left, top, right, bottom = host.bar(2)["window"]
            host.click(left + (right - left) * 5 // 16, (top + bottom) // 2)
            host.wait_for(lambda record: record["command"] == 3003)
            host.drag(right + 1, (top + bottom) // 2, left + (right - left) // 2, (top + bottom) // 2)
            host.wait_for(lambda record: record["bars"][2]["window"][3] - record["bars"][2]["window"][1] > 3 * (bottom - top) // 2)

    def test_a_narrow_window_shows_the_rest_in_a_menu(self):
        with self.host() as host:
            left, top, right, bottom = host.record["client"]
            border = right + 2
            host.drag(border, (top + bottom) // 2, left + 296, (top + bottom) // 2)
            record = host.wait_for(lambda record: record["client"][2] - record["client"][0] <= 310 and
                                   any(bar["more"][2] > bar["more"][0] for bar in record["bars"]))
            more = next(bar["more"] for bar in record["bars"] if bar["more"][2] > bar["more"][0])
            host.click((more[0] + more[2]) // 2, (more[1] + more[3]) // 2)
            host.pause(0.5)
            host.key("Down", "Return")
            host.wait_for(lambda record: record["command"] > 3001)

    def test_the_layout_comes_back_at_the_next_start(self):
        with self.host() as host:
            host.take_to(0, *host.point(4, 200))
            host.wait_for_side(0, LEFT)
            host.take_to(1, *host.point(300, 200))
            host.wait_for_side(1, FLOATING)
            kept = host.record["bars"]
            self.assertEqual(host.leave(), 0)
        with Host(BIN_DIR) as host:
            host.wait_for(lambda record: [bar["window"] for bar in record["bars"]] == [bar["window"] for bar in kept])
            self.assertEqual([bar["side"] for bar in host.record["bars"]], [LEFT, FLOATING, TOP])

    def test_maximised_and_restored_the_bars_keep_to_their_edges(self):
        with self.host() as host:
            host.take_to(0, *host.point(300, -4))
            host.wait_for_side(0, BOTTOM)
            before = host.record
            left, top, right, _ = before["client"]
            host.double_click((left + right) // 2, top - 12)
            record = host.wait_for(lambda record: record["client"][2] - record["client"][0] > 1300 and
                                   record["bars"][0]["window"][3] == record["client"][3])
            self.assertEqual([bar["side"] for bar in record["bars"]], [BOTTOM, TOP, TOP])
            self.assertEqual(record["bars"][0]["window"][0] - record["client"][0], before["bars"][0]["window"][0] - left)
            self.assertEqual(record["bars"][1]["window"][1], record["client"][1])
            self.check_apart(host)
            left, top, right, _ = record["client"]
            host.double_click((left + right) // 2, top - 12)
            host.wait_for(lambda record: record == before)

    def test_a_damaged_layout_leaves_the_programs_own(self):
        with self.host() as host:
            own = host.record["bars"]
            host.take_to(0, *host.point(4, 200))
            host.wait_for_side(0, LEFT)
            self.assertEqual(host.leave(), 0)
        damage = ("add", KEY + PLACES, "/v", "Places", "/t", "REG_BINARY", "/d", "0102030405", "/f")
        with Host(BIN_DIR, registry=(damage,)) as host:
            host.wait_for(lambda record: [bar["side"] for bar in record["bars"]] == [TOP, TOP, TOP])
            self.assertEqual(host.record["bars"], own)


if __name__ == "__main__":
    BIN_DIR = sys.argv.pop(1)
    unittest.main()
