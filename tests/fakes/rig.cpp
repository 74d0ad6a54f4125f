#include "fakes/rig.h"

#include <algorithm>

#include "fakes/drawn.h"

namespace tessarine::fakes {

StatusHistory::StatusHistory(StatusBar& bar)
    : bar_(bar), shown_(static_cast<std::size_t>(bar.panel_count())) {
    bar_.set_repaint_hook(this);
}

void StatusHistory::status_changed(StatusChange /*change*/) {
    for (int panel = 1; panel <= bar_.panel_count(); ++panel) {
        std::string& shown = shown_[static_cast<std::size_t>(panel - 1)];
        if (shown == bar_.text(panel)) continue;
        shown = bar_.text(panel);
        lines += std::to_string(panel) + ": " + shown + "\n";
    }
}

void WrittenChartPicture::copy_to_clipboard(const Chart& chart) {
    clipboard_.its_picture = drawn(chart);
}

std::string RecordedWorkbooks::write(const std::vector<Sheet>& sheets) {
    if (fails) throw RuntimeError(ErrorNumber::Failed, "No space left on device");
    written = sheets;
    return "/tmp/analysis.xlsx";
}

Rig::Rig(std::span<const ControlEvent> events)
    : windows(timeline, events),
      console({.event_source = network,
               .files = files,
               .directory_listing = files,
               .clock = clock,
               .settings_values = settings,
               .tcp_probe = probe,
               .browse_list = browse,
               .form_windows = windows,
               .dialogs = dialogs,
               .clipboard = clipboard,
               .chart_picture = chart_picture,
               .workbooks = workbooks,
               .mail_sender = mail,
               .directory_service = directory,
               .shell = shell,
               .program = program}) {
    windows.attach(console);
    files.make_folders("/app");
}

void Rig::list_hosts(const std::vector<std::string>& names) {
    ListControl& list = console.Form1.ListView1;
    list.clear();
    for (const std::string& name : names) list.add_row(name, 1).add_sub_item("-");
}

void Rig::select(ListControl& list, const std::vector<int>& rows) {
    for (int row = 1; row <= list.count(); ++row)
        list.row(row).set_selected(std::find(rows.begin(), rows.end(), row) != rows.end());
    if (!rows.empty()) list.set_selected_item(rows.back());
}

}  // namespace tessarine::fakes
