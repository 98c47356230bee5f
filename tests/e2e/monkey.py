#!/usr/bin/python3
"""Random input for the viewer: clicks, keys, wheel, drags, sizes, skins, languages, modes, bars, rebuilds. Says whether it stays
alive, answers within two seconds and does not grow, neither in memory nor in what it holds from the system. Time for which the
machine had no processor is not counted against it (machine_time.py); a wait that a person would notice is told with what was
going on.

usage: monkey.py BIN_DIR [--events 20000] [--each N] [--seed N] [--skins ...] [--langs ...] [--scales ...]
The events are shared out evenly over all combinations of the skins, languages and scales to start in, or each gets its N; skins and
languages change as events, too. A session that the program leaves by one of its own ways out is gone on with in a new one. Several
run side by side with a BARWRIGHT_E2E_PREFIX for each.
"""
import argparse
import itertools
import json
import os
import random
import sys
import tempfile
import time

from hands import Hands, Pace
from machine_time import MachineTime, program_of, server_of
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
EVENTS_OF_AN_EXIT = 1000  # at least, but for the first few: a random input finds the window's own ways out now and then
FIRST_EXITS = 3
# What leaves the program, or writes into fields of the system's dialogs, is not among them.
KEYS = ["Up", "Down", "Left", "Right", "Tab", "space", "Escape", "Home", "End", "Prior", "Next", "F6", "F10", "Alt_L", "plus", "minus",
        "ctrl+i", "ctrl+u", "ctrl+w", "ctrl+l", "ctrl+k", "ctrl+b", "ctrl+n", "ctrl+r", "ctrl+g", "ctrl+t", "ctrl+m", "ctrl+e",
        "ctrl+f", "ctrl+F1", "ctrl+shift+r", "ctrl+shift+c"]
SEARCHES = ["hebrew", "chinese", "english", "black", "silver", "browse", "edit", "print", "below", "minimize",
            "print preview", "options"]
REST = ["key"] + ["Escape"] * 5
# What leads to the state in which growth is measured, and what the record says then.
SHOWN_AT_REST = [("hebrew", "language", "he"), ("chinese", "language", "zh-CN"), ("black", "skin", "black"), ("edit", "mode", "edit"),
                 ("print", "mode", "print"), ("english", "language", "en"), ("silver", "skin", "silver"), ("browse", "mode", "browse")]
# What is shown once before growth is measured, by its search and its name in the record. Its first time makes what is kept: lists,
# images, tooltips' windows.
SHOWN_ONCE = [("about", "about"), ("options", "options"), ("print preview", "preview")]
TRIES_AT_REST = 3
DOINGS = 30  # that are told of a wait: what set it off is among the first
HEIGHT_OF_A_CAPTION = 40  # a window of no more than that is minimised
LEAST_HEIGHT = 250  # at 100 %; a lower window has no room for its ribbon and the search in it
# Most events come before the one before them has done all that it set off, as those of a quick hand do; now and then one waits
# for that, however long it takes, so that what it meets on the screen is up to date and no more than these few lie in the queue.
QUICK = Pace(0.015, 1)
UP_TO_DATE = Pace(10, 3)
EVENTS_TO_A_REST = 16
PAUSE_BETWEEN_RECORDS = 200  # milliseconds; the viewer's record costs more than most events
# What the viewer took from its queue last says what closed it: these messages are input or come of it.
TOLD_MESSAGES = {0x0010: "close", 0x00A1: "button down on the frame", 0x0100: "key", 0x0104: "key with Alt", 0x0111: "command",
                 0x0112: "system command", 0x0201: "button down", 0x0202: "button up", 0x0203: "double click"}


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


