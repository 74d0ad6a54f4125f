// What generated records are made of: one entry for each kind of message.
#pragma once

#include <cstdint>
#include <span>

namespace tessarine::sample {

enum class Language { English, German };
enum class EventKind { Information, Warning, Error, AuditSuccess, AuditFailure };
enum class LogName { Application, Security, System, PowerShell };
enum class EventUser { None, System, Person };

/// `text` holds names in braces, which the generator replaces: {number}, {big}, {hex}, {user},
/// {pc}, {ip}, {service}, {program}, {path}; {lf} is a lone line feed. Its line ends become CR LF.
/// Of the records of a log, each kind gets a share by its `weight`. A null `text` is a null value.
struct MessageTemplate {
    LogName log;
    int weight;
    EventKind kind;
    const char* source;
    std::uint32_t code;
    EventUser user;
    const char* text;
};

/// UTF-8.
std::span<const MessageTemplate> message_templates(Language language);
std::span<const MessageTemplate> english_templates();
std::span<const MessageTemplate> german_templates();

/// The word that a host of the language reports as Type, in UTF-8.
const char* type_word(Language language, EventKind kind);

}  // namespace tessarine::sample
