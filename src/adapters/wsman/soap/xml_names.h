// The XML namespaces of WS-Management messages.
#pragma once

#include <string_view>

namespace tessarine::xml {

inline constexpr std::string_view kSoap = "http://www.w3.org/2003/05/soap-envelope";
inline constexpr std::string_view kAddressing = "http://schemas.xmlsoap.org/ws/2004/08/addressing";
inline constexpr std::string_view kEnumeration =
    "http://schemas.xmlsoap.org/ws/2004/09/enumeration";
inline constexpr std::string_view kWsman = "http://schemas.dmtf.org/wbem/wsman/1/wsman.xsd";
inline constexpr std::string_view kWsmanFault =
    "http://schemas.microsoft.com/wbem/wsman/1/wsmanfault";
inline constexpr std::string_view kInstance = "http://www.w3.org/2001/XMLSchema-instance";

}  // namespace tessarine::xml
