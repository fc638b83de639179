"""Checks what the pages for developers name in `backticks`: every test (`Suite.Test`) and every file
must exist. A file stands with its folder or, like `title_match.cpp`, alone; `*` is any part of its
name. So must every preset of CMake that they name anywhere."""

import json
import pathlib
import re
import sys

TEST = re.compile(r"^(?:TEST|TEST_F|TEST_P|TYPED_TEST|TYPED_TEST_P)\((\w+),\s*(\w+)\)", re.M)
# A name of a suite begins with a capital letter, and so does the test's; files have small ones.
NAMED = re.compile(r"`([A-Z]\w+\.[A-Z]\w+)`")
PRESET = re.compile(r"--preset (\S+)")
QUOTED = re.compile(r"`([^`\n]+)`|\]\(([^)#:\n]+)\)")
# What builds leave is not there in a fresh checkout.
FOLDERS = {path.name for path in pathlib.Path().iterdir() if path.is_dir()} - {"build", "dist"}
ENDINGS = (".cpp", ".h", ".sh", ".py", ".md", ".in", ".yml", ".html", ".json", ".cmake")


def pages():
    yield from sorted(pathlib.Path("docs").glob("*.md"))
    yield from (pathlib.Path(name) for name in ("README.md", "CONTRIBUTING.md", "CHANGELOG.md"))


def tests():
    for path in pathlib.Path("tests").rglob("*"):
        if path.suffix in (".cpp", ".h"):
            for suite, test in TEST.findall(path.read_text(encoding="utf-8")):
                yield f"{suite}.{test}"


def is_path(word):
    """Whether the word must be a file or folder of the checkout."""
    if re.search(r"[\s<>{}$=:,\"\\]", word):
        return False
    return word.partition("/")[0] in FOLDERS if "/" in word else word.endswith(ENDINGS)


def exists(word, page):
    if "/" not in word:
        return word in files
    return any(any(base.glob(word)) for base in (pathlib.Path(), page.parent))


existing = set(tests())
presets = json.loads(pathlib.Path("CMakePresets.json").read_text(encoding="utf-8"))
presets = {preset["name"] for preset in presets["configurePresets"]}
files = {path.name for folder in FOLDERS for path in pathlib.Path(folder).rglob("*")}
files |= {path.name for path in pathlib.Path().iterdir()}
# What a script makes may be named before it is there.
ignored = pathlib.Path(".gitignore").read_text(encoding="utf-8").split()
files |= {line.strip("/") for line in ignored}
problems = 0 if existing else 1
for page in pages():
    for number, line in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
        for name in set(PRESET.findall(line.replace("`", " "))) - presets:
            print(f"{page}:{number}: there is no preset {name}")
            problems += 1
        for name in NAMED.findall(line):
            if name not in existing:
                print(f"{page}:{number}: there is no test {name}")
                problems += 1
        for quoted, link in QUOTED.findall(line):
            # A command names its script first.
            word = re.sub(r"^(script/\S+) .*", r"\1", quoted).rstrip("/") or link
            if (link or is_path(word)) and not exists(word, page):
                print(f"{page}:{number}: there is no {word}")
                problems += 1
sys.exit(1 if problems else 0)
