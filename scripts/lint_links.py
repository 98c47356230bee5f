#!/usr/bin/python3
"""Checks the calls between the framework's object files against its storeys in scripts/layers.txt: a call closes a circle
that no include shows.

usage: lint_links.py BUILD [--edges] [--knots]
A unit (an object file) may use its own room and those below; what it needs from above it asks through virtual functions.
No circle of units that use each other spans two rooms or is larger than the table's knot. --edges prints every edge that
runs upward with its symbols, --knots the circles.
"""
import collections
import glob
import os
import re
import subprocess
import sys

import layer_table


def units(build, folder, rooms):
    """{unit: object file}; a unit is named by its source, as in window/view.cpp"""
    found = {}
    for path in glob.glob(f"{build}/{folder}/**/*.obj", recursive=True):
        match = re.search(r"\.dir/(.*\.cpp)\.obj$", path)
        if not match:
            continue
        # A target in a room's own folder names its sources from there.
        target = os.path.relpath(path.split("CMakeFiles/")[0], f"{build}/{folder}")
        unit = os.path.normpath(os.path.join(target, match[1].replace("__/", "../")))
        # A source that has moved leaves its object behind.
        if unit.split("/")[0] in rooms and os.path.exists(f"{folder}/{unit}"):
            found[unit] = path
    return found


def symbols(path):
    """(defined here and nowhere else by right, used)"""
    text = subprocess.run(["x86_64-w64-mingw32-nm", path], check=True, capture_output=True, text=True).stdout
    defined, used = set(), set()
    for line in text.splitlines():
        words = line.split()
        if len(words) < 2:
            continue
        kind, name = words[-2], words[-1]
        if name.startswith("_ZTI"):
            continue  # the type record of an exported class lies wherever its header is read, and names its base's
        if kind == "U":
            used.add(name.removeprefix("__imp_"))
        elif kind in "TDBR":
            defined.add(name)
    return defined, used


def link_edges(objects):
    """{(from, to): symbols}"""
    tables = {unit: symbols(path) for unit, path in sorted(objects.items())}
    owners = collections.defaultdict(set)
    for unit, (defined, _) in tables.items():
        for name in defined:
            owners[name].add(unit)
    edges = collections.defaultdict(set)
    for unit, (defined, used) in tables.items():
        for name in used - defined:
            if len(owners[name]) == 1:
                edges[unit, next(iter(owners[name]))].add(name)
    return edges


def knots(nodes, edges):
    """Sets of units that reach each other, the largest first (Tarjan, without recursion)."""
    following = collections.defaultdict(list)
    for start, end in edges:
        following[start].append(end)
    index, low, stack, on_stack, found = {}, {}, [], set(), []
    for root in nodes:
        if root in index:
            continue
        work = [(root, iter(following[root]))]
        index[root] = low[root] = len(index)
        stack.append(root)
        on_stack.add(root)
        while work:
            node, rest = work[-1]
            for target in rest:
                if target not in index:
                    index[target] = low[target] = len(index)
                    stack.append(target)
                    on_stack.add(target)
                    work.append((target, iter(following[target])))
                    break
                if target in on_stack:
                    low[node] = min(low[node], index[target])
            else:
                work.pop()
                if work:
                    low[work[-1][0]] = min(low[work[-1][0]], low[node])
                if low[node] == index[node]:
                    at = stack.index(node)
                    found.append(sorted(stack[at:]))
                    on_stack.difference_update(stack[at:])
                    del stack[at:]
    return sorted((knot for knot in found if len(knot) > 1), key=len, reverse=True)


def demangled(names):
    text = subprocess.run(["c++filt"], input="\n".join(sorted(names)), capture_output=True, text=True).stdout
    return text.split("\n")


def main():
    build, options = sys.argv[1], sys.argv[2:]
    bad = 0
    for storeys in layer_table.read_storeys():
        folder = storeys.folder
        objects = units(build, folder, storeys.rooms)
        if not objects:
            print(f"{folder}: no object files below {build}; build it first")
            return 1
        edges = link_edges(objects)
        upward = {edge: names for edge, names in edges.items()
                  if storeys.runs_upward(edge[0].split("/")[0], edge[1].split("/")[0])}
        for (start, end), names in sorted(upward.items()):
            shown = demangled(names)
            print(f"{folder}/{start}: calls up into {end}: {shown[0]}" + (f" and {len(shown) - 1} more" if shown[1:] else ""))
            if "--edges" in options:
                print("".join(f"    {name}\n" for name in shown), end="")
        bad += len(upward)
        circles = knots(objects, edges)
        for knot in circles:
            spread = collections.Counter(unit.split("/")[0] for unit in knot)
            if len(spread) > 1 or len(knot) > storeys.knot:
                bad += 1
                print(f"{folder}: a knot of {len(knot)} units: " + ", ".join(f"{room} {count}" for room, count in spread.items()))
            if "--knots" in options:
                print(f"knot of {len(knot)}: " + " ".join(knot))
        print(f"{folder}: {len(objects)} units, {len(upward)} edges run upward, largest knot "
              f"{len(circles[0]) if circles else 1} units")
    return 1 if bad else 0


sys.exit(main())
