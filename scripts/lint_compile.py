#!/usr/bin/python3
"""Checks that need a compiler.

usage: lint_compile.py headers   every header compiles alone, twice in one file, and with warnings as errors
       lint_compile.py tidy [FOLDER...]   clang-tidy over every source, with the commands that the builds recorded
       lint_compile.py tidy FILE...       over these alone: a quick look, which is not remembered
What passed is remembered in the user's cache (scripts/cache-folder), for every checkout, by the content of the file, of everything that it includes and of the settings.
"""
import bisect
import concurrent.futures
import functools
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys

import includes

ROOT = os.getcwd()
CROSS = "x86_64-w64-mingw32-g++-posix"
WINDOWS_FLAGS = ["-std=c++20", "-fms-extensions", "-Wall", "-Wextra", "-Werror", "-Wno-unknown-pragmas", "-DUNICODE", "-D_UNICODE",
                 "-DNOMINMAX", "-DWINVER=0x0A00", "-D_WIN32_WINNT=0x0A00", "-D_WIN32_IE=0x0A00"]
NATIVE_FLAGS = ["-std=c++20", "-Wall", "-Wextra", "-Werror", "-Wno-unknown-pragmas"]
INCLUDE_ROOTS = ("platform/framework/include", "platform/varnhold/include", "platform/tovasque/include", "include", ".",
                 "platform/framework", "platform/varnhold", "platform/tovasque")
BATCH = 12  # sources that clang-tidy reads in one go, at most about
CACHE = subprocess.run(["scripts/cache-folder", "lint"], check=True, capture_output=True, text=True).stdout.strip()


@functools.cache
def digest(path):
    with open(path, "rb") as file:
        return hashlib.sha256(file.read()).hexdigest()


@functools.cache
def content_key(path):
    """Hash of a file and of all our files that it includes."""
    files = sorted(includes.closure(path, INCLUDE_ROOTS))
    return hashlib.sha256("".join(name + digest(name) for name in files).encode()).hexdigest()


def run_all(paths, job_of, settings, folder):
    """job_of(path): (path, command, input text or None), asked of what was not checked before. Returns the number of
    failures."""
    os.makedirs(folder, exist_ok=True)
    salt = hashlib.sha256(settings.encode()).hexdigest()

    def stamp_of(path):
        return os.path.join(folder, hashlib.sha256((salt + path + content_key(path)).encode()).hexdigest())

    jobs = [job_of(path) for path in paths if not os.path.exists(stamp_of(path))]

    def run(job):
        path, command, text = job
        stamp = stamp_of(path)
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


SYSTEM_INCLUDES = [".deps/boost-include", ".deps/json-include", ".deps/pugixml/src", "/usr/src/googletest/googletest/include",
                   "/usr/src/googletest/googlemock/include"]


# What most headers begin with, the largest first. A header that includes one of these anyway is read behind its precompiled
# form, unless it is a part of it: that says the same of the header in a fraction of the time.
PREFIXES = [("afxcontrolbars.h", "gtest/gtest.h"), ("afxcontrolbars.h",), ("afxwin.h", "gtest/gtest.h"), ("afxwin.h",),
            ("windows.h",), ("gtest/gtest.h",)]


@functools.cache
def reached(path):
    """The file, all of ours that it includes, and the names of everything that these include."""
    files = includes.closure(path, INCLUDE_ROOTS) if os.path.isfile(path) else {path}
    return frozenset(files).union(*[includes.written(file) for file in files if os.path.isfile(file)])


def place_of(name):
    """Where an include of that name leads among our files; the name itself when nowhere."""
    return includes.place_of(name, INCLUDE_ROOTS) or name


def prefix_of(path):
    for names in PREFIXES:
        if all(name in reached(path) for name in names) and not any(path in reached(place_of(name)) for name in names):
            return names
    return ()


def precompiled(names, command):
    """The header that includes them, with its precompiled form beside it."""
    text = "".join(f"#include <{name}>\n" for name in names)
    said = "".join([text, *command, *[content_key(place) for place in map(place_of, names) if os.path.isfile(place)]])
    header = f"build/lint/prefix/{hashlib.sha256(said.encode()).hexdigest()[:16]}.h"
    if not os.path.exists(header + ".gch"):
        os.makedirs(os.path.dirname(header), exist_ok=True)
        open(header, "w").write(text)
        subprocess.run([*command, "-x", "c++-header", header, "-o", header + ".gch"], check=True)
    return header


