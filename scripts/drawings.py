"""Drawings in SVG, fitted to whole pixels at the size that is wanted, and many of them rendered at once.

A source is drawn on a small grid (16 units for an icon, 24 for a plate). Enlarging it by 125 or 150 % would put its edges
between pixels; a Grid therefore says where each unit of the source lies in the picture, in whole pixels, and a drawing is
written anew with these places before it is rendered.

Elements: path, line, polyline, rect, circle. What an element is, its class says:
  fill     a filled shape; its edges lie on whole units
  frame    a hairline inside the edge of a filled shape (rect only)
  line     a stroke of the family's weight; its middle lies on half units, so that it covers one unit at 100 %
  heavy    a stroke twice as wide; its middle lies on whole units
  slant    a stroke that runs along no row of pixels, as a chevron's; its middle lies where it is drawn
A second class names the tone ("accent"); the caller's table gives its colour.
"""
import io
import re
import subprocess
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass

from PIL import Image

SVG = "{http://www.w3.org/2000/svg}"


@dataclass(frozen=True)
class Grid:
    """Where a drawing of `units` units lies in a picture of `size` pixels. Strokes and hairlines: widths in pixels. `half` is
    added before a place is cut to a whole pixel: with less than a half, two and a half pixels are two."""

    units: int
    size: int
    weight: float
    hairline: int = 1
    half: float = 0.5

    def edge(self, unit):
        """The pixel edge of a whole unit; the far half mirrors the near one, so that what is even stays even."""
        if unit * 2 == self.units:
            return self.size / 2
        if unit > self.units / 2:
            return self.size - self.edge(self.units - unit)
        return int(unit * self.size / self.units + self.half)

    def stroke_start(self, unit):
        """The first pixel of a stroke that covers the unit."""
        if unit > (self.units - 1) / 2:
            return self.size - self.weight - self.stroke_start(self.units - 1 - unit)
        return int(unit * self.size / self.units + self.half)

    def fill(self, value):
        return between(self.edge, value)

    def line(self, value):
        return between(lambda unit: self.stroke_start(unit) + self.weight / 2, value - 0.5)

    def length(self, value):
        return value * self.size / self.units


