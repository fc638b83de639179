"""Holds mutants.py to making the faults that a test must find, and no others."""

import unittest

from mutants import mutants, plain


def inside(code):
    return f"bool Asked(int one, int other) {{\n{code}\n}}\n"


class Mutants(unittest.TestCase):
    def changed(self, source, path="desktop/some.cpp"):
        """The changed lines of all mutants."""
        return [plain(each.lines(source)[2]) for each in mutants(path, source)]

    def of(self, code):
        return self.changed(inside(code))

    def test_moves_a_boundary_and_turns_a_comparison(self):
        found = self.of("  return one < other;")
        self.assertEqual(found, ["return one <= other;", "return one >= other;"])

    def test_takes_template_brackets_for_none(self):
        self.assertEqual(self.of("  std::map<int, std::vector<int>> some = Other<int>::kAll;"), [";"])

    def test_takes_pointers_and_references_for_no_arithmetic(self):
        self.assertEqual(self.of("  return const char* const text = of<T&&>::kAll;"), [])

    def test_swaps_logic_and_drops_a_negation(self):
        found = self.of("  return one && !other;")
        self.assertEqual(found, ["return one || !other;", "return one && other;"])

    def test_negates_a_condition_and_deletes_what_it_guards(self):
        found = self.of("  if (one) return;")
        self.assertEqual(found, ["if (!(one)) return;", "if (one) ;"])

    def test_negates_only_the_condition_of_a_choice(self):
        self.assertEqual(
            self.of("  some = one ? Left() : other;"),
            [";", "some = !(one) ? Left() : other;"],
        )

    def test_deletes_a_call_but_no_variable_that_is_used(self):
        self.assertEqual(self.of("  Do();"), [";"])
        self.assertEqual(self.of("  Guard guard(one);"), [";"])
        self.assertEqual(self.of("  Value value(one);\n  return value.all;"), [])

    def test_keeps_what_only_makes_room(self):
        self.assertEqual(self.of("  some.reserve(other);"), [])

    def test_changes_numbers_texts_and_letters(self):
        found = self.of("  return of(7, true, \"x\", 'Z');")
        for new in ("8, true", "0, true", "7, false", '"~x"', '""', "'['"):
            self.assertTrue(any(new in each for each in found), new)

    def test_swaps_neighbouring_arguments(self):
        self.assertIn("Do(other, one);", self.of("  Do(one, other);"))
        self.assertNotIn("Do(one, one);", self.of("  Do(one, one);"))

    def test_changes_what_a_template_is_given_but_no_type_and_no_room(self):
        found = self.of("  Of<7, Type>(Other<true>());")
        for new in ("Of<8, Type>(Other<true>());", "Of<0, Type>(Other<true>());"):
            self.assertIn(new, found)
        self.assertIn("Of<7, Type>(Other<false>());", found)
        self.assertEqual(len(found), 4)
        self.assertEqual(self.of("  std::array<int, 7> some = all;"), [";"])
        self.assertEqual(self.changed("template <int Number = 7>\nvoid Do();\n"), [])

    def test_gives_a_template_another_member_or_constant_of_the_same_type(self):
        found = self.changed("Row rows[] = {Of<&Some::one>, Of<&Some::two>, Of<&Other::one>};\n")
        self.assertEqual(
            found,
            [
                "Row rows[] = {Of<&Some::two>, Of<&Some::two>, Of<&Other::one>};",
                "Row rows[] = {Of<&Some::one>, Of<&Some::one>, Of<&Other::one>};",
            ],
        )
        found = self.of("  Do(Of<Kind::kOne>(), Of<Kind::kTwo>(), Of<Kind::Type>());")
        self.assertIn("Do(Of<Kind::kTwo>(), Of<Kind::kTwo>(), Of<Kind::Type>());", found)

    def orders(self, code):
        made = mutants("desktop/some.cpp", inside(code))
        return [plain(each.new) for each in made if each.kind == "order"]

    def test_puts_a_statement_before_its_neighbour(self):
        self.assertEqual(
            self.orders("  One();\n  if (other) Two();\n  for (;;) {\n    Go();\n  }"),
            ["if (other) Two(); One();", "for (;;) { Go(); } if (other) Two();"],
        )
        self.assertEqual(
            self.orders("  switch (one) {\n    case 1:\n      One();\n      Two();\n  }"),
            ["Two(); One();"],
        )
        self.assertEqual(
            self.orders("  if (one) {\n    One();\n  } else {\n    Two();\n  }\n  Three();"),
            ["Three(); if (one) { One(); } else { Two(); }"],
        )

    def test_keeps_the_order_of_what_hangs_together_or_stands_apart(self):
        for code in (
            "  const Value value = Of(one);\n  Do(value);",
            "  if (one) One();\n  return other;",
            "  One();\n  return;",
            "  One();\n  One();",
            "  some.left = one;\n  some.top = other;",
            "  some.reserve(one);\n  Do();",
            "  WhenClicked(one);\n  WhenClicked(other);",
        ):
            self.assertEqual(self.orders(code), [], code)
        self.assertEqual(len(self.orders("  left = one;\n  top = left;")), 1)

    def test_leaves_parameters_and_declarations_alone(self):
        self.assertEqual(self.changed("bool Asked(int one, int other);\n"), [])

    def test_leaves_checks_of_the_compiler_and_comments_alone(self):
        source = "// one < 1\n#include <a>\nstatic_assert(kOne < 1);\nenum class Kind { kOne = 1 };\n"
        self.assertEqual(self.changed(source), [])

    def test_leaves_the_places_of_a_form_alone(self):
        source = "constexpr ControlRow kRows[] = {\n{kLabel, {1, 2, 30, 40}, kFlags},\n};\n"
        self.assertEqual(self.changed(source, "forms/some_design.cpp"), [])
        self.assertEqual(len(self.changed(source)), 8)

    def test_knows_a_mutant_wherever_its_line_stands(self):
        one, other = inside("  return !other;"), inside("\n\n  Do();\n  return  !other;")
        names = [
            [each.name(text) for each in mutants("some.cpp", text) if each.kind == "negation"]
            for text in (one, other)
        ]
        self.assertEqual(names[0], [("some.cpp", "return !other;", "return other;")])
        self.assertEqual(*names)


if __name__ == "__main__":
    unittest.main()
