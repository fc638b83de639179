"""Sums up what the simulated users of script/soak lived through.

  sum_lives.py LOGS CORES SECONDS     process N left LOGS/N.json and LOGS/N.log

Prints every failed check, then one line of figures. A process that left no report broke off in the
middle; the end of its log names the share that it was in.
"""

import json
import pathlib
import sys

logs, cores, seconds = pathlib.Path(sys.argv[1]), int(sys.argv[2]), int(sys.argv[3])
steps = lives = failures = 0
seeds = []
for core in range(cores):
    report = logs / f"{core}.json"
    if not report.exists():
        failures += 1
        print(f"process {core} broke off:", *(logs / f"{core}.log").read_text().splitlines()[-20:],
              sep="\n")
        continue
    for suite in json.loads(report.read_text(encoding="utf-8", errors="replace"))["testsuites"]:
        for share in suite["testsuite"]:
            steps += int(share.get("steps", 0))
            lives += int(share.get("lives", 0))
            seeds += [int(share[name]) for name in ("first_seed", "last_seed") if name in share]
            for failure in share.get("failures", []):
                failures += 1
                print(failure["failure"], "\n")
print(f"{steps:,} steps in {lives:,} lives, seeds {min(seeds, default=0)} to"
      f" {max(seeds, default=0)}, {failures} failures, {seconds} s")
sys.exit(failures != 0 or lives == 0)
