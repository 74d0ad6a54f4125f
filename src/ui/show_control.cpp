#include "ui/show_control.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>

#include "qt/qt_text.h"
#include "ui/chart_view.h"
#include "ui/list_view.h"
#include "ui/pictures.h"
#include "ui/secret_edit.h"
#include "ui/status_bar_view.h"

namespace tessarine {
namespace {

constexpr const char* kShownText = "shown_text";

// A count that Qt's 32-bit bar can show, by permille of the maximum.
int permille(std::int64_t value, std::int64_t maximum) {
    const double share = static_cast<double>(value) / static_cast<double>(maximum);
    return maximum <= 0 ? 0 : static_cast<int>(1000 * share);
}

void show_tab(QTabBar& bar, int index, const Tab& tab) {
    if (bar.tabText(index) != to_qt(tab.caption)) bar.setTabText(index, to_qt(tab.caption));
    if (bar.tabData(index).toInt() == tab.image) return;
    bar.setTabData(index, tab.image);
    bar.setTabIcon(index, tab.image == 0 ? QIcon() : tab_picture(tab.image));
}

// A page's text with a line end after every so many characters without one, after a blank where
// there is any: Qt takes minutes over a paragraph of a megabyte.
QString page_text(const QString& text) {
    constexpr qsizetype kLongestParagraph = 4096;
    QString page;
    for (const QString& whole : text.split(QLatin1String("\r\n"))) {
        QStringView line = whole;
        while (line.size() > kLongestParagraph) {
            const qsizetype blank = line.first(kLongestParagraph).lastIndexOf(QLatin1Char(' '));
            const qsizetype end = blank > 0 ? blank + 1 : kLongestParagraph;
            page.append(line.first(end)).append(QLatin1Char('\n'));
            line = line.sliced(end);
        }
        page.append(line).append(QLatin1Char('\n'));
    }
    page.chop(1);
    return page;
}

}  // namespace

void show_control(const Label& control, QWidget& widget) {
    auto* label = qobject_cast<QLabel*>(&widget);
    if (label != nullptr && label->text() != to_qt(control.caption))
        label->setText(to_qt(control.caption));
}

void show_control(const Image& control, QWidget& widget) {
    constexpr int kSize = 32;
    auto* label = qobject_cast<QLabel*>(&widget);
    if (label != nullptr) label->setPixmap(event_picture(control.picture).pixmap(kSize));
}

void show_control(const TextBox& control, QWidget& widget) {
    const QSignalBlocker no_event(widget);
    const QString text = to_qt(control.text);
    if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
        if (line->text() != text) line->setText(text);
        line->setReadOnly(control.locked);
    }
    if (auto* page = qobject_cast<QPlainTextEdit*>(&widget)) {
        const QString lines = page_text(text);
        // The widget's own text has other line ends and blanks than what it was given.
        if (page->property(kShownText).toString() != lines) {
            page->setPlainText(lines);
            page->setProperty(kShownText, lines);
        }
        page->setReadOnly(control.locked);
    }
}

void show_control(const SecretBox& control, QWidget& widget) {
    if (auto* edit = qobject_cast<SecretEdit*>(&widget))
        edit->show_length(static_cast<int>(control.text.text().size()));
}

void show_control(const ListBox& control, QWidget& widget) {
    auto* list = qobject_cast<QListWidget*>(&widget);
    if (list == nullptr) return;
    QStringList shown;
    for (int line = 0; line < list->count(); ++line) shown += list->item(line)->text();
    QStringList wanted;
    for (const std::string& item : control.items) wanted += to_qt(item);
    if (shown == wanted) return;
    list->clear();
    list->addItems(wanted);
    list->scrollToBottom();
}

void show_control(const ComboBox& control, QWidget& widget) {
    auto* combo = qobject_cast<QComboBox*>(&widget);
    if (combo == nullptr) return;
    const QSignalBlocker no_event(widget);
    for (std::size_t item = static_cast<std::size_t>(combo->count()); item < control.items.size();
         ++item)
        combo->addItem(to_qt(control.items[item]));
    // The first item that comes would become the text.
    if (combo->currentText() != to_qt(control.text)) combo->setEditText(to_qt(control.text));
}

void show_control(const CheckBox& control, QWidget& widget) {
    const QSignalBlocker no_event(widget);
    if (auto* box = qobject_cast<QCheckBox*>(&widget)) box->setChecked(control.value != 0);
}

void show_control(const OptionButton& control, QWidget& widget) {
    const QSignalBlocker no_event(widget);
    auto* button = qobject_cast<QRadioButton*>(&widget);
    // A group keeps one of its buttons on, so the one that is off is not to be written.
    if (button != nullptr && control.value) button->setChecked(true);
}

void show_control(const Chart& control, QWidget& widget) {
    if (auto* view = qobject_cast<ChartView*>(&widget)) view->show_chart(control);
}

void show_control(const CommandButton& control, QWidget& widget) {
    auto* button = qobject_cast<QPushButton*>(&widget);
    // A new text takes a button's shortcut away.
    if (button != nullptr && button->text() != to_qt(control.caption))
        button->setText(to_qt(control.caption));
}

void show_control(const MonthView& control, QWidget& widget) {
    const QSignalBlocker no_event(widget);
    const QDate day(control.value.year, control.value.month, control.value.day);
    auto* calendar = qobject_cast<QCalendarWidget*>(&widget);
    if (calendar != nullptr && calendar->selectedDate() != day) calendar->setSelectedDate(day);
}

void show_control(const TabStrip& control, QWidget& widget) {
    const QSignalBlocker no_event(widget);
    auto* bar = qobject_cast<QTabBar*>(&widget);
    if (bar == nullptr) return;
    while (bar->count() < static_cast<int>(control.tabs.size())) bar->addTab({});
    for (int i = 0; i < bar->count(); ++i) show_tab(*bar, i, control.tab(i + 1));
    bar->setCurrentIndex(control.selected - 1);
}

void show_control(const StatusBar& control, QWidget& widget) {
    auto* bar = qobject_cast<StatusBarView*>(&widget);
    if (bar == nullptr) return;
    for (int panel = 1; panel <= control.panel_count(); ++panel)
        bar->show_panel(panel, to_qt(control.text(panel)));
}

void show_control(const ProgressBar& control, QWidget& widget) {
    auto* bar = qobject_cast<QProgressBar*>(&widget);
    if (bar == nullptr) return;
    bar->setValue(permille(control.value(), control.maximum()));
    if (bar->isVisibleTo(bar->parentWidget()) != control.visible())
        bar->setVisible(control.visible());
}

void show_control(const ListControl&, QWidget& widget) {
    if (auto* view = qobject_cast<ListView*>(&widget)) view->refresh();
}

}  // namespace tessarine
