#include "adapters/wsman/item_reader.h"

#include "adapters/wsman/ascii.h"
#include "adapters/wsman/cim_datetime.h"
#include "adapters/wsman/failure.h"
#include "adapters/wsman/limits.h"
#include "adapters/wsman/xml_names.h"
#include "core/code_page.h"

namespace tessarine {
namespace {

constexpr std::size_t kItemDepth = 1;
constexpr std::size_t kPropertyDepth = 2;
constexpr std::size_t kTimeGenerated = 2;
static_assert(kEventFields[kTimeGenerated].name == "TimeGenerated");

bool is_nil(const XmlAttributes& attributes) {
    const auto nil = attributes.value({xml::kInstance, "nil"});
    return nil && (*nil == "true" || *nil == "1");
}

// The wire has UTC, and the record shows that.
std::string shown_time(std::string_view text) {
    const auto instant = parse_cim_datetime(trimmed(text));
    if (!instant)
        raise_failure("The host sent a time that can't be read: \"" +
                      std::string(text.substr(0, 40)) + "\"");
    return dmtf_text(*instant, std::chrono::minutes(0));
}

}  // namespace

void ItemReader::start_element(XmlName name, const XmlAttributes& attributes) {
    ++depth_;
    if (depth_ == kItemDepth) {
        for (Value& value : values_) value.present = false;
    } else if (depth_ == kPropertyDepth) {
        begin_property(name.local, attributes);
    }
}

void ItemReader::begin_property(std::string_view name, const XmlAttributes& attributes) {
    for (std::size_t i = 0; i < kEventFields.size(); ++i) {
        if (!same_ascii_text(kEventFields[i].name, name)) continue;
        if (is_nil(attributes)) return;
        values_[i].present = true;
        values_[i].text.clear();
        current_ = &values_[i];
        return;
    }
}

// A time stands in an element of its own inside its property.
void ItemReader::text(std::string_view piece) {
    if (current_ == nullptr) return;
    append_from_utf8(current_->text, piece);
    if (current_->text.size() > limits::kElementText)
        raise_failure("The host sent a text that is too long");
}

void ItemReader::end_element() {
    if (depth_ == kPropertyDepth) end_property();
    if (depth_ == kItemDepth) end_item();
    --depth_;
}

void ItemReader::end_property() {
    if (current_ == &values_[kTimeGenerated]) current_->text = shown_time(current_->text);
    current_ = nullptr;
}

void ItemReader::end_item() {
    EventProperties event;
    for (std::size_t i = 0; i < kEventFields.size(); ++i)
        if (values_[i].present) event.*kEventFields[i].property = values_[i].text;
    append_event(records_, event);
    ++count_;
}

}  // namespace tessarine
