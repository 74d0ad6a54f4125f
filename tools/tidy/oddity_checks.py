"""A kept oddity stands in three places: a comment in the code, a heading in docs/oddities.md, and
a test that names it."""

import re

from tree import Finding

_BOOK = "docs/oddities.md"
_TAG = re.compile(r"KEEP\(([^)]*)\)(:?)")
_SLUG = re.compile(r"[a-z0-9]+(-[a-z0-9]+)*$")


def check_oddities(tree):
    in_code, in_tests = _tags(tree, "src"), _tags(tree, "tests")
    in_book = {}
    for number, text in enumerate(tree.read(_BOOK).splitlines(), 1):
        if text.startswith("## "):
            in_book.setdefault(text[3:].strip(), (_BOOK, number, True))
    places = (("code", in_code), ("tests", in_tests), (_BOOK, in_book))
    for slug in sorted(set(in_code) | set(in_tests) | set(in_book)):
        path, line, _ = next(place[slug] for _, place in places if slug in place)
        if not _SLUG.match(slug):
            yield Finding(path, line, "keep", f"'{slug}' is not lower-case words joined by '-'")
        for name, place in places:
            if slug not in place:
                yield Finding(path, line, "keep", f"'{slug}' is missing in {name}")
    for slug, (path, line, said) in sorted(in_code.items()):
        if not said:
            yield Finding(path, line, "keep", f"'{slug}' is nowhere explained: KEEP({slug}): ...")


def _tags(tree, folder):
    """Where each slug stands first, and whether a colon follows it there."""
    found = {}
    for path in tree.cpp_files(folder):
        for number, text in enumerate(tree.read(path).splitlines(), 1):
            for slug, colon in _TAG.findall(text):
                place = (path, number, bool(colon))
                # A mention elsewhere may come before the comment that tells the story.
                if slug not in found or (colon and not found[slug][2]):
                    found[slug] = place
    return found
