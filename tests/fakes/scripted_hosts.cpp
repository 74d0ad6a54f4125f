#include "fakes/scripted_hosts.h"

#include "core/runtime_error.h"

namespace tessarine::fakes {
namespace {

void raise_if_any(const std::string& words) {
    if (!words.empty()) throw RuntimeError(ErrorNumber::Failed, words);
}

void keep_level(int level, int highest) {
    if (level > highest) raise_if_any("The level can't be kept");
}

class ScriptedResult final : public EventResult {
  public:
    explicit ScriptedResult(const ScriptedHost& host) : host_(host) {}

    void start_over() override {
        raise_if_any(failure_);
        position_ = 0;
    }

    bool next(EventProperties& event) override {
        raise_if_any(failure_);
        // Views into the record before this one end here, in memory that is given back.
        current_.reset();
        if (position_ == 0) ++pass_;
        if (position_ == host_.records.size()) return false;
        const int record = static_cast<int>(++position_);
        if (host_.before_record) host_.before_record(pass_, record);
        if (pass_ == host_.failing_pass && record == host_.failing_record)
            failure_ = host_.record_error;
        raise_if_any(failure_);
        current_ = std::make_unique<HostEvent>(host_.records[position_ - 1]);
        event = {.LogFile = current_->LogFile,
                 .Type = current_->Type,
                 .TimeGenerated = current_->TimeGenerated,
                 .SourceName = current_->SourceName,
                 .EventCode = current_->EventCode,
                 .ComputerName = current_->ComputerName,
                 .Message = current_->Message,
                 .User = current_->User};
        return true;
    }

  private:
    const ScriptedHost& host_;
    std::unique_ptr<HostEvent> current_;
    std::size_t position_ = 0;
    int pass_ = 0;
    std::string failure_;  // There is no way on after it.
};

class ScriptedService final : public EventService {
  public:
    ScriptedService(ScriptedHosts& source, const ScriptedHost& host)
        : source_(source), host_(host) {}

    void set_authentication_level(int level) override {
        source_.log += "authentication " + std::to_string(level) + "\n";
        raise_if_any(host_.level_error);
        keep_level(level, kAuthenticationPacketPrivacy);
    }
    void set_impersonation_level(int level) override {
        source_.log += "impersonation " + std::to_string(level) + "\n";
        keep_level(level, kImpersonationImpersonate);
    }
    std::unique_ptr<EventResult> exec_query(const std::string& query) override {
        source_.log += "query " + query + "\n";
        source_.query = query;
        raise_if_any(host_.query_error);
        return std::make_unique<ScriptedResult>(host_);
    }

  private:
    ScriptedHosts& source_;
    const ScriptedHost& host_;
};

}  // namespace

std::unique_ptr<EventService> ScriptedHosts::connect_server(
    const std::string& host, const std::string& name_space,
    const std::optional<Credentials>& its_credentials) {
    log += "connect " + host + " " + name_space + "\n";
    credentials = its_credentials;
    ++connects;
    const auto found = hosts.find(host);
    if (found == hosts.end())
        throw RuntimeError(ErrorNumber::Failed, "The host name can't be resolved");
    raise_if_any(found->second.connect_error);
    return std::make_unique<ScriptedService>(*this, found->second);
}

}  // namespace tessarine::fakes
