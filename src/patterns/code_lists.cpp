#include "patterns/code_lists.h"

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

#include "core/console_state.h"
#include "core/counter16.h"
#include "core/icons.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "platform/files.h"
#include "platform/program.h"
#include "store/log_files.h"
#include "store/record_reader.h"
#include "tables/marked_tables.h"
#include "tables/row_fields.h"

namespace tessarine {
namespace {

/// One of the two lists with what belongs to it.
struct CodeList {
    std::string_view file_name;
    ListControl MainForm::*list;
    TextBox MainForm::*field;
    std::string_view missing_file_text;
};

constexpr CodeList kAlertCodes = {.file_name = "alertpatterns.txt",
                                  .list = &MainForm::AlertList,
                                  .field = &MainForm::TxtAlert,
                                  .missing_file_text = "Alert Pattern file modified.."};
constexpr CodeList kIgnoredCodes = {.file_name = "ignorelist.txt",
                                    .list = &MainForm::IgnoreList,
                                    .field = &MainForm::txtIgnore,
                                    .missing_file_text = "Ignore list modified.."};

std::string path_of(Console& console, const CodeList& codes) {
    return path_in(console.platform.program.application_directory(), codes.file_name);
}

void load(Console& console, const CodeList& codes) {
    const std::string path = path_of(console, codes);
    Files& files = console.platform.files;
    if (const auto made = files.create(path)) {
        made->close();
        return;
    }
    ListControl& list = console.Form1.*codes.list;
    list.clear();
    const std::unique_ptr<File> file = files.open(path, OpenFor::Reading);
    RecordReader reader(*file);
    std::string_view line;
    while (reader.next(line))
        if (!line.empty()) list.add_row(line, kNoIcon);
    file->close();
}

// Against other consoles that change a list; these are done in no time.
std::unique_ptr<FileLock> locked_lists(Console& console) {
    auto lock = console.platform.files.lock(console.platform.program.application_directory(),
                                            std::chrono::seconds(5));
    if (lock == nullptr)
        throw RuntimeError(ErrorNumber::PermissionDenied,
                           "Another program holds the lists of event codes");
    return lock;
}

// KEEP(missing-code-file-loses-the-change): writing a file that is missing would keep an entry
// that is to be lost.
bool has_file(Console& console, const CodeList& codes) {
    const bool exists = console.platform.files.file_exists(path_of(console, codes));
    if (!exists) console.Form1.st1.set_text(1, std::string(codes.missing_file_text));
    return exists;
}

// KEEP(blank-lines-between-codes): one line end would change the form of the file.
void append_code(Console& console, const CodeList& codes, std::string_view code) {
    const auto lock = locked_lists(console);
    if (!has_file(console, codes)) return;
    const auto file = console.platform.files.open(path_of(console, codes), OpenFor::Appending);
    file->write_whole(std::string(code) + "\r\n" + "\r\n");
    file->close();
}

void write_without(Console& console, const CodeList& codes, std::string_view code) {
    const auto lock = locked_lists(console);
    if (!has_file(console, codes)) return;
    ListControl& list = console.Form1.*codes.list;
    const int entries = count16(list.count());
    std::string lines;
    for (int row = 1; row <= entries; ++row)
        if (!same_text(list.row(row).text(), code))
            lines.append(list.row(row).text()).append("\r\n");
    console.platform.files.replace(path_of(console, codes), lines + "\r\n\r\n");
}

void add_from_field(Console& console, const CodeList& codes) {
    TextBox& field = console.Form1.*codes.field;
    append_code(console, codes, field.text);
    field.text.clear();
    load(console, codes);
}

void remove_from_field(Console& console, const CodeList& codes) {
    TextBox& field = console.Form1.*codes.field;
    write_without(console, codes, field.text);
    field.text.clear();
    load(console, codes);
}

void copy_to_field(Console& console, const CodeList& codes) {
    ListControl& list = console.Form1.*codes.list;
    if (list.selected_item() != 0)
        (console.Form1.*codes.field).text = list.row(list.selected_item()).text();
}

void add_from_event_table(Console& console, const CodeList& codes) {
    const ListControl* table = marked_event_table(console.Form1);
    if (table == nullptr) return;
    append_code(console, codes, field(selected_row(*table), Field::Event));
    load(console, codes);
}

}  // namespace

void LoadAlertPatterns(Console& console) {
    load(console, kAlertCodes);
}

void LoadIgnoreList(Console& console) {
    load(console, kIgnoredCodes);
}

// KEEP(an-empty-alert-pattern-is-added): the ignore list's test would keep the empty line
// out of the file.
void add_alert_pattern(Console& console) {
    add_from_field(console, kAlertCodes);
}

void add_ignored_code(Console& console) {
    if (console.Form1.txtIgnore.text.empty()) return;
    add_from_field(console, kIgnoredCodes);
}

void remove_alert_pattern(Console& console) {
    remove_from_field(console, kAlertCodes);
}

void remove_ignored_code(Console& console) {
    remove_from_field(console, kIgnoredCodes);
}

void pick_alert_pattern(Console& console) {
    copy_to_field(console, kAlertCodes);
}

void pick_ignored_code(Console& console) {
    copy_to_field(console, kIgnoredCodes);
}

void addtohighlightlist(Console& console) {
    add_from_event_table(console, kAlertCodes);
}

void addtoignore(Console& console) {
    add_from_event_table(console, kIgnoredCodes);
}

// KEEP(no-highlighting-from-the-security-analysis): taking any table would add codes of the
// Security table, where nothing is to happen.
void addtohighlightlist3(Console& console) {
    const ListControl* table = marked_analysis_table(console.Form1);
    if (table == nullptr || table == &console.Form1.ListView4) return;
    append_code(console, kAlertCodes, selected_row(*table).text());
    load(console, kAlertCodes);
}

}  // namespace tessarine
