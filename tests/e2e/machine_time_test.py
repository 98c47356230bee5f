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
    def ledger(self, *looks):
        ledger = Ledger()
        for look in looks:
            ledger.add(*look)
        return ledger

    def test_time_without_a_processor_is_not_the_programs(self):
        ledger = self.ledger((10.0, {1: 3.0}), (11.0, {1: 3.9}), (12.0, {1: 4.7}))
        self.assertAlmostEqual(ledger.starved(10.0, 12.0), 1.7)
        self.assertEqual(own_part(2000, 1700), 300)

    def test_a_wait_of_a_program_that_asks_for_no_processor_counts_in_full(self):
        ledger = self.ledger((10.0, {1: 3.0}), (11.0, {1: 3.0}), (12.0, {1: 3.0}))
        self.assertEqual(ledger.starved(10.0, 12.0), 0)
        self.assertEqual(own_part(2000, 0), 2000)

    def test_looks_before_and_behind_the_wait_do_not_count(self):
        ledger = self.ledger((9.0, {1: 0.0}), (10.1, {1: 1.0}), (11.9, {1: 1.5}), (13.0, {1: 2.5}))
        self.assertAlmostEqual(ledger.starved(10.0, 12.0), 0.5)

    def test_time_in_which_several_threads_waited_counts_once(self):
        ledger = self.ledger((10.0, {1: 0.0, 2: 0.0}), (11.0, {1: 0.6, 2: 0.4}), (12.0, {1: 0.6, 2: 0.9}))
        self.assertAlmostEqual(ledger.starved(10.0, 12.0), 1.1)

    def test_a_thread_that_has_just_been_found_has_waited_for_nothing(self):
        ledger = self.ledger((10.0, {1: 0.0}), (11.0, {1: 0.0, 2: 0.8}))
        self.assertEqual(ledger.starved(10.0, 11.0), 0)

    def test_a_thread_that_hangs_counts_in_full_on_a_busy_machine(self):
        """Two threads that wait for each other: ready for a processor is neither, whatever else runs."""
        first, second = threading.Lock(), threading.Lock()
        first.acquire()
        second.acquire()
        hanging = threading.Thread(target=first.acquire, daemon=True)
        hanging.start()
        busy = [threading.Thread(target=self.work, args=(second,), daemon=True) for _ in range(4)]
        for thread in busy:
            thread.start()
        ledger, watched = Ledger(), Thread(os.getpid(), hanging.native_id)
        began = time.time()
        for _ in range(8):
            ledger.add(time.time(), {1: watched.ready_seconds()})
            time.sleep(0.1)
        ended = time.time()
        second.release()
        first.release()
        wait = round((ended - began) * 1000)
        self.assertGreater(own_part(wait, round(ledger.starved(began, ended) * 1000)), wait - 200)

    @staticmethod
    def work(until):
        while not until.acquire(blocking=False):
            sum(range(1000))
        until.release()


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

    def test_a_sleep_is_another_one_after_the_thread_has_run(self):
        wakes, answers = threading.Event(), threading.Event()

        def answer():
            wakes.wait()
            answers.set()
            threading.Event().wait(60)
        other = threading.Thread(target=answer, daemon=True)
        other.start()
        thread = Thread(os.getpid(), other.native_id)
        time.sleep(0.1)
        first = thread.sleep()
        self.assertIsNotNone(first)
        time.sleep(0.1)
        self.assertEqual(thread.sleep(), first)
        wakes.set()
        answers.wait()
        time.sleep(0.1)
        second = thread.sleep()
        self.assertIsNotNone(second)
        self.assertNotEqual(second, first)

    def test_a_thread_that_runs_does_not_sleep(self):
        self.assertIsNone(Thread(os.getpid(), threading.get_native_id()).sleep())


if __name__ == "__main__":
    if len(sys.argv) > 1 and os.path.isdir(sys.argv[1]):
        sys.argv.pop(1)  # the programs' folder, which other tests need
    unittest.main(verbosity=2)
