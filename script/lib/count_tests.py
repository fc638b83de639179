"""Counts the tests that programs of GoogleTest ran.

  count_tests.py ctest RESULTS.xml REPORTS     what ctest ran: test NAME left REPORTS/NAME.json
  count_tests.py program STATUS REPORT.json    one program that ended with this status

Prints how many passed, how many failed, and the names of the failed ones.
A program writes its report when it comes to its end. Without one it crashed or hung, and that is
one failed test; so is an end that no test accounts for (a sanitizer's finding), and a program
without tests.
"""

import json
import pathlib
import sys
import xml.etree.ElementTree


def read(report):
    """The names of the tests that passed and of those that failed; None without a report."""
    if not report.exists():
        return None
    passed, failed = [], []
    for suite in json.loads(report.read_text(encoding="utf-8", errors="replace"))["testsuites"]:
        for test in suite["testsuite"]:
            if "failures" in test:
                failed.append(f"{suite['name']}.{test['name']}")
            elif test["result"] == "COMPLETED":
                passed.append(f"{suite['name']}.{test['name']}")
    return passed, failed


def count(runs):
    """runs: (program, how it ended, report); a program may run in several parts.

    It ends as "passed", as "failed", which its tests account for, or as "broken".
    """
    passed, failed, strays = [], [], 0
    tests_of = {}
    for program, end, report in runs:
        tests_of.setdefault(program, 0)
        found = read(report)
        if found is None:
            strays += 1
            tests_of[program] += 1
            continue
        passed += found[0]
        failed += found[1]
        tests_of[program] += len(found[0]) + len(found[1])
        strays += end == "broken" or (end == "failed" and not found[1])
    strays += sum(tests == 0 for tests in tests_of.values()) + (not runs)
    print(len(passed), len(failed) + strays, ":".join(failed))


def ctest(results, reports):
    """ctest calls the parts of a program PROGRAM.0, PROGRAM.1 and so on."""
    cases = xml.etree.ElementTree.parse(results).iter("testcase")
    return [
        (case.get("name").rpartition(".")[0],
         "passed" if case.get("status") == "run" else "failed",
         pathlib.Path(reports) / (case.get("name") + ".json"))
        for case in cases
    ]


if sys.argv[1] == "ctest":
    count(ctest(*sys.argv[2:]))
else:
    ends = {"0": "passed", "1": "failed"}
    count([("program", ends.get(sys.argv[2], "broken"), pathlib.Path(sys.argv[3]))])
