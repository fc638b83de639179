"""Prints one compilation database of those in the builds given; of a file that several of them
compile, the command of the first."""

import json
import pathlib
import sys

commands = {}
for build in sys.argv[1:]:
    for entry in json.loads((pathlib.Path(build) / "compile_commands.json").read_text()):
        commands.setdefault(entry["file"], entry)
json.dump(list(commands.values()), sys.stdout, indent=1)
