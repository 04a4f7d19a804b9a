// Any text as the zone index file, as a POSIX zone rule, as a compiled zone file and as the
// TZ variable: reading must never fault, and every zone that comes out must convert times
// with one of its two biases.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "FuzzScratch.h"
#include "time/AstroTime.h"
#include "time/TimeZone.h"
#include "time/TimeZoneRule.h"

namespace {

void Check(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

// The record of a rule keeps its biases within a day and its daylight bias negative.
void CheckRecord(const _TIME_ZONE_INFORMATION& info)
{
    Check(info.Bias >= -26 * 60 && info.Bias <= 26 * 60);
    Check(info.DaylightBias <= 0 && info.DaylightBias >= -50 * 60);
    Check(info.StandardDate.wMonth <= 12 && info.DaylightDate.wMonth <= 12);
    Check((info.StandardDate.wMonth == 0) == (info.DaylightDate.wMonth == 0));
}

// Local time from UT moves by one of the zone's two biases, and back again by one of them.
void CheckConversions(const TimeZone& zone)
{
    const _TIME_ZONE_INFORMATION& info = zone.GetZoneInformation();
    for (unsigned month = 1; month <= 12; ++month) {
        AstroTime universal(month * 2, month, 2026, month * 1.9);
        AstroTime local = universal - zone;
        long shift = std::lround((universal.GetMJD() - local.GetMJD()) * 1440.0);
        Check(shift == info.Bias || shift == info.Bias + info.DaylightBias);
        long bias = zone.GetBiasForLocalTime(local);
        Check(bias == info.Bias || bias == info.Bias + info.DaylightBias);
        AstroTime back = local + zone;
        Check(std::fabs(back.GetMJD() - universal.GetMJD()) * 1440.0 <=
              std::abs(info.DaylightBias) + 0.02);
    }
}

// The index text's file, in a folder removed when the fuzzer ends.
FuzzScratch& Scratch()
{
    static FuzzScratch scratch("timezone");
    return scratch;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(data), size);
    static const bool loaded = (TimeZone::LoadTimeZones(), true);
    (void)loaded;

    // The index file.
    if (Scratch().Write("index.txt", input)) {
        TimeZone::LoadTimeZoneIndex(Scratch().Path("index.txt"));
        for (unsigned number = 0; number < 40; ++number) {
            if (const TimeZone* zone = TimeZone::GetTimeZone(number)) {
                Check(number != 0);
                Check(!zone->GetDisplayName().empty());
            }
        }
    }
    TimeZone::GetTimeZoneMultiple(input);

    // The rule, and the rule's zone.
    TimeZoneRule rule;
    if (rule.Parse(input)) {
        CheckRecord(rule.ToZoneInformation());
        TimeZone zone;
        Check(TimeZone::FromRule(input, zone));
        CheckConversions(zone);
    }

    // A compiled zone file.
    TimeZone fromFile;
    if (TimeZone::FromFileBytes(input, fromFile)) {
        CheckRecord(fromFile.GetZoneInformation());
        CheckConversions(fromFile);
    }

    // The TZ variable, apart from paths, which would read whatever files the text names.
    std::string tz = input.substr(0, input.find('\0'));
    if (tz.find('/') != 0 && tz.find(":/") != 0) {
        TimeZone system = TimeZone::FindSystemTimeZone(tz.c_str(), "/nonexistent");
        CheckConversions(system);
        system.SetStandardName(input);
        system.GetStandardName();
    }
    return 0;
}
