"""Checks what clang-format leaves open: one form for guards, one for namespaces.

- A single statement that fits on the line of its if, for or while stands there, without braces;
  one that does not fit stands in braces.
  GoogleTest's assertions, which hide an if of their own, keep them.
- A blank line stands behind the line that opens a namespace and before the one that closes it;
  only namespaces that open or close together stand together.
"""

import re
import subprocess
import sys

COLUMNS = 100
CONTROL = r"(?:if(?: constexpr)?|for|while) \(.*\)"
STATEMENT = r"(?=\S)((?!(?:if|for|while|do|switch)\b|EXPECT_|ASSERT_).*;)"
BRACED = re.compile(rf"^( *)({CONTROL}) \{{\n +{STATEMENT}\n\1\}}\n", re.M)
BARE = re.compile(rf"^ *(?:\}} else )?{CONTROL}\n", re.M)


def guards(text):
    for guard in BARE.finditer(text):
        yield text.count("\n", 0, guard.start()) + 1, "what this guards wants braces"
    for guard in BRACED.finditer(text):
        if len(f"{guard[1]}{guard[2]} {guard[3]}") <= COLUMNS:
            yield text.count("\n", 0, guard.start()) + 1, "the braces of this guard can go"


def namespaces(text):
    lines = text.split("\n")
    for number, line in enumerate(lines):
        if re.match(r"namespace .*\{$|namespace \{$", line):
            beside = lines[number + 1]
            bad = beside and not re.match(r"namespace .*\{$", beside)
        elif line.startswith("}  // namespace"):
            beside = lines[number - 1]
            bad = beside and not beside.startswith("}  // namespace")
        else:
            continue
        if bad:
            yield number + 1, "no blank line inside this namespace"


files = subprocess.run(
    ["git", "ls-files", "*.cpp", "*.h"], capture_output=True, text=True, check=True
).stdout.splitlines()
problems = 0 if files else 1
for path in files:
    with open(path, encoding="utf-8") as file:
        source = file.read()
    for line, what in sorted([*guards(source), *namespaces(source)]):
        print(f"{path}:{line}: {what}")
        problems += 1
sys.exit(1 if problems else 0)
