#!/usr/bin/python3
"""Compares what our DLLs export with the committed lists in tests/exports/.

usage: lint_exports.py BIN_DIR [--update]
"""
import os
import subprocess
import sys

LIBRARIES = ("barwright", "varnhold", "tovasque", "bwframework")
LISTS = "tests/exports"
# What the compiler exports beside a class: it comes and goes with its versions and says nothing about our interface.
NOISE = ("typeinfo", "vtable", "guard variable", "non-virtual thunk", "virtual thunk", "covariant")


def exported(path):
    dump = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", path], check=True, capture_output=True, text=True).stdout
    table = dump.split("[Ordinal/Name Pointer] Table", 1)[-1].split("\n\n", 1)[0]
    names = [line.split("] ", 1)[1].split()[-1] for line in table.splitlines() if "] " in line]
    readable = subprocess.run(["c++filt"], input="\n".join(names), check=True, capture_output=True, text=True).stdout
    return sorted({name for name in readable.split("\n") if name and not name.startswith(NOISE)})


def main():
    folder = sys.argv[1]
    update = "--update" in sys.argv
    differences = 0
    for library in LIBRARIES:
        found = exported(os.path.join(folder, library + ".dll"))
        path = os.path.join(LISTS, library + ".txt")
        if update:
            os.makedirs(LISTS, exist_ok=True)
            open(path, "w", encoding="utf-8").write("\n".join(found) + "\n")
            continue
        wanted = set(open(path, encoding="utf-8").read().splitlines()) if os.path.exists(path) else set()
        for name in sorted(wanted - set(found)):
            print(f"{library}: no longer exported: {name}")
            differences += 1
        for name in sorted(set(found) - wanted):
            print(f"{library}: exported but not in {path}: {name}")
            differences += 1
    if differences:
        print(f"Where this is meant: scripts/lint_exports.py {folder} --update")
    return 1 if differences else 0


sys.exit(main())
