#!/usr/bin/python3
"""The demo's status bar under a real mouse.

usage: status_test.py BIN_DIR [TEST...]
"""
import sys
import unittest

from viewer import Viewer

BIN_DIR = ""
FILES = {"browse": r"cfg\ribbon.xml", "edit": r"cfg\status-edit.xml", "print": r"cfg\status-print.xml"}
EXTRAS = {"browse": ["PointerPlace", "LayerLight", "ZoomLabel", "ZoomSlider"],
          "edit": ["PointerPlace", "MarkAdd", "MarkUndo", "ZoomLabel", "ZoomSlider"],
          "print": ["PointerPlace", "PagePortrait", "PageLandscape", "ZoomLabel", "ZoomSlider"]}
OVER_THE_MAP = (700, 450)


def shown(record):
    """The extended elements that are set visible, without separators."""
    return [e for e in record["frame"]["status"]["extended"] if e["visible"] and e["class"] != "CMFCRibbonSeparator"]


def keywords(record):
    names = {entry["id"]: entry["keyword"] for entry in record["frame"]["registry"]}
    return [names[element["id"]] for element in shown(record)]


def slider_positions(record):
    """What the synchronised sliders of ribbon and status bar say of their positions."""
    panels = [panel for category in record["frame"]["ribbon"]["categories"] for panel in category["panels"]]
    elements = [element for panel in panels for element in panel["elements"]] + record["frame"]["status"]["extended"]
    return [element["tooltip"] for element in elements if element["class"] == "CMFCRibbonSliderSync"]


