"""Holds release_notes.py to letting nothing out that is not ready."""

import unittest

from release_notes import notes

CHANGES = """# Changes

## [1.1.0] - Unreleased

### Added

- A second thing.

## [1.0.0] - 2026-12-01

### Added

- A first thing.

## [0.9.0] - 2026-11-01

## [0.8.0]

- The oldest thing.
"""


class ReleaseNotes(unittest.TestCase):
    def expect_refused(self, version, why):
        with self.assertRaisesRegex(ValueError, why):
            notes(CHANGES, version, released=True)

    def test_prints_what_stands_below_the_heading(self):
        self.assertEqual(notes(CHANGES, "1.0.0", released=True), "### Added\n\n- A first thing.")

    def test_lets_a_version_be_worked_on(self):
        self.assertEqual(notes(CHANGES, "1.1.0", released=False), "### Added\n\n- A second thing.")

    def test_refuses_a_tag_of_a_version_without_a_date(self):
        self.expect_refused("1.1.0", 'no date of 1.1.0, but "Unreleased"')
        self.expect_refused("0.8.0", "no date of 0.8.0")

    def test_refuses_a_version_of_which_nothing_is_said(self):
        self.expect_refused("0.9.0", "nothing of 0.9.0")
        self.expect_refused("2.0.0", "nothing of 2.0.0")


if __name__ == "__main__":
    unittest.main()
