// Faults in the text of an HTTP answer.
#pragma once

#include <string>

namespace tessarine::sample::faults {

void tell_short_body(std::string& text);
void tell_long_body(std::string& text);
void compress(std::string& text);
void add_huge_header(std::string& text);
void add_many_headers(std::string& text);
void speak_no_http(std::string& text);

// Another answer instead.
void redirect(std::string& text);
void miss_service(std::string& text);
void be_unavailable(std::string& text);
void ask_for_new_sign_in(std::string& text);
void offer_basic_alone(std::string& text);
void send_bad_token(std::string& text);
void ask_for_one_more_leg(std::string& text);
void welcome_early(std::string& text);
void refuse_to_seal(std::string& text);
void send_gzip_bomb(std::string& text);

}  // namespace tessarine::sample::faults
