"""Checks that whatever names a version of Korvale names the one of CMakeLists.txt.

Only the changelog names others, below that one. What a test of the forms shows is its own.
"""

import pathlib
import re
import subprocess
import sys

NAMED = re.compile(r"\bKorvale[- ]v?(\d+\.\d+\.\d+)")
CHANGES = re.compile(r"^## \[?v?(\d+\.\d+\.\d+)", re.M)
CHANGELOG = pathlib.Path("CHANGELOG.md")


def parts(version):
    """The About box writes 1.0.0 as 1.00.0000."""
    return [int(part) for part in version.split(".")]


version = re.search(r"^project\(Korvale VERSION (\S+)", pathlib.Path("CMakeLists.txt").read_text(),
                    re.M)[1]
problems = []
files = subprocess.run(["git", "grep", "-lIE", NAMED.pattern.replace(r"\d", "[0-9]"), "--", ".",
                        ":!tests/forms"], capture_output=True,
                       text=True).stdout.splitlines()
for path in map(pathlib.Path, files):
    if path == CHANGELOG:
        continue
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        problems += [f"{path}:{number}: names {found}, not {version}"
                     for found in NAMED.findall(line) if parts(found) != parts(version)]
newest = CHANGES.search(CHANGELOG.read_text(encoding="utf-8")) if CHANGELOG.exists() else None
if newest and parts(newest[1]) != parts(version):
    problems.append(f"{CHANGELOG}: the newest version is {newest[1]}, not {version}")
print("\n".join(problems))
sys.exit(1 if problems else 0)
