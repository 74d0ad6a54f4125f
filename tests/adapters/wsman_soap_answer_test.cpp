#include "adapters/wsman/soap/soap_answer.h"

#include <gtest/gtest.h>

#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/records/event_items.h"
#include "adapters/wsman/records/spooled_events.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

std::string envelope(const std::string& body) {
    return R"(<?xml version="1.0" encoding="UTF-16"?><s:Envelope)"
           R"( xmlns:s="http://www.w3.org/2003/05/soap-envelope")"
           R"( xmlns:a="http://schemas.xmlsoap.org/ws/2004/08/addressing")"
           R"( xmlns:n="http://schemas.xmlsoap.org/ws/2004/09/enumeration")"
           R"( xmlns:w="http://schemas.dmtf.org/wbem/wsman/1/wsman.xsd")"
           R"( xmlns:f="http://schemas.microsoft.com/wbem/wsman/1/wsmanfault")"
           R"( xmlns:p="http://schemas.microsoft.com/wbem/wsman/1/wmi/root/cimv2/Win32_NTLogEvent")"
           R"( xmlns:cim="http://schemas.dmtf.org/wbem/wscim/1/common")"
           R"( xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">)"
           R"(<s:Header><a:RelatesTo> uuid:7 </a:RelatesTo></s:Header><s:Body>)" +
           body + "</s:Body></s:Envelope>";
}

// Each property as it is, "-" for none.
std::string described(std::string_view records) {
    std::string text;
    for (EventProperties event; take_event(records, event); text += "\n") {
        for (const EventField& field : kEventFields)
            text += std::string((event.*field.property).value_or("-")) + "|";
    }
    return text;
}

struct Read {
    SoapAnswer answer;
    std::string records;
};

Read read(const std::string& body) {
    Read result;
    ItemReader items = event_items(result.records, HostClock());
    result.answer = read_soap_answer(envelope(body), items);
    return result;
}

TEST(SoapAnswer, GivesTheRecordsOfWholeObjects) {
    const Read pull = read(R"(<n:PullResponse><n:EnumerationContext>uuid:next</n:EnumerationContext>
        <n:Items>
          <p:Win32_NTLogEvent xsi:type="p:Win32_NTLogEvent_Type">
            <p:Category>0</p:Category><p:ComputerName>HOST1</p:ComputerName>
            <p:Data>1</p:Data><p:Data>2</p:Data><p:EventCode>4624</p:EventCode>
            <p:InsertionStrings>one</p:InsertionStrings><p:InsertionStrings>two</p:InsertionStrings>
            <p:Logfile>Security</p:Logfile><p:Message>a&#13;
b &lt;&#xFC;&#x20AC;&gt;</p:Message><p:SourceName></p:SourceName>
            <p:TimeGenerated>
              <cim:Datetime>2013-04-15T16:28:47.73517Z</cim:Datetime></p:TimeGenerated>
            <p:Type>&#xDC;berwachung erfolgreich</p:Type><p:User xsi:nil="true"/>
          </p:Win32_NTLogEvent>
          <p:Win32_NTLogEvent><p:user>D\u</p:user><p:Message xsi:nil="1"/></p:Win32_NTLogEvent>
        </n:Items></n:PullResponse>)");
    EXPECT_EQ(described(pull.records),
              "Security|\xDC"
              "berwachung erfolgreich|20130415162847.735170+000||4624|HOST1|a\r\nb <\xFC\x80>|-|\n"
              "-|-|-|-|-|-|-|D\\u|\n");
    EXPECT_EQ(pull.answer.context, "uuid:next");
    EXPECT_EQ(pull.answer.relates_to, "uuid:7");
    EXPECT_EQ(pull.answer.item_count, 2u);
    EXPECT_FALSE(pull.answer.ends_sequence);
    EXPECT_FALSE(pull.answer.fault);
}

TEST(SoapAnswer, GivesTheRecordsOfPropertyLists) {
    const Read first = read(R"(<n:EnumerateResponse><n:EnumerationContext/>
        <w:Items><w:XmlFragment><LogFile>System</LogFile><TimeGenerated><Datetime>2013-04-15T16:28:47Z
        </Datetime></TimeGenerated></w:XmlFragment></w:Items><w:EndOfSequence/>
        </n:EnumerateResponse>)");
    EXPECT_EQ(described(first.records), "System|-|20130415162847.000000+000|-|-|-|-|-|\n");
    EXPECT_TRUE(first.answer.ends_sequence);
    EXPECT_EQ(first.answer.context, "");
}

