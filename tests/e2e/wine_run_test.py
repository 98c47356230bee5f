#!/usr/bin/python3
"""Tests of scripts/wine-run: whom a caller waits for, and what is said when no virtual display can be had.

usage: wine_run_test.py BIN_DIR [TEST...]
"""
import contextlib
import os
import shutil
import subprocess
import sys
import tempfile
import threading
import time
import unittest

from wine_session import PREFIX, ROOT, alone_in_prefix

WINE_RUN = os.path.join(ROOT, "scripts", "wine-run")
DEADLINE = 60
BIN_DIR = ""


def setUpModule():
    unittest.enterModuleContext(alone_in_prefix())


def environment(**changes):
    """As it is, but for the prefix of these tests and without a display unless one is given."""
    result = dict(os.environ, BARWRIGHT_WINEPREFIX=PREFIX, **changes)
    if "DISPLAY" not in changes:
        result.pop("DISPLAY", None)
    return result


def end_session():
    for option in ("-k", "-w"):
        subprocess.run(["wineserver", option], env=dict(os.environ, WINEPREFIX=PREFIX), stderr=subprocess.DEVNULL)


@contextlib.contextmanager
def display():
    read_end, write_end = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write_end), "-nolisten", "tcp", "-noreset"],
                              pass_fds=[write_end], stderr=subprocess.DEVNULL)
    os.close(write_end)
    try:
        with os.fdopen(read_end) as numbers:
            yield ":" + numbers.readline().strip()
    finally:
        server.terminate()
        server.wait()


class Program:
    """line_echo, run by wine-run: it lives until its standard input is closed, and ends with 3."""

    def __init__(self, options, variables):
        self._process = subprocess.Popen([WINE_RUN, *options, os.path.join(BIN_DIR, "line_echo.exe")], env=variables, stdin=subprocess.PIPE,
                                         stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.errors = None
        self._reader = threading.Thread(target=self._read_errors)
        self._reader.start()

    def _read_errors(self):
        with self._process.stderr as errors:
            self.errors = errors.read()

    def answers(self, text):
        """The program is at work once it has answered."""
        self._process.stdin.write(text.encode() + b"\n")
        self._process.stdin.flush()
        return self._process.stdout.readline().strip().decode() == text

    def lives(self):
        return self._process.poll() is None

    def leave(self):
        self._process.stdin.close()
        self._process.stdout.close()
        return self._process.wait(timeout=DEADLINE)

    def seconds_to_the_end_of_errors(self):
        begin = time.monotonic()
        self._reader.join(timeout=DEADLINE)
        return time.monotonic() - begin if self.errors is not None else None


class StandardErrorOfAProgram(unittest.TestCase):
    def setUp(self):
        # Makes the prefix, which the tests need as it is, and nobody else's services run in it afterwards.
        subprocess.run([WINE_RUN, "--null", os.path.join(BIN_DIR, "line_echo.exe")], env=environment(), stdin=subprocess.DEVNULL)
        end_session()
        self.addCleanup(end_session)

    def see_it_end_with_the_program(self, options, variables):
        """The first program of a session, whose services inherit what it has, ends before the second one."""
        first = Program(options, variables)
        self.assertTrue(first.answers("one"))
        second = Program(options, variables)
        self.assertTrue(second.answers("two"))
        self.assertEqual(first.leave(), 3)
        waited = first.seconds_to_the_end_of_errors()
        is_second_alive = second.lives()
        second.leave()
        self.assertIsNotNone(waited, f"the errors did not end within {DEADLINE} s")
        self.assertLess(waited, 3)
        self.assertTrue(is_second_alive)
        self.assertIn(b"one", first.errors)

    def test_it_ends_with_the_program_on_the_null_driver_while_another_one_runs(self):
        self.see_it_end_with_the_program(["--null"], environment())

    def test_it_ends_with_the_program_on_a_display_while_another_one_runs(self):
        with display() as name:
            self.see_it_end_with_the_program([], environment(DISPLAY=name))

    def test_it_ends_with_the_program_on_a_virtual_display_of_its_own(self):
        program = Program([], environment())
        self.assertTrue(program.answers("one"))
        self.assertEqual(program.leave(), 3)
        self.assertLess(program.seconds_to_the_end_of_errors(), 3)
        self.assertIn(b"one", program.errors)


class VirtualDisplay(unittest.TestCase):
    """What wine-run does with an Xvfb that is not as it should be: a script of that name stands first in the path."""

    def run_with(self, script, **variables):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "Xvfb")
            with open(path, "w", encoding="utf-8") as file:
                file.write("#!/bin/sh\n" + script)
            os.chmod(path, 0o755)
            begin = time.monotonic()
            result = subprocess.run([WINE_RUN, os.path.join(BIN_DIR, "line_echo.exe")], stdin=subprocess.DEVNULL, capture_output=True, text=True,
                                    timeout=3 * DEADLINE, env=environment(PATH=folder + ":" + os.environ["PATH"], **variables))
            return result, time.monotonic() - begin

    def test_one_that_takes_seven_seconds_to_start_is_waited_for(self):
        result, seconds = self.run_with(f'sleep 7; exec {shutil.which("Xvfb")} "$@"\n')
        self.assertEqual(result.returncode, 3, result.stderr)
        self.assertGreater(seconds, 7)

    def test_one_that_ends_is_told_at_once_with_its_last_words(self):
        result, seconds = self.run_with("echo 'no room for a screen' >&2; exit 1\n")
        self.assertEqual(result.returncode, 1)
        self.assertIn("wine-run: the virtual display (Xvfb) ended instead of starting: no room for a screen", result.stderr)
        self.assertLess(seconds, 30)

    def test_one_that_never_says_its_number_is_told_with_the_time_that_was_waited(self):
        result, _ = self.run_with("exec sleep 100\n", BARWRIGHT_DISPLAY_SECONDS="2")
        self.assertEqual(result.returncode, 1)
        self.assertIn("said no number within 2 s", result.stderr)


if __name__ == "__main__":
    BIN_DIR = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
