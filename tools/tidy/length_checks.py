"""Lengths of files and functions. What is longer than the limits needs a line in the list of the
allowed ones, and such a line may only shrink."""

import statistics

from tree import Finding

_ALLOWED = "tools/tidy/allowed_lengths.txt"
_FILE_LIMIT = 400
_FUNCTION_LIMIT = 60
# Of a whole tree, once it is large enough for such figures to mean something.
_FILE_MEDIAN = 120
_FUNCTION_MEDIAN = 8
_SHORT_FUNCTION = 30
_SHORT_SHARE = 0.9
_ENOUGH_FUNCTIONS = 50


def check_lengths(tree):
    allowed = _read_allowed(tree)
    files, functions = [], []
    for path in tree.cpp_files():
        source = tree.cpp(path)
        files.append(len(source.lines))
        yield from _judge(allowed, path, path, 1, len(source.lines), _FILE_LIMIT)
        for function in source.functions:
            functions.append(function.length)
            name = f"{path}:{function.name}"
            yield from _judge(allowed, name, path, function.line, function.length, _FUNCTION_LIMIT)
    for name, (number, _) in allowed.items():
        yield Finding(_ALLOWED, number, "length", f"{name} needs no exception: remove the line")
    if len(functions) >= _ENOUGH_FUNCTIONS:
        yield from _judge_tree(files, functions)


def _read_allowed(tree):
    """Name (path, or path:function) to the line's number and the allowed length."""
    allowed = {}
    for number, text in enumerate(tree.read(_ALLOWED).splitlines(), 1):
        if text and not text.startswith("#"):
            length, name = text.split(maxsplit=1)
            allowed[name] = (number, int(length))
    return allowed


def _judge(allowed, name, path, line, length, limit):
    if length <= limit:
        return
    number, most = allowed.pop(name, (0, limit))
    if length > most:
        yield Finding(path, line, "length", f"{length} lines, {most} is the most ({name})")
    elif length < most:
        yield Finding(_ALLOWED, number, "length", f"{name} has shrunk: write {length}")


def _judge_tree(files, functions):
    short = sum(length <= _SHORT_FUNCTION for length in functions) / len(functions)
    for what, value, most in (
        ("the median file has {:.0f} lines", statistics.median(files), _FILE_MEDIAN),
        ("the median function has {:.0f} lines", statistics.median(functions), _FUNCTION_MEDIAN),
        (f"{{:.1%}} of the functions have more than {_SHORT_FUNCTION} lines", 1 - short,
         1 - _SHORT_SHARE),
    ):
        if value > most + 1e-9:
            yield Finding("src", 1, "length", f"{what.format(value)}; {most:.2g} is the most")
