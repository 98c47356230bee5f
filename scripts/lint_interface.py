#!/usr/bin/python3
"""The library against the documented class interface.

usage: lint_interface.py [FILE...]

  1. Every source of the library's folders that reaches a header of the framework compiles (syntax only) against the
     declarations that scripts/make-interface writes: those of the documentation, and the names of
     scripts/interface/beyond.inc. So whatever else it uses is an error here. Files named on the command line are compiled
     instead, which is how the check itself is tested.
  2. beyond.inc has no more than LIMIT names, each of them is used, and docs/host-guide.md lists them (--update writes the list).
  3. All of include/ compiles without warnings under -Wall -Wextra -Wpedantic, with GCC and with Clang.

What passed is remembered in the user's cache (scripts/cache-folder) by the content of everything that was read.
"""
import concurrent.futures
import functools
import hashlib
import importlib.machinery
import importlib.util
import os
import re
import subprocess
import sys

import includes

# What comes along with the library and has sources of its own.
ALONG = ["platform/framework/gdi/memory_dc.cpp", "platform/framework/gdi/device_pixels.cpp"]
LIMIT = 39
GENERATED = "build/interface"
ROOTS = [GENERATED, "platform/varnhold/include", "platform/tovasque/include", "include", ".", "platform/framework"]
GUIDE = "docs/host-guide.md"
CROSS = "x86_64-w64-mingw32-g++-posix"
FLAGS = ["-std=c++20", "-fms-extensions", "-DUNICODE", "-D_UNICODE", "-DNOMINMAX", "-DWINVER=0x0A00", "-D_WIN32_WINNT=0x0A00",
         "-D_WIN32_IE=0x0A00"]
BOOST = ["-isystem", ".deps/boost-include"]
STRICT = ["-Wall", "-Wextra", "-Wpedantic", "-Werror"]
# Read once for all sources; what a source includes itself is checked by the build.
PREFIX = ["algorithm", "functional", "map", "memory", "string", "vector", "interface.h"]
CACHE = subprocess.run(["scripts/cache-folder", "lint"], check=True, capture_output=True, text=True).stdout.strip()


def text_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


@functools.cache
def maker():
    loader = importlib.machinery.SourceFileLoader("make_interface", "scripts/make-interface")
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("make_interface", loader))
    loader.exec_module(module)
    return module


def digest(paths, *words):
    text = hashlib.sha256(" ".join(words).encode())
    for path in sorted(paths):
        text.update(f"{path}\0{text_of(path)}".encode())
    return text.hexdigest()


def remembered(key, command, what, source=None):
    """Whether the command succeeds, or has for the same key."""
    stamp = os.path.join(CACHE, "interface", key)
    if os.path.exists(stamp):
        return True
    result = subprocess.run(command, input=source, capture_output=True, text=True)
    if result.returncode:
        print(f"--- {what}\n{result.stderr[-4000:]}", flush=True)
        return False
    os.makedirs(os.path.dirname(stamp), exist_ok=True)
    maker().write(stamp, "")
    return True


def folders():
    """The library's: those whose uses of each other scripts/layers.txt lists."""
    return re.findall(r"^use (\w+) ->", text_of("scripts/layers.txt"), re.M)


def sources():
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "--", *[f"{f}/*.cpp" for f in folders()]],
                            check=True, capture_output=True, text=True).stdout.split()
    return sorted(path for path in {*listed, *ALONG} if os.path.exists(path))


def precompile(header, command):
    """Reads what all sources begin with once, when it has changed."""
    made, key = header + ".gch", digest(includes.closure(header, ROOTS), *command)
    if os.path.exists(made) and os.path.exists(f"{made}.{key}"):
        return True
    for name in os.listdir(GENERATED):
        if name.startswith("prefix.h.gch"):
            os.remove(f"{GENERATED}/{name}")
    result = subprocess.run([*command, "-x", "c++-header", header, "-o", made], capture_output=True, text=True)
    if result.returncode:
        print(f"--- the declarations of the interface\n{result.stderr[-4000:]}")
        return False
    maker().write(f"{made}.{key}", "")
    return True


