"""Holds count_tests.py to counting every test, however it ended."""

import pathlib
import tempfile
import unittest

import count_tests

PASSED = '<testcase name="Runs" status="run" result="completed" classname="Suite" />'
LEFT_OUT = '<testcase name="Other" status="notrun" result="suppressed" classname="Suite" />'
FAILED = """<testcase name="Fails" status="run" result="completed" classname="Suite">
  <failure message="a.cpp:1&#x0A;Expected" type=""><![CDATA[a.cpp:1
Expected]]></failure></testcase>"""
SKIPPED = """<testcase name="Waits" status="run" result="skipped" classname="Suite">
  <skipped message="a.cpp:2&#x0A;no such&#x0A;thing here&#x0A;"><![CDATA[a.cpp:2
no such
thing here
]]></skipped></testcase>"""


def report(*tests):
    return ('<?xml version="1.0" encoding="UTF-8"?>\n<testsuites><testsuite name="Suite">'
            f'{"".join(tests)}</testsuite></testsuites>')


class CountTests(unittest.TestCase):
    def counted(self, text, status="0"):
        """What is printed of a program that left this report; of None, when it left none."""
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "report.xml"
            if text is not None:
                path.write_bytes(text if isinstance(text, bytes) else text.encode())
            return count_tests.main("program", status, str(path))

    def test_tells_who_failed(self):
        self.assertEqual(self.counted(report(PASSED, FAILED, LEFT_OUT), "1"), ["1 1 Suite.Fails"])

    def test_tells_who_was_skipped_and_why(self):
        self.assertEqual(self.counted(report(PASSED, SKIPPED)),
                         ["1 0", "Suite.Waits (no such thing here)"])
        silent = '<testcase name="Waits" result="skipped" classname="Suite"><skipped/></testcase>'
        self.assertEqual(self.counted(report(silent)), ["0 0", "Suite.Waits (no reason given)"])

    def test_a_program_may_skip_all_its_tests(self):
        self.assertEqual(self.counted(report(SKIPPED))[0], "0 0")

    def test_what_no_test_accounts_for_is_a_failure(self):
        self.assertEqual(self.counted(None), ["0 1"])
        self.assertEqual(self.counted(report(PASSED)[:-20]), ["0 1"])
        self.assertEqual(self.counted(report(LEFT_OUT)), ["0 1"])
        self.assertEqual(self.counted(report(PASSED), "1"), ["1 1"])
        self.assertEqual(self.counted(report(PASSED), "139"), ["1 1"])
        self.assertEqual(self.counted(report(FAILED), "124"), ["0 2 Suite.Fails"])

    def test_a_name_may_be_no_text(self):
        self.assertEqual(self.counted(report(PASSED).encode().replace(b"Runs", b"\xFF")), ["1 0"])

    def test_counts_all_parts_that_ctest_ran(self):
        with tempfile.TemporaryDirectory() as folder:
            results = pathlib.Path(folder) / "results.xml"
            results.write_text('<testsuite><testcase name="ui_tests.0" status="run"/>'
                               '<testcase name="ui_tests.1" status="fail"/>'
                               '<testcase name="core_tests.0" status="fail"/></testsuite>')
            for part, text in {"ui_tests.0": report(SKIPPED), "ui_tests.1": report(FAILED)}.items():
                (pathlib.Path(folder) / f"{part}.xml").write_text(text)
            self.assertEqual(count_tests.main("ctest", str(results), folder),
                             ["0 2 Suite.Fails", "Suite.Waits (no such thing here)"])


if __name__ == "__main__":
    unittest.main()
