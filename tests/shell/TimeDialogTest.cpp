// The date and time dialog: local time shown in the zone, Universal Time kept, am and pm, the
// era of BC years, the refusal of years below 1, Now, and the manual daylight toggle.
#include <gtest/gtest.h>

#include <cmath>

#include "DialogTesting.h"
#include "host/HostStringTable.h"
#include "platform/TComboBox.h"
#include "shell/TimeDialog.h"

namespace {

class TimeDialogs : public DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        const TimeZone* berlin = TimeZone::GetTimeZone("Europe/Berlin");
        ASSERT_NE(berlin, nullptr);
        Berlin = *berlin;
    }

    static TComboBox& Combo(TWindow& window, int id)
    {
        return *dynamic_cast<TComboBox*>(window.ChildWithId(id));
    }

    // Types a whole local time into the fields.
    static void TypeTime(TWindow& window, int year, int monthIndex, int day, int hour, int minute,
                         const char* second)
    {
        HeadlessBackend::TypeInto(window, TimeDialog::kYear, std::to_string(year));
        Combo(window, TimeDialog::kMonth).SetSelIndex(monthIndex);
        HeadlessBackend::TypeInto(window, TimeDialog::kDay, std::to_string(day));
        HeadlessBackend::TypeInto(window, TimeDialog::kHour, std::to_string(hour));
        HeadlessBackend::TypeInto(window, TimeDialog::kMinute, std::to_string(minute));
        HeadlessBackend::TypeInto(window, TimeDialog::kSecond, second);
    }

    static void ExpectTime(const AstroTime& t, long year, unsigned month, unsigned day,
                           unsigned hour, unsigned minute, double second)
    {
        EXPECT_EQ(t.GetYear(), year);
        EXPECT_EQ(t.GetMonth(), month);
        EXPECT_EQ(t.GetDay(), day);
        EXPECT_EQ(t.GetHour(), hour);
        EXPECT_EQ(t.GetMinute(), minute);
        EXPECT_NEAR(t.GetSecond(), second, 1e-6);
    }

    TimeZone Berlin;
    LatLong Place{52.5, 346.6};
};

TEST_F(TimeDialogs, OpensWithTheLocalTimeOfTheZoneOnTheTwelveHourClock)
{
    // 12:30 UT in July is 2:30 pm in Berlin's summer time.
    TimeDialog dialog(nullptr, AstroTime(15, 7, 2024, 12.5), Berlin, "Berlin", Place);
    RunDialog(dialog, [&](TWindow& window) {
        EXPECT_EQ(window.GetWindowText(), getHostString(5, 0xa8c));
        EXPECT_TRUE(AllKeysReplaced(window));
        EXPECT_EQ(dialog.GetDlgItemText(TimeDialog::kYear), "2024");
        EXPECT_EQ(Combo(window, TimeDialog::kEra).GetText(), getHostString(5, 0xab0));
        EXPECT_EQ(Combo(window, TimeDialog::kMonth).GetText(), "July");
        EXPECT_EQ(dialog.GetDlgItemText(TimeDialog::kDay), "15");
        EXPECT_EQ(dialog.GetDlgItemText(TimeDialog::kHour), "2");
        EXPECT_EQ(dialog.GetDlgItemText(TimeDialog::kMinute), "30");
        EXPECT_EQ(dialog.GetDlgItemText(TimeDialog::kSecond), "0");
        EXPECT_EQ(dialog.IsDlgButtonChecked(TimeDialog::kPm), BST_CHECKED);
        EXPECT_EQ(dialog.IsDlgButtonChecked(TimeDialog::kAm), BST_UNCHECKED);
        EXPECT_EQ(dialog.GetDlgItemText(TimeDialog::kZoneName), Berlin.GetDisplayName());
        EXPECT_FALSE(window.ChildWithId(TimeDialog::kDaylight)->IsWindowVisible())
            << "the zone keeps daylight saving by itself";
        Desk().PressKey(VK_ESCAPE);
    });
}

