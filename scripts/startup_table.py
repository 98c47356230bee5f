#!/usr/bin/python3
"""Prints what bench_startup says as a table: medians of its starts in milliseconds, by phases, with the floors.

usage: startup_table.py RESULT.jsonl
Ends with 1 when a start is over a bar that we hold it to.
"""
import collections
import json
import statistics
import sys

# Milliseconds that a start with so many commands may take above an empty window's.
ABOVE_EMPTY = {1000: 150}
# How many times the start of the same program without the library: the frame, the files parsed, each icon file loaded.
TIMES_FLOOR = {1000: 1.5}


def main():
    starts = collections.defaultdict(list)
    for line in open(sys.argv[1], encoding="utf-8"):
        if line.startswith("{"):
            start = json.loads(line)
            starts[start["commands"], start["kind"]].append(start)

    def median(commands, kind, read):
        return statistics.median(read(start) for start in starts[commands, kind])

    def whole(commands, kind):
        return median(commands, kind, lambda start: start["wall"])

    over = 0
    for commands in sorted({commands for commands, _ in starts}):
        for kind in ("empty", "floor", "library"):
            phases = starts[commands, kind][0]["phases"]
            parts = ", ".join(f"{name} {median(commands, kind, lambda start: start['phases'][name]):.1f}" for name in phases)
            cpu = median(commands, kind, lambda start: start["cpu"])
            print(f"start with {commands:5} commands, {kind:8} {whole(commands, kind):8.1f} ms, processor {cpu:7.1f} ms ({parts})")
        above = whole(commands, "library") - whole(commands, "empty")
        times = whole(commands, "library") / whole(commands, "floor")
        for value, bars, what in ((above, ABOVE_EMPTY, "ms above an empty window"), (times, TIMES_FLOOR, "times the floor")):
            bar = bars.get(commands)
            held = "" if bar is None else f"   at most {bar}: {'ok' if value <= bar else 'OVER'}"
            over += held.endswith("OVER")
            print(f"{'':36}{value:8.2f} {what}{held}")
    return 1 if over or not starts else 0


sys.exit(main())
