#!/usr/bin/python3
"""Prints Google Benchmark's JSON results as a table: each figure beside its floors, which are named FIGURE/floor: WHAT.

usage: bench_table.py RESULT.json...
Times are medians of the repetitions: the time that passed and, in the columns marked cpu, what the processor spent on it.
On a busy machine only the latter says something. Where we hold ourselves to a bar it stands at the line's end; the program
ends with 1 when a figure is over it.
"""
import json
import sys

MICROSECONDS = {"ns": 1e-3, "us": 1.0, "ms": 1e3, "s": 1e6}

# (figure, beginning of the floor's name): how many times the floor's processor time the figure may take.
RATIO_BARS = {
    ("registry look-up of 5000", "std::map"): 1.3,
    ("dispatch to 10 reactors", ""): 1.5,
    ("file into records", ""): 3.0,
    ("full repaint", "each icon file"): 1.25,
    ("tab switch", "each icon file"): 1.25,
    ("skin switch", "its pictures"): 1.25,
    ("Load", "parse"): 1.5,
    ("scroll-bar drag frame", ""): 1.25,
    ("tooltip show", ""): 1.25,
}
# Microseconds, on a machine where loading one icon file takes 140.
TIME_BARS = {
    ("Load", "100"): 8_000,
    ("Load", "1000"): 52_000,
    ("Load", "5000"): 260_000,
    ("LoadMenu", "1000"): 2_000,
    ("LoadToolbars", "100"): 5_000,
    ("full repaint", ""): 15_000,
    ("tab switch", ""): 15_000,
    ("check of 5000 commands in four languages", ""): 1_000_000,
}

# How many times the processor time of the smallest argument the largest one may take: ten times the items, and what a
# screen shows of them.
GROWTH_BARS = {
    "fill a combo of three": 14.0,
    "set every item's check": 14.0,
    "set every item's light": 14.0,
    "paint 30 rows": 1.2,
}
# How many microseconds longer, by the clock, the largest argument may take than the smallest.
DIFFERENCE_BARS = {"open a list": 100_000}


def medians(path):
    for run in json.load(open(path, encoding="utf-8"))["benchmarks"]:
        if run.get("aggregate_name") == "median":
            unit = MICROSECONDS[run["time_unit"]]
            yield run["run_name"], (run["real_time"] * unit, run["cpu_time"] * unit)


def split(name):
    """A figure's name and its argument."""
    figure, _, argument = name.rpartition("/")
    return (figure, argument) if argument.isdigit() else (name, "")


def ratio(figure, floor):
    return f"{figure / floor:6.2f}" if floor else f"{'':6}"


def verdict(value, bar):
    return f"at most {bar:g}: {'ok' if value <= bar else 'OVER'}"


def bar_of(figure, argument, cpu, what, floor):
    """What the line is held to, in words, or nothing."""
    for (name, beginning), bar in RATIO_BARS.items():
        if floor and name == figure and what.startswith(beginning):
            return verdict(cpu / floor[1], bar)
    if (figure, argument) in TIME_BARS:
        return verdict(cpu, TIME_BARS[figure, argument])
    return ""


def print_growth(figures):
    """How a figure grows with its argument: 1 is independent of it, as many times as the argument is linear. Gives the
    number of figures that grow more than they may."""
    over = 0
    sizes = {}
    for name, times in figures.items():
        figure, argument = split(name)
        if argument:
            sizes.setdefault(figure, []).append((int(argument), times))
    grown = {figure: sorted(several) for figure, several in sizes.items() if len(several) > 1}
    if grown:
        print(f"\n{'figure':34} {'from':>8} {'to':>8} {'argument':>9} {'time':>8} {'cpu':>8}")
    for figure, several in grown.items():
        (least, (wall, cpu)), (most, (last_wall, last_cpu)) = several[0], several[-1]
        held = ""
        if figure in GROWTH_BARS:
            held = verdict(last_cpu / cpu, GROWTH_BARS[figure])
        elif figure in DIFFERENCE_BARS:
            held = "us longer " + verdict(last_wall - wall, DIFFERENCE_BARS[figure])
        over += held.endswith("OVER")
        line = f"{figure:34} {least:8} {most:8} {most / least:8.1f}x {last_wall / wall:7.2f}x {last_cpu / cpu:7.2f}x"
        print(f"{line}   {held}".rstrip())
    return over


def main():
    over = 0
    figures, floors = {}, []
    for path in sys.argv[1:]:
        for name, times in medians(path):
            if "/floor: " in name:
                figure, what = name.split("/floor: ", 1)
                floors.append((figure, *reversed(split(what)), times))
            else:
                figures[name] = times
    columns = f"{'us':>12} {'cpu us':>12}   {'floor us':>12} {'cpu us':>12} {'ratio':>6} {'cpu':>6}"
    print(f"{'figure':34} {columns}  floor")
    for name, (wall, cpu) in figures.items():
        figure, argument = split(name)
        matching = [f for f in floors if f[0] == figure and f[1] in ("", argument)]
        for i, (_, _, what, floor) in enumerate(matching or [(None, None, "none", None)]):
            left = f"{name:34} {wall:12.3f} {cpu:12.3f}" if i == 0 else " " * 60
            right = f"{'':40}"
            held = bar_of(figure, argument, cpu, what, floor)
            over += held.endswith("OVER")
            if floor:
                right = f"{floor[0]:12.3f} {floor[1]:12.3f} {ratio(wall, floor[0])} {ratio(cpu, floor[1])}"
            print(f"{left}   {right}  {what}{held and '   ' + held}")
    over += print_growth(figures)
    return 1 if over else 0


sys.exit(main())
