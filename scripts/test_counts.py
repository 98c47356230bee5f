#!/usr/bin/python3
"""What a ctest run gave, counted by test cases: an entry of ctest is a whole suite.

usage: test_counts.py JUNIT.xml      prints "PASSED FAILED" and, a line each, the names of what failed
An entry that ended without the runner's own summary (a crash, a timeout) counts as one failed case under its own name.
"""
import re
import sys
import xml.etree.ElementTree

CASES = re.compile(r"^\[  PASSED  \] (\d+) tests?\.", re.M)
FAILED = re.compile(r"^\[  FAILED  \] ([^\s,]+)(?:, where .*)?(?: \(\d+ ms\))?$", re.M)


def main():
    passed, failed = 0, []
    for case in xml.etree.ElementTree.parse(sys.argv[1]).getroot().iter("testcase"):
        name = case.get("name")
        output = (case.findtext("system-out") or "").replace("\r", "")
        counts = [int(number) for number in CASES.findall(output)]
        passed += sum(counts)
        if case.get("status") == "run":
            passed += 0 if counts else 1
            continue
        cases = sorted(set(FAILED.findall(output)))
        failed += cases if counts and cases else [name]
    print(passed, len(failed))
    print("\n".join(failed))


main()
