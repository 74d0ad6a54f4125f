#include "sample_network/faults/fault_sealed.h"

namespace tessarine::sample::faults {
namespace {

constexpr std::string_view kDataType = "application/octet-stream\r\n";

}  // namespace

void tell_wrong_length(SealedAnswer answer) {
    constexpr std::string_view kField = "Length=";
    answer.http.body.insert(answer.http.body.find(kField) + kField.size(), "1");
}

void tell_long_header(SealedAnswer answer) {
    answer.http.body.replace(answer.http.body.find(kDataType) + kDataType.size(), 4,
                             "\xFF\xFF\xFF\xFF");
}

void drop_end_boundary(SealedAnswer answer) {
    answer.http.body.erase(answer.http.body.rfind("--Encrypted Boundary--"));
}

void change_byte(SealedAnswer answer) {
    answer.http.body[answer.http.body.size() / 2] ^= 1;
}

void replay(SealedAnswer answer) {
    answer.http.body = answer.previous_body;
}

void go_unsealed(SealedAnswer answer) {
    answer.http.content_type = "application/soap+xml;charset=UTF-8";
    answer.http.body = answer.plain;
}

}  // namespace tessarine::sample::faults
