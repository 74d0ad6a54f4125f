#include "adapters/system/local_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "adapters/system/system_error.h"

namespace tessarine {
namespace {

constexpr std::size_t kWriteBuffer = std::size_t{256} << 10;

int flags_for(OpenFor purpose) {
    // A pipe or a device must neither keep the console waiting nor become its terminal.
    constexpr int kAlways = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    switch (purpose) {
        case OpenFor::Reading:
            return O_RDONLY | kAlways;
        case OpenFor::Writing:
            return O_WRONLY | kAlways;
        case OpenFor::Appending:
            break;
    }
    return O_WRONLY | O_APPEND | kAlways;
}

// A new file gets its rights by a second call, since the umask may take the owner's away.
int open_or_create(const std::string& path, OpenFor purpose) {
    constexpr mode_t kOwnerAlone = S_IRUSR | S_IWUSR;
    const int descriptor = ::open(path.c_str(), flags_for(purpose));
    if (descriptor >= 0 || errno != ENOENT || purpose == OpenFor::Reading) return descriptor;
    const int created = ::open(path.c_str(), flags_for(purpose) | O_CREAT, kOwnerAlone);
    if (created >= 0 && ::fchmod(created, kOwnerAlone) != 0) raise_system_error(errno);
    return created;
}

// The size of a plain file; anything else is no file to the console.
off_t size_of_plain_file(int descriptor) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) raise_system_error(errno);
    if (!S_ISREG(status.st_mode)) raise_system_error(S_ISDIR(status.st_mode) ? EISDIR : ENXIO);
    return status.st_size;
}

}  // namespace

LocalFile::~LocalFile() {
    write_out();
    release();
}

std::size_t LocalFile::read(char* buffer, std::size_t size) {
    for (;;) {
        const ssize_t count = ::read(descriptor_, buffer, size);
        if (count >= 0) return static_cast<std::size_t>(count);
        if (errno != EINTR) raise_system_error(errno);
    }
}

void LocalFile::write(std::string_view bytes) {
    if (waiting_.size() + bytes.size() > kWriteBuffer) flush();
    if (waiting_.capacity() == 0) waiting_.reserve(kWriteBuffer);
    waiting_.append(bytes);
}

void LocalFile::flush() {
    if (const int error = write_out(); error != 0) raise_system_error(error);
}

void LocalFile::close() {
    if (descriptor_ < 0) return;
    const int write_error = write_out();
    const int close_error = release();
    if (write_error != 0) raise_system_error(write_error);
    if (close_error != 0) raise_system_error(close_error);
}

// Writes what waits and returns 0, or the number of the error; what isn't written waits on.
int LocalFile::write_out() {
    std::size_t written = 0;
    int error = 0;
    while (written < waiting_.size() && error == 0) {
        const ssize_t count =
            ::write(descriptor_, waiting_.data() + written, waiting_.size() - written);
        if (count >= 0)
            written += static_cast<std::size_t>(count);
        else if (errno != EINTR)
            error = errno;
    }
    waiting_.erase(0, written);
    return error;
}

int LocalFile::release() {
    const int descriptor = std::exchange(descriptor_, -1);
    // An interrupted call has closed the file all the same.
    return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR ? 0 : errno;
}

std::unique_ptr<LocalFile> open_local_file(const std::string& path, OpenFor purpose) {
    const int descriptor = open_or_create(path, purpose);
    if (descriptor < 0)
        raise_system_error(errno, purpose == OpenFor::Reading ? Wanted::File : Wanted::Folder);
    auto file = std::make_unique<LocalFile>(descriptor);
    const off_t size = size_of_plain_file(descriptor);
    // Only now is it known to be a file that may be emptied. One that is empty stays as it is, as a
    // system may wait for the disk when it closes a file that was emptied.
    if (purpose == OpenFor::Writing && size != 0 && ::ftruncate(descriptor, 0) != 0)
        raise_system_error(errno);
    return file;
}

}  // namespace tessarine
