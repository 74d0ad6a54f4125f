// The bytes of a stored file as lines, and those that hold a text: as one byte after the other has
// it, wherever a read stops.
#include <algorithm>
#include <string>

#include "core/text.h"
#include "fakes/dripping_file.h"
#include "fuzz/plain_lines.h"
#include "fuzz/promises.h"
#include "search/matching_lines.h"
#include "store/event_record.h"
#include "store/record_reader.h"

namespace tessarine::fuzz {
namespace {

Lines lines_with(const Lines& all, const std::string& text) {
    Lines found;
    for (const std::string& line : all) {
        std::string folded = lower_text(line);
        std::replace(folded.begin(), folded.end(), '|', ' ');
        if (!line.empty() && folded.find(lower_text(text)) != std::string::npos)
            found.push_back(line);
    }
    return found;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const std::size_t piece = std::size_t{data[0]} + 1;
    const std::string_view rest = text_of(data + 2, size - 2);
    const std::string text(rest.substr(0, data[1] % 4));
    const std::string_view bytes = rest.substr(text.size());
    const Lines expected = plain_lines(bytes);

    fakes::DrippingFile file(bytes, piece);
    RecordReader reader(file);
    Lines lines;
    for (std::string_view line; reader.next(line);) {
        lines.emplace_back(line);
        succeeds([&] { static_cast<void>(EventRecord(line).field(Field::Event)); });
    }
    hold(lines == expected, "a reader gives every line, and nothing else");

    fakes::DrippingFile again(bytes, piece);
    MatchingLines matching(text);
    matching.start(again);
    Lines found;
    for (std::string_view line; matching.next(line);) found.emplace_back(line);
    const bool has_bar = text.find_first_of("|\r\n") != std::string::npos;
    hold(has_bar || found == lines_with(expected, text), "a search finds every line");
    return 0;
}

}  // namespace tessarine::fuzz
