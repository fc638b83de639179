"""Checks the pages that strangers read: every link of web/*.html and *.md that stays in this folder
leads to a file, or to an anchor of a page, that is there, every picture of a page tells its size and
is used, one of the double scale has twice the width, and what a page or stylesheet loads by itself
comes from no other host."""

import html.parser
import pathlib
import re
import struct
import sys
import urllib.parse

# The frames of windows do not grow evenly.
FRAMES = 8

problems = 0


def complain(page, what):
    global problems
    problems += 1
    print(f"{page}: {what}")


def loaded_by_styles(text):
    found = re.findall(r"""url\(\s*["']?([^"')]*)|@import\s+["']([^"']*)""", text)
    return [part.strip() for parts in found for part in parts if part]


class Page(html.parser.HTMLParser):
    """What a page names: anchors, links, pictures, and what is loaded without being asked for."""

    def __init__(self, path):
        super().__init__()
        self.path = path
        self.anchors = set()
        self.links = []
        self.loaded = []
        self.pictures = []
        text = path.read_text(encoding="utf-8")
        if path.suffix == ".md":
            text = re.sub(r"```.*?```|`[^`\n]*`", "", text, flags=re.S)
            self.links += re.findall(r"\]\(([^)\s]+)\)", text)
            self.loaded += re.findall(r"!\[[^\]]*\]\(([^)\s]+)", text)
            for heading in re.findall(r"^#+ (.*)$", text, re.M):
                self.anchors.add(re.sub(r"[^\w -]", "", heading).lower().replace(" ", "-"))
        self.loaded += loaded_by_styles(text)
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        if "id" in given:
            if given["id"] in self.anchors:
                complain(self.path, f"two anchors {given['id']}")
            self.anchors.add(given["id"])
        self.loaded += [given[name] for name in ("src", "poster", "data") if name in given]
        self.loaded += [part.split()[0] for part in given.get("srcset", "").split(",") if part]
        if "href" in given:
            (self.loaded if tag == "link" else self.links).append(given["href"])
        if tag == "img":
            self.pictures.append(given)
            if not given.get("alt"):
                complain(self.path, f"{given.get('src')} has no alternative text")


def size_of(picture):
    with open(picture, "rb") as file:
        return struct.unpack(">II", file.read(24)[16:])


def check_sizes(page):
    for given in page.pictures:
        told = (int(given.get("width", 0)), int(given.get("height", 0)))
        picture = page.path.parent / given["src"]
        if picture.is_file() and size_of(picture) != told:
            complain(page.path, f"{given['src']} is {size_of(picture)}, not {told}")


def check_double(page):
    for given in page.pictures:
        once = page.path.parent / given["src"]
        for candidate in given.get("srcset", "").split(","):
            name, scale = (*candidate.split(), "", "")[:2]
            twice = page.path.parent / name
            if scale != "2x" or not once.is_file() or not twice.is_file():
                continue
            width, expected = size_of(twice)[0], 2 * size_of(once)[0]
            if abs(width - expected) > FRAMES:
                complain(page.path, f"{name} is {width} wide, not about {expected}")


def check_loaded(path, loaded):
    for link in loaded:
        parts = urllib.parse.urlsplit(link)
        if parts.netloc or parts.scheme not in ("", "data"):
            complain(path, f"{link} is loaded from elsewhere")


def check_links(page, pages):
    reached = set()
    for link in sorted({*page.links, *page.loaded}):
        parts = urllib.parse.urlsplit(link)
        if parts.scheme or parts.netloc:
            continue
        target = page.path.parent / urllib.parse.unquote(parts.path) if parts.path else page.path
        target = pathlib.Path(*target.parts)
        reached.add(target.resolve())
        if not target.exists():
            complain(page.path, f"{link} leads nowhere")
        elif parts.fragment and parts.fragment not in pages[target.resolve()].anchors:
            complain(page.path, f"{link}: no such anchor")
    return reached


paths = [*pathlib.Path("web").glob("*.html"), *pathlib.Path().glob("*.md"),
         *pathlib.Path("docs").glob("*.md")]  # fmt: skip
pages = {path.resolve(): Page(path) for path in paths}
reached = set()
for page in pages.values():
    reached |= check_links(page, pages)
    check_loaded(page.path, page.loaded)
    check_double(page)
    if page.path.suffix == ".html":
        check_sizes(page)
for path in pathlib.Path("web").rglob("*.css"):
    check_loaded(path, loaded_by_styles(path.read_text(encoding="utf-8")))
for folder in ("web/pictures", "docs/pictures"):
    for picture in sorted(pathlib.Path(folder).iterdir()):
        if picture.resolve() not in reached:
            complain(picture, "no page shows it")
sys.exit(1 if problems or not pages else 0)
