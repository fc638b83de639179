"""Checks that every test named in docs/ (`Suite.Test`) exists."""

import pathlib
import re
import sys

TEST = re.compile(r"^(?:TEST|TEST_F|TEST_P|TYPED_TEST|TYPED_TEST_P)\((\w+),\s*(\w+)\)", re.M)
# A name of a suite begins with a capital letter, and so does the test's; files have small ones.
NAMED = re.compile(r"`([A-Z]\w+\.[A-Z]\w+)`")

existing = {
    f"{suite}.{test}"
    for path in pathlib.Path("tests").rglob("*")
    if path.suffix in (".cpp", ".h")
    for suite, test in TEST.findall(path.read_text(encoding="utf-8"))
}
problems = 0 if existing else 1
for page in sorted(pathlib.Path("docs").glob("*.md")):
    for number, line in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
        for name in NAMED.findall(line):
            if name not in existing:
                print(f"{page}:{number}: there is no test {name}")
                problems += 1
sys.exit(1 if problems else 0)
