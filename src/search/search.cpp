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
#include "tables/log_tables.h"
#include "tables/table_rows.h"

namespace tessarine {
namespace {

/// How one log is searched. Positions in names count from 1.
struct Pass {
    CheckBox MainForm::*box;
    ListControl MainForm::*table;
    int tab;
    std::span<const ShownType> types;
    EventLog searched;
    EventLog counted;  ///< its files are what the maximum of the bar counts
    std::size_t first_counted_position;
    std::string_view text;  ///< of panel 1
    bool empties_counters = false;
    bool resets_bar = false;
};

// KEEP(search-plans-security-from-application-files): the Security pass takes its maximum from the
// number of application files. Counting "_security.log" looks right, but decides when the bar
// overflows, and so how the search ends.
constexpr std::array kPasses = {
    // KEEP(search-counts-a-nameless-system-log): a file named "_system.log" alone is counted and
    // never opened. The position of the other two passes looks right; the bar falls one short.
    Pass{.box = &MainForm::Check1,
         .table = &MainForm::SystemList,
         .tab = 1,
         .types = kSystemTypes,
         .searched = EventLog::System,
         .counted = EventLog::System,
         .first_counted_position = 1,
         .text = "Searching System logs.Please wait",  // sic
         .empties_counters = true,
         .resets_bar = true},
    Pass{.box = &MainForm::Check2,
         .table = &MainForm::ApplicationList,
         .tab = 2,
         .types = std::span(kApplicationTypes).first(3),  // an audit failure is none of them
         .searched = EventLog::Application,
         .counted = EventLog::Application,
         .first_counted_position = 2,
         .text = "Searching Application logs.Please wait..."},
    Pass{.box = &MainForm::Check3,
         .table = &MainForm::SecurityList,
         .tab = 3,
         .types = kSecurityTypes,
         .searched = EventLog::Security,
         .counted = EventLog::Application,
         .first_counted_position = 2,
         .text = "Searching Security logs.Please wait..."},
};
static_assert(kPasses[2].counted == EventLog::Application && !kPasses[2].resets_bar,
              "the passes differ, and keep their differences");

constexpr std::size_t kFirstSearchedPosition = 2;

// Where the log's name stands first in a file's name, from 1; 0 when it doesn't.
std::size_t position_of(EventLog log, const std::string& file) {
    return lower_text(file).find(file_suffix(log)) + 1;
}

class SearchRun {
  public:
    explicit SearchRun(Console& console)
        : console_(console), form_(console.Form1), lines_(console.Form1.TxtSearch.text) {}

    void run();

  private:
    void list_files();
    bool run_pass(const Pass& pass);
    void plan(const Pass& pass);
    void search_file(const std::string& name, TableRows& rows, bool& alert);
    void take_hit(std::string_view line, TableRows& rows, bool& alert);
    void show_result();

    Console& console_;
    MainForm& form_;
    MatchingLines lines_;
    std::string folder_;
    std::vector<std::string> files_;
    // KEEP(search-counters-run-on): neither counter goes back to 0 between the passes, so the bar
    // counts the files of all of them. A count of each pass's own looks right.
    Counter16 planned_;
    Counter16 opened_;
    ErrorRegime errors_;
    TabAlerts alerts_{};
};

void SearchRun::run() {
    // KEEP(search-leaves-sorting-on): a sorted table stays sorted, so that new rows take their
    // places while fields and colours go to the last row. Taking sorting off looks right.
    for (const Pass& pass : kPasses) (form_.*pass.table).clear();
    for (const Pass& pass : kPasses) form_.TabStrip2.tab(pass.tab).image = kTabPlain;
    list_files();
    for (const Pass& pass : kPasses)
        if ((form_.*pass.box).value != 0)
            alerts_[static_cast<std::size_t>(pass.tab)] = run_pass(pass);
    show_result();
}

// A store without its folder is one without files.
void SearchRun::list_files() {
    folder_ = data_folder(console_.Form3->txtLogPath.text);
    if (!console_.platform.files.folder_exists(folder_)) return;
    Counter16 listed;
    for (const auto& [name, size] :
         console_.platform.directory_listing.files_ending_in(folder_, ".log")) {
        listed.add_one();
        files_.push_back(name);
    }
}

// Returns whether a hit matched the alert list.
bool SearchRun::run_pass(const Pass& pass) {
    // KEEP(search-fails-without-files): a store without files ends the console, as the first use of
    // an array without bounds does. An empty result looks right; a search of no log gives that.
    if (files_.empty())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
    plan(pass);
    TableRows rows(console_, form_.*pass.table, pass.types);
    bool alert = false;
    for (const std::string& name : files_) {
        if (position_of(pass.searched, name) < kFirstSearchedPosition) continue;
        errors_.run([&] { opened_.add_one(); });
        errors_.run([&] { form_.pbar1.set_value(opened_.value()); });
        errors_.run([&] { search_file(name, rows, alert); });
    }
    if (pass.resets_bar) {
        form_.pbar1.set_value(0);
        form_.pbar1.set_maximum(1000);
    }
    return alert;
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

void SearchRun::search_file(const std::string& name, TableRows& rows, bool& alert) {
    const auto file = console_.platform.files.open(path_in(folder_, name), OpenFor::Reading);
    lines_.start(*file);
    std::string_view line;
    while (lines_.next(line)) take_hit(line, rows, alert);
    file->close();
}

// KEEP(search-ignores-errors-from-its-first-hit): what ends the console before the first hit is
// passed over behind it, in this and all later files. One rule for the whole search looks right.
void SearchRun::take_hit(std::string_view line, TableRows& rows, bool& alert) {
    const EventRecord record(line);
    errors_.ignore_from_here();
    rows.add(record, rows.type_of(record));
    if (rows.highlight(record) > 0) alert = true;
}

void SearchRun::show_result() {
    int shown = 0;
    for (const Pass& pass : kPasses) shown += (form_.*pass.table).count();
    mark_tabs(form_.TabStrip2, alerts_, {1, 3, 2});
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
    // KEEP(search-history-begins-with-an-empty-line): the line end stands before each text, also
    // the first. One between the texts looks right.
    form.txtSearchHist.text += "\r\n" + form.TxtSearch.text;
}

void clear_search_history(Console& console) {
    console.Form1.txtSearchHist.text.clear();
    console.Form1.TxtSearch.text.clear();
}

}  // namespace tessarine
