// Writes the workbook of an odd analysis and prints where it is.
//
// usage: office_sample [ROWS]   so many rows more in the System table
#include <cstdio>
#include <cstdlib>
#include <string>

#include "adapters/xlsx/xlsx_workbooks.h"
#include "analysis/workbook_export.h"
#include "core/start_up.h"
#include "fakes/bench.h"
#include "office/bitmap.h"
#include "office/sample_analysis.h"

namespace tessarine {
namespace {

void add_row(ListControl& table, const std::string& code, const std::string& source) {
    ListControl::Row row = table.add_row(code, 4);
    row.add_sub_item("1");
    row.add_sub_item(source);
}

std::string write_sample(int more_rows) {
    fakes::Bench bench;
    bench.run(start_up);
    MainForm& form = bench.console.Form1;
    fill_with_sample(form);
    constexpr std::size_t kMoreThanACellHolds = 40'000;
    add_row(form.ListView4, "4625", std::string(kMoreThanACellHolds, 'x'));
    for (int i = 1; i <= more_rows; ++i)
        add_row(form.ListView2, std::to_string(1000 + i), "Source " + std::to_string(i));
    bench.run(AnalysisExport);
    std::vector<Sheet> sheets = bench.workbooks.written;
    for (Sheet& sheet : sheets) sheet.picture = bitmap_of({'\x20', '\x60', '\x10'});
    return XlsxWorkbooks().write(sheets);
}

}  // namespace
}  // namespace tessarine

int main(int count, char** arguments) {
    const int more_rows = count > 1 ? std::atoi(arguments[1]) : 0;
    std::puts(tessarine::write_sample(more_rows).c_str());
}
