"""Every error text of the ways to the hosts and to a directory stands in docs/preparing-hosts.md.

Run by: python3 -B -m unittest discover -s tests/tools
"""

import pathlib
import re
import unittest

_ROOT = pathlib.Path(__file__).resolve().parents[2]
_WORDS = 3
# Said to a programmer, or no error at all.
_NO_ERRORS = {"SELECT * FROM Win32_TimeZone", "This is no namespace:", "can't be kept",
              "more information (", "Nobody waits for the directory"}


def texts_of(source):
    """What the C++ source says in three words or more, joined literals as one."""
    source = re.sub(r"//[^\n]*|#include[^\n]*", "", source)
    source = re.sub(r'"\s*\n\s*"', "", source)
    for text in re.findall(r'"((?:[^"\\\n]|\\.)*)"', source):
        text = re.sub(r"\\(.)", r"\1", text).strip(" .:\"")
        if len(text.split()) >= _WORDS:
            yield text


def missing_in(book, source):
    book = re.sub(r"[\s*]+", " ", book)
    return [text for text in texts_of(source)
            if text not in book and not any(each in text + ":" for each in _NO_ERRORS)]


class PreparingHosts(unittest.TestCase):
    def test_tells_every_error(self):
        book = (_ROOT / "docs/preparing-hosts.md").read_text()
        sources = sorted(path for folder in ("adapters/wsman", "adapters/browse",
                                             "adapters/openldap", "xml")
                         for path in (_ROOT / "src" / folder).rglob("*.cpp"))
        self.assertTrue(sources)
        missing = [f"{path.name}: {text}" for path in sources
                   for text in missing_in(book, path.read_text())]
        self.assertEqual(missing, [])

    def test_would_see_a_new_one(self):
        source = 'raise_failure("The host "\n    "has gone home");'
        self.assertEqual(missing_in("The host is there", source), ["The host has gone home"])


if __name__ == "__main__":
    unittest.main()
