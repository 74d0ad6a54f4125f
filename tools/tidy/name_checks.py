"""docs/names.md lists the given names that the code has: all of them, and no others."""

import re

from include_checks import LOGIC
from tree import Finding

_BOOK = "docs/names.md"
_NAME = re.compile(r"`(\w+)`")
# A row of the table of forms: given name, what it is, name in the code.
_FORM = re.compile(r"^\| `(\w+)` \|[^|]*\| `(\w+)` \|$", re.MULTILINE)
_STRUCT = re.compile(r"^struct (\w+) : FormBase \{", re.MULTILINE)
_CONTROL = re.compile(
    r"^    (?:Label|TextBox|SecretBox|CheckBox|OptionButton|CommandButton|Image|Frame|Timer|UpDown"
    r"|MonthView|Chart|ListControl|TabStrip|StatusBar|ProgressBar|MenuEntry|std::array<Frame, \d>)"
    r" ([^;]*);", re.MULTILINE)
_VALUE = re.compile(r"\{[^{}]*\}")
# Given names of routines begin with a capital letter, ours with a small one.
_ROUTINE = re.compile(r"^\w[\w:<>&* ]*[ *&]([A-Z]\w*)\(", re.MULTILINE)


def check_names(tree):
    book = tree.read(_BOOK)
    forms = dict(_forms(tree))
    named = {of: given for given, of in _FORM.findall(book)}
    every_control = {control for _, controls in forms.values() for control in controls}
    for form, (path, controls) in forms.items():
        section = _section(book, named.get(form, ""))
        for control in controls:
            if f"`{control}`" not in section:
                yield Finding(path, 1, "name", f"'{control}' is missing in {_BOOK}")
        # What stands in front of a row is a control of this form and of no other.
        for name in _NAME.findall("".join(re.findall(r"^\|[^|]*", section, re.MULTILINE))):
            if name in every_control and name not in controls:
                yield Finding(_BOOK, 1, "name", f"{form} has no '{name}'")
    for path in tree.cpp_files(*(f"src/{folder}" for folder in LOGIC)):
        for routine in _ROUTINE.findall(tree.cpp(path).code) if path.endswith(".h") else ():
            if f"`{routine}`" not in book:
                yield Finding(path, 1, "name", f"'{routine}' is missing in {_BOOK}")
    known = set(re.findall(r"\w+", "\n".join(tree.read(path) for path in tree.cpp_files("src"))))
    for number, text in enumerate(book.splitlines(), 1):
        for name in set(_NAME.findall(text)) - known:
            yield Finding(_BOOK, number, "name", f"nothing is called '{name}'")


def _forms(tree):
    """Each form's name in the code, with its file and its controls."""
    for path in tree.cpp_files("src/core/forms"):
        code = tree.cpp(path).code
        for form in _STRUCT.findall(code):
            lists = (_without_values(match) for match in _CONTROL.findall(code))
            yield form, (path, {name.strip() for names in lists for name in names.split(",")})


def _section(book, given_name):
    """The part of the book under the heading that begins with the form's name."""
    for part in re.split(r"^## ", book, flags=re.MULTILINE):
        if given_name and re.match(rf"{given_name}\b", part):
            return part
    return ""


def _without_values(text):
    previous = None
    while previous != text:
        previous, text = text, _VALUE.sub("", text)
    return text
