#include "core/settings_store.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <limits>

#include "core/console_state.h"
#include "core/error_regime.h"
#include "core/scramble.h"
#include "core/text.h"
#include "platform/program.h"

namespace tessarine {
namespace {

// What a read takes in at most, the terminating zero included; a longer value reads as absent.
constexpr std::size_t kReadBuffer = 2048;

std::uint32_t little_endian(const std::string& bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = bytes.size(); i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[i]);
    return number;
}

// KEEP(number-values-read-as-three-digits): reading all digits would give "1234" for 1234, and "5"
// for 5.
std::string text_of_number(const std::string& bytes) {
    const std::uint32_t number = little_endian(bytes.substr(0, 4));
    std::string digits = std::to_string(number);
    if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
    return digits.substr(0, 3);
}

std::string text_of_bytes(const std::string& bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const char byte : bytes) {
        text += kDigits[static_cast<unsigned char>(byte) >> 4];
        text += kDigits[static_cast<unsigned char>(byte) & 15];
    }
    return text;
}

// The number that a text begins with; 0 where it begins with none.
int number_of(std::string_view text) {
    int number = 0;
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

bool reads_true(const Console& console, const std::string& name) {
    return ReadValue(console, name) == "true";
}

void load_credentials(Console& console) {
    auto& form = console.Form3;
    form->TxtUsername.text = ReadValue(console, "altuser");
    const SecretText password(Scramble(ReadValue(console, "altpass"), kScrambleKey));
    form->TxtUsername.text = NotFoundToEmpty(form->TxtUsername.text);
    // KEEP(absent-password-reads-scrambled): before the unscrambling, this would empty the field
    // where there is no password.
    form->TxtPassword.text = password.text() == kNotFound ? "" : password.text();
    form->Check1.value = reads_true(console, "usealtcred") ? 1 : 0;
}

void load_mail(Console& console) {
    auto& form = console.Form3;
    form->txtRecipient.text = NotFoundToEmpty(ReadValue(console, "mailto"));
    form->txtSender.text = NotFoundToEmpty(ReadValue(console, "mailfrom"));
    form->txtSmtpServer.text = NotFoundToEmpty(ReadValue(console, "mailsmtp"));
}

void load_schedule_time(Console& console) {
    auto& form = console.Form3;
    const std::string at = ReadValue(console, "autoauditat");
    if (at != kNotFound) {
        const std::size_t colon = at.find(':');
        form->txtHour.text = at.substr(0, colon);
        const std::string minute = colon == std::string::npos ? "" : at.substr(colon + 1);
        form->txtMin.text = minute.substr(0, minute.find(':'));
        form->UpDown1.value = number_of(form->txtHour.text);
        form->UpDown3.value = number_of(form->txtMin.text);
    }
    form->txtretlog.text = NotFoundToEmpty(ReadValue(console, "autoretlogsolderthan"));
    if (!form->txtretlog.text.empty()) form->UpDown2.value = number_of(form->txtretlog.text);
}

void load_folders(Console& console) {
    auto& form = console.Form3;
    const std::string fallback = console.platform.program.application_directory() + "\\";
    form->txtLogPath.text = ReadValue(console, "LogPath");
    form->txtArchivePath.text = ReadValue(console, "ArcPath");
    for (TextBox* path : {&form->txtLogPath, &form->txtArchivePath})
        if (path->text == kNotFound) path->text = fallback;
}

void load_audit_option(Console& console) {
    auto& form = console.Form3;
    const std::string option = ReadValue(console, "AuditOpt");
    if (option == "append") form->choose(form->optAppend);
    if (option == "overwrite") form->choose(form->optOverwrite);
    if (option == "move") form->choose(form->optMove);
}

void load_views(Console& console) {
    MainForm& form = console.Form1;
    const bool grid = reads_true(console, "showgrid");
    for (ListControl* list :
         {&form.SystemList, &form.ApplicationList, &form.SecurityList, &form.ListView1})
        list->grid_lines = grid;
    form.shogrid.checked = grid;
    form.highlightpatt.checked = reads_true(console, "highpat");
    form.hideignore.checked = reads_true(console, "hideignore");
}

}  // namespace

std::string ReadValue(const Console& console, const std::string& name) {
    const auto value = console.platform.settings_values.read(std::string(kSettingsKey), name);
    if (!value || value->data.size() > kReadBuffer) return std::string(kNotFound);
    switch (value->type) {
        case ValueType::Number:
            return text_of_number(value->data);
        case ValueType::Binary:
            return text_of_bytes(value->data);
        case ValueType::Text:
            break;
    }
    return value->data.substr(0, value->data.empty() ? 0 : value->data.size() - 1);
}

void WriteValue(const Console& console, const std::string& name, ValueType type,
                const std::string& data) {
    ignoring_errors([&](const ErrorRegime& errors) {
        StoredValue value{.type = type, .data = data + '\0'};
        if (type == ValueType::Number) {
            const auto number = static_cast<std::uint32_t>(number_of(data));
            value.data.clear();
            for (int shift = 0; shift < 32; shift += 8)
                value.data += static_cast<char>(number >> shift & 0xFF);
        }
        errors.run([&] {
            console.platform.settings_values.write(std::string(kSettingsKey) + "\\", name, value);
        });
    });
}

std::string NotFoundToEmpty(const std::string& text) {
    return text == kNotFound ? std::string() : text;
}

void LoadSettings(Console& console) {
    load_credentials(console);
    load_mail(console);
    load_schedule_time(console);
    console.Form3->Check6.value = reads_true(console, "autosendmail") ? 1 : 0;
    load_folders(console);
    load_audit_option(console);
    console.Form3->chkEnableschedule.value = reads_true(console, "enscheaudit") ? 1 : 0;
    console.Form3->txtHosts.text = NotFoundToEmpty(ReadValue(console, "autohostlist"));
    load_views(console);
}

}  // namespace tessarine
