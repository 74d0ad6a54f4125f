"""Plain rules on lines and statements."""

import re

from tree import CODE_FOLDERS, Finding

_WIDTH = 100
_EMPTY_CATCH = re.compile(r"\bcatch\s*\([^)]*\)\s*\{\s*\}")
# The C library calls it without an object.
_MAY_KEEP_STATE = {"src/adapters/wsman/sign_in/no_traces.cpp"}
_USING_NAMESPACE = re.compile(r"\busing\s+namespace\b")


def check_lines(tree):
    """No tab, no blank at a line's end, no more than 100 columns, but inside a raw string."""
    for path in tree.cpp_files():
        yield from _check_lines(path, tree.read(path), tree.cpp(path).raw_lines)
    for path in tree.files(CODE_FOLDERS + ("docs",), ".py", ".md", ".html", ".txt"):
        if "golden" not in path:
            yield from _check_lines(path, tree.read(path), (), wide=path.endswith((".md", ".html")))


def _check_lines(path, text, raw_lines, wide=False):
    for number, line in enumerate(text.splitlines(), 1):
        if number in raw_lines:
            continue
        if "\t" in line:
            yield Finding(path, number, "tab", "use blanks")
        if line != line.rstrip():
            yield Finding(path, number, "blank", "the line ends in a blank")
        if len(line) > _WIDTH and not wide:
            yield Finding(path, number, "width", f"{len(line)} columns, {_WIDTH} is the most")
    if text and not text.endswith("\n"):
        yield Finding(path, text.count("\n") + 1, "end", "the last line has no end")


def check_statements(tree):
    for path in tree.cpp_files():
        code = tree.cpp(path).code
        for rule, pattern, message in (
            ("catch", _EMPTY_CATCH, "an empty catch hides a failure: say what becomes of it"),
            ("using", _USING_NAMESPACE, "name what is used instead of opening a namespace"),
        ):
            for match in pattern.finditer(code):
                yield Finding(path, code.count("\n", 0, match.start()) + 1, rule, message)


def check_variables(tree):
    """The console's state is in one object that is passed; nothing in src/ lives beside it."""
    for path in tree.cpp_files("src"):
        for line, text in tree.cpp(path).variables if path not in _MAY_KEEP_STATE else ():
            yield Finding(path, line, "global", f"'{text}' can change and lives for the whole run")
