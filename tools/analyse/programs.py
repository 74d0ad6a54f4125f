"""The programs, which files each of them reads, and what each finds there."""

import json
import os
import pathlib
import re
import shutil
import subprocess
from concurrent.futures import ThreadPoolExecutor

CODE = ("src/", "sample_network/")
# Where Qt is used.
QT_CODE = ("src/ui/", "src/qt/", "src/adapters/qt/", "src/app/", "tools/tour/")

FINDING = re.compile(r"^(?P<path>/[^:]+):(?P<place>\d+:\d+): (?P<text>(?!note)[a-z]+: .*)$")
SUPPRESSIONS = pathlib.Path(__file__).with_name("cppcheck_suppressions.txt")


class Missing(Exception):
    """What the program needs is not there."""


def find_program(name):
    path = shutil.which(name)
    if path is None:
        raise Missing(f"{name} is not installed")
    return path


def compiled_files(root, build, folders):
    """The files below `folders` that the build compiles, not those that it writes itself."""
    database = build / "compile_commands.json"
    if not database.exists():
        raise Missing(f"there is no {database}")
    files = {pathlib.Path(entry["file"]) for entry in json.loads(database.read_text())}
    return sorted(str(file) for file in files
                  if file.is_relative_to(root)
                  and file.relative_to(root).as_posix().startswith(folders))


def run(command):
    # Tests that watch the clock may run at the same time.
    return subprocess.run(["nice", *command], text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False)


def findings_in(root, finished):
    """The findings in our own files among what a program has written, or what has stopped it."""
    matches = filter(None, map(FINDING.match, finished.stdout.splitlines()))
    found = [f"{path.relative_to(root)}:{match['place']}: {match['text']}" for match in matches
             if (path := pathlib.Path(os.path.normpath(match["path"]))).is_relative_to(root)]
    if finished.returncode != 0 and not found:
        return [f"{' '.join(finished.args)}\n{finished.stdout}"]
    return found


def run_all(root, commands):
    """Runs the commands, one for each file. A header's finding shows in many, and is told once."""
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        runs = pool.map(run, commands)
        return len(commands), sorted({line for one in runs for line in findings_in(root, one)})


def clang_tidy(root, build):
    command = [find_program("clang-tidy"), "-p", str(build), "--quiet"]
    with_qt = compiled_files(root, build, QT_CODE)
    return run_all(root, [
        [*command, *(["--checks=-clang-analyzer-*"] if file in with_qt else []), file]
        for file in compiled_files(root, build, CODE)])


def clazy(root, build):
    command = [find_program("clazy-standalone"), "-p", str(build), "--checks=level0,level1"]
    return run_all(root, [[*command, file] for file in compiled_files(root, build, QT_CODE)])


def cppcheck(root, build):
    finished = run([
        find_program("cppcheck"), "--quiet", f"-j{os.cpu_count()}", "--language=c++",
        "--std=c++20", "--enable=warning,performance,portability", "--inline-suppr",
        f"--suppressions-list={SUPPRESSIONS}", "--error-exitcode=1",
        "--template={file}:{line}:{column}: {severity}: {message} [{id}]",
        f"-I{root / 'src'}", f"-I{root}",
        *(str(root / folder) for folder in CODE if (root / folder).exists())])
    return (len(compiled_files(root, build, CODE)), sorted(set(findings_in(root, finished))))


PROGRAMS = {"clang_tidy": clang_tidy, "clazy": clazy, "cppcheck": cppcheck}