def headers():
    ours = listed("*.h")
    folders = [f"-I{root}" for root in INCLUDE_ROOTS] + sum((["-isystem", folder] for folder in SYSTEM_INCLUDES), [])
    checks = [([CROSS, *WINDOWS_FLAGS], ours), (["g++", *NATIVE_FLAGS], portable(ours))]
    failures = 0
    for compiler, paths in checks:
        command = [*compiler, *folders]
        prefixes = {path: prefix_of(path) for path in paths} if compiler[0] == CROSS else {}

        def checked(path):
            names = prefixes.get(path, ())
            begin = ["-include", precompiled(names, command)] if names else []
            return path, [*command, *begin, "-fsyntax-only", "-x", "c++", "-"], f'#include "{path}"\n#include "{path}"\n'

        failures += run_all(paths, checked, " ".join(command), os.path.join(CACHE, "headers"))
    return failures


def portable(ours):
    """The headers that the native build reads, for each source as its compiler sees it."""
    commands = []
    for entry in json.load(open("build/native/compile_commands.json")):
        if not os.path.relpath(entry["file"], ROOT).startswith((".deps", "..")):
            words = shlex.split(entry["command"])
            at = words.index("-o")
            commands.append(words[:at] + words[at + 2:] + ["-MM"])
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        rules = pool.map(lambda c: subprocess.run(c, check=True, capture_output=True, text=True).stdout, commands)
    read = {os.path.relpath(name, ROOT) for rule in rules for name in rule.split()}
    return sorted(read & set(ours))


def cross_system_includes():
    text = subprocess.run([CROSS, "-E", "-v", "-x", "c++", "/dev/null"], capture_output=True, text=True).stderr
    lines = text.split("search starts here:")[-1].split("End of search")[0].split("\n")
    folders = [line.strip() for line in lines if line.startswith(" ")]
    # The compiler's own intrinsics must be clang's.
    return [f for f in folders if not re.search(r"/\d+-posix/include$", f)]


# What GCC knows and clang does not, and what says nothing to a check.
GCC_ONLY = ("-fpch-preprocess", "-Winvalid-pch", "-fno-keep-inline-dllexport", "-fno-strict-aliasing", "-DNDEBUG")


def clang_flags(entry, cross):
    """The recorded command as flags for clang: without compiler, input, output, warnings and optimization."""
    words = shlex.split(entry["command"])
    start = next(i for i, w in enumerate(words) if re.search(r"(g\+\+-posix|/c\+\+|g\+\+)$", w))
    words = iter(words[start + 1:])
    flags = []
    for word in words:
        if word == "-o":
            next(words)
        elif word == "-include":
            flags += ["-include", prefix_header(next(words))]
        elif word == "-isystem":
            flags += [word, next(words)]
        elif word in ("-c", entry["file"]) or word in GCC_ONLY or re.match(r"-[WOg]|-fsanitize|-D\w+_EXPORTS$", word):
            continue
        else:
            flags.append(word)
    if cross:
        flags = ["--target=x86_64-w64-mingw32", "-nostdinc++"] + sum((["-isystem", f] for f in cross), []) + flags
    return flags


def prefix_header(path):
    """A copy elsewhere: beside the original lies the other compiler's precompiled form, which clang would take."""
    text = open(path).read()
    copy = os.path.join(ROOT, "build/lint/pch", hashlib.sha256(text.encode()).hexdigest()[:12] + ".h")
    os.makedirs(os.path.dirname(copy), exist_ok=True)
    if not os.path.exists(copy):
        open(copy, "w").write(text)
    return copy


def clang_text(text):
    """GCC takes the old form of message maps, ON_COMMAND(ID, OnX), clang wants ON_COMMAND(ID, &ThisClass::OnX)."""
    def qualified(message_map):
        return re.sub(r"^(\s*ON_\w+\((?:[^()]|\([^()]*\))*?)\b(?<!::)(?<!&)([A-Za-z_]\w*)\)(?=\s*$)", r"\1&ThisClass::\2)",
                      message_map[0], flags=re.M)
    return re.sub(r"^BEGIN_(TEMPLATE_)?MESSAGE_MAP.*?^END_MESSAGE_MAP", qualified, text, flags=re.M | re.S)


ERROR = "[clang-diagnostic-error]"


class Batch:
    """Sources with equal flags, checked as one text: reading and matching the system headers costs ten times what one
    source costs. Sources whose names clash come back as compile errors and go into another batch."""

    MESSAGE = re.compile(r"^([^:\n]+):(\d+):(\d+): (error|warning|note): (.*)$")

    def __init__(self, files, flags):
        self.files, self.flags = files, flags
        name = hashlib.sha256(" ".join([*files, *flags]).encode()).hexdigest()[:16]
        self.path = f"build/lint/batches/{name}.cpp"
        self.starts = []
        text = []
        for path in files:
            self.starts.append(len(text))
            text += clang_text(open(path, encoding="utf-8").read()).split("\n") + [""]
        os.makedirs(os.path.dirname(self.path), exist_ok=True)
        open(self.path, "w", encoding="utf-8").write("\n".join(text))

    def run(self, *options):
        folders = sorted({os.path.dirname(path) for path in self.files})
        near = sum((["-iquote", folder] for folder in folders), [])
        command = ["clang-tidy", "--quiet", *options, self.path, "--", *near, *self.flags, "-ferror-limit=0"]
        result = subprocess.run(command, capture_output=True, text=True)
        return result.returncode, [self.translated(line) for line in result.stdout.split("\n")]

    def translated(self, line):
        """(source file or None, kind, line of output as if the source had been checked alone)"""
        match = self.MESSAGE.match(line)
        if not match:
            return None, "", line
        path, number, column, kind, rest = match.groups()
        path = os.path.relpath(path, ROOT)
        if path != self.path:
            return path, kind, f"{path}:{number}:{column}: {kind}: {rest}"
        index = bisect.bisect_left(self.starts, int(number)) - 1
        source = self.files[index]
        return source, kind, f"{source}:{int(number) - self.starts[index]}:{column}: {kind}: {rest}"


