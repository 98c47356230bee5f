#!/usr/bin/python3
"""The rules by which the random input judges a wait.

usage: machine_time_test.py [TEST...]
"""
import os
import sys
import threading
import time
import unittest

from machine_time import Ledger, Thread, own_part


class OwnPartOfAWait(unittest.TestCase):
    def ledger(self, *rows):
        ledger = Ledger()
        for row in rows:
            ledger.add(*row)
        return ledger

    def test_time_without_a_processor_is_not_the_programs(self):
        ledger = self.ledger((1, 10.0, 3.0), (1, 11.0, 3.9), (1, 12.0, 4.7))
        self.assertAlmostEqual(ledger.starved(10.0, 12.0), 1.7)
        self.assertEqual(own_part(2000, 1700), 300)

    def test_a_wait_of_a_program_that_asks_for_no_processor_counts_in_full(self):
        ledger = self.ledger((1, 10.0, 3.0), (1, 11.0, 3.0), (1, 12.0, 3.0))
        self.assertEqual(ledger.starved(10.0, 12.0), 0)
        self.assertEqual(own_part(2000, 0), 2000)

    def test_readings_before_and_behind_the_wait_do_not_count(self):
        ledger = self.ledger((1, 9.0, 0.0), (1, 10.1, 3.0), (1, 11.9, 3.5), (1, 13.0, 9.0))
        self.assertAlmostEqual(ledger.starved(10.0, 12.0), 0.5)

    def test_threads_add_up_to_no_more_than_the_wait(self):
        ledger = self.ledger((1, 10.0, 0.0), (1, 11.0, 0.9), (2, 10.0, 0.0), (2, 11.0, 0.9))
        self.assertAlmostEqual(ledger.starved(10.0, 11.0), 1.0)

    def test_whoever_is_silent_for_ten_seconds_hangs_whatever_the_machine_does(self):
        self.assertEqual(own_part(10000, 9999), 10000)


class ReadinessOfAThread(unittest.TestCase):
    def test_a_thread_that_sleeps_is_not_ready(self):
        thread = Thread(os.getpid(), threading.get_native_id())
        before = thread.ready_seconds()
        time.sleep(0.5)
        self.assertLess(thread.ready_seconds() - before, 0.4)

    def test_a_thread_that_is_gone_has_no_figure(self):
        ends = threading.Event()
        other = threading.Thread(target=ends.wait)
        other.start()
        thread = Thread(os.getpid(), other.native_id)
        self.assertIsNotNone(thread.ready_seconds())
        ends.set()
        other.join()
        time.sleep(0.1)
        self.assertIsNone(thread.ready_seconds())


if __name__ == "__main__":
    if len(sys.argv) > 1 and os.path.isdir(sys.argv[1]):
        sys.argv.pop(1)  # the programs' folder, which other tests need
    unittest.main(verbosity=2)
