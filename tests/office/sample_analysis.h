// What an analysis of hosts with odd texts leaves in the tables.
#pragma once

#include <array>
#include <initializer_list>

#include "core/forms/main_form.h"

namespace tessarine {

inline void fill_with_sample(MainForm& form) {
    using Cells = std::array<const char*, 3>;
    const auto fill = [](ListControl& table, std::initializer_list<Cells> rows) {
        for (const auto& [code, instances, source] : rows) {
            ListControl::Row row = table.add_row(code, 4);
            row.add_sub_item(instances);
            row.add_sub_item(source);
        }
    };
    fill(form.ListView2, {{"7036", "1204", "Service Control Manager"},
                          {"0010", "7",
                           "Drucker\xFC"
                           "berwachung \x80"},
                          {"-5", "1", "=1+1"},
                          {"=SUM(A13)", "2", "@x"},
                          {"1e5", "3", "-"}});
    fill(form.ListView3, {{"", "1", ""},
                          {"<b>1&2</b>", "1", "\"quoted\", 'also'"},
                          {"1234567890123456", "4", "http://example.net/"},
                          {"+1", "5", "control\x01 and\ttab"}});
    form.sysPie.points = {1205, 7, 0};
    form.appPie.points = {4, 0, 2'147'483'647};
    form.SecPie.points = {0, 0};
    form.appPie.type = ChartType::Pie;
}

}  // namespace tessarine
