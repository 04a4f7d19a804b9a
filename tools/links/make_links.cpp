// Builds data/links.txt, the table from object uids to article addresses, out of the list of
// web pages that KStars ships for the Messier objects, the Sun, the Moon and the planets
// (Debian package kstars-data, /usr/share/kstars/info_url.dat, "merely a list of facts"),
// and encyclopedia addresses made from the names of the constellations and of named stars.
//
//   make_links [info_url.dat] [data/links.txt] [data/constnam.txt] [bright.txt]
//
// The constellation list gives each constellation its uid by its line (0x70000000 + line
// index + 1); the star lines (SAO, magnitude, ..., name in the 13th field, as the star
// catalogue text form has them) give 0x70000000 + 1000 + SAO for every star with a name.
//
// Source lines are "Object name:Label:Address". Objects are given the uids the planetarium
// gives them: 0x70000000 plus 100 + n for Messier object n, 300 + the body number for the
// planets (Mercury 0 to Pluto 8), 310 for the Moon and 311 for the Sun. Other objects (NGC
// and IC objects, asteroids, comets) have no uid there and are left out. Each object keeps
// its addresses in the order of the source, which puts the encyclopedia article first.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

const long kUidBase = 0x70000000;

struct Link
{
    long Uid;
    std::string Name;
    std::string Title;
    std::string Address;
};

std::string Trim(const std::string& text)
{
    std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) {
        return std::string();
    }
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

// The uid of a source object name, or 0 for an object the planetarium has no uid for.
long UidOf(const std::string& name)
{
    static const std::map<std::string, long> bodies = {
        {"Mercury", 300}, {"Venus", 301},  {"Earth", 302},  {"Mars", 303},
        {"Jupiter", 304}, {"Saturn", 305}, {"Uranus", 306}, {"Neptune", 307},
        {"Pluto", 308},   {"Moon", 310},   {"Sun", 311}};
    auto body = bodies.find(name);
    if (body != bodies.end()) {
        return kUidBase + body->second;
    }
    // Messier objects are named "M 1" to "M 110".
    if (name.size() > 2 && name.compare(0, 2, "M ") == 0 &&
        name.find_first_not_of("0123456789", 2) == std::string::npos && name.size() <= 5) {
        long number = std::stol(name.substr(2));
        if (number >= 1 && number <= 110) {
            return kUidBase + 100 + number;
        }
    }
    return 0;
}

// An encyclopedia address for a title: blanks become underscores.
std::string WikipediaAddress(std::string title)
{
    std::replace(title.begin(), title.end(), ' ', '_');
    return "https://en.wikipedia.org/wiki/" + title;
}

std::vector<std::string> SplitCommas(const std::string& line)
{
    std::vector<std::string> fields;
    std::stringstream in(line);
    std::string field;
    while (std::getline(in, field, ',')) {
        fields.push_back(Trim(field));
    }
    return fields;
}

// One link per constellation of the name list, by its line.
int AddConstellationLinks(const std::string& path, std::vector<Link>& links)
{
    std::ifstream in(path);
    std::string line;
    long index = 0;
    while (std::getline(in, line)) {
        std::vector<std::string> fields = SplitCommas(line);
        if (fields.size() < 2 || fields[0].empty()) {
            break;
        }
        links.push_back({kUidBase + index + 1, fields[0], "Wikipedia Page",
                         WikipediaAddress(fields[0] + " (constellation)")});
        ++index;
    }
    return static_cast<int>(index);
}

// One link per named star of a star catalogue text file.
int AddStarLinks(const std::string& path, std::vector<Link>& links)
{
    std::ifstream in(path);
    std::string line;
    int count = 0;
    while (std::getline(in, line)) {
        std::vector<std::string> fields = SplitCommas(line);
        if (fields.size() < 13 || fields[12].empty()) {
            continue;
        }
        long sao = std::atol(fields[0].c_str());
        if (sao < 1 || sao > 258997) {
            continue;
        }
        links.push_back(
            {kUidBase + 1000 + sao, fields[12], "Wikipedia Page", WikipediaAddress(fields[12])});
        ++count;
    }
    return count;
}

// The text with the field separator of links.txt replaced.
std::string Field(std::string text)
{
    std::replace(text.begin(), text.end(), '|', '/');
    return Trim(text);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string input = argc > 1 ? argv[1] : "/usr/share/kstars/info_url.dat";
    const std::string output = argc > 2 ? argv[2] : "data/links.txt";
    std::ifstream in(input);
    if (!in) {
        std::cerr << "make_links: cannot read " << input << "\n";
        return 1;
    }

    std::vector<Link> links;
    std::string line;
    int skipped = 0;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        std::size_t first = line.find(':');
        std::size_t second = first == std::string::npos ? first : line.find(':', first + 1);
        if (second == std::string::npos) {
            ++skipped;
            continue;
        }
        std::string name = Trim(line.substr(0, first));
        long uid = UidOf(name);
        if (uid == 0) {
            ++skipped;
            continue;
        }
        // A few source lines carry a second address after a blank; the first is the link.
        std::istringstream words(line.substr(second + 1));
        std::string address;
        words >> address;
        if (address.rfind("http://", 0) != 0 && address.rfind("https://", 0) != 0) {
            ++skipped;
            continue;
        }
        links.push_back(
            {uid, name, Field(line.substr(first + 1, second - first - 1)), Field(address)});
    }
    if (argc > 3) {
        std::cerr << "make_links: " << AddConstellationLinks(argv[3], links) << " constellations\n";
    }
    if (argc > 4) {
        std::cerr << "make_links: " << AddStarLinks(argv[4], links) << " named stars\n";
    }
    std::stable_sort(links.begin(), links.end(),
                     [](const Link& a, const Link& b) { return a.Uid < b.Uid; });

    std::ofstream out(output, std::ios::binary);
    if (!out) {
        std::cerr << "make_links: cannot write " << output << "\n";
        return 1;
    }
    out << "# Article addresses of the planetarium's objects, by uid. Made by "
           "tools/links/make_links\n"
           "# from KStars' info_url.dat (Debian package kstars-data), the constellation list and\n"
           "# the named stars; do not edit by hand, run tools/links/make_links_file\n"
           "# One link a line: uid | object | title | address. A uid's first line is the link\n"
           "# the planetarium opens for it.\n";
    std::map<long, int> objects;
    for (const Link& link : links) {
        char uid[16];
        std::snprintf(uid, sizeof uid, "0x%08lX", static_cast<unsigned long>(link.Uid));
        out << uid << " | " << link.Name << " | " << link.Title << " | " << link.Address << "\n";
        ++objects[link.Uid];
    }
    std::cerr << "make_links: " << links.size() << " links for " << objects.size()
              << " objects written to " << output << ", " << skipped << " source lines left out\n";
    return out ? 0 : 1;
}
