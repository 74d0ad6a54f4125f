#include "adapters/wsman/records/temporary_file.h"

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <limits>
#include <system_error>

#include "core/runtime_error.h"

namespace tessarine {
namespace {

[[noreturn]] void fail(int number, const std::string& folder) {
    if (number == ENOSPC || number == EDQUOT)
        throw RuntimeError(ErrorNumber::DiskFull, "Disk full (temporary file)");
    throw RuntimeError(ErrorNumber::InputOutput,
                       "The temporary file failed: " + std::generic_category().message(number) +
                           (folder.empty() ? "" : " (" + folder + ")"));
}

std::string folder_or_default(const std::string& folder) {
    if (!folder.empty()) return folder;
    const char* variable = std::getenv("TMPDIR");
    return variable != nullptr && *variable != '\0' ? variable : "/tmp";
}

// Not every file system can make a file without a name; there its name is taken away at once.
int open_unnamed(const std::string& folder) {
    const int descriptor = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
    if (descriptor >= 0) return descriptor;
    std::string name = folder + "/tessarine-XXXXXX";
    const int named = mkostemp(name.data(), O_CLOEXEC);
    if (named < 0) fail(errno, folder);
    unlink(name.c_str());
    return named;
}

}  // namespace

TemporaryFile::TemporaryFile(const std::string& folder)
    : descriptor_(open_unnamed(folder_or_default(folder))) {}

TemporaryFile::~TemporaryFile() {
    close(descriptor_);
}

std::uint64_t TemporaryFile::free_space() const {
    struct statvfs disk = {};
    if (fstatvfs(descriptor_, &disk) != 0) return std::numeric_limits<std::uint64_t>::max();
    return std::uint64_t{disk.f_bavail} * disk.f_frsize;
}

void TemporaryFile::append(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor_, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) fail(errno, "");
        bytes.remove_prefix(static_cast<std::size_t>(written));
        size_ += static_cast<std::uint64_t>(written);
    }
}

void TemporaryFile::read(std::uint64_t offset, std::size_t count, std::string& target) const {
    const std::size_t before = target.size();
    target.resize(before + count);
    ssize_t got = -1;
    do {
        got = pread(descriptor_, target.data() + before, count, static_cast<off_t>(offset));
    } while (got < 0 && errno == EINTR);
    if (got < 0) fail(errno, "");
    target.resize(before + static_cast<std::size_t>(got));
}

}  // namespace tessarine
