#include "time/TimeZone.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "catalogues/LorvString.h"
#include "catalogues/TextFile.h"
#include "host/HostProf.h"
#include "host/HostStringParser.h"
#include "platform/DebugStream.h"
#include "state/StateContainer.h"
#include "time/AstroTime.h"
#include "time/TimeStep.h"
#include "time/TimeZoneDirectory.h"
#include "time/TimeZoneFile.h"
#include "time/TimeZoneRule.h"

namespace fs = std::filesystem;

std::vector<TimeZone> TimeZone::sTimeZones;
std::vector<std::string> TimeZone::sTimeZoneIndexTable;
std::string TimeZone::sZoneRoot;

namespace {

constexpr std::size_t NameUnits = 31; // UTF-16 units of a record name, before its terminator
constexpr char32_t Replacement = 0xFFFD;

bool SameDate(const _SYSTEMTIME& a, const _SYSTEMTIME& b)
{
    return a.wYear == b.wYear && a.wMonth == b.wMonth && a.wDayOfWeek == b.wDayOfWeek &&
           a.wDay == b.wDay && a.wHour == b.wHour && a.wMinute == b.wMinute &&
           a.wSecond == b.wSecond && a.wMilliseconds == b.wMilliseconds;
}

// The moment of a change-over rule in a year. Hours from 0 up are the rule constructor's to
// read; a negative hour (stored as a signed 16-bit value) counts back from the rule's day.
AstroTime ChangeOver(const _SYSTEMTIME& rule, long year)
{
    auto hour = static_cast<std::int16_t>(rule.wHour);
    if (hour >= 0) {
        return AstroTime(rule, static_cast<int>(year));
    }
    _SYSTEMTIME midnight = rule;
    midnight.wHour = 0;
    AstroTime moment(midnight, static_cast<int>(year));
    moment -= TimeStep(TimeStep::HOURS, -hour);
    return moment;
}

// The zone's own name in a display name "(UTC+01:00) Europe/Berlin", or the whole text.
std::string ZoneNameOf(const std::string& display)
{
    if (display.compare(0, 4, "(UTC") == 0) {
        std::size_t close = display.find(") ");
        if (close != std::string::npos) {
            return display.substr(close + 2);
        }
    }
    return display;
}

// Decodes one UTF-8 sequence at `at`; a byte that starts no valid sequence gives U+FFFD and
// is passed over alone.
char32_t DecodeUtf8(const std::string& text, std::size_t& at)
{
    auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char lead = byte(at);
    int length = lead < 0x80         ? 1
                 : (lead >> 5) == 6  ? 2
                 : (lead >> 4) == 14 ? 3
                 : (lead >> 3) == 30 ? 4
                                     : 0;
    if (length == 1) {
        ++at;
        return lead;
    }
    if (length == 0 || at + length > text.size()) {
        ++at;
        return Replacement;
    }
    char32_t value = lead & (0x7F >> length);
    for (int i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80) {
            ++at;
            return Replacement;
        }
        value = value << 6 | (byte(at + i) & 0x3F);
    }
    static const char32_t smallest[5] = {0, 0, 0x80, 0x800, 0x10000};
    if (value < smallest[length] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) {
        ++at;
        return Replacement;
    }
    at += length;
    return value;
}

