#include "search/search.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/console_state.h"
#include "core/counter16.h"
#include "core/error_regime.h"
#include "core/text.h"
#include "platform/directory_listing.h"
#include "platform/files.h"
#include "search/matching_lines.h"
#include "store/log_files.h"
#include "tables/shown_types.h"
#include "tables/tab_marks.h"
#include "tables/table_rows.h"

namespace tessarine {
namespace {

/// How one log is searched. Positions in names count from 1.
struct Pass {
    EventLog log;
    CheckBox MainForm::*box;
    std::span<const ShownType> types;
    EventLog counted;  ///< its files are what the maximum of the bar counts
    std::size_t first_counted_position;
    std::string_view text;  ///< of panel 1
    bool empties_counters = false;
    bool resets_bar = false;
};

// KEEP(search-plans-security-from-application-files): counting "_security.log" for the Security
// pass would move the bar's overflow, and so the end of the search.
constexpr std::array kPasses = {
    // KEEP(search-counts-a-nameless-system-log): position 2, as in the other two passes, would
    // end the bar a file sooner.
    Pass{.log = EventLog::System,
         .box = &MainForm::Check1,
         .types = kSystemTypes,
         .counted = EventLog::System,
         .first_counted_position = 1,
         .text = "Searching System logs.Please wait",  // sic
         .empties_counters = true,
         .resets_bar = true},
    Pass{.log = EventLog::Application,
         .box = &MainForm::Check2,
         .types = kPlainApplicationTypes,
         .counted = EventLog::Application,
         .first_counted_position = 2,
         .text = "Searching Application logs.Please wait..."},
    Pass{.log = EventLog::Security,
         .box = &MainForm::Check3,
         .types = kSecurityTypes,
         .counted = EventLog::Application,
         .first_counted_position = 2,
         .text = "Searching Security logs.Please wait..."},
};
static_assert(kPasses[2].counted == EventLog::Application && !kPasses[2].resets_bar,
              "the passes differ, and keep their differences");

constexpr std::size_t kFirstSearchedPosition = 2;

// Where the log's name stands first in a file's name, from 1; 0 when it doesn't.
std::size_t position_of(EventLog log, const std::string& file) {
    return lower_text(file).find(facts_of(log).file_suffix) + 1;
}

class SearchRun {
  public:
    explicit SearchRun(Console& console)
        : console_(console), form_(console.Form1), lines_(console.Form1.TxtSearch.text) {}

    void run();

  private:
    void list_files();
    void run_pass(const Pass& pass);
    void plan(const Pass& pass);
    void search_file(const std::string& name, const Pass& pass, TableRows& rows);
    void take_hit(std::string_view line, const Pass& pass, TableRows& rows);
    void show_result();

    Console& console_;
    MainForm& form_;
    MatchingLines lines_;
    std::string folder_;
    std::vector<std::string> files_;
    // KEEP(search-counters-run-on): with counters of each pass's own the bar would begin anew.
    Counter16 planned_;
    Counter16 opened_;
    ErrorRegime errors_;
    LogAlerts alerts_;
};

void SearchRun::run() {
    // KEEP(search-leaves-sorting-on): taking the sorting off would put each hit's fields on its own
    // row.
    for (const EventLog log : kEventLogs) table_of(form_, log).clear();
    mark_tabs(form_, alerts_, {EventLog::System, EventLog::Application, EventLog::Security});
    list_files();
    for (const Pass& pass : kPasses)
        if ((form_.*pass.box).value != 0) run_pass(pass);
    show_result();
}

// A store without its folder is one without files.
void SearchRun::list_files() {
    folder_ = data_folder(console_.platform.files, console_.Form3->txtLogPath.text);
    if (!console_.platform.files.folder_exists(folder_)) return;
    Counter16 listed;
    for (const auto& [name, size] :
         console_.platform.directory_listing.files_ending_in(folder_, ".log")) {
        listed.add_one();
        files_.push_back(name);
    }
}

void SearchRun::run_pass(const Pass& pass) {
    // KEEP(search-fails-without-files): an empty result would let the console go on.
    if (files_.empty())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
    plan(pass);
    TableRows rows(console_, table_of(form_, pass.log), pass.types, errors_);
    for (const std::string& name : files_) {
        if (position_of(pass.log, name) < kFirstSearchedPosition) continue;
        errors_.run([&] { opened_.add_one(); });
        errors_.run([&] { form_.pbar1.set_value(opened_.value()); });
        errors_.run([&] { search_file(name, pass, rows); });
    }
    if (pass.resets_bar) {
        form_.pbar1.set_value(0);
        form_.pbar1.set_maximum(1000);
    }
}

void SearchRun::plan(const Pass& pass) {
    for (const std::string& name : files_)
        if (position_of(pass.counted, name) >= pass.first_counted_position)
            errors_.run([&] { planned_.add_one(); });
    errors_.run([&] { form_.pbar1.set_maximum(planned_.value()); });
    form_.pbar1.set_visible(true);
    form_.st1.set_text(1, std::string(pass.text));
    if (pass.empties_counters) form_.st1.set_text(3, "");
}

void SearchRun::search_file(const std::string& name, const Pass& pass, TableRows& rows) {
    const auto file = console_.platform.files.open(path_in(folder_, name), OpenFor::Reading);
    lines_.start(*file);
    std::string_view line;
    while (lines_.next(line)) take_hit(line, pass, rows);
    file->close();
}

// KEEP(search-ignores-errors-from-its-first-hit): one rule for the whole search would end the
// console also after its first hit, or not even before.
void SearchRun::take_hit(std::string_view line, const Pass& pass, TableRows& rows) {
    const EventRecord record(line);
    errors_.ignore_from_here();
    rows.add(record, rows.type_of(record));
    if (rows.highlight(record) > 0) alerts_.set(pass.log);
}

void SearchRun::show_result() {
    int shown = 0;
    for (const EventLog log : kEventLogs) shown += table_of(form_, log).count();
    mark_tabs(form_, alerts_, {EventLog::System, EventLog::Security, EventLog::Application});
    form_.st1.set_text(1, "Done ...");
    form_.st1.set_text(3, "Showing " + std::to_string(shown) + " records");
    form_.pbar1.set_value(0);
}

}  // namespace

void Search(Console& console) {
    SearchRun(console).run();
}

void search_and_remember(Console& console) {
    Search(console);
    MainForm& form = console.Form1;
    // KEEP(search-history-begins-with-an-empty-line): a line end between the texts alone would take
    // the empty line away.
    form.txtSearchHist.text += "\r\n" + form.TxtSearch.text;
}

void clear_search_history(Console& console) {
    console.Form1.txtSearchHist.text.clear();
    console.Form1.TxtSearch.text.clear();
}

}  // namespace tessarine
