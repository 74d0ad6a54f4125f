"""Has programs read the code for faults that the compiler lets pass.

usage: python3 tools/analyse PROGRAM [ROOT [BUILD]]

    PROGRAM  clang_tidy, clazy or cppcheck
    ROOT     the tree to read; the one that this file is in
    BUILD    the folder with its compile_commands.json; ROOT/build/dev

Prints one line a finding, and ends with 1 if there is any, with 77 where the program is missing.
"""

import pathlib
import sys

sys.dont_write_bytecode = True

from programs import PROGRAMS, Missing

SKIPPED = 77


def main(arguments):
    if not arguments or arguments[0] not in PROGRAMS:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    name = arguments[0]
    root = pathlib.Path(*arguments[1:2] or [pathlib.Path(__file__).parents[2]]).resolve()
    build = pathlib.Path(*arguments[2:3] or [root / "build" / "dev"]).resolve()
    try:
        files, findings = PROGRAMS[name](root, build)
    except Missing as missing:
        print(f"{name}: skipped, {missing}")
        return SKIPPED
    for finding in findings:
        print(finding)
    print(f"{name}: {files} files, {len(findings)} findings")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
