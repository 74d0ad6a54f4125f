"""Checks what the compiler does not: layers, names, kept oddities, lengths and layout.

usage: python3 tools/tidy [ROOT]

Prints one line a finding, and ends with 1 if there is any.
"""

import pathlib
import sys

sys.dont_write_bytecode = True

from tree import Tree
from format_check import check_format, skip_reason
from include_checks import check_includes
from length_checks import check_lengths
from name_checks import check_names
from oddity_checks import check_oddities
from text_checks import check_lines, check_statements, check_variables

CHECKS = (check_includes, check_names, check_oddities, check_lengths, check_lines,
          check_statements, check_variables, check_format)


def main(arguments):
    root = arguments[0] if arguments else pathlib.Path(__file__).resolve().parents[2]
    tree = Tree(root)
    findings = [finding for check in CHECKS for finding in check(tree)]
    for finding in findings:
        print(finding)
    if skip_reason():
        print(f"The layout was not checked: {skip_reason()}.")
    print(f"tidy: {len(list(tree.cpp_files()))} C++ files, {len(findings)} findings")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
