#include "analysis/overall_analysis.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "analysis/log_line_count.h"
#include "core/console_state.h"
#include "core/counter16.h"
#include "core/error_regime.h"
#include "core/icons.h"
#include "core/log_facts.h"
#include "core/tabs.h"
#include "core/text.h"
#include "platform/directory_listing.h"
#include "platform/files.h"
#include "store/log_files.h"
#include "store/record_reader.h"

namespace tessarine {
namespace {

// The types in the order of the chart's columns: red, green, yellow.
constexpr std::array kEventTypes = {
    CountedType{kError, {"err", "feh"}, kIconError},
    CountedType{kInformation, {"inf", "inf"}, kIconInformation},
    CountedType{kWarning, {"war", "war"}, kIconWarning},
};
constexpr std::array kAuditTypes = {
    CountedType{kAuditFailure, kAuditFailure, kIconAuditFailure},
    CountedType{kAuditSuccess, kAuditSuccess, kIconAuditSuccess},
};

struct AnalysedLog {
    EventLog log;
    CheckBox MainForm::*box;
    std::span<const CountedType> types;
};

constexpr std::array kLogs = {
    AnalysedLog{EventLog::System, &MainForm::Check4, kEventTypes},
    AnalysedLog{EventLog::Application, &MainForm::Check5, kEventTypes},
    AnalysedLog{EventLog::Security, &MainForm::Check6, kAuditTypes},
};

// KEEP(analysis-takes-names-without-underscore): the whole suffix would pass over host-system.log.
std::string ending_of(EventLog log) {
    return std::string(facts_of(log).file_suffix.substr(1));
}

using Entries = std::vector<DirectoryListing::Entry>;

// KEEP(analysis-progress-stops-at-32767): a wider number would let the bar go on to the last file.
void set_bar_maximum(ProgressBar& bar, const Entries& files, const ErrorRegime& errors) {
    const std::size_t count = std::min<std::size_t>(files.size(), kMost16);
    errors.run([&] { bar.set_maximum(static_cast<std::int64_t>(count)); });
}

void show_progress(MainForm& form, const ErrorRegime& errors) {
    errors.run([&] { form.pbar1.set_value(form.pbar1.value() + 1); });
    form.st1.set_text(3, std::to_string(form.pbar1.value()) + "/" +
                             std::to_string(form.pbar1.maximum()) +
                             " records processed");  // sic: they are files
}

void count_lines(Console& console, const std::string& path, LogLineCount& lines) {
    const std::unique_ptr<File> file = console.platform.files.open(path, OpenFor::Reading);
    RecordReader reader(*file);
    std::string_view line;
    while (reader.next(line)) lines.take_line(line);
    file->close();
}

void fill_table(ListControl& table, const std::vector<CodeCount>& codes) {
    for (const auto& [code, source, icon, instances] : codes) {
        ListControl::Row row = table.add_row(code, icon);
        row.add_sub_item(std::to_string(instances));
        row.add_sub_item(source);
    }
}

void analyse(Console& console, const AnalysedLog& log, const ErrorRegime& errors) {
    MainForm& form = console.Form1;
    ListControl& table = analysis_of(form, log.log);
    table.clear();
    std::string folder;
    Entries files;
    errors.run([&] {
        folder = data_folder(console.platform.files, console.Form3->txtLogPath.text);
        files = console.platform.directory_listing.files_ending_in(folder, ending_of(log.log));
    });
    set_bar_maximum(form.pbar1, files, errors);
    LogLineCount lines(log.types);
    for (const DirectoryListing::Entry& file : files) {
        show_progress(form, errors);
        if (file.size != 0)
            errors.run([&] { count_lines(console, path_in(folder, file.name), lines); });
    }
    fill_table(table, lines.codes());
    (form.*facts_of(log.log).chart).points = lines.starts();
}

}  // namespace

void run_overall_analysis(Console& console) {
    MainForm& form = console.Form1;
    form.pbar1.set_visible(true);
    for (const AnalysedLog& log : kLogs) {
        if ((form.*log.box).value == 0) continue;
        console.mouse_pointer = kPointerHourglass;
        OverAllAnalysis(console, facts_of(log.log).word);
        console.mouse_pointer = kPointerDefault;
    }
    form.TabStrip2.selected = kSummaryTab;
    click_tab_of_right_strip(console);
}

void OverAllAnalysis(Console& console, std::string_view LogFile) {
    ignoring_errors([&](const ErrorRegime& errors) {
        MainForm& form = console.Form1;
        form.pbar1.set_value(0);
        for (const AnalysedLog& log : kLogs)
            if (same_text(LogFile, facts_of(log.log).word)) analyse(console, log, errors);
        form.pbar1.set_value(0);
        form.st1.set_text(3, "");
    });
}

}  // namespace tessarine
