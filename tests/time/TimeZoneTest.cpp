// The time zone on records built in code: the daylight saving range, the biases, the
// conversions of AstroTime, equality, names and state.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "state/CmdLineStateContainer.h"
#include "time/AstroTime.h"
#include "time/TimeZone.h"
#include "time/TimeZoneRule.h"

namespace {

_SYSTEMTIME Rule(unsigned month, unsigned weekday, unsigned occurrence, int hour,
                 unsigned minute = 0)
{
    _SYSTEMTIME rule{};
    rule.wMonth = static_cast<std::uint16_t>(month);
    rule.wDayOfWeek = static_cast<std::uint16_t>(weekday);
    rule.wDay = static_cast<std::uint16_t>(occurrence);
    rule.wHour = static_cast<std::uint16_t>(static_cast<std::int16_t>(hour));
    rule.wMinute = static_cast<std::uint16_t>(minute);
    return rule;
}

// A zone with the given bias and one hour of daylight saving between two rules.
TimeZone Zone(long bias, const _SYSTEMTIME& daylightStart, const _SYSTEMTIME& daylightEnd,
              long daylightBias = -60)
{
    _TIME_ZONE_INFORMATION info;
    info.Bias = static_cast<std::int32_t>(bias);
    info.DaylightBias = static_cast<std::int32_t>(daylightBias);
    info.DaylightDate = daylightStart;
    info.StandardDate = daylightEnd;
    return TimeZone("Test", info);
}

// The northern rule of the examples: first Sunday of April to last Sunday of October, 02:00.
TimeZone Northern(long bias = 300)
{
    return Zone(bias, Rule(4, 0, 1, 2), Rule(10, 0, 5, 2));
}

// A southern rule: first Sunday of October to third Sunday of March, 02:00 and 03:00.
TimeZone Southern()
{
    return Zone(-600, Rule(10, 0, 1, 2), Rule(3, 0, 3, 3));
}

TimeZone FromRule(const char* text)
{
    TimeZone zone;
    EXPECT_TRUE(TimeZone::FromRule(text, zone)) << text;
    return zone;
}

AstroTime At(unsigned day, unsigned month, long year, unsigned hour, unsigned minute = 0,
             unsigned second = 0)
{
    AstroTime time(day, month, year, 0.0);
    time.SetFromFloatHour(hour + (minute + second / 60.0) / 60.0, true);
    return time;
}

void ExpectMoment(const AstroTime& time, const AstroTime& expected)
{
    EXPECT_EQ(time.GetDescription1(), expected.GetDescription1());
}

} // namespace

TEST(TimeZoneDaylightRange, ZoneWithoutARuleNeverSavesDaylight)
{
    TimeZone noDaylightMonth = Zone(-330, Rule(0, 0, 0, 0), Rule(10, 0, 5, 2));
    TimeZone noStandardMonth = Zone(-330, Rule(4, 0, 1, 2), Rule(0, 0, 0, 0));
    for (unsigned month = 1; month <= 12; ++month) {
        for (bool standardTime : {false, true}) {
            EXPECT_FALSE(
                noDaylightMonth.IsInDaylightSavingsRange(At(15, month, 2026, 12), standardTime));
            EXPECT_FALSE(
                noStandardMonth.IsInDaylightSavingsRange(At(15, month, 2026, 12), standardTime));
        }
    }
    EXPECT_EQ(noDaylightMonth.GetBiasForLocalTime(At(1, 7, 2026, 12)), -330);
}

TEST(TimeZoneDaylightRange, ManualToggleDecidesWhenAutomaticIsOff)
{
    TimeZone zone = Northern();
    EXPECT_TRUE(zone.GetAutomaticDST());
    EXPECT_FALSE(zone.GetManualDSTToggle());
    zone.SetAutomaticDST(false);
    zone.SetManualDSTToggle(true);
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(1, 1, 2026, 12), false));
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(1, 1, 2026, 12), true));
    EXPECT_EQ(zone.GetBiasForLocalTime(At(1, 1, 2026, 12)), 240);
    zone.SetManualDSTToggle(false);
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(1, 7, 2026, 12), false));
    EXPECT_EQ(zone.GetBiasForLocalTime(At(1, 7, 2026, 12)), 300);

    // The toggle also works for a zone that has no rule at all.
    TimeZone plain;
    plain.SetAutomaticDST(false);
    plain.SetManualDSTToggle(true);
    EXPECT_TRUE(plain.IsInDaylightSavingsRange(At(1, 1, 2026, 12), false));
}

