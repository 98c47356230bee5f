#!/usr/bin/python3
"""Random input for the viewer: clicks, keys, wheel, drags, sizes, skins, languages, modes, bars, rebuilds. Says whether it stays
alive, answers within two seconds and does not grow, neither in memory nor in what it holds from the system. Time for which the
machine had no processor is not counted against it (machine_time.py); a wait that a person would notice is told with what was
going on.

usage: monkey.py BIN_DIR [--events 20000] [--seed N] [--skins ...] [--langs ...] [--scales ...]
The events are shared out evenly over all combinations of the skins, languages and scales to start in.
"""
import argparse
import itertools
import json
import os
import random
import subprocess
import sys
import tempfile
import time

from machine_time import MachineTime, Thread, program_of, server_of
from viewer import DEADLINE, Viewer
from wine_session import PREFIX

SCREEN_WIDTH, SCREEN_HEIGHT = 1400, 900
LONGEST_WAIT = 2000  # milliseconds
TOLD_WAIT = 1000
GROWTH = 1.3  # of the memory, besides what caches may take
CACHES = 16 << 20
# What the system and its drivers keep on their own account comes and goes by a few; the viewer's own caches hold up to a
# hundred pictures, and get their last one late; each bar makes the window of its tooltips when it first has one to show.
MORE_OBJECTS = {"gdi": 120, "icons": 20, "menus": 10, "windows": 10, "threads": 6, "descriptors": 20}
MOST_EXITS = 3  # of one run, by the window's own ways out: a random click finds them now and then
# What leaves the program, or writes into fields of the system's dialogs, is not among them.
KEYS = ["Up", "Down", "Left", "Right", "Tab", "space", "Escape", "Home", "End", "Prior", "Next", "F6", "F10", "Alt_L", "plus", "minus",
        "ctrl+i", "ctrl+u", "ctrl+w", "ctrl+l", "ctrl+k", "ctrl+b", "ctrl+n", "ctrl+r", "ctrl+g", "ctrl+t", "ctrl+m", "ctrl+e",
        "ctrl+f", "ctrl+F1", "ctrl+shift+r", "ctrl+shift+c"]
SEARCHES = ["hebrew", "chinese", "english", "black", "silver", "browse", "edit", "print", "below", "minimize",
            "print preview", "options"]
REST = ["key", "--delay", 1] + ["Escape"] * 5
# What leads to the state in which growth is measured, and what the record says then.
SHOWN_AT_REST = [("hebrew", "language", "he"), ("chinese", "language", "zh-CN"), ("black", "skin", "black"), ("edit", "mode", "edit"),
                 ("print", "mode", "print"), ("english", "language", "en"), ("silver", "skin", "silver"), ("browse", "mode", "browse")]
# What is shown once before growth is measured, by its search and its name in the record. Its first time makes what is kept: lists,
# images, tooltips' windows.
SHOWN_ONCE = [("about", "about"), ("options", "options"), ("print preview", "preview")]
TRIES_AT_REST = 3
HEIGHT_OF_A_CAPTION = 40  # a window of no more than that is minimised
LONGEST_PAUSE = 0.3  # seconds that an event waits for what the one before it set off; longer than that nobody holds still
QUIET_LOOKS, BETWEEN_LOOKS = 3, 0.0015


def held(value, end):
    """On the screen."""
    return min(max(value, 0), end - 1)


def read_record(record_file):
    """None while it is being written."""
    try:
        with open(record_file, encoding="utf-8") as file:
            return json.load(file)
    except (OSError, json.JSONDecodeError):
        return None


