#include "viewer/event_lookup.h"

#include "core/console_state.h"
#include "core/maker_site.h"
#include "platform/shell.h"
#include "tables/marked_tables.h"
#include "tables/row_fields.h"

namespace tessarine {

// KEEP(lookup-values-go-unencoded): the site takes values as they always came, and would look for
// encoded ones as they stand.
void LookupEvent(Console& console, const std::string& EventCode, const std::string& EventSource) {
    std::string address = maker_address("/cgi-bin/tessarine.pl");
    address.append("?EvtSrc=").append(EventSource);
    address.append("&EvtID=").append(EventCode);
    address.append("&ProdName=").append("Windows Operating System");
    address.append("&action=tessarine");
    console.platform.shell.open(address);
}

void mslookup(Console& console) {
    const ListControl* table = marked_event_table(console.Form1);
    if (table == nullptr) return;
    const ListControl::ConstRow row = selected_row(*table);
    LookupEvent(console, std::string(field(row, Field::Event)),
                std::string(field(row, Field::Source)));
}

void lookupinquillard2(Console& console) {
    const ListControl* table = marked_analysis_table(console.Form1);
    if (table == nullptr) return;
    const ListControl::ConstRow row = selected_row(*table);
    LookupEvent(console, std::string(row.text()), std::string(row.sub_item(kSource)));
}

}  // namespace tessarine
