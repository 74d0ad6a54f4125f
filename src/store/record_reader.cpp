#include "store/record_reader.h"

#include <algorithm>

#include "store/line_bounds.h"

namespace tessarine {

bool RecordReader::next(std::string_view& line) {
    std::size_t searched = start_;
    for (;;) {
        const std::string_view bytes = blocks_.bytes();
        const std::size_t end = line_end(bytes, searched);
        // A CR at the very end of what is known may have its LF still to come.
        const bool complete = end < bytes.size() && (bytes[end] == '\n' || end + 1 < bytes.size());
        if (complete || blocks_.ended()) {
            if (start_ == bytes.size()) return false;
            line = bytes.substr(start_, end - start_);
            start_ = end;
            if (start_ < bytes.size() && bytes[start_++] == '\r' && start_ < bytes.size() &&
                bytes[start_] == '\n')
                ++start_;
            return true;
        }
        searched = std::min(end - start_, kLongestLine);
        blocks_.read_on(start_);
        start_ = 0;
    }
}

}  // namespace tessarine