void AppendUtf8(std::string& text, char32_t c)
{
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | c >> 6);
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        text += static_cast<char>(0xE0 | c >> 12);
        text += static_cast<char>(0x80 | (c >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        text += static_cast<char>(0xF0 | c >> 18);
        text += static_cast<char>(0x80 | (c >> 12 & 0x3F));
        text += static_cast<char>(0x80 | (c >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    }
}

TimeZone* FindByZoneName(std::vector<TimeZone>& zones, const std::string& name)
{
    if (name.empty()) {
        return nullptr;
    }
    for (TimeZone& zone : zones) {
        if (EqualNoCase(zone.GetZoneName(), name)) {
            return &zone;
        }
    }
    return nullptr;
}

} // namespace

TimeZone::TimeZone(const std::string& display, const _TIME_ZONE_INFORMATION& info)
    : DisplayName(display), Info(info)
{}

// ---- The list of zones ----

const std::vector<TimeZone>& TimeZone::GetAllTimeZones()
{
    if (sTimeZones.empty()) {
        LoadTimeZones();
    }
    return sTimeZones;
}

void TimeZone::LoadTimeZones()
{
    LoadTimeZonesFrom(TimeZoneDirectory::DefaultRoot());
}

void TimeZone::LoadTimeZonesFrom(const std::string& root)
{
    sTimeZones.clear();
    TimeZoneDirectory directory(root);
    sZoneRoot = directory.GetRoot();
    for (const std::string& name : directory.GetZoneNames()) {
        std::string bytes;
        TimeZone zone;
        if (!TimeZoneFile::ReadBytes(directory.GetPath(name), bytes) ||
            !FromFileBytes(bytes, zone)) {
            dbstream << "Time zone file not readable: " << directory.GetPath(name) << dbendl;
            continue;
        }
        zone.DisplayName = MakeDisplayName(zone.Info.Bias, name);
        zone.SetStandardName(name);
        sTimeZones.push_back(std::move(zone));
    }
    if (sTimeZones.empty()) {
        dbstream << "No time zones found below " << sZoneRoot << dbendl;
    }
}

bool TimeZone::FromRule(const std::string& rule, TimeZone& zone)
{
    TimeZoneRule parsed;
    if (!parsed.Parse(rule)) {
        return false;
    }
    zone = TimeZone(std::string(), parsed.ToZoneInformation());
    return true;
}

bool TimeZone::FromFileBytes(const std::string& bytes, TimeZone& zone)
{
    TimeZoneFile file;
    if (!file.Parse(bytes)) {
        return false;
    }
    if (!file.GetRule().empty() && FromRule(file.GetRule(), zone)) {
        return true;
    }
    // No rule for the future: the offset the file ends with holds for ever.
    long east = file.GetLastUtcOffset();
    _TIME_ZONE_INFORMATION info;
    info.Bias = static_cast<std::int32_t>(east >= 0 ? -((east + 30) / 60) : (-east + 30) / 60);
    zone = TimeZone(std::string(), info);
    return true;
}

std::string TimeZone::MakeDisplayName(long bias, const std::string& zoneName)
{
    long east = -bias;
    long magnitude = east < 0 ? -east : east;
    char offset[32];
    std::snprintf(offset, sizeof offset, "(UTC%c%02ld:%02ld) ", east < 0 ? '-' : '+',
                  magnitude / 60, magnitude % 60);
    return offset + zoneName;
}

std::string TimeZone::GetZoneName() const
{
    return ZoneNameOf(DisplayName);
}

TimeZone* TimeZone::GetTimeZone(const std::string& display)
{
    if (sTimeZones.empty()) {
        LoadTimeZones();
    }
    if (display.empty()) {
        return nullptr;
    }
    for (TimeZone& zone : sTimeZones) {
        if (EqualNoCase(zone.DisplayName, display)) {
            return &zone;
        }
    }
    return FindByZoneName(sTimeZones, ZoneNameOf(display));
}

TimeZone* TimeZone::GetTimeZoneMultiple(const std::string& names)
{
    HostStringParser parser(names);
    for (std::string name = parser.GetNext("|"); !name.empty(); name = parser.GetNext("|")) {
        if (TimeZone* zone = GetTimeZone(name)) {
            return zone;
        }
    }
    return nullptr;
}

TimeZone* TimeZone::GetTimeZone(unsigned number)
{
    if (number == 0) {
        return nullptr;
    }
    if (sTimeZoneIndexTable.empty()) {
        LoadTimeZoneIndex(TimeZoneIndexPath());
    }
    if (number >= sTimeZoneIndexTable.size()) {
        return nullptr;
    }
    return GetTimeZoneMultiple(sTimeZoneIndexTable[number]);
}

bool TimeZone::LoadTimeZoneIndex(const std::string& path)
{
    sTimeZoneIndexTable.clear();
    TextFile file;
    if (file.OpenForReading(path.c_str())) {
        for (const char* line = file.GetNextLine(); line != nullptr && *line != '\0';
             line = file.GetNextLine()) {
            sTimeZoneIndexTable.emplace_back(line);
        }
    }
    if (sTimeZoneIndexTable.empty()) {
        sTimeZoneIndexTable.emplace_back();
        return false;
    }
    return true;
}

std::string TimeZone::TimeZoneIndexPath()
{
    return HostProfile().GetPath("Orbiscope", "TimeZoneIndexFile", "ed:\\timezone.txt");
}

void TimeZone::PrintAllTimeZoneNames(TextFile& file)
{
    const std::vector<TimeZone>& zones = GetAllTimeZones();
    for (std::size_t i = 0; i < zones.size(); ++i) {
        if (i > 0) {
            file.Write("\n");
        }
        file.Write(zones[i].DisplayName.c_str());
    }
}

// ---- The machine's zone ----

TimeZone TimeZone::GetSystemTimeZone()
{
    return FindSystemTimeZone(std::getenv("TZ"), "/etc/localtime");
}

TimeZone TimeZone::FindSystemTimeZone(const char* tzVariable, const std::string& localtimePath)
{
    if (sTimeZones.empty()) {
        LoadTimeZones();
    }
    if (tzVariable == nullptr) {
        return FromPath(localtimePath);
    }
    std::string value(tzVariable);
    if (!value.empty() && value[0] == ':') {
        value.erase(0, 1);
    }
    if (value.empty()) {
        // The C library reads an empty TZ as Universal Time.
        return NamedOrNameless("UTC");
    }
    if (value[0] == '/') {
        return FromPath(value);
    }
    if (TimeZone* zone = GetTimeZone(value)) {
        return *zone;
    }
    // A file of the tree that the list leaves out, such as "posix/Europe/Berlin".
    std::error_code error;
    std::string inTree = TimeZoneDirectory(sZoneRoot).GetPath(value);
    if (value.find("..") == std::string::npos && fs::is_regular_file(inTree, error)) {
        return FromPath(inTree);
    }
    TimeZone ruled;
    if (FromRule(value, ruled)) {
        return FirstEqual(ruled);
    }
    return TimeZone();
}

TimeZone TimeZone::NamedOrNameless(const std::string& name)
{
    TimeZone* zone = FindByZoneName(sTimeZones, name);
    return zone != nullptr ? *zone : TimeZone();
}

TimeZone TimeZone::FirstEqual(const TimeZone& zone)
{
    for (const TimeZone& entry : sTimeZones) {
        if (entry == zone) {
            return entry;
        }
    }
    return zone;
}

TimeZone TimeZone::FromPath(const std::string& path)
{
    TimeZoneDirectory directory(sZoneRoot);
    if (TimeZone* zone = FindByZoneName(sTimeZones, directory.NameOfLink(path))) {
        return *zone;
    }
    // Only plain files: a TZ that names a device or a pipe must not block the reader.
    std::error_code kind;
    std::string bytes;
    if (!fs::is_regular_file(path, kind) || !TimeZoneFile::ReadBytes(path, bytes)) {
        return TimeZone();
    }
    // The same bytes as a zone file: the old names of a zone are links to its file, so a file
    // that is not a link names the zone the way the database itself does.
    const TimeZone* linkedMatch = nullptr;
    for (const TimeZone& zone : sTimeZones) {
        std::string file = directory.GetPath(zone.GetZoneName());
        std::error_code error;
        if (fs::file_size(file, error) != bytes.size() || error) {
            continue;
        }
        std::string other;
        if (!TimeZoneFile::ReadBytes(file, other) || other != bytes) {
            continue;
        }
        if (!fs::is_symlink(file, error)) {
            return zone;
        }
        if (linkedMatch == nullptr) {
            linkedMatch = &zone;
        }
    }
    if (linkedMatch != nullptr) {
        return *linkedMatch;
    }
    TimeZone fromFile;
    if (!FromFileBytes(bytes, fromFile)) {
        return TimeZone();
    }
    return FirstEqual(fromFile);
}

// ---- Daylight saving ----

bool TimeZone::IsInDaylightSavingsRange(const AstroTime& time, bool standardTime) const
{
    if (!bAutomaticDST) {
        return bManualDSTToggle;
    }
    if (Info.StandardDate.wMonth == 0 || Info.DaylightDate.wMonth == 0) {
        return false;
    }
    long year = time.GetYear();
    AstroTime end = ChangeOver(Info.StandardDate, year);
    AstroTime start = ChangeOver(Info.DaylightDate, year);
    if (standardTime) {
        // The start is told in standard time already. The end is told in daylight time, which
        // runs -DaylightBias minutes ahead of standard time, so in standard time it is the
        // end plus DaylightBias minutes: 02:00 daylight time is 01:00 standard time.
        end += TimeStep(TimeStep::MINUTES, static_cast<int>(Info.DaylightBias));
    }
    if (end < start) {
        // Southern hemisphere: daylight saving spans the turn of the year.
        return time > start || time < end;
    }
    return time > start && time < end;
}

long TimeZone::GetBiasForLocalTime(const AstroTime& localTime) const
{
    return IsInDaylightSavingsRange(localTime, false) ? Info.Bias + Info.DaylightBias : Info.Bias;
}

// ---- Names, equality, state ----

void TimeZone::SetStandardName(const std::string& name)
{
    std::u16string units;
    for (std::size_t at = 0; at < name.size();) {
        char32_t c = DecodeUtf8(name, at);
        std::size_t needed = c >= 0x10000 ? 2 : 1;
        if (units.size() + needed > NameUnits) {
            break;
        }
        if (needed == 2) {
            units += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            units += static_cast<char16_t>(c);
        }
    }
    std::fill(std::begin(Info.StandardName), std::end(Info.StandardName), u'\0');
    std::copy(units.begin(), units.end(), Info.StandardName);
}

std::string TimeZone::GetStandardName() const
{
    std::string text;
    const char16_t* name = Info.StandardName;
    for (std::size_t i = 0; i <= NameUnits && name[i] != u'\0'; ++i) {
        char32_t c = name[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 <= NameUnits && name[i + 1] >= 0xDC00 &&
            name[i + 1] <= 0xDFFF) {
            c = 0x10000 + ((c - 0xD800) << 10) + (name[i + 1] - 0xDC00);
            ++i;
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            c = Replacement;
        }
        AppendUtf8(text, c);
    }
    return text;
}

bool TimeZone::operator==(const TimeZone& other) const
{
    return Info.Bias == other.Info.Bias && Info.StandardBias == other.Info.StandardBias &&
           Info.DaylightBias == other.Info.DaylightBias &&
           SameDate(Info.StandardDate, other.Info.StandardDate) &&
           SameDate(Info.DaylightDate, other.Info.DaylightDate);
}

StateContainer& operator<<(StateContainer& sc, const TimeZone& zone)
{
    return sc << NewLevel << AstroKey("Display") << zone.DisplayName << AstroKey("AutomaticDST")
              << zone.bAutomaticDST << AstroKey("ManualDSTToggle") << zone.bManualDSTToggle
              << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, TimeZone& zone)
{
    std::string display;
    bool automatic = false;
    bool manual = false;
    sc >> GoToLevel >> AstroKey("Display") >> display >> AstroKey("AutomaticDST") >> automatic >>
        AstroKey("ManualDSTToggle") >> manual >> EndLevel;
    if (TimeZone* known = TimeZone::GetTimeZone(display)) {
        zone.Copy(*known);
    }
    zone.bAutomaticDST = automatic;
    zone.bManualDSTToggle = manual;
    return sc;
}
