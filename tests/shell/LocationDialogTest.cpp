// The location dialog: the city file, a place shown in degrees, minutes and seconds with its
// hemispheres, search as you type, the completion of a name typed in part, and the checks of
// OK.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "DialogTesting.h"
#include "host/HostStringTable.h"
#include "platform/TComboBox.h"
#include "platform/TListBox.h"
#include "shell/LocationDialog.h"

namespace {

// The number of a zone in the zone index file: the line that names it.
unsigned ZoneNumber(const std::string& zoneName)
{
    std::ifstream index(TimeZone::TimeZoneIndexPath());
    std::string line;
    for (unsigned number = 0; std::getline(index, line); ++number) {
        if (line.find(") " + zoneName) != std::string::npos) {
            return number;
        }
    }
    return 0;
}

class LocationDialogs : public DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        const char* tz = std::getenv("TZ");
        bHadTz = tz != nullptr;
        OldTz = tz ? tz : "";
        ::setenv("TZ", "Australia/Sydney", 1); // the computer's zone
        unsigned sydney = ZoneNumber("Australia/Sydney");
        ASSERT_NE(sydney, 0u);
        CityFile = Home.File("astcity.txt");
        std::ofstream(CityFile) << "Sydney|Australia|33.8667|S|151.2|E|Z" << sydney << "\n"
                                << "\n"
                                << "Syracuse|New York|43.05|N|76.15|W|Z99999\n"
                                << "Tucson|Arizona|32.2|N|110.9\n";
        SetProfile("CityList", CityFile);
    }
    void TearDown() override
    {
        if (bHadTz) {
            ::setenv("TZ", OldTz.c_str(), 1);
        } else {
            ::unsetenv("TZ");
        }
        DialogTest::TearDown();
    }

    static TListBox& Cities(TWindow& window)
    {
        return *dynamic_cast<TListBox*>(window.ChildWithId(LocationDialog::kCities));
    }
    static TComboBox& Combo(TWindow& window, int id)
    {
        return *dynamic_cast<TComboBox*>(window.ChildWithId(id));
    }
    static void TypePlace(TWindow& window, const char* latitude, const char* longitude)
    {
        HeadlessBackend::TypeInto(window, LocationDialog::kLatitudeDegrees, latitude);
        HeadlessBackend::TypeInto(window, LocationDialog::kLatitudeMinutes, "0");
        HeadlessBackend::TypeInto(window, LocationDialog::kLatitudeSeconds, "0");
        HeadlessBackend::TypeInto(window, LocationDialog::kLongitudeDegrees, longitude);
        HeadlessBackend::TypeInto(window, LocationDialog::kLongitudeMinutes, "0");
        HeadlessBackend::TypeInto(window, LocationDialog::kLongitudeSeconds, "0");
    }

    std::string CityFile;
    bool bHadTz = false;
    std::string OldTz;
};

TEST_F(LocationDialogs, CityFileGivesPlacesNamesAndZones)
{
    LocationDialog::CityList cities = LocationDialog::ReadCityList(CityFile);
    ASSERT_EQ(cities.size(), 3u) << "the blank line names no city";
    EXPECT_EQ(cities[0].Name, "Sydney, Australia");
    EXPECT_DOUBLE_EQ(cities[0].GetLatitude().GetDegrees(), -33.8667);
    EXPECT_DOUBLE_EQ(cities[0].GetLongitude().GetDegrees(), 360.0 - 151.2);
    ASSERT_NE(cities[0].pZone, nullptr);
    EXPECT_EQ(cities[0].pZone->GetZoneName(), "Australia/Sydney");
    EXPECT_EQ(cities[1].pZone, nullptr) << "a zone number that names no zone";
    EXPECT_EQ(cities[2].Name, "Tucson, Arizona");
    EXPECT_DOUBLE_EQ(cities[2].GetLongitude().GetDegrees(), 110.9);
    EXPECT_EQ(cities[2].pZone, nullptr) << "a line short of the zone stays in the list";
    EXPECT_TRUE(LocationDialog::ReadCityList(Home.File("missing.txt")).empty());
}

TEST_F(LocationDialogs, OpensWithThePlaceGivenInItsFields)
{
    TimeZone sydney = *TimeZone::GetTimeZone("Australia/Sydney");
    LocationDialog dialog(nullptr, "Sydney, Australia", LatLong(-33.8667, 208.8), sydney);
    RunDialog(dialog, [&](TWindow& window) {
        EXPECT_EQ(window.GetWindowText(), getHostString(5, 0xa28));
        EXPECT_TRUE(AllKeysReplaced(window));
        EXPECT_EQ(Cities(window).GetCount(), 3);
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kCityName), "Sydney, Australia");
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLatitudeDegrees), "33");
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLatitudeMinutes), "52");
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLatitudeSeconds), "0");
        EXPECT_EQ(Combo(window, LocationDialog::kNorthSouth).GetText(), "S");
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLongitudeDegrees), "151");
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLongitudeMinutes), "12");
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLongitudeSeconds), "0");
        EXPECT_EQ(Combo(window, LocationDialog::kWestEast).GetText(), "E");
        EXPECT_EQ(Combo(window, LocationDialog::kZones).GetText(), sydney.GetDisplayName());
        EXPECT_EQ(dialog.IsDlgButtonChecked(LocationDialog::kAutomaticDST), BST_CHECKED);
        Desk().PressKey(VK_ESCAPE);
    });
}

