#include "report/html_page.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

#include "core/console_state.h"
#include "core/counter16.h"
#include "core/maker_site.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/program.h"
#include "platform/shell.h"
#include "store/log_files.h"
#include "tables/marked_tables.h"
#include "tables/row_fields.h"

namespace tessarine {
namespace {

constexpr std::string_view kPageFile = "tempop.html";
constexpr std::string_view kEmptyLine = "<tr><td colspan=8>&nbsp;</td></tr>";

std::string in_application_directory(Console& console, std::string_view name) {
    return path_in(console.platform.program.application_directory(), name);
}

// Makes the lines of rows, in memory that it keeps.
class RowLines {
  public:
    explicit RowLines(std::string_view log) : log_(log) {}

    std::string_view fields_of(const ListControl::ConstRow& row, const char* shade) {
        lines_.clear();
        add({"<tr ", shade, " ><td>", field(row, Field::Type), "</td><td>",
             field(row, Field::Computer), "</td><td>", log_, "</td><td>", field(row, Field::Date),
             " ", field(row, Field::Time), "</td><td>", field(row, Field::Source), "</td><td>",
             field(row, Field::Event), "</td><td>", field(row, Field::User), "</td></tr>\r\n"});
        return lines_;
    }

    std::string_view message_of(const ListControl::ConstRow& row, const char* shade) {
        lines_.clear();
        add({"<tr ", shade, " > <td colspan=8>"});
        add_message(field(row, Field::Message));
        add({"</td></tr>\r\n", kEmptyLine, "\r\n"});
        return lines_;
    }

  private:
    void add(std::initializer_list<std::string_view> pieces) {
        for (const std::string_view piece : pieces) lines_.append(piece);
    }

    void add_message(std::string_view message) {
        const std::size_t begin = lines_.size();
        lines_.append(message);
        std::replace(lines_.begin() + static_cast<std::ptrdiff_t>(begin), lines_.end(), '~', ' ');
    }

    std::string_view log_;
    std::string lines_;
};

}  // namespace

// KEEP(page-texts-go-unescaped): escaped texts would change the page for those who read it as it
// always was.
void ExportToHtml(Console& console, const ListControl& SelList) {
    const auto file =
        console.platform.files.open(in_application_directory(console, kPageFile), OpenFor::Writing);
    const auto write_line = [&file](std::string line) { file->write(line.append("\r\n")); };
    write_line("<HTML><TITLE>Tessarine</TITLE>");
    write_line("<h3>Tessarine - Exported at " +
               console.regional.date_time(console.platform.clock.now()) + "</h3><br>");
    write_line(console.Form1.txtHtmlStyle.text);
    // KEEP(long-pages-fail-after-their-head): a wider number would write a page that is to end in
    // an overflow.
    const int count = count16(SelList.count());
    RowLines rows(console.Form1.lblselectedTab.caption);
    for (int number = 1; number <= count; ++number) {
        const ListControl::ConstRow row = SelList.row(number);
        const char* shade = number % 2 == 1 ? "class='light' " : "class='dark' ";
        file->write(rows.fields_of(row, shade));
        file->write(rows.message_of(row, shade));
    }
    write_line(std::string(kEmptyLine) + "</table>");
    std::string footer = "<a href=";
    footer.append(maker_address("")).append("><font face=verdana size=1>").append(maker_site());
    write_line(footer + "</font></a><p><p></HTML>");
    file->close();
}

void DummyHtml(Console& console) {
    const std::string path = in_application_directory(console, "temp.html");
    const auto file = console.platform.files.create(path);
    if (file == nullptr) return;
    file->write("<HTML><center>Please Wait</center></html>\r\n");
    file->close();
}

void print_current_page(Console& console) {
    const ListControl* table = marked_event_table(console.Form1);
    if (table == nullptr) return;
    ExportToHtml(console, *table);
    console.platform.shell.open(in_application_directory(console, kPageFile));
}

}  // namespace tessarine
