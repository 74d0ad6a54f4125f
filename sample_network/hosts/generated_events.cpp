#include "sample_network/hosts/generated_events.h"

#include <array>
#include <charconv>
#include <iterator>
#include <memory>
#include <string_view>

namespace tessarine::sample {
namespace {

constexpr std::array kLogFiles = {"Application", "Security", "System", "Windows PowerShell"};
constexpr std::array kUsers = {"j.mercer",   "a.lindqvist",   "svc_backup", "k.öztürk",
                               "m.ferreira", "Administrator", "r.okafor",   "auditor"};
constexpr std::array kComputers = {"FILESRV01", "WEBSRV02", "LOGSRV01", "NOTEBOOK23", "DESK-4F7K"};
constexpr std::array kServices = {"Print Spooler", "Windows Update",  "DHCP Client",
                                  "Server",        "Remote Registry", "Volume Shadow Copy",
                                  "Task Scheduler"};
constexpr std::array kPrograms = {"Ledger 7", "Stockroom Client", "Office Printing Kit",
                                  "Backup Agent"};
constexpr std::array kPaths = {"C:\\Windows\\System32\\svchost.exe",
                               "C:\\Program Files\\Ledger\\ledger.exe",
                               "C:\\Windows\\System32\\lsass.exe", "D:\\Tools\\stockroom.exe"};

// SplitMix64: integers only, so every machine makes the same records.
class Numbers {
  public:
    explicit Numbers(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next() {
        std::uint64_t z = state_ += 0x9E3779B97F4A7C15;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
        z = (z ^ z >> 27) * 0x94D049BB133111EB;
        return z ^ z >> 31;
    }

    std::uint64_t below(std::uint64_t limit) { return next() % limit; }

    template <typename Choices>
    const auto& one_of(const Choices& choices) {
        return choices[below(choices.size())];
    }

  private:
    std::uint64_t state_;
};

std::string hexadecimal(std::uint64_t value) {
    char digits[16];
    return {digits, std::to_chars(digits, std::end(digits), value, 16).ptr};
}

std::string address(Numbers& numbers) {
    return "10.20." + std::to_string(numbers.below(16)) + "." +
           std::to_string(1 + numbers.below(254));
}

std::string value_of(std::string_view name, Numbers& numbers) {
    if (name == "number") return std::to_string(1 + numbers.below(60));
    if (name == "big") return std::to_string(1024 + numbers.below(60000));
    if (name == "hex") return hexadecimal(0x1000 + numbers.below(0x7FFFF000));
    if (name == "user") return numbers.one_of(kUsers);
    if (name == "pc") return numbers.one_of(kComputers);
    if (name == "ip") return address(numbers);
    if (name == "service") return numbers.one_of(kServices);
    if (name == "program") return numbers.one_of(kPrograms);
    if (name == "path") return numbers.one_of(kPaths);
    return "\n";  // {lf}
}

std::string filled(std::string_view text, Numbers& numbers) {
    std::string message;
    message.reserve(text.size() + 200);
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find_first_of("{\n"), text.size());
        message += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty()) break;
        const std::size_t end = text.front() == '{' ? text.find('}') : 0;
        message += end == 0 ? "\r\n" : value_of(text.substr(1, end - 1), numbers);
        text.remove_prefix(end + 1);
    }
    return message;
}

std::optional<std::string> account(EventUser user, Language language, Numbers& numbers) {
    if (user == EventUser::None) return std::nullopt;
    if (user == EventUser::Person) return std::string("SAMPLE\\") + numbers.one_of(kUsers);
    return language == Language::German ? "NT-AUTORITÄT\\SYSTEM" : "NT AUTHORITY\\SYSTEM";
}

class GeneratedWalk {
  public:
    explicit GeneratedWalk(std::shared_ptr<const HistoryPlan> plan)
        : plan_(std::move(plan)), numbers_(plan_->seed) {}

    const SampleEvent* next() {
        while (remaining_ == 0) {
            if (next_log_ == plan_->logs.size()) return nullptr;
            begin_log(plan_->logs[next_log_++]);
        }
        make_event();
        --remaining_;
        return &event_;
    }

  private:
    void begin_log(const LogShare& share) {
        remaining_ = share.records;
        time_ = plan_->newest;
        longest_gap_ = 2 * std::chrono::microseconds(plan_->span).count() /
                       std::max<std::int64_t>(1, share.records);
        event_.log_file = kLogFiles[static_cast<std::size_t>(share.log)];
        // Each kind stands in the list as often as its weight says.
        choices_.clear();
        for (const MessageTemplate& one : message_templates(plan_->language))
            if (one.log == share.log)
                choices_.insert(choices_.end(), static_cast<std::size_t>(one.weight), &one);
    }

    void make_event() {
        const MessageTemplate& one = *numbers_.one_of(choices_);
        event_.type = type_word(plan_->language, one.kind);
        event_.source_name = one.source;
        event_.event_code = one.code;
        event_.record_number = remaining_;
        event_.computer_name = plan_->computer_name;
        event_.user = account(one.user, plan_->language, numbers_);
        event_.message.reset();
        if (one.text != nullptr) event_.message = filled(one.text, numbers_);
        event_.time_generated = event_.time_written = time_;
        time_ -=
            std::chrono::microseconds(numbers_.below(static_cast<std::uint64_t>(longest_gap_) + 1));
    }

    std::shared_ptr<const HistoryPlan> plan_;
    Numbers numbers_;
    std::size_t next_log_ = 0;
    std::uint32_t remaining_ = 0;
    Instant time_;
    std::int64_t longest_gap_ = 0;
    std::vector<const MessageTemplate*> choices_;
    SampleEvent event_;
};

}  // namespace

EventHistory generated_history(HistoryPlan plan) {
    auto shared = std::make_shared<const HistoryPlan>(std::move(plan));
    return [shared]() -> EventWalk {
        return [walk = GeneratedWalk(shared)]() mutable { return walk.next(); };
    };
}

}  // namespace tessarine::sample
