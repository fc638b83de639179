"""Checks that every test source under tests/ was compiled by one of the builds given."""

import json
import os
import pathlib
import re
import subprocess
import sys


def sources(entry):
    """The source files of a compile command; a unity file stands for those that it includes."""
    path = pathlib.Path(entry["file"])
    if not path.name.startswith("unity_"):
        return [str(path)]
    return re.findall(r'^#include "(.+)"$', path.read_text(), re.M)


compiled = set()
for build in sys.argv[1:]:
    commands = json.loads((pathlib.Path(build) / "compile_commands.json").read_text())
    compiled |= {os.path.relpath(file) for entry in commands for file in sources(entry)}

tests = subprocess.run(
    ["git", "ls-files", "tests/*.cpp", "bench/*_test.cpp"],
    capture_output=True, text=True, check=True,
).stdout.splitlines()
orphans = [source for source in tests if source not in compiled]
for orphan in orphans:
    print(f"{orphan} is in no test program")
sys.exit(1 if orphans else 0)