def between(place, value):
    """The place of a value between two whole units, on the straight line from one to the other."""
    low = int(value // 1)
    share = value - low
    return place(low) if share == 0 else place(low) * (1 - share) + place(low + 1) * share


NUMBER = re.compile(r"[A-Za-z]|-?(?:\d+\.?\d*|\.\d+)")
# How many numbers a path command takes, and which of them are x (0), y (1) or something that is kept (-) or a length (r).
PATH_COMMANDS = {"M": "01", "L": "01", "H": "0", "V": "1", "C": "010101", "Q": "0101", "A": "rr---01", "Z": ""}


def read_path(text):
    """The commands of a path as (letter, numbers), all absolute."""
    tokens = NUMBER.findall(text)
    here, start, at, letter = [0.0, 0.0], [0.0, 0.0], 0, ""
    while at < len(tokens):
        if tokens[at].isalpha():
            letter = tokens[at]
            at += 1
        kinds = PATH_COMMANDS[letter.upper()]
        numbers = [float(token) for token in tokens[at:at + len(kinds)]]
        at += len(kinds)
        if letter.islower():
            numbers = [number + here[int(kind)] if kind in "01" else number for kind, number in zip(kinds, numbers)]
        for kind, number in zip(kinds, numbers):
            if kind in "01":
                here[int(kind)] = number
        if letter.upper() == "M":
            start = list(here)
        elif letter.upper() == "Z":
            here = list(start)
        yield letter.upper(), numbers
        letter = {"M": "L", "m": "l"}.get(letter, letter)


def fit_path(text, fit, grid):
    """A path's text with every place where the grid wants it."""
    parts = []
    for letter, numbers in read_path(text):
        fitted = [fit(number) if kind in "01" else grid.length(number) if kind == "r" else number
                  for kind, number in zip(PATH_COMMANDS[letter], numbers)]
        parts.append(letter + " ".join(f"{number:g}" for number in fitted))
    return "".join(parts)


def points_path(text):
    numbers = re.split(r"[ ,]+", text.strip())
    return "M" + "L".join(f"{x} {y}" for x, y in zip(numbers[::2], numbers[1::2]))


def rect_path(left, top, right, bottom, rx, ry=None):
    """A rectangle with round corners."""
    ry = rx if ry is None else ry
    if rx <= 0 or ry <= 0:
        return f"M{left:g} {top:g}H{right:g}V{bottom:g}H{left:g}Z"
    corner = lambda x, y: f"A{rx:g} {ry:g} 0 0 1 {x:g} {y:g}"
    return (f"M{left + rx:g} {top:g}H{right - rx:g}{corner(right, top + ry)}V{bottom - ry:g}{corner(right - rx, bottom)}"
            f"H{left + rx:g}{corner(left, bottom - ry)}V{top + ry:g}{corner(left + rx, top)}Z")


def ellipse_path(left, top, right, bottom):
    rx, ry, middle = (right - left) / 2, (bottom - top) / 2, (top + bottom) / 2
    return f"M{left:g} {middle:g}A{rx:g} {ry:g} 0 0 1 {right:g} {middle:g}A{rx:g} {ry:g} 0 0 1 {left:g} {middle:g}Z"


def fitted_outline(element, kind, grid):
    """The outline of one element as path text, in pixels."""
    fit = grid.line if kind == "line" else grid.fill
    get = lambda name: float(element.get(name, "0"))
    tag = element.tag.removeprefix(SVG)
    if tag == "rect":
        sides = [fit(get("x")), fit(get("y")), fit(get("x") + get("width")), fit(get("y") + get("height"))]
        radius = grid.length(get("rx"))
        if kind == "frame":
            inset = grid.hairline / 2
            sides = [sides[0] + inset, sides[1] + inset, sides[2] - inset, sides[3] - inset]
            radius -= inset
        return rect_path(*sides, radius)
    if tag == "circle":
        x, y, r = get("cx"), get("cy"), get("r")
        return ellipse_path(fit(x - r), fit(y - r), fit(x + r), fit(y + r))
    if tag == "polyline":
        return fit_path(points_path(element.get("points")), fit, grid)
    if tag == "line":
        return fit_path(f"M{get('x1')} {get('y1')}L{get('x2')} {get('y2')}", fit, grid)
    return fit_path(element.get("d"), fit, grid)


def split_path(text):
    """A path's segments along rows and columns of pixels, and the others, as two path texts."""
    here, start = (0.0, 0.0), (0.0, 0.0)
    ends = {True: None, False: None}
    parts = {True: [], False: []}
    for letter, numbers in read_path(text):
        if letter == "M":
            here = start = tuple(numbers)
            continue
        there = {"Z": start, "H": (numbers[0], here[1]) if numbers else None,
                 "V": (here[0], numbers[0]) if numbers else None}.get(letter) or tuple(numbers[-2:])
        is_straight = letter in "LHVZ" and (there[0] == here[0] or there[1] == here[1])
        if there != here:
            if ends[is_straight] != here:
                parts[is_straight].append(f"M{here[0]:g} {here[1]:g}")
            kept = letter if letter in "CQA" else "L"
            parts[is_straight].append(kept + " ".join(f"{number:g}" for number in (numbers if kept != "L" else there)))
            ends[is_straight] = there
        here = there
    return "".join(parts[True]), "".join(parts[False])


def stroke_text(outline, width, cap, colour):
    if not outline:
        return ""
    ink, alpha = colour
    return (f'<path d="{outline}" fill="none" stroke="{ink}" stroke-opacity="{alpha}" stroke-width="{width:g}" '
            f'stroke-linecap="{cap}" stroke-linejoin="round"/>')


# A slanting stroke one pixel wide covers no pixel wholly and looks thinner than an upright one; this makes up for it.
SLANT_STRENGTH = 1.3


def fitted_element(element, grid, colours):
    """One element as SVG text in pixels, or "" when the table has no colour for its tone."""
    kind, *tones = element.get("class").split()
    colour = colours.get(tones[0] if tones else kind)
    if colour is None:
        return ""
    outline = fitted_outline(element, kind, grid)
    ink, alpha = colour
    if kind == "fill":
        return f'<path d="{outline}" fill="{ink}" fill-opacity="{alpha}"/>'
    if kind == "frame":
        return stroke_text(outline, grid.hairline, "butt", colour)
    width = grid.weight * (2 if kind == "heavy" else 1)
    if width != 1:
        return stroke_text(outline, width, "round", colour)
    straight, slanting = split_path(outline)
    # Round ends of a stroke one pixel wide would be two grey pixels.
    return stroke_text(slanting, SLANT_STRENGTH, "round", colour) + stroke_text(straight, 1, "square", colour)


class Drawing:
    """One source file."""

    def __init__(self, path):
        self.root = ElementTree.parse(path).getroot()
        box = [int(number) for number in self.root.get("viewBox").split()]
        self.width, self.height = box[2], box[3]

    def fitted(self, grid, colours):
        """The drawing as SVG text in pixels. `colours`: kind or tone to (colour, opacity)."""
        return "".join(fitted_element(element, grid, colours) for element in self.root if element.get("class"))


@dataclass
class Picture:
    """SVG text in pixels that becomes a picture of this size."""

    name: str
    width: int
    height: int
    text: str


def places_on_a_sheet(pictures, sheet_width):
    """Puts pictures in rows, the high ones first. Returns (picture, left, top)s and the sheet's height."""
    placed, left, top, row = [], 0, 0, 0
    for picture in sorted(pictures, key=lambda p: -p.height):
        if left + picture.width > sheet_width:
            left, top, row = 0, top + row, 0
        placed.append((picture, left, top))
        left += picture.width
        row = max(row, picture.height)
    return placed, top + row


def render(pictures, sheet_width=2048):
    """All pictures by name as RGBA images. One run of the renderer, which costs more to start than to draw."""
    placed, height = places_on_a_sheet(pictures, sheet_width)
    parts = [f'<svg x="{left}" y="{top}" width="{picture.width}" height="{picture.height}">{picture.text}</svg>'
             for picture, left, top in placed]
    sheet = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{sheet_width}" height="{height}" '
             f'viewBox="0 0 {sheet_width} {height}">{"".join(parts)}</svg>')
    png = subprocess.run(["rsvg-convert", "--unlimited"], input=sheet.encode(), capture_output=True, check=True).stdout
    image = Image.open(io.BytesIO(png)).convert("RGBA")
    if image.size != (sheet_width, height):
        raise ValueError(f"the sheet is {image.size} instead of {(sheet_width, height)}")
    return {picture.name: image.crop((left, top, left + picture.width, top + picture.height))
            for picture, left, top in placed}