class StatusBar(unittest.TestCase):
    def open(self, mode="browse", *arguments):
        return Viewer(BIN_DIR, "--lang", "en", "--mode", mode, *arguments)

    def element(self, viewer, keyword):
        wanted = viewer.id_of(keyword)
        return next(element for element in shown(viewer.record) if element["id"] == wanted)

    def place(self, viewer, keyword):
        """Left, top, right, bottom on the screen."""
        bar_left, bar_top = viewer.record["statusOnScreen"][:2]
        left, top, right, bottom = self.element(viewer, keyword)["rect"]
        return bar_left + left, bar_top + top, bar_left + right, bar_top + bottom

    def click(self, viewer, keyword):
        left, top, right, bottom = self.place(viewer, keyword)
        viewer.click((left + right) // 2, (top + bottom) // 2)

    def test_it_lies_along_the_lower_edge_of_the_window(self):
        with self.open() as viewer:
            ribbon, bar = viewer.record["ribbonOnScreen"], viewer.record["statusOnScreen"]
            self.assertEqual((bar[0], bar[2]), (ribbon[0], ribbon[2]))
            self.assertGreaterEqual(bar[1], viewer.record["paneOnScreen"]["map"][3])

    def test_every_mode_has_the_extras_of_its_row(self):
        for mode, extras in EXTRAS.items():
            with self.open(mode) as viewer:
                self.assertEqual(viewer.record["frame"]["status"]["app"], FILES[mode])
                self.assertEqual(keywords(viewer.record), extras)

    def test_the_extras_change_with_the_mode(self):
        with self.open() as viewer:
            for tab, mode in ((3, "edit"), (4, "print")):
                viewer.click(*viewer.tab_middle(tab))
                viewer.wait_for(lambda record: record["mode"] == mode and keywords(record) == EXTRAS[mode])

    def test_the_prompt_says_what_the_mode_is_for(self):
        prompts = set()
        for mode in EXTRAS:
            with self.open(mode) as viewer:
                prompt = viewer.record["frame"]["status"]["elements"][0]
                self.assertTrue(prompt["text"])
                self.assertGreater(prompt["rect"][2], prompt["rect"][0])
                prompts.add(prompt["text"])
        self.assertEqual(len(prompts), len(EXTRAS))

    def test_extras_lie_apart_inside_the_bar(self):
        for size in ("1280x800", "700x500"):
            with self.open("print", "--size", size) as viewer:
                bar = viewer.record["statusOnScreen"]
                rects = [e["rect"] for e in shown(viewer.record) if e["rect"][2] > e["rect"][0]]
                self.assertEqual(len(rects), len(EXTRAS["print"]))
                for rect, following in zip(rects, rects[1:] + [[bar[2] - bar[0]] * 4]):
                    self.assertGreaterEqual(rect[0], 0)
                    self.assertLessEqual(rect[2], following[0])
                    self.assertTrue(0 <= rect[1] < rect[3] <= bar[3] - bar[1])

    def test_plus_and_minus_of_the_slider_change_the_scale_in_every_mode(self):
        for mode in EXTRAS:
            with self.open(mode) as viewer:
                left, top, right, bottom = self.place(viewer, "ZoomSlider")
                middle = (top + bottom) // 2
                scale = viewer.record["map"]["pixelsPerDegree"]
                text = self.element(viewer, "ZoomLabel")["text"]
                viewer.click(right - 10, middle)
                viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > scale * 1.1)
                self.assertNotEqual(self.element(viewer, "ZoomLabel")["text"], text)
                larger = viewer.record["map"]["pixelsPerDegree"]
                viewer.click(left + 10, middle)
                viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] < larger / 1.1)

    def test_the_sliders_of_status_bar_and_ribbon_move_together(self):
        with self.open() as viewer:
            _, top, right, bottom = self.place(viewer, "ZoomSlider")
            before = slider_positions(viewer.record)
            self.assertEqual(len(before), 5)
            viewer.click(right - 10, (top + bottom) // 2)
            viewer.wait_for(lambda record: slider_positions(record) != before and len(set(slider_positions(record))) == 1)

    def test_the_place_follows_the_pointer_in_every_mode_and_a_click_changes_its_form(self):
        for mode in EXTRAS:
            with self.open(mode) as viewer:
                before = self.element(viewer, "PointerPlace")["text"]
                viewer.hover(*OVER_THE_MAP)
                text = lambda record: next(e["text"] for e in shown(record) if e["id"] == viewer.id_of("PointerPlace"))
                viewer.wait_for(lambda record: text(record) != before)
                self.assertNotIn("\u2032", text(viewer.record))
                self.click(viewer, "PointerPlace")
                viewer.wait_for(lambda record: "\u2032" in text(record))

    def test_the_light_is_that_of_the_chosen_layer(self):
        with self.open() as viewer:
            self.assertTrue(viewer.record["map"]["layerStyles"][1]["lit"])
            self.click(viewer, "LayerLight")
            viewer.wait_for(lambda record: not record["map"]["layerStyles"][1]["lit"])
            self.click(viewer, "LayerLight")
            viewer.wait_for(lambda record: record["map"]["layerStyles"][1]["lit"])

    def test_a_click_on_an_extra_is_its_command(self):
        with self.open("edit") as viewer:
            self.click(viewer, "MarkAdd")
            viewer.wait_for(lambda record: len(record["map"]["marks"]) == 1)
        with self.open("print") as viewer:
            self.click(viewer, "PagePortrait")
            viewer.wait_for(lambda record: record["map"]["page"] == "portrait")

    def test_after_a_language_switch_the_bar_speaks_the_other_language(self):
        with self.open() as viewer:
            prompt = viewer.record["frame"]["status"]["elements"][0]["text"]
            viewer.click(*viewer.tab_middle(2))
            viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][2]["active"])
            viewer.click_command("LanguageChinese")
            viewer.wait_for(lambda record: record["language"] == "zh-CN" and
                            record["frame"]["status"]["elements"][0]["text"] != prompt)
            self.assertEqual(keywords(viewer.record), EXTRAS["browse"])
            _, top, right, bottom = self.place(viewer, "ZoomSlider")
            scale = viewer.record["map"]["pixelsPerDegree"]
            viewer.click(right - 10, (top + bottom) // 2)
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > scale * 1.1)

    def test_the_grip_sizes_the_window(self):
        with self.open("browse", "--size", "900x600") as viewer:
            _, _, right, bottom = viewer.record["statusOnScreen"]
            viewer.drag(right - 6, bottom - 6, right + 94, bottom + 54)
            viewer.wait_for(lambda record: record["statusOnScreen"][2] >= right + 80)


if __name__ == "__main__":
    BIN_DIR = sys.argv[1]
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]], verbosity=2)
