#include "sample_network/hosts/message_templates.h"

#include <array>

namespace tessarine::sample {

std::span<const MessageTemplate> message_templates(Language language) {
    return language == Language::German ? german_templates() : english_templates();
}

const char* type_word(Language language, EventKind kind) {
    constexpr std::array<std::array<const char*, 5>, 2> kWords = {{
        {"Information", "Warning", "Error", "Audit Success", "Audit Failure"},
        {"Informationen", "Warnung", "Fehler", "Überwachung erfolgreich", "Überwachungsfehler"},
    }};
    return kWords[static_cast<std::size_t>(language)][static_cast<std::size_t>(kind)];
}

}  // namespace tessarine::sample
