#include "adapters/browse/smb_query.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>

#include "adapters/browse/browse_limits.h"
#include "adapters/browse/browsed_name.h"

namespace tessarine {
namespace {

template <typename Number>
void read_number(const std::string& text, Number& number) {
    std::from_chars(text.data(), text.data() + text.size(), number);
}

void take_record(SmbAnswer& answer, const std::array<std::string, 4>& fields) {
    const auto& [kind, name, comment, number] = fields;
    if (kind == "error") read_number(number, answer.error);
    const auto fit = browsed_name(name);
    if (!fit) return;
    if (kind == "own") answer.own_group = *fit;
    if (kind != "entry") return;
    ServerInfo entry{.name = *fit, .comment = browsed_comment(comment)};
    read_number(number, entry.type);
    answer.entries.push_back(entry);
}

// The program's own words on the way to libsmbclient's are of no use to anybody.
pid_t start(const std::vector<char*>& arguments, int output) {
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = -1;
    const int failure =
        posix_spawn(&process, arguments.front(), &files, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    return failure == 0 ? process : -1;
}

}  // namespace

SmbAnswer read_smb_answer(const std::string& output) {
    SmbAnswer answer;
    std::array<std::string, 4> fields;
    std::size_t field = 0;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = output.find('\0', begin)) != std::string::npos;
         begin = end + 1) {
        fields[field] = output.substr(begin, end - begin);
        if (++field < fields.size()) continue;
        take_record(answer, fields);
        field = 0;
    }
    return answer;
}

SmbQuery::SmbQuery(const std::string& program, const std::vector<std::string>& arguments) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return;
    std::vector<std::string> texts = arguments;
    texts.insert(texts.begin(), program);
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    process_ = start(pointers, ends[1]);
    close(ends[1]);
    output_ = ends[0];
    fcntl(output_, F_SETFL, O_NONBLOCK);
}

SmbQuery::~SmbQuery() {
    close_output();
}

void SmbQuery::step() {
    std::array<char, 4096> block;
    while (!done()) {
        const ssize_t length = read(output_, block.data(), block.size());
        if (length < 0 && (errno == EAGAIN || errno == EINTR)) return;
        if (length <= 0 || text_.size() > browse_limits::kProgramOutput) return close_output();
        text_.append(block.data(), static_cast<std::size_t>(length));
    }
}

// Whatever it is about, as nobody listens any more.
void SmbQuery::close_output() {
    if (done()) return;
    close(output_);
    output_ = -1;
    if (!started()) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

}  // namespace tessarine
