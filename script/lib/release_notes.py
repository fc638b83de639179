"""Prints what CHANGELOG.md says of a version; fails when it says nothing, or when that is not the
version that CMakeLists.txt tells. Usage: release_notes.py VERSION"""

import re
import sys

from manifests import project_version

version = sys.argv[1]
if version != project_version():
    sys.exit(f"CMakeLists.txt tells {project_version()}, not {version}")
with open("CHANGELOG.md", encoding="utf-8") as file:
    parts = re.split(r"^## \[(.+?)\].*\n", file.read(), flags=re.M)
notes = dict(zip(parts[1::2], parts[2::2])).get(version, "").strip()
if not notes:
    sys.exit(f"CHANGELOG.md says nothing of {version}")
print(notes)