class Hands:
    """Gives input to a display through one process that stays, as starting one takes longer than most events; use it as a
    context. An event is a list of parts, each in the words of xdotool; between two of them the program may come to rest."""

    def __init__(self, environment, process):
        self._environment = environment
        self._thread = Thread(process, process)  # its first one, which is the window's

    def __enter__(self):
        # Its answers come line by line, and all it says at the end of a line.
        self._complaints = tempfile.TemporaryFile("w+", encoding="utf-8")
        self._xdotool = subprocess.Popen(["stdbuf", "-oL", "xdotool", "-"], env=self._environment, stdin=subprocess.PIPE,
                                         stdout=subprocess.PIPE, stderr=self._complaints, text=True)
        return self

    def __exit__(self, *_):
        self._xdotool.stdin.close()
        self._xdotool.wait()
        self._xdotool.stdout.close()
        self._complaints.close()

    def give(self, parts):
        for part in parts:
            words = " ".join(f'"{word}"' if " " in str(word) else str(word) for word in part)
            self._xdotool.stdin.write(words + "\ngetmouselocation\n")
            self._xdotool.stdin.flush()
            if not self._xdotool.stdout.readline():
                self._complaints.seek(0)
                raise RuntimeError(f"xdotool has left with {self._xdotool.wait()} at {words}: {self._complaints.read()[-1000:]}")
            self._pause()

    def _pause(self):
        """Until the window's thread has slept through a few looks."""
        end, quiet, before = time.monotonic() + LONGEST_PAUSE, 0, None
        while quiet < QUIET_LOOKS and time.monotonic() < end:
            time.sleep(BETWEEN_LOOKS)
            now = self._thread.sleep()
            quiet = quiet + 1 if now is not None and now == before else 0
            before = now


