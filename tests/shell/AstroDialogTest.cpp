// What every dialog of the planetarium shares: the words of the string table stand in place of
// the keys of its resource, and its Help button opens the topic the profile names, or the
// dialog's own topic when the profile names none.
#include "DialogTesting.h"
#include "catalogues/AstroItemCollector.h"
#include "shell/AnimationDialog.h"
#include "shell/ObjectInfoDialog.h"
#include "shell/ObjectListDialog.h"
#include "shell/StarDisplayDialog.h"
#include "solar/PlanetCatalogue.h"
#include "solar/PlanetView.h"

namespace {

using AstroDialogs = DialogTest;

TEST_F(AstroDialogs, ShowTheirWordsAndOpenTheHelpTopicOfTheProfile)
{
    std::vector<std::string> helpKeys;
    const WinHelpHandler previous =
        SetWinHelpHandler([&](HWND, const std::string&, UINT, const std::string& key) {
            helpKeys.push_back(key);
            return true;
        });
    AstroItemCollector collector;
    PlanetCatalogue planets;
    const std::unique_ptr<AstroDialog> dialogs[] = {
        std::make_unique<TimeDialog>(nullptr, AstroTime(1, 1, 2000, 0.0), TimeZone(), "",
                                     LatLong()),
        std::make_unique<AnimationDialog>(nullptr, AnimationSettings()),
        std::make_unique<GridDialog>(nullptr, GridInfo()),
        std::make_unique<ObjectListDialog>(nullptr, collector, AstroCatalogue::PLANETS),
        std::make_unique<ObjectInfoDialog>(nullptr, *planets.GetObjectByName("Mars")),
        std::make_unique<LocationDialog>(nullptr),
        std::make_unique<StarDisplayDialog>(nullptr, StarDisplayParameters())};
    const std::pair<const char*, const char*> topics[] = {
        {"TimeDialogHelpKey", "Planetarium"},
        {"AnimationDialogHelpKey", "Time Lapse"},
        {"GridDialogHelpKey", "Ascension/Declination Lines"},
        {"ObjectListDialogHelpKey", "Planetarium"},
        {"ObjectInfoDialogHelpKey", "Planetarium"},
        {"LocationDialogHelpKey", "Planetarium"},
        {"StarDisplayDialogHelpKey", "Star Display"}};
    for (std::size_t i = 0; i < std::size(topics); ++i) {
        const auto& [profileKey, topic] = topics[i];
        for (const char* expected : {topic, "Running Time"}) {
            helpKeys.clear();
            if (expected != std::string(topic)) {
                ASSERT_TRUE(HostProfile().Write("Orbiscope", profileKey, expected));
            }
            RunDialog(*dialogs[i], [&](TWindow& window) {
                std::string words = window.GetWindowText();
                for (const TWindow* child : window.GetChildren()) {
                    words.append(" | ").append(child->GetWindowText());
                }
                EXPECT_EQ(words.find("STID_"), std::string::npos) << words;
                HeadlessBackend::PressButton(window, 9);
                Desk().PressKey(VK_ESCAPE);
            });
            EXPECT_EQ(helpKeys, std::vector<std::string>{expected}) << profileKey;
        }
    }
    SetWinHelpHandler(previous);
}

} // namespace