def check_together(files, flags, options):
    """Checks the files as one text, and those whose names clash with others as a next one. Whether all are clean."""
    clean, pending = True, list(files)
    while pending:
        take, pending = pending, []
        # Hardly a batch has clashes: reading all of it once more to find out first costs a fifth of the whole check.
        code, lines = Batch(take, flags).run(*options)
        while len(take) > 1 and any(ERROR in line for _, _, line in lines):
            clashing = {source for source, _, line in lines if ERROR in line} - {take[0]}
            clashing = clashing & set(take) or set(take[1:])
            pending += [path for path in take if path in clashing]
            take = [path for path in take if path not in clashing]
            code, lines = Batch(take, flags).run(*options)
        if code:
            clean = False
            print("\n".join(line for _, _, line in lines if line.strip()), flush=True)
    return clean


def bucket(path, count):
    """Which of its room's batches a source belongs to: its name alone says it, so a new neighbour moves no other."""
    return int(hashlib.sha256(path.encode()).hexdigest(), 16) % count


def batches(ours):
    """{(flags, options, folder, bucket): sources} of everything that a build compiles, and the sources that none does.
    What the path analyzer finds depends on what it has read before. So a batch is made of one folder's sources, whatever
    was changed or asked for: the same tree gives the same findings, on this machine and on the next one."""
    rooms, done = {}, set()
    for build, cross in (("native", None), ("windows-release", cross_system_includes())):
        for entry in json.load(open(f"build/{build}/compile_commands.json")):
            path = os.path.relpath(entry["file"], ROOT)
            if path in ours and path not in done:
                done.add(path)
                # The path analyzer needs minutes for the branches that each EXPECT opens, and learns little from them.
                # A test says what it expects as plainly as it can, not as fast.
                options = ("--checks=-clang-analyzer-*,-performance-inefficient-*",) if path.startswith(("tests/", "bench/")) else ()
                rooms.setdefault((tuple(clang_flags(entry, cross)), options, os.path.dirname(path)), []).append(path)
    made = {}
    for room, paths in rooms.items():
        count = 1
        while len(paths) > BATCH * count:
            count *= 2
        for path in sorted(paths):
            made.setdefault((*room, bucket(path, count)), []).append(path)
    return made, sorted(set(ours) - done)


def tidy(wanted):
    """wanted: folders, whose batches are checked whole, or files, checked alone; nothing for every source."""
    wanted = [os.path.normpath(path) for path in wanted]
    alone = bool(wanted) and all(os.path.isfile(path) for path in wanted)
    folder, settings = os.path.join(CACHE, "tidy"), open(".clang-tidy").read()
    os.makedirs(folder, exist_ok=True)
    made, left = batches(listed("*.cpp"))
    if left:
        print("no build compiles: " + " ".join(left))
    jobs = []
    for (flags, options, *_), paths in made.items():
        if alone:
            jobs += [([path], flags, options, os.devnull) for path in paths if path in wanted]
        elif not wanted or any(path.startswith(tuple(folder + "/" for folder in wanted)) for path in paths):
            contents = [path + content_key(path) for path in paths]
            said = "".join([settings, *flags, *options, *contents]).replace(ROOT, ".")  # the same in every checkout
            stamp = os.path.join(folder, hashlib.sha256(said.encode()).hexdigest())
            if not os.path.exists(stamp):
                jobs.append((paths, flags, options, stamp))
    jobs.sort(key=lambda job: -sum(os.path.getsize(path) for path in job[0]))  # the longest first: no core waits at the end

    def run(paths, flags, options, stamp):
        clean = check_together(paths, flags, options)
        if clean:
            open(stamp, "w").close()
        return clean

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        failures = sum(not clean for clean in pool.map(lambda job: run(*job), jobs))
    return failures + len(left)


sys.exit(1 if {"headers": headers, "tidy": lambda: tidy(sys.argv[2:])}[sys.argv[1]]() else 0)
