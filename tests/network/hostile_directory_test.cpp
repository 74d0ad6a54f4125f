// The directory service against servers that lie, break off, flood and fall silent: what came
// before stays, and the rest is told in words.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <functional>

#include "adapters/openldap/ldap_directory_service.h"
#include "adapters/openldap/limits.h"
#include "core/runtime_error.h"
#include "sample_network/wire/connection_server.h"

namespace tessarine {
namespace {

using sample::Connection;
using std::chrono::seconds;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kPages = "1.2.840.113556.1.4.319";

// An element of BER (X.690): tag, length, content.
std::string ber(int tag, const std::string& content) {
    const std::size_t size = content.size();
    std::string head{static_cast<char>(tag), static_cast<char>(0x83)};
    for (const int shift : {16, 8, 0}) head += static_cast<char>(size >> shift & 0xFF);
    return head + content;
}

std::string octets(const std::string& text) {
    return ber(0x04, text);
}

std::string message(int id, const std::string& operation, const std::string& controls = "") {
    return ber(0x30, ber(0x02, {static_cast<char>(id)}) + operation + controls);
}

// A child with these properties, each of one value.
std::string child(int id, const std::vector<std::pair<std::string, std::string>>& properties) {
    std::string all;
    for (const auto& [name, value] : properties)
        all += ber(0x30, octets(name) + ber(0x31, octets(value)));
    return message(id, ber(0x64, octets("CN=x") + ber(0x30, all)));
}

std::string reference(int id) {
    return message(id, ber(0x73, octets("ldap://127.0.0.1:1/DC=other")));
}

// The end of a page; another follows where there is a cookie.
std::string page_end(int id, const std::string& cookie, int code = 0,
                     const std::string& words = "") {
    const std::string page = octets(ber(0x30, ber(0x02, {0}) + octets(cookie)));
    return message(id, ber(0x65, ber(0x0A, {static_cast<char>(code)}) + octets("") + octets(words)),
                   ber(0xA0, ber(0x30, octets(kPages) + page)));
}

struct Outcome {
    std::vector<std::string> children;  // "CN|OU"
    std::string words;
};

class HostileDirectory : public testing::Test {
  protected:
    /// Answers the request of that number, from 1, of a connection. False ends the connection.
    using Script = std::function<bool(Connection&, int request, int id)>;

    void SetUp() override { setenv("KRB5CCNAME", "FILE:/nonexistent", 1); }

    Outcome walk(const Script& script) {
        sample::ConnectionServer server("127.0.0.1", 0, [&](Connection& connection) {
            std::array<char, 4096> request;
            // A request of ours begins with 30, its length, 02 01 and its number.
            for (int number = 1; connection.read_some(request, seconds(20)) > 8; ++number) {
                const auto length = static_cast<unsigned char>(request[1]);
                const std::size_t id = length < 0x80 ? 4 : 4 + (length & 0x7F);
                if (!script(connection, number, request[id])) return;
            }
        });
        Outcome outcome;
        try {
            LdapDirectoryService service(options);
            const auto object =
                service.bind("LDAP://127.0.0.1:" + std::to_string(server.port()) + "/DC=x");
            for (DirectoryChild each; object->next(each);)
                outcome.children.push_back(each.CN + "|" + each.OU);
        } catch (const RuntimeError& error) {
            outcome.words = error.description();
        }
        return outcome;
    }

    // A server that answers everything with the same bytes.
    Outcome walk_over(const std::function<std::string(int id)>& answer) {
        return walk([&](Connection& connection, int, int id) {
            connection.write(answer(id));
            return true;
        });
    }

