#!/usr/bin/python3
"""Random input for the viewer: clicks, keys, wheel, drags, skins, languages, modes, bars. Says whether it stays alive, answers within
two seconds and does not grow; the machine must have little else to do.

usage: monkey.py BIN_DIR [--events 20000] [--seed N]     a third of the events at 100, 150 and 200 % each
"""
import argparse
import json
import os
import random
import sys
import tempfile
import time

from viewer import Viewer

WIDTH, HEIGHT = 1280, 800
LONGEST_WAIT = 2000  # milliseconds
GROWTH = 1.3  # of the memory, besides what caches may take
CACHES = 16 << 20
# What leaves the program, or writes into fields of the system's dialogs, is not among them.
KEYS = ["Up", "Down", "Left", "Right", "Tab", "space", "Escape", "Home", "End", "Prior", "Next", "F6", "F10", "Alt_L", "plus", "minus",
        "ctrl+i", "ctrl+u", "ctrl+w", "ctrl+l", "ctrl+k", "ctrl+b", "ctrl+n", "ctrl+r", "ctrl+g", "ctrl+t", "ctrl+m", "ctrl+e",
        "ctrl+f", "ctrl+F1", "ctrl+shift+r", "ctrl+shift+c"]
SEARCHES = ["hebrew", "chinese", "english", "black", "silver", "browse", "edit", "print", "below", "minimize"]
REST = ["Escape"] * 5


class Monkey:
    def __init__(self, viewer, seed):
        self._viewer = viewer
        self._random = random.Random(seed)

    def point(self):
        # Not the window's own buttons, at the end of the caption in either direction, nor the exit in the application menu.
        while True:
            x, y = self._random.randrange(2, WIDTH - 2), self._random.randrange(2, HEIGHT - 2)
            in_caption = y < 34 and (x < 130 or x > WIDTH - 130)
            at_exit = y > 270 and y < 480 and (380 < x < 620 or WIDTH - 620 < x < WIDTH - 380)
            if not in_caption and not at_exit:
                return x, y

    def words(self):
        """One event in the words of xdotool."""
        kind = self._random.random()
        x, y = self.point()
        if kind < 0.35:
            return ["mousemove", x, y, "click", 1]
        if kind < 0.40:
            return ["mousemove", x, y, "click", 3]
        if kind < 0.50:
            return ["mousemove", x, y, "click", self._random.choice([4, 5])]
        if kind < 0.58:
            to_x, to_y = self.point()
            return ["mousemove", x, y, "mousedown", 1, "mousemove", to_x, to_y, "mouseup", 1]
        if kind < 0.62:
            return ["mousemove", x, y]
        if kind < 0.66:
            return ["key", *REST]
        if kind < 0.72:
            return ["key", *REST, "key", "ctrl+f", "sleep", 0.2, "type", "--delay", 10, self._random.choice(SEARCHES), "key", "Return"]
        return ["key", self._random.choice(KEYS)]

    def play(self, events):
        for count in range(events):
            self._viewer.act(*self.words())
            if self._viewer.has_left():
                raise AssertionError(f"the viewer left at event {count}")

    def rest(self):
        """The state in which handles are counted: nothing is open, and everything has been shown once."""
        viewer = self._viewer
        for search in ("hebrew", "chinese", "black", "edit", "print", "english", "silver", "browse"):
            viewer.act("key", *REST, "key", "ctrl+f", "sleep", 0.4, "type", "--delay", 20, search, "key", "Return", "sleep", 0.6)
        viewer.act("key", *REST)
        time.sleep(3)


def resident_bytes(record_file):
    """The memory of the program that writes this record."""
    most = 0
    for process in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{process}/cmdline", "rb") as file:
                words = file.read()
            with open(f"/proc/{process}/status", encoding="utf-8") as file:
                lines = dict(line.split(":", 1) for line in file if ":" in line)
        except OSError:
            continue
        if b"demo.exe" in words and os.path.basename(os.path.dirname(record_file)).encode() in words and "VmRSS" in lines:
            most = max(most, int(lines["VmRSS"].split()[0]) * 1024)
    return most


def longest_wait(watch):
    with open(watch, encoding="utf-8") as file:
        return json.loads(file.read().strip().splitlines()[-1])["longest"]


def run(folder, seed, events, scale):
    """True when all went well."""
    with tempfile.TemporaryDirectory() as notes:
        watch = os.path.join(notes, "watch.txt")
        with Viewer(folder, "--lang", "en", "--skin", "silver", "--scale", scale, "--watch", watch) as viewer:
            monkey = Monkey(viewer, seed)
            monkey.rest()
            monkey.play(events // 4)  # what is made once is made
            monkey.rest()
            before = resident_bytes(viewer.record_file)
            monkey.play(events - events // 4)
            monkey.rest()
            after = resident_bytes(viewer.record_file)
            is_alive = not viewer.has_left()
        wait = longest_wait(watch)
    is_flat = 0 < before and after <= before * GROWTH + CACHES
    print(f"seed {seed}, {scale} %: {events} events, {'alive' if is_alive else 'gone'}, longest wait {wait} ms, "
          f"memory {before >> 20} MB, then {after >> 20} MB", flush=True)
    return is_alive and is_flat and wait < LONGEST_WAIT


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder")
    parser.add_argument("--events", type=int, default=20000)
    parser.add_argument("--seed", type=int, default=20)
    parser.add_argument("--scales", type=int, nargs="+", default=[100, 150, 200])
    options = parser.parse_args()
    results = [run(os.path.abspath(options.folder), options.seed + index, options.events // len(options.scales), scale)
               for index, scale in enumerate(options.scales)]
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
