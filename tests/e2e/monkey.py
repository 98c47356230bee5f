#!/usr/bin/python3
"""Random input for the viewer: clicks, keys, wheel, drags, sizes, skins, languages, modes, bars, rebuilds. Says whether it stays
alive, answers within two seconds and does not grow. Time for which the machine had no processor is not counted against it
(machine_time.py); a wait that a person would notice is told with what was going on.

usage: monkey.py BIN_DIR [--events 20000] [--seed N] [--skins ...] [--langs ...] [--scales ...]
The events are shared out evenly over all combinations of the skins, languages and scales to start in.
"""
import argparse
import itertools
import json
import os
import random
import sys
import tempfile
import time

from machine_time import MachineTime, program_of, server_of
from viewer import Viewer
from wine_session import PREFIX

SCREEN_WIDTH, SCREEN_HEIGHT = 1400, 900
LONGEST_WAIT = 2000  # milliseconds
TOLD_WAIT = 1000
GROWTH = 1.3  # of the memory, besides what caches may take
CACHES = 16 << 20
MOST_EXITS = 3  # of one run, by the window's own ways out: a random click finds them now and then
# What leaves the program, or writes into fields of the system's dialogs, is not among them.
KEYS = ["Up", "Down", "Left", "Right", "Tab", "space", "Escape", "Home", "End", "Prior", "Next", "F6", "F10", "Alt_L", "plus", "minus",
        "ctrl+i", "ctrl+u", "ctrl+w", "ctrl+l", "ctrl+k", "ctrl+b", "ctrl+n", "ctrl+r", "ctrl+g", "ctrl+t", "ctrl+m", "ctrl+e",
        "ctrl+f", "ctrl+F1", "ctrl+shift+r", "ctrl+shift+c"]
SEARCHES = ["hebrew", "chinese", "english", "black", "silver", "browse", "edit", "print", "below", "minimize",
            "print preview", "options"]
REST = ["Escape"] * 5


def held(value, end):
    """On the screen."""
    return min(max(value, 0), end - 1)


class Place:
    """Of the window, as its record tells it: left, top, right, bottom on the screen."""

    def __init__(self, record_file):
        self._record_file = record_file
        self.box = (0, 0, 1280, 800)
        self.status = (0, 770, 1280, 800)
        self.is_mirrored = False

    def read(self):
        try:
            with open(self._record_file, encoding="utf-8") as file:
                record = json.load(file)
        except (OSError, json.JSONDecodeError):
            return  # it is being written
        self.box = tuple(record["frameOnScreen"])
        self.status = record["statusOnScreen"]
        self.is_mirrored = record["language"] == "he"

    def grip(self):
        left, _, right, bottom = self.status
        return held(left + 5 if self.is_mirrored else right - 5, SCREEN_WIDTH), held(bottom - 5, SCREEN_HEIGHT)


