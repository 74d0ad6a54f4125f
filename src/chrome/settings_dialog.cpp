#include "chrome/settings_dialog.h"

#include <string>
#include <utility>
#include <vector>

#include "core/console_state.h"
#include "core/scramble.h"
#include "core/settings_store.h"
#include "core/text.h"
#include "hosts/host_list_files.h"
#include "platform/dialogs.h"
#include "platform/form_windows.h"
#include "store/log_files.h"

namespace tessarine {
namespace {

using Settings = std::vector<std::pair<const char*, std::string>>;

std::string word_of(const CheckBox& box) {
    return box.value != 0 ? "true" : "false";
}

void save(Console& console, const Settings& settings, const std::string& status) {
    console.mouse_pointer = kPointerHourglass;
    for (const auto& [name, text] : settings) WriteValue(console, name, ValueType::Text, text);
    console.Form3->st1.set_text(1, status);
    console.mouse_pointer = kPointerDefault;
}

// KEEP(clock-reaches-24-and-60): wrapping at 23 and 59 would leave out the values that switch a
// schedule off.
void step_clock(UpDown& arrows, TextBox& field, int last) {
    if (arrows.value > last) arrows.value = 0;
    if (arrows.value < 0) arrows.value = last;
    field.text = padded(arrows.value, 2);
}

}  // namespace

std::string BrowseForFolder(Console& console, const std::string& caption,
                            const std::string& fallback) {
    const std::string folder = console.platform.dialogs.choose_folder(caption);
    return folder.empty() ? fallback : path_in(folder, "");
}

void show_settings(Console& console) {
    console.Form3.get();
    console.platform.form_windows.show_modal(console.Form3.kId);
}

void save_audit_settings(Console& console) {
    const SettingsForm& form = console.Form3.get();
    const char* option = form.optAppend.value ? "append"
                         : form.optMove.value ? "move"
                                              : "overwrite";
    save(console,
         {{"LogPath", form.txtLogPath.text},
          {"ArcPath", form.txtArchivePath.text},
          {"AuditOpt", option}},
         "Audit Settings Saved....");
}

void save_credentials(Console& console) {
    const SettingsForm& form = console.Form3.get();
    save(console,
         {{"altuser", form.TxtUsername.text},
          {"altpass", Scramble(form.TxtPassword.text.text(), kScrambleKey)},
          {"usealtcred", word_of(form.Check1)}},
         "Credential Settings Saved....");
}

void save_mail_settings(Console& console) {
    const SettingsForm& form = console.Form3.get();
    // KEEP(mail-page-saves-only-when-full): a message would tell of a save that is refused.
    for (const TextBox* field : {&form.txtRecipient, &form.txtSender, &form.txtSmtpServer})
        if (field->text.empty()) return;
    save(console,
         {{"mailto", form.txtRecipient.text},
          {"mailfrom", form.txtSender.text},
          {"mailsmtp", form.txtSmtpServer.text}},
         "Email Settings Saved....");
}

void save_schedule(Console& console) {
    const SettingsForm& form = console.Form3.get();
    save(console,
         {{"autoauditat", form.txtHour.text + ":" + form.txtMin.text},
          {"autoretlogsolderthan", form.txtretlog.text},
          {"autosendmail", word_of(form.Check6)},
          {"autohostlist", form.txtHosts.text},
          {"enscheaudit", word_of(form.chkEnableschedule)}},
         "Schedule Audit Settings Saved....");
    console.Form1.tmrAutoAudit.enabled = form.chkEnableschedule.value == 1;
    if (!console.Form1.tmrAutoAudit.enabled) console.Form1.st1.set_text(5, "");
}

void step_hour(Console& console) {
    step_clock(console.Form3->UpDown1, console.Form3->txtHour, 24);
}

void step_minute(Console& console) {
    step_clock(console.Form3->UpDown3, console.Form3->txtMin, 60);
}

void step_days_back(Console& console) {
    console.Form3->txtretlog.text = std::to_string(console.Form3->UpDown2.value);
}

// KEEP(cancelled-chooser-empties-the-field): leaving the field alone would keep a path that the
// user may take for dropped.
void browse_for_log_path(Console& console) {
    console.Form3->txtLogPath.text =
        BrowseForFolder(console, "Select the Log File Destination", "");
}

void browse_for_archive_path(Console& console) {
    console.Form3->txtArchivePath.text = BrowseForFolder(console, "Select the Archive Path", "");
}

void browse_for_host_file(Console& console) {
    const std::string path =
        BrowseForFile(console, FilePurpose::Open, "c:\\", "Text File (*.txt);*.txt", "");
    console.Form3->txtHosts.text = path;
}

}  // namespace tessarine
