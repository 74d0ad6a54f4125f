// Opens the console's own window on a store and measures what a user waits for: until the logs of a
// host are on the screen, and for each page of a walk through them.
#include <QAction>
#include <QApplication>
#include <QTabBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <iostream>
#include <vector>

#include "adapters/system/freed_memory.h"
#include "app/console_program.h"
#include "bench/arguments.h"
#include "bench/loaded_store.h"
#include "core/code_page.h"
#include "core/runtime_error.h"
#include "ui/form_windows.h"

namespace tessarine::bench {
namespace {

constexpr std::size_t kPages = 200;
constexpr int kSecurityTab = 2;  // from 0

template <class Widget>
Widget& find(const QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(name);
    if (found == nullptr) throw UsageError(std::string("there is no ") + name);
    return *found;
}

/// A table of the window, with an eye on when its rows are painted.
class WatchedTable final : public QObject {
  public:
    explicit WatchedTable(QTableView& table) : table_(table) {
        table.viewport()->installEventFilter(this);
    }

    int rows() const { return table_.model()->rowCount(); }
    bool at_end() const { return table_.currentIndex().row() == rows() - 1; }
    void press(Qt::Key key) { QTest::keyClick(&table_, key); }

    /// Does `work` and returns how many seconds later rows have been painted. Raises a UsageError
    /// when there are none.
    template <class Work>
    double seconds_until_painted(Work&& work) {
        painted_ = false;
        return seconds_of([&] {
            work();
            if (rows() == 0) throw UsageError("the host has no security log");
            while (!painted_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        });
    }

  private:
    bool eventFilter(QObject*, QEvent* event) override {
        painted_ = painted_ || (event->type() == QEvent::Paint && rows() > 0);
        return false;
    }

    QTableView& table_;
    bool painted_ = false;
};

void select_host(const QWidget& window, const std::string& host) {
    auto& hosts = find<QTableView>(window, "ListView1");
    const QModelIndex first = hosts.model()->index(0, 0);
    const QModelIndexList found =
        hosts.model()->match(first, Qt::DisplayRole, QString::fromStdString(host), 1);
    if (found.isEmpty()) throw UsageError("the store has no logs of " + host);
    hosts.scrollTo(found.front());
    QTest::mouseClick(hosts.viewport(), Qt::LeftButton, {},
                      hosts.visualRect(found.front()).center());
}

void show_security_log(const QWidget& window) {
    auto& tabs = find<QTabBar>(window, "TabStrip2");
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(kSecurityTab).center());
}

// Seconds for each page, in ascending order.
std::vector<double> walk_through(WatchedTable& table) {
    std::vector<double> pages;
    table.press(Qt::Key_Home);
    while (pages.size() < kPages && !table.at_end())
        pages.push_back(table.seconds_until_painted([&] { table.press(Qt::Key_PageDown); }));
    std::sort(pages.begin(), pages.end());
    return pages;
}

void run(const Arguments& arguments) {
    ConsoleProgram program(FileChooser::OfQt);
    const QWidget& window = program.windows().main_window();
    program.start();
    choose_store(program.console(), arguments);
    find<QAction>(window, "loadpreaudited").trigger();
    select_host(window, arguments.plain()[1]);
    show_security_log(window);
    QCoreApplication::processEvents();
    WatchedTable table(find<QTableView>(window, "SecurityList"));
    const double seconds =
        table.seconds_until_painted([&] { find<QAction>(window, "vieweventlogs").trigger(); });
    const std::vector<double> pages = walk_through(table);
    std::cout << "{\"seconds\": " << seconds << ", \"rows\": " << table.rows()
              << ", \"pages\": " << pages.size();
    if (!pages.empty())
        std::cout << ", \"page_median\": " << pages[pages.size() / 2]
                  << ", \"page_worst\": " << pages.back();
    std::cout << ", \"screen\": \"" << QGuiApplication::platformName().toStdString() << "\"}\n";
}

}  // namespace
}  // namespace tessarine::bench

int main(int count, char** words) {
    namespace bench = tessarine::bench;
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The settings of whoever measures stay as they are.
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    tessarine::keep_freed_memory();
    QApplication application(count, words);
    tessarine::prepare_application(application);
    try {
        const std::span given(words, static_cast<std::size_t>(count));
        bench::run(bench::Arguments(given.subspan(1), {}, 2, 2));
        return 0;
    } catch (const tessarine::RuntimeError& error) {
        std::cerr << "tessarine-bench-window: " << tessarine::to_utf8(error.description()) << "\n";
        return 1;
    } catch (const bench::UsageError& error) {
        std::cerr << "tessarine-bench-window: " << error.what()
                  << "\nusage: tessarine-bench-window STORE HOST\n";
        return 2;
    }
}
