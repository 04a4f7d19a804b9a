#pragma once
// A time zone with its yearly daylight saving rule, in which the map shows its Universal Time.
//
// The zones come from the system's IANA database (see TimeZoneDirectory): every zone file
// gives its present rule (see TimeZoneRule), which becomes the platform's zone record (see
// TimeZoneInformation.h), with the display name "(UTC+01:00) Europe/Berlin" (the standard
// offset and the zone's name) and the zone's name as the record's standard name (cut to 31
// characters). All zones are loaded once into a static list, in the order of their names.
//
// What a record cannot tell: a zone's history. The present rule serves every year, past ones
// too, and zones whose changes follow no yearly rule (Morocco's around Ramadan, which the
// database lists date by date) keep only the offset their files end with.
//
// The zone index file (profile key "TimeZoneIndexFile" of section "Orbiscope", default
// "ed:\timezone.txt") gives the zone numbers of the city list: line n (from 0) holds the
// display names of zone n separated by "|", the first known one counting. Reading stops at
// the first empty line; line 0 is never used, as zone number 0 means no zone.
//
// Names are compared without regard to case. A name is first taken as a whole display name;
// when none matches, the zone's own name in it counts ("(UTC+06:00) Asia/Almaty", "Asia/Almaty"
// and "asia/almaty" all find "(UTC+05:00) Asia/Almaty"), so a city list or a saved view stays
// good when the database moves a zone to another offset.
#include <string>
#include <vector>

#include "time/TimeZoneInformation.h"

class AstroTime;
class StateContainer;
class TextFile;

class TimeZone
{
public:
    // Empty display name, automatic daylight saving, toggle off, a zero record (UT).
    TimeZone() = default;
    TimeZone(const std::string& display, const _TIME_ZONE_INFORMATION& info);

    // The machine's zone: the TZ variable, else /etc/localtime (see FindSystemTimeZone).
    static TimeZone GetSystemTimeZone();
    // The zone that a TZ value (null when the variable is not set) and a localtime file give:
    //  - TZ ":Europe/Berlin" or "Europe/Berlin": that zone; "" (or ":"): the UTC zone;
    //    an absolute path: that file, as for the localtime file;
    //    a POSIX rule such as "CET-1CEST,M3.5.0,M10.5.0/3": the first zone with that record.
    //  - The localtime file: the zone it links to, else the first zone file of the same
    //    bytes, else the first zone with the record of its rule.
    // A copy of the list's entry; the nameless zone (with the record found, if any) when
    // there is none.
    static TimeZone FindSystemTimeZone(const char* tzVariable, const std::string& localtimePath);

    // The list of all zones, loaded on first use.
    static const std::vector<TimeZone>& GetAllTimeZones();
    // Fills the list again from the system's zone files.
    static void LoadTimeZones();
    // Fills the list from the zone files below `root`; an empty list when there are none.
    static void LoadTimeZonesFrom(const std::string& root);

    // The zone of that display name or zone name, or null. Loads the list when needed. The
    // pointer points into the list and stays good until the list is loaded again.
    static TimeZone* GetTimeZone(const std::string& display);
    // The zone of the first known name of an index line ("name|name|...").
    static TimeZone* GetTimeZoneMultiple(const std::string& names);
    // The zone of a zone number of the index file, or null (always for 0).
    static TimeZone* GetTimeZone(unsigned number);

    // Reads the index file into the table of zone numbers, replacing what was there; false
    // when the file gave no line (the table then holds one empty line, and it is not read
    // again on its own).
    static bool LoadTimeZoneIndex(const std::string& path);
    // The index file as the profile names it.
    static std::string TimeZoneIndexPath();

    // Writes every display name, "\n" between two.
    static void PrintAllTimeZoneNames(TextFile& file);

    // Whether `time`, in local standard time when `standardTime` is set and in local wall
    // time otherwise, lies in daylight saving. Without automatic daylight saving the manual
    // toggle decides. The change-over moments themselves count as outside.
    bool IsInDaylightSavingsRange(const AstroTime& time, bool standardTime) const;
    // Minutes from local wall time to UT at that local time: Bias, plus DaylightBias in
    // daylight saving.
    long GetBiasForLocalTime(const AstroTime& localTime) const;

    // The record's standard name as UTF-8, and set from UTF-8 (cut at 31 UTF-16 units).
    void SetStandardName(const std::string& name);
    std::string GetStandardName() const;

    const std::string& GetDisplayName() const { return DisplayName; }
    // The zone's own name within the display name: "Europe/Berlin" of
    // "(UTC+01:00) Europe/Berlin"; the whole display name when it has no offset in front.
    std::string GetZoneName() const;
    const _TIME_ZONE_INFORMATION& GetZoneInformation() const { return Info; }
    bool GetAutomaticDST() const { return bAutomaticDST; }
    void SetAutomaticDST(bool automatic) { bAutomaticDST = automatic; }
    bool GetManualDSTToggle() const { return bManualDSTToggle; }
    void SetManualDSTToggle(bool on) { bManualDSTToggle = on; }

    // "(UTC+05:30) Asia/Kolkata" for a bias of -330 minutes.
    static std::string MakeDisplayName(long bias, const std::string& zoneName);
    // The zone of a POSIX rule, or of a zone file's bytes: nameless, false when unreadable.
    static bool FromRule(const std::string& rule, TimeZone& zone);
    static bool FromFileBytes(const std::string& bytes, TimeZone& zone);

    void Copy(const TimeZone& other) { *this = other; }
    // Same biases and change-over rules; names and flags do not count.
    bool operator==(const TimeZone& other) const;
    bool operator!=(const TimeZone& other) const { return !(*this == other); }

    friend StateContainer& operator<<(StateContainer& sc, const TimeZone& zone);
    friend StateContainer& operator>>(StateContainer& sc, TimeZone& zone);

private:
    // The first entry equal to `zone` as a copy, or `zone` itself.
    static TimeZone FirstEqual(const TimeZone& zone);
    static TimeZone FromPath(const std::string& path);
    static TimeZone NamedOrNameless(const std::string& name);

    std::string DisplayName;
    _TIME_ZONE_INFORMATION Info;
    bool bAutomaticDST = true;
    bool bManualDSTToggle = false;

    static std::vector<TimeZone> sTimeZones;
    static std::vector<std::string> sTimeZoneIndexTable;
    // The root the list was loaded from; the system zone search compares files there.
    static std::string sZoneRoot;
};

// State: a level at the caller's key with "Display", "AutomaticDST" and "ManualDSTToggle".
// Reading takes the record of the zone of that name on this machine; a name unknown here
// leaves the zone as it was, and the two flags are set in either case.
StateContainer& operator<<(StateContainer& sc, const TimeZone& zone);
StateContainer& operator>>(StateContainer& sc, TimeZone& zone);