class Place:
    """Of the window, as its record tells it: left, top, right, bottom on the screen."""

    def __init__(self, record_file):
        self._record_file = record_file
        self.box = (0, 0, 1280, 800)
        self.status = (0, 770, 1280, 800)
        self.is_mirrored = False

    def read(self):
        record = read_record(self._record_file)
        if record is None:
            return
        self.box = tuple(record["frameOnScreen"])
        self.status = record["statusOnScreen"]
        self.is_mirrored = record["language"] == "he"

    def is_minimised(self):
        return self.box[3] - self.box[1] <= HEIGHT_OF_A_CAPTION

    def caption(self):
        left, top, right, _ = self.box
        return held((left + right) // 2, SCREEN_WIDTH), held(top + 12, SCREEN_HEIGHT)

    def grip(self):
        left, _, right, bottom = self.status
        return held(left + 5 if self.is_mirrored else right - 5, SCREEN_WIDTH), held(bottom - 5, SCREEN_HEIGHT)


def spoken(parts):
    return "; ".join(" ".join(map(str, part)) for part in parts)


class Monkey:
    """The kinds of events with their shares, in thousandths."""

    def __init__(self, viewer, hands, seed):
        self._viewer = viewer
        self._hands = hands
        self._random = random.Random(seed)
        self._place = Place(viewer.record_file)
        self._kinds = [(330, self.click), (50, self.right_click), (100, self.wheel), (80, self.drag), (40, self.hover), (40, self.calm),
                       (60, self.search), (25, self.size), (5, self.maximize), (10, self.rebuild), (260, self.key)]
        self._looks_again = False  # the window has another place or size
        self.log = []  # (seconds since 1970, parts)

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

    @staticmethod
    def pressed(x, y, button, times=1):
        """`click` of xdotool holds the button for a tenth of a second."""
        return [["mousemove", x, y, *["mousedown", button, "mouseup", button] * times]]

    def click(self):
        return self.pressed(*self.point(), 1)

    def right_click(self):
        return self.pressed(*self.point(), 3)

    def wheel(self):
        return self.pressed(*self.point(), self._random.choice([4, 5]))

    def drag(self):
        return [["mousemove", *self.point(), "mousedown", 1], ["mousemove", *self.point()], ["mouseup", 1]]

    def hover(self):
        return [["mousemove", *self.point()]]

    def calm(self):
        return [REST]

    @staticmethod
    def searched(text):
        return [REST, ["key", "--delay", 1, "ctrl+f"], ["type", "--delay", 1, text], ["key", "--delay", 1, "Return"]]

    def search(self):
        return self.searched(self._random.choice(SEARCHES))

    def key(self):
        return [["key", "--delay", 1, self._random.choice(KEYS)]]

    def rebuild(self):
        return [REST, ["key", "ctrl+shift+r"]]

    def size(self):
        """By the grip, in steps, as a hand does."""
        self._place.read()
        x, y = self._place.grip()
        to_x, to_y = self._random.randrange(400, SCREEN_WIDTH - 4), self._random.randrange(300, SCREEN_HEIGHT - 4)
        if self._place.is_mirrored:
            to_x = SCREEN_WIDTH - to_x
        steps = [["mousemove", x + (to_x - x) * step // 4, y + (to_y - y) * step // 4] for step in range(1, 5)]
        self._looks_again = True
        return [REST, ["mousemove", x, y], ["mousedown", 1], *steps, ["mouseup", 1]]

    def maximize(self):
        self._place.read()
        self._looks_again = True
        return [REST, *self.pressed(*self._place.caption(), 1, times=2)]

    def play(self, events):
        """How many of them went well: fewer when the viewer left."""
        kinds, shares = [kind for _, kind in self._kinds], [share for share, _ in self._kinds]
        for count in range(events):
            if self._looks_again or count % 10 == 0:
                self._place.read()
                self._looks_again = False
            kind = self._random.choices(kinds, shares)[0]
            # A double click on its caption brings a minimised window back, too; there is nothing else to do with it.
            parts = self.maximize() if self._place.is_minimised() else kind()
            self.log.append((time.time(), parts))
            self._hands.give(parts)
            if self._viewer.has_left():
                return count
        return events

    def rest(self):
        """The state in which growth is measured: nothing is open, and everything has been shown once."""
        for search, name in SHOWN_ONCE:
            if not any(self.shows_dialog(search, name) for _ in range(TRIES_AT_REST)) and not self._viewer.has_left():
                print(f"  {name} was not shown at rest", flush=True)
        # It comes with menus and toolbars.
        self._hands.give([*self.searched("customize"), REST])
        if self.sees(lambda record: record["classicBars"]):
            self._hands.give([["key", "--delay", 1, "alt+z"], REST, ["key", "--delay", 1, "ctrl+m"]])
        if not self.sees(lambda record: not record["classicBars"]):
            print("  the ribbon did not come back at rest", flush=True)
        for search, name, value in SHOWN_AT_REST:
            if not any(self.shows(search, name, value) for _ in range(TRIES_AT_REST)) and not self._viewer.has_left():
                print(f"  {name} did not become {value} at rest", flush=True)
        self._hands.give([REST])

    def shows_dialog(self, search, name):
        self.order(search)
        is_shown = self.sees(lambda record: record.get("dialog", {}).get("name") == name)
        self._hands.give([["key", "--delay", 1, "Escape"]])
        return is_shown and self.sees(lambda record: "dialog" not in record)

    def shows(self, search, name, value):
        """Whether the record says so soon after the command was searched for."""
        return self.order(search) and self.sees(lambda record: record[name] == value and record["map"]["finished"])

    def order(self, search):
        """Whether the search was there for it."""
        # Without a window manager a window that goes may leave the keys to nobody; a click gets them back.
        self._place.read()
        if self._place.is_minimised():
            self._hands.give(self.maximize())
            self._place.read()
        self._hands.give([REST, *self.pressed(*self._place.caption(), 1), REST, ["key", "ctrl+f"]])
        is_open = self.sees(lambda record: record["search"]["open"])
        self._hands.give([["type", "--delay", 1, search], ["key", "Return"]])
        return is_open

    def sees(self, condition):
        end = time.monotonic() + DEADLINE
        while time.monotonic() < end and not self._viewer.has_left():
            record = read_record(self._viewer.record_file)
            if record is not None and condition(record):
                return True
            time.sleep(0.02)
        return False

    def doings(self, wait):
        """What was done just before a wait and during it."""
        return [spoken(parts) for when, parts in self.log if wait["began"] / 1000 - 1 < when < wait["ended"] / 1000]


def told(watch, name="longest"):
    """The whole lines of the watchman that have this name, or all."""
    with open(watch, encoding="utf-8") as file:
        lines = [json.loads(line) for line in file if line.endswith("\n")]
    return [line for line in lines if not name or name in line]


def resident_bytes(process):
    with open(f"/proc/{process}/status", encoding="utf-8") as file:
        lines = dict(line.split(":", 1) for line in file if ":" in line)
    return int(lines["VmRSS"].split()[0]) * 1024


class Held:
    """What the program holds at rest: memory (bytes), and by name how many objects of each kind."""

    def __init__(self, process, watch):
        self.memory = resident_bytes(process)
        self.objects = {"descriptors": len(os.listdir(f"/proc/{process}/fd")), "threads": len(os.listdir(f"/proc/{process}/task"))}
        # The second line from now on was counted from now on.
        count = len(told(watch))
        end = time.monotonic() + DEADLINE
        while len(lines := told(watch)) < count + 2 and time.monotonic() < end:
            time.sleep(0.1)
        self.objects.update((name, number) for name, number in lines[-1].items() if name != "longest")

    def is_flat_after(self, before):
        return (self.memory <= before.memory * GROWTH + CACHES and
                all(number <= before.objects[name] + MORE_OBJECTS[name] for name, number in self.objects.items()))

    def __str__(self):
        return ", ".join([f"{self.memory >> 20} MB", *(f"{number} {name}" for name, number in self.objects.items())])


class Life:
    """One run of the viewer, from its start to its end."""

    def __init__(self):
        self.played = 0
        self.exit_code = None  # None: alive at the end
        self.before = self.after = None
        self.longest = self.longest_own = 0

    @property
    def is_flat(self):
        return self.after is None or self.after.is_flat_after(self.before)

    def live(self, folder, seed, events, arguments):
        with tempfile.TemporaryDirectory() as notes:
            watch = os.path.join(notes, "watch.txt")
            with Viewer(folder, *arguments, "--watch", watch) as viewer:
                process = program_of(viewer.record_file)
                with MachineTime(process, server_of(PREFIX), viewer.display_server) as machine, Hands(viewer.environment, process) as hands:
                    monkey = Monkey(viewer, hands, seed)
                    self.play(monkey, viewer, events, lambda: Held(process, watch))
                    if viewer.has_left():
                        self.exit_code = viewer.wait_for_end()
                        print(f"  left with {self.exit_code} after:", *(spoken(parts) for _, parts in monkey.log[-8:]), sep="\n    ", flush=True)
                    self.judge(watch, machine, monkey)

    def play(self, monkey, viewer, events, look):
        """Looks at what is held after a part of the events, when what is made once is made, and at the end."""
        self.played = monkey.play(events // 4)
        monkey.rest()
        if viewer.has_left():
            return
        self.before = look()
        self.played += monkey.play(events - events // 4)
        monkey.rest()
        if not viewer.has_left():
            self.after = look()

    def judge(self, watch, machine, monkey):
        lines = told(watch, "")
        self.longest = max((line["longest"] for line in lines if "longest" in line), default=0)
        for wait in (line for line in lines if "wait" in line):
            own = machine.own_part(wait)
            self.longest = max(self.longest, wait["wait"])
            self.longest_own = max(self.longest_own, own)
            if own >= TOLD_WAIT:
                print(f"  {wait['wait']} ms unanswered, {own} of them the program's; processor: {wait['thread']} ms of the window's "
                      f"thread, {wait['process']} of the process", flush=True)
                print("    done:", *monkey.doings(wait), sep="\n      ")
                print("    messages:", *wait["messages"], sep="\n      ", flush=True)


def run(folder, seed, events, skin, language, scale):
    """True when all went well."""
    remaining, exits, is_well = events, 0, True
    while remaining > 0 and is_well and exits <= MOST_EXITS:
        life, begin = Life(), time.monotonic()
        life.live(folder, seed + 1000 * exits, remaining, ("--lang", language, "--skin", skin, "--scale", scale))
        remaining -= life.played
        is_well = life.exit_code in (None, 0) and life.is_flat and life.longest_own < LONGEST_WAIT
        state = "alive" if life.exit_code is None else f"left with {life.exit_code}"
        seconds = time.monotonic() - begin
        print(f"seed {seed + 1000 * exits}, {skin}, {language}, {scale} %: {life.played} events in {seconds:.0f} s, {state}, longest wait "
              f"{life.longest_own} ms ({life.longest} with the machine's part)\n  held: {life.before}\n  then: {life.after}", flush=True)
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
