#include "bench/message_texts.h"

#include <algorithm>
#include <array>
#include <span>

namespace tessarine::bench {
namespace {

// Lengths by their share of all texts, in parts of a million; straight lines between the points.
struct LengthPoint {
    std::uint32_t share;
    std::uint32_t length;
};
constexpr std::array kLengths = {
    LengthPoint{0, 0},
    LengthPoint{100'000, 120},
    LengthPoint{500'000, 350},
    LengthPoint{900'000, 665},
    LengthPoint{990'000, 1'800},
    LengthPoint{999'900, 6'000},
    LengthPoint{1'000'000, 30'000},
};
constexpr std::uint32_t kLongest = kLengths.back().length;
constexpr std::uint32_t kPoolStarts = 1 << 18;  // places in the pool where a text may begin

constexpr std::array<std::string_view, 32> kEnglish = {
    "the",   "service",  "account", "logon",     "failed",  "was",    "started", "stopped",
    "by",    "process",  "with",    "privilege", "object",  "handle", "access",  "granted",
    "on",    "computer", "domain",  "network",   "address", "a",      "user",    "session",
    "name:", "type:",    "ID:",     "0x3E7",     "error",   "of",     "policy",  "changed."};
constexpr std::array<std::string_view, 32> kGerman = {"der",
                                                      "Dienst",
                                                      "Konto",
                                                      "Anmeldung",
                                                      "Fehler",
                                                      "wurde",
                                                      "gestartet",
                                                      "beendet",
                                                      "durch",
                                                      "Prozess",
                                                      "mit",
                                                      "Berechtigung",
                                                      "Objekt",
                                                      "f\xFCr",
                                                      "Zugriff",
                                                      "gew\xE4hrt",
                                                      "auf",
                                                      "Computer",
                                                      "Dom\xE4ne",
                                                      "Netzwerk",
                                                      "Adresse",
                                                      "ein",
                                                      "Benutzer",
                                                      "Sitzung",
                                                      "Name:",
                                                      "Typ:",
                                                      "Schl\xFCssel",
                                                      "0x3E7",
                                                      "Gr\xF6\xDF"
                                                      "e",
                                                      "von",
                                                      "Richtlinie",
                                                      "ge\xE4ndert."};

std::uint32_t length_at(std::uint32_t share) {
    const auto* above = std::upper_bound(
        kLengths.begin(), kLengths.end(), share,
        [](std::uint32_t wanted, const LengthPoint& point) { return wanted < point.share; });
    const LengthPoint& from = *(above - 1);
    const std::uint64_t rise = std::uint64_t{above->length - from.length} * (share - from.share);
    return from.length + static_cast<std::uint32_t>(rise / (above->share - from.share));
}

}  // namespace

MessageTexts::MessageTexts(Language language) {
    constexpr std::uint64_t kPoolSeed = 20041130;
    constexpr std::uint32_t kWordsToABreak = 12;
    const auto& words = language == Language::German ? kGerman : kEnglish;
    RandomNumbers random(kPoolSeed);
    while (pool_.size() < kPoolStarts + kLongest) {
        pool_ += words[random.below(static_cast<std::uint32_t>(words.size()))];
        pool_ += random.below(kWordsToABreak) == 0 ? '~' : ' ';
    }
}

std::string_view MessageTexts::next(RandomNumbers& random) const {
    const std::uint32_t length = length_at(random.below(kLengths.back().share));
    return std::string_view(pool_).substr(random.below(kPoolStarts), length);
}

}  // namespace tessarine::bench
