// A host list file: each line that isn't empty is a host, and an exported list is the same again.
#include "app/events.h"
#include "core/text.h"
#include "fakes/rig.h"
#include "fuzz/plain_lines.h"
#include "fuzz/promises.h"
#include "hosts/host_list_files.h"

namespace tessarine::fuzz {
namespace {

Lines hosts_of(fakes::Rig& rig, const std::string& path) {
    rig.dialogs.choose_file_next(path);
    rig.run(loadfrmlist);
    const ListControl& list = rig.console.Form1.ListView1;
    Lines hosts;
    for (int row = 1; row <= list.count(); ++row) hosts.emplace_back(list.row(row).text());
    return hosts;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(text_of(data, size));
    Lines expected = filled_lines(bytes);
    for (std::string& line : expected) line = upper_text(line);

    fakes::Rig rig(control_events());
    rig.files.put("/hosts.txt", bytes);
    const Lines hosts = hosts_of(rig, "/hosts.txt");
    hold(hosts == expected, "each line that isn't empty is a host");
    rig.dialogs.choose_file_next("/exported");
    rig.run(exporthostlist);
    hold(hosts.empty() || hosts_of(rig, "/exported.txt") == hosts, "an export gives the same list");
    hold(!rig.program.ended, "the console goes on");
    return 0;
}

}  // namespace tessarine::fuzz
