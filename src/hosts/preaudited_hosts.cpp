#include "hosts/preaudited_hosts.h"

#include <array>
#include <string>
#include <unordered_set>

#include "core/console_state.h"
#include "core/host_rows.h"
#include "core/log_facts.h"
#include "core/text.h"
#include "hosts/host_list.h"
#include "platform/directory_listing.h"
#include "store/log_files.h"

namespace tessarine {
namespace {

// A name of another form, such as notes.log, stays whole.
std::string host_of_file(std::string name) {
    constexpr std::array kOrder = {EventLog::Application, EventLog::Security, EventLog::System};
    for (const EventLog log : kOrder) name = replace_text(name, facts_of(log).file_suffix, "");
    return name;
}

}  // namespace

void LoadPreAuditedHosts(Console& console) {
    ListControl& list = console.Form1.ListView1;
    list.clear();
    const std::string folder = data_folder(console.platform.files, console.Form3->txtLogPath.text);
    std::unordered_set<std::string> seen;
    for (const auto& [name, size] :
         console.platform.directory_listing.files_ending_in(folder, ".log")) {
        if (size == 0) continue;
        const std::string host = host_of_file(name);
        if (seen.insert(lower_text(host)).second) add_host_row(list, host);
        host_rows(list);  // walked for each file, in search of duplicates
    }
    show_host_count(console);
}

}  // namespace tessarine
