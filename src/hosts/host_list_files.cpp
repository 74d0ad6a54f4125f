#include "hosts/host_list_files.h"

#include <memory>
#include <string_view>
#include <vector>

#include "core/console_state.h"
#include "core/error_regime.h"
#include "core/host_rows.h"
#include "core/text.h"
#include "hosts/host_list.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "store/record_reader.h"

namespace tessarine {
namespace {

using enum FilePurpose;

constexpr const char* kStartFolder = "c:\\";
constexpr const char* kTextFiles = "Text File (*.txt);*.txt";

std::vector<FileFilter> filters_of(std::string list) {
    if (!list.empty() && list.back() != ';' && list.back() != '|') list += ';';
    list += "All Files (*.*);*.*;";
    std::vector<FileFilter> filters;
    bool caption = true;
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t end = list.find_first_of(";|", start);
        const std::string piece = list.substr(start, end - start);
        if (caption)
            filters.push_back({piece, ""});
        else
            filters.back().pattern = piece;
        caption = !caption;
        start = end + 1;
    }
    return filters;
}

void add_hosts_of_file(Console& console, const std::string& path) {
    const auto file = console.platform.files.open(path, OpenFor::Reading);
    RecordReader reader(*file);
    std::string_view line;
    while (reader.next(line))
        if (!line.empty()) add_host_row(console.Form1.ListView1, upper_text(line));
    file->close();
}

void write_hosts(Console& console, const ErrorRegime& errors, const std::string& path) {
    std::unique_ptr<File> file;
    errors.run([&] { file = console.platform.files.open(path, OpenFor::Writing); });
    if (file == nullptr) return;
    const ListControl& list = console.Form1.ListView1;
    int rows = 0;
    // KEEP(long-host-lists-export-nothing): a wider number would write the names to the file.
    errors.run([&] { rows = host_rows(list); });
    for (int row = 1; row <= rows; ++row)
        errors.run([&] { file->write(std::string(list.row(row).text()) + "\r\n"); });
    errors.run([&] { file->close(); });
}

// The chooser can't ask: it doesn't know the name's ending.
bool may_be_written(Console& console, const std::string& path) {
    return !console.platform.files.file_exists(path) ||
           console.platform.dialogs.message_box(path + " is there already. Replace it?",
                                                MessageStyle::YesNoQuestion) == MessageAnswer::Yes;
}

}  // namespace

std::string BrowseForFile(Console& console, FilePurpose purpose, const std::string& start_folder,
                          const std::string& filters, const std::string& title) {
    return console.platform.dialogs.choose_file(purpose, start_folder, filters_of(filters), title);
}

void loadfrmlist(Console& console) {
    ignoring_errors([&](const ErrorRegime& errors) {
        const std::string path = BrowseForFile(console, Open, kStartFolder, kTextFiles, "");
        if (!path.empty()) {
            console.Form1.ListView1.clear();
            // A reading that fails ends like the file itself.
            errors.run([&] { add_hosts_of_file(console, path); });
        }
        show_host_count(console);
    });
}

void exporthostlist(Console& console) {
    ignoring_errors([&](const ErrorRegime& errors) {
        StatusBar& status = console.Form1.st1;
        if (console.Form1.ListView1.count() == 0) {
            status.set_text(1, "Populate the hosts for exporting...");
            return;
        }
        status.set_text(1, "");
        const std::string path =
            BrowseForFile(console, Save, kStartFolder, kTextFiles, "Save to..");
        if (path.empty()) return;
        // KEEP(export-always-adds-txt): adding the ending where it is missing alone would write
        // "hosts.txt" under another name.
        const std::string written = path + ".txt";
        if (!may_be_written(console, written)) return;
        write_hosts(console, errors, written);
        // KEEP(export-always-reports-success): telling of a failure would change the one text that
        // the export ends with.
        status.set_text(1, "Hosts list exported...");
    });
}

}  // namespace tessarine
