"""What the tests of pictures share: reading them, colours over grounds, contrast."""
import os

from PIL import Image

SCALES = (100, 125, 150, 200)
SKINS = ("black", "silver")
TEXT = {"black": (255, 255, 255), "silver": (0, 0, 0)}
# Where elements lie: the colours that the skins' managers give for them.
GROUNDS = {
    "black": {"panel": (60, 64, 73), "tab row": (50, 52, 62), "title": (74, 77, 89), "menu": (75, 80, 92), "menu margin": (67, 71, 82),
              "status bar": (75, 80, 90)},
    "silver": {"panel": (255, 255, 255), "tab row": (81, 87, 94), "title": (255, 255, 255), "menu": (250, 250, 250),
               "menu margin": (233, 238, 238), "status bar": (235, 240, 244)},
}


def luminance(colour):
    def linear(value):
        share = value / 255
        return share / 12.92 if share <= 0.04045 else ((share + 0.055) / 1.055) ** 2.4
    return 0.2126 * linear(colour[0]) + 0.7152 * linear(colour[1]) + 0.0722 * linear(colour[2])


def contrast(one, other):
    """From 1 (the same) to 21 (black and white)."""
    low, high = sorted((luminance(one), luminance(other)))
    return (high + 0.05) / (low + 0.05)


def over(pixel, ground):
    """A pixel with alpha laid over an opaque ground."""
    share = pixel[3] / 255
    return tuple(round(g * (1 - share) + p * share) for p, g in zip(pixel, ground))


def read(folder, skin, name, scale=100):
    ending = "" if scale == 100 else f".{scale}"
    with Image.open(os.path.join(folder, skin, f"{name}{ending}.png")) as image:
        image.load()
        return image


def frames(folder, skin, name, count, scale=100):
    """A column of frames, taken apart."""
    column = read(folder, skin, name, scale).convert("RGBA")
    height = column.height // count
    return [column.crop((0, index * height, column.width, (index + 1) * height)) for index in range(count)]


def row(image, y):
    return [image.getpixel((x, y)) for x in range(image.width)]


def column(image, x):
    return [image.getpixel((x, y)) for y in range(image.height)]


def icon(path, size):
    """One picture of an icon file; an error where the file has none of this size."""
    with Image.open(path) as image:
        image.size = (size, size)
        image.load()
        return image.convert("RGBA")
