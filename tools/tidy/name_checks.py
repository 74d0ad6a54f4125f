"""docs/names.md lists the given names that the code has: all of them, and no others. A form's
`visit` shows every control that a window can have a widget for."""

import re

from include_checks import LOGIC
from tree import Finding

_BOOK = "docs/names.md"
_NAME = re.compile(r"`(\w+)`")
# A row of the table of forms: given name, what it is, name in the code.
_FORM = re.compile(r"^\| `(\w+)` \|[^|]*\| `(\w+)` \|$", re.MULTILINE)
_STRUCT = re.compile(r"^struct (\w+) : FormBase \{", re.MULTILINE)
_CONTROL = re.compile(
    r"^    ((?:Label|TextBox|SecretBox|CheckBox|OptionButton|CommandButton|Image|Frame|Timer|UpDown"
    r"|MonthView|Chart|ComboBox|ListControl|TabStrip|StatusBar|ProgressBar|MenuEntry"
    r"|std::array<Frame, \d>) [^;]*);", re.MULTILINE)
_TYPE = re.compile(r"^(?:std::array<Frame, \d>|\w+) ")
# What has no widget of its own: timers, entries of menus, frames without a caption, and what is
# hidden for good.
_WIDGETLESS = re.compile(
    r"^(?:Timer|MenuEntry|std::array<Frame, \d>) |^Frame [\w, ]+$|\.visible = false")
_ID = re.compile(r'^    static constexpr FormId kId\{"(\w+)"\};', re.MULTILINE)
_SEEN = re.compile(r'\bsee\("(\w+)", (\w+)\);')
_VALUE = re.compile(r"\{[^{}]*\}")
# Given names of routines begin with a capital letter, ours with a small one.
_ROUTINE = re.compile(r"^\w[\w:<>&* ]*[ *&]([A-Z]\w*)\(", re.MULTILINE)


def check_names(tree):
    book = tree.read(_BOOK)
    forms = dict(_forms(tree))
    named = {of: given for given, of in _FORM.findall(book)}
    every_control = {control for _, controls, _ in forms.values() for control in controls}
    for form, (path, controls, widgets) in forms.items():
        section = _section(book, named.get(form, ""))
        yield from _check_visit(tree, path, widgets)
        for given in _ID.findall(tree.read(path)):
            if given != named.get(form):
                yield Finding(path, 1, "name", f"{form} is '{given}' here and not in {_BOOK}")
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


def _check_visit(tree, path, widgets):
    """A form without a `visit` has no window yet."""
    code = tree.read(path)
    seen = _SEEN.findall(code)
    if "void visit(" in code:
        for control in widgets - {name for name, _ in seen}:
            yield Finding(path, 1, "visit", f"'{control}' is not shown to the visitor")
    for name, control in seen:
        if name != control:
            yield Finding(path, 1, "visit", f"'{control}' is shown as '{name}'")


def _forms(tree):
    """Each form's name in the code, with its file, its controls, and those that have widgets."""
    for path in tree.cpp_files("src/core/forms"):
        code = tree.cpp(path).code
        for form in _STRUCT.findall(code):
            declarations = _CONTROL.findall(code)
            with_widgets = (each for each in declarations if not _WIDGETLESS.search(each))
            yield form, (path, _names(declarations), _names(with_widgets))


def _names(declarations):
    """The names that these declarations of controls declare."""
    lists = (_without_values(_TYPE.sub("", each)).split(",") for each in declarations)
    return {name.strip() for names in lists for name in names}


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
