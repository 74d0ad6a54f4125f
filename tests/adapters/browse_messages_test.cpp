// What is taken of the answers to a search for computers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/browse/browse_limits.h"
#include "adapters/browse/discovery_message.h"
#include "adapters/browse/smb_query.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string words_of(const std::optional<BrowsedComputer>& computer) {
    return computer ? computer->name + " of " + computer->group : "none";
}

TEST(BrowsedComputer, IsANameAndAGroup) {
    const std::string longest(browse_limits::kName, 'n');
    const std::pair<std::string, std::string> cases[] = {
        {"PC7/Workgroup:WKG1", "PC7 of WKG1"},
        {"PC7\\Domain:CORP", "PC7 of CORP"},
        {"pc7/workgroup:a b", "pc7 of a b"},
        {"B\xC3\x84R/Domain:CORP", "B\xC4R of CORP"},
        {longest + "/Domain:D", longest + " of D"},
        {longest + "n/Domain:D", "none"},
        {"PC7/Domain:" + longest + "n", "none"},
        {"PC7\\NotJoined", "none"},
        {"PC7/Cluster:A", "none"},
        {"PC7", "none"},
        {"", "none"},
        {":", "none"},
        {"/Workgroup:", "none"},
        {"/Workgroup:WKG1", "none"},
        {"PC7/Workgroup:", "none"},
        {"a:b/Workgroup:WKG1", "none"},
        // What no host has in its name, or the code page not.
        {"../Workgroup:WKG1", "none"},
        {"a\nb/Workgroup:WKG1", "none"},
        {"a\x7F/Workgroup:WKG1", "none"},
        {"a\xE2\x80\xA2\xF0\x9F\x98\x80/Workgroup:WKG1", "none"},
        {"<b>/Workgroup:WKG1", "none"},
        {"PC7/Workgroup:a/b", "none"},
        {"PC7/Workgroup: a", "none"},
    };
    for (const auto& [text, computer] : cases)
        EXPECT_EQ(words_of(browsed_computer(text)), computer) << text.substr(0, 40);
}

TEST(UrlOfADevice, LeadsToTheDeviceItself) {
    const char* const address = "10.0.0.7";
    const std::string far(browse_limits::kAddress, 'x');
    const std::pair<std::string, std::string> cases[] = {
        {"http://10.0.0.7:5357/uuid/", "http://10.0.0.7:5357/uuid/"},
        {"http://10.0.0.7/uuid", "http://10.0.0.7/uuid"},
        {"http://10.0.0.7", "http://10.0.0.7"},
        {"http://[fe80::1]:5357/a \n http://10.0.0.7:80/b", "http://10.0.0.7:80/b"},
        {"http://10.0.0.70:5357/uuid", ""},
        {"http://10.0.0.7.evil.example/", ""},
        {"http://10.0.0.7:80@evil.example/", ""},
        {"http://10.0.0.7@evil.example/", ""},
        {"http://10.0.0.7:", ""},
        {"http://10.0.0.7:123456/", ""},
        {"http://PC7:5357/uuid", ""},
        {"https://10.0.0.7:5358/uuid", ""},
        {"file:///etc/passwd", ""},
        {"http://10.0.0.7/" + far, ""},
        {"http://10.0.0.7/\x01", ""},
        {"", ""},
    };
    for (const auto& [urls, url] : cases)
        EXPECT_EQ(url_at(urls, address).value_or(""), url) << urls.substr(0, 60);
}

constexpr const char* kBegin =
    R"(<e:Envelope xmlns:e="http://www.w3.org/2003/05/soap-envelope")"
    R"( xmlns:a="http://schemas.xmlsoap.org/ws/2004/08/addressing")"
    R"( xmlns:w="http://schemas.xmlsoap.org/ws/2005/04/discovery"><e:Header>)"
    R"(<a:RelatesTo> urn:uuid:1 </a:RelatesTo></e:Header><e:Body>)";

