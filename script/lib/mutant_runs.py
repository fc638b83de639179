"""Builds what a mutant changes, and runs the tests against it until one of them fails."""

import atexit
import hashlib
import json
import os
import re
import shlex
import shutil
import subprocess
import sys

# Faults of the standard library's users must not pass unseen.
FLAGS = "-w -D_GLIBCXX_ASSERTIONS"
# Tests that take longer wait until all others have passed.
SLOW_SECONDS = 0.15
ENVIRONMENT = {**os.environ, "KORVALE_STEPS": "300", "GTEST_COLOR": "no", "CCACHE_DISABLE": "1"}


class Failed(Exception):
    pass


def run(command, cwd, **more):
    return subprocess.run(
        command, cwd=cwd, env=ENVIRONMENT, capture_output=True, text=True, errors="replace", **more
    )


def must(command, cwd):
    done = run(command, cwd)
    if done.returncode != 0:
        sys.exit(f"{shlex.join(command)}\n{done.stdout[-4000:]}{done.stderr[-4000:]}")
    return done.stdout


def library_of(source):
    return f"libkorvale_{os.path.basename(os.path.dirname(source))}.a"


class Program:
    """A test program: how it is linked, and how long its tests take."""

    def __init__(self, name, link):
        self.name = name
        words = shlex.split(link.removeprefix(": && ").removesuffix(" && :"))
        self.out = words[words.index("-o") + 1]
        self.libraries = {os.path.basename(word) for word in words if word.endswith(".a")}
        self.first = next(at for at, word in enumerate(words) if word.endswith(".o"))
        self.words = words
        self.seconds = {}

    def link(self, objects, out):
        """With these objects of sources in place of its libraries' own."""
        own = [made for source, made in objects if library_of(source) in self.libraries]
        words = [*self.words[: self.first], *own, *self.words[self.first :]]
        words[words.index("-o") + 1] = out
        return words

    def slow(self):
        return [name for name, seconds in self.seconds.items() if seconds > SLOW_SECONDS]

    def limit(self):
        """Seconds of the processor after which the tests hang."""
        return int(3 + 3 * sum(self.seconds.values()))


class Base:
    """A copy of the sources that stays as it is while mutants are tested, and its build."""

    def __init__(self, folder):
        self.folder = os.path.abspath(folder)
        self.tree, self.build = f"{self.folder}/tree", f"{self.folder}/base"
        self.programs, self.commands, self.users = [], {}, {}
        self.killers = {}

    def prepare(self, wanted):
        """Builds and runs these test programs, all when none is named."""
        self.copy_sources()
        if not os.path.exists(f"{self.build}/build.ninja"):
            must(
                ["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", "-DKORVALE_MUTANTS=ON",
                 "-DCMAKE_BUILD_TYPE=Debug", f"-DCMAKE_CXX_FLAGS={FLAGS}",
                 "-DCMAKE_CXX_FLAGS_DEBUG=-O1", "-DCMAKE_UNITY_BUILD=ON",
                 "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"],
                ".",
            )  # fmt: skip
        must(["ninja", *wanted], self.build)
        self.read_commands(wanted)
        self.read_users()
        self.test_all()

    def copy_sources(self):
        listed = must(["git", "ls-files", "-co", "--exclude-standard"], ".").splitlines()
        wanted = {path for path in listed if os.path.isfile(path) and not path.startswith("docs/")}
        for folder, _, files in os.walk(self.tree):
            for name in files:
                path = os.path.relpath(f"{folder}/{name}", self.tree)
                if path not in wanted:
                    os.remove(f"{self.tree}/{path}")
        for path in wanted:
            copy_changed(path, f"{self.tree}/{path}")

    def read_commands(self, wanted):
        with open(f"{self.build}/compile_commands.json", encoding="utf-8") as file:
            for entry in json.load(file):
                path = os.path.relpath(entry["file"], self.tree)
                if not path.startswith(("tests/", "..")):
                    self.commands[path] = shlex.split(entry["command"])
        names = must(["ninja", "-t", "targets", "all"], self.build)
        for name in re.findall(r"^tests/(\w+_tests): ", names, re.M):
            link = must(["ninja", "-t", "commands", "-s", f"tests/{name}"], self.build)
            if "libkorvale_" in link and (not wanted or name in wanted):
                self.programs.append(Program(name, link.strip().splitlines()[-1]))

    def read_users(self):
        """The sources of the program that each header is compiled into."""
        objects = {}
        for path, words in self.commands.items():
            objects[words[words.index("-o") + 1]] = path
        user = None
        for line in must(["ninja", "-t", "deps"], self.build).splitlines():
            if line and not line.startswith(" "):
                user = objects.get(line.split(":")[0])
            elif line and user:
                header = os.path.relpath(os.path.join(self.build, line.strip()), self.tree)
                self.users.setdefault(header, []).append(user)

    def test_all(self):
        """All tests pass without a mutant; what passed once is not run again."""
        for program in self.programs:
            report = f"{self.folder}/{program.name}.json"
            made = f"{self.build}/{program.out}"
            if not os.path.exists(report) or os.path.getmtime(report) < os.path.getmtime(made):
                done = run([made, "--gtest_brief=1", f"--gtest_output=json:{report}"], self.folder)
                if done.returncode != 0:
                    os.remove(report)
                    sys.exit(f"{program.name} fails without any mutant:\n{done.stdout[-4000:]}")
            with open(report, encoding="utf-8") as file:
                for suite in json.load(file)["testsuites"]:
                    for test in suite["testsuite"]:
                        name = f"{suite['name']}.{test['name']}"
                        program.seconds[name] = float(test["time"][:-1])
        self.programs.sort(key=lambda each: sum(each.seconds.values()))


