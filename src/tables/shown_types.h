// The types of records that the event tables show.
#pragma once

#include <array>
#include <span>

#include "core/forms/main_form.h"
#include "core/icons.h"
#include "core/type_words.h"

namespace tessarine {

/// A type of record that a log's table shows, with the check box it hangs on.
struct ShownType {
    TypeWord word;
    CheckBox MainForm::*box;
    int small_icon;
};

inline constexpr std::array kSecurityTypes = {
    ShownType{kAuditSuccess, &MainForm::SecSucc, kIconAuditSuccess},
    ShownType{kAuditFailure, &MainForm::SecFail, kIconAuditFailure},
};

inline constexpr std::array kSystemTypes = {
    ShownType{kInformation, &MainForm::SysInformations, kIconInformation},
    ShownType{kWarning, &MainForm::SysWarnings, kIconWarning},
    ShownType{kError, &MainForm::SysErrors, kIconError},
};

// An audit failure in the application log has no check box of its own and hangs on AppErrors.
inline constexpr std::array kApplicationTypes = {
    ShownType{kInformation, &MainForm::AppInformations, kIconInformation},
    ShownType{kWarning, &MainForm::AppWarnings, kIconWarning},
    ShownType{kError, &MainForm::AppErrors, kIconError},
    ShownType{kAuditFailure, &MainForm::AppErrors, kIconAuditFailure},
};

/// Those of a redisplay and of a search, which both know no audit failure there.
inline constexpr std::span kPlainApplicationTypes = std::span(kApplicationTypes).first(3);

}  // namespace tessarine