    LdapOptions options;
};

TEST_F(HostileDirectory, KeepsWhatCameBeforeTheConnectionIsCut) {
    const Outcome outcome = walk([](Connection& connection, int request, int id) {
        connection.write(child(id, {{"cn", "pc" + std::to_string(request)}}));
        if (request == 3) return false;
        connection.write(page_end(id, "more"));
        return true;
    });
    EXPECT_THAT(outcome.children, ElementsAre("pc1|", "pc2|", "pc3|"));
    EXPECT_THAT(outcome.words, HasSubstr("broke off the connection"));
}

TEST_F(HostileDirectory, NamesAreMadePlainAndBounded) {
    const std::string long_name(300, 'n');
    const Outcome outcome = walk_over([&](int id) {
        return child(id, {{"CN", long_name}, {"ou", "<b>&amp;</b>"}}) +
               child(id, {{"cn", "a\nCNF:\x01\x7F"}, {"cn", "second"}}) + reference(id) +
               child(id, {{"cn", ""}, {"ou", ""}}) + child(id, {}) +
               child(id, {{"cn", std::string(1001, 'n')}, {"ou", "kept"}}) +
               child(id, {{"cn", "b\xC3\xBCro\xFF\xE2\x82\xAC\xE4\xB8\xAD"}}) +
               child(id, {{"cn", std::string("a\0b", 3)}, {"description", "unasked"}}) +
               page_end(id, "");
    });
    EXPECT_THAT(outcome.children, ElementsAre(long_name + "|<b>&amp;</b>", "a?CNF:??|", "|", "|",
                                              "|kept", "b\xFCro?\x80?|", "a?b|"));
    EXPECT_EQ(outcome.words, "");
}

TEST_F(HostileDirectory, WhatHasNoEndIsGivenUp) {
    const auto flood = [](const std::function<std::string(int id)>& piece) {
        return [piece](Connection& connection, int, int id) {
            std::string many;
            for (int i = 0; i < 100; ++i) many += piece(id);
            while (true) connection.write(many);
            return true;
        };
    };
    EXPECT_THAT(walk(flood(reference)).words, HasSubstr("refers to other servers without end"));
    EXPECT_THAT(walk_over([](int id) { return page_end(id, "again"); }).words,
                HasSubstr("sends pages without end"));
    const Outcome children = walk(flood([](int id) { return child(id, {{"cn", "pc"}}); }));
    EXPECT_EQ(children.children.size(), directory_limits::kChildren);
    EXPECT_EQ(children.words, "The directory has more than 100000 objects there");
}

TEST_F(HostileDirectory, WhatIsNoLdapIsToldAndNoMessageIsEnormous) {
    const std::string announced = "\x30\x84\x7F\xFF\xFF\xF0" + std::string(3'000'000, '\x02');
    options.silence = seconds(2);
    for (const std::string& answer : {std::string("HTTP/1.1 400 Bad Request\r\n\r\n"), announced,
                                      std::string(100, '\0'), std::string(100, '\xFF')}) {
        const Outcome outcome = walk_over([&](int) { return answer; });
        EXPECT_THAT(outcome.words, testing::StartsWith("127.0.0.1:")) << answer.substr(0, 20);
        EXPECT_THAT(outcome.children, ElementsAre());
    }
    const Outcome large = walk_over([](int id) {
        return child(id, {{"cn", "pc"}, {"ou", std::string(2'000'000, 'x')}}) + page_end(id, "");
    });
    EXPECT_THAT(large.children, ElementsAre());
    EXPECT_THAT(large.words, testing::StartsWith("127.0.0.1:"));
}

TEST_F(HostileDirectory, ASilentServerIsNotWaitedForLong) {
    options.silence = seconds(1);
    int calls = 0;
    options.while_waiting = [&calls] { ++calls; };
    for (const std::string& begin :
         {std::string(), std::string("\x30"), child(2, {}).substr(0, 9)}) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_THAT(walk_over([&](int) { return begin; }).words,
                    HasSubstr("has been silent for 1 seconds"));
        EXPECT_LT(std::chrono::steady_clock::now() - start, seconds(3));
    }
    EXPECT_GT(calls, 3 * 5);
    options.while_waiting = [] { throw RuntimeError(ErrorNumber::Failed, "enough"); };
    EXPECT_EQ(walk_over([](int) { return ""; }).words, "enough");
}

TEST_F(HostileDirectory, RefusalsAreToldInWords) {
    const std::string kinit = "the running user has no Kerberos ticket: run kinit";
    const std::vector<std::pair<int, std::string>> cases = {
        {1, "The directory wants a sign-in, and " + kinit + " (Operations error: a?b)"},
        {4, "its size limit is reached"},
        {8, kinit},
        {10, "to another server: check the domain"},
        {32, "whether it is a container or an organizational unit"},
        {34, "The directory refused: Invalid DN syntax: a?b"},
        {50, kinit},
    };
    for (const auto& [code, words] : cases)
        EXPECT_THAT(
            walk_over([code = code](int id) { return page_end(id, "", code, "a\nb"); }).words,
            HasSubstr(words));
    const Outcome wordy =
        walk_over([](int id) { return page_end(id, "", 80, std::string(9000, 'w')); });
    EXPECT_LT(wordy.words.size(), 400U);
}

TEST(DirectoryPaths, WithoutADomainAreRefusedBeforeAnybodyIsAsked) {
    LdapDirectoryService service({});
    const auto words_for = [&](const std::string& path) {
        try {
            service.bind(path);
        } catch (const RuntimeError& error) {
            return error.description();
        }
        return std::string();
    };
    EXPECT_THAT(words_for("LDAP:// DC=, DC="), HasSubstr("type its name into the two fields"));
    EXPECT_THAT(words_for("LDAP://CN=Smith, John, DC=example, DC=net"), HasSubstr("backslash"));
    EXPECT_THAT(words_for("LDAP:// DC=a b, DC=net"), HasSubstr("is no domain"));
    EXPECT_THAT(words_for("LDAP://"), HasSubstr("is no domain"));
    EXPECT_THAT(words_for("WinNT://EXAMPLE"), HasSubstr("no path of a directory"));
    EXPECT_THAT(words_for("LDAP://127.0.0.1:1/DC=x"), HasSubstr("No directory server answers"));
}

}  // namespace
}  // namespace tessarine