class Place:
    """Of the window, as its record tells it: left, top, right, bottom on the screen."""

    def __init__(self, viewer):
        self._viewer = viewer
        self.box = (0, 0, 1280, 800)
        self.status = (0, 770, 1280, 800)
        self.is_mirrored = False

    def read(self):
        record = self._viewer.last_record()
        if record is None:
            return
        self.box = tuple(record["frameOnScreen"])
        self.status = record["statusOnScreen"]
        self.is_mirrored = record["language"] == "he"

    def is_minimised(self):
        return self.height() <= HEIGHT_OF_A_CAPTION

    def height(self):
        return self.box[3] - self.box[1]

    def seen(self):
        """Of the box what lies on the screen; the rest is out of a hand's reach."""
        left, top, right, bottom = self.box
        return held(left + 2, SCREEN_WIDTH), held(top + 2, SCREEN_HEIGHT), held(right + 2, SCREEN_WIDTH), held(bottom + 2, SCREEN_HEIGHT)

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

    def __init__(self, viewer, hands, seed, scale):
        self._viewer = viewer
        self._hands = hands
        self._seed = seed
        self._random = None  # the event's own: what one does with it changes nothing of those behind it
        self._scale = scale / 100
        self._place = Place(viewer)
        self._kinds = [(330, self.click), (50, self.right_click), (100, self.wheel), (80, self.drag), (40, self.hover), (40, self.calm),
                       (60, self.search), (25, self.size), (5, self.maximize), (10, self.rebuild), (260, self.key)]
        self._looks_again = False  # the window has another place or size
        self.log = []  # (seconds since 1970, parts)
        self.missed = 0  # of what was to be shown at rest

    def point(self):
        # Not the window's own buttons, at the end of the caption in either direction, nor the exit in the application menu.
        left, top, right, bottom = self._place.box
        seen_left, seen_top, seen_right, seen_bottom = self._place.seen()
        while True:
            x = round(seen_left + self._random.random() * (seen_right - seen_left))
            y = round(seen_top + self._random.random() * (seen_bottom - seen_top))
            down, inward = (y - top) / self._scale, min(x - left, right - x) / self._scale
            in_caption = down < 34 and inward < 130
            at_exit = 270 < down < 480 and any(380 < side / self._scale < 620 for side in (x - left, right - x))
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
        return [REST, ["key", "ctrl+f"], ["type", text], ["key", "Return"]]

    def search(self):
        return self.searched(self._random.choice(SEARCHES))

    def key(self):
        return [["key", self._random.choice(KEYS)]]

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

    def is_low(self):
        return self._place.height() < LEAST_HEIGHT * self._scale

    def play(self, events):
        """How many of them went well: fewer when the viewer left."""
        kinds, shares = [kind for _, kind in self._kinds], [share for share, _ in self._kinds]
        for count in range(events):
            is_calm = self._looks_again or count % EVENTS_TO_A_REST == 0
            if is_calm:
                self._place.read()
                self._looks_again = False
            self._random = random.Random(f"{self._seed} {len(self.log)}")
            kind = self._random.choices(kinds, shares)[0]
            # A double click on its caption brings a minimised window back, too; there is nothing else to do with it. One that is too
            # low for most of what it has does not stay so for long.
            parts = self.maximize() if self._place.is_minimised() or is_calm and self.is_low() else kind()
            self.log.append((time.time(), parts))
            self._hands.give(parts, UP_TO_DATE if is_calm else QUICK)
            if self._viewer.has_left():
                return count
        return events

    def rest(self):
        """The state in which growth is measured: nothing is open, and everything has been shown once. False when the viewer has
        left."""
        for search, name in SHOWN_ONCE:
            self.bring(f"{name} shown", self.shows_dialog, search, name)
        # It comes with menus and toolbars.
        self._hands.give([*self.searched("customize"), REST])
        if self.sees(lambda record: record["classicBars"]):
            self._hands.give([["key", "alt+z"], REST])
            self.bring("the ribbon back", self.shows_ribbon)
        for search, name, value in SHOWN_AT_REST:
            self.bring(f"{name} {value}", self.shows, search, name, value)
        self._hands.give([REST])
        return not self._viewer.has_left()

    def bring(self, what, attempt, *arguments):
        if not any(attempt(*arguments) for _ in range(TRIES_AT_REST)) and not self._viewer.has_left():
            print(f"  {what} did not come at rest", flush=True)
            self.missed += 1

    def shows_ribbon(self):
        self._hands.give([REST, ["key", "ctrl+m"]])
        return self.sees(lambda record: not record["classicBars"])

    def shows_dialog(self, search, name):
        self.order(search)
        is_shown = self.sees(lambda record: record.get("dialog", {}).get("name") == name)
        self._hands.give([["key", "Escape"]])
        return is_shown and self.sees(lambda record: "dialog" not in record)

    def shows(self, search, name, value):
        """Whether the record says so soon after the command was searched for."""
        return self.order(search) and self.sees(lambda record: record[name] == value and record["map"]["finished"])

    def order(self, search):
        """Whether the search was there for it."""
        # Without a window manager a window that goes may leave the keys to nobody; a click gets them back.
        self._place.read()
        if self.is_low():
            self._hands.give(self.maximize())
            self.sees(lambda record: record["frameOnScreen"][3] - record["frameOnScreen"][1] > HEIGHT_OF_A_CAPTION)
            self._place.read()
        self._hands.give([REST, *self.pressed(*self._place.caption(), 1), REST, ["key", "ctrl+f"]])
        is_open = self.sees(lambda record: record["search"]["open"])
        self._hands.give([["type", search], ["key", "Return"]])
        return is_open

    def sees(self, condition):
        end = time.monotonic() + DEADLINE / 4  # there are more tries
        while time.monotonic() < end and not self._viewer.has_left():
            record = self._viewer.last_record()
            if record is not None and condition(record):
                return True
            time.sleep(0.02)
        return False

    def doings(self, wait):
        """What was done just before a wait and during it."""
        return [spoken(parts) for when, parts in self.log if wait["began"] / 1000 - 1 < when < wait["ended"] / 1000][:DOINGS]