TEST(TimeZoneDaylightRange, NorthernRuleAndItsStrictBoundaries)
{
    TimeZone zone = Northern();
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(1, 7, 1999, 12), false));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(1, 1, 1999, 12), false));
    // 1999: the first Sunday of April is 4 April, the last Sunday of October 31 October.
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(4, 4, 1999, 1, 59), false));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(4, 4, 1999, 2), false)); // the moment itself
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(4, 4, 1999, 2, 0, 1), false));
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(31, 10, 1999, 1, 59, 59), false));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(31, 10, 1999, 2), false));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(3, 4, 1999, 12), false));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(1, 11, 1999, 0), false));
    // The same rule falls on other days in another year: 2 April and 29 October 2000.
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(2, 4, 2000, 3), false));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(30, 10, 2000, 0), false));
}

TEST(TimeZoneDaylightRange, SouthernRuleSpansTheTurnOfTheYear)
{
    TimeZone zone = Southern();
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(1, 1, 2026, 12), false));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(1, 7, 2026, 12), false));
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(1, 11, 2026, 12), false));
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(31, 12, 2026, 23, 59), false));
    // 2026: the third Sunday of March is 15 March, the first Sunday of October 4 October.
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(15, 3, 2026, 2, 59), false));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(15, 3, 2026, 3, 1), false));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(4, 10, 2026, 1, 59), false));
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(4, 10, 2026, 2, 1), false));
}

TEST(TimeZoneDaylightRange, StandardTimeFormMovesTheEndByTheDaylightBias)
{
    // The end of daylight saving, 02:00 daylight time, is 01:00 standard time. The start
    // is told in standard time in both forms.
    TimeZone zone = Northern();
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(31, 10, 1999, 0, 59), true));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(31, 10, 1999, 1, 1), true));
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(31, 10, 1999, 1, 1), false));
    EXPECT_FALSE(zone.IsInDaylightSavingsRange(At(4, 4, 1999, 1, 59), true));
    EXPECT_TRUE(zone.IsInDaylightSavingsRange(At(4, 4, 1999, 2, 1), true));

    // Half an hour of daylight saving moves the end by half an hour.
    TimeZone half = Zone(-630, Rule(10, 0, 1, 2), Rule(4, 0, 1, 2), -30);
    EXPECT_TRUE(half.IsInDaylightSavingsRange(At(5, 4, 2026, 1, 29), true));
    EXPECT_FALSE(half.IsInDaylightSavingsRange(At(5, 4, 2026, 1, 31), true));
    EXPECT_TRUE(half.IsInDaylightSavingsRange(At(5, 4, 2026, 1, 31), false));
}

TEST(TimeZoneBias, BiasForLocalTimeAddsTheDaylightBiasInSummer)
{
    TimeZone zone = Northern(300);
    EXPECT_EQ(zone.GetBiasForLocalTime(At(1, 7, 2026, 12)), 240);
    EXPECT_EQ(zone.GetBiasForLocalTime(At(1, 1, 2026, 12)), 300);
    TimeZone south = Southern();
    EXPECT_EQ(south.GetBiasForLocalTime(At(1, 1, 2026, 12)), -660);
    EXPECT_EQ(south.GetBiasForLocalTime(At(1, 7, 2026, 12)), -600);
}

TEST(TimeZoneConversion, LocalAndUniversalTimeBothWays)
{
    TimeZone zone = Northern(300);
    // Summer: local 08:00 is 12:00 UT; winter: local 07:00 is 12:00 UT.
    ExpectMoment(At(1, 7, 2026, 8) + zone, At(1, 7, 2026, 12));
    ExpectMoment(At(1, 7, 2026, 12) - zone, At(1, 7, 2026, 8));
    ExpectMoment(At(1, 1, 2026, 7) + zone, At(1, 1, 2026, 12));
    ExpectMoment(At(1, 1, 2026, 12) - zone, At(1, 1, 2026, 7));
    // Across midnight and the turn of the year.
    ExpectMoment(At(31, 12, 2025, 22, 30) + zone, At(1, 1, 2026, 3, 30));
    ExpectMoment(At(1, 1, 2026, 3, 30) - zone, At(31, 12, 2025, 22, 30));

    TimeZone east = FromRule("<+0545>-5:45");
    ExpectMoment(At(1, 1, 2026, 0, 10) - east, At(1, 1, 2026, 5, 55));
    ExpectMoment(At(1, 1, 2026, 0, 10) + east, At(31, 12, 2025, 18, 25));

    // The conversions keep seconds and the moment's other fields, and leave it alone.
    AstroTime moment = At(1, 7, 2026, 12, 34, 56);
    AstroTime local = moment - zone;
    EXPECT_EQ(local.GetTimeString(), "8:34:56");
    EXPECT_EQ(moment.GetTimeString(), "12:34:56");
}

