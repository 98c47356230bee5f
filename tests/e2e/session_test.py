#!/usr/bin/python3
"""A whole session with the viewer by real mouse and keys, the record checked after each step.

usage: session_test.py BIN_DIR [TEST...]

There is a test for each combination of language and skin. Steps wait for what they show, never for a time.
"""
import os
import sys
import unittest

from viewer import Viewer, text_of

BIN_DIR = ""
LANGUAGES = ("en", "zh-CN", "he")
SKINS = ("silver", "black")
COMMAND_OF_LANGUAGE = {"en": "LanguageEnglish", "zh-CN": "LanguageChinese", "he": "LanguageHebrew"}
EXTRAS = {"browse": r"cfg\ribbon.xml", "edit": r"cfg\status-edit.xml", "print": r"cfg\status-print.xml"}
ROW = 26  # of the list beside the map
ROW_OF_A_CITY = 10
LONGITUDE_OF_THE_CITY = {"en": -149.9, "zh-CN": 121.47, "he": -149.9}  # names are in the order of their writing
LEAST_STEPS = 60


def first_tab(language):
    """What the language's table calls the first category."""
    return text_of(BIN_DIR, language, "CatMap")


def middle(place):
    return (place[0] + place[2]) // 2, (place[1] + place[3]) // 2


def scale(record):
    return record["map"]["pixelsPerDegree"]


