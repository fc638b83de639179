"""Cuts C++ as clang-format lays it out into tokens, and tells what their brackets hold."""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""(?P<space>\s+|//[^\n]*|/\*.*?\*/)
      | (?P<directive>(?m:^\#(?:[^\n\\]|\\.)*(?:\\\n[^\n]*)*))
      | (?P<text>(?:u8|[uUL])?(?:R"\((?s:.*?)\)"|"(?:[^"\\\n]|\\.)*"))
      | (?P<character>(?:u8|[uUL])?'(?:[^'\\\n]|\\.)+')
      | (?P<number>\.?\d(?:'?[\w.]|(?<=[eEpP])[+-])*)
      | (?P<name>[A-Za-z_]\w*)
      | (?P<operator><=>|<<=|>>=|\.\.\.|->\*|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=
                    |\.\*|[-+*/%&|^~!=<>?:;,.(){}\[\]\#])
    """,
    re.X | re.S,
)

OPENING = {"(": ")", "[": "]", "{": "}"}
DECLARING = {"namespace", "class", "struct", "union", "enum"}


@dataclass
class Token:
    kind: str
    text: str
    start: int
    spaced: bool  # Behind a blank, a line end or a comment.
    partner: int | None = None  # The index of the other bracket.
    inside: int | None = None  # The index of the bracket around it.
    holds: str = ""  # Of an opening bracket: code, members, values, template, list, or parentheses.

    @property
    def end(self):
        return self.start + len(self.text)


def cut(source):
    tokens, at, spaced = [], 0, True
    while at < len(source):
        match = TOKEN.match(source, at)
        if not match:
            raise ValueError(f"no C++ token at offset {at}: {source[at:at + 20]!r}")
        if match.lastgroup == "space":
            spaced = True
        else:
            tokens.append(Token(match.lastgroup, match.group(), at, spaced))
            spaced = False
        at = match.end()
    pair(tokens)
    return tokens


def pair(tokens):
    """Angle brackets of templates stand without a blank before them, comparisons with one."""
    open_at = []
    for at, token in enumerate(tokens):
        if closes_template(tokens, open_at, token):
            if token.text == ">>":
                tokens[open_at.pop()].partner = at
            close(tokens, open_at, at)
            continue
        if token.kind == "operator" and token.text in OPENING.values():
            while open_at and tokens[open_at[-1]].text == "<":
                tokens[open_at.pop()].holds = ""
            close(tokens, open_at, at)
            continue
        token.inside = open_at[-1] if open_at else None
        if token.kind == "operator" and (token.text in OPENING or opens_template(tokens, at)):
            token.holds = content(tokens, at)
            open_at.append(at)


def close(tokens, open_at, at):
    opening = open_at.pop()
    tokens[opening].partner, tokens[at].partner = at, opening
    tokens[at].inside = tokens[opening].inside


def opens_template(tokens, at):
    if tokens[at].text != "<" or not at:
        return False
    before = tokens[at - 1]
    return before.text == "template" or (
        before.kind == "name" and before.text != "operator" and not tokens[at].spaced
    )


def closes_template(tokens, open_at, token):
    return (
        token.text in (">", ">>")
        and not token.spaced
        and open_at
        and tokens[open_at[-1]].text == "<"
    )


def content(tokens, at):
    """What the bracket that opens at this index holds."""
    if tokens[at].text != "{":
        return "template" if tokens[at].text == "<" else "parentheses"
    before = tokens[at - 1] if at else None
    around = tokens[tokens[at].inside].holds if tokens[at].inside is not None else "members"
    if before is None or before.text in ("else", "do", "try"):
        return "code"
    if before.text in (";", "}", "{") and before.kind == "operator":
        return "code" if around == "code" else "list"
    if not tokens[at].spaced or before.text in ("=", ",", "(", "return", "?", ":"):
        return "list"
    head = heading(tokens, at)
    for token in head:
        if token.text == "enum":
            return "values"
        if token.text in DECLARING and not any(each.text == "(" for each in head):
            return "members"
    return "code"


def heading(tokens, at):
    """The tokens before a brace, back to the end of what stands before them on its level."""
    inside, head = tokens[at].inside, []
    while at:
        at -= 1
        token = tokens[at]
        if token.inside == inside and token.text in (";", "{", "}") and token.kind == "operator":
            break
        if at == inside:
            break
        head.append(token)
    return head[::-1]
