"""Each program of tools/analyse sees what it is there for, and lets clean code pass.

Run by: python3 -B -m unittest discover -s tests/tools
"""

import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TOP = pathlib.Path(__file__).resolve().parents[2]
CLEAN = "int doubled(int number) { return 2 * number; }\n"
# A fault for each family of checks that clang-tidy is asked for, with what it says of it.
TIDY_FAULTS = {
    "clang-analyzer-core.NullDereference":
        "int first(const int* numbers) { return numbers == nullptr ? *numbers : 0; }",
    "bugprone-integer-division": "double half(int number) { return number / 2; }",
    "misc-redundant-expression": "bool same(int one) { return one == one; }",
    "cert-env33-c": "#include <cstdlib>\nint list() { return std::system(\"ls\"); }",
    "performance-unnecessary-value-param":
        "struct Text { Text(const Text&); ~Text(); int size() const; };\n"
        "int size_of(Text text) { return text.size(); }",
    "cppcoreguidelines-virtual-class-destructor":
        "struct Shape { virtual int sides() = 0; };",
}
# What clazy knows by its name.
QT_FAULT = """\
struct QString {
    QString(const QString&);
    ~QString();
    int length() const;
};
struct Names {
    const QString* begin() const;
    const QString* end() const;
};
int length(const Names& names) {
    int sum = 0;
    for (const QString name : names) sum += name.length();
    return sum;
}
"""


class AnalyseTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name).resolve()
        shutil.copy(TOP / ".clang-tidy", self.root)

    def analysed(self, program, code):
        """The exit code, and all that was printed."""
        file = self.root / "src" / ("ui" if program == "clazy" else "core") / "planted.cpp"
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(code)
        build = self.root / "build" / "dev"
        build.mkdir(parents=True, exist_ok=True)
        build.joinpath("compile_commands.json").write_text(json.dumps(
            [{"directory": str(self.root), "file": str(file),
              "command": f"g++ -std=c++20 -c {file}"}]))
        run = subprocess.run([sys.executable, TOP / "tools" / "analyse", program, self.root],
                             text=True, stdout=subprocess.PIPE, check=False)
        if run.returncode == 77:
            self.skipTest(run.stdout)
        return run.returncode, run.stdout

    def assert_seen(self, program, code, rule):
        self.assertEqual(self.analysed(program, CLEAN), (0, f"{program}: 1 files, 0 findings\n"))
        code, printed = self.analysed(program, code)
        self.assertEqual(code, 1, printed)
        self.assertIn("/planted.cpp:", printed)
        self.assertIn(rule, printed)

    def test_clang_tidy_sees_a_fault_of_each_family(self):
        _, printed = self.analysed("clang_tidy", "\n".join(TIDY_FAULTS.values()))
        for rule in TIDY_FAULTS:
            self.assertIn(f"[{rule}", printed)
        self.assert_seen("clang_tidy", "int broken(", "expected")

    def test_clazy_sees_a_fault_in_the_use_of_qt(self):
        self.assert_seen("clazy", QT_FAULT, "clazy-range-loop-reference")

    def test_cppcheck_sees_a_fault(self):
        self.assert_seen("cppcheck", "int last() { int all[3] = {1, 2, 3}; return all[3]; }\n",
                         "arrayIndexOutOfBounds")