TEST_F(LocationDialogs, TypedLettersFindTheCityAndOkCompletesItFirst)
{
    LocationDialog dialog(nullptr);
    EXPECT_EQ(RunDialog(dialog,
                        [&](TWindow& window) {
                            HeadlessBackend::TypeInto(window, LocationDialog::kCityName, "syd");
                            TListBox& list = Cities(window);
                            ASSERT_GE(list.GetSelIndex(), 0);
                            EXPECT_EQ(list.GetString(list.GetSelIndex()), "Sydney, Australia");
                            HeadlessBackend::PressButton(window, IDOK);
                            EXPECT_TRUE(window.IsWindowVisible()) << "the name is completed";
                            EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kCityName),
                                      "Sydney, Australia");
                            EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLongitudeDegrees),
                                      "151");
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
    EXPECT_EQ(dialog.GetLocationName(), "Sydney, Australia");
    EXPECT_NEAR(dialog.GetLocation().GetLatitude().GetDegrees(), -(33.0 + 52.0 / 60.0), 1e-9);
    EXPECT_NEAR(dialog.GetLocation().GetLongitude().GetDegrees(), 360.0 - 151.2, 1e-9);
    EXPECT_EQ(dialog.GetTimeZone().GetZoneName(), "Australia/Sydney");
}

TEST_F(LocationDialogs, OutOfRangePlacesAreRefusedWithTheirMessages)
{
    TimeZone sydney = *TimeZone::GetTimeZone("Australia/Sydney");
    LocationDialog dialog(nullptr, "Here", LatLong(10.0, 10.0), sydney);
    EXPECT_EQ(RunDialog(dialog,
                        [this](TWindow& window) {
                            AnswerMessage(IDOK);
                            TypePlace(window, "0", "10");
                            HeadlessBackend::PressButton(window, IDOK);
                            AnswerMessage(IDOK);
                            TypePlace(window, "10", "181");
                            HeadlessBackend::PressButton(window, IDOK);
                            EXPECT_TRUE(window.IsWindowVisible());
                            TypePlace(window, "90", "180");
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
    ASSERT_EQ(Messages.size(), 2u);
    EXPECT_EQ(Messages[0], getHostString(5, 0x1006)) << "a latitude of 0 does not pass";
    EXPECT_EQ(Messages[1], getHostString(5, 0x1007));
    EXPECT_EQ(Captions[0], getHostString(5, 1000));
    EXPECT_DOUBLE_EQ(dialog.GetLocation().GetLatitude().GetDegrees(), 90.0);
    EXPECT_DOUBLE_EQ(dialog.GetLocation().GetLongitude().GetDegrees(), 180.0);
}

TEST_F(LocationDialogs, ACityWithoutAZoneIsRefusedUntilOneIsChosen)
{
    LocationDialog dialog(nullptr);
    EXPECT_EQ(RunDialog(dialog,
                        [this](TWindow& window) {
                            AnswerMessage(IDOK);
                            HeadlessBackend::TypeInto(window, LocationDialog::kCityName,
                                                      "Syracuse, New York");
                            Cities(window).SetFocus();
                            Desk().PressKey(VK_HOME); // picks the row as a user does
                            Desk().PressKey(VK_DOWN);
                            EXPECT_EQ(Combo(window, LocationDialog::kZones).GetText(),
                                      getHostString(5, 0xa64));
                            HeadlessBackend::PressButton(window, IDOK);
                            EXPECT_EQ(GetFocus(),
                                      window.ChildWithId(LocationDialog::kZones)->HWindow);
                            TComboBox& zones = Combo(window, LocationDialog::kZones);
                            zones.SetSelIndex(zones.FindExactString(
                                TimeZone::GetTimeZone("Australia/Sydney")->GetDisplayName()));
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
    ASSERT_EQ(Messages.size(), 1u);
    EXPECT_EQ(Messages[0], getHostString(5, 0x1008));
    EXPECT_EQ(dialog.GetLocationName(), "Syracuse, New York");
}

TEST_F(LocationDialogs, AnotherZoneThanTheComputersIsTakenOnlyAfterYes)
{
    TimeZone berlin = *TimeZone::GetTimeZone("Europe/Berlin");
    LocationDialog dialog(nullptr, "Berlin", LatLong(52.5, 346.6), berlin);
    EXPECT_EQ(RunDialog(dialog,
                        [this](TWindow& window) {
                            AnswerMessage(IDNO);
                            HeadlessBackend::PressButton(window, IDOK);
                            EXPECT_TRUE(window.IsWindowVisible());
                            AnswerMessage(IDYES);
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
    ASSERT_EQ(Messages.size(), 2u);
    EXPECT_EQ(Messages[0], getHostString(5, 0x1072));
    EXPECT_EQ(dialog.GetTimeZone().GetZoneName(), "Europe/Berlin");
    EXPECT_EQ(dialog.GetLocationName(), "Berlin");
}

TEST_F(LocationDialogs, CancelAndHelpChangeNothing)
{
    TimeZone sydney = *TimeZone::GetTimeZone("Australia/Sydney");
    LocationDialog dialog(nullptr, "Here", LatLong(10.0, 10.0), sydney);
    EXPECT_EQ(RunDialog(dialog,
                        [](TWindow& window) {
                            TypePlace(window, "45", "45");
                            HeadlessBackend::PressButton(window, 9);
                            HeadlessBackend::PressButton(window, IDCANCEL);
                        }),
              IDCANCEL);
    EXPECT_EQ(dialog.GetLocation(), LatLong(10.0, 10.0));
    EXPECT_EQ(dialog.GetLocationName(), "Here");
    ASSERT_EQ(HelpRequests.size(), 1u);
    EXPECT_EQ(HelpRequests[0].Key, "Planetarium");
}

} // namespace
