"""Runs clang-tidy over the portable sources; what passed once is not read again.

A source is passed when nothing changed of what clang-tidy saw: its text, the project headers that
it reaches, its compile command, the checks and the tool.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

FOLDERS = ("platform/", "util/", "ui/", "app/", "desktop/", "hotkeys/", "forms/", "bench/")
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)


def reached(path, seen):
    """Adds path and every project header that it includes to seen."""
    if path in seen or not path.exists():
        return
    seen.add(path)
    for include in INCLUDE.findall(path.read_text()):
        reached(pathlib.Path(include), seen)


def key(source, command, common):
    digest = hashlib.sha256(common + command.encode())
    seen = set()
    reached(source, seen)
    for path in sorted(seen):
        digest.update(str(path).encode() + b"\0" + path.read_bytes())
    return digest.hexdigest()


def portable(path):
    return path.startswith(FOLDERS) and "/windows/" not in path and path != "app/main.cpp"


def main():
    build = pathlib.Path(sys.argv[1])
    cache = build / "tidy-passed"
    cache.mkdir(exist_ok=True)
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, check=True).stdout
    common = version + pathlib.Path(".clang-tidy").read_bytes()
    root = pathlib.Path.cwd()
    todo = []
    for entry in json.loads((build / "compile_commands.json").read_text()):
        source = pathlib.Path(os.path.relpath(entry["file"], root))
        if portable(str(source)):
            mark = cache / key(source, entry["command"], common)
            if not mark.exists():
                todo.append((source, mark))

    def check(job):
        source, mark = job
        run = subprocess.run(
            ["clang-tidy", "--quiet", "-p", str(build), str(source)],
            capture_output=True, text=True,
        )
        if run.returncode == 0:
            mark.touch()
            return ""
        noise = re.compile(r"^(\d+ warnings?.* generated\.|Suppressed .*|Use -header-filter.*)$", re.M)
        return noise.sub("", run.stdout + run.stderr).strip()

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        found = [text for text in pool.map(check, todo) if text]
    print("\n".join(found))
    return 1 if found else 0


sys.exit(main())