TEST(TimeZoneConversion, UniversalToLocalIsRightOnBothChangeOverDays)
{
    // 1999, bias 300: the change at 02:00 standard time, 4 April, is 07:00 UT; the change
    // back at 02:00 daylight time, 31 October, is 06:00 UT.
    TimeZone zone = Northern(300);
    ExpectMoment(At(4, 4, 1999, 6, 59) - zone, At(4, 4, 1999, 1, 59));
    ExpectMoment(At(4, 4, 1999, 7, 1) - zone, At(4, 4, 1999, 3, 1));
    ExpectMoment(At(31, 10, 1999, 5, 59) - zone, At(31, 10, 1999, 1, 59));
    ExpectMoment(At(31, 10, 1999, 6, 1) - zone, At(31, 10, 1999, 1, 1));
    // Every whole and half hour of both days goes there and back, apart from the local
    // hour that happens twice, whose first pass local time gives back.
    for (unsigned day : {4u, 31u}) {
        unsigned month = day == 4 ? 4 : 10;
        for (unsigned step = 0; step < 48; ++step) {
            AstroTime universal = At(day, month, 1999, step / 2, step % 2 * 30);
            AstroTime back = (universal - zone) + zone;
            bool secondPass = day == 31 && (step == 12 || step == 13);
            if (secondPass) {
                ExpectMoment(back, At(day, month, 1999, step / 2 - 1, step % 2 * 30));
            } else {
                ExpectMoment(back, universal);
            }
        }
    }
}

TEST(TimeZoneConversion, RuleWithANegativeHour)
{
    // Nuuk-like: bias 120, daylight saving from the last Sunday of March at -1:00 (Saturday
    // 23:00) to the last Sunday of October at 00:00 daylight time. In 2026 those Sundays are
    // 29 March and 25 October; both changes fall on 01:00 UT.
    TimeZone nuuk = FromRule("<-02>2<-01>,M3.5.0/-1,M10.5.0/0");
    EXPECT_FALSE(nuuk.IsInDaylightSavingsRange(At(28, 3, 2026, 22, 59), false));
    EXPECT_TRUE(nuuk.IsInDaylightSavingsRange(At(28, 3, 2026, 23, 1), false));
    ExpectMoment(At(29, 3, 2026, 0, 59) - nuuk, At(28, 3, 2026, 22, 59));
    ExpectMoment(At(29, 3, 2026, 1, 1) - nuuk, At(29, 3, 2026, 0, 1));
    ExpectMoment(At(25, 10, 2026, 0, 59) - nuuk, At(24, 10, 2026, 23, 59));
    ExpectMoment(At(25, 10, 2026, 1, 1) - nuuk, At(24, 10, 2026, 23, 1));
    // March 2029 ends on a Saturday: the day before the last Sunday (25 March) is the 24th,
    // which no rule on the last Saturday could have said.
    EXPECT_FALSE(nuuk.IsInDaylightSavingsRange(At(24, 3, 2029, 22, 59), false));
    EXPECT_TRUE(nuuk.IsInDaylightSavingsRange(At(24, 3, 2029, 23, 1), false));
}

TEST(TimeZoneEquality, RecordsCountNamesAndFlagsDoNot)
{
    TimeZone a = Northern();
    TimeZone b = Northern();
    b.SetStandardName("Elsewhere");
    b.SetAutomaticDST(false);
    b.SetManualDSTToggle(true);
    EXPECT_TRUE(a == b);

    auto differs = [&](auto change) {
        _TIME_ZONE_INFORMATION info = a.GetZoneInformation();
        change(info);
        return !(TimeZone("Test", info) == a);
    };
    EXPECT_TRUE(differs([](auto& i) { i.Bias += 1; }));
    EXPECT_TRUE(differs([](auto& i) { i.StandardBias = -1; }));
    EXPECT_TRUE(differs([](auto& i) { i.DaylightBias = -30; }));
    EXPECT_TRUE(differs([](auto& i) { i.StandardDate.wYear = 1; }));
    EXPECT_TRUE(differs([](auto& i) { i.StandardDate.wMilliseconds = 1; }));
    EXPECT_TRUE(differs([](auto& i) { i.DaylightDate.wDayOfWeek = 6; }));
    EXPECT_TRUE(differs([](auto& i) { i.DaylightDate.wSecond = 1; }));
    EXPECT_FALSE(differs([](auto& i) { i.DaylightName[0] = u'X'; }));

    TimeZone copy;
    copy.Copy(b);
    EXPECT_EQ(copy.GetDisplayName(), "Test");
    EXPECT_EQ(copy.GetStandardName(), "Elsewhere");
    EXPECT_FALSE(copy.GetAutomaticDST());
    EXPECT_TRUE(copy.GetManualDSTToggle());
}

