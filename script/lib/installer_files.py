"""Prints, for resources/installer.nsi, macros for the files of a release:

  installer_files.py FOLDER

  InstallFiles      puts them into $INSTDIR
  RemoveFiles       removes them, and those folders of theirs that are empty then
  FindFiles FOUND   sets FOUND to the name of one that $INSTDIR has at its top, if any
"""

import pathlib
import sys


def macro(name, lines):
    print(f"!macro {name}", *("  " + line for line in lines), "!macroend", sep="\n")


def windows(path):
    return str(pathlib.PureWindowsPath(path))


def main():
    folder = pathlib.Path(sys.argv[1])
    names = sorted(path.relative_to(folder) for path in folder.rglob("*"))
    folders = [name for name in names if (folder / name).is_dir()]
    install, remove, find = [], [], []
    for place in (pathlib.Path("."), *folders):
        install.append(f'SetOutPath "$INSTDIR\\{windows(place)}"')
        for name in names:
            if name.parent == place and name not in folders:
                install.append(f'File "{folder.resolve() / name}"')
                remove.append(f'Delete "$INSTDIR\\{windows(name)}"')
    remove += [f'RMDir "$INSTDIR\\{windows(name)}"' for name in reversed(folders)]
    for name in names:
        if name.parent == pathlib.Path("."):
            find += ["${If} ${FileExists} " + f'"$INSTDIR\\{windows(name)}"',
                     f'  StrCpy ${{FOUND}} "{windows(name)}"', "${EndIf}"]
    macro("InstallFiles", install)
    macro("RemoveFiles", remove)
    macro("FindFiles FOUND", find)


main()
