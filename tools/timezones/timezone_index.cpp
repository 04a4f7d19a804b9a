// Writes the zone index file: one line per zone that the city list names, in the order of the
// zones' present names, each line the display names of the zone as this machine's database
// gives them, its present name first and then the old names (links of the database) under
// which the city list knows it. Line 0 stands for "no zone" and is never looked up.
//
//   timezone_index ZONE_NAMES [TZDATA_ZI] > data/timezone.txt
//
// ZONE_NAMES holds IANA zone names, one a line, repeats allowed. TZDATA_ZI is the database's
// source in one file (default: tzdata.zi in the zone directory); its "L target name" lines
// say which names are links to which zones. A name that neither is a zone here nor links to
// one stops the tool with an error.
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "time/TimeZone.h"
#include "time/TimeZoneDirectory.h"

namespace {

// Link name -> target, from the "L" lines.
std::map<std::string, std::string> ReadLinks(const std::string& path, bool& ok)
{
    std::map<std::string, std::string> links;
    std::ifstream in(path);
    ok = static_cast<bool>(in);
    std::string line;
    while (std::getline(in, line)) {
        std::istringstream fields(line);
        std::string kind, target, name;
        if (fields >> kind >> target >> name && kind == "L") {
            links[name] = target;
        }
    }
    return links;
}

// The present name of a zone: links followed to their end.
std::string Resolve(const std::map<std::string, std::string>& links, std::string name)
{
    for (int hops = 0; hops < 16; ++hops) {
        auto link = links.find(name);
        if (link == links.end()) {
            break;
        }
        name = link->second;
    }
    return name;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2 || argc > 3) {
        std::cerr << "usage: timezone_index ZONE_NAMES [TZDATA_ZI] > timezone.txt\n";
        return 2;
    }
    std::ifstream namesFile(argv[1]);
    if (!namesFile) {
        std::cerr << "timezone_index: cannot read " << argv[1] << "\n";
        return 1;
    }
    std::string linksPath = argc == 3 ? argv[2] : TimeZoneDirectory().GetPath("tzdata.zi");
    bool linksRead = false;
    std::map<std::string, std::string> links = ReadLinks(linksPath, linksRead);
    if (!linksRead) {
        std::cerr << "timezone_index: cannot read " << linksPath << "\n";
        return 1;
    }

    // Present name -> the names the city list uses for it.
    std::map<std::string, std::set<std::string>> zones;
    std::set<std::string> distinct;
    std::string name;
    while (std::getline(namesFile, name)) {
        if (!name.empty()) {
            distinct.insert(name);
            zones[Resolve(links, name)].insert(name);
        }
    }

    int aliases = 0;
    int failures = 0;
    std::cout << "(no zone)\n";
    for (const auto& [present, used] : zones) {
        const TimeZone* zone = TimeZone::GetTimeZone(present);
        if (zone == nullptr || zone->GetZoneName() != present) {
            std::cerr << "timezone_index: " << present << " is not a zone of "
                      << TimeZoneDirectory().GetRoot() << "\n";
            ++failures;
            continue;
        }
        long bias = zone->GetZoneInformation().Bias;
        std::cout << TimeZone::MakeDisplayName(bias, present);
        for (const std::string& old : used) {
            if (old != present) {
                std::cout << "|" << TimeZone::MakeDisplayName(bias, old);
                ++aliases;
            }
        }
        std::cout << "\n";
    }
    std::cerr << "timezone_index: " << distinct.size() << " zone names, " << aliases
              << " of them old names, " << zones.size() << " zones\n";
    return failures == 0 ? 0 : 1;
}
