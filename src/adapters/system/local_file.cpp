#include "adapters/system/local_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "adapters/system/system_error.h"

namespace tessarine {
namespace {

constexpr std::size_t kWriteBuffer = std::size_t{256} << 10;
// A pipe or a device must neither keep the console waiting nor become its terminal.
constexpr int kQuietly = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

int flags_for(OpenFor purpose) {
    switch (purpose) {
        case OpenFor::Reading:
            return O_RDONLY | kQuietly;
        case OpenFor::Writing:
            return O_WRONLY | kQuietly;
        case OpenFor::Appending:
            break;
    }
    return O_RDWR | O_APPEND | kQuietly;
}

// A new file gets its rights by a second call, since the umask may take the owner's away.
int create(const std::string& path, int flags) {
    constexpr mode_t kOwnerAlone = S_IRUSR | S_IWUSR;
    const int created = ::open(path.c_str(), flags | O_CREAT | O_EXCL | O_NOFOLLOW, kOwnerAlone);
    if (created >= 0 && ::fchmod(created, kOwnerAlone) != 0) {
        const int error = errno;
        ::close(created);
        raise_system_error(error);
    }
    return created;
}

int open_or_create(const std::string& path, OpenFor purpose) {
    const int flags = flags_for(purpose);
    const int descriptor = ::open(path.c_str(), flags);
    if (descriptor >= 0 || errno != ENOENT || purpose == OpenFor::Reading) return descriptor;
    const int created = create(path, flags);
    // Somebody else may just have made it.
    return created < 0 && errno == EEXIST ? ::open(path.c_str(), flags) : created;
}

// The size of a plain file; anything else is no file to the console.
off_t size_of_plain_file(int descriptor) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) raise_system_error(errno);
    if (!S_ISREG(status.st_mode)) raise_system_error(S_ISDIR(status.st_mode) ? EISDIR : ENXIO);
    return status.st_size;
}

// What ends the last line of a file that was cut off in its midst.
const char* missing_line_end(int descriptor, off_t size) {
    char last = '\n';
    if (size != 0 && ::pread(descriptor, &last, 1, size - 1) < 0) raise_system_error(errno);
    return last == '\n' ? "" : last == '\r' ? "\n" : "\r\n";
}

}  // namespace

LocalFile::~LocalFile() {
    write_out();
    release();
}

// The system gives some files no size and their bytes without end, which are no files to the
// console: none is read beyond its size, as it is at the time.
std::size_t LocalFile::read(char* buffer, std::size_t size) {
    if (read_ >= size_) size_ = size_of_plain_file(descriptor_);
    if (read_ >= size_) return 0;
    size = std::min(size, static_cast<std::size_t>(size_ - read_));
    for (;;) {
        const ssize_t count = ::read(descriptor_, buffer, size);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) raise_system_error(errno);
        read_ += count;
        return static_cast<std::size_t>(count);
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

void LocalFile::write_whole(std::string_view bytes) {
    flush();
    struct stat before {};
    if (::fstat(descriptor_, &before) != 0) raise_system_error(errno);
    waiting_.append(bytes);
    int error = write_out();
    if (error == 0 && ::fdatasync(descriptor_) != 0) error = errno;
    if (error == 0) return;
    waiting_.clear();
    // What this can't take back stays a cut line, which the next one to append ends.
    [[maybe_unused]] const int taken_back = ::ftruncate(descriptor_, before.st_size);
    raise_system_error(error);
}

void LocalFile::reserve(std::size_t bytes) {
    struct stat status {};
    if (::fstat(descriptor_, &status) != 0) raise_system_error(errno);
    const auto count = static_cast<off_t>(bytes);
    if (::fallocate(descriptor_, FALLOC_FL_KEEP_SIZE, status.st_size, count) == 0) return;
    if (errno == ENOSPC || errno == EDQUOT || errno == EIO) raise_system_error(errno);
}

void LocalFile::sync() {
    flush();
    if (::fdatasync(descriptor_) != 0) raise_system_error(errno);
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
    if (purpose == OpenFor::Appending) file->write(missing_line_end(descriptor, size));
    return file;
}

std::unique_ptr<LocalFile> create_local_file(const std::string& path) {
    const int descriptor = create(path, O_WRONLY | kQuietly);
    if (descriptor >= 0) return std::make_unique<LocalFile>(descriptor);
    if (errno == EEXIST) return nullptr;
    raise_system_error(errno, Wanted::Folder);
}

}  // namespace tessarine
