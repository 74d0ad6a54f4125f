"""Compares the layout of the code with .clang-format, where clang-format is installed."""

import re
import shutil
import subprocess

from tree import Finding

# The layout differs from version to version; this one is Debian 12's.
_VERSION = 14


def skip_reason():
    if not shutil.which("clang-format"):
        return "clang-format is not installed"
    text = subprocess.run(["clang-format", "--version"], capture_output=True, text=True).stdout
    version = re.search(r"version (\d+)", text)
    if not version or int(version.group(1)) != _VERSION:
        return f"this is not clang-format {_VERSION}"
    return None


def check_format(tree):
    files = list(tree.cpp_files())
    if skip_reason() or not files:
        return
    command = ["clang-format", "--dry-run", *files]
    report = subprocess.run(command, cwd=tree.root, capture_output=True, text=True).stderr
    seen = set()
    for path, line in re.findall(r"^([^:\n]+):(\d+):\d+: warning", report, re.MULTILINE):
        if path not in seen:
            seen.add(path)
            yield Finding(path, int(line), "format", "run clang-format -i on this file")
