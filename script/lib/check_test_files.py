"""Checks that every test source under tests/ was compiled by one of the builds given."""

import json
import os
import pathlib
import subprocess
import sys

compiled = set()
for build in sys.argv[1:]:
    commands = json.loads((pathlib.Path(build) / "compile_commands.json").read_text())
    compiled |= {os.path.relpath(entry["file"]) for entry in commands}

sources = subprocess.run(
    ["git", "ls-files", "tests/*.cpp", "bench/*_test.cpp"],
    capture_output=True, text=True, check=True,
).stdout.splitlines()
orphans = [source for source in sources if source not in compiled]
for orphan in orphans:
    print(f"{orphan} is in no test program")
sys.exit(1 if orphans else 0)
