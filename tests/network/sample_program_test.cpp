// The program as its users start it: what its command sees, and what stays behind.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "sample_network/options.h"
#include "sample_network/scratch_file.h"

namespace tessarine::sample {
namespace {

struct Outcome {
    int status;
    std::string output;
};

// Runs a line of the shell, with the program as $NETWORK and an own folder for temporary files.
class SampleProgram : public testing::TestWithParam<const char*> {
  protected:
    Outcome run(const std::string& line) const {
        const std::string command = "export TMPDIR='" + scratch_.path().string() +
                                    "'; NETWORK='" TESSARINE_BIN_DIR
                                    "/tessarine-sample-network --quiet --network " +
                                    GetParam() + "'; " + line;
        FILE* pipe = popen(("bash -c \"" + command + "\" 2>&1").c_str(), "r");
        std::string output;
        for (int c = 0; (c = std::fgetc(pipe)) != EOF;) output += static_cast<char>(c);
        const int status = pclose(pipe);
        return {WEXITSTATUS(status), output};
    }

    void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
        if (GetParam() == std::string("wrapped"))
            GTEST_SKIP() << "the sanitizer must be the first library of a program";
#endif
        const Outcome outcome = run("\\$NETWORK -- true");
        if (outcome.status != 0) GTEST_SKIP() << "refused by the system: " << outcome.output;
    }

    void TearDown() override {
        EXPECT_TRUE(std::filesystem::is_empty(scratch_.path()));
    }

    ScratchFolder scratch_;
};

TEST_P(SampleProgram, GivesItsCommandTheNetworkAndNothingElse) {
    const Outcome outcome = run(R"(id -u; \$NETWORK -- bash -c '
        id -u; echo \${NTLM_USER_FILE-none}; getent hosts BERLIN01 | cut -c 1-10;
        for place in {FILESRV01,PRINTSRV01,GATEWAY01}/{135,5985,5986}; do
            (: < /dev/tcp/\$place) 2> /dev/null && echo \$place
        done; exit 7')");
    const std::string user = std::to_string(getuid()) + "\n";
    EXPECT_EQ(outcome.output, user + user +
                                  "none\n127.0.0.12\n"
                                  "FILESRV01/135\nFILESRV01/5985\nPRINTSRV01/135\n"
                                  "GATEWAY01/135\nGATEWAY01/5986\n");
    EXPECT_EQ(outcome.status, 7);
}

TEST_P(SampleProgram, LeavesNoProcessBehind) {
    const std::string ended = R"(; sleep 0.2; kill -0 \$(cat \$TMPDIR/pid) 2> /dev/null || echo gone
                                 rm \$TMPDIR/pid)";
    const std::string lingering = R"('sleep 30 & echo \$! > \$TMPDIR/pid;)";
    EXPECT_EQ(run(R"(\$NETWORK -- bash -c )" + lingering + "'" + ended).output, "gone\n");

    // A signal to the program reaches the command, and what the command has started.
    const Outcome ended_by_signal = run(R"(\$NETWORK -- bash -c )" + lingering +
                                        R"( wait' & sleep 1; kill -TERM \$!; wait \$!
               echo \$?)" + ended);
    EXPECT_EQ(ended_by_signal.output, "143\ngone\n");
}

TEST_P(SampleProgram, RunsUntilASignalWithoutACommand) {
    const Outcome outcome =
        run(R"(\$NETWORK & sleep 1.5; kill -TERM \$! && echo running; wait \$!)");
    EXPECT_EQ(outcome.output, "Running until Ctrl-C\nrunning\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST_P(SampleProgram, TellsThatTheCommandCantBeStarted) {
    const Outcome outcome = run("\\$NETWORK -- /no/such/command");
    EXPECT_EQ(outcome.status, 127);
    EXPECT_THAT(outcome.output, testing::HasSubstr("/no/such/command: No such file"));
}

INSTANTIATE_TEST_SUITE_P(Networks, SampleProgram, testing::Values("private", "wrapped"),
                         [](const auto& network) { return std::string(network.param); });

TEST(SampleOptions, EndAtTheCommand) {
    const Options options = parse_options({"--only", "A,B", "--network", "present", "--network",
                                           "wrapped", "--", "ls", "--", "--help"});
    EXPECT_THAT(options.only, testing::ElementsAre("A", "B"));
    EXPECT_EQ(options.network, NetworkChoice::Present);
    EXPECT_THAT(options.command, testing::ElementsAre("ls", "--", "--help"));
    EXPECT_FALSE(options.help);
}

TEST(SampleOptions, RefuseWhatTheyDontUnderstand) {
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{"--bigger", "7"},
                                               {"ls"},
                                               {"--big"},
                                               {"--big", "-1"},
                                               {"--big", "7x"},
                                               {"--listen-loopback", "65536"},
                                               {"--today", "2026-02-30"},
                                               {"--network", "public"}})
        EXPECT_THROW(parse_options(arguments), UsageError) << arguments.front();
}

}  // namespace
}  // namespace tessarine::sample
