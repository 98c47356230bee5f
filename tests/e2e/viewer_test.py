#!/usr/bin/python3
"""End-to-end tests of the demo: real clicks from outside, judged by its record and by pictures.

usage: viewer_test.py BIN_DIR [TEST...]
"""
import os
import subprocess
import sys
import tempfile
import unittest

from viewer import Viewer

BIN_DIR = ""
MAP_AREA = "800x300+100+350"
MANY_PIXELS = 20000


def changed_pixels(before, after, area):
    """Number of pixels of the area (ImageMagick geometry) that differ."""
    result = subprocess.run(["compare", "-metric", "AE", f"{before}[{area}]", f"{after}[{area}]", "null:"],
                            capture_output=True, text=True)
    return int(float(result.stderr.split()[0]))


class ClickOnARibbonButton(unittest.TestCase):
    def test_zoom_in_doubles_the_scale_and_the_map_changes_on_the_screen(self):
        with Viewer(BIN_DIR) as viewer, tempfile.TemporaryDirectory() as folder:
            before = viewer.picture(os.path.join(folder, "before.png"))
            scale = viewer.record["map"]["pixelsPerDegree"]
            viewer.click_command("ZoomIn")
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] == 2 * scale)
            # The record is written before the map is painted.
            viewer.wait_until(lambda: changed_pixels(before, viewer.picture(os.path.join(folder, "after.png")),
                                                     MAP_AREA) > MANY_PIXELS, "the map looks different")

    def test_the_dump_names_every_configured_command_once(self):
        with Viewer(BIN_DIR) as viewer:
            registry = viewer.record["frame"]["registry"]
            keywords = [entry["keyword"] for entry in registry]
            self.assertEqual(len(keywords), len(set(keywords)))
            self.assertEqual([entry["id"] for entry in registry], sorted(entry["id"] for entry in registry))
            self.assertEqual(viewer.record["frame"]["nextCommandId"], registry[-1]["id"] + 1)

    def test_a_language_switch_rebuilds_the_ribbon_in_the_other_language(self):
        with Viewer(BIN_DIR, "--lang", "zh-CN", "--category", "2") as viewer:
            self.assertEqual(viewer.record["frame"]["ribbon"]["categories"][0]["name"], "地图")
            viewer.click_command("LanguageEnglish")
            viewer.wait_for(lambda record: record["frame"]["ribbon"]["categories"][0]["name"] == "Map")


class LayerCombos(unittest.TestCase):
    """The combos with marks, from the mouse to the map. Layers in the order of the viewer's lists: relief, coast, ..."""

    def open(self, *arguments):
        return Viewer(BIN_DIR, "--lang", "en", "--category", "1", *arguments)

    def test_a_tick_in_the_list_hides_the_layer_and_the_list_stays_open(self):
        with self.open() as viewer:
            viewer.open_menu("LayersShown")
            viewer.key("space")
            viewer.wait_for(lambda record: record["map"]["layers"][:2] == [False, True])
            viewer.key("Down", "space")
            viewer.wait_for(lambda record: record["map"]["layers"][:2] == [False, False])

    def test_a_tick_changes_the_map_at_once(self):
        with self.open() as viewer, tempfile.TemporaryDirectory() as folder:
            before = viewer.picture(os.path.join(folder, "before.png"))
            viewer.open_menu("LayersShown")
            viewer.key("space", "Escape")
            viewer.wait_for(lambda record: not record["map"]["layers"][0])
            viewer.wait_until(lambda: changed_pixels(before, viewer.picture(os.path.join(folder, "after.png")),
                                                     MAP_AREA) > MANY_PIXELS, "the map looks different")

    def test_the_dump_shows_items_and_states(self):
        def bgr(color):
            return color >> 16 & 0xFF | color & 0xFF00 | (color & 0xFF) << 16

        with self.open() as viewer:
            elements = {element["class"]: element for element in viewer.elements()}
            states = {name: [item["state"] for item in element["items"]] for name, element in elements.items() if "items" in element}
            shown = viewer.record["map"]
            self.assertEqual(states["CMFCRibbonCheckComb"], [{"check": check} for check in shown["layers"]])
            self.assertEqual(states["CMFCRibbonMultiCombo"],
                             [{"clr": bgr(style["color"]), "light": style["lit"]} for style in shown["layerStyles"]])
            self.assertEqual(states["CMFCRibbonVesMultiCombo"], [{"light": lit} for lit in shown["labelsLit"]])
            self.assertEqual(elements["CMFCRibbonMultiCombo"]["selected"], 1)
            self.assertIs(elements["CMFCRibbonLabelEx"]["right"], False)

    def test_the_light_of_a_locked_layer_cannot_be_switched(self):
        with self.open() as viewer:
            lit = lambda record: record["map"]["layerStyles"][1]["lit"]
            viewer.open_menu("LayerColors")
            viewer.key("space")
            viewer.wait_for(lambda record: not lit(record))
            viewer.key("Escape")
            viewer.click_command("LayerLock")
            viewer.wait_for(lambda record: record["map"]["layerStyles"][1]["locked"])
            viewer.open_menu("LayerColors")
            viewer.key("space", "Escape")
            viewer.open_menu("LabelLights")
            viewer.key("space")
            viewer.wait_for(lambda record: record["map"]["labelsLit"] == [False, True, True])
            self.assertFalse(lit(viewer.record))

    def test_both_scale_sliders_move_together(self):
        with self.open() as viewer:
            scale = viewer.record["map"]["pixelsPerDegree"]
            left, top, right, bottom = viewer.place_of("ZoomSlider")
            viewer.click(right - (bottom - top) // 2, (top + bottom) // 2)
            viewer.wait_for(lambda record: record["map"]["pixelsPerDegree"] > scale)
            positions = [e["pos"] for e in viewer.elements() if e["id"] == viewer.id_of("ZoomSlider")]
            self.assertEqual(len(positions), 2)
            self.assertEqual(positions[0], positions[1])
            self.assertGreater(positions[0], 0)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
