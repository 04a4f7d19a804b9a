#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "host/HostFonts.h"
#include "host/HostFrameAPI.h"

TEST(HostFrameAPI, TheStandardFrameShipsItsHelpAndHandsAddressesToTheLauncher)
{
    std::vector<std::string> launched;
    StandardHostFrame frame([&](const std::string& address) {
        launched.push_back(address);
        return true;
    });
    EXPECT_TRUE(std::filesystem::exists(frame.GetHelpFile())) << frame.GetHelpFile();
    EXPECT_TRUE(frame.Launch("https://en.wikipedia.org/wiki/Messier_31"));
    EXPECT_FALSE(frame.Launch(""));
    EXPECT_EQ(launched, std::vector<std::string>{"https://en.wikipedia.org/wiki/Messier_31"});
    // A shared font outside the set is the nearest one of it.
    EXPECT_EQ(getHostFont(APP_FONTS, 99), getHostFont(APP_FONTS, kHostFontCount - 1));
}

TEST(HostFrameAPI, WithoutADesktopTheAddressIsWrittenOut)
{
    std::vector<std::pair<const char*, std::string>> saved;
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY"}) {
        if (const char* value = std::getenv(name)) {
            saved.emplace_back(name, value);
        }
        ::unsetenv(name);
    }
    testing::internal::CaptureStdout();
    EXPECT_TRUE(StandardHostFrame().Launch("https://example.org/a b"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "https://example.org/a b\n");
    for (const auto& [name, value] : saved) {
        ::setenv(name, value.c_str(), 1);
    }
}
