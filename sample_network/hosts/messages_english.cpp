#include "sample_network/hosts/message_templates.h"

namespace tessarine::sample {
namespace {

constexpr const char* kLogOn = R"(A user has logged on to this computer.

Requested by:
	Security ID:		S-1-5-18
	Account name:		{pc}$
	Account domain:		SAMPLE
	Logon ID:		0x3E7

Logon type:			{number}
Restricted admin mode:		-
Virtual account:		No
Elevated token:			Yes

New session:
	Security ID:		SAMPLE\{user}
	Account name:		{user}
	Account domain:		SAMPLE
	Logon ID:		0x{hex}
	Linked logon ID:	0x0

Requesting process:
	Process ID:		0x{hex}
	Process name:		{path}

Where from:
	Workstation:		{pc}
	Network address:	{ip}
	Port:			{big}

How:
	Package:		Negotiate
	Key length:		128)";

constexpr const char* kLogOnFailed = R"(A user could not log on.

Account:
	Security ID:		S-1-0-0
	Account name:		{user}
	Account domain:		SAMPLE

Why:
	Reason:			Unknown user name or wrong password.
	Status:			0xC000006D
	Sub status:		0xC000006A

Where from:
	Workstation:		{pc}
	Network address:	{ip}
	Port:			{big})";

constexpr MessageTemplate kTemplates[] = {
    // clang-format off
    {LogName::System, 18, EventKind::Information, "Service Control Manager", 7036, EventUser::None,
     "The service {service} has entered the state: running."},
    {LogName::System, 6, EventKind::Error, "Service Control Manager", 7034, EventUser::None,
     "The service {service} has ended unexpectedly. This has happened {number} times."},
    {LogName::System, 4, EventKind::Information, "Service Control Manager", 7040, EventUser::System,
     "The start type of the service {service} was changed from demand start to auto start."},
    {LogName::System, 2, EventKind::Information, "EventLog", 6013, EventUser::None,
     "This system has been up for {big} seconds."},
    {LogName::System, 1, EventKind::Error, "EventLog", 6008, EventUser::None,
     "The last shutdown at 03:{number} on \u200E11/\u200E2/\u200E2026 was not expected."},
    {LogName::System, 3, EventKind::Warning, "Microsoft-Windows-DNS-Client", 1014,
     EventUser::Person,
     "None of the configured DNS servers answered in time for the name {pc}.sample.example."},
    {LogName::System, 4, EventKind::Warning, "Microsoft-Windows-Time-Service", 36,
     EventUser::System,
     "The time has not been synchronised for {big} seconds, as no time source gave a usable "
     "time stamp.\nCheck the source: {ip}"},
    {LogName::System, 3, EventKind::Error, "disk", 11, EventUser::None,
     "The driver found a controller error on \\Device\\Harddisk{number}\\DR{number}."},
    {LogName::System, 2, EventKind::Warning, "srv", 2013, EventUser::None,
     "The disk D: is nearly full.\nDelete some files | move them to another disk.\n"},
    {LogName::System, 1, EventKind::Information, "Microsoft-Windows-WindowsUpdateClient", 19,
     EventUser::System, "Installed: update for {program}®, build {big} ’stable’."},
    {LogName::System, 1, EventKind::Warning, "LsaSrv", 6037, EventUser::None, nullptr},

    {LogName::Application, 8, EventKind::Information, "MsiInstaller", 1033, EventUser::Person,
     "Product installed. Product: {program}. Version: {number}.{number}. Language: 1033. "
     "Maker: Brackwater Works. Result: 0."},
    {LogName::Application, 5, EventKind::Error, "Application Error", 1000, EventUser::None,
     "Faulting program: {path}, version {number}.0.{number}.0, time stamp 0x{hex}\n"
     "Faulting module: ntdll.dll, version 10.0.{big}.1, time stamp 0x{hex}\n"
     "Exception: 0xc0000005\nOffset: 0x{hex}\nProcess: 0x{hex}\nReport: {hex}-{hex}"},
    {LogName::Application, 4, EventKind::Error, ".NET Runtime", 1026, EventUser::None,
     "Program: {path}\nFramework version: v4.0.{big}\nThe process ended by an exception that "
     "nobody handled.\nException: System.IO.IOException\n   at Ledger.Store.Open(~{hex}.tmp)\n"
     "   at Ledger.Store.Load(Int32)\n   at Ledger.Program.Main()\n"},
    {LogName::Application, 4, EventKind::Information, "ESENT", 326, EventUser::None,
     "svchost ({number}) The database engine has attached the database {path}."},
    {LogName::Application, 3, EventKind::Warning, "Microsoft-Windows-User Profiles Service", 1530,
     EventUser::System,
     "The registry of {user} is still in use and is unloaded later.\n\nDETAIL - \n"
     " {number} handles open from \\Registry\\User\\S-1-5-21-{big}-{big}-{number}:\n"
     "Process {number} ({path}) holds key {hex}"},
    {LogName::Application, 2, EventKind::Information, "VSS", 8224, EventUser::None,
     "The shadow copy service is shutting down after an idle time.{lf}"},
    {LogName::Application, 1, EventKind::AuditFailure, "MSSQLSERVER", 18456, EventUser::Person,
     "Log-on of the user 'SAMPLE\\{user}' failed. Reason: wrong password. [Client: {ip}]"},

    {LogName::Security, 30, EventKind::AuditSuccess, "Microsoft-Windows-Security-Auditing", 4624,
     EventUser::None, kLogOn},
    {LogName::Security, 8, EventKind::AuditSuccess, "Microsoft-Windows-Security-Auditing", 4634,
     EventUser::None,
     "A session has ended.\n\nAccount:\n\tSecurity ID:\t\tSAMPLE\\{user}\n"
     "\tAccount name:\t\t{user}\n"
     "\tLogon ID:\t\t0x{hex}\n\nLogon type:\t\t\t{number}"},
    {LogName::Security, 6, EventKind::AuditFailure, "Microsoft-Windows-Security-Auditing", 4625,
     EventUser::None, kLogOnFailed},
    {LogName::Security, 3, EventKind::AuditSuccess, "Microsoft-Windows-Security-Auditing", 4688,
     EventUser::None,
     "A process was created.\n\nBy:\n\tAccount name:\t\t{user}\n\tLogon ID:\t\t0x{hex}\n\n"
     "Process:\n\tProcess ID:\t\t0x{hex}\n\tProcess name:\t\t{path}\n\tCommand line:\t\t"
     "\"{path}\" /quiet | find \"{pc}\""},
    {LogName::Security, 1, EventKind::AuditSuccess, "Microsoft-Windows-Eventlog", 1102,
     EventUser::Person, "The audit log was cleared by SAMPLE\\{user}."},

    {LogName::PowerShell, 3, EventKind::Information, "PowerShell", 400, EventUser::None,
     "Engine state: None -> Available.\n\nDetails:\n\tSequenceNumber={number}\n"
     "\tHostName=ConsoleHost\n\tHostId={hex}-{hex}\n\tRunspaceId={hex}"},
    {LogName::PowerShell, 1, EventKind::Information, "PowerShell", 600, EventUser::None,
     "Provider \"FileSystem\" is Started."},
    // clang-format on
};

}  // namespace

std::span<const MessageTemplate> english_templates() {
    return kTemplates;
}

}  // namespace tessarine::sample