TEST_F(TimeDialogs, OkTurnsTheTypedLocalTimeIntoUniversalTime)
{
    TimeDialog dialog(nullptr, AstroTime(15, 7, 2024, 12.5), Berlin, "Berlin", Place);
    EXPECT_EQ(RunDialog(dialog,
                        [](TWindow& window) {
                            TypeTime(window, 1999, 11, 31, 11, 5, "7");
                            HeadlessBackend::PressButton(window, TimeDialog::kAm);
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
    // 11:05:07 am in Berlin's winter is 10:05:07 UT.
    ExpectTime(dialog.GetTime(), 1999, 12, 31, 10, 5, 7.0);
    EXPECT_EQ(dialog.GetLocationName(), "Berlin");
}

TEST_F(TimeDialogs, CancelLeavesTheTimeGiven)
{
    AstroTime given(15, 7, 2024, 12.5);
    TimeDialog dialog(nullptr, given, Berlin, "Berlin", Place);
    EXPECT_EQ(RunDialog(dialog,
                        [](TWindow& window) {
                            TypeTime(window, 1066, 9, 14, 9, 0, "0");
                            HeadlessBackend::PressButton(window, IDCANCEL);
                        }),
              IDCANCEL);
    EXPECT_TRUE(dialog.GetTime() == given);
}

TEST_F(TimeDialogs, NoonWithPmIsTwelveAndMidnightWithAmIsZero)
{
    TimeZone universal; // no offset: local time is UT
    TimeDialog noon(nullptr, AstroTime(1, 3, 2001, 8.0), universal, "", Place);
    RunDialog(noon, [](TWindow& window) {
        HeadlessBackend::TypeInto(window, TimeDialog::kHour, "12");
        HeadlessBackend::PressButton(window, TimeDialog::kPm);
        HeadlessBackend::PressButton(window, IDOK);
    });
    EXPECT_EQ(noon.GetTime().GetHour(), 12u);

    TimeDialog midnight(nullptr, AstroTime(1, 3, 2001, 8.0), universal, "", Place);
    RunDialog(midnight, [](TWindow& window) {
        HeadlessBackend::TypeInto(window, TimeDialog::kHour, "12");
        HeadlessBackend::PressButton(window, TimeDialog::kAm);
        HeadlessBackend::PressButton(window, IDOK);
    });
    EXPECT_EQ(midnight.GetTime().GetHour(), 0u);
    EXPECT_EQ(midnight.GetTime().GetDay(), 1u);
}

TEST_F(TimeDialogs, YearsBelowOneAreRefusedAndBcYearsTakeTheEra)
{
    TimeZone universal;
    TimeDialog dialog(nullptr, AstroTime(1, 3, 2001, 8.0), universal, "", Place);
    EXPECT_EQ(RunDialog(dialog,
                        [this](TWindow& window) {
                            for (const char* year : {"0", "-5"}) {
                                AnswerMessage(IDOK);
                                HeadlessBackend::TypeInto(window, TimeDialog::kYear, year);
                                HeadlessBackend::PressButton(window, IDOK);
                                EXPECT_TRUE(window.IsWindowVisible()) << year;
                            }
                            HeadlessBackend::TypeInto(window, TimeDialog::kYear, "44");
                            Combo(window, TimeDialog::kEra).SetSelIndex(AstroTime::BC);
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
    ASSERT_EQ(Messages.size(), 2u);
    EXPECT_EQ(Messages[0], getHostString(5, 0x1004));
    EXPECT_EQ(Captions[0], getHostString(5, 1000));
    EXPECT_EQ(dialog.GetTime().GetYear(), -43) << "44 BC is the astronomical year -43";
}

TEST_F(TimeDialogs, NowShowsThePresentWithoutLengtheningTheLists)
{
    TimeZone universal;
    TimeDialog dialog(nullptr, AstroTime(1, 3, 1901, 8.0), universal, "", Place);
    AstroTime before = AstroTime::GetTickCount();
    RunDialog(dialog, [](TWindow& window) {
        HeadlessBackend::PressButton(window, TimeDialog::kNow);
        HeadlessBackend::PressButton(window, TimeDialog::kNow);
        EXPECT_EQ(Combo(window, TimeDialog::kEra).GetCount(), 2);
        EXPECT_EQ(Combo(window, TimeDialog::kMonth).GetCount(), 12);
        HeadlessBackend::PressButton(window, IDOK);
    });
    AstroTime after = AstroTime::GetTickCount();
    // Whole seconds on the way through the fields.
    EXPECT_GE(dialog.GetTime().GetMJD(), before.GetMJD() - 1.0 / 86400.0);
    EXPECT_LE(dialog.GetTime().GetMJD(), after.GetMJD() + 1.0 / 86400.0);
}

TEST_F(TimeDialogs, TwentyFourHourClockHidesAmAndPm)
{
    SetProfile("MilitaryTime", "1");
    TimeDialog dialog(nullptr, AstroTime(15, 7, 2024, 12.5), Berlin, "Berlin", Place);
    RunDialog(dialog, [&](TWindow& window) {
        EXPECT_EQ(dialog.GetDlgItemText(TimeDialog::kHour), "14");
        EXPECT_FALSE(window.ChildWithId(TimeDialog::kAm)->IsWindowVisible());
        EXPECT_FALSE(window.ChildWithId(TimeDialog::kPm)->IsWindowVisible());
        HeadlessBackend::TypeInto(window, TimeDialog::kHour, "23");
        HeadlessBackend::PressButton(window, IDOK);
    });
    ExpectTime(dialog.GetTime(), 2024, 7, 15, 21, 30, 0.0);
}

TEST_F(TimeDialogs, WithoutAutomaticDaylightSavingTheBoxSetsTheToggle)
{
    TimeZone manual = Berlin;
    manual.SetAutomaticDST(false);
    TimeDialog dialog(nullptr, AstroTime(15, 1, 2024, 12.0), manual, "Berlin", Place);
    RunDialog(dialog, [&](TWindow& window) {
        EXPECT_TRUE(window.ChildWithId(TimeDialog::kDaylight)->IsWindowVisible());
        EXPECT_EQ(dialog.IsDlgButtonChecked(TimeDialog::kDaylight), BST_UNCHECKED);
        EXPECT_EQ(dialog.GetDlgItemText(TimeDialog::kHour), "1") << "1 pm standard time";
        HeadlessBackend::PressButton(window, TimeDialog::kDaylight);
        HeadlessBackend::PressButton(window, IDOK);
    });
    EXPECT_TRUE(dialog.GetTimeZone().GetManualDSTToggle());
    // 1 pm with daylight saving on by hand is 11:00 UT.
    ExpectTime(dialog.GetTime(), 2024, 1, 15, 11, 0, 0.0);
}

TEST_F(TimeDialogs, HelpOpensTheTopic)
{
    TimeDialog dialog(nullptr, AstroTime(15, 7, 2024, 12.5), Berlin, "Berlin", Place);
    RunDialog(dialog, [](TWindow& window) {
        HeadlessBackend::PressButton(window, 9);
        Desk().PressKey(VK_ESCAPE);
    });
    ASSERT_EQ(HelpRequests.size(), 1u);
    EXPECT_EQ(HelpRequests[0].Key, "Planetarium");
}

} // namespace
