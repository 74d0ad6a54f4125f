#include "store/log_files.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/runtime_error.h"
#include "fakes/memory_files.h"

namespace tessarine {
namespace {

// Expectations are written with "/" and hold on every platform.
std::string native(std::string path) {
    for (char& character : path)
        if (character == '/') character = std::filesystem::path::preferred_separator;
    return path;
}

TEST(LogFiles, FoldSeparatorsOfPathAndHost) {
    fakes::MemoryFiles files;
    const char* log_paths[] = {"/app", "/app\\", "/app//", "\\app\\\\"};
    const char* hosts[] = {"srv.lab.example", "\\\\srv.lab.example", "\\srv.lab.example"};
    for (const char* log_path : log_paths)
        for (const char* host : hosts)
            EXPECT_EQ(host_log_path(files, log_path, host, EventLog::Application),
                      native("/app/Data/srv.lab.example_application.log"))
                << log_path << " " << host;
    EXPECT_EQ(data_folder(files, ""), native("/Data"));
    EXPECT_EQ(archive_parent_folder(files, "D:\\Logs\\"), native("D:/Logs/Archive"));
}

TEST(LogFiles, NameDaysAndMinutes) {
    fakes::MemoryFiles files;
    const DateTime moment{{2004, 3, 9}, {7, 5, 59}};
    EXPECT_EQ(audit_log_path(files, "/app", moment.date), native("/app/Logs/09-03-2004.log"));
    EXPECT_EQ(archived_log_path(files, "/arc/", "\\\\PC1", moment, EventLog::Security),
              native("/arc/Archive/PC1_09-03-04-07-05/PC1_security.log"));
}

// As in a store that was carried over from Windows.
TEST(LogFiles, AreFoundInAnyCase) {
    fakes::MemoryFiles files;
    files.put("/app/DATA/pc1_System.LOG", "");
    files.make_folders("/app/archive/Pc1_09-03-04-07-05");
    EXPECT_EQ(host_log_path(files, "/app", "PC1", EventLog::System),
              native("/app/DATA/pc1_System.LOG"));
    EXPECT_EQ(host_log_path(files, "/app", "\\\\PC1", EventLog::Security),
              native("/app/DATA/PC1_security.log"));
    EXPECT_EQ(archive_folder(files, "/app", "PC1", {{2004, 3, 9}, {7, 5, 59}}),
              native("/app/archive/Pc1_09-03-04-07-05"));
    files.put("/app/Data/PC1_system.log", "");
    EXPECT_EQ(host_log_path(files, "/app", "PC1", EventLog::System),
              native("/app/Data/PC1_system.log"));
}

TEST(LogFiles, HostsNeverLeadOutOfTheStore) {
    fakes::MemoryFiles files;
    const std::string bad_hosts[] = {
        "..",
        ".",
        "../PC1",
        "..\\PC1",
        "a/b",
        "a\\b",
        "\\\\..\\..\\x",
        "/../../etc/passwd",
        "PC1/",
        "PC1\\",
        "\\\\..",
        std::string("PC1\0x", 5),
        "PC1\r\nPC2",
        "PC1\x7F",
        "\t",
        std::string(201, 'x'),
        "\\\\srv\\share",
    };
    for (const std::string& host : bad_hosts) {
        EXPECT_FALSE(can_name_files(host)) << host;
        for (const EventLog log : kEventLogs)
            EXPECT_THROW(host_log_path(files, "/app", host, log), RuntimeError) << host;
        EXPECT_THROW(archive_folder(files, "/app", host, {}), RuntimeError) << host;
    }
    for (const std::string host : {"...", "..x", "a b", "PC1|2", "10.0.0.1", "fe80::1%eth0"})
        EXPECT_TRUE(can_name_files(host)) << host;
    EXPECT_TRUE(can_name_files("\xDC" + std::string(199, 'x')));
}

TEST(LogFiles, RefusalIsOneLineThatNamesTheHost) {
    fakes::MemoryFiles files;
    try {
        host_log_path(files, "/app", "PC1\r\n../x", EventLog::System);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), ErrorNumber::BadFileName);
        EXPECT_EQ(error.description(), "The host name \"PC1??../x\" can't name a file");
    }
}

}  // namespace
}  // namespace tessarine
