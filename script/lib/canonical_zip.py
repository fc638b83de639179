"""Writes a zip anew so that the same files make the same bytes, whoever packed them, where and when:

  canonical_zip.py ZIP OUT SECONDS     every file has this time, in seconds since 1970

Files are in the order of their names, without folders of their own and without owners.
"""

import sys
import time
import zipfile


def main():
    source, target, seconds = sys.argv[1:]
    date = time.gmtime(int(seconds))[:6]
    with zipfile.ZipFile(source) as packed, zipfile.ZipFile(target, "w") as out:
        for name in sorted(name for name in packed.namelist() if not name.endswith("/")):
            entry = zipfile.ZipInfo(name, date)
            entry.external_attr = 0o100644 << 16
            out.writestr(entry, packed.read(name), zipfile.ZIP_DEFLATED, 9)


main()
