"""Checks that the tables of hot keys in README.md, web/help.html and web/index.html tell what
app/core/operations.h has: each key of an operation stands in a row that names what it does, in the
same words and order in all three, up to a semicolon. An operation is known by the words that no
other's label has."""

import html
import itertools
import pathlib
import re
import sys

PAGES = ("README.md", "web/help.html", "web/index.html")
TAGS = ["Alt+1 to Alt+9", "Alt+0"]
MODIFIERS = {"Alt": "Alt", "Control": "Ctrl", "Shift": "Shift", "Win": "Windows"}
ROW = re.compile(
    r"""\{Operation::k(\w+), .*?, OperationGroup::\w+, \d+, "\w+", "\w+", """
    r"""([^,]*), ('.'|win32::kVk\w+|0), "([^"]*)","""
)

problems = 0


def complain(page, what):
    global problems
    problems += 1
    print(f"{page}: {what}")


def words(text):
    return set(re.findall(r"[a-z]+", text.lower()))


def operations():
    """Of each operation that has a key: its name, the key, and the words that only it has."""
    source = pathlib.Path("app/core/operations.h").read_text(encoding="utf-8")
    found = ROW.findall(re.sub(r"\s+", " ", source))
    if len(found) != source.count("{Operation::k"):
        complain("app/core/operations.h", "its rows cannot be read")
    for name, modifiers, key, label in found:
        others = set().union(*(words(row[3]) for row in found if row[0] != name))
        parts = [MODIFIERS[part] for part in re.findall(r"win32::kMod(\w+)", modifiers)]
        if key != "0":
            yield name, "+".join([*parts, re.sub(r"win32::kVk|'", "", key)]), words(label) - others


def plain(cell):
    return html.unescape(re.sub(r"<.*?>", "", cell)).strip(" *\xa0")


def table(page):
    """Keys and what they do, of the first table of the page."""
    text = pathlib.Path(page).read_text(encoding="utf-8")
    if page.endswith(".md"):
        part = text.partition("\n|---|---|\n")[2].partition("\n\n")[0]
        rows = re.findall(r"^\| (.*?) \| (.*?) \|$", part, re.M)
    else:
        part = text.partition("<table>")[2].partition("</table>")[0]
        rows = re.findall(r"<tr><td>(.*?)</td><td>(.*?)</td></tr>", part)
    return [(plain(key).replace(" .. ", " to "), plain(does).split(";")[0]) for key, does in rows]


def check(page, rows, expected):
    if [key for key, _ in rows[: len(TAGS)]] != TAGS:
        complain(page, f"does not begin with {TAGS}")
    told = dict(rows[len(TAGS) :])
    if len(told) < len(rows) - len(TAGS):
        complain(page, "tells a key twice")
    for name, key, own in expected:
        if key not in told:
            complain(page, f"{key} for {name} is missing")
        elif not any(word.startswith(tuple(own)) for word in words(told[key])):
            complain(page, f'{key} is for {name}, not "{told[key]}"')
    for key in told.keys() - {key for _, key, _ in expected}:
        complain(page, f"no operation has {key}")


expected = list(operations())
tables = {page: table(page) for page in PAGES}
for page, rows in tables.items():
    check(page, rows, expected)
    for row, first in itertools.zip_longest(rows, tables[PAGES[0]]):
        if row != first:
            complain(page, f"says {row}, {PAGES[0]} says {first}")
sys.exit(1 if problems or not expected else 0)
