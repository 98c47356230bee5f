"""The skins' pictures as they were rendered.   skin_art_test.py PICTURES [TEST...], PICTURES being a program's pic/skin"""
import os
import sys
import unittest

from pictures import GROUNDS, SCALES, SKINS, TEXT, column, contrast, frames, icon, over, read, row

FOLDER = ""
# Name (black, silver), number of frames, side of one at 100 %, margins left, top, right, bottom at 100 % of what is stretched.
PLATES = ("main", 3), ("btnhilight", 2), ("btnchecked", 2), ("narrowbtnhilight", 2), ("narrowbtnchecked", 2), ("childbtn", 2), \
         ("righthilight", 1), ("rightcheck", 2), ("statusbar", 2), ("statusbarchecked", 2)
STRETCHED = {name: (count, (6, 6, 6, 6)) for name, count in PLATES} | {"tab": (3, (6, 6, 6, 2))}
CHECKED = ("btnchecked", "narrowbtnchecked", "rightcheck", "statusbarchecked")
HOVERED = ("btnhilight", "narrowbtnhilight", "childbtn", "statusbar")
# Pictures of one colour, and which.
FLAT = {
    "black": {"black": [(60, 64, 73)], "captionbg": [(74, 77, 89), (64, 67, 78)], "tabarea": [(50, 52, 62)], "statusbarbg": [(75, 80, 90)]},
    "silver": {"silver": [(255, 255, 255)], "captionbg": [(255, 255, 255), (241, 243, 249)], "tabarea": [(81, 87, 94)],
               "statusbarbg": [(235, 240, 244)]},
}
ARROW = {"black": "paneldown", "silver": "paneldown16"}
SCROLL_ARROWS = ("upArrow", "downArrow", "leftArrow", "rightArrow")
THUMBS = {"vertical": True, "horizon": False}
# A bar of 20 units less the pixel on each side that it leaves free.
SCROLL_WIDTHS = {100: 18, 125: 23, 150: 28, 200: 38}
LONGEST_SIDE = 1024


def grounds_of(name, skin):
    """Where a plate lies."""
    if name.startswith("statusbar"):
        return [GROUNDS[skin]["status bar"]]
    if name.startswith("right"):
        return [GROUNDS[skin]["menu"], GROUNDS[skin]["menu margin"]]
    return [GROUNDS[skin][ground] for ground in ("panel", "title", "menu")]


def each_frame(names=STRETCHED):
    for skin in SKINS:
        for name in names:
            for scale in SCALES:
                for frame in frames(FOLDER, skin, name, STRETCHED[name][0], scale):
                    yield f"{skin} {name} {scale} %", name, scale, frame


class Files(unittest.TestCase):
    def names(self, skin):
        return [*STRETCHED, *FLAT[skin], ARROW[skin], *SCROLL_ARROWS,
                *(thumb + part for thumb in THUMBS for part in ("Normal", "Click"))]

    def test_every_picture_of_both_skins_is_there_at_four_scales_and_no_other(self):
        for skin in SKINS:
            self.assertEqual(len(self.names(skin)), 24)
            expected = {name + ending + ".png" for name in self.names(skin) for ending in ("", ".125", ".150", ".200")}
            self.assertEqual(set(os.listdir(os.path.join(FOLDER, skin))), expected)

    def test_pictures_have_32_bits_and_no_side_that_a_reader_refuses(self):
        for skin in SKINS:
            for name in self.names(skin):
                for scale in SCALES:
                    image = read(FOLDER, skin, name, scale)
                    self.assertEqual(image.mode, "RGBA", f"{skin} {name} {scale}")
                    self.assertLessEqual(max(image.size), LONGEST_SIDE, f"{skin} {name} {scale}")

    def test_frames_stand_one_below_the_other(self):
        sizes = {name: (24, count) for name, (count, _) in STRETCHED.items()}
        for skin in SKINS:
            flat = {name: (16, len(colours)) for name, colours in FLAT[skin].items()}
            for name, (side, count) in (sizes | flat | {ARROW[skin]: (16, 2)}).items():
                for scale in SCALES:
                    side_there = side * scale // 100
                    self.assertEqual(read(FOLDER, skin, name, scale).size, (side_there, side_there * count), f"{skin} {name} {scale}")


