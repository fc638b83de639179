"""Makes mutants of C++ code: small faults of the kind that people make, one in each mutant."""

import functools
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
# What goes its way at once, or only makes what comes next.
LEAVING = {"return", "break", "continue", "throw", "goto", "co_return"}
# What a template makes more or less room of, which is no matter of behaviour.
ROOMS = {"array", "span", "bitset"}
# A constant or a member that belongs to a type, as a template takes it.
QUALIFIED = re.compile(r"(&?[\w:]*\w::)(\w+)")
# The tables of controls of the forms: where a control stands and how large it is, is judged by
# pictures. Left out are lists of four values, what is named Twips, and numbers of some size, which
# are Twips as well where no constant of another type is made of them.
LAYOUT_FILES = re.compile(r"^forms/(\w+_design|about_form|msg_tip_form|wait_window_form)\.cpp$")
LAYOUT_CONSTANT = re.compile(r"\bTwips \w+ =$")
LEAST_TWIPS = 20
RESERVES = re.compile(r"[\w.>-]+(\.|->)reserve\(")


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
            elif token.holds == "values" or token.holds == "template" and self.is_declared(at):
                skipped.update(range(at, token.partner + 1))
            elif token.holds == "template":
                skipped.update(self.types_in(at))
            elif token.text == "[" and self.is_extent(at):
                skipped.update(range(at, token.partner + 1))
            elif LAYOUT_FILES.match(self.path) and self.is_place(at):
                skipped.update(range(at, token.partner or self.statement_end(at) or at))
        return skipped

    def is_declared(self, opening):
        """The parameters of a template, or how much room it makes."""
        return self.tokens[opening - 1].text in ROOMS | {"template"}

    def types_in(self, opening):
        """The tokens of those arguments of a template that are no values."""
        for first, last in self.parts(opening):
            values = self.tokens[first].kind in ("number", "text", "character")
            if not values and self.tokens[first].text not in ("true", "false"):
                yield from range(first, last + 1)

    def is_place(self, at):
        token = self.tokens[at]
        if token.holds == "list":
            return len(self.parts(at)) == 4 and any(
                each.kind == "number" for each in self.tokens[at : token.partner]
            )
        return token.text == "=" and LAYOUT_CONSTANT.search(self.source[: token.end][-80:])

    def all(self):
        for at, token in enumerate(self.tokens):
            if token.holds == "template" and not self.is_declared(at):
                yield from self.members(at)
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
                yield from self.orders(at)

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

    def members(self, opening):
        """Another member of the type, or another of its constants, as a template's argument: the
        next one in the file that is given to a template."""
        given = self.given_members()
        for first, last in self.parts(opening):
            text = self.text_of(first, last)
            others = given.get(text.rpartition("::")[0], [])
            if text in others and len(others) > 1:
                new = others[(others.index(text) + 1) % len(others)]
                yield self.of(first, last, new, "member")

    @functools.cache
    def given_members(self):
        """All arguments of templates of the form Type::kConstant or &Type::member, by their type."""
        given = {}
        for at, token in enumerate(self.tokens):
            if token.holds != "template" or self.is_declared(at):
                continue
            for part in self.parts(at):
                text = self.text_of(*part)
                match = QUALIFIED.fullmatch(text)
                if match and (text[0] == "&" or re.match("k[A-Z]", match[2])):
                    known = given.setdefault(text.rpartition("::")[0], [])
                    if text not in known:
                        known.append(text)
        return given

    def orders(self, at):
        """Two neighbouring statements, the second before the first."""
        if self.is_guarded(at) and self.tokens[at - 1].text != ":":
            return
        end = self.whole_statement(at)
        if end is None or not self.begins_statement(end + 1):
            return
        last = self.whole_statement(end + 1)
        if last is None or not all(self.can_move(*each) for each in ((at, end), (end + 1, last))):
            return
        one, other = self.text_of(at, end), self.text_of(end + 1, last)
        if one != other and not self.are_apart(one, other):
            between = self.source[self.tokens[end].end : self.tokens[end + 1].start]
            yield self.of(at, last, other + between + one, "order")

    def can_move(self, first, last):
        token = self.tokens[first]
        return (
            first < last
            and token.text not in KEPT | LEAVING
            and self.tokens[first - 1].text not in ("else", "do")
            and (token.text in CONTROLS or not self.declares_used(first, last))
            and not RESERVES.match(self.text_of(first, last))
        )

    def are_apart(self, one, other):
        """Handlers of different events, or plain assignments of which neither reads the other's
        variable."""
        if one.startswith("When") and other.startswith("When"):
            return True
        parts = [each.partition(" = ") for each in (one, other)]
        if any(not sign or "(" in whole for (_, sign, _), whole in zip(parts, (one, other))):
            return False
        names = [re.findall(r"\w+", left)[-1] for left, _, _ in parts]
        return not re.search(rf"\b{names[0]}\b", other) and not re.search(rf"\b{names[1]}\b", one)

    def text_of(self, first, last):
        return self.source[self.tokens[first].start : self.tokens[last].end]

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
        if not RESERVES.match(text) and not self.declares_used(at, end):
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
