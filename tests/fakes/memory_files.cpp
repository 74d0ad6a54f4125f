#include "fakes/memory_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "core/text.h"

namespace tessarine::fakes {
namespace {

std::string parent_of(const std::string& path) {
    const std::size_t end = path.rfind('/');
    return end == std::string::npos ? "" : path.substr(0, end);
}

[[noreturn]] void file_not_found() {
    throw RuntimeError(ErrorNumber::FileNotFound, "File not found");
}

[[noreturn]] void disk_full() {
    throw RuntimeError(ErrorNumber::DiskFull, "Disk full");
}

[[noreturn]] void path_not_found() {
    throw RuntimeError(ErrorNumber::PathNotFound, "Path not found");
}

}  // namespace

class MemoryFiles::OpenFile final : public File {
  public:
    OpenFile(MemoryFiles& all, std::string path, OpenFor purpose)
        : all_(all), path_(std::move(path)), purpose_(purpose) {
        ++all_.open_files_;
    }
    ~OpenFile() override { end(); }

    std::size_t read(char* buffer, std::size_t size) override {
        check(OpenFor::Reading, FileStep::Read);
        const std::string& bytes = all_.files_.at(path_).bytes;
        const std::size_t count = std::min(size, bytes.size() - std::min(position_, bytes.size()));
        std::copy_n(bytes.data() + position_, count, buffer);
        position_ += count;
        return count;
    }

    // What still fits is written before a full disk is reported.
    void write(std::string_view bytes) override {
        check(OpenFor::Writing, FileStep::Write);
        append(bytes);
    }

    void flush() override { check(OpenFor::Writing, FileStep::Flush); }
    void sync() override { check(OpenFor::Writing, FileStep::Sync); }
    void reserve(std::size_t bytes) override {
        if (bytes > all_.room_.value_or(bytes)) disk_full();
        if (all_.room_) *all_.room_ -= bytes;
        reserved_ = bytes;
    }
    void write_whole(std::string_view bytes) override {
        check(OpenFor::Writing, FileStep::Write);
        const std::string before = all_.files_.at(path_).bytes;
        try {
            append(bytes);
            sync();
        } catch (const RuntimeError&) {
            all_.files_.at(path_).bytes = before;
            throw;
        }
    }

    void close() override {
        if (!open_) return;
        end();
        all_.raise_if_due(FileStep::Close, path_);
    }

  private:
    void check(OpenFor needed, FileStep step) {
        if (!open_ || (needed == OpenFor::Reading) != (purpose_ == OpenFor::Reading))
            throw std::logic_error(path_ + " is used in a way that it isn't open for");
        all_.raise_if_due(step, path_);
    }

    void append(std::string_view bytes) {
        const std::size_t kept = std::min(reserved_, bytes.size());
        std::size_t fits = bytes.size();
        if (all_.room_) {
            fits = std::min(fits, kept + *all_.room_);
            *all_.room_ -= fits - kept;
        }
        reserved_ -= kept;
        all_.files_.at(path_).bytes.append(bytes.substr(0, fits));
        if (fits < bytes.size()) disk_full();
    }

    void end() {
        if (open_) --all_.open_files_;
        open_ = false;
        if (all_.room_) *all_.room_ += std::exchange(reserved_, 0);
    }

