"""Checks a program that users unpack anywhere: check_release.py FILE.exe

- Windows loads the imported libraries before the program can say where from. It takes only those
  that it knows from its own folder; any other could lie beside the program in a download folder.
- The program says that it is made for Windows 8 or later, and takes part in its protections.
- It has one manifest, which names what BY_MANIFEST needs.
"""

import pathlib
import re
import subprocess
import sys

# The KnownDLLs of Windows 10 and 11, as far as they are of use here.
KNOWN = set(
    "advapi32 combase comdlg32 gdi32 imm32 kernel32 msvcrt ole32 oleaut32 rpcrt4 sechost shcore "
    "shell32 shlwapi user32 ws2_32".split()
)
# Not one of them, but with its assembly in the manifest Windows takes it from there.
BY_MANIFEST = {"comctl32": "Microsoft.Windows.Common-Controls"}
PROTECTIONS = ("DYNAMIC_BASE", "HIGH_ENTROPY_VA", "NX_COMPAT")
OLDEST = (6, 2)
# The entry of this type among the types of resources, with one name in one language.
MANIFEST = re.compile(
    r"^\w+   Entry: ID: 0x000018,.*\n.*Num Names: 0, IDs: 1\n.*\n.*Num Names: 0, IDs: 1$", re.M
)


def imported(dump):
    for name in re.findall(r"DLL Name: (\S+)", dump):
        yield name, name.lower().removesuffix(".dll")


def problems(dump, manifest):
    imports = list(imported(dump))
    if not imports:
        yield "no imports found"
    for name, library in imports:
        if library in BY_MANIFEST:
            if f'name="{BY_MANIFEST[library]}"' not in manifest:
                yield f"imports {name} without its assembly"
        elif library not in KNOWN:
            yield f"imports {name}"
    # Their names are not in the dump.
    if not re.search(r"^Entry d 0+ 0+ Delay Import Directory$", dump, re.M):
        yield "delays imports"
    for version in ("OSystemVersion", "SubsystemVersion"):
        found = tuple(
            int(re.search(rf"^{part}{version}\s+(\d+)", dump, re.M)[1])
            for part in ("Major", "Minor")
        )
        if found < OLDEST:
            yield f"{version} is {found[0]}.{found[1]:02}"
    for protection in PROTECTIONS:
        if not re.search(rf"^\s+{protection}$", dump, re.M):
            yield f"no {protection}"
    if len(MANIFEST.findall(dump)) != 1:
        yield "not exactly one manifest"


def main():
    program = sys.argv[1]
    dump = subprocess.run(
        ["x86_64-w64-mingw32-objdump", "-p", program], capture_output=True, text=True, check=True
    ).stdout
    content = pathlib.Path(program).read_bytes().decode("latin-1")
    manifest = "".join(re.findall(r"<assembly\b.*?</assembly>", content, re.S))
    found = list(problems(dump, manifest))
    for problem in found:
        print(f"{program}: {problem}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