TEST(TimeZoneNames, StandardNameGoesThroughUtf16AndIsCut)
{
    TimeZone zone;
    zone.SetStandardName("Europe/Berlin");
    EXPECT_EQ(zone.GetStandardName(), "Europe/Berlin");
    EXPECT_EQ(zone.GetZoneInformation().StandardName[0], u'E');

    // 31 units fit; the 32nd place holds the terminator.
    zone.SetStandardName("America/Argentina/ComodRivadavia");
    EXPECT_EQ(zone.GetStandardName(), "America/Argentina/ComodRivadavi");
    EXPECT_EQ(zone.GetZoneInformation().StandardName[31], u'\0');

    // Accented letters take one unit, a character beyond the basic plane two; a pair that
    // would not fit is left out whole.
    zone.SetStandardName("Amérique/Zürich \xF0\x9F\x8C\x8D");
    EXPECT_EQ(zone.GetStandardName(), "Amérique/Zürich \xF0\x9F\x8C\x8D");
    zone.SetStandardName(std::string(30, 'x') + "\xF0\x9F\x8C\x8D");
    EXPECT_EQ(zone.GetStandardName(), std::string(30, 'x'));

    // Bytes that are no UTF-8 become the replacement character; a shorter name clears the
    // rest of a longer one.
    zone.SetStandardName("a\xFF"
                         "b\xC3");
    EXPECT_EQ(zone.GetStandardName(), "a\xEF\xBF\xBD"
                                      "b\xEF\xBF\xBD");
    zone.SetStandardName("");
    EXPECT_EQ(zone.GetStandardName(), "");
    EXPECT_EQ(zone.GetZoneInformation().StandardName[2], u'\0');
}

TEST(TimeZoneNames, DisplayNameShowsTheStandardOffset)
{
    EXPECT_EQ(TimeZone::MakeDisplayName(-60, "Europe/Berlin"), "(UTC+01:00) Europe/Berlin");
    EXPECT_EQ(TimeZone::MakeDisplayName(300, "America/New_York"), "(UTC-05:00) America/New_York");
    EXPECT_EQ(TimeZone::MakeDisplayName(-345, "Asia/Kathmandu"), "(UTC+05:45) Asia/Kathmandu");
    EXPECT_EQ(TimeZone::MakeDisplayName(570, "Pacific/Marquesas"), "(UTC-09:30) Pacific/Marquesas");
    EXPECT_EQ(TimeZone::MakeDisplayName(0, "Etc/UTC"), "(UTC+00:00) Etc/UTC");
    EXPECT_EQ(TimeZone::MakeDisplayName(-840, "Pacific/Kiritimati"),
              "(UTC+14:00) Pacific/Kiritimati");

    EXPECT_EQ(TimeZone("(UTC+01:00) Europe/Berlin", {}).GetZoneName(), "Europe/Berlin");
    EXPECT_EQ(TimeZone("Berlin", {}).GetZoneName(), "Berlin");
    EXPECT_EQ(TimeZone("", {}).GetZoneName(), "");
}

TEST(TimeZoneState, WritesNameAndFlagsInItsLevel)
{
    TimeZone zone("Somewhere Standard Time", Northern().GetZoneInformation());
    zone.SetManualDSTToggle(true);
    CmdLineStateContainer writer;
    writer << AstroKey("TimeZone") << zone;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "TimeZone=<Display=\"Somewhere Standard Time\" AutomaticDST=1 ManualDSTToggle=1>");
}

TEST(TimeZoneState, UnknownNameKeepsTheRecordAndStillSetsTheFlags)
{
    TimeZone saved("Nowhere/Unknown Zone", Southern().GetZoneInformation());
    saved.SetAutomaticDST(false);
    saved.SetManualDSTToggle(true);
    CmdLineStateContainer writer;
    writer << AstroKey("TimeZone") << saved;

    TimeZone target("Mine", Northern().GetZoneInformation());
    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("TimeZone") >> target;
    EXPECT_TRUE(target == Northern());
    EXPECT_EQ(target.GetDisplayName(), "Mine");
    EXPECT_FALSE(target.GetAutomaticDST());
    EXPECT_TRUE(target.GetManualDSTToggle());

    // A missing level reads as an empty name and both flags off.
    TimeZone other = Northern();
    CmdLineStateContainer empty(writer.GetCmdLine());
    empty >> AstroKey("Zone") >> other;
    EXPECT_TRUE(other == Northern());
    EXPECT_FALSE(other.GetAutomaticDST());
    EXPECT_FALSE(other.GetManualDSTToggle());
}
