"""A C++ file as the checks read it: without comments and texts, and cut into its functions."""

import re

_TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)"""
    r"""|(?P<raw>(?:u8|[uUL])?R"(?P<mark>[^()\s\\]*)\(.*?\)(?P=mark)")"""
    r"""|(?P<text>"(?:\\.|[^"\\\n])*")"""
    r"""|(?P<number>(?<![\w'])\d(?:'?[\w.])*)"""
    r"""|(?P<character>'(?:\\.|[^'\\\n])+')"""
    r"""|(?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)""",
    re.DOTALL | re.MULTILINE | re.VERBOSE,
)
_GROUP = re.compile(r"\([^()]*\)")
_ANGLES = re.compile(r"<[^<>;{}]*>")
_ACCESS = re.compile(r"\b(public|private|protected|signals|slots)\s*$")
_DECLARATION_WORDS = re.compile(
    r"^\s*(using|typedef|namespace|class|struct|enum|union|template|extern|static_assert|friend)\b"
    r"|\b(const|constexpr|constinit|operator)\b|=\s*(default|delete)\s*$"
)


class Function:
    def __init__(self, head, first_line, last_line):
        self.name = _name_of(head)
        self.line = first_line
        self.length = last_line - first_line + 1


class CppSource:
    """`code` is the text with comments, texts and directives blanked, line by line as long as
    before; `raw_lines` are the lines that a raw string runs over, apart from its first."""

    def __init__(self, text):
        self.lines = text.splitlines()
        self.raw_lines = set()
        self.includes = []
        self.code = _TOKEN.sub(self._blank, text)
        self.functions = []
        self.variables = []
        self._cut()

    def _blank(self, match):
        kind, text = match.lastgroup, match.group()
        line = match.string.count("\n", 0, match.start()) + 1
        if kind == "number":
            return text.replace("'", "_")
        if kind == "raw":
            self.raw_lines.update(range(line + 1, line + text.count("\n") + 1))
        if kind == "directive":
            include = re.match(r'\s*#\s*include\s*([<"])([^>"]+)', text)
            if include:
                self.includes.append((line, include.group(1), include.group(2)))
        blank = re.sub(r"[^\n]", " ", text)
        return blank if kind in ("comment", "directive") else '"' + blank[2:] + '"'

    def _cut(self):
        """Walks the braces. `head` is what was read since the last statement ended."""
        stack = []
        head, head_line, line, depth = "", 1, 1, 0
        for character in self.code:
            if character == "\n":
                line += 1
            if character in "([":
                depth += 1
            elif character in ")]":
                depth -= 1
            if character == "{":
                kind = _kind_of_block(head, depth, stack)
                stack.append((kind, head, head_line, depth))
                head, depth = "", 0
            elif character == "}" and stack:
                kind, opened_by, opened_at, depth = stack.pop()
                if kind == "function":
                    self.functions.append(Function(opened_by, opened_at, line))
                # Braces of a value belong to the statement that they stand in.
                head, head_line = (opened_by + "{}", opened_at) if kind == "value" else ("", line)
            elif character == ";" and depth == 0:
                self._see_statement(head, head_line, stack)
                head = ""
            elif character == ":" and _ACCESS.search(head):
                head = ""
            else:
                if not head.strip():
                    head_line = line
                head += character

    def _see_statement(self, head, line, stack):
        """Notes the variables that live as long as the program."""
        plain = _without_groups(head)
        if not plain.strip() or _DECLARATION_WORDS.search(plain):
            return
        kinds = {entry[0] for entry in stack}
        in_body = bool(kinds & {"function", "value"})
        if not in_body and "(" in head and "=" not in plain:
            return  # A function's declaration.
        if kinds <= {"namespace"} or re.match(r"\s*(inline\s+)?(static|thread_local)\b", plain):
            self.variables.append((line, " ".join(head.split())))


def _without(pattern, head):
    previous = None
    while previous != head:
        previous, head = head, pattern.sub(" ", head)
    return head


def _without_groups(head):
    """The head without what stands in parentheses and angle brackets."""
    return _without(_ANGLES, _without(_GROUP, head))


def _kind_of_block(head, depth, stack):
    if depth > 0:
        return "value"
    if any(entry[0] == "function" for entry in stack):
        return "block"
    plain = _without_groups(head)
    if re.search(r"\bnamespace\b|\bextern\s*\"", plain):
        return "namespace"
    if "=" in plain and "operator" not in plain:
        return "value"
    if "(" not in _without(_ANGLES, head):
        return "type" if re.search(r"\b(class|struct|union|enum)\b", plain) else "value"
    # A member's braces in the list of a constructor: `Name() : member_{1}, other_{2} {`.
    if re.search(r"\)\s*(noexcept)?\s*:(?!:)", head) and re.search(r"[\w>]\s*$", head):
        return "value"
    return "function"


def _name_of(head):
    """The word before the first parenthesis, with the test's own name for a test."""
    head = " ".join(re.sub(r"^\s*template\s*<[^{}]*?>\s*(?=\w)", "", head).split())
    test = re.match(r"(TEST(?:_[FP])?)\s*\(\s*(\w+)\s*,\s*(\w+)", head)
    if test:
        return f"{test.group(2)}.{test.group(3)}"
    name = re.search(r"([\w:~]+|operator\s*\S+?)\s*\(", head)
    return name.group(1) if name else head[:40]
