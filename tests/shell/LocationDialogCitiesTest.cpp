// The shipped city list (data/astcity.txt) as the location dialog reads it: every line gives a
// city with its place and zone, the zones of old names and of the Antarctic stations come out
// right, names are Latin-1, and the dialog finds a city of the list by its first letters.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

#include "DialogTesting.h"
#include "catalogues/LorvString.h"
#include "platform/TComboBox.h"
#include "platform/TListBox.h"
#include "shell/LocationDialog.h"

namespace {

// The fields of one line of the file, split at every "|" (no merging of runs).
std::vector<std::string> SplitFields(const std::string& line)
{
    std::vector<std::string> fields;
    std::istringstream in(line);
    for (std::string field; std::getline(in, field, '|');) {
        fields.push_back(field);
    }
    return fields;
}

class ShippedCityList : public DialogTest
{
protected:
    // The profile of the test's own home names no city file: the shipped one is read.
    void SetUp() override
    {
        DialogTest::SetUp();
        Cities = LocationDialog::ReadCityList(LocationDialog::CityListPath());
    }

    const LocationDialog::CityInfo* Find(const std::string& name)
    {
        for (const LocationDialog::CityInfo& city : Cities) {
            if (city.Name == name) {
                return &city;
            }
        }
        return nullptr;
    }

