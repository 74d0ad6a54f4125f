#include "sample_network/wire/soap_text.h"

#include <cstdio>
#include <random>

#include "sample_network/wire/item_text.h"

namespace tessarine::sample {
namespace {

constexpr std::string_view kEnumeration = "http://schemas.xmlsoap.org/ws/2004/09/enumeration";

std::string envelope(std::string_view action, std::string_view relates_to, std::string_view body) {
    std::string text;
    text.reserve(body.size() + kEnvelopeReserve);
    text +=
        "<s:Envelope xml:lang=\"en-US\" xmlns:s=\"http://www.w3.org/2003/05/soap-envelope\""
        " xmlns:a=\"http://schemas.xmlsoap.org/ws/2004/08/addressing\""
        " xmlns:n=\"http://schemas.xmlsoap.org/ws/2004/09/enumeration\""
        " xmlns:w=\"http://schemas.dmtf.org/wbem/wsman/1/wsman.xsd\"><s:Header><a:Action>";
    text += action;
    text += "</a:Action><a:MessageID>" + new_uuid() +
            "</a:MessageID><a:To>http://schemas.xmlsoap.org/ws/2004/08/addressing/role/anonymous"
            "</a:To><a:RelatesTo>";
    append_escaped(text, relates_to);
    text += "</a:RelatesTo></s:Header><s:Body>";
    text += body;
    return text += "</s:Body></s:Envelope>";
}

std::string response_action(const char* name) {
    return std::string(kEnumeration) + "/" + name;
}

// `prefix` is that of the namespace in which the answer holds its items.
std::string page_body(const char* element, char prefix, std::string_view context,
                      const Page& page) {
    const std::string p{prefix, ':'};
    std::string body;
    body.reserve(page.items.size() + kEnvelopeReserve);
    body.append("<n:").append(element).append("><n:EnumerationContext>").append(context);
    body.append("</n:EnumerationContext>");
    if (page.count > 0) body += "<" + p + "Items>" + page.items + "</" + p + "Items>";
    if (page.last) body += "<" + p + "EndOfSequence/>";
    return body.append("</n:").append(element).append(">");
}

}  // namespace

std::string new_uuid() {
    std::random_device random;
    char text[48];  // its digits fit
    static_cast<void>(std::snprintf(text, sizeof text, "uuid:%08X-%04X-4%03X-A%03X-%04X%08X",
                                    random(), random() & 0xFFFF, random() & 0xFFF, random() & 0xFFF,
                                    random() & 0xFFFF, random()));
    return text;
}

std::string enumerate_answer(std::string_view relates_to, std::string_view context,
                             const Page& page) {
    return envelope(response_action("EnumerateResponse"), relates_to,
                    page_body("EnumerateResponse", 'w', context, page));
}

std::string pull_answer(std::string_view relates_to, std::string_view context, const Page& page) {
    return envelope(response_action("PullResponse"), relates_to,
                    page_body("PullResponse", 'n', context, page));
}

std::string release_answer(std::string_view relates_to) {
    return envelope(response_action("ReleaseResponse"), relates_to, "");
}

std::string fault_answer(std::string_view relates_to, FaultKind kind, std::string_view machine) {
    const FaultText fault = fault_text(kind);
    const std::string reason = fault.reason;
    std::string body = std::string(
                           "<s:Fault><s:Code><s:Value>s:Sender</s:Value><s:Subcode>"
                           "<s:Value>") +
                       fault.subcode +
                       "</s:Value></s:Subcode></s:Code><s:Reason><s:Text xml:lang=\"en-US\">" +
                       reason +
                       "</s:Text></s:Reason><s:Detail><f:WSManFault xmlns:f=\"http://schemas."
                       "microsoft.com/wbem/wsman/1/wsmanfault\" Code=\"" +
                       std::to_string(fault.code) + "\" Machine=\"";
    append_escaped(body, machine);
    body += "\"><f:Message>" + reason + "</f:Message></f:WSManFault></s:Detail></s:Fault>";
    return envelope("http://schemas.dmtf.org/wbem/wsman/1/wsman/fault", relates_to, body);
}

}  // namespace tessarine::sample
