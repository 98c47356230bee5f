#!/usr/bin/python3
"""Every tracked text file is UTF-8 without a byte order mark, has LF line ends and ends with one. In C++ the statements
below if, else, for, while and do stand in braces: the formatter puts each such word at the beginning of its line. In
Markdown a block of code below the comment "from FILE" stands in that file, line by line, and each source that is named in
backquotes by its path is there."""
import os
import re
import subprocess
import sys

BINARY = (".png", ".ico", ".bmp", ".corpus")


def problems(path):
    data = open(path, "rb").read()
    if not data:
        return
    try:
        data.decode("utf-8")
    except UnicodeDecodeError as error:
        yield f"not UTF-8 at byte {error.start}"
    if data.startswith(b"\xef\xbb\xbf"):
        yield "begins with a byte order mark"
    if b"\r" in data:
        yield f"carriage return in line {data[:data.index(bytes([13]))].count(bytes([10])) + 1}"
    if not data.endswith(b"\n"):
        yield "does not end with a line feed"
    for number, line in enumerate(data.split(b"\n"), 1):
        if line.endswith((b" ", b"\t")) and not path.endswith(".md"):
            yield f"white space at the end of line {number}"
    if path.endswith((".h", ".cpp")):
        yield from unbraced(data.decode().split("\n"))
    if path.endswith(".md"):
        yield from misquoted(data.decode())


QUOTE = re.compile(r"<!-- from (\S+) -->\n```\w*\n(.*?)```", re.DOTALL)
SOURCE = re.compile(r"`((?:[a-z_]+/)+\w+\.(?:h|cpp|py|cmake|json|tsv))`")


def misquoted(text):
    for source in sorted(set(SOURCE.findall(text))):
        # Guides shorten the paths of the framework, whose rooms they have named before.
        if not any(os.path.exists(os.path.join(root, source)) for root in (".", "platform/framework", "platform/framework/include")):
            yield f"there is no {source}"
    for source, block in QUOTE.findall(text):
        with open(source, encoding="utf-8") as file:
            lines = iter([line.strip() for line in file])
        for line in filter(None, map(str.strip, block.split("\n"))):
            if line not in lines:  # of an iterator: the next lines are looked for behind it
                yield f"not in {source}, or not there: {line}"
                break


HEAD = re.compile(r"\s*(?:\} )?(?:else if|if|for|while) (?:constexpr )?(?=\()|\s*(?:\} )?(?:else|do)\b(?! if)")
TEXT = re.compile(r"'(?:[^'\\]|\\.)'|\"(?:[^\"\\]|\\.)*\"|//.*")


def unbraced(lines):
    is_raw = False
    for number, line in enumerate(lines, 1):
        is_raw = ('R"' in line or is_raw) and not re.search(r'\)\w*"', line)
        if is_raw or not HEAD.match(line) or line.lstrip().startswith("} while"):
            continue
        code, at = TEXT.sub("", line), number
        while code.count("(") > code.count(")") and at < len(lines):
            code += TEXT.sub("", lines[at])
            at += 1
        if not code.rstrip().endswith(("{", "{}", "\\")):
            yield f"no brace after line {number}"


def main():
    listing = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], check=True, capture_output=True)
    bad = 0
    for path in filter(None, listing.stdout.decode().split("\0")):
        if path.endswith(BINARY):
            continue
        for problem in problems(path):
            print(f"{path}: {problem}")
            bad += 1
    return 1 if bad else 0


sys.exit(main())
