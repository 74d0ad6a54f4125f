// Writes the workbook of an odd analysis and prints where it is.
#include <cstdio>
#include <string>

#include "adapters/xlsx/xlsx_workbooks.h"
#include "analysis/workbook_export.h"
#include "chrome/start_up.h"
#include "fakes/rig.h"
#include "office/bitmap.h"
#include "office/sample_analysis.h"

namespace tessarine {
namespace {

std::string write_sample() {
    fakes::Rig rig;
    rig.run(start_up);
    MainForm& form = rig.console.Form1;
    fill_with_sample(form);
    constexpr std::size_t kMoreThanACellHolds = 40'000;
    ListControl::Row row = form.ListView4.add_row("4625", 4);
    row.add_sub_item("1");
    row.add_sub_item(std::string(kMoreThanACellHolds, 'x'));
    rig.run(AnalysisExport);
    std::vector<Sheet> sheets = rig.workbooks.written;
    for (Sheet& sheet : sheets) sheet.picture = bitmap_of({'\x20', '\x60', '\x10'});
    return XlsxWorkbooks().write(sheets);
}

}  // namespace
}  // namespace tessarine

int main() {
    std::puts(tessarine::write_sample().c_str());
}
