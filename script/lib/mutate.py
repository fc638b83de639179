"""Tests the tests: puts one small fault after another into the portable code, and sees whether the
native tests find it. script/mutate says how to call it."""

import argparse
import os
import random
import sys
import threading

from mutant_log import Log
from mutant_runs import Base, Runs
from mutants import mutants, plain

FOLDERS = ("platform", "util", "ui", "app/core", "desktop", "hotkeys", "forms", "app")
# The compiler holds the numbers of Windows against its headers; the entry point is no test's.
UNTESTED = ("main.cpp", "win32_constants.h")
EQUIVALENT = "tests/equivalent_mutants.txt"


def folder_of(path):
    return os.path.dirname(path)


def sources(paths):
    for path in paths or FOLDERS:
        if os.path.isdir(path):
            names = sorted(os.listdir(path))
            yield from (f"{path.rstrip('/')}/{name}" for name in names if is_source(name))
        else:
            yield path


def is_source(name):
    return name.endswith((".cpp", ".h")) and name not in UNTESTED


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def equivalents():
    """What each line of the list names: file, old and new text; the reason stands behind."""
    names = set()
    if os.path.exists(EQUIVALENT):
        for line in read(EQUIVALENT).splitlines():
            parts = [plain(part) for part in line.split(" @@ ")]
            if line and not line.startswith("#"):
                if len(parts) != 4:
                    sys.exit(f"{EQUIVALENT}: not file @@ old @@ new @@ reason: {line}")
                names.add(tuple(parts[:3]))
    return names


def keys(made, texts):
    """The name of each mutant, and which one it is of those with this name in the file."""
    seen, found = {}, {}
    for mutant in made:
        name = mutant.name(texts[mutant.path])
        seen[name] = seen.get(name, 0) + 1
        found[mutant] = (*name, seen[name])
    return found


class Session:
    """Takes mutants one after another until enough of them were tested."""

    def __init__(self, drawn, keys_of, texts, listed, count, log):
        self.waiting, self.texts, self.listed, self.log = iter(drawn), texts, listed, log
        self.keys = keys_of
        self.wanted, self.taken, self.lock = count, 0, threading.Lock()

    def take(self):
        with self.lock:
            while self.taken < self.wanted:
                mutant = next(self.waiting, None)
                if mutant is None:
                    return None
                key = self.keys[mutant]
                if key[:3] in self.listed:
                    self.log.add(key, "equivalent")
                elif self.log.verdict(key) is None:
                    self.taken += 1
                    return mutant
                elif self.log.verdict(key) in ("killed", "lived"):
                    self.taken += 1
        return None

    def done(self, mutant, verdict, by):
        with self.lock:
            self.log.add(self.keys[mutant], verdict, by)
            if verdict in ("killed", "lived"):
                self.report_progress()
            else:
                self.taken -= 1
            if verdict == "lived":
                show(mutant, self.texts[mutant.path], "LIVED ")

    def report_progress(self):
        tested = self.log.count("killed") + self.log.count("lived")
        if tested % 25 == 0:
            print(f"-- {tested} tested, {self.log.count('lived')} lived", flush=True)

    def work(self, runs):
        while (mutant := self.take()) is not None:
            self.done(mutant, *runs.test(mutant, self.texts[mutant.path]))


def show(mutant, text, verdict):
    line, old, new = mutant.lines(text)
    print(f"{verdict}{mutant.path}:{line} ({mutant.kind})")
    for sign, lines in (("-", old), ("+", new)):
        print("\n".join(f"  {sign} {each.strip()}" for each in lines.split("\n")))
    print(flush=True)


def summary(log, names, listed):
    rows = {}
    for (path, *_), verdict in log.verdicts():
        for row in (folder_of(path), "all"):
            rows.setdefault(row, {}).setdefault(verdict, 0)
            rows[row][verdict] += 1
    kinds = ("killed", "lived", "equivalent", "not compiled")
    print("\n" + "".join(f"{title:>14}" for title in ("folder", *kinds, "killed %")))
    for row in [folder for folder in (*FOLDERS, "all") if folder in rows]:
        counts = [rows[row].get(kind, 0) for kind in kinds]
        tested = counts[0] + counts[1]
        percent = f"{100 * counts[0] / tested:.1f}" if tested else "-"
        print("".join(f"{cell:>14}" for cell in (row, *counts, percent)))
    files = {path for path, _, _ in names}
    for name in sorted(name for name in listed if name[0] in files and name not in names):
        print(f"{EQUIVALENT}: no such mutant any more: {' @@ '.join(name)}")


def options():
    parser = argparse.ArgumentParser(prog="script/mutate", add_help=False)
    parser.add_argument("paths", nargs="*")
    parser.add_argument("--count", type=int)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--tests", default="")
    parser.add_argument("--log", default="build/mutants/log.jsonl")
    for flag in ("--list", "--again", "--resume"):
        parser.add_argument(flag, action="store_true")
    return parser.parse_args()


def main():
    asked = options()
    texts = {path: read(path) for path in sources(asked.paths)}
    drawn = [mutant for path, text in texts.items() for mutant in mutants(path, text)]
    keys_of = keys(drawn, texts)
    names = {key[:3] for key in keys_of.values()}
    listed = equivalents()
    if asked.count:
        random.Random(asked.seed).shuffle(drawn)
    if asked.list:
        for mutant in drawn[: asked.count]:
            show(mutant, texts[mutant.path], "")
        return
    base = Base("build/mutants")
    base.prepare(asked.tests.split(",") if asked.tests else [])
    log = Log(asked.log, keep=asked.again or asked.resume, forget="lived" if asked.again else None)
    if asked.again:
        drawn = [each for each in drawn if keys_of[each] in log.forgotten]
    count = asked.count if asked.count and not asked.again else len(drawn)
    session = Session(drawn, keys_of, texts, listed, count, log)
    workers = [
        threading.Thread(target=session.work, args=(Runs(base, number),), daemon=True)
        for number in range(asked.jobs)
    ]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    summary(log, names, listed)


if __name__ == "__main__":
    main()
