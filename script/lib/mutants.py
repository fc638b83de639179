"""Makes mutants of C++ code: small faults of the kind that people make, one in each mutant."""

import re
from dataclasses import dataclass

from cpp_code import CONTROLS, Code

SWAPS = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"),
    "==": ("!=",), "!=": ("==",),
    "&&": ("||",), "||": ("&&",),
    "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("*",),
    "&": ("|",), "|": ("&",), "^": ("&",), "<<": (">>",), ">>": ("<<",),
    "+=": ("-=",), "-=": ("+=",), "*=": ("/=",), "/=": ("*=",), "%=": ("*=",),
    "&=": ("|=",), "|=": ("&=",), "<<=": (">>=",), ">>=": ("<<=",),
    "++": ("--",), "--": ("++",),
}  # fmt: skip
CONDITIONS = {"if", "while"}
# What begins a statement that is no expression, or that nothing remains of to delete.
KEPT = {
    "case", "default", "using", "static_assert", "else", "do", "try", "catch", "struct", "class",
    "enum", "template", "public", "private", "protected", "friend", "namespace", "typedef",
}  # fmt: skip
# The tables of controls of the forms: where a control stands and how large it is, is judged by
# pictures. Left out are lists of four values, what is named Twips, and numbers of some size, which
# are Twips as well where no constant of another type is made of them.
LAYOUT_FILES = re.compile(r"^forms/(\w+_design|about_form|msg_tip_form|wait_window_form)\.cpp$")
LAYOUT_CONSTANT = re.compile(r"\bTwips \w+ =$")
LEAST_TWIPS = 20


@dataclass(frozen=True)
class Mutant:
    path: str
    start: int
    end: int
    new: str
    kind: str

    def applied(self, source):
        return source[: self.start] + self.new + source[self.end :]

    def lines(self, source):
        """The first line number, and the whole lines before and after."""
        first = source.rfind("\n", 0, self.start) + 1
        last = source.find("\n", self.end)
        last = len(source) if last < 0 else last
        old = source[first:last]
        new = source[first : self.start] + self.new + source[self.end : last]
        return source.count("\n", 0, self.start) + 1, old, new

    def name(self, source):
        """What the mutant is known by: its file and its lines, wherever they stand."""
        _, old, new = self.lines(source)
        return self.path, plain(old), plain(new)


def plain(text):
    return " ".join(text.split())


def mutants(path, source):
    found = list(Maker(path, source).all())
    return sorted(set(found), key=lambda each: (each.start, each.end, each.new))