def told(watch, name="longest"):
    """The whole lines of the watchman that have this name, or all."""
    with open(watch, encoding="utf-8") as file:
        lines = [json.loads(line) for line in file if line.endswith("\n")]
    return [line for line in lines if not name or name in line]


def last_taken(watch):
    """What of input the viewer took from its queue before it left in order; nothing where it did not."""
    return [f'{TOLD_MESSAGES[entry["message"]]} {entry["wParam"]:#x} {entry["lParam"]:#x} of {entry["class"]}'
            for line in told(watch, "left") for entry in line["left"] if entry["message"] in TOLD_MESSAGES]


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
        self.left_in_order = False
        self.before = self.after = None
        self.missed = self.longest = self.longest_own = 0

    @property
    def is_well(self):
        return ((self.exit_code is None or self.left_in_order) and self.missed == 0 and self.longest_own < LONGEST_WAIT and
                (self.after is None or self.after.is_flat_after(self.before)))

    def live(self, folder, seed, events, arguments, scale):
        with tempfile.TemporaryDirectory() as notes:
            watch = os.path.join(notes, "watch.txt")
            with Viewer(folder, *arguments, "--scale", scale, "--watch", watch, "--record-pause", PAUSE_BETWEEN_RECORDS, "--stay") as viewer:
                process = program_of(viewer.record_file)
                with MachineTime(process, server_of(PREFIX), viewer.display_server) as machine, Hands(viewer.environment, process) as hands:
                    monkey = Monkey(viewer, hands, seed, scale)
                    self.play(monkey, viewer, events, lambda: Held(process, watch))
                    if viewer.has_left():
                        self.exit_code = viewer.wait_for_end()
                        print(f"  left with {self.exit_code} after:", *(spoken(parts) for _, parts in monkey.log[-8:]), sep="\n    ")
                        taken = last_taken(watch)
                        self.left_in_order = self.exit_code == 0 and bool(taken)
                        print("  having taken:", *taken, sep="\n    ", flush=True)
                    self.missed = monkey.missed
                    self.judge(watch, machine, monkey)

    def play(self, monkey, viewer, events, look):
        """Looks at what is held after a part of the events, when what is made once is made, and at the end."""
        self.played = monkey.play(events // 4)
        if monkey.rest():
            self.before = look()
            self.played += monkey.play(events - events // 4)
            if monkey.rest():
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
    most_exits = FIRST_EXITS + events // EVENTS_OF_AN_EXIT
    while remaining > 0 and is_well and exits <= most_exits:
        life, begin = Life(), time.monotonic()
        life.live(folder, seed + 1000 * exits, remaining, ("--lang", language, "--skin", skin), scale)
        remaining -= life.played
        is_well = life.is_well
        state = "alive" if life.exit_code is None else f"left with {life.exit_code}"
        seconds = time.monotonic() - begin
        print(f"seed {seed + 1000 * exits}, {skin}, {language}, {scale} %: {life.played} events in {seconds:.0f} s, {state}, longest wait "
              f"{life.longest_own} ms ({life.longest} with the machine's part)\n  held: {life.before}\n  then: {life.after}", flush=True)
        exits += life.exit_code is not None
    return is_well and exits <= most_exits


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder")
    parser.add_argument("--events", type=int, default=20000)
    parser.add_argument("--each", type=int)
    parser.add_argument("--seed", type=int, default=20)
    parser.add_argument("--skins", nargs="+", default=["silver", "black"])
    parser.add_argument("--langs", nargs="+", default=["en", "zh-CN", "he"])
    parser.add_argument("--scales", type=int, nargs="+", default=[100, 150, 200])
    options = parser.parse_args()
    combinations = list(itertools.product(options.skins, options.langs, options.scales))
    events = options.each or options.events // len(combinations)
    results = [run(os.path.abspath(options.folder), options.seed + index, events, *combination)
               for index, combination in enumerate(combinations)]
    print(f"{sum(results)} of {len(results)} runs went well")
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
