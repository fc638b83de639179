"""Reads C++ code token by token: what is a statement, a call, a sign, a guard."""

from cpp_tokens import cut

# What stands before a bracket that is no call's.
CONTROLS = {"if", "while", "for", "switch"}


class Code:
    def __init__(self, path, source):
        self.path, self.source, self.tokens = path, source, cut(source)

    def is_extent(self, at):
        """`char text[8]`: which array is no matter of behaviour."""
        before, kind = self.tokens[at - 1], self.tokens[at - 2]
        declares = kind.kind == "name" and kind.text not in ("return", "case", "else", "operator")
        return before.kind == "name" and (declares or kind.text in ("*", "&", ">") and not kind.spaced)

    def before(self, at):
        return self.tokens[at - 1] if at else None

    def is_prefix(self, at):
        before = self.before(at)
        return before.kind == "operator" and before.text not in (")", "]") or before.text == "return"

    def line_before(self, at):
        end = self.tokens[at].start
        return self.source[self.source.rfind("\n", 0, end) + 1 : end]

    def expression_begin(self, at):
        """The first token of the condition that ends before this question mark."""
        inside = self.tokens[at].inside
        while at - 1 != inside and at > 0:
            before = self.tokens[at - 1]
            if before.partner is not None and before.partner < at - 1:
                at = before.partner
                continue
            if before.text in ("=", "return", ",", ";", "{", "}", "?", ":", "+=", "-=", "|=", "&="):
                break
            at -= 1
        return at

    def is_call(self, at):
        before = self.before(at)
        return (
            before is not None
            and self.in_code(at)
            and not self.tokens[at].spaced
            and (before.kind == "name" and before.text not in CONTROLS or before.text == ">")
        )

    def in_code(self, at):
        """Whether the innermost braces around hold code or values, not declarations."""
        inside = self.tokens[at].inside
        while inside is not None and self.tokens[inside].holds in ("parentheses", "template"):
            inside = self.tokens[inside].inside
        return inside is not None and self.tokens[inside].holds in ("code", "list")

    def parts(self, opening):
        """The first and last token of each part between commas."""
        closing, first, parts = self.tokens[opening].partner, opening + 1, []
        for at in range(opening + 1, closing + 1):
            comma = self.tokens[at].text == "," and self.tokens[at].inside == opening
            if (comma or at == closing) and at > first:
                parts.append((first, at - 1))
            if comma:
                first = at + 1
        return parts

    def begins_statement(self, at):
        inside = self.tokens[at].inside
        if inside is None or self.tokens[inside].holds != "code":
            return False
        before = self.tokens[at - 1]
        if self.tokens[at].text in (")", "]", "}", ",", ";", ".") or before.kind == "text":
            return False
        if before.text in (";", "{", "}", "else", "do"):
            return before.text != "}" or self.tokens[before.partner].holds == "code"
        return self.is_guarded(at)

    def is_guarded(self, at):
        """Behind the parentheses of an if or a loop, or the colon of a case."""
        before = self.tokens[at - 1]
        if before.text == ":":
            return self.tokens[at - 2].text not in ("?",) and self.label(at - 1)
        if before.text != ")" or before.partner is None or not before.partner:
            return False
        head = self.tokens[before.partner - 1].text
        return head in CONTROLS or head == "constexpr"

    def label(self, colon):
        """Whether this colon ends a case label."""
        inside = self.tokens[colon].inside
        at = colon - 1
        while at > inside and self.tokens[at].text not in (";", "{", "}", "?"):
            if self.tokens[at].text in ("case", "default"):
                return True
            at -= 1
        return False

    def statement_end(self, at):
        """The semicolon that ends the statement, or None when a block does."""
        inside = self.tokens[at].inside
        while at < len(self.tokens):
            token = self.tokens[at]
            if token.text == ";" and token.inside == inside:
                return at
            if token.holds == "code" and token.inside == inside:
                return None
            if token.text == "}" and token.partner == inside:
                return None
            at += 1
        return None

    def whole_statement(self, at):
        """The last token of what stands here as one statement, with all that it guards; None of a
        declaration's braces and of what is no statement by itself."""
        token = self.tokens[at]
        if token.text not in CONTROLS:
            return self.statement_end(at)
        opening = at + 2 if self.tokens[at + 1].text == "constexpr" else at + 1
        end = self.guarded_end(self.tokens[opening].partner + 1)
        while end is not None and self.tokens[end + 1].text == "else":
            end = self.guarded_end(end + 2)
        return end

    def guarded_end(self, at):
        token = self.tokens[at]
        return token.partner if token.text == "{" else self.whole_statement(at)

    def declares_used(self, at, end):
        """A variable that is used later: nothing compiles without it."""
        for each in range(at, end):
            token = self.tokens[each]
            if token.text in ("=", "(", "{", "[") or each == end - 1:
                name = self.tokens[each if each == end - 1 else each - 1]
                break
            if token.kind != "name" and token.text not in ("::", "<", ">", "*", "&", ","):
                return False
        kind = self.tokens[each - (1 if each == end - 1 else 2)] if each > at + 1 else None
        if kind is None or not (kind.kind == "name" or kind.text in (">", "*", "&")):
            return False
        block = self.tokens[self.tokens[at].inside].partner
        return any(token.text == name.text for token in self.tokens[end:block])

    def expression_is_call(self, first, last):
        """Names joined by . -> :: and calls, nothing else."""
        at = first
        while at <= last:
            token = self.tokens[at]
            if token.text == "(":
                at = token.partner
            elif token.kind != "name" and token.text not in (".", "->", "::"):
                return False
            at += 1
        return True
