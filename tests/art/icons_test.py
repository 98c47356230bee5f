"""The demo's icons as they were rendered.   icons_test.py BIN_DIR [TEST...]"""
import itertools
import os
import sys
import unittest
import xml.etree.ElementTree as xml

from PIL import Image

from pictures import GROUNDS, contrast, frames, icon, over

BIN = ""
SIZES = (16, 20, 24, 28, 32, 40, 48, 56, 64)
# Set of icons to the skin that takes it.
SETS = {"modle": "silver", "modle_0": "black"}
# Signs of several commands that do the same with different things.
SHARED_SIGNS = {
    "city": "goes to a city",
    "save": "saves a picture: of the map, of a page",
    "copy": "copies a picture: of the map, of a page",
    "copy-place": "copies co-ordinates: of the map's middle, of the marks",
}


def path_of(icon_set, folder, name):
    return os.path.join(BIN, "pic", "skin", "icon", icon_set, folder, name + ".ico")


def names():
    return sorted(file.removesuffix(".ico") for file in os.listdir(os.path.dirname(path_of("modle", "16", "x"))))


def every_picture(sizes=SIZES):
    for icon_set, name, size in itertools.product(SETS, names(), sizes):
        yield f"{icon_set} {name} {size}", icon_set, icon(path_of(icon_set, "16", name), size)


def configured():
    """Each command that the ribbon file configures with its icon's name."""
    for element in xml.parse(os.path.join(BIN, "cfg", "ribbon.xml")).iter():
        if element.get("PICPATH"):
            picture = element.get("PICPATH").replace("\\", "/")
            yield element.get("KEYWORD"), (element.get("CMD"), element.get("PARAM")), os.path.basename(picture).removesuffix(".ico")


class IconFiles(unittest.TestCase):
    def test_every_icon_of_the_ribbon_is_there_in_both_sets_and_folders(self):
        for keyword, _, name in configured():
            for icon_set, folder in itertools.product(SETS, ("16", "32")):
                self.assertTrue(os.path.exists(path_of(icon_set, folder, name)), f"{keyword}: {icon_set}/{folder}/{name}")

    def test_every_file_holds_every_size_so_that_none_is_scaled(self):
        for icon_set, folder, name in itertools.product(SETS, ("16", "32"), names()):
            with Image.open(path_of(icon_set, folder, name)) as image:
                self.assertEqual(image.info["sizes"], {(size, size) for size in SIZES}, name)

    def test_both_sets_are_one_family_of_shapes(self):
        for name, size in itertools.product(names(), SIZES):
            dark, light = (icon(path_of(icon_set, "16", name), size).getchannel("A") for icon_set in SETS)
            self.assertEqual(dark.tobytes(), light.tobytes(), f"{name} {size}")

    def test_each_command_has_a_sign_of_its_own(self):
        commands = {}
        for _, command, name in configured():
            commands.setdefault(name, set()).add(command)
        shared = {name: used for name, used in commands.items() if len(used) > 1 and name not in SHARED_SIGNS}
        self.assertEqual(shared, {})

    def test_no_two_drawings_are_alike(self):
        for size in (16, 32):
            pictures = {}
            for name in names():
                pictures.setdefault(icon(path_of("modle", "16", name), size).tobytes(), []).append(name)
            self.assertEqual([alike for alike in pictures.values() if len(alike) > 1], [])


def seen(image):
    """The box of what is seen: less than a fifth of a pixel's strength is a stroke's round end, not a part of the sign."""
    return image.getchannel("A").point(lambda alpha: 255 if alpha > 51 else 0).getbbox()


def sharpness(image):
    """The share of pixels that are wholly painted among all that a stroke touches."""
    alphas = [alpha for alpha in image.getchannel("A").getdata() if alpha]
    return sum(alpha > 230 for alpha in alphas) / len(alphas)


class IconPixels(unittest.TestCase):
    def test_a_pixel_of_ground_stays_on_each_side(self):
        for what, _, image in every_picture():
            box = seen(image)
            self.assertGreaterEqual(min(box[0], box[1], image.width - box[2], image.height - box[3]), 1, f"{what} {box}")

    def test_signs_fill_their_pictures(self):
        for what, _, image in every_picture():
            box = seen(image)
            self.assertGreaterEqual(max(box[2] - box[0], box[3] - box[1]), image.width * 0.4, f"{what} {box}")

    def test_signs_lie_in_the_middle(self):
        for what, _, image in every_picture():
            box = seen(image)
            # A sign whose middle stroke is one pixel wide lies half a pixel beside the middle of an even picture.
            most = image.width / 8
            self.assertLessEqual(abs(box[0] - (image.width - box[2])), most, f"{what} {box}")
            if " name-" not in what:  # letters of three sizes stand on one line
                self.assertLessEqual(abs(box[1] - (image.height - box[3])), most, f"{what} {box}")

    def test_the_land_of_regions_has_sharp_edges_in_small_pictures(self):
        for name, size in itertools.product((name for name in names() if name.startswith("region-")), (16, 20, 24)):
            self.assertGreaterEqual(sharpness(icon(path_of("modle", "16", name), size)), 0.6, f"{name} {size}")

    def test_pictures_of_every_size_are_sharper_than_scaled_ones(self):
        for size, larger in ((16, 20), (20, 24), (24, 32), (28, 32), (40, 48), (48, 56)):
            drawn = [sharpness(icon(path_of("modle", "16", name), size)) for name in names()]
            scaled = [sharpness(icon(path_of("modle", "16", name), larger).resize((size, size), Image.BICUBIC)) for name in names()]
            self.assertGreater(sum(drawn), 1.35 * sum(scaled), size)


class IconContrast(unittest.TestCase):
    """3:1 of every fully painted pixel on every ground, in every state that a plate shows."""

    def grounds(self, skin):
        plain = [GROUNDS[skin][name] for name in ("panel", "title", "menu", "menu margin", "status bar")]
        yield from plain
        plates = [plate.getpixel((12, 12)) for name in ("btnhilight", "btnchecked")
                  for plate in frames(os.path.join(BIN, "pic", "skin"), skin, name, 2)]
        for plate, ground in itertools.product(plates, (plain[0], plain[2])):
            yield over(plate, ground)

    def test_icons_have_3_to_1_in_every_state(self):
        for icon_set, skin in SETS.items():
            colours = set()
            for _, this_set, image in every_picture((16, 32)):
                if this_set == icon_set:
                    colours |= {pixel[:3] for pixel in image.getdata() if pixel[3] == 255}
            self.assertGreaterEqual(len(colours), 2)
            for colour, ground in itertools.product(colours, self.grounds(skin)):
                self.assertGreaterEqual(round(contrast(colour, ground), 2), 3, f"{skin}: {colour} on {ground}")

    def test_a_thin_sign_still_has_3_to_1_where_it_is_strongest(self):
        for what, icon_set, image in every_picture((16, 20, 24)):
            ground = GROUNDS[SETS[icon_set]]["panel"]
            strongest = sorted((pixel for pixel in image.getdata() if pixel[3]), key=lambda pixel: -pixel[3])[:12]
            self.assertGreaterEqual(min(contrast(over(pixel, ground), ground) for pixel in strongest), 3, what)


if __name__ == "__main__":
    BIN = sys.argv.pop(1)
    unittest.main()
