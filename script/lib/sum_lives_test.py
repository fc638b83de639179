"""Holds sum_lives.py to telling of every process of script/soak, however it ended."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

SHARE = {"steps": "25000", "lives": "10", "first_seed": "1", "last_seed": "10"}
SCRIPT = pathlib.Path(__file__).with_name("sum_lives.py")


def report(**share):
    return json.dumps({"testsuites": [{"testsuite": [SHARE | share]}]})


class SumLives(unittest.TestCase):
    def run_over(self, *reports, log="it was in share 7\n"):
        with tempfile.TemporaryDirectory() as folder:
            logs = pathlib.Path(folder)
            for core, text in enumerate(reports):
                if log is not None:
                    (logs / f"{core}.log").write_text(log)
                if text is not None:
                    (logs / f"{core}.json").write_text(text)
            return subprocess.run([sys.executable, SCRIPT, logs, str(len(reports)), "60"],
                                  capture_output=True, text=True, check=False)

    def expect_broke_off(self, ended, core):
        self.assertNotEqual(ended.returncode, 0)
        self.assertEqual(ended.stderr, "")
        self.assertIn(f"process {core} broke off, its report is missing or cut off:", ended.stdout)
        self.assertIn("25,000 steps in 10 lives, seeds 1 to 10, 1 failures, 60 s", ended.stdout)

    def test_adds_up_all_processes(self):
        ended = self.run_over(report(), report(first_seed="11", last_seed="20"))
        self.assertEqual(ended.stdout, "50,000 steps in 20 lives, seeds 1 to 20, 0 failures, 60 s\n")
        self.assertEqual(ended.returncode, 0)

    def test_prints_a_failed_check(self):
        ended = self.run_over(report(failures=[{"failure": "the life of seed 3 fails"}]))
        self.assertIn("the life of seed 3 fails", ended.stdout)
        self.assertNotEqual(ended.returncode, 0)

    def test_names_the_process_whose_report_was_cut_off(self):
        for cut in (report()[:40], report()[:-1], ""):
            ended = self.run_over(report(), cut)
            self.expect_broke_off(ended, 1)
            self.assertIn("it was in share 7", ended.stdout)

    def test_names_the_process_that_left_no_report(self):
        self.expect_broke_off(self.run_over(None, report()), 0)

    def test_needs_no_log_for_that(self):
        ended = self.run_over(None, report(), log=None)
        self.expect_broke_off(ended, 0)
        self.assertIn("it left no log either", ended.stdout)

    def test_fails_when_nobody_lived(self):
        self.assertNotEqual(self.run_over(report(steps="0", lives="0")).returncode, 0)


if __name__ == "__main__":
    unittest.main()
