"""Each check of tools/tidy sees what it is there for, and lets a clean tree pass.

Run by: python3 -B -m unittest discover -s tests/tools
"""

import pathlib
import subprocess
import sys
import tempfile
import textwrap
import unittest

TIDY = pathlib.Path(__file__).resolve().parents[2] / "tools" / "tidy"
sys.path.insert(0, str(TIDY))

from cpp_source import CppSource
from format_check import check_format, skip_reason
from include_checks import check_includes
from length_checks import check_lengths
from name_checks import check_names
from oddity_checks import check_oddities
from text_checks import check_lines, check_statements, check_variables
from tree import Tree

CLEAN = {
    "src/platform/clock.h": "#pragma once\n#include <string>\nstd::string now();\n",
    "src/hosts/host_list.h": "#pragma once\n\n#include <vector>\n\n"
    '#include "core/console_state.h"\n#include "platform/clock.h"\n',
    "src/hosts/host_list.cpp": """\
        #include "hosts/host_list.h"

        // KEEP(no-question-asked): rows go without a question. Asking looks safer, but a script of
        // keys would stop at the box.
        void removehost(Console& console) {
            try {
                console.remove();
            } catch (const Error& error) {
                console.say(error);
            }
        }
        """,
    "src/adapters/wire/pull.cpp": '#include <expat.h>\n#include "adapters/wire/pull.h"\n'
    '#include "core/console_state.h"\n',
    "src/ui/window.cpp": '#include <QString>\n#include "hosts/host_list.h"\n'
    '#include "window.moc"\n',
    "src/app/main.cpp": '#include "adapters/wire/pull.h"\n#include "ui/window.h"\n',
    "docs/oddities.md": "# Kept oddities\n\n## no-question-asked\n\nRows go at once.\n",
    "tests/hosts/host_list_test.cpp": """\
        TEST(HostList, RemovesWithoutAQuestion) {  // KEEP(no-question-asked)
            EXPECT_EQ(1, 1);
        }
        """,
}
ALL_CHECKS = (check_includes, check_names, check_oddities, check_lengths, check_lines,
              check_statements, check_variables)


class TidyTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for path, text in CLEAN.items():
            self.write(path, text)

    def write(self, path, text):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(textwrap.dedent(text), encoding="utf-8")

    def findings(self, *checks):
        tree = Tree(self.root)
        found = [finding for check in checks for finding in check(tree)]
        return [f"{finding.path}:{finding.line} {finding.rule}" for finding in found]

    def test_a_clean_tree_passes_every_check(self):
        self.assertEqual(self.findings(*ALL_CHECKS), [])

    def test_includes_against_the_layers(self):
        for path, include in (
            ("src/hosts/a.cpp", "<QString>"),
            ("src/hosts/a.cpp", "<unistd.h>"),
            ("src/hosts/a.cpp", "<sys/stat>"),
            ("src/hosts/a.cpp", '"ui/window.h"'),
            ("src/core/a.cpp", '"adapters/wire/pull.h"'),
            ("src/core/a.cpp", '"app/events.h"'),
            ("src/platform/a.h", '"core/console_state.h"'),
            ("src/platform/a.h", "<curl/curl.h>"),
            ("src/core/a.cpp", '"store/log_files.h"'),
            ("src/tables/a.cpp", '"patterns/code_lists.h"'),
            ("src/viewer/a.cpp", '"search/search.h"'),
            ("src/audit/a.cpp", '"chrome/start_up.h"'),
            ("src/adapters/wsman/soap/a.cpp", '"adapters/wsman/records/event_items.h"'),
            ("src/adapters/wsman/http/a.cpp", '"adapters/wsman/sealed_channel.h"'),
            ("src/adapters/wire/a.cpp", '"ui/window.h"'),
            ("src/adapters/wire/a.cpp", '"hosts/host_list.h"'),
            ("src/adapters/wire/a.cpp", '"adapters/other/a.h"'),
            ("sample_network/hosts/a.cpp", '"sample_network/wire/a.h"'),
            ("sample_network/wire/a.cpp", '"sample_network/faults/a.h"'),
            ("sample_network/faults/a.cpp", '"sample_network/wsman_session.h"'),
            ("src/adapters/wire/a.cpp", '"qt/qt_text.h"'),
            ("src/adapters/qt/a.cpp", '"curl/curl_transfer.h"'),
            ("src/qt/a.h", '"platform/clock.h"'),
            ("src/ui/a.cpp", '"adapters/wire/pull.h"'),
            ("src/ui/a.cpp", '"app/events.h"'),
            ("src/ui/a.cpp", '"../adapters/wire/pull.h"'),
            ("src/ui/a.cpp", '"window.h"'),
        ):
            with self.subTest(path=path, include=include):
                self.write(path, f"// What it is.\n#  include {include}\n")
                self.assertIn(f"{path}:2 include", self.findings(check_includes))
                (self.root / path).unlink()
        self.write("src/stray/a.cpp", "int a();\n")
        self.assertEqual(self.findings(check_includes), ["src/stray/a.cpp:1 layer"])

    def test_includes_down_the_floors(self):
        for path, include in (
            ("src/core/list/a.cpp", "core/text.h"),
            ("src/core/a.cpp", "core/list/row_order.h"),
            ("src/patterns/a.cpp", "tables/code_matches.h"),
            ("src/viewer/a.cpp", "core/text.h"),
            ("src/chrome/a.cpp", "report/html_page.h"),
            ("src/adapters/wsman/a.cpp", "adapters/wsman/records/event_items.h"),
            ("src/adapters/wsman/records/a.cpp", "adapters/wsman/soap/enumeration.h"),
            ("sample_network/a.cpp", "sample_network/faults/a.h"),
            ("sample_network/faults/a.cpp", "sample_network/wire/a.h"),
            ("sample_network/wire/a.cpp", "adapters/wsman/basics/base64.h"),
            ("src/adapters/qt/a.cpp", "qt/qt_text.h"),
            ("src/ui/a.cpp", "qt/qt_text.h"),
            ("src/adapters/wsman/http/a.cpp", "curl/curl_transfer.h"),
        ):
            self.write(path, f'#include "{include}"\n')
        self.assertEqual(self.findings(check_includes), [])

    def test_an_oddity_stands_in_all_three_places(self):
        places = ("src/hosts/host_list.cpp", "docs/oddities.md", "tests/hosts/host_list_test.cpp")
        for path in places:
            with self.subTest(missing_in=path):
                self.write(path, "")
                self.assertEqual(len(self.findings(check_oddities)), 1)
                self.write(path, CLEAN[path])
        self.write("src/hosts/host_list.cpp", "// KEEP(no-question-asked)\n")
        self.assertEqual(self.findings(check_oddities), ["src/hosts/host_list.cpp:1 keep"])
        for path in places:
            self.write(path, "// KEEP(No Question): misspelt\n## No Question\n")
        self.assertEqual(self.findings(check_oddities), ["src/hosts/host_list.cpp:1 keep"])

    def test_the_page_of_names_lists_what_is(self):
        self.write("src/core/forms/graph_form.h", """\
            struct GraphForm : FormBase {
                static constexpr FormId kId{"Form5"};
                Chart pie{.series = {{"a", rgb(1)}}}, bars;
                OptionButton Option1{"One"};
                TextBox Text1{.visible = false};
                std::array<Frame, 3> pages;
                void visit(Visitor&& see) {
                    see("pie", pie);
                    see("bars", bars);
                    see("Option1", Option1);
                }
            };
            void LogAnalyze(Console& console);
            """)
        self.write("src/core/forms/main_form.h",
                   "struct MainForm : FormBase {\n    Label lbl;\n};\n")
        self.write("src/core/console_state.h", "MainForm Form1;\nForm<GraphForm> Form5;\n")
        listed = ["| `Form1` | main | `MainForm` |", "| `Form5` | graph | `GraphForm` |",
                  "## Form1, the main window", "| `lbl` | a label |",
                  "## Form5", "| `pie`, `bars` | charts |", "| `Option1` | first |",
                  "| `Text1`, `pages` | hidden |",
                  "## Routines", "| `LogAnalyze` | counts |"]
        self.write("docs/names.md", "\n".join(listed))
        self.assertEqual(self.findings(check_names), [])
        for row, finding in ((3, "src/core/forms/main_form.h:1 name"),
                             (5, "src/core/forms/graph_form.h:1 name"),
                             (9, "src/core/forms/graph_form.h:1 name")):
            with self.subTest(missing=listed[row]):
                self.write("docs/names.md", "\n".join(listed[:row] + listed[row + 1:]))
                self.assertIn(finding, self.findings(check_names))
        form = (self.root / "src/core/forms/graph_form.h").read_text()
        self.write("docs/names.md", "\n".join(listed))
        for wrong, right in (("Form4", "Form5"), ("", 'see("bars", bars);'),
                             ('see("pie", bars);', 'see("pie", pie);')):
            with self.subTest(wrong=wrong):
                self.write("src/core/forms/graph_form.h", form.replace(right, wrong))
                self.assertEqual(len(self.findings(check_names)), 1)
        self.write("src/core/forms/graph_form.h", form)
        for row in ("| `lbl` | of another form |", "| `gone` | no longer there |"):
            with self.subTest(row=row):
                self.write("docs/names.md", "\n".join(listed[:7] + [row] + listed[7:]))
                self.assertEqual([finding.split(":")[0] for finding in self.findings(check_names)],
                                 ["docs/names.md"])

    def test_statements_that_may_not_stand(self):
        self.write("src/core/a.cpp", """\
            void f() {
                // catch (...) {}  using namespace std;
                say("using namespace std");
                try { g(); } catch (...) {
                    // Nothing can be done.
                }
            }
            using namespace std::chrono_literals;
            """)
        self.assertEqual(self.findings(check_statements),
                         ["src/core/a.cpp:4 catch", "src/core/a.cpp:8 using"])

    def test_variables_that_outlive_a_call(self):
        self.write("src/core/a.cpp", """\
            namespace tessarine {
            int counter = 0;
            std::map<int, std::string> cache;
            static Console* console{nullptr};
            constexpr int kept = 1;
            const std::array<Row, 2> rows = {{{"a", 1}, {"b", 2}}};
            using Names = std::vector<std::string>;
            int declared(std::string text, int many = 1);
            struct Counter {
                static int count();
              public:
                static inline int shared = 0;
                int own = 0;
            };
            Counter::~Counter() = default;
            int next() {
                static const int first = 1;
                static int last = 0;
                auto add = [&](int x) { int sum = x; return sum; };
                return last = add(first);
            }
            }  // namespace tessarine
            """)
        self.assertEqual(self.findings(check_variables),
                         [f"src/core/a.cpp:{line} global" for line in (2, 3, 4, 12, 18)])

    def test_lines(self):
        wide = "x" * 101
        self.write("src/core/a.cpp",
                   f'int a; \n\tint b;\n// {wide}\nauto c = R"(\n{wide}\t\n)";\nint d;')
        self.write("docs/a.md", f"{wide}\nblank \n")
        self.assertEqual(self.findings(check_lines), [
            "src/core/a.cpp:1 blank", "src/core/a.cpp:2 tab", "src/core/a.cpp:3 width",
            "src/core/a.cpp:7 end", "docs/a.md:2 blank"])

    def test_lengths_may_only_shrink(self):
        body = "    step();\n" * 70
        self.write("src/core/a.cpp", f"void long_one() {{\n{body}}}\n")
        self.assertEqual(self.findings(check_lengths), ["src/core/a.cpp:1 length"])
        allowed = "tools/tidy/allowed_lengths.txt"
        too_long, slack = ["src/core/a.cpp:1 length"], [f"{allowed}:2 length"]
        for lines, finding in ((72, []), (71, too_long), (73, slack)):
            with self.subTest(allowed=lines):
                self.write(allowed, f"# why\n{lines} src/core/a.cpp:long_one\n")
                self.assertEqual(self.findings(check_lengths), finding)
        self.write(allowed, "80 src/core/gone.cpp:long_one\n72 src/core/a.cpp:long_one\n")
        self.assertEqual(self.findings(check_lengths), [f"{allowed}:1 length"])
        self.write("src/core/b.cpp", "// line\n" * 401)
        self.assertIn("src/core/b.cpp:1 length", self.findings(check_lengths))

    def test_the_usual_function_is_short(self):
        for lines, many, expected in ((2, 60, 0), (12, 60, 1), (32, 60, 2)):
            with self.subTest(lines=lines):
                for number in range(many):
                    body = "    step();\n" * lines
                    self.write(f"src/core/f{number}.cpp", f"void f() {{\n{body}}}\n")
                self.assertEqual(len(self.findings(check_lengths)), expected)

    @unittest.skipIf(skip_reason(), "no clang-format to compare with")
    def test_layout(self):
        self.write(".clang-format", "BasedOnStyle: Google\n")
        self.write("src/core/a.cpp", "int  a( );\nint b( );\n")
        self.assertIn("src/core/a.cpp:1 format", self.findings(check_format))

    def test_the_program_prints_findings_and_fails(self):
        command = [sys.executable, "-B", str(TIDY), str(self.root)]
        self.write("src/hosts/a.cpp", "#include <QString>\n")
        run = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual(run.returncode, 1, run.stderr)
        self.assertIn("src/hosts/a.cpp:1: include: hosts/ uses the standard", run.stdout)


class FunctionsTest(unittest.TestCase):
    def names_and_lengths(self, code):
        functions = CppSource(textwrap.dedent(code)).functions
        return [(function.name, function.length) for function in functions]

    def test_functions_are_told_from_other_braces(self):
        self.assertEqual(self.names_and_lengths("""\
            struct Row { int width{3}; std::function<void()> done{}; };
            enum class Kind : int { First, Second };
            const auto twice = [](int x) { return 2 * x; };
            static_assert(width_of(Row{1}) > 0);
            Row::Row(int a) : first_{a}, second_(Pair{a}), third_{f(a)} {
                step();
            }
            template <class T, int N = 3>
            bool operator==(const T& a, const T& b) {
                for (auto c : {1, 2}) { if (c == '{') { call([&] { step(); }); } }
                return text == R"(}})" && number == 1'000'000;
            }
            TEST_F(Fixture, Sees) { EXPECT_EQ("{", 1); }
            auto value() const -> std::optional<int> {
                return {};
            }
            """), [("Row::Row", 3), ("operator==", 5), ("Fixture.Sees", 1), ("value", 3)])


if __name__ == "__main__":
    unittest.main()
