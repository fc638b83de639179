"""Counts the tests that programs of GoogleTest ran.

  count_tests.py ctest RESULTS.xml REPORTS    what ctest ran: test NAME left REPORTS/NAME.xml
  count_tests.py program STATUS REPORT.xml    one program that ended with this status

Prints how many passed, how many failed, and the names of the failed ones; then a line for each
test that skipped itself, with the reason it gave.
A program writes its report when it comes to its end. Without one it crashed or hung, and that is
one failed test; so is an end that no test accounts for (a sanitizer's finding), and a program
without tests.
"""

import pathlib
import sys
import xml.etree.ElementTree


def reason(skipped):
    """What GTEST_SKIP was given; the line before it says where."""
    return " ".join(skipped.get("message", "").split("\n", 1)[-1].split()) or "no reason given"


def read(report):
    """The names of the tests that passed, of those that failed, and of those that were skipped
    with their reasons; None without a report."""
    try:
        text = report.read_text(encoding="utf-8", errors="replace")
        tests = list(xml.etree.ElementTree.fromstring(text).iter("testcase"))
    except (OSError, xml.etree.ElementTree.ParseError):
        return None
    passed, failed, skipped = [], [], []
    for test in tests:
        name = f"{test.get('classname')}.{test.get('name')}"
        if test.find("failure") is not None:
            failed.append(name)
        elif test.get("result") == "completed":
            passed.append(name)
        elif test.get("result") == "skipped":
            why = test.find("skipped")
            skipped.append(f"{name} ({reason(why if why is not None else {})})")
    return passed, failed, skipped


def count(runs):
    """What is printed of runs (program, how it ended, report); a program may run in several parts.

    It ends as "passed", as "failed", which its tests account for, or as "broken".
    """
    passed, failed, skipped, strays = [], [], [], 0
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
        skipped += found[2]
        tests_of[program] += sum(map(len, found))
        strays += end == "broken" or (end == "failed" and not found[1])
    strays += sum(tests == 0 for tests in tests_of.values()) + (not runs)
    return [f"{len(passed)} {len(failed) + strays} {':'.join(failed)}".rstrip(), *skipped]


def ctest(results, reports):
    """ctest calls the parts of a program PROGRAM.0, PROGRAM.1 and so on."""
    cases = xml.etree.ElementTree.parse(results).iter("testcase")
    return [
        (case.get("name").rpartition(".")[0],
         "passed" if case.get("status") == "run" else "failed",
         pathlib.Path(reports) / (case.get("name") + ".xml"))
        for case in cases
    ]


def main(what, *arguments):
    if what == "ctest":
        return count(ctest(*arguments))
    status, report = arguments
    ends = {"0": "passed", "1": "failed"}
    return count([("program", ends.get(status, "broken"), pathlib.Path(report))])


if __name__ == "__main__":
    print(*main(*sys.argv[1:]), sep="\n")
