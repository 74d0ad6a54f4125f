#include "viewer/event_lookup.h"

#include "core/console_state.h"
#include "core/maker_site.h"
#include "platform/shell.h"
#include "store/event_record.h"
#include "tables/marked_tables.h"

namespace tessarine {
namespace {

constexpr int kSourceOfAnalysis = 2;

std::string field_of(const ListControl::Row& row, Field field) {
    return std::string(row.sub_item(static_cast<int>(field)));
}

}  // namespace

// KEEP(lookup-values-go-unencoded): an "&" in a source splits the query, and blanks stay blanks.
// Encoding them looks right; the site takes the address as it always came.
void LookupEvent(Console& console, const std::string& EventCode, const std::string& EventSource) {
    std::string address = maker_address("/cgi-bin/tessarine.pl");
    address.append("?EvtSrc=").append(EventSource);
    address.append("&EvtID=").append(EventCode);
    address.append("&ProdName=").append("Windows Operating System");
    address.append("&action=tessarine");
    console.platform.shell.open(address);
}

void mslookup(Console& console) {
    ListControl* table = marked_event_table(console.Form1);
    if (table == nullptr) return;
    const ListControl::Row row = selected_row(*table);
    LookupEvent(console, field_of(row, Field::Event), field_of(row, Field::Source));
}

void lookupinquillard2(Console& console) {
    ListControl* table = marked_analysis_table(console.Form1);
    if (table == nullptr) return;
    const ListControl::Row row = selected_row(*table);
    LookupEvent(console, std::string(row.text()), std::string(row.sub_item(kSourceOfAnalysis)));
}

}  // namespace tessarine
