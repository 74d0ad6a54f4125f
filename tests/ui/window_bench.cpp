#include "ui/window_bench.h"

#include <QTableView>
#include <QTest>
#include <memory>

#include "chrome/start_up.h"

namespace tessarine::fakes {
namespace {

constexpr int kMillisecondsBetween = 10;
constexpr int kTries = 500;

QWidget* open_window(const QString& name) {
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* on_top = popup != nullptr ? popup : QApplication::activeModalWidget();
    return on_top != nullptr && on_top->objectName() == name ? on_top : nullptr;
}

}  // namespace

WindowBench::WindowBench(std::span<const ControlEvent> events)
    : console({.event_source = bench.network,
               .files = bench.files,
               .directory_listing = bench.files,
               .clock = bench.clock,
               .settings_values = bench.settings,
               .tcp_probe = bench.probe,
               .form_windows = windows,
               .dialogs = bench.dialogs,
               .clipboard = bench.clipboard,
               .chart_picture = bench.chart_picture,
               .workbooks = bench.workbooks,
               .shell = bench.shell,
               .program = bench.program}) {
    windows.open(console, events);
}

WindowBench::~WindowBench() {
    EXPECT_EQ(expected_, 0) << "a dialog or menu has not come up";
    windows.close();
}

void WindowBench::start() {
    run_event(console, start_up);
    windows.show_main_window();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&windows.main_window()));
}

void WindowBench::when_open(const char* name, std::function<void(QWidget&)> act) {
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

void WindowBench::add_record(ListControl& list, const std::vector<std::string>& fields, int icon) {
    ListControl::Row row = list.add_row(fields.front(), icon);
    for (std::size_t i = 1; i < fields.size(); ++i) row.add_sub_item(fields[i]);
}

void click_row(QWidget& widget, int row, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
    auto& table = dynamic_cast<QTableView&>(widget);
    const QRect place = table.visualRect(table.model()->index(row, 0));
    QTest::mouseClick(table.viewport(), button, keys, place.center());
}

}  // namespace tessarine::fakes
