#include "sample_network/mail_server.h"

namespace tessarine::sample {

bool start_mail_server(const HeldSignals& signals, const std::filesystem::path& folder,
                       const Texts& environment) {
    constexpr const char* kProgram = "/usr/bin/aiosmtpd";
    if (!std::filesystem::exists(kProgram)) return false;
    signals.start({kProgram, "--nosetuid", "--smtputf8", "--listen", "127.0.0.10:2525", "--class",
                   "aiosmtpd.handlers.Mailbox", folder.string()},
                  environment);
    return true;
}

}  // namespace tessarine::sample