class Maker(Code):
    def __init__(self, path, source):
        super().__init__(path, source)
        self.skipped = self.find_skipped()

    def find_skipped(self):
        """The tokens in which a fault would be none of the program's, or only of its layout."""
        skipped = set()
        for at, token in enumerate(self.tokens):
            if token.text == "static_assert":
                skipped.update(range(at, self.tokens[at + 1].partner + 1))
            elif token.holds in ("template", "values"):
                skipped.update(range(at, token.partner + 1))
            elif token.text == "[" and self.is_extent(at):
                skipped.update(range(at, token.partner + 1))
            elif LAYOUT_FILES.match(self.path) and self.is_place(at):
                skipped.update(range(at, token.partner or self.statement_end(at) or at))
        return skipped

    def is_place(self, at):
        token = self.tokens[at]
        if token.holds == "list":
            return len(self.parts(at)) == 4 and any(
                each.kind == "number" for each in self.tokens[at : token.partner]
            )
        return token.text == "=" and LAYOUT_CONSTANT.search(self.source[: token.end][-80:])

    def all(self):
        for at, token in enumerate(self.tokens):
            if at in self.skipped:
                continue
            if token.kind == "operator":
                yield from self.operators(at, token)
            elif token.kind == "number":
                yield from self.numbers(at, token)
            elif token.kind == "name" and token.text in ("true", "false"):
                yield self.of(at, at, "false" if token.text == "true" else "true", "constant")
            elif token.kind in ("text", "character"):
                yield from self.texts(at, token)
            if token.text in CONDITIONS:
                yield from self.conditions(at)
            if self.begins_statement(at):
                yield from self.statements(at)

    def of(self, first, last, new, kind):
        return Mutant(self.path, self.tokens[first].start, self.tokens[last].end, new, kind)

    def operators(self, at, token):
        after = self.tokens[at + 1] if at + 1 < len(self.tokens) else None
        if token.text == "!" and after and not after.spaced:
            yield self.of(at, at, "", "negation")
        elif token.text == "-" and not after.spaced and self.is_prefix(at):
            yield self.of(at, at, "", "arithmetic")
        elif token.text in ("++", "--") or (token.spaced and after and after.spaced):
            if self.before(at).text != "operator" and token.text in SWAPS and token.partner is None:
                for new in SWAPS[token.text]:
                    yield self.of(at, at, new, "operator")
        if token.text == "?":
            first = self.expression_begin(at)
            condition = self.source[self.tokens[first].start : self.tokens[at - 1].end]
            yield self.of(first, at - 1, f"!({condition})", "condition")
        if token.text == "(" and self.is_call(at):
            yield from self.arguments(at)

    def numbers(self, at, token):
        match = re.fullmatch(r"(0[xX][\da-fA-F']+|[\d']+)([uUlLzZ]*)", token.text)
        if not match or self.before(at).text == "operator":
            return
        digits, suffix = match.groups()
        value = int(digits.replace("'", ""), 0 if digits[:2].lower() == "0x" else 10)
        plus = f"{value + 1:#x}" if digits[:2].lower() == "0x" else str(value + 1)
        if LAYOUT_FILES.match(self.path) and digits.isdecimal() and value >= LEAST_TWIPS:
            if not self.line_before(at).startswith("constexpr "):
                return
        yield self.of(at, at, plus + suffix, "constant")
        if value:
            yield self.of(at, at, "0" + suffix, "constant")

    def texts(self, at, token):
        prefix, quote, body = re.fullmatch(r"(\w*)(['\"])(.*)['\"]", token.text, re.S).groups()
        if "R" in prefix or self.before(at).text == "extern":
            return
        if quote == '"':
            yield self.of(at, at, f'{prefix}"~{body}"', "constant")
            if body:
                yield self.of(at, at, f'{prefix}""', "constant")
        elif len(body) == 1:
            yield self.of(at, at, f"{prefix}'{chr(ord(body) + 1)}'", "constant")
        else:
            yield self.of(at, at, f"{prefix}'~'", "constant")

    def conditions(self, at):
        opening = at + 1
        if self.tokens[opening].text != "(":
            return
        first = opening + 1
        for each in range(first, self.tokens[opening].partner):
            if self.tokens[each].text == ";" and self.tokens[each].inside == opening:
                first = each + 1
        last = self.tokens[opening].partner - 1
        condition = self.source[self.tokens[first].start : self.tokens[last].end]
        yield self.of(first, last, f"!({condition})", "condition")

    def arguments(self, at):
        texts = [
            (first, last, self.source[self.tokens[first].start : self.tokens[last].end])
            for first, last in self.parts(at)
        ]
        for (first, _, one), (second, last, other) in zip(texts, texts[1:]):
            if one != other and not any("{" in each and ";" in each for each in (one, other)):
                between = self.source[
                    self.tokens[first].start + len(one) : self.tokens[second].start
                ]
                yield self.of(first, last, other + between + one, "arguments")

    def statements(self, at):
        token = self.tokens[at]
        end = None if token.text in KEPT | CONTROLS else self.statement_end(at)
        if end is None or end == at:
            return
        text = self.source[token.start : self.tokens[end].end]
        if token.text == "return" and end > at + 1:
            if not self.is_guarded(at) or self.tokens[at - 1].text == ":":
                yield from self.returns(at, end)
                return
        # Room made in advance changes nothing that anybody sees.
        if not re.match(r"[\w.>-]+(\.|->)reserve\(", text) and not self.declares_used(at, end):
            yield self.of(at, end, ";", "statement")
        if token.text == "return":
            yield from self.returns(at, end)

    def returns(self, at, end):
        """`return IsSuch(x);` said the other way round."""
        first, last = at + 1, end - 1
        if first <= last and self.tokens[last].text == ")" and self.tokens[first].text != "!":
            if self.tokens[self.tokens[last].partner - 1].kind == "name":
                text = self.source[self.tokens[first].start : self.tokens[last].end]
                if re.match(r"[\w:.>-]+\(", text) and self.expression_is_call(first, last):
                    yield self.of(first, last, f"!({text})", "condition")
