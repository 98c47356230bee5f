"""Which of our files a source includes."""
import functools
import os
import re

INCLUDE = re.compile(rb'^\s*#\s*include\s+["<]([^">]+)[">]', re.M)


@functools.cache
def written(path):
    """The names behind #include, as they are written."""
    with open(path, "rb") as file:
        return tuple(name.decode("utf-8", "replace") for name in INCLUDE.findall(file.read()))


def place_of(name, folders):
    """The path of the file of that name in the first of our folders that has one; None where none does."""
    places = (os.path.normpath(os.path.join(folder, name)) for folder in folders if not os.path.isabs(name))
    return next((place for place in places if os.path.isfile(place)), None)


@functools.cache
def direct(path, roots):
    """Our files that it includes itself, found where the compiler would find them."""
    places = (place_of(name, (os.path.dirname(path), *roots)) for name in written(path))
    return frozenset(place for place in places if place)


def closure(path, roots):
    """The file, and all of ours that it includes by any way."""
    found, pending = set(), [path]
    while pending:
        name = pending.pop()
        if name not in found:
            found.add(name)
            pending += direct(name, tuple(roots))
    return found