class SessionViewer(Viewer):
    """Finds things in a mirrored frame, too: its bars count from their right end."""

    def on_screen(self, rect, bar):
        left, top, right, bottom = rect
        if self.record["language"] == "he":
            return bar[2] - right, bar[1] + top, bar[2] - left, bar[1] + bottom
        return bar[0] + left, bar[1] + top, bar[0] + right, bar[1] + bottom

    def place_of(self, keyword):
        """Once it can be clicked: what a command can do is shown a moment after what it depends on."""
        wanted = self.id_of(keyword)

        def rects():
            return [e["rect"] for e in self.elements() if e["id"] == wanted and e["enabled"] and e["rect"][2] > e["rect"][0]]

        def can_be_clicked(record):
            self.record = record
            return bool(rects())
        self.wait_for(can_be_clicked)
        return self.on_screen(rects()[0], self.record["ribbonOnScreen"])

    def recorded_place(self, place):
        """Of what the record has moved to the bar's corner without regard to mirroring."""
        bar = self.record["ribbonOnScreen"]
        return self.on_screen((place[0] - bar[0], place[1] - bar[1], place[2] - bar[0], place[3] - bar[1]), bar)

    def tab_middle(self, index):
        return middle(self.recorded_place(self.record["tabsOnScreen"][index]))

    def extra(self, keyword):
        """The middle of an extended element of the status bar."""
        wanted = self.id_of(keyword)
        rect = next(e["rect"] for e in self.record["frame"]["status"]["extended"] if e["id"] == wanted and e["visible"])
        return middle(self.on_screen(rect, self.record["statusOnScreen"]))

    def drop(self, keyword):
        """The arrow of a combo, at its end."""
        left, top, right, bottom = self.place_of(keyword)
        self.click(left + 6 if self.record["language"] == "he" else right - 6, (top + bottom) // 2)
        self.wait_for(lambda record: record["popupOpen"])

    def row(self, number):
        left, top, right, _ = self.record["paneOnScreen"]["list"]
        edge = max(left, right) - 60 if self.record["language"] == "he" else min(left, right) + 60
        return edge, top + number * ROW + ROW // 2

    def map_middle(self):
        return middle(self.record["paneOnScreen"]["map"])

    def toolbar_button(self, keyword):
        wanted = self.id_of(keyword)
        for bar, places in zip(self.record["frame"]["toolbars"], self.record["toolbarsOnScreen"]):
            for button, place in zip(bar["buttons"], places):
                if button.get("id") == wanted:
                    return middle(place)
        raise AssertionError(f"no button {keyword}")


class Session:
    """Does a step, waits until the record shows it, and checks what holds after every step."""

    def __init__(self, test, viewer, language, skin):
        self._test, self._viewer = test, viewer
        self.language, self.skin = language, skin
        self._ids = {}
        self.steps = 0

    def step(self, what, act, check):
        """`check` gets the record afterwards and the one before."""
        before = self._viewer.record
        self.steps += 1
        missing = "not shown yet"

        def holds(record):
            """In a record that is written when all is done; where a window of its own is open none may come."""
            nonlocal missing
            if not (record["idle"] or record["popupOpen"] or "dialog" in record):
                return False
            try:
                if not check(record, before):
                    return False
                self.check_always(record)
            except (AssertionError, LookupError) as error:
                missing = repr(error)
                return False
            return True
        try:
            act()
            self._viewer.wait_for(holds)
        except AssertionError as error:
            raise AssertionError(f"step {self.steps}, {what}: {missing}; {error}") from None

    def check_always(self, record):
        test = self._test
        registry = {entry["keyword"]: entry["id"] for entry in record["frame"]["registry"]}
        test.assertEqual(len(registry), len(record["frame"]["registry"]), "a keyword is there once")
        test.assertEqual(len(set(registry.values())), len(registry), "an id is there once")
        for keyword, number in self._ids.items():
            test.assertEqual(registry[keyword], number, keyword)
        self._ids = registry
        test.assertEqual(record["skin"], self.skin)
        categories = record["frame"]["ribbon"]["categories"]
        test.assertEqual(categories[0]["name"], first_tab(self.language))
        active = [category for category in categories if category["active"]]
        test.assertEqual([category["visible"] for category in active], [True])
        self.check_places(record, active[0])

    def check_places(self, record, active):
        test = self._test
        frame, ribbon, status = record["frameOnScreen"], record["ribbonOnScreen"], record["statusOnScreen"]
        test.assertTrue(frame[0] <= status[0] < status[2] <= frame[2] and status[3] <= frame[3], "the status bar lies inside")
        test.assertGreaterEqual(status[1], record["paneOnScreen"]["map"][3], "below the map")
        test.assertEqual(record["frame"]["status"]["app"], EXTRAS[record["mode"]])
        if record["classicBars"] or record["ribbonMinimized"]:
            return
        width, height = ribbon[2] - ribbon[0], ribbon[3] - ribbon[1]
        for panel in active["panels"]:
            for element in panel["elements"]:
                left, top, right, bottom = element["rect"]
                test.assertTrue(0 <= left <= right <= width and 0 <= top <= bottom <= height, (element, ribbon))


class WholeSession(unittest.TestCase):
    def test_in_english_and_silver(self):
        self.hold("en", "silver")

    def test_in_english_and_black(self):
        self.hold("en", "black")

    def test_in_chinese_and_silver(self):
        self.hold("zh-CN", "silver")

    def test_in_chinese_and_black(self):
        self.hold("zh-CN", "black")

    def test_in_hebrew_and_silver(self):
        self.hold("he", "silver")

    def test_in_hebrew_and_black(self):
        self.hold("he", "black")

    def hold(self, language, skin):
        with SessionViewer(BIN_DIR, "--lang", language, "--skin", skin) as viewer:
            session = Session(self, viewer, language, skin)
            session.step("the start", lambda: None, lambda now, _: now["map"]["finished"])
            for part in (self.look_round, self.list_and_layers, self.settings, self.modes, self.print_preview, self.search_and_options,
                         self.classic_bars, self.window):
                part(session, viewer)
            self.assertGreaterEqual(session.steps, LEAST_STEPS)
            self.assertEqual(viewer.leave(), 0)

    def look_round(self, session, viewer):
        step = session.step
        doubled = lambda now, before: abs(scale(now) - 2 * scale(before)) < 0.01
        halved = lambda now, before: abs(2 * scale(now) - scale(before)) < 0.01
        larger = lambda now, before: scale(now) > scale(before)
        smaller = lambda now, before: scale(now) < scale(before)
        longitude = lambda record: record["map"]["longitude"]
        step("zoom in", lambda: viewer.click_command("ZoomIn"), doubled)
        step("zoom out", lambda: viewer.click_command("ZoomOut"), halved)
        step("zoom in by its key", lambda: viewer.key("ctrl+i"), doubled)
        step("the view before", lambda: viewer.click_command("ZoomPrevious"), halved)
        step("the view after", lambda: viewer.click_command("ZoomNext"), doubled)
        step("zoom out by its key", lambda: viewer.key("ctrl+u"), halved)
        step("the wheel", lambda: viewer.wheel(*viewer.map_middle(), 3), larger)
        x, y = viewer.map_middle()
        step("drag to the west", lambda: viewer.drag(x, y, x - 120, y), lambda now, before: longitude(now) > longitude(before) + 5)
        step("an arrow key", lambda: viewer.key("Left"), lambda now, before: longitude(now) < longitude(before))
        step("plus", lambda: viewer.key("plus"), larger)
        step("minus", lambda: viewer.key("minus"), smaller)
        step("a double click", lambda: viewer.double_click(x, y), larger)
        step("the whole world", lambda: viewer.click_command("ZoomWorld"), smaller)
        step("keep the view", lambda: viewer.key("ctrl+i", "ctrl+b"), doubled)
        step("go away", lambda: viewer.key("ctrl+w"), halved)
        step("go to the kept view", lambda: viewer.key("ctrl+n"), doubled)

        def go_to_place():
            viewer.click_command("PlaceEdit")
            viewer.key("T", "o", "k", "y", "o", "Return")
        step("a place by its name", go_to_place, lambda now, _: abs(longitude(now) - 139.69) < 0.1)
        step("back to the world", lambda: viewer.key("ctrl+w"), smaller)

    def list_and_layers(self, session, viewer):
        step = session.step
        layer = lambda number, is_shown: lambda now, _: now["map"]["layers"][number] is is_shown
        active = lambda number: lambda now, _: now["frame"]["ribbon"]["categories"][number]["active"]
        step("hide a layer in the list", lambda: viewer.click(*viewer.row(1)), layer(0, False))
        step("show it again", lambda: viewer.click(*viewer.row(1)), layer(0, True))
        is_there = lambda now: abs(now["map"]["longitude"] - LONGITUDE_OF_THE_CITY[session.language]) < 0.5
        step("a city in the list", lambda: viewer.click(*viewer.row(ROW_OF_A_CITY)), lambda now, _: is_there(now))
        step("back from there", lambda: viewer.key("ctrl+l"), lambda now, _: not is_there(now))
        step("the layers' tab", lambda: viewer.click(*viewer.tab_middle(1)), active(1))

        def tick():
            viewer.drop("LayersShown")
            viewer.key("space")
        step("untick a layer in the combo", tick, layer(0, False))
        # With the list still open, the next click would only close it.
        is_closed = lambda now: not now["popupOpen"]
        step("tick it again", lambda: viewer.key("space", "Escape"), lambda now, _: now["map"]["layers"][0] and is_closed(now))
        step("hide the graticule", lambda: viewer.key("ctrl+g"), layer(3, False))
        step("show the graticule", lambda: viewer.key("ctrl+g"), layer(3, True))
        step("the night's colours", lambda: viewer.click_command("PaletteNight"), lambda now, _: now["map"]["palette"] == 1)
        step("the natural colours", lambda: viewer.click_command("PaletteNatural"), lambda now, _: now["map"]["palette"] == 0)
        locked = lambda is_locked: lambda now, _: now["map"]["layerStyles"][1]["locked"] is is_locked
        step("lock a layer", lambda: viewer.click_command("LayerLock"), locked(True))
        step("unlock it", lambda: viewer.click_command("LayerLock"), locked(False))

        def switch_light():
            viewer.drop("LabelLights")
            viewer.key("space", "Escape")
        step("a label's light goes out", switch_light, lambda now, _: not now["map"]["labelsLit"][0] and is_closed(now))
        step("and on", switch_light, lambda now, _: now["map"]["labelsLit"][0] and is_closed(now))

    def settings(self, session, viewer):
        step = session.step
        step("the settings' tab", lambda: viewer.click(*viewer.tab_middle(2)),
             lambda now, _: now["frame"]["ribbon"]["categories"][2]["active"])
        skin = session.skin
        session.skin = next(name for name in SKINS if name != skin)
        step("the other skin", lambda: viewer.click_command("SkinSwitch"), lambda now, _: now["skin"] != skin)
        session.skin = skin
        step("the button beside the tabs", lambda: viewer.click(*middle(viewer.recorded_place(viewer.record["skinButtonOnScreen"]))),
             lambda now, _: now["skin"] == skin)
        step("quick access below", lambda: viewer.click_command("QuickAccessBelow"), lambda now, _: now["quickAccessBelow"])
        step("quick access above", lambda: viewer.click_command("QuickAccessBelow"), lambda now, _: not now["quickAccessBelow"])
        place = viewer.record["ribbonOnScreen"]
        is_back = lambda now, _: not now["ribbonMinimized"] and not now["popupOpen"] and now["ribbonOnScreen"] == place
        step("minimise", lambda: viewer.key("ctrl+F1"), lambda now, _: now["ribbonMinimized"])
        step("and back", lambda: viewer.key("ctrl+F1"), is_back)
        step("minimise by a tab", lambda: viewer.double_click(*viewer.tab_middle(2)), lambda now, _: now["ribbonMinimized"])
        step("and back by it", lambda: viewer.double_click(*viewer.tab_middle(2)), is_back)
        own = session.language
        for language in [other for other in LANGUAGES if other != own] + [own]:
            def speaks(now, _, language=language):
                return now["language"] == language and now["frame"]["ribbon"]["categories"][0]["name"] == first_tab(language)
            session.language = language
            step(f"speak {language}", lambda: viewer.click_command(COMMAND_OF_LANGUAGE[language]), speaks)

    def modes(self, session, viewer):
        step = session.step
        mode = lambda name: lambda now, _: now["mode"] == name and now["frame"]["status"]["app"] == EXTRAS[name]
        marks = lambda count: lambda now, _: len(now["map"]["marks"]) == count
        step("edit", lambda: viewer.click(*viewer.tab_middle(3)), mode("edit"))
        step("a mark", lambda: viewer.click_command("MarkAdd"), marks(1))
        step("a mark by the status bar", lambda: viewer.click(*viewer.extra("MarkAdd")), marks(2))
        step("one mark less", lambda: viewer.click_command("MarkUndo"), marks(1))
        step("print", lambda: viewer.click(*viewer.tab_middle(4)), mode("print"))
        step("portrait", lambda: viewer.click_command("PagePortrait"), lambda now, _: now["map"]["page"] == "portrait")
        step("landscape by the status bar", lambda: viewer.click(*viewer.extra("PageLandscape")), lambda now, _: now["map"]["page"] == "landscape")

    def print_preview(self, session, viewer):
        step = session.step
        value = lambda name, check: lambda now, before: check(now["dialog"]["values"][name], before["dialog"]["values"][name])
        step("print preview", lambda: viewer.click_command("PrintPreview"), lambda now, _: now.get("dialog", {}).get("name") == "preview")
        step("the list of marks", lambda: viewer.click(*middle(viewer.record["dialog"]["parts"]["next"]["onScreen"])),
             value("page", lambda now, _: now == 1))
        step("larger", lambda: viewer.key("plus"), value("zoom", lambda now, before: now > before))
        step("the whole page", lambda: viewer.click(*middle(viewer.record["dialog"]["parts"]["whole"]["onScreen"])),
             value("zoom", lambda now, before: now < before))
        step("close the preview", lambda: viewer.key("Escape"), lambda now, _: "dialog" not in now)
        step("back to browsing", lambda: viewer.click(*viewer.tab_middle(5)), lambda now, _: now["mode"] == "browse")

    def search_and_options(self, session, viewer):
        step = session.step
        is_open = lambda now, _: now["search"]["open"]
        is_closed = lambda now, _: not now["search"]["open"]
        step("search", lambda: viewer.key("ctrl+f"), is_open)
        step("write", lambda: viewer.write("zoomin"), lambda now, _: [found["keyword"] for found in now["search"]["found"]][:1] == ["ZoomIn"])
        step("run", lambda: viewer.key("Return"), lambda now, before: is_closed(now, before) and scale(now) > scale(before))
        step("search again", lambda: viewer.key("ctrl+f"), is_open)
        step("and leave it", lambda: viewer.key("Escape"), is_closed)

        step("the application menu", lambda: viewer.click(*middle(viewer.recorded_place(viewer.record["applicationButtonOnScreen"]))),
             lambda now, _: now["popupOpen"])
        step("options", lambda: viewer.key(*["Down"] * 6, "Return"), lambda now, _: now.get("dialog", {}).get("name") == "options")
        step("think better of them", lambda: viewer.key("Escape"), lambda now, _: "dialog" not in now)

    def classic_bars(self, session, viewer):
        step = session.step
        step("menus and toolbars", lambda: viewer.key("ctrl+m"), lambda now, _: now["classicBars"] and len(now["menuBarOnScreen"]) == 5)
        step("a shortcut above them", lambda: viewer.key("ctrl+u"), lambda now, before: scale(now) < scale(before))
        step("a toolbar's button", lambda: viewer.click(*viewer.toolbar_button("ZoomIn")), lambda now, before: scale(now) > scale(before))
        step("a menu by its letters", lambda: viewer.key("alt+z", "o"), lambda now, before: scale(now) < scale(before))
        step("the ribbon again", lambda: viewer.key("ctrl+m"), lambda now, _: not now["classicBars"])

    def window(self, session, viewer):
        step = session.step
        left, _, right, bottom = viewer.record["statusOnScreen"]
        x, y, way = (left + 5, bottom - 5, 1) if session.language == "he" else (right - 5, bottom - 5, -1)
        step("a smaller window", lambda: viewer.drag(x, y, x + way * 200, y - 80),
             lambda now, before: now["statusOnScreen"][3] < before["statusOnScreen"][3] - 40)
        step("read the files again", lambda: viewer.key("ctrl+shift+r", "ctrl+i"), lambda now, before: scale(now) > scale(before))


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
