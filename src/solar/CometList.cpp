#include "solar/CometList.h"

#include "catalogues/LorvString.h"
#include "catalogues/StringParser.h"
#include "host/HostProf.h"
#include "solar/Comet.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <utility>

namespace {

constexpr const char* kSection = "Orbiscope";
constexpr const char* kCountKey = "NumberOfComets";
constexpr const char* kRecordKeyStem = "Comet";

// The number of a key "Comet<n>" (any case, n decimal without a leading zero), or 0.
unsigned long RecordNumber(const std::string& key)
{
    const std::size_t stem = std::char_traits<char>::length(kRecordKeyStem);
    if (key.size() <= stem || key.size() > stem + 9 ||
        !EqualNoCase(key.substr(0, stem), kRecordKeyStem) || key[stem] == '0') {
        return 0;
    }
    unsigned long number = 0;
    for (std::size_t i = stem; i < key.size(); ++i) {
        if (!std::isdigit(static_cast<unsigned char>(key[i]))) {
            return 0;
        }
        number = number * 10 + static_cast<unsigned long>(key[i] - '0');
    }
    return number;
}

ListedComet Listed(unsigned index, const char* name, const AstroTime& perihelion, double q,
                   double e, double inclination, double node, double argument)
{
    ListedComet comet;
    comet.Index = index;
    comet.Elements.Name = name;
    comet.Elements.Perihelion = perihelion;
    comet.Elements.PerihelionDistance = q;
    comet.Elements.Eccentricity = e;
    comet.Elements.Inclination = DegreeAngle(inclination);
    comet.Elements.Node = DegreeAngle(node);
    comet.Elements.Argument = DegreeAngle(argument);
    return comet;
}

} // namespace

std::vector<ListedComet> LoadCometList(const HostProf& profile)
{
    const long count = profile.GetInt(kSection, kCountKey, 0);
    if (count < 1) {
        return BuiltInComets();
    }

    // The numbered keys present, in the order of their numbers.
    std::vector<std::pair<unsigned long, std::string>> keys;
    for (const std::string& key : profile.GetKeys(kSection)) {
        const unsigned long number = RecordNumber(key);
        if (number >= 1 && number <= static_cast<unsigned long>(count)) {
            keys.emplace_back(number, key);
        }
    }
    std::sort(keys.begin(), keys.end());

    std::vector<ListedComet> comets;
    for (const auto& [number, key] : keys) {
        const std::string record = profile.Get(kSection, key, "");
        if (record.empty()) {
            continue;
        }
        const auto index = static_cast<unsigned>(number - 1);
        StringParser parser(record, ",", true);
        Comet comet;
        if (comet.Initialize(index, parser)) {
            comets.push_back({index, comet.GetElements()});
        }
    }
    return comets;
}

std::vector<ListedComet> BuiltInComets()
{
    // Perihelion times, Universal Time: 1997 April 1 3:29:44.64 and 1986 February 9 10:33:36.
    const AstroTime haleBopp(1, 4, 1997, 3.0 + 29.0 / 60.0 + 44.64 / 3600.0);
    const AstroTime halley(9, 2, 1986, 10.0 + 33.0 / 60.0 + 36.0 / 3600.0);
    return {
        Listed(0, "Hale-Bopp", haleBopp, 0.9141261, 0.9950884, 89.42829, 282.47081, 130.59099),
        Listed(1, "Halley's", halley, 0.5870992, 0.9672725, 162.23932, 58.14397, 111.84658),
    };
}
