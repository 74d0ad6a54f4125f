// Files and folders in memory, with faults on request.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/runtime_error.h"
#include "platform/directory_listing.h"
#include "platform/files.h"

namespace tessarine::fakes {

/// Exists is any question about a name; Replace is asked for its target, Copy for its source.
enum class FileStep {
    Exists,
    Open,
    Read,
    Write,
    Flush,
    Sync,
    Close,
    CreateFolder,
    Replace,
    Copy,
    Lock,
    Remove,
    List
};

enum class Failing { Once, FromThenOn };

/// "\" and "/" both separate, a run of them separates once; names differ by case. A new file is
/// listed after the older ones of its folder.
class MemoryFiles final : public Files, public DirectoryListing {
  public:
    bool file_exists(const std::string& path) override;
    bool folder_exists(const std::string& path) override;
    std::string present_name(const std::string& folder, const std::string& name) override;
    void create_folder(const std::string& path) override;
    std::unique_ptr<File> open(const std::string& path, OpenFor purpose) override;
    std::unique_ptr<File> create(const std::string& path) override;
    void replace(const std::string& path, std::string_view bytes) override;
    void copy(const std::string& from, const std::string& to) override;
    std::unique_ptr<FileLock> lock(const std::string& path,
                                   std::chrono::milliseconds patience) override;
    void demand_own_folder(const std::string& path) override;
    void remove(const std::string& path) override;
    std::vector<Entry> files_ending_in(const std::string& folder,
                                       const std::string& ending) override;

    // What a test prepares.

    /// Puts a file there, with its folders.
    void put(const std::string& path, const std::string& bytes);
    void make_folders(const std::string& path);
    /// Makes a folder one that others may write to.
    void open_to_others(const std::string& path) { open_to_others_.insert(normalised(path)); }
    void set_read_only(const std::string& path) { files_.at(normalised(path)).read_only = true; }
    /// The next `step` on `path` raises an error with these words; an empty path stands for any.
    void fail_next(FileStep step, const std::string& path, const std::string& words,
                   ErrorNumber number = ErrorNumber::Failed);
    /// Of all calls from now on the one of that number, counted from 1, raises an error, and also
    /// all later ones where they are to; none does for 0.
    void fail_call(int number, Failing failing) {
        calls_until_failure_ = number;
        failing_ = failing;
    }
    /// The disk takes so many bytes more, over all files.
    void leave_room_for(std::size_t bytes) { room_ = bytes; }

    // What a test looks at.

    /// The bytes of a file; a file that is missing fails the test.
    std::string bytes(const std::string& path) const;
    /// All files, sorted, one path a line.
    std::string names() const;
    int open_files() const { return open_files_; }
    int held_locks() const { return static_cast<int>(locked_.size()); }
    /// Whether the call that was to fail has come.
    bool has_failed() const { return calls_until_failure_ < 0; }

  private:
    class OpenFile;
    class Lock;
    struct StoredFile {
        std::string bytes;
        bool read_only = false;
        int age = 0;  // number of the creation
    };
    struct Fault {
        FileStep step;
        std::string path;
        RuntimeError error;
    };

    static std::string normalised(const std::string& path);
    StoredFile& existing(const std::string& path);
    StoredFile& opened_for_writing(const std::string& path, OpenFor purpose);
    void raise_if_due(FileStep step, const std::string& path);

    std::map<std::string, StoredFile> files_;
    std::set<std::string> folders_ = {""};
    std::set<std::string> open_to_others_;
    std::set<std::string> locked_;
    std::deque<Fault> faults_;
    int calls_until_failure_ = 0;
    Failing failing_ = Failing::Once;
    std::optional<std::size_t> room_;
    int created_ = 0;
    int open_files_ = 0;
};

}  // namespace tessarine::fakes
