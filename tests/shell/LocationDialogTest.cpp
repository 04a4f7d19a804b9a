// The location dialog: cities of the shipped list found by their first letters and shown in
// degrees, minutes and seconds with their hemispheres and zones, and the checks of OK.
#include "DialogTesting.h"

namespace {

using LocationDialogs = DialogTest;

std::string ZoneShown(const char* zoneName)
{
    return zoneName ? TimeZone::GetTimeZone(zoneName)->GetDisplayName() : getHostString(5, 0xa64);
}

// Typing the first letters finds a city; OK then completes its name and place and stays open.
// The source's old zone names come out as the present zones, and the Antarctic stations have
// none. OK refuses a latitude of 0, a longitude beyond 180 degrees and a place without a zone,
// and takes a zone other than the computer's only after a yes.
TEST_F(LocationDialogs, CitiesOfTheShippedListComeWithTheirPlacesAndZones)
{
    const std::pair<const char*, std::string> cases[] = {
        {"rangoon", "16 47 0 N, 96 10 0 E / " + ZoneShown("Asia/Yangon")},
        {"amundsen", "89 58 58 S, 139 16 1 E / " + ZoneShown(nullptr)},
        {"london, u", "51 30 0 N, 0 7 0 W / " + ZoneShown("Europe/London")},
    };
    LocationDialog dialog(nullptr);
    RunDialog(dialog, [&](TWindow& window) {
        for (const auto& [latitude, longitude] : {std::pair{"0", "10"}, std::pair{"10", "181"}}) {
            AnswerMessage(IDOK);
            HeadlessBackend::TypeInto(window, LocationDialog::kLatitudeDegrees, latitude);
            HeadlessBackend::TypeInto(window, LocationDialog::kLongitudeDegrees, longitude);
            HeadlessBackend::PressButton(window, IDOK);
        }
        for (const auto& [typed, place] : cases) {
            HeadlessBackend::TypeInto(window, LocationDialog::kCityName, typed);
            HeadlessBackend::PressButton(window, IDOK);
            std::string shown;
            for (int id = LocationDialog::kLatitudeDegrees; id <= LocationDialog::kWestEast; ++id) {
                shown += Text(window, id) + (id == LocationDialog::kNorthSouth ? ", " : " ");
            }
            EXPECT_EQ(shown + "/ " + Text(window, LocationDialog::kZones), place) << typed;
            if (place.find(ZoneShown(nullptr)) != std::string::npos) {
                AnswerMessage(IDOK);
                HeadlessBackend::PressButton(window, IDOK);
                EXPECT_EQ(GetFocus(), window.ChildWithId(LocationDialog::kZones)->HWindow);
            }
        }
        AnswerMessage(IDNO);
        HeadlessBackend::PressButton(window, IDOK);
        AnswerMessage(IDYES);
        HeadlessBackend::PressButton(window, IDOK);
    });
    EXPECT_EQ(Messages,
              (std::vector<std::string>{getHostString(5, 0x1006), getHostString(5, 0x1007),
                                        getHostString(5, 0x1008), getHostString(5, 0x1072),
                                        getHostString(5, 0x1072)}));
    EXPECT_EQ(dialog.GetLocationName(), "London, United Kingdom");
    EXPECT_EQ(dialog.GetTimeZone().GetZoneName(), "Europe/London");
}

} // namespace