class Monkey:
    """The kinds of events with their shares, in thousandths."""

    def __init__(self, viewer, seed):
        self._viewer = viewer
        self._random = random.Random(seed)
        self._place = Place(viewer.record_file)
        self._kinds = [(330, self.click), (50, self.right_click), (100, self.wheel), (80, self.drag), (40, self.hover), (40, self.calm),
                       (60, self.search), (25, self.size), (5, self.maximize), (10, self.rebuild), (260, self.key)]
        self._looks_again = False  # the window has another place or size
        self.log = []  # (seconds since 1970, words)

    def point(self):
        # Not the window's own buttons, at the end of the caption in either direction, nor the exit in the application menu.
        left, top, right, bottom = self._place.box
        while True:
            x = held(self._random.randint(left + 2, max(left, right - 2) + 2), SCREEN_WIDTH)
            y = held(self._random.randint(top + 2, max(top, bottom - 2) + 2), SCREEN_HEIGHT)
            in_caption = y < top + 34 and (x < left + 130 or x > right - 130)
            at_exit = top + 270 < y < top + 480 and (380 < x - left < 620 or 380 < right - x < 620)
            if not in_caption and not at_exit:
                return x, y

    def click(self):
        return ["mousemove", *self.point(), "click", 1]

    def right_click(self):
        return ["mousemove", *self.point(), "click", 3]

    def wheel(self):
        return ["mousemove", *self.point(), "click", self._random.choice([4, 5])]

    def drag(self):
        return ["mousemove", *self.point(), "mousedown", 1, "mousemove", *self.point(), "mouseup", 1]

    def hover(self):
        return ["mousemove", *self.point()]

    def calm(self):
        return ["key", *REST]

    def search(self):
        return ["key", *REST, "key", "ctrl+f", "sleep", 0.2, "type", "--delay", 10, self._random.choice(SEARCHES), "key", "Return"]

    def key(self):
        return ["key", self._random.choice(KEYS)]

    def rebuild(self):
        return ["key", *REST, "key", "ctrl+shift+r"]

    def size(self):
        """By the grip, in steps, as a hand does."""
        self._place.read()
        x, y = self._place.grip()
        to_x, to_y = self._random.randrange(400, SCREEN_WIDTH - 4), self._random.randrange(300, SCREEN_HEIGHT - 4)
        if self._place.is_mirrored:
            to_x = SCREEN_WIDTH - to_x
        steps = [("mousemove", x + (to_x - x) * step // 4, y + (to_y - y) * step // 4, "sleep", 0.03) for step in range(1, 5)]
        self._looks_again = True
        return ["key", *REST, "mousemove", x, y, "sleep", 0.05, "mousedown", 1, *itertools.chain(*steps), "mouseup", 1, "sleep", 0.3]

    def maximize(self):
        self._place.read()
        left, top, right, _ = self._place.box
        self._looks_again = True
        return ["key", *REST, "mousemove", held((left + right) // 2, SCREEN_WIDTH), held(top + 12, SCREEN_HEIGHT), "click", "--repeat", 2, "--delay", 60, 1, "sleep", 0.3]

    def play(self, events):
        """How many of them went well: fewer when the viewer left."""
        kinds, shares = [kind for _, kind in self._kinds], [share for share, _ in self._kinds]
        for count in range(events):
            if self._looks_again or count % 10 == 0:
                self._place.read()
                self._looks_again = False
            words = self._random.choices(kinds, shares)[0]()
            self.log.append((time.time(), words))
            self._viewer.try_to_act(*words)
            if self._viewer.has_left():
                return count
        return events

    def rest(self):
        """The state in which growth is measured: nothing is open, and everything has been shown once."""
        for search in ("hebrew", "chinese", "black", "edit", "print", "english", "silver", "browse"):
            self._viewer.try_to_act("key", *REST, "key", "ctrl+f", "sleep", 0.4, "type", "--delay", 20, search, "key", "Return",
                                    "sleep", 0.6)
        self._viewer.try_to_act("key", *REST)
        time.sleep(3)

    def doings(self, wait):
        """What was done just before a wait and during it."""
        return [" ".join(map(str, words)) for when, words in self.log if wait["began"] / 1000 - 1 < when < wait["ended"] / 1000]


def resident_bytes(process):
    with open(f"/proc/{process}/status", encoding="utf-8") as file:
        lines = dict(line.split(":", 1) for line in file if ":" in line)
    return int(lines["VmRSS"].split()[0]) * 1024


class Life:
    """One run of the viewer, from its start to its end."""

    def __init__(self):
        self.played = 0
        self.exit_code = None  # None: alive at the end
        self.before = self.after = 0
        self.longest = self.longest_own = 0

    @property
    def is_flat(self):
        return self.after <= self.before * GROWTH + CACHES

    def live(self, folder, seed, events, arguments):
        with tempfile.TemporaryDirectory() as notes:
            watch = os.path.join(notes, "watch.txt")
            with Viewer(folder, *arguments, "--watch", watch) as viewer:
                process = program_of(viewer.record_file)
                with MachineTime(process, server_of(PREFIX), viewer.display_server) as machine:
                    monkey = Monkey(viewer, seed)
                    monkey.rest()
                    self.played = monkey.play(events // 4)  # what is made once is made
                    monkey.rest()
                    if not viewer.has_left():
                        self.before = resident_bytes(process)
                        self.played += monkey.play(events - events // 4)
                        monkey.rest()
                    if viewer.has_left():
                        self.exit_code = viewer.wait_for_end()
                        print(f"  left with {self.exit_code} after:", *(words for _, words in monkey.log[-8:]), sep="\n    ", flush=True)
                    else:
                        self.after = resident_bytes(process)
                    self.judge(watch, machine, monkey)

    def judge(self, watch, machine, monkey):
        with open(watch, encoding="utf-8") as file:
            lines = [json.loads(line) for line in file if line.endswith("\n")]
        self.longest = max((line["longest"] for line in lines if "longest" in line), default=0)
        for wait in (line for line in lines if "wait" in line):
            own = machine.own_part(wait)
            self.longest = max(self.longest, wait["wait"])
            self.longest_own = max(self.longest_own, own)
            if wait["wait"] >= TOLD_WAIT:
                print(f"  {wait['wait']} ms unanswered, {own} of them the program's; processor: {wait['thread']} ms of the window's "
                      f"thread, {wait['process']} of the process", flush=True)
                print("    done:", *monkey.doings(wait), sep="\n      ")
                print("    messages:", *wait["messages"], sep="\n      ", flush=True)


def run(folder, seed, events, skin, language, scale):
    """True when all went well."""
    remaining, exits, is_well = events, 0, True
    while remaining > 0 and is_well and exits <= MOST_EXITS:
        life = Life()
        life.live(folder, seed + 1000 * exits, remaining, ("--lang", language, "--skin", skin, "--scale", scale))
        remaining -= life.played
        is_well = life.exit_code in (None, 0) and life.is_flat and life.longest_own < LONGEST_WAIT
        state = "alive" if life.exit_code is None else f"left with {life.exit_code}"
        print(f"seed {seed}, {skin}, {language}, {scale} %: {life.played} events, {state}, longest wait {life.longest_own} ms "
              f"({life.longest} with the machine's part), memory {life.before >> 20} MB, then {life.after >> 20} MB", flush=True)
        if life.exit_code is not None:
            exits += 1
            remaining = max(remaining, 0)
    return is_well and exits <= MOST_EXITS


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder")
    parser.add_argument("--events", type=int, default=20000)
    parser.add_argument("--seed", type=int, default=20)
    parser.add_argument("--skins", nargs="+", default=["silver", "black"])
    parser.add_argument("--langs", nargs="+", default=["en", "zh-CN", "he"])
    parser.add_argument("--scales", type=int, nargs="+", default=[100, 150, 200])
    options = parser.parse_args()
    combinations = list(itertools.product(options.skins, options.langs, options.scales))
    results = [run(os.path.abspath(options.folder), options.seed + index, options.events // len(combinations), *combination)
               for index, combination in enumerate(combinations)]
    print(f"{sum(results)} of {len(results)} runs went well")
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
