"""Checks that every script answers -h and --help with the comment at its head, from any folder and
with nothing installed; that this names the script and all of its options; and that an option that
nobody knows brings it up, too."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

TOOLS = ("bash", "dirname", "grep", "sed")
# A label of a case, or an option of the program in Python that the script hands its arguments to.
OPTIONS = re.compile(r'^ *(--[a-z-]+)\)|"(--[a-z-]+)"', re.M)
PROGRAM = re.compile(r'exec python3 -B (\S+) "\$@"')


def head(text):
    lines = iter(text.splitlines()[1:])
    comment = []
    for line in lines:
        if not line.startswith("#"):
            break
        comment.append(re.sub("^# ?", "", line) + "\n")
    return "".join(comment)


def problems(script, tools):
    text = script.read_text(encoding="utf-8")
    usage = head(text)
    if f"script/{script.name}" not in usage:
        yield "the comment at its head does not say how to call it"
    for program in PROGRAM.findall(text):
        text += pathlib.Path(program).read_text(encoding="utf-8")
    for option in {name for names in OPTIONS.findall(text) for name in names if name}:
        if not re.search(rf"(?<![\w-]){option}(?![\w-])", usage):
            yield f"the comment at its head does not name {option}"
    for argument, code in (("--help", 0), ("-h", 0), ("--no-such-option", 2)):
        run = subprocess.run([script.resolve(), argument], cwd="/", capture_output=True, text=True,
                             env={"PATH": tools}, check=False)
        if (run.stdout if code == 0 else run.stderr) != usage or run.returncode != code:
            yield f"{argument} must print that comment and end with {code}, not {run.returncode}"


failed = 0
with tempfile.TemporaryDirectory() as tools:
    # A script that goes on instead of answering finds nothing to work with.
    for tool in TOOLS:
        os.symlink(shutil.which(tool), f"{tools}/{tool}")
    for script in sorted(path for path in pathlib.Path("script").iterdir() if path.is_file()):
        for problem in problems(script, tools):
            print(f"{script}: {problem}")
            failed = 1
sys.exit(failed)
