#!/usr/bin/python3
"""Checks #include lines against scripts/layers.txt, and that no header includes itself through others."""
import os
import re
import subprocess
import sys

import layer_table
from layer_table import TABLE

INCLUDE = re.compile(r'^\s*#\s*include\s+["<]([^">]+)[">]')


def read_table():
    allowed, public, rooms, uses, exceptions = {}, [], {}, {}, set()
    for line in layer_table.lines():
        words = line.split()
        if words[0] in ("storeys", "about", "knot"):
            continue
        if words[0] == "public":
            public = words[1:]
        elif words[0] == "room":
            rooms[words[1]] = words[2]
        elif words[0] == "use":
            uses[words[1]] = set(words[3:])
        elif "=>" in words:
            exceptions.add((words[0], words[2]))
        else:
            allowed[words[0]] = set(words[2:])
    return allowed, public, rooms, uses, exceptions


def main():
    allowed, public, rooms, uses, exceptions = read_table()
    buildings = layer_table.read_storeys()
    listing = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.h", "*.cpp"],
                             check=True, capture_output=True, text=True)
    files = listing.stdout.split()
    known = set(files)
    # Where a quoted or angled name may lie: the folder of the file itself, the public folders, a layer, the top.
    roots = public + sorted(allowed) + [""]
    bad = []
    graph = {}

    def layer_of(path):
        return next((l for l in sorted(allowed, key=len, reverse=True) if path.startswith(l + "/")), None)

    def resolve(path, name):
        for root in [os.path.dirname(path)] + roots:
            candidate = os.path.normpath(os.path.join(root, name))
            if candidate in known:
                return candidate
        return None

    for path in files:
        layer = layer_of(path)
        if layer is None:
            bad.append(f"{path}: lies in no layer of {TABLE}")
            continue
        graph[path] = []
        for number, line in enumerate(open(path, encoding="utf-8"), 1):
            match = INCLUDE.match(line)
            target = resolve(path, match.group(1)) if match else None
            if target is None:
                continue
            graph[path].append(target)
            target_layer = layer_of(target)
            where = f"{path}:{number}: includes {target}"
            if (path, target) in exceptions or "*" in allowed[layer]:
                continue
            if target_layer != layer and not any(target.startswith(a + "/") for a in allowed[layer]):
                bad.append(f"{where}: {layer} may not use {target_layer}")
            if layer in uses and target in rooms and rooms[target] != layer and rooms[target] not in uses[layer]:
                bad.append(f"{where}: {layer} may not use {rooms[target]}")
            if target.startswith("include/") and layer in uses and target not in rooms and target != "include/barwright_api.h":
                bad.append(f"{where}: name the room of this header in {TABLE}")
            for storeys in buildings:
                room, target_room = storeys.room_of(path), storeys.room_of(target)
                if room is not None and target_room is not None and storeys.runs_upward(room, target_room):
                    bad.append(f"{where}: {room} lies below {target_room}")

    bad += [f"circle: {' -> '.join(circle)}" for circle in circles(graph)]
    for line in bad:
        print(line)
    return 1 if bad else 0


def circles(graph):
    state, stack = {}, []

    def visit(node):
        state[node] = 1
        stack.append(node)
        for target in graph.get(node, []):
            if state.get(target) == 1:
                yield stack[stack.index(target):] + [target]
            elif target not in state:
                yield from visit(target)
        stack.pop()
        state[node] = 2

    for node in graph:
        if node not in state:
            yield from visit(node)


sys.setrecursionlimit(10000)
sys.exit(main())
