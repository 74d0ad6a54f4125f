// A list of event codes: what is in its file, what an addition adds, and what a removal leaves.
#include <algorithm>

#include "app/events.h"
#include "core/text.h"
#include "fakes/rig.h"
#include "fuzz/plain_lines.h"
#include "fuzz/promises.h"
#include "patterns/code_lists.h"

namespace tessarine::fuzz {
namespace {

constexpr const char* kPath = "/app/alertpatterns.txt";

Lines entries_of(const fakes::Rig& rig) {
    const ListControl& list = rig.console.Form1.AlertList;
    Lines entries;
    for (int row = 1; row <= list.count(); ++row) entries.emplace_back(list.row(row).text());
    return entries;
}

// What the list has after `routine` for the field's text, which is what its file has as well.
Lines changed_by(void (*routine)(Console&), const std::string& field, fakes::Rig& rig) {
    rig.console.Form1.TxtAlert.text = field;
    rig.run(routine);
    Lines entries = entries_of(rig);
    hold(filled_lines(rig.files.bytes(kPath)) == entries, "the list is what its file has");
    return entries;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view rest = text_of(data + 1, size - 1);
    // A field has one line.
    const Lines words = filled_lines(rest.substr(0, data[0] % 16));
    const std::string field = words.empty() ? "" : words.front();
    const std::string bytes(rest);

    fakes::Rig rig(control_events());
    rig.files.put(kPath, bytes);
    rig.run(LoadAlertPatterns);
    Lines expected = filled_lines(bytes);
    hold(entries_of(rig) == expected, "each line that isn't empty is an entry");
    if (!field.empty()) expected.push_back(field);
    hold(changed_by(add_alert_pattern, field, rig) == expected, "an addition adds its entry");
    std::erase_if(expected, [&](const std::string& each) { return same_text(each, field); });
    hold(changed_by(remove_alert_pattern, field, rig) == expected,
         "a removal takes what is equal, and nothing else");
    hold(!rig.program.ended, "the console goes on");
    return 0;
}

}  // namespace tessarine::fuzz
