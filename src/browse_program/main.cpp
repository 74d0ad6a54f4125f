// tessarine-browse: asks libsmbclient for the browse list of SMB 1. It is a program of its own
// since the library waits for as long as it likes, and can't be told to stop.
//
// usage: tessarine-browse groups
//        tessarine-browse servers [GROUP]    of this machine's own group where none is given
//
// Writes records of four fields, each with a NUL behind it, texts in UTF-8: what it is ("own" this
// machine's group, "entry", "error"), a name, a comment, a number (of an error: errno).
#include <libsmbclient.h>
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

// Milliseconds for each step of the library's.
constexpr int kTimeout = 3000;
constexpr std::size_t kNameInUrl = 1024;

void write_record(const std::string& kind, const std::string& name, const std::string& comment,
                  const std::string& number) {
    for (const std::string& field : {kind, name, comment, number})
        std::cout << field.c_str() << '\0';
}

// Nobody signs in.
void give_no_user(const char*, const char*, char*, int, char* user, int user_size, char* password,
                  int password_size) {
    if (user_size > 0) user[0] = '\0';
    if (password_size > 0) password[0] = '\0';
}

// The machine's own settings, but that nothing is remembered: who was silent a moment ago may
// answer by now. Returns the name of a file in memory.
std::string settings_file() {
    const std::string text =
        "[global]\ninclude = /etc/samba/smb.conf\n[global]\nname cache timeout = 0\n";
    const int file = memfd_create("settings", 0);
    if (file < 0 || write(file, text.data(), text.size()) < 0) return "/etc/samba/smb.conf";
    return "/proc/self/fd/" + std::to_string(file);
}

SMBCCTX* new_context() {
    SMBCCTX* context = smbc_new_context();
    if (context == nullptr) return nullptr;
    smbc_setDebug(context, 0);
    smbc_setTimeout(context, kTimeout);
    smbc_setFunctionAuthData(context, give_no_user);
    if (smbc_init_context(context) == nullptr) return nullptr;
    smbc_setConfiguration(context, settings_file().c_str());
    // A later protocol has no browse list: the answer would be an empty one.
    smbc_setOptionProtocols(context, "NT1", "NT1");
    smbc_set_context(context);
    return context;
}

std::string url_of(const std::string& group) {
    std::array<char, kNameInUrl> encoded{};
    std::string name = group;
    smbc_urlencode(encoded.data(), name.data(), static_cast<int>(encoded.size()));
    return std::string("smb://") + encoded.data();
}

// Returns errno, or 0.
int list(const std::string& url, unsigned wanted) {
    errno = 0;
    const int folder = smbc_opendir(url.c_str());
    if (folder < 0) return errno;
    while (const smbc_dirent* entry = smbc_readdir(static_cast<unsigned>(folder)))
        if (entry->smbc_type == wanted)
            write_record("entry", entry->name, entry->comment == nullptr ? "" : entry->comment, "");
    return 0;
}

}  // namespace

int main(int count, char** values) {
    const std::string what = count > 1 ? values[1] : "";
    SMBCCTX* context = new_context();
    if (context == nullptr || (what != "groups" && what != "servers")) return EXIT_FAILURE;
    std::string group = count > 2 ? values[2] : "";
    if (what == "servers" && group.empty()) group = smbc_getWorkgroup(context);
    write_record("own", smbc_getWorkgroup(context), "", "");
    const int error =
        what == "groups" ? list("smb://", SMBC_WORKGROUP) : list(url_of(group), SMBC_SERVER);
    write_record("error", "", "", std::to_string(error));
    std::cout << std::flush;
    // The library's own ways to an end can take long, and there is nothing to save.
    _exit(EXIT_SUCCESS);
}
