"""Holds check_pages.py to finding what is wrong with a page."""

import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().with_name("check_pages.py")
HEAD = '<link rel="stylesheet" href="style.css">'


class CheckPages(unittest.TestCase):
    def found(self, page, style="p { margin: 0 }", readme="# Korvale", pictures=()):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            for place in ("web/pictures", "docs/pictures"):
                (folder / place).mkdir(parents=True)
            for picture, size in pictures:
                start = b"\x89PNG\r\n\x1a\n\0\0\0\rIHDR"
                (folder / "web/pictures" / picture).write_bytes(start + struct.pack(">II", *size))
            (folder / "web/help.html").write_text(page)
            (folder / "web/style.css").write_text(style)
            (folder / "README.md").write_text(readme)
            ended = subprocess.run([sys.executable, SCRIPT], cwd=folder, capture_output=True,
                                   text=True, check=False)  # fmt: skip
            self.assertEqual(ended.stderr, "")
            self.assertEqual(ended.returncode, 1 if ended.stdout else 0)
            return ended.stdout.splitlines()

    def test_takes_a_good_page(self):
        follow = '<p id="a"><a href="https://example.org/">there</a> <a href="#a">here</a></p>'
        self.assertEqual(self.found(HEAD + follow, readme="[there](https://example.org/)"), [])
        self.assertEqual(self.found('<p style="background: url(data:image/gif;base64,R0==)">'), [])

    def test_finds_a_link_that_leads_nowhere(self):
        self.assertEqual(self.found('<a href="gone.html">'),
                         ["web/help.html: gone.html leads nowhere"])  # fmt: skip
        self.assertEqual(self.found('<a href="#gone">'), ["web/help.html: #gone: no such anchor"])

    def test_finds_what_a_page_would_load_from_another_host(self):
        for link in ("https://example.org/x", "http://example.org/x", "//example.org/x"):
            for planted in (
                f'<script src="{link}"></script>',
                f'<iframe src="{link}"></iframe>',
                f'<source srcset="{link} 2x">',
                f'<link rel="stylesheet" href="{link}">',
                f'<object data="{link}"></object>',
                f'<p style="background: url({link})">',
                f"<style>p {{ background: url( '{link}' ) }}</style>",
                f'<style>@import "{link}";</style>',
            ):
                expected = [f"web/help.html: {link} is loaded from elsewhere"]
                self.assertEqual(self.found(planted), expected, planted)

    def test_finds_what_a_stylesheet_would_load_from_another_host(self):
        found = self.found(HEAD, style='@font-face { src: url("https://example.org/f") }')
        self.assertEqual(found, ["web/style.css: https://example.org/f is loaded from elsewhere"])

    def test_finds_a_picture_of_another_host(self):
        expected = "https://example.org/p.png is loaded from elsewhere"
        picture = '<img src="https://example.org/p.png" alt="P" width="1" height="1">'
        self.assertEqual(self.found(picture), [f"web/help.html: {expected}"])
        found = self.found(HEAD, readme="![P](https://example.org/p.png)")
        self.assertEqual(found, [f"README.md: {expected}"])

    def test_finds_a_picture_of_another_size(self):
        page = ('<img src="pictures/p.png" srcset="pictures/p-2x.png 2x" alt="P"'
                ' width="100" height="50">')  # fmt: skip
        for sizes, expected in (
            (((100, 50), (200, 100)), []),
            (((100, 50), (194, 92)), []),
            (((100, 51), (200, 100)), ["pictures/p.png is (100, 51), not (100, 50)"]),
            (((100, 50), (450, 100)), ["pictures/p-2x.png is 450 wide, not about 200"]),
        ):
            found = self.found(page, pictures=zip(("p.png", "p-2x.png"), sizes))
            self.assertEqual(found, [f"web/help.html: {what}" for what in expected])


if __name__ == "__main__":
    unittest.main()
