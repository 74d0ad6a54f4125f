#include "sample_network/directory_files.h"

#include <fstream>

namespace tessarine::sample {
namespace {

constexpr const char* kServer = "/usr/sbin/slapd";
constexpr const char* kLoader = "/usr/sbin/slapadd";

// "sample.example" as "DC=sample,DC=example".
std::string name_of_domain(std::string_view domain) {
    std::string name = "DC=";
    for (const char c : domain)
        if (c == '.')
            name += ",DC=";
        else
            name += c;
    return name;
}

void write_entry(std::ostream& file, const std::string& name, std::string_view properties) {
    file << "dn: " << name << '\n' << properties << "\n\n";
}

void write_folder(std::ostream& file, const DirectoryFolder& folder, const std::string& domain) {
    const bool is_unit = folder.kind == DirectoryFolder::Kind::Unit;
    const std::string own = (is_unit ? "ou=" : "cn=") + folder.name + "," + domain;
    write_entry(file, own,
                is_unit ? "objectClass: organizationalUnit" : "objectClass: organizationalRole");
    for (const std::string& object : folder.objects)
        write_entry(file, "cn=" + object + "," + own, "objectClass: device");
}

}  // namespace

Texts numbered_names(const std::string& stem, int count) {
    Texts names;
    for (int i = 1; i <= count; ++i) {
        const std::string digits = std::to_string(i);
        names.push_back(stem + std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') +
                        digits);
    }
    return names;
}

bool has_directory_program() {
    return std::filesystem::exists(kServer) && std::filesystem::exists(kLoader);
}

void write_directory(const std::filesystem::path& folder, std::string_view domain,
                     const std::vector<DirectoryFolder>& content, std::string_view settings) {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder / "database");
    const std::string name = name_of_domain(domain);
    std::ofstream(folder / "slapd.conf")
        << "include /etc/ldap/schema/core.schema\n"
           "modulepath /usr/lib/ldap\n"
           "moduleload back_mdb\n"
           "threads 2\n"
           "database mdb\n"
           "maxsize 134217728\n"
           "suffix \""
        << name << "\"\ndirectory \"" << (folder / "database").string() << "\"\n"
        << settings;
    std::ofstream file(folder / "content.ldif");
    write_entry(file, name, "objectClass: dcObject\nobjectClass: organization\no: Sample");
    for (const DirectoryFolder& each : content) write_folder(file, each, name);
}

Texts directory_command(const std::filesystem::path& folder, const std::string& address) {
    return {"/bin/sh",
            "-c",
            std::string(kLoader) + " -q -f \"$1/slapd.conf\" -l \"$1/content.ldif\" && exec " +
                kServer + " -d 0 -f \"$1/slapd.conf\" -h \"ldap://$2\"",
            "sh",
            folder.string(),
            address};
}

}  // namespace tessarine::sample