class Plates(unittest.TestCase):
    def test_the_stretched_middle_is_the_same_all_along(self):
        for what, name, scale, frame in each_frame():
            left, top, right, bottom = (margin * scale // 100 for margin in STRETCHED[name][1])
            middle_columns = [column(frame, x) for x in range(left, frame.width - right)]
            middle_rows = [row(frame, y) for y in range(top, frame.height - bottom)]
            self.assertEqual(len({tuple(pixels) for pixels in middle_columns}), 1, what)
            self.assertEqual(len({tuple(pixels) for pixels in middle_rows}), 1, what)

    def test_straight_edges_lie_on_pixels_at_every_scale(self):
        for what, name, scale, frame in each_frame():
            for pixels in (row(frame, frame.height // 2), column(frame, frame.width // 2)):
                tones = {pixel for pixel in pixels if pixel[3] != 0}
                # A plate, its hairline where it has one, a tab its line; an edge between pixels would add half tones.
                most = 1 if name in HOVERED + ("main", "righthilight") else 2
                self.assertLessEqual(len(tones), most, f"{what}: {tones}")

    def test_hairlines_are_one_pixel_wide_up_to_150_per_cent_and_two_from_200(self):
        for what, _, scale, frame in each_frame(CHECKED):
            wide = 2 if scale >= 200 else 1
            across = row(frame, frame.height // 2)
            down = [pixel for pixel in column(frame, frame.width // 2) if pixel[3]]
            for pixels in (across, across[::-1], down, down[::-1]):
                self.assertEqual(len(set(pixels[:wide])), 1, what)
                self.assertEqual(len(set(pixels[wide:len(pixels) // 2])), 1, what)
                self.assertGreater(pixels[0][3], pixels[wide][3] + 60, what)

    def test_corners_are_round_by_four_units(self):
        for what, name, scale, frame in each_frame([name for name, _ in PLATES]):
            radius = 4 * scale // 100
            top = next(y for y in range(frame.height) if frame.getpixel((frame.width // 2, y))[3])
            self.assertLess(frame.getpixel((0, top))[3], frame.getpixel((radius, top + radius))[3] / 4, what)
            # From here on nothing is cut off any more.
            self.assertEqual(frame.getpixel((radius, top)), frame.getpixel((frame.width // 2, top)), what)
            self.assertEqual(frame.getpixel((0, top + radius)), frame.getpixel((0, frame.height // 2)), what)

    def test_a_plate_is_the_same_mirrored(self):
        for what, name, _, frame in each_frame():
            for x in range(frame.width // 2):
                here, there = column(frame, x), column(frame, frame.width - 1 - x)
                # The renderer rounds curves to both sides a little differently.
                self.assertLess(max(abs(a[3] - b[3]) for a, b in zip(here, there)), 12, what)


class States(unittest.TestCase):
    def middle(self, frame):
        return frame.getpixel((frame.width // 2, frame.height // 2))

    def test_no_two_frames_of_a_picture_are_alike(self):
        for skin in SKINS:
            for name, (count, _) in STRETCHED.items():
                pictures = {frame.tobytes() for frame in frames(FOLDER, skin, name, count)}
                self.assertEqual(len(pictures), count, f"{skin} {name}")

    def test_hover_is_the_text_colour_at_8_per_cent_and_pressed_at_16(self):
        for skin in SKINS:
            for name in HOVERED:
                strengths = [self.middle(frame) for frame in frames(FOLDER, skin, name, 2)]
                self.assertEqual(strengths, [TEXT[skin] + (20,), TEXT[skin] + (41,)], f"{skin} {name}")

    def test_a_checked_plate_has_an_edge_of_3_to_1_on_every_ground(self):
        for skin in SKINS:
            for name in CHECKED:
                for frame in frames(FOLDER, skin, name, 2):
                    edge = frame.getpixel((0, frame.height // 2))
                    for ground in grounds_of(name, skin):
                        self.assertGreaterEqual(contrast(over(edge, ground), ground), 3, f"{skin} {name} on {ground}")

    def test_checked_is_coloured_and_hover_is_grey(self):
        for skin in SKINS:
            colourful = lambda name: [max(p[:3]) - min(p[:3]) for p in map(self.middle, frames(FOLDER, skin, name, 2))]
            for name in HOVERED:
                self.assertEqual(colourful(name), [0, 0])
            for name in CHECKED:
                self.assertGreater(min(colourful(name)), 100)

    def test_checked_and_hover_differs_from_checked_as_much_as_hover_from_rest(self):
        for skin in SKINS:
            ground = GROUNDS[skin]["panel"]
            checked, both = (over(self.middle(frame), ground) for frame in frames(FOLDER, skin, "btnchecked", 2))
            self.assertGreater(max(abs(a - b) for a, b in zip(checked, both)), 12, skin)

    def test_texts_have_4_5_to_1_on_every_plate(self):
        for skin in SKINS:
            for name in HOVERED + CHECKED + ("righthilight",):
                for frame in frames(FOLDER, skin, name, STRETCHED[name][0]):
                    for ground in grounds_of(name, skin):
                        plate = over(self.middle(frame), ground)
                        self.assertGreaterEqual(contrast(TEXT[skin], plate), 4.5, f"{skin} {name} on {ground}")

    def test_texts_of_menus_have_4_5_to_1_on_the_row_under_the_pointer(self):
        plate = over(self.middle(frames(FOLDER, "black", "righthilight", 1)[0]), GROUNDS["black"]["menu"])
        self.assertGreaterEqual(contrast((217, 223, 251), plate), 4.5)

    def test_white_has_4_5_to_1_on_the_application_button(self):
        for skin in SKINS:
            for frame in frames(FOLDER, skin, "main", 3):
                self.assertGreaterEqual(contrast((255, 255, 255), self.middle(frame)), 4.5, skin)


class Tabs(unittest.TestCase):
    """Under the pointer, active, both."""

    def test_the_text_of_a_tab_under_the_pointer_has_4_5_to_1(self):
        for skin in SKINS:
            plate = over(frames(FOLDER, skin, "tab", 3)[0].getpixel((12, 10)), GROUNDS[skin]["tab row"])
            self.assertGreaterEqual(contrast(TEXT[skin], plate), 4.5, f"{skin}: on {plate}")

    def test_a_tab_under_the_pointer_differs_from_one_at_rest_and_from_the_active_one(self):
        for skin in SKINS:
            ground = GROUNDS[skin]["tab row"]
            hover, active, _ = (over(frame.getpixel((12, 10)), ground) for frame in frames(FOLDER, skin, "tab", 3))
            for other in (ground, active):
                self.assertGreaterEqual(contrast(hover, other), 1.25, f"{skin}: {hover} and {other}")

    def test_a_hovered_tab_leaves_a_gap_and_the_active_one_joins_the_panels(self):
        for scale in SCALES:
            hover, active, both = frames(FOLDER, "silver", "tab", 3, scale)
            self.assertEqual({pixel[3] for pixel in row(hover, hover.height - 1)}, {0})
            self.assertEqual(set(row(active, active.height - 1)), {(255, 255, 255, 255)})
            self.assertEqual({pixel[3] for pixel in row(both, both.height - 1)}, {255})

    def test_the_active_tab_is_marked_by_a_plate_or_a_line_but_not_by_both(self):
        for skin, has_line in (("black", True), ("silver", False)):
            for scale in SCALES:
                active = frames(FOLDER, skin, "tab", 3, scale)[1]
                plate, foot = active.getpixel((active.width // 2, active.height // 2)), active.getpixel((active.width // 2, active.height - 1))
                self.assertEqual(plate[3] == 0, has_line)
                self.assertGreaterEqual(contrast(over(foot, GROUNDS[skin]["tab row"]), GROUNDS[skin]["tab row"]), 3)
                if has_line:
                    self.assertGreaterEqual(contrast(foot, GROUNDS[skin]["panel"]), 3)
                    self.assertEqual(sum(pixel[3] != 0 for pixel in column(active, active.width // 2)), 2 * scale // 100)


class Grounds(unittest.TestCase):
    def test_grounds_are_flat_and_of_the_colours_that_the_managers_give(self):
        for skin in SKINS:
            for name, colours in FLAT[skin].items():
                for scale in SCALES:
                    for frame, colour in zip(frames(FOLDER, skin, name, len(colours), scale), colours, strict=True):
                        self.assertEqual(frame.getcolors(), [(frame.width * frame.height, colour + (255,))], f"{skin} {name}")


class Arrows(unittest.TestCase):
    def darkest(self, image):
        return max(image.getdata(), key=lambda pixel: pixel[3])

    def test_arrows_of_collapsed_panels_have_3_to_1_even_when_disabled(self):
        for skin in SKINS:
            for frame in frames(FOLDER, skin, ARROW[skin], 2):
                for ground in (GROUNDS[skin]["panel"], GROUNDS[skin]["menu"], GROUNDS[skin]["menu margin"]):
                    self.assertGreaterEqual(contrast(over(self.darkest(frame), ground), ground), 3, f"{skin} on {ground}")

    def test_the_four_arrows_of_scroll_bars_are_one_turned_round(self):
        from PIL import Image
        turns = {"leftArrow": Image.ROTATE_90, "downArrow": Image.ROTATE_180, "rightArrow": Image.ROTATE_270}
        for skin in SKINS:
            for scale in SCALES:
                up = read(FOLDER, skin, "upArrow", scale)
                self.assertEqual(up.size, (SCROLL_WIDTHS[scale],) * 2)
                for name, turn in turns.items():
                    turned = up.transpose(turn).getchannel("A").getdata()
                    difference = max(abs(a - b) for a, b in zip(read(FOLDER, skin, name, scale).getchannel("A").getdata(), turned))
                    self.assertLess(difference, 12, f"{skin} {name} {scale}")

    def test_arrows_of_scroll_bars_have_3_to_1(self):
        for skin in SKINS:
            ground = GROUNDS[skin]["status bar"]
            self.assertGreaterEqual(contrast(over(self.darkest(read(FOLDER, skin, "upArrow")), ground), ground), 3)

    def test_the_arrow_of_drop_down_lists_holds_every_size_and_has_3_to_1_where_it_lies(self):
        path = os.path.join(FOLDER, "icon", "16", "down.ico")
        for size in (16, 20, 24, 28, 32, 40, 48, 56, 64):
            arrow = self.darkest(icon(path, size))
            # The buttons of lists in either skin. Under the pointer the black skin's is (51, 64, 73), where one file for both
            # skins cannot reach it: what is dark enough for the one ground is too dark for the other.
            for ground in ((167, 170, 180), (242, 242, 246), (97, 110, 116)):
                self.assertGreaterEqual(contrast(over(arrow, ground), ground), 3)


class Thumbs(unittest.TestCase):
    def upright(self, skin, thumb, part, scale=100):
        from PIL import Image
        image = read(FOLDER, skin, thumb + part, scale)
        return image if THUMBS[thumb] else image.transpose(Image.TRANSPOSE)

    def every(self):
        for skin in SKINS:
            for thumb in THUMBS:
                for part in ("Normal", "Click"):
                    for scale in SCALES:
                        yield f"{skin} {thumb}{part} {scale} %", scale, self.upright(skin, thumb, part, scale)

    def test_only_the_outer_two_rows_differ_so_that_a_cut_picture_is_a_whole_one(self):
        for what, scale, image in self.every():
            self.assertEqual(image.width, SCROLL_WIDTHS[scale], what)
            self.assertEqual(len({tuple(row(image, y)) for y in range(2, image.height - 2)}), 1, what)
            # The renderer rounds curves at the two ends a little differently.
            self.assertLess(max(abs(a[3] - b[3]) for a, b in zip(row(image, 0), row(image, image.height - 1))), 4, what)
            self.assertNotEqual(row(image, 0), row(image, 2), what)

    def test_a_thumb_lies_in_the_middle_with_sharp_sides(self):
        for what, _, image in self.every():
            pixels = row(image, image.height // 2)
            self.assertEqual(pixels, pixels[::-1], what)
            self.assertEqual({pixel[3] for pixel in pixels}, {0, 255}, what)

    def test_a_thumb_is_6_wide_at_rest_and_8_while_it_is_held(self):
        for skin in SKINS:
            for thumb in THUMBS:
                widths = [sum(pixel[3] == 255 for pixel in row(self.upright(skin, thumb, part), 500)) for part in ("Normal", "Click")]
                self.assertEqual(widths, [6, 8])

    def test_thumbs_have_3_to_1_and_are_stronger_while_held(self):
        for skin in SKINS:
            ground = GROUNDS[skin]["status bar"]
            rest, held = (contrast(self.upright(skin, "vertical", part).getpixel((9, 500))[:3], ground) for part in ("Normal", "Click"))
            self.assertGreaterEqual(rest, 3, skin)
            self.assertGreater(held, rest + 1, skin)


if __name__ == "__main__":
    FOLDER = sys.argv.pop(1)
    unittest.main()