def checksum(path):
    with open(path, "rb") as file:
        return hashlib.sha256(file.read()).hexdigest()


def copy_changed(path, to):
    with open(path, "rb") as file:
        new = file.read()
    if os.path.exists(to):
        with open(to, "rb") as file:
            if file.read() == new:
                return
    os.makedirs(os.path.dirname(to), exist_ok=True)
    with open(to, "wb") as file:
        file.write(new)


class Runs:
    """One worker."""

    def __init__(self, base, number):
        self.base, self.folder = base, f"{base.folder}/worker-{os.getpid()}-{number}"
        os.makedirs(self.folder)
        atexit.register(shutil.rmtree, self.folder, ignore_errors=True)
        self.optimized = {}

    def test(self, mutant, text):
        """The verdict, and what spoke it."""
        try:
            objects = self.compile(mutant.path, mutant.applied(text), "-O0")
            for program, tests in self.stages(mutant.path):
                killer = self.run_tests(program, objects, tests)
                if killer:
                    self.remember(mutant.path, program, killer)
                    return "killed", killer
            same = self.machine_code(mutant.path, mutant.applied(text)) == self.original(
                mutant.path, text
            )
            return ("equivalent", "the compiler") if same else ("lived", "")
        except Failed:
            return "not compiled", ""

    def remember(self, path, program, killer):
        """The test will be among the first for the next mutants of this file."""
        if killer in program.seconds:
            counts = self.base.killers.setdefault((path, program.name), {})
            counts[killer] = counts.get(killer, 0) + 1

    def compile(self, path, text, optimization):
        """All that is made from this text in place of the file's own: sources and their objects."""
        if path.endswith(".h"):
            place, users = f"{self.folder}/include/{path}", self.base.users.get(path, [])
        else:
            place, users = f"{self.folder}/{os.path.basename(path)}", [path]
        shutil.rmtree(f"{self.folder}/include", ignore_errors=True)
        os.makedirs(os.path.dirname(place), exist_ok=True)
        with open(place, "w", encoding="utf-8") as file:
            file.write(text)
        if not users:
            raise Failed
        return [
            (user, self.compile_one(user, place if user == path else None, optimization, number))
            for number, user in enumerate(users)
        ]

    def compile_one(self, user, instead, optimization, number):
        words = list(self.base.commands[user])
        out = f"{self.folder}/{number}.o"
        words[words.index("-o") + 1] = out
        if instead:
            words[words.index("-c") + 1] = instead
        words[1:1] = [f"-I{self.folder}/include"]
        done = run([*words, optimization, "-Wfatal-errors"], self.base.build)
        if done.returncode != 0:
            raise Failed
        return out

    def stages(self, path):
        """Programs and tests in the order of their use: those that found the last mutants of this
        file, then the folder's own, the others, and what takes long."""
        folder = os.path.basename(os.path.dirname(path))
        programs = [each for each in self.base.programs if library_of(path) in each.libraries]
        programs.sort(key=lambda each: each.name != f"{folder}_tests")
        for program in programs:
            counts = self.base.killers.get((path, program.name), {})
            best = sorted(counts, key=counts.get, reverse=True)[:20]
            if best:
                yield program, ":".join(best)
        for program in programs:
            yield program, "-" + ":".join(program.slow())
        for program in programs:
            if program.slow():
                yield program, ":".join(program.slow())

    def run_tests(self, program, objects, tests):
        """The test that fails; nothing when all pass."""
        out = f"{self.folder}/{program.name}"
        if run(program.link(objects, out), self.base.build).returncode != 0:
            raise Failed
        command = ["prlimit", f"--cpu={program.limit()}", "--as=4294967296", "--core=0", out]
        command += ["--gtest_brief=1", "--gtest_fail_fast", f"--gtest_filter={tests}"]
        try:
            done = run(command, self.folder, timeout=60 + 20 * program.limit())
        except subprocess.TimeoutExpired:
            return "hangs"
        finally:
            os.remove(out)
        if done.returncode == 0:
            return None
        failed = re.search(r"\[  FAILED  \] ([\w/]+\.[\w/]+)", done.stdout)
        return failed[1] if failed else f"ends with {done.returncode}"

    def machine_code(self, path, text):
        objects = self.compile(path, text, "-O2")
        return [checksum(made) for _, made in objects]

    def original(self, path, text):
        if path not in self.optimized:
            self.optimized[path] = self.machine_code(path, text)
        return self.optimized[path]
