#!/usr/bin/python3
"""Prints Google Benchmark's JSON results as a table: each figure beside its floors, which are named FIGURE/floor: WHAT.

usage: bench_table.py RESULT.json...
The time is the median of the repetitions.
"""
import json
import sys

MICROSECONDS = {"ns": 1e-3, "us": 1.0, "ms": 1e3, "s": 1e6}


def medians(path):
    for run in json.load(open(path, encoding="utf-8"))["benchmarks"]:
        if run.get("aggregate_name") == "median":
            yield run["run_name"], run["real_time"] * MICROSECONDS[run["time_unit"]]


def main():
    figures, floors = {}, []
    for path in sys.argv[1:]:
        for name, time in medians(path):
            if "/floor: " in name:
                figure, what = name.split("/floor: ", 1)
                what, _, argument = what.rpartition("/") if what.rpartition("/")[2].isdigit() else (what, "", "")
                floors.append((figure, argument, what, time))
            else:
                figures[name] = time
    print(f"{'figure':34} {'us':>12}   {'floor us':>12} {'ratio':>6}  floor")
    for name, time in figures.items():
        figure, _, argument = name.rpartition("/") if name.rpartition("/")[2].isdigit() else (name, "", "")
        matching = [f for f in floors if f[0] == figure and f[1] in ("", argument)]
        for i, (_, _, what, floor) in enumerate(matching or [(None, None, "none", None)]):
            left = f"{name:34} {time:12.3f}" if i == 0 else " " * 47
            right = f"{floor:12.3f} {time / floor:6.2f}" if floor else f"{'':12} {'':6}"
            print(f"{left}   {right}  {what}")


main()