    LocationDialog::CityList Cities;
};

TEST_F(ShippedCityList, EveryLineGivesTheCityItsFieldsSay)
{
    const LocationDialog::CityList& cities = Cities;
    ASSERT_GT(cities.size(), 7000u);

    std::ifstream file(LocationDialog::CityListPath(), std::ios::binary);
    ASSERT_TRUE(file.good());
    std::size_t index = 0;
    std::size_t withoutZone = 0;
    for (std::string line; std::getline(file, line); ++index) {
        ASSERT_LT(index, cities.size()) << "more lines than cities";
        std::vector<std::string> f = SplitFields(line);
        ASSERT_EQ(f.size(), 7u) << line;
        for (const std::string& field : f) {
            ASSERT_FALSE(field.empty()) << "an empty field shifts the rest: " << line;
        }
        const LocationDialog::CityInfo& city = cities[index];
        EXPECT_EQ(city.Name, f[0] + ", " + f[1]);

        double latitude = std::strtod(f[2].c_str(), nullptr);
        ASSERT_TRUE(f[3] == "N" || f[3] == "S") << line;
        ASSERT_TRUE(f[5] == "W" || f[5] == "E") << line;
        ASSERT_TRUE(latitude >= 0.0 && latitude <= 90.0) << line;
        EXPECT_DOUBLE_EQ(city.GetLatitude().GetDegrees(), f[3] == "S" ? -latitude : latitude);
        double longitude = city.GetLongitude().GetDegrees();
        EXPECT_TRUE(longitude >= 0.0 && longitude < 360.0) << line;

        ASSERT_EQ(f[6][0], 'Z') << line;
        if (f[6] == "Z0") {
            EXPECT_EQ(city.pZone, nullptr) << line;
            ++withoutZone;
        } else {
            EXPECT_NE(city.pZone, nullptr) << "a zone this computer does not know: " << line;
        }
    }
    EXPECT_EQ(index, cities.size());
    EXPECT_EQ(withoutZone, 48u) << "only the Antarctic stations have no zone";
}

TEST_F(ShippedCityList, KnownCitiesHaveTheirPlacesAndZones)
{
    const LocationDialog::CityInfo* london = Find("London, United Kingdom");
    ASSERT_NE(london, nullptr);
    EXPECT_NEAR(london->GetLatitude().GetDegrees(), 51.5, 0.01);
    EXPECT_NEAR(london->GetLongitude().GetDegrees(), 0.1167, 0.001) << "west stays positive";
    ASSERT_NE(london->pZone, nullptr);
    EXPECT_EQ(london->pZone->GetZoneName(), "Europe/London");

    const LocationDialog::CityInfo* sydney = Find("Sydney, Australia");
    ASSERT_NE(sydney, nullptr);
    EXPECT_NEAR(sydney->GetLatitude().GetDegrees(), -33.92, 0.01);
    EXPECT_NEAR(sydney->GetLongitude().GetDegrees(), 360.0 - 151.185, 0.001);
    ASSERT_NE(sydney->pZone, nullptr);
    EXPECT_EQ(sydney->pZone->GetZoneName(), "Australia/Sydney");

    // A city of the United States is named with its state, and a name shared within one
    // country takes the province.
    const LocationDialog::CityInfo* denver = Find("Denver, Colorado");
    ASSERT_NE(denver, nullptr);
    ASSERT_NE(denver->pZone, nullptr);
    EXPECT_EQ(denver->pZone->GetZoneName(), "America/Denver");
    EXPECT_NE(Find("Mercedes, Corrientes, Argentina"), nullptr);
    EXPECT_NE(Find("Mercedes, Uruguay"), nullptr);
}

TEST_F(ShippedCityList, OldZoneNamesGiveThePresentZone)
{
    // The source gives these cities the old names Asia/Rangoon and America/Montreal.
    const LocationDialog::CityInfo* rangoon = Find("Rangoon, Myanmar");
    ASSERT_NE(rangoon, nullptr);
    ASSERT_NE(rangoon->pZone, nullptr);
    EXPECT_EQ(rangoon->pZone->GetZoneName(), "Asia/Yangon");

    const LocationDialog::CityInfo* montreal = Find("Montr\xe9"
                                                    "al, Canada");
    ASSERT_NE(montreal, nullptr);
    ASSERT_NE(montreal->pZone, nullptr);
    EXPECT_EQ(montreal->pZone->GetZoneName(), "America/Toronto");
}

TEST_F(ShippedCityList, AntarcticStationsHaveNoZone)
{
    const LocationDialog::CityInfo* pole = Find("Amundsen-Scott South Pole Station, Antarctica");
    ASSERT_NE(pole, nullptr) << "the en dash of the source becomes a hyphen";
    EXPECT_NEAR(pole->GetLatitude().GetDegrees(), -89.98, 0.01);
    EXPECT_EQ(pole->pZone, nullptr);
}

TEST_F(ShippedCityList, NamesAreLatin1AndSorted)
{
    for (const LocationDialog::CityInfo& city : Cities) {
        // A UTF-8 sequence would show as two or three odd Latin-1 characters.
        for (std::size_t i = 0; i + 1 < city.Name.size(); ++i) {
            unsigned char lead = static_cast<unsigned char>(city.Name[i]);
            unsigned char next = static_cast<unsigned char>(city.Name[i + 1]);
            ASSERT_FALSE(lead >= 0xC2 && lead <= 0xEF && next >= 0x80 && next <= 0xBF) << city.Name;
        }
    }
    EXPECT_NE(Find("Panevezys, Lithuania"), nullptr) << "z with caron loses its mark";
    EXPECT_NE(Find("St. John's, Canada"), nullptr) << "the curly apostrophe becomes plain";
    for (std::size_t i = 1; i < Cities.size(); ++i) {
        ASSERT_LT(CompareNoCase(Cities[i - 1].Name, Cities[i].Name), 0)
            << Cities[i - 1].Name << " / " << Cities[i].Name;
    }
}

TEST_F(ShippedCityList, TheDialogFindsACityOfTheListByItsFirstLetters)
{
    TimeZone london = *TimeZone::GetTimeZone("Europe/London");
    LocationDialog dialog(nullptr);
    RunDialog(dialog, [&](TWindow& window) {
        TListBox& list = *dynamic_cast<TListBox*>(window.ChildWithId(LocationDialog::kCities));
        EXPECT_EQ(list.GetCount(), int(Cities.size()));
        HeadlessBackend::TypeInto(window, LocationDialog::kCityName, "london, u");
        ASSERT_GE(list.GetSelIndex(), 0);
        EXPECT_EQ(list.GetString(list.GetSelIndex()), "London, United Kingdom");
        HeadlessBackend::PressButton(window, IDOK); // completes the name, stays open
        EXPECT_TRUE(window.IsWindowVisible());
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLatitudeDegrees), "51");
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLatitudeMinutes), "30");
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLongitudeDegrees), "0");
        EXPECT_EQ(dialog.GetDlgItemText(LocationDialog::kLongitudeMinutes), "7");
        auto& zones = *dynamic_cast<TComboBox*>(window.ChildWithId(LocationDialog::kZones));
        EXPECT_EQ(zones.GetText(), london.GetDisplayName());
        HeadlessBackend::PressButton(window, IDCANCEL);
    });
}

} // namespace
