// The date and time dialog: local time shown in the zone on either clock and taken back as
// Universal Time, twelve o'clock, the era of BC years and the refusal of years below 1.
#include "DialogTesting.h"

namespace {

using TimeDialogs = DialogTest;

TEST_F(TimeDialogs, ShowsTheLocalTimeOfTheZoneAndTakesTheTypedOneBackAsUniversalTime)
{
    const TimeZone berlin = *TimeZone::GetTimeZone("Europe/Berlin");
    // 12:30 UT in July is 2:30 pm, or 14:30, in Berlin's summer time.
    for (const bool clock24 : {false, true}) {
        ASSERT_TRUE(HostProfile().Write("Orbiscope", "MilitaryTime", clock24 ? "1" : "0"));
        TimeDialog dialog(nullptr, AstroTime(15, 7, 2024, 12.5), berlin, "Berlin", LatLong());
        RunDialog(dialog, [&](TWindow& window) {
            auto shown = [&](int id) {
                return window.ChildWithId(id)->IsWindowVisible() ? Text(window, id) : "-";
            };
            const bool pm = dialog.IsDlgButtonChecked(TimeDialog::kPm) == BST_CHECKED;
            EXPECT_EQ(shown(TimeDialog::kYear) + " " + shown(TimeDialog::kMonth) + " " +
                          shown(TimeDialog::kDay) + " " + shown(TimeDialog::kHour) + ":" +
                          shown(TimeDialog::kMinute) + " " + shown(TimeDialog::kPm) +
                          (pm ? " checked" : ""),
                      clock24 ? "2024 July 15 14:30 -" : "2024 July 15 2:30 PM checked");
            EXPECT_EQ(Text(window, TimeDialog::kZoneName), berlin.GetDisplayName());
            // 11:05:07 in the morning of the last day of 1999, Berlin's winter time.
            HeadlessBackend::TypeInto(window, TimeDialog::kYear, "1999");
            dynamic_cast<TComboBox*>(window.ChildWithId(TimeDialog::kMonth))->SetSelIndex(11);
            HeadlessBackend::TypeInto(window, TimeDialog::kDay, "31");
            HeadlessBackend::TypeInto(window, TimeDialog::kHour, "11");
            HeadlessBackend::TypeInto(window, TimeDialog::kMinute, "5");
            HeadlessBackend::TypeInto(window, TimeDialog::kSecond, "7");
            HeadlessBackend::PressButton(window, TimeDialog::kAm);
            HeadlessBackend::PressButton(window, IDOK);
        });
        const double hours = 10 + 5 / 60.0 + 7 / 3600.0;
        EXPECT_NEAR(dialog.GetTime().GetMJD(), AstroTime(31, 12, 1999, hours).GetMJD(), 1e-8);
    }
}

// 12 am is midnight and 12 pm noon; 44 BC is the astronomical year -43.
TEST_F(TimeDialogs, YearsBelowOneAreRefusedAndBcYearsAndTwelveOClockAreTakenRight)
{
    for (const auto& [button, hour] : {std::pair{TimeDialog::kAm, 0u}, {TimeDialog::kPm, 12u}}) {
        Messages.clear();
        TimeDialog dialog(nullptr, AstroTime(1, 3, 2001, 8.0), TimeZone(), "", LatLong());
        RunDialog(dialog, [&, button = button](TWindow& window) {
            for (const char* year : {"0", "-5"}) {
                AnswerMessage(IDOK);
                HeadlessBackend::TypeInto(window, TimeDialog::kYear, year);
                HeadlessBackend::PressButton(window, IDOK);
                EXPECT_TRUE(window.IsWindowVisible()) << year;
            }
            HeadlessBackend::TypeInto(window, TimeDialog::kYear, "44");
            dynamic_cast<TComboBox*>(window.ChildWithId(TimeDialog::kEra))
                ->SetSelIndex(AstroTime::BC);
            HeadlessBackend::TypeInto(window, TimeDialog::kHour, "12");
            HeadlessBackend::PressButton(window, button);
            HeadlessBackend::PressButton(window, IDOK);
        });
        EXPECT_EQ(Messages, std::vector<std::string>(2, getHostString(5, 0x1004)));
        EXPECT_EQ(dialog.GetTime().GetYear(), -43);
        EXPECT_EQ(dialog.GetTime().GetHour(), hour);
    }
}

} // namespace
