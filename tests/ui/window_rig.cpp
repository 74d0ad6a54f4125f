#include "ui/window_rig.h"

#include <QTableView>
#include <QTest>
#include <algorithm>
#include <memory>

#include "chrome/start_up.h"

namespace tessarine::fakes {
namespace {

constexpr int kMillisecondsBetween = 10;
constexpr int kTries = 500;

QWidget* open_window(const QString& name) {
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [&](const QWidget* window) {
        return window->isVisible() && window->objectName() == name;
    });
    return found == windows.end() ? nullptr : *found;
}

}  // namespace

WindowRig::WindowRig(std::span<const ControlEvent> events)
    : console({.event_source = rig.network,
               .files = rig.files,
               .directory_listing = rig.files,
               .clock = rig.clock,
               .settings_values = rig.settings,
               .tcp_probe = rig.probe,
               .browse_list = rig.browse,
               .form_windows = windows,
               .dialogs = rig.dialogs,
               .clipboard = rig.clipboard,
               .chart_picture = rig.chart_picture,
               .workbooks = rig.workbooks,
               .mail_sender = rig.mail,
               .directory_service = rig.directory,
               .shell = rig.shell,
               .program = rig.program}) {
    windows.open(console, events);
}

WindowRig::~WindowRig() {
    EXPECT_EQ(expected_, 0) << "a dialog or menu has not come up";
    windows.close();
}

void WindowRig::start() {
    run_event(console, start_up);
    windows.show_main_window();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&windows.main_window()));
}

void WindowRig::when_open(const char* name, std::function<void(QWidget&)> act) {
    ++expected_;
    auto* poll = new QTimer(&windows.main_window());
    auto tries = std::make_shared<int>(0);
    QObject::connect(poll, &QTimer::timeout, poll, [this, poll, tries, act, name = QString(name)] {
        QWidget* open = open_window(name);
        if (open == nullptr && ++*tries < kTries) return;
        poll->stop();
        poll->deleteLater();
        if (open == nullptr) return;
        --expected_;
        // Not within the timer's own event: what happens may wait for further ones.
        QTimer::singleShot(0, open, [act, open] { act(*open); });
    });
    poll->start(kMillisecondsBetween);
}

void WindowRig::add_record(ListControl& list, const std::vector<std::string>& fields, int icon) {
    ListControl::Row row = list.add_row(fields.front(), icon);
    for (std::size_t i = 1; i < fields.size(); ++i) row.add_sub_item(fields[i]);
}

void click_row(QWidget& widget, int row, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
    auto& table = dynamic_cast<QTableView&>(widget);
    const QRect place = table.visualRect(table.model()->index(row, 0));
    QTest::mouseClick(table.viewport(), button, keys, place.center());
}

}  // namespace tessarine::fakes
