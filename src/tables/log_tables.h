// What differs between the three logs when they are loaded.
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string_view>

#include "core/forms/main_form.h"
#include "core/type_words.h"
#include "store/log_files.h"

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

/// How one log is loaded.
struct LogTable {
    EventLog log;
    ListControl MainForm::*table;
    int tab;                  ///< of TabStrip2
    std::string_view ending;  ///< of the status text of each record
    std::span<const ShownType> types;
    std::string_view missing_text = {};  ///< what panel 1 says when there is no file
};

inline constexpr LogTable kSecurityTable{.log = EventLog::Security,
                                         .table = &MainForm::SecurityList,
                                         .tab = 3,
                                         .ending = " of security log",  // sic
                                         .types = kSecurityTypes,
                                         .missing_text = "No Security Event log"};
inline constexpr LogTable kSystemTable{.log = EventLog::System,
                                       .table = &MainForm::SystemList,
                                       .tab = 1,
                                       .ending = " of System log",
                                       .types = kSystemTypes};
inline constexpr LogTable kApplicationTable{.log = EventLog::Application,
                                            .table = &MainForm::ApplicationList,
                                            .tab = 2,
                                            .ending = " of Application log",
                                            .types = kApplicationTypes};

/// Images of a tab: as usual, and with an alert in its log.
inline constexpr int kTabPlain = 1;
inline constexpr int kTabAlert = 2;

/// By tab of TabStrip2, from 1: whether its log has an alert.
using TabAlerts = std::array<bool, 4>;

inline void mark_tabs(TabStrip& strip, const TabAlerts& alerts, std::initializer_list<int> tabs) {
    for (const int tab : tabs)
        strip.tab(tab).image = alerts[static_cast<std::size_t>(tab)] ? kTabAlert : kTabPlain;
}

}  // namespace tessarine
