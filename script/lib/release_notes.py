"""Prints what CHANGELOG.md says of a version; fails when it says nothing, or when that is not the
version that CMakeLists.txt tells. Of a tag, such as v1.0.0, the heading must also tell the date.
Usage: release_notes.py VERSION|TAG"""

import re
import sys

from manifests import project_version


def notes(changelog, version, released):
    """What the changelog says of the version; ValueError when that will not do."""
    parts = re.split(r"^## \[(.+?)\](.*)\n", changelog, flags=re.M)
    told = dict(zip(parts[1::3], zip(parts[2::3], parts[3::3])))
    heading, text = told.get(version, ("", ""))
    if not text.strip():
        raise ValueError(f"CHANGELOG.md says nothing of {version}")
    if released and not re.fullmatch(r" - \d{4}-\d\d-\d\d", heading):
        raise ValueError(f"CHANGELOG.md tells no date of {version}, but \"{heading.strip(' -')}\"")
    return text.strip()


def main():
    version = sys.argv[1].removeprefix("v")
    if version != project_version():
        sys.exit(f"CMakeLists.txt tells {project_version()}, not {version}")
    with open("CHANGELOG.md", encoding="utf-8") as file:
        try:
            print(notes(file.read(), version, version != sys.argv[1]))
        except ValueError as error:
            sys.exit(str(error))


if __name__ == "__main__":
    main()
