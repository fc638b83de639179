"""Checks the #include lines against the folders that each CMakeLists.txt declares.

- Windows headers only where Windows adapters live.
- A folder includes only itself and the folders of its korvale_folder(...) line.
- Neither the declarations nor the files have a cycle; a header and its source count as one file.
"""

import pathlib
import re
import subprocess
import sys

WINDOWS_HEADERS = re.compile(
    r"<(windows|windowsx|winuser|commctrl|commdlg|shellapi|uxtheme|winreg|objbase)\.h>", re.I
)
WINDOWS_PLACES = (
    "platform/windows/", "ui/windows/", "tests/endtoend/", "bench/floor/", "bench/measure/"
)
INCLUDE = re.compile(r'^\s*#\s*include\s+([<"][^>"]+[>"])', re.M)


def tracked(*patterns):
    out = subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard", *patterns],
        capture_output=True, text=True, check=True,
    ).stdout
    return [line for line in out.splitlines() if pathlib.Path(line).exists()]


def declarations():
    """Folder -> the folders that it declares."""
    folder_of, uses = {}, {}
    for path in tracked("*CMakeLists.txt"):
        text = re.sub(r"#.*", "", pathlib.Path(path).read_text())
        call = re.search(r"korvale_folder\(\s*(\w+)([^)]*)\)", text)
        if call:
            folder = str(pathlib.Path(path).parent)
            folder_of["korvale_" + call.group(1)] = folder
            uses[folder] = call.group(2).split()
    return {
        folder: [folder_of[target] for target in targets if target in folder_of]
        for folder, targets in uses.items()
    }


def cycles(uses):
    problems, done = [], set()

    def visit(folder, path):
        if folder in path:
            problems.append("cycle: " + " -> ".join(path[path.index(folder):] + [folder]))
        elif folder not in done:
            for used in uses.get(folder, []):
                visit(used, path + [folder])
            done.add(folder)

    for folder in uses:
        visit(folder, [])
    return problems


def file_includes():
    """File without its suffix -> the files of the program that it includes, likewise."""
    uses = {}
    for path in tracked("*.cpp", "*.h"):
        if path.startswith(("tests/", "bench/")):
            continue
        here = str(pathlib.Path(path).with_suffix(""))
        for include in INCLUDE.findall(pathlib.Path(path).read_text()):
            there = str(pathlib.Path(include.strip('"<>')).with_suffix(""))
            if include.startswith('"') and there != here:
                uses.setdefault(here, []).append(there)
    return uses


def reach(folder, uses):
    """The folder, what it declares, and what those declare: all that CMake lets it include."""
    seen, todo = set(), [folder]
    while todo:
        here = todo.pop()
        if here not in seen:
            seen.add(here)
            todo += uses.get(here, [])
    return seen


def main():
    uses = declarations()
    problems = cycles(uses) + cycles(file_includes())
    for path in tracked("*.cpp", "*.h"):
        folder = str(pathlib.Path(path).parent)
        text = pathlib.Path(path).read_text()
        windows_place = path.startswith(WINDOWS_PLACES) or path == "app/main.cpp"
        # The program entry wires everything together.
        allowed = None if path == "app/main.cpp" else reach(folder, uses)
        for include in INCLUDE.findall(text):
            if WINDOWS_HEADERS.match(include) and not windows_place:
                problems.append(f"{path}: {include} outside the Windows adapters")
            if not include.startswith('"'):
                continue
            target = include.strip('"')
            if not pathlib.Path(target).exists():
                if folder != "app":  # resource.h comes with the program's resources
                    problems.append(f"{path}: {include} is not a path from the root")
                continue
            used = str(pathlib.Path(target).parent)
            if folder in uses and allowed is not None and used in uses and used not in allowed:
                problems.append(f"{path}: {include}, but {folder} does not declare {used}")
            if folder in uses and target.startswith("tests/"):
                problems.append(f"{path}: {include} in the program")
    print("\n".join(problems))
    return 1 if problems else 0


sys.exit(main())