def compile_against_the_interface(paths):
    """The number of sources that fail."""
    command = [CROSS, *FLAGS, "-w", "-DBARWRIGHT_BUILD", *[f"-I{root}" for root in ROOTS], *BOOST]
    maker().write(f"{GENERATED}/prefix.h", "".join(f"#include <{name}>\n" for name in PREFIX))
    jobs = []
    for path in paths:
        read = includes.closure(path, ROOTS)
        if any(name.startswith(GENERATED) for name in read):
            jobs.append((digest(read, *command), path))
    due = [(key, path) for key, path in jobs if not os.path.exists(os.path.join(CACHE, "interface", key))]
    if due and not precompile(f"{GENERATED}/prefix.h", command):
        return len(due)
    command += ["-fsyntax-only", "-fmax-errors=20", "-include", f"{GENERATED}/prefix.h"]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        passed = list(pool.map(lambda job: remembered(job[0], [*command, job[1]], job[1]), due))
    print(f"{len(jobs)} of {len(paths)} sources reach the framework, {len(due)} were compiled")
    return passed.count(False)


def clang_system():
    text = subprocess.run([CROSS, "-E", "-v", "-x", "c++", "/dev/null"], capture_output=True, text=True).stderr
    listed = text.split("search starts here:")[-1].split("End of search")[0].split("\n")
    # The compiler's own intrinsics must be clang's.
    folders = [line.strip() for line in listed if line.startswith(" ") and not re.search(r"/\d+-posix/include$", line)]
    return sum((["-isystem", folder] for folder in folders), [])


def compile_strictly():
    """include/ under strict warnings. The framework's headers are a system's to Clang: documented members hide documented
    ones of their base classes there, which it warns of."""
    roots = ["platform/framework/include", *ROOTS[1:]]
    public = sorted(f"include/{name}" for name in os.listdir("include") if name.endswith(".h"))
    text = "".join(f'#include "{path}"\n' for path in public)
    read = set().union(*(includes.closure(path, roots) for path in public))
    ours = [f"-I{root}" for root in roots[1:]]
    tail = [*BOOST, "-fsyntax-only", "-x", "c++", "-"]
    commands = [[CROSS, *FLAGS, *STRICT, f"-I{roots[0]}", *ours, *tail],
                ["clang++", "--target=x86_64-w64-mingw32", "-nostdinc++", "-isystem", roots[0], *clang_system(), *FLAGS, *STRICT, *ours,
                 *tail]]
    return sum(not remembered(digest(read, text, *command), command, f"include/ with {command[0]}", text) for command in commands)


def listed_names(names):
    """The names as the host guide shows them: a row a class, its own reason or its members with theirs."""
    rows = {}
    for name, line in names:
        reason = line.split("//", 1)[1].strip()
        owner, _, member = name.partition("::")
        rows.setdefault(owner, []).append(f"`{member}` ({reason})" if member else f"itself ({reason})")
    return "\n".join(["| class or global | what the library uses of it |", "|---|---|",
                      *(f"| `{owner}` | {'; '.join(members)} |" for owner, members in rows.items())])


def check_names(names, paths, is_update):
    failures = 0
    if len(names) > LIMIT:
        print(f"scripts/interface/beyond.inc: {len(names)} names, at most {LIMIT} are allowed: use documented means")
        failures += 1
    read = set().union(*(includes.closure(path, ROOTS) for path in paths))
    words = set(re.findall(r"\w+", "\n".join(text_of(path) for path in read if not path.startswith(GENERATED))))
    owners = {name.split("::")[0] for name, _ in names if "::" in name}  # in use by their members
    for name in [name for name, _ in names if name.split("::")[-1] not in words and name not in owners]:
        print(f"scripts/interface/beyond.inc: {name} is used no more: take it out")
        failures += 1
    text = text_of(GUIDE)
    first, last = "<!-- names beyond the interface -->\n", "\n<!-- end of the names -->"
    if text.count(first) != 1 or text.count(last) != 1:
        print(f"{GUIDE}: the two marks around the list of names are missing")
        return failures + 1
    before, after = text.split(first)[0], text.split(last)[1]
    wanted = f"{before}{first}\n{len(names)} names:\n\n{listed_names(names)}\n{last}{after}"
    if wanted != text and is_update:
        maker().write(GUIDE, wanted)
    elif wanted != text:
        print(f"{GUIDE}: the list of names is not that of beyond.inc: scripts/lint_interface.py --update")
        failures += 1
    return failures


def main(arguments):
    beyond = maker().generate(GENERATED)
    if arguments == ["--update"]:
        return check_names(beyond.names, sources(), True)
    if arguments:
        return compile_against_the_interface(arguments)
    paths = sources()
    failures = check_names(beyond.names, paths, False) + compile_against_the_interface(paths) + compile_strictly()
    print(f"{len(beyond.names)} names beyond the documented interface")
    return failures


if __name__ == "__main__":
    sys.exit(1 if main(sys.argv[1:]) else 0)
