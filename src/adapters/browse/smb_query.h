// One question to the browse list of SMB 1, asked by the program tessarine-browse.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "platform/browse_list.h"

namespace tessarine {

/// What a run of the program has told.
struct SmbAnswer {
    std::vector<ServerInfo> entries;
    std::string own_group;  ///< this machine's own
    int error = 0;          ///< of the system (errno); 0 also where it gave none
};

/// Reads what the program writes: fields with a NUL after each, four a record. Records that can't
/// be read, and names that no host can have, are left out.
SmbAnswer read_smb_answer(const std::string& output);

/// The program runs from the beginning of the object, and no longer than it.
class SmbQuery {
  public:
    /// `arguments` are "groups", or "servers" and a group or nothing.
    SmbQuery(const std::string& program, const std::vector<std::string>& arguments);
    ~SmbQuery();
    SmbQuery(const SmbQuery&) = delete;
    SmbQuery& operator=(const SmbQuery&) = delete;

    /// To be polled for reading; below 0 when the program has ended.
    int output() const { return output_; }
    bool started() const { return process_ > 0; }
    bool done() const { return output_ < 0; }
    /// Takes what the program has written.
    void step();

    SmbAnswer answer() const { return read_smb_answer(text_); }

  private:
    void close_output();

    pid_t process_ = -1;
    int output_ = -1;
    std::string text_;
};

}  // namespace tessarine
