// The HTTP requests for devices' metadata, several at the same time.
#pragma once

#include <curl/curl.h>

#include <deque>
#include <list>
#include <string>
#include <vector>

#include "adapters/browse/browsed_name.h"

namespace tessarine {

class MetadataRequests {
  public:
    MetadataRequests();
    ~MetadataRequests();
    MetadataRequests(const MetadataRequests&) = delete;
    MetadataRequests& operator=(const MetadataRequests&) = delete;

    /// What is to be polled for them, by curl_multi_poll.
    CURLM* handle() const { return multi_; }

    void add(const std::string& url, const std::string& message);
    /// Goes on with all of them.
    void step();
    bool idle() const { return waiting_.empty() && running_.empty(); }

    /// Those that devices have told of.
    const std::vector<BrowsedComputer>& computers() const { return computers_; }

  private:
    struct Request {
        std::string url;
        std::string message;
        std::string answer = {};
        CURL* easy = nullptr;
    };

    void start(Request request);
    void finish(CURL* easy, CURLcode code);
    static std::size_t on_body(char* bytes, std::size_t size, std::size_t count, void* request);

    CURLM* multi_;
    curl_slist* headers_;
    std::deque<Request> waiting_;
    std::list<Request> running_;
    std::vector<BrowsedComputer> computers_;
};

}  // namespace tessarine
