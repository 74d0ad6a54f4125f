#include "app/console_program.h"

#include <QApplication>

#include "adapters/browse/network_browse_list.h"
#include "adapters/curl/smtp_mail_sender.h"
#include "adapters/openldap/ldap_directory_service.h"
#include "adapters/qt/qt_clipboard.h"
#include "adapters/qt/qt_program.h"
#include "adapters/qt/qt_shell.h"
#include "adapters/qt/socket_probe.h"
#include "adapters/system/large_page_memory.h"
#include "adapters/system/local_directory_listing.h"
#include "adapters/system/local_files.h"
#include "adapters/system/private_memory.h"
#include "adapters/system/sqlite_settings.h"
#include "adapters/system/system_clock.h"
#include "adapters/wsman/wsman_event_source.h"
#include "adapters/xlsx/xlsx_workbooks.h"
#include "app/events.h"
#include "chrome/start_up.h"
#include "core/console_state.h"
#include "core/run_event.h"
#include "ui/chart_pictures.h"
#include "ui/form_windows.h"
#include "ui/theme_icons.h"

// The pictures are in a static library, from which nobody else asks for them. Qt wants this outside
// of any namespace.
static void load_pictures() {
    Q_INIT_RESOURCE(icons);
}

namespace tessarine {

struct ConsoleProgram::Parts {
    explicit Parts(FileChooser chooser)
        : dialogs(chooser, program.application_directory(), [this] { windows.refresh(); }) {
        windows.open(console, control_events());
    }
    // The windows know the console, which ends first.
    ~Parts() { windows.close(); }

    QtFormWindows windows;
    QtProgram program;
    QtDialogs dialogs;
    QtClipboard clipboard;
    QtChartPicture chart_picture;
    XlsxWorkbooks workbooks;
    QtShell shell;
    SocketProbe probe;
    NetworkBrowseList browse_list{{.while_waiting = [this] { windows.tick(); }}};
    LocalFiles files;
    LocalDirectoryListing listing;
    SystemClock clock;
    SqliteSettings settings{program.application_directory() + "/settings.db"};
    WsmanEventSource events{{.while_waiting = [this] { windows.tick(); }}};
    SmtpMailSender mail{files, {.while_waiting = [this] { windows.tick(); }}};
    LdapDirectoryService directory{{.while_waiting = [this] { windows.tick(); }}};
    LargePageMemory memory;
    PrivateMemory secret_memory;
    Console console{{.event_source = events,
                     .files = files,
                     .directory_listing = listing,
                     .clock = clock,
                     .settings_values = settings,
                     .tcp_probe = probe,
                     .browse_list = browse_list,
                     .form_windows = windows,
                     .dialogs = dialogs,
                     .clipboard = clipboard,
                     .chart_picture = chart_picture,
                     .workbooks = workbooks,
                     .mail_sender = mail,
                     .directory_service = directory,
                     .shell = shell,
                     .program = program,
                     .table_memory = &memory,
                     .secret_memory = &secret_memory},
                    RegionalText::of_this_machine()};
};

void prepare_application(QApplication& application) {
    // A display name of its own would be added to the captions of all windows.
    QApplication::setApplicationName(QStringLiteral("tessarine"));
    QApplication::setDesktopFileName(QStringLiteral("tessarine"));
    // The console says itself when it ends: a hidden window is no reason.
    QApplication::setQuitOnLastWindowClosed(false);
    choose_icon_theme();
    load_pictures();
    application.setWindowIcon(QIcon(QStringLiteral(":/icons/tessarine.png")));
}

ConsoleProgram::ConsoleProgram(FileChooser chooser) : parts_(std::make_unique<Parts>(chooser)) {}

ConsoleProgram::~ConsoleProgram() = default;

Console& ConsoleProgram::console() {
    return parts_->console;
}

QtFormWindows& ConsoleProgram::windows() {
    return parts_->windows;
}

void ConsoleProgram::start() {
    run_event(parts_->console, start_up);
    parts_->windows.show_main_window();
}

int ConsoleProgram::run() {
    return parts_->program.ended() ? 0 : QApplication::exec();
}

}  // namespace tessarine