    MemoryFiles& all_;
    std::string path_;
    OpenFor purpose_;
    std::size_t position_ = 0;
    std::size_t reserved_ = 0;
    bool open_ = true;
};

class MemoryFiles::Lock final : public FileLock {
  public:
    Lock(MemoryFiles& all, std::string path) : all_(all), path_(std::move(path)) {
        all_.locked_.insert(path_);
    }
    ~Lock() override { all_.locked_.erase(path_); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

  private:
    MemoryFiles& all_;
    std::string path_;
};

bool MemoryFiles::file_exists(const std::string& path) {
    raise_if_due(FileStep::Exists, path);
    return files_.contains(normalised(path));
}

bool MemoryFiles::folder_exists(const std::string& path) {
    raise_if_due(FileStep::Exists, path);
    return folders_.contains(normalised(path));
}

std::string MemoryFiles::present_name(const std::string& folder, const std::string& name) {
    const std::string wanted = normalised(folder + "/" + name);
    raise_if_due(FileStep::Exists, wanted);
    if (files_.contains(wanted) || folders_.contains(wanted)) return name;
    std::string found = name;
    const auto look_at = [&](const std::string& path) {
        if (parent_of(path) == parent_of(wanted) && same_text(path, wanted) && found == name)
            found = path.substr(path.rfind('/') + 1);
    };
    for (const std::string& path : folders_) look_at(path);
    for (const auto& [path, file] : files_) look_at(path);
    return found;
}

void MemoryFiles::create_folder(const std::string& path) {
    raise_if_due(FileStep::CreateFolder, path);
    const std::string folder = normalised(path);
    if (!folders_.contains(parent_of(folder))) path_not_found();
    if (folders_.contains(folder) || files_.contains(folder))
        throw RuntimeError(ErrorNumber::FileAlreadyExists, "File already exists");
    folders_.insert(folder);
}

std::unique_ptr<File> MemoryFiles::open(const std::string& path, OpenFor purpose) {
    raise_if_due(FileStep::Open, path);
    const std::string file = normalised(path);
    if (purpose == OpenFor::Reading)
        existing(file);
    else {
        std::string& bytes = opened_for_writing(file, purpose).bytes;
        if (!bytes.empty() && bytes.back() != '\n') bytes += bytes.back() == '\r' ? "\n" : "\r\n";
    }
    return std::make_unique<OpenFile>(*this, file, purpose);
}

std::unique_ptr<File> MemoryFiles::create(const std::string& path) {
    raise_if_due(FileStep::Open, path);
    const std::string file = normalised(path);
    if (files_.contains(file) || folders_.contains(file)) return nullptr;
    opened_for_writing(file, OpenFor::Writing);
    return std::make_unique<OpenFile>(*this, file, OpenFor::Writing);
}

void MemoryFiles::replace(const std::string& path, std::string_view bytes) {
    raise_if_due(FileStep::Replace, path);
    const std::string file = normalised(path);
    if (!folders_.contains(parent_of(file))) path_not_found();
    if (bytes.size() > room_.value_or(bytes.size())) disk_full();
    if (room_) *room_ -= bytes.size();
    std::string copied(bytes);
    opened_for_writing(file, OpenFor::Writing).bytes = std::move(copied);
}

std::unique_ptr<FileLock> MemoryFiles::lock(const std::string& path, std::chrono::milliseconds) {
    raise_if_due(FileStep::Lock, path);
    const std::string locked = normalised(path);
    if (!files_.contains(locked) && !folders_.contains(locked)) file_not_found();
    if (locked_.contains(locked)) return nullptr;
    return std::make_unique<Lock>(*this, locked);
}

void MemoryFiles::demand_own_folder(const std::string& path) {
    if (!folders_.contains(normalised(path))) path_not_found();
    if (open_to_others_.contains(normalised(path)))
        throw RuntimeError(ErrorNumber::PermissionDenied, "Permission denied");
}

void MemoryFiles::copy(const std::string& from, const std::string& to) {
    raise_if_due(FileStep::Copy, from);
    std::string bytes = existing(normalised(from)).bytes;
    opened_for_writing(normalised(to), OpenFor::Writing).bytes = std::move(bytes);
}

void MemoryFiles::remove(const std::string& path) {
    raise_if_due(FileStep::Remove, path);
    existing(normalised(path));
    files_.erase(normalised(path));
}

std::vector<DirectoryListing::Entry> MemoryFiles::files_ending_in(const std::string& folder,
                                                                  const std::string& ending) {
    raise_if_due(FileStep::List, folder);
    const std::string listed = normalised(folder);
    if (!folders_.contains(listed)) path_not_found();
    std::map<int, Entry> by_age;
    for (const auto& [path, file] : files_) {
        const std::string tail = path.substr(path.size() - std::min(path.size(), ending.size()));
        if (parent_of(path) == listed && same_text(tail, ending))
            by_age.insert({file.age, {path.substr(listed.size() + 1), file.bytes.size()}});
    }
    std::vector<Entry> entries;
    for (const auto& [age, entry] : by_age) entries.push_back(entry);
    return entries;
}

void MemoryFiles::put(const std::string& path, const std::string& bytes) {
    const std::string file = normalised(path);
    make_folders(parent_of(file));
    opened_for_writing(file, OpenFor::Writing).bytes = bytes;
}

void MemoryFiles::make_folders(const std::string& path) {
    for (std::string folder = normalised(path); folders_.insert(folder).second;)
        folder = parent_of(folder);
}

void MemoryFiles::fail_next(FileStep step, const std::string& path, const std::string& words,
                            ErrorNumber number) {
    faults_.push_back({step, normalised(path), RuntimeError(number, words)});
}

std::string MemoryFiles::bytes(const std::string& path) const {
    const auto found = files_.find(normalised(path));
    if (found != files_.end()) return found->second.bytes;
    ADD_FAILURE() << "there is no file " << path << "; there are:\n" << names();
    return {};
}

std::string MemoryFiles::names() const {
    std::string lines;
    for (const auto& [path, file] : files_) lines += path + "\n";
    return lines;
}

std::string MemoryFiles::normalised(const std::string& path) {
    std::string result;
    for (const char character : path) {
        const char plain = character == '\\' ? '/' : character;
        if (plain != '/' || result.empty() || result.back() != '/') result += plain;
    }
    if (!result.empty() && result.back() == '/') result.pop_back();
    return result;
}

MemoryFiles::StoredFile& MemoryFiles::existing(const std::string& path) {
    const auto found = files_.find(path);
    if (found == files_.end()) file_not_found();
    return found->second;
}

MemoryFiles::StoredFile& MemoryFiles::opened_for_writing(const std::string& path, OpenFor purpose) {
    if (!folders_.contains(parent_of(path))) path_not_found();
    const auto found = files_.find(path);
    if (folders_.contains(path) || (found != files_.end() && found->second.read_only))
        throw RuntimeError(ErrorNumber::PermissionDenied, "Permission denied");
    const auto [place, made] = files_.try_emplace(path);
    if (made) place->second.age = ++created_;
    if (purpose == OpenFor::Writing) place->second.bytes.clear();
    return place->second;
}

void MemoryFiles::raise_if_due(FileStep step, const std::string& path) {
    const bool already = calls_until_failure_ < 0 && failing_ == Failing::FromThenOn;
    const bool now = calls_until_failure_ > 0 && --calls_until_failure_ == 0;
    if (now) calls_until_failure_ = -1;
    if (already || now) throw RuntimeError(ErrorNumber::InputOutput, "Device I/O error");
    const auto due = std::find_if(faults_.begin(), faults_.end(), [&](const Fault& fault) {
        return fault.step == step && (fault.path.empty() || fault.path == normalised(path));
    });
    if (due == faults_.end()) return;
    const RuntimeError error = due->error;
    faults_.erase(due);
    throw error;
}

}  // namespace tessarine::fakes
