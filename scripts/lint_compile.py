#!/usr/bin/python3
"""Checks that need a compiler.

usage: lint_compile.py headers   every header compiles alone, twice in one file, and with warnings as errors
       lint_compile.py tidy      clang-tidy over every source, with the commands that the builds recorded
What passed is remembered below build/lint/ by the content of the file, of everything that it includes and of the settings.
"""
import concurrent.futures
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys

ROOT = os.getcwd()
CROSS = "x86_64-w64-mingw32-g++-posix"
WINDOWS_FLAGS = ["-std=c++20", "-fms-extensions", "-Wall", "-Wextra", "-Werror", "-Wno-unknown-pragmas", "-DUNICODE", "-D_UNICODE",
                 "-DNOMINMAX", "-DWINVER=0x0A00", "-D_WIN32_WINNT=0x0A00", "-D_WIN32_IE=0x0A00"]
INCLUDE_ROOTS = ["platform/framework/include", "platform/varnhold/include", "platform/tovasque/include", "include", ".",
                 "platform/framework", "platform/varnhold", "platform/tovasque"]
INCLUDE = re.compile(rb'^\s*#\s*include\s+["<]([^">]+)[">]', re.M)
_content = {}


def content_key(path, seen=None):
    """Hash of a file and of all our files that it includes."""
    top = seen is None
    seen = {} if top else seen
    if path in seen:
        return None
    data = _content.get(path)
    if data is None:
        data = _content[path] = open(path, "rb").read()
    seen[path] = hashlib.sha256(data).hexdigest()
    for name in INCLUDE.findall(data):
        for root in [os.path.dirname(path)] + INCLUDE_ROOTS:
            candidate = os.path.normpath(os.path.join(root, name.decode("utf-8", "replace")))
            if os.path.isfile(candidate) and not os.path.isabs(candidate):
                content_key(candidate, seen)
                break
    return hashlib.sha256("".join(f"{k}{v}" for k, v in sorted(seen.items())).encode()).hexdigest() if top else None


def run_all(jobs, settings, folder):
    """jobs: (path, command, input text or None). Returns the number of failures."""
    os.makedirs(folder, exist_ok=True)
    salt = hashlib.sha256(settings.encode()).hexdigest()

    def run(job):
        path, command, text = job
        stamp = os.path.join(folder, hashlib.sha256((salt + path + content_key(path)).encode()).hexdigest())
        if os.path.exists(stamp):
            return 0
        result = subprocess.run(command, input=text, capture_output=True, text=True)
        if result.returncode == 0:
            open(stamp, "w").close()
            return 0
        print(f"--- {path}\n{result.stdout}{result.stderr[-3000:]}", flush=True)
        return 1

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return sum(pool.map(run, jobs))


def listed(*patterns):
    return subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", *patterns], check=True,
                          capture_output=True, text=True).stdout.split()


def headers():
    jobs = []
    for path in listed("*.h"):
        includes = [f"-I{root}" for root in INCLUDE_ROOTS]
        includes += ["-isystem", ".deps/boost-include", "-isystem", "/usr/src/googletest/googletest/include",
                     "-isystem", "/usr/src/googletest/googlemock/include"]
        text = f'#include "{path}"\n#include "{path}"\n'
        jobs.append((path, [CROSS, *WINDOWS_FLAGS, *includes, "-fsyntax-only", "-x", "c++", "-"], text))
    return run_all(jobs, " ".join(WINDOWS_FLAGS), "build/lint/headers")


def cross_system_includes():
    text = subprocess.run([CROSS, "-E", "-v", "-x", "c++", "/dev/null"], capture_output=True, text=True).stderr
    lines = text.split("search starts here:")[-1].split("End of search")[0].split("\n")
    folders = [line.strip() for line in lines if line.startswith(" ")]
    # The compiler's own intrinsics must be clang's.
    return [f for f in folders if not re.search(r"/\d+-posix/include$", f)]


def tidy_command(entry, cross):
    words = shlex.split(entry["command"])
    start = next(i for i, w in enumerate(words) if re.search(r"(g\+\+-posix|/c\+\+|g\+\+)$", w))
    flags, skip = [], False
    words = words[start + 1:]
    for i, word in enumerate(words):
        if skip:
            skip = False
            continue
        if word in ("-o", "-c"):
            skip = word == "-o"
            continue
        if word == entry["file"] or word in ("-fpch-preprocess", "-Winvalid-pch", "-g1", "-Werror") or word.startswith("-fsanitize"):
            continue
        if word == "-include":
            pch = words[i + 1]
            copy = "build/lint/pch/" + hashlib.sha256(pch.encode()).hexdigest()[:12] + ".h"
            os.makedirs(os.path.dirname(copy), exist_ok=True)
            if not os.path.exists(copy):
                open(copy, "w").write(open(pch).read())
            flags += ["-include", os.path.join(ROOT, copy)]
            skip = True
            continue
        flags.append(word)
    if cross:
        flags = ["--target=x86_64-w64-mingw32", "-nostdinc++"] + sum((["-isystem", f] for f in cross), []) + flags
    return ["clang-tidy", "--quiet", os.path.relpath(entry["file"], ROOT), "--", *flags]


def tidy():
    ours = set(listed("*.cpp"))
    jobs, done = [], set()
    for build, cross in (("native", None), ("windows-release", cross_system_includes())):
        for entry in json.load(open(f"build/{build}/compile_commands.json")):
            path = os.path.relpath(entry["file"], ROOT)
            if path in ours and path not in done:
                done.add(path)
                jobs.append((path, tidy_command(entry, cross), None))
    left = sorted(ours - done)
    if left:
        print("no build compiles: " + " ".join(left))
    return run_all(jobs, open(".clang-tidy").read(), "build/lint/tidy") + len(left)


sys.exit(1 if {"headers": headers, "tidy": tidy}[sys.argv[1]]() else 0)
