// A directory that runs as long as a test wants it to.
#pragma once

#include <string>
#include <vector>

#include "sample_network/directory_files.h"
#include "sample_network/scratch_file.h"

namespace tessarine {

/// slapd on loopback, for the domain example.net. Tests are to be skipped where
/// `sample::has_directory_program` is false.
class RunningDirectory {
  public:
    explicit RunningDirectory(const std::vector<sample::DirectoryFolder>& content,
                              std::string_view settings = sample::kLimitsOfWindows);
    ~RunningDirectory();
    RunningDirectory(const RunningDirectory&) = delete;
    RunningDirectory& operator=(const RunningDirectory&) = delete;

    /// The path of an object at this server.
    std::string path_of(const std::string& name) const { return "LDAP://" + place_ + "/" + name; }

  private:
    sample::ScratchFolder scratch_;
    std::string place_;  // ADDRESS:PORT
    int process_ = 0;
};

}  // namespace tessarine
