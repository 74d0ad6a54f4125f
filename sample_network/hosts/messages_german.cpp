#include "sample_network/hosts/message_templates.h"

namespace tessarine::sample {
namespace {

constexpr const char* kLogOn = R"(Ein Benutzer hat sich an diesem Computer angemeldet.

Angefordert von:
	Sicherheits-ID:		S-1-5-18
	Kontoname:		{pc}$
	Kontodomäne:		SAMPLE
	Anmelde-ID:		0x3E7

Anmeldetyp:			{number}

Neue Sitzung:
	Sicherheits-ID:		SAMPLE\{user}
	Kontoname:		{user}
	Kontodomäne:		SAMPLE
	Anmelde-ID:		0x{hex}

Anfordernder Prozess:
	Prozess-ID:		0x{hex}
	Prozessname:		{path}

Herkunft:
	Arbeitsstation:		{pc}
	Netzwerkadresse:	{ip}
	Port:			{big}

Verfahren:
	Paket:			Negotiate
	Schlüssellänge:		128)";

constexpr MessageTemplate kTemplates[] = {
    // clang-format off
    {LogName::System, 14, EventKind::Information, "Service Control Manager", 7036, EventUser::None,
     "Der Dienst {service} hat den Zustand \"läuft\" erreicht."},
    {LogName::System, 5, EventKind::Error, "Service Control Manager", 7034, EventUser::None,
     "Der Dienst {service} wurde unerwartet beendet. Dies ist bereits {number} Mal geschehen."},
    {LogName::System, 4, EventKind::Warning, "Microsoft-Windows-Time-Service", 36,
     EventUser::System,
     "Seit {big} Sekunden wurde die Uhrzeit nicht abgeglichen.\nQuelle prüfen: {ip}"},
    {LogName::System, 2, EventKind::Error, "disk", 11, EventUser::None,
     "Der Treiber fand einen Controllerfehler auf \\Device\\Harddisk{number}."},
    {LogName::System, 2, EventKind::Warning, "Microsoft-Windows-DNS-Client", 1014,
     EventUser::Person,
     "Kein DNS-Server hat rechtzeitig für den Namen {pc}.sample.example geantwortet."},
    {LogName::System, 1, EventKind::Information, "EventLog", 6013, EventUser::None,
     "Dieses System läuft seit {big} Sekunden."},

    {LogName::Application, 6, EventKind::Information, "MsiInstaller", 1033, EventUser::Person,
     "Das Produkt wurde installiert. Produkt: {program}. Version: {number}.{number}. "
     "Größe: {big} KB. Ergebnis: 0."},
    {LogName::Application, 4, EventKind::Error, "Application Error", 1000, EventUser::None,
     "Fehlerhaftes Programm: {path}\nFehlerhaftes Modul: ntdll.dll\nAusnahme: 0xc0000005\n"
     "Adresse: 0x{hex}\nProzess: 0x{hex}"},
    {LogName::Application, 2, EventKind::Warning, "Microsoft-Windows-User Profiles Service", 1530,
     EventUser::System,
     "Die Registrierung von {user} ist noch geöffnet | sie wird später entladen.\n\nDETAILS -\n"
     " {number} offene Zugriffsnummern"},
    {LogName::Application, 1, EventKind::Information, "SecurityCenter", 1, EventUser::None,
     nullptr},

    {LogName::Security, 14, EventKind::AuditSuccess, "Microsoft-Windows-Security-Auditing", 4624,
     EventUser::None, kLogOn},
    {LogName::Security, 4, EventKind::AuditFailure, "Microsoft-Windows-Security-Auditing", 4625,
     EventUser::None,
     "Ein Benutzer konnte sich nicht anmelden.\n\nKonto:\n\tKontoname:\t\t{user}\n"
     "\tKontodomäne:\t\tSAMPLE\n\nGrund:\n\tUnbekannter Benutzername oder falsches Kennwort.\n\n"
     "Herkunft:\n\tArbeitsstation:\t\t{pc}\n\tNetzwerkadresse:\t{ip}"},
    {LogName::Security, 3, EventKind::AuditSuccess, "Microsoft-Windows-Security-Auditing", 4634,
     EventUser::None,
     "Eine Sitzung wurde beendet.\n\nKontoname:\t\t{user}\nAnmelde-ID:\t\t0x{hex}"},

    {LogName::PowerShell, 1, EventKind::Information, "PowerShell", 400, EventUser::None,
     "Zustand des Moduls: None -> Available.\n\nDetails:\n\tSequenceNumber={number}"},
    // clang-format on
};

}  // namespace

std::span<const MessageTemplate> german_templates() {
    return kTemplates;
}

}  // namespace tessarine::sample
