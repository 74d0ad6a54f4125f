#include "sample_network/options.h"

#include <charconv>
#include <limits>

namespace tessarine::sample {

const char* const kHelp =
    R"(Usage: tessarine-sample-network [OPTION]... [-- COMMAND [ARGUMENT]...]

Plays several Windows hosts in a network that only COMMAND sees, and ends with it,
with its exit status. Without COMMAND the hosts run until Ctrl-C. A display that is
reached over TCP, as with ssh -X, is out of COMMAND's reach.

  --shell                  COMMAND is the user's shell
  --today YYYY-MM-DD       the newest records are of that day (default: of just now)
  --big N                  records of the large host (default: 100000)
  --events DIR             play the hosts of the files DIR/hosts/HOST.jsonl instead
  --only NAME,...          only these hosts
  --fault HOST=FAULT[:N]   HOST has that fault; may be given several times
  --faulty                 one host more for each fault, called FAULT-...
  --list-faults            all faults, one a line, with what N is by default
  --desk DIR               prepare DIR as application directory of the console: host
                           list, alert list, and settings with the sample user; what
                           is there already stays. A mail server comes up as well, and
                           puts all mails into DIR/mail/new
  --network private        use a private network, or fail
  --network wrapped        use the wrapper libraries (libsocket-wrapper, libnss-wrapper)
  --tls                    the hosts answer over TLS alone, at port 5986
  --keytab FILE            the hosts also take Kerberos, with the keys in FILE
  --listen-loopback PORT   no private network: open only the management service of each
                           host, at PORT (0: any) of its own address 127.0.0.N; print
                           lines NAME=ADDRESS:PORT; run until standard input ends
  --quiet                  say nothing about hosts and network
  --help                   this text

Exit status: that of COMMAND; 127 when it can't be started; 125 for own failures.
)";

namespace {

// Takes arguments off the front.
class ArgumentReader {
  public:
    explicit ArgumentReader(const std::vector<std::string>& arguments) : arguments_(arguments) {}

    bool at_end() const { return next_ == arguments_.size(); }

    const std::string& take() { return arguments_[next_++]; }

    const std::string& take_value(const std::string& option) {
        if (at_end()) throw UsageError(option + " needs a value");
        return take();
    }

    std::vector<std::string> take_rest() {
        const auto begin = arguments_.begin() + static_cast<std::ptrdiff_t>(next_);
        next_ = arguments_.size();
        return {begin, arguments_.end()};
    }

  private:
    const std::vector<std::string>& arguments_;
    std::size_t next_ = 0;
};

template <typename Number>
Number number_in(const std::string& text, Number largest) {
    Number value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end || value > largest)
        throw UsageError(text + " is no number from 0 to " + std::to_string(largest));
    return value;
}

std::vector<std::string> names_in(const std::string& list) {
    std::vector<std::string> names;
    for (std::size_t begin = 0; begin <= list.size();) {
        const std::size_t end = std::min(list.find(',', begin), list.size());
        names.push_back(list.substr(begin, end - begin));
        begin = end + 1;
    }
    return names;
}

NetworkChoice network_named(const std::string& name) {
    if (name == "private") return NetworkChoice::Private;
    if (name == "wrapped") return NetworkChoice::Wrapped;
    if (name == "present") return NetworkChoice::Present;
    throw UsageError("There is no network \"" + name + "\"");
}

void read_value(Options& options, const std::string& option, const std::string& value) {
    if (option == "--today") {
        options.today = parse_day(value);
        if (!options.today) throw UsageError(value + " is no day YYYY-MM-DD");
    } else if (option == "--big") {
        options.large_count = number_in<std::uint32_t>(value, 100'000'000);
    } else if (option == "--events") {
        options.events = value;
    } else if (option == "--only") {
        options.only = names_in(value);
    } else if (option == "--fault") {
        options.faults.push_back(value);
    } else if (option == "--desk") {
        options.desk = value;
    } else if (option == "--keytab") {
        options.keytab = value;
    } else if (option == "--network") {
        // The call inside the wrapper libraries puts "present" before what the user chose.
        if (options.network != NetworkChoice::Present) options.network = network_named(value);
    } else if (option == "--listen-loopback") {
        options.loopback_port =
            number_in<std::uint16_t>(value, std::numeric_limits<std::uint16_t>::max());
    } else {
        throw UsageError("There is no option " + option);
    }
}

}  // namespace

Options parse_options(const std::vector<std::string>& arguments) {
    Options options;
    ArgumentReader reader(arguments);
    while (!reader.at_end() && options.command.empty()) {
        const std::string& argument = reader.take();
        if (argument == "--help")
            options.help = true;
        else if (argument == "--quiet")
            options.quiet = true;
        else if (argument == "--tls")
            options.tls = true;
        else if (argument == "--shell")
            options.shell = true;
        else if (argument == "--faulty")
            options.faulty = true;
        else if (argument == "--list-faults")
            options.list_faults = true;
        else if (argument == "--")
            options.command = reader.take_rest();
        else
            read_value(options, argument, reader.take_value(argument));
    }
    return options;
}

}  // namespace tessarine::sample
