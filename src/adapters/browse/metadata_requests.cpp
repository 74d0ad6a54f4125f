#include "adapters/browse/metadata_requests.h"

#include <algorithm>
#include <new>
#include <utility>

#include "adapters/browse/browse_limits.h"
#include "adapters/browse/discovery_message.h"
#include "core/runtime_error.h"

namespace tessarine {

MetadataRequests::MetadataRequests()
    : multi_(curl_multi_init()),
      headers_(curl_slist_append(nullptr, "Content-Type: application/soap+xml")) {
    if (multi_ == nullptr || headers_ == nullptr) throw std::bad_alloc();
}

MetadataRequests::~MetadataRequests() {
    for (const Request& request : running_) {
        curl_multi_remove_handle(multi_, request.easy);
        curl_easy_cleanup(request.easy);
    }
    curl_multi_cleanup(multi_);
    curl_slist_free_all(headers_);
}

void MetadataRequests::add(const std::string& url, const std::string& message) {
    waiting_.push_back({url, message});
}

void MetadataRequests::step() {
    while (running_.size() < browse_limits::kRequests && !waiting_.empty()) {
        start(std::move(waiting_.front()));
        waiting_.pop_front();
    }
    int left = 0;
    curl_multi_perform(multi_, &left);
    while (const CURLMsg* message = curl_multi_info_read(multi_, &left))
        if (message->msg == CURLMSG_DONE) finish(message->easy_handle, message->data.result);
}

void MetadataRequests::start(Request request) {
    CURL* easy = curl_easy_init();
    if (easy == nullptr) throw std::bad_alloc();
    Request& kept = running_.emplace_back(std::move(request));
    kept.easy = easy;
    curl_easy_setopt(easy, CURLOPT_URL, kept.url.c_str());
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http");
    curl_easy_setopt(easy, CURLOPT_PROXY, "");
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy, CURLOPT_FORBID_REUSE, 1L);
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, headers_);
    curl_easy_setopt(easy, CURLOPT_POSTFIELDSIZE, static_cast<long>(kept.message.size()));
    curl_easy_setopt(easy, CURLOPT_POSTFIELDS, kept.message.c_str());
    curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT_MS,
                     static_cast<long>(browse_limits::kConnect.count()));
    curl_easy_setopt(easy, CURLOPT_TIMEOUT_MS, static_cast<long>(browse_limits::kRequest.count()));
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, on_body);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, &kept);
    curl_multi_add_handle(multi_, easy);
}

// A device that fails, or tells what can't be read, tells nothing.
void MetadataRequests::finish(CURL* easy, CURLcode code) {
    const auto request = std::find_if(running_.begin(), running_.end(),
                                      [easy](const Request& each) { return each.easy == easy; });
    long status = 0;
    curl_easy_getinfo(easy, CURLINFO_RESPONSE_CODE, &status);
    if (code == CURLE_OK && status == 200) {
        try {
            if (const auto computer = read_metadata(request->answer))
                computers_.push_back(*computer);
        } catch (const RuntimeError&) {
            request->answer.clear();
        }
    }
    curl_multi_remove_handle(multi_, easy);
    curl_easy_cleanup(easy);
    running_.erase(request);
}

std::size_t MetadataRequests::on_body(char* bytes, std::size_t size, std::size_t count,
                                      void* request) {
    std::string& answer = static_cast<Request*>(request)->answer;
    if (answer.size() + size * count > browse_limits::kMetadata) return 0;
    answer.append(bytes, size * count);
    return size * count;
}

}  // namespace tessarine