TEST(SoapAnswer, TellsControlElementsFromRecordsAndOtherNamespaces) {
    const Read pull = read(R"(<n:PullResponse><n:Items><EndOfSequence>
          <EndOfSequence/><n:EnumerationContext>no</n:EnumerationContext>
          <n:Items><n:EndOfSequence/></n:Items><Type>T</Type></EndOfSequence></n:Items>
        <p:EndOfSequence/><n:EnumerationContext>yes</n:EnumerationContext></n:PullResponse>)");
    EXPECT_EQ(described(pull.records), "-|T|-|-|-|-|-|-|\n");
    EXPECT_FALSE(pull.answer.ends_sequence);
    EXPECT_EQ(pull.answer.context, "yes");
}

TEST(SoapAnswer, MayHaveNoRecords) {
    for (const char* body : {"<n:PullResponse><n:EndOfSequence/></n:PullResponse>",
                             "<n:PullResponse><n:Items/><n:EndOfSequence/></n:PullResponse>"}) {
        const Read pull = read(body);
        EXPECT_TRUE(pull.answer.ends_sequence);
        EXPECT_EQ(pull.answer.item_count, 0u);
        EXPECT_EQ(pull.records, "");
    }
}

TEST(SoapAnswer, GivesTheHostsWordsOfAFault) {
    const auto fault = [](const std::string& detail) {
        return read(
                   "<s:Fault><s:Code><s:Value>s:Sender</s:Value><s:Subcode>"
                   "<s:Value> w:AccessDenied</s:Value></s:Subcode></s:Code>"
                   "<s:Reason><s:Text xml:lang=\"\">The reason. </s:Text></s:Reason>"
                   "<s:Detail>" +
                   detail + "</s:Detail></s:Fault>")
            .answer.fault.value();
    };
    const SoapFault plain = fault(R"(<f:WSManFault Code="5" Machine="HOST1">
        <f:Message>Zugriff
          verweigert: &#xFC;ber </f:Message></f:WSManFault>)");
    EXPECT_EQ(plain.number, 5u);
    EXPECT_EQ(plain.code, "AccessDenied");
    EXPECT_EQ(plain.text,
              "Zugriff verweigert: \xFC"
              "ber");
    const SoapFault provider = fault(R"(<f:WSManFault Code="2150858793"><f:Message>
        <f:ProviderFault provider="WMI"><f:WSManFault Code="9"><f:Message>Inner words</f:Message>
        </f:WSManFault></f:ProviderFault></f:Message></f:WSManFault>)");
    EXPECT_TRUE(provider.is(kFaultTimedOut, "TimedOut"));
    EXPECT_EQ(provider.text, "Inner words");
    EXPECT_EQ(fault("").text, "The reason.");
    EXPECT_EQ(
        fault("<f:WSManFault><f:Message>" + std::string(5000, 'x') + "</f:Message></f:WSManFault>")
            .text.size(),
        limits::kFaultText);
}

TEST(SoapAnswer, IsRefusedWhenAHostOverdoesIt) {
    const auto item = [](const std::string& content) {
        return "<n:PullResponse><n:Items><p:E>" + content + "</p:E></n:Items></n:PullResponse>";
    };
    std::string deep;
    for (int i = 0; i < 70; ++i) deep = "<d>" + deep + "</d>";
    const std::string long_text(limits::kElementText + 1, 'x');
    for (const std::string& body :
         {item(deep), item("<Message>" + long_text + "</Message>"), item("<Message>"),
          item("<Message a=\"" + std::string(3 * limits::kTag, 'x') + "\"/>"),
          item("<Message xmlns=\"" + std::string(limits::kNameSpace + 1, 'x') + "\"/>"),
          item("<TimeGenerated>yesterday</TimeGenerated>"), std::string("<n:Unknown/>"),
          "<n:PullResponse><n:EnumerationContext>" + long_text +
              "</n:EnumerationContext></n:PullResponse>"})
        EXPECT_THROW(read(body), RuntimeError) << body.substr(0, 200);
    EXPECT_NO_THROW(read(item("<Message>" + long_text.substr(1) + "</Message>")));
}

TEST(SoapAnswer, MayHaveNoDocumentType) {
    std::string records;
    ItemReader items = event_items(records, HostClock());
    try {
        read_soap_answer("<!DOCTYPE a [<!ENTITY b \"c\">]><a>&b;</a>", items);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.description(),
                  "The host's answer can't be read: it has a document type declaration");
    }
}

}  // namespace
}  // namespace tessarine
