// The words by which hosts name the types of their events, in the two languages that are accepted
// wherever a type is tested.
#pragma once

#include <string_view>

namespace tessarine {

struct TypeWord {
    std::string_view english;
    std::string_view german;
};

inline constexpr TypeWord kInformation{"information", "Informationen"};
inline constexpr TypeWord kWarning{"warning", "Warnung"};
inline constexpr TypeWord kError{"error", "Fehler"};
inline constexpr TypeWord kAuditSuccess{"audit success",
                                        "\xDC"
                                        "berwachung erfolgreich"};
inline constexpr TypeWord kAuditFailure{"audit failure",
                                        "\xDC"
                                        "berwachungsfehler"};

}  // namespace tessarine
