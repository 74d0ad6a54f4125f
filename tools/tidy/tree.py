"""What a check reports, and the files that it reads."""

import pathlib

from cpp_source import CppSource

CODE_FOLDERS = ("src", "sample_network", "bench", "tools", "tests", "fuzz")


class Finding:
    def __init__(self, path, line, rule, message):
        self.path, self.line, self.rule, self.message = path, line, rule, message

    def __str__(self):
        return f"{self.path}:{self.line}: {self.rule}: {self.message}"


class Tree:
    """The project's files below `root`. Paths are relative to it, with "/" between the parts."""

    def __init__(self, root):
        self.root = pathlib.Path(root)
        self._sources = {}

    def files(self, folders, *endings):
        for folder in folders:
            for path in sorted((self.root / folder).rglob("*")):
                if path.is_file() and path.suffix in endings:
                    yield path.relative_to(self.root).as_posix()

    def cpp_files(self, *folders):
        return self.files(folders or CODE_FOLDERS, ".h", ".cpp")

    def read(self, path):
        file = self.root / path
        return file.read_text(encoding="utf-8") if file.exists() else ""

    def cpp(self, path):
        if path not in self._sources:
            self._sources[path] = CppSource(self.read(path))
        return self._sources[path]