std::string message(const std::string& body) {
    return kBegin + body + "</e:Body></e:Envelope>";
}

std::string one_match(const std::string& endpoint, const std::string& urls) {
    return "<w:ProbeMatch><a:EndpointReference><a:Address>" + endpoint +
           "</a:Address></a:EndpointReference><w:XAddrs>" + urls + "</w:XAddrs></w:ProbeMatch>";
}

TEST(DiscoveryAnswer, HasTheDevicesAndWhereTheyAre) {
    const DiscoveryAnswer answer = read_discovery_answer(message(
        "<w:ProbeMatches>" + one_match("urn:a", "http://10.0.0.7/a") + one_match(" urn:b ", "") +
        one_match("", "http://10.0.0.7/c") +
        one_match(std::string(browse_limits::kAddress + 1, 'x'), "") + "</w:ProbeMatches>"));
    EXPECT_EQ(answer.relates_to, "urn:uuid:1");
    ASSERT_EQ(answer.matches.size(), 2u);
    EXPECT_EQ(answer.matches[0].addresses, "http://10.0.0.7/a");
    EXPECT_EQ(answer.matches[1].endpoint, "urn:b");
    EXPECT_EQ(answer.matches[1].addresses, "");

    std::string many;
    for (int i = 0; i < 100; ++i) many += one_match("urn:" + std::to_string(i), "");
    EXPECT_EQ(read_discovery_answer(message("<w:ProbeMatches>" + many + "</w:ProbeMatches>"))
                  .matches.size(),
              browse_limits::kDevicesOfOneAddress);
    // At another place, or in another namespace, it is none.
    EXPECT_THAT(read_discovery_answer(message(one_match("urn:a", ""))).matches, IsEmpty());
}

TEST(DiscoveryAnswer, ThatCantBeReadIsAnError) {
    const std::string deep = "<a:x>";
    std::string nested;
    for (int i = 0; i < 100; ++i) nested += deep;
    for (const std::string& document :
         {std::string(), std::string("no XML"), std::string("<a"), message("<a:unclosed>"),
          message(nested), message("<a:x>" + std::string(5000, 'x') + "</a:x>"),
          "<!DOCTYPE a [<!ENTITY b \"c\">]>" + message("&b;")})
        EXPECT_THROW(read_discovery_answer(document), RuntimeError) << document.substr(0, 40);
}

TEST(DiscoveryMessages, AreEscapedAndReadable) {
    const std::string get = get_message("urn:uuid:2", "urn:<&>\"");
    EXPECT_THAT(get, HasSubstr("<a:To>urn:&lt;&amp;>\"</a:To>"));
    // As XML of an unknown answer they are read without an error.
    for (const std::string& text :
         {get, probe_message("urn:uuid:2"), resolve_message("urn:uuid:2", "urn:<&>\"")})
        EXPECT_THAT(read_discovery_answer(text).matches, IsEmpty());
}

TEST(SmbAnswer, HasEntriesTheOwnGroupAndAnError) {
    using std::string_literals::operator""s;
    const SmbAnswer answer = read_smb_answer(
        "own\0HOME\0\0\0"
        "entry\0PC7\0a\nb\0"
        "12\0"
        "entry\0a/b\0\0\0"
        "entry\0\0\0\0"
        "later\0X\0\0\0"
        "error\0\0\0"
        "111\0"
        "entry\0cut off"s);
    ASSERT_EQ(answer.entries.size(), 1u);
    EXPECT_EQ(answer.entries[0].name, "PC7");
    EXPECT_EQ(answer.entries[0].comment, "a b");
    EXPECT_EQ(answer.entries[0].type, 12u);
    EXPECT_EQ(answer.own_group, "HOME");
    EXPECT_EQ(answer.error, 111);
    EXPECT_THAT(read_smb_answer("").entries, IsEmpty());
}

}  // namespace
}  // namespace tessarine
