#include "analysis/workbook_export.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/console_state.h"
#include "core/counter16.h"
#include "core/log_facts.h"
#include "platform/chart_picture.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/program.h"
#include "platform/shell.h"
#include "platform/workbooks.h"
#include "store/log_files.h"

namespace tessarine {
namespace {

struct AnalysisSheet {
    std::string_view name;
    EventLog log;
};

// In the order of the sheets, which isn't that of the tabs.
constexpr std::array kAnalysisSheets = {
    AnalysisSheet{"Application Events", EventLog::Application},
    AnalysisSheet{"System Events", EventLog::System},
    AnalysisSheet{"Security Events", EventLog::Security},
};

// Where a table stands in its sheet, from column A on.
struct TablePlace {
    int captions;
    int first_row;
    bool bold_captions;
};

// The rows above are left for the picture.
constexpr TablePlace kBelowPicture{.captions = 12, .first_row = 13, .bold_captions = true};
// An empty row stands between the captions and the rows.
constexpr TablePlace kListPlace{.captions = 1, .first_row = 3, .bold_captions = false};

constexpr int kTypeColumn = 5;
constexpr int kCountColumn = 6;

// KEEP(export-takes-the-clipboard): a picture that is drawn straight into the sheet would leave the
// clipboard as it was.
// KEEP(export-leaves-the-last-chart): removing the file would leave no picture there.
std::string picture_of(Console& console, const Chart& chart) {
    const Platform& platform = console.platform;
    platform.chart_picture.copy_to_clipboard(chart);
    std::string picture = platform.clipboard.picture();
    const auto file = platform.files.open(
        path_in(platform.program.application_directory(), "Chart.bmp"), OpenFor::Writing);
    file->write(picture);
    file->close();
    return picture;
}

void add_cell(Sheet& sheet, int row, int column, std::string_view text, bool bold = false) {
    sheet.cells.push_back({row, column, std::string(text), bold});
}

void add_table(Sheet& sheet, const ListControl& table, const TablePlace& place) {
    const int columns = static_cast<int>(table.columns.size());
    for (int column = 1; column <= columns; ++column)
        add_cell(sheet, place.captions, column,
                 table.columns[static_cast<std::size_t>(column - 1)].caption, place.bold_captions);
    // KEEP(long-tables-fail-to-export): a wider number would export a table that is to end in an
    // overflow.
    const int rows = count16(table.count());
    for (int number = 1; number <= rows; ++number) {
        const ListControl::ConstRow row = table.row(number);
        const int sheet_row = place.first_row + number - 1;
        add_cell(sheet, sheet_row, 1, row.text());
        for (int column = 2; column <= columns; ++column)
            add_cell(sheet, sheet_row, column, row.sub_item(column - 1));
    }
}

void add_types(Sheet& sheet, const Chart& chart) {
    add_cell(sheet, kBelowPicture.captions, kTypeColumn, "Event Type", true);
    add_cell(sheet, kBelowPicture.captions, kCountColumn, "Occurances", true);  // sic
    int row = kBelowPicture.first_row;
    for (const ChartSeries& series : chart.series) add_cell(sheet, row++, kTypeColumn, series.name);
    row = kBelowPicture.first_row;
    for (const std::int64_t point : chart.points)
        add_cell(sheet, row++, kCountColumn, std::to_string(point));
}

// Writes the workbook and opens it with the desktop's program. Without one the message tells so,
// and the file's place is shown, so that the workbook isn't lost.
void show_workbook(Console& console, const std::vector<Sheet>& sheets) {
    const std::string path = console.platform.workbooks.write(sheets);
    if (console.platform.shell.has_program_for(path)) {
        console.platform.shell.open(path);
        return;
    }
    console.Form1.st1.set_text(1, "The workbook is in " + path);
    console.platform.dialogs.message_box(
        "Excel Components Missing.Cannot Export To Excel Sheet",  // sic
        MessageStyle::Critical);
}

}  // namespace

void AnalysisExport(Console& console) {
    std::vector<Sheet> sheets;
    for (const auto& [name, log] : kAnalysisSheets) {
        const Chart& chart = console.Form1.*facts_of(log).chart;
        Sheet& sheet = sheets.emplace_back();
        sheet.picture = picture_of(console, chart);
        add_table(sheet, analysis_of(console.Form1, log), kBelowPicture);
        add_types(sheet, chart);
        sheet.name = name;
    }
    show_workbook(console, sheets);
}

void ExpoXL(Console& console, const ListControl& LV1, const ListControl& LV2,
            const ListControl& LV3) {
    // KEEP(list-export-asks-for-its-first-list-alone): asking for rows in the other two would
    // refuse an export that is to take place.
    if (LV1.count() == 0) {
        console.Form1.st1.set_text(1, "Error. Populate the list first");
        return;
    }
    std::vector<Sheet> sheets;
    const auto add_sheet = [&sheets](std::string_view name, const ListControl& list) {
        Sheet& sheet = sheets.emplace_back();
        sheet.name = name;
        add_table(sheet, list, kListPlace);
    };
    add_sheet("System Log", LV1);
    add_sheet("Application Log", LV2);
    add_sheet("Security Log", LV3);
    // KEEP(list-export-saves-under-no-name): saving there would write a file of which the program
    // that shows the workbook knows nothing.
    console.platform.dialogs.ask_save_name("test.xls");
    show_workbook(console, sheets);
}

}  // namespace tessarine
