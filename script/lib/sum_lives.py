"""Sums up what the simulated users of script/soak lived through.

  sum_lives.py LOGS CORES SECONDS     process N left LOGS/N.json and LOGS/N.log

Prints every failed check, then one line of figures. A process that left no whole report broke off
in the middle; the end of its log names the share that it was in.
"""

import json
import pathlib
import sys


def suites(report):
    """What a whole report holds; None when it is missing or was cut off."""
    try:
        return json.loads(report.read_text(encoding="utf-8", errors="replace"))["testsuites"]
    except (OSError, ValueError, KeyError):
        return None


def last_lines(log):
    try:
        return log.read_text(encoding="utf-8", errors="replace").splitlines()[-20:]
    except OSError:
        return ["it left no log either"]


def main(logs, cores, seconds):
    steps = lives = failures = 0
    seeds = []
    for core in range(cores):
        whole = suites(logs / f"{core}.json")
        if whole is None:
            failures += 1
            print(f"process {core} broke off, its report is missing or cut off:",
                  *last_lines(logs / f"{core}.log"), sep="\n")
            continue
        for share in (share for suite in whole for share in suite["testsuite"]):
            steps += int(share.get("steps", 0))
            lives += int(share.get("lives", 0))
            seeds += [int(share[name]) for name in ("first_seed", "last_seed") if name in share]
            for failure in share.get("failures", []):
                failures += 1
                print(failure["failure"], "\n")
    print(f"{steps:,} steps in {lives:,} lives, seeds {min(seeds, default=0)} to"
          f" {max(seeds, default=0)}, {failures} failures, {seconds} s")
    return failures != 0 or lives == 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), int(sys.argv[2]), int(sys.argv[3])))
