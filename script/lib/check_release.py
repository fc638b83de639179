"""Checks a program that users unpack anywhere: 
  check_release.py FILE.exe               as it is handed out, stripped
  check_release.py --symbols FILE.exe     as it is linked, with symbols

- Windows loads the imported libraries before the program can say where from. It takes only those
  that it knows from its own folder; any other could lie beside the program in a download folder.
  What a start does not need is loaded when it is first used (SystemLibrary).
- It has nothing of the parts of the standard library that are large and of no use here, as its
  symbols tell.
- Stripped it is small.
- The program says that it is made for Windows 8 or later, and takes part in its protections.
- It has one manifest, which names what BY_MANIFEST needs.
"""

import pathlib
import re
import subprocess
import sys

# Those KnownDLLs of Windows 10 and 11 that every start needs.
KNOWN = set("advapi32 gdi32 kernel32 msvcrt user32".split())
# Not one of them, but with its assembly in the manifest Windows takes it from there.
BY_MANIFEST = {"comctl32": "Microsoft.Windows.Common-Controls"}
# How their names begin after the compiler's mangling.
UNUSED = {
    "iostreams": r"_ZNS[iod]|_Z\w*(St8ios_base|St9basic_ios|\d\dbasic_\w*stream)",
    "locales": r"_Z\w*St6locale",
    "filesystem": r"_Z\w*St10filesystem",
}
LARGEST = 480 * 1024  # bytes
PROTECTIONS = ("DYNAMIC_BASE", "HIGH_ENTROPY_VA", "NX_COMPAT")
OLDEST = (6, 2)
# The entry of this type among the types of resources, with one name in one language.
MANIFEST = re.compile(
    r"^\w+   Entry: ID: 0x000018,.*\n.*Num Names: 0, IDs: 1\n.*\n.*Num Names: 0, IDs: 1$", re.M
)


def imported(dump):
    for name in re.findall(r"DLL Name: (\S+)", dump):
        yield name, name.lower().removesuffix(".dll")


def unused(symbols):
    for part, names in UNUSED.items():
        found = re.search(rf"\b(?:{names})\w*", symbols)
        if found:
            yield f"has {part}: {found[0]}"


def wrong_symbols(symbols, expected):
    if bool(symbols) != expected:
        yield "has no symbols" if expected else "is not stripped"


def too_large(size):
    if size > LARGEST:
        yield f"has {size} bytes, the aim is {LARGEST}"


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


def printed(tool, *arguments):
    return subprocess.run(
        [f"x86_64-w64-mingw32-{tool}", *arguments], capture_output=True, text=True, check=True
    ).stdout


def main():
    *options, program = sys.argv[1:]
    linked = "--symbols" in options
    dump = printed("objdump", "-p", program)
    symbols = printed("nm", program)
    content = pathlib.Path(program).read_bytes()
    manifest = "".join(
        re.findall(r"<assembly\b.*?</assembly>", content.decode("latin-1"), re.S)
    )
    found = [*problems(dump, manifest), *wrong_symbols(symbols, linked), *unused(symbols)]
    if not linked:
        found += too_large(len(content))
        print(f"{program}: {len(content)} bytes, the aim is at most {LARGEST}")
    for problem in found:
        print(f"{program}: {problem}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
