// Faults in a message itself, before it is sealed.
#pragma once

#include <string>

#include "sample_network/hosts/sample_host.h"

namespace tessarine::sample::faults {

// On the host.
void never_end(SampleHost& host);
void answer_like_before_2012(SampleHost& host);
void answer_all_at_once(SampleHost& host);

// On the envelope.
void drop_records(std::string& envelope);
void split_items(std::string& envelope);
void leave_open(std::string& envelope);
void declare_document_type(std::string& envelope);
void add_entity_bomb(std::string& envelope);
void nest_deeply(std::string& envelope);
void add_wide_tag(std::string& envelope);
void add_long_text(std::string& envelope);
void add_large_item(std::string& envelope);
void add_many_items(std::string& envelope);
void add_illegal_characters(std::string& envelope);
void add_raw_line_ends(std::string& envelope);
void add_bare_item(std::string& envelope);
void add_forged_time(std::string& envelope);
void declare_latin_1(std::string& envelope);
void become_utf_16(std::string& envelope);
void relate_to_another(std::string& envelope);
void be_of_unknown_kind(std::string& envelope);

}  // namespace tessarine::sample::faults
