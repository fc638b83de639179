"""Holds check_release.py to finding what is wrong with a program."""

import unittest

from check_release import LARGEST, problems, too_large, unused, wrong_symbols

MANIFEST = '<assembly><assemblyIdentity name="Microsoft.Windows.Common-Controls"/></assembly>'
ONE_MANIFEST = """
018   Entry: ID: 0x000018, Value: 0x80000200
200    Name Table: Char: 0, Time: 00000000, Ver: 0/0, Num Names: 0, IDs: 1
210     Entry: ID: 0x000001, Value: 0x80000300
300      Language Table: Char: 0, Time: 00000000, Ver: 0/0, Num Names: 0, IDs: 1
"""
GOOD = f"""
MajorOSystemVersion\t6
MinorOSystemVersion\t2
MajorSubsystemVersion\t10
MinorSubsystemVersion\t0
\t\t\t\t\tHIGH_ENTROPY_VA
\t\t\t\t\tDYNAMIC_BASE
\t\t\t\t\tNX_COMPAT
Entry d 0000000000000000 00000000 Delay Import Directory
\tDLL Name: KERNEL32.dll
\tDLL Name: COMCTL32.dll
{ONE_MANIFEST}"""


class CheckRelease(unittest.TestCase):
    def found(self, old="", new="", manifest=MANIFEST):
        self.assertIn(old, GOOD)
        return list(problems(GOOD.replace(old, new, 1) if old else GOOD, manifest))

    def test_takes_a_good_program(self):
        self.assertEqual(self.found(), [])

    def test_finds_a_library_that_could_lie_beside_the_program(self):
        self.assertEqual(self.found("KERNEL32", "VERSION"), ["imports VERSION.dll"])

    def test_finds_a_library_that_a_start_does_not_need(self):
        for name in ("ole32", "SHELL32", "comdlg32"):
            self.assertEqual(self.found("KERNEL32", name), [f"imports {name}.dll"])

    def test_finds_parts_of_the_standard_library_that_are_of_no_use(self):
        good = "0000000140001000 T _ZN7korvale7frmMainC1Ev\n0000000140002000 T _ZNSsC1ERKSs\n"
        self.assertEqual(list(unused(good)), [])
        for part, name in (
            ("iostreams", "_ZNSt8ios_base4InitC1Ev"),
            ("iostreams", "_ZNSolsEi"),
            ("iostreams", "_ZNSt7__cxx1119basic_ostringstreamIcSt11char_traitsIcESaIcEEC1Ev"),
            ("iostreams", "_ZSt16__ostream_insertIcSt11char_traitsIcEERSt13basic_ostreamIT_T0_ES6_PKS3_l"),
            ("locales", "_ZNSt6locale5facetD2Ev"),
            ("filesystem", "_ZNSt10filesystem7__cxx114path14_M_split_cmptsEv"),
        ):
            found = list(unused(f"{good}0000000140003000 T {name}\n"))
            self.assertEqual(found, [f"has {part}: {name}"])

    def test_finds_a_program_whose_symbols_tell_nothing(self):
        self.assertEqual(list(wrong_symbols("", True)), ["has no symbols"])
        self.assertEqual(list(wrong_symbols("0 T main\n", False)), ["is not stripped"])
        self.assertEqual(list(wrong_symbols("0 T main\n", True)), [])
        self.assertEqual(list(wrong_symbols("", False)), [])

    def test_finds_a_program_that_has_grown(self):
        self.assertEqual(list(too_large(LARGEST)), [])
        self.assertEqual(list(too_large(491521)), ["has 491521 bytes, the aim is 491520"])

    def test_finds_common_controls_that_the_manifest_does_not_name(self):
        expected = ["imports COMCTL32.dll without its assembly"]
        self.assertEqual(self.found(manifest="<assembly></assembly>"), expected)

    def test_finds_delayed_imports(self):
        old = "0000000000000000 00000000 Delay"
        self.assertEqual(self.found(old, "00000000000d8000 00000040 Delay"), ["delays imports"])

    def test_finds_an_older_windows(self):
        found = self.found("MinorOSystemVersion\t2", "MinorOSystemVersion\t1")
        self.assertEqual(found, ["OSystemVersion is 6.01"])
        found = self.found("MajorSubsystemVersion\t10", "MajorSubsystemVersion\t5")
        self.assertEqual(found, ["SubsystemVersion is 5.00"])

    def test_finds_a_protection_that_is_missing(self):
        for name in ("DYNAMIC_BASE", "HIGH_ENTROPY_VA", "NX_COMPAT"):
            self.assertEqual(self.found(name, "NONE"), [f"no {name}"])

    def test_finds_a_second_manifest_and_none(self):
        expected = ["not exactly one manifest"]
        self.assertEqual(self.found(ONE_MANIFEST, 2 * ONE_MANIFEST), expected)
        self.assertEqual(self.found(ONE_MANIFEST), expected)


if __name__ == "__main__":
    unittest.main()
