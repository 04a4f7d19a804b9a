#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "host/HostFonts.h"
#include "host/HostFrameAPI.h"
#include "platform/HostPalette.h"
#include "platform/TFont.h"
#include "platform/TPalette.h"

TEST(HostFrameAPI, NoFrameUntilTheHostInstallsOne)
{
    ASSERT_EQ(getHostFrameAPI(), nullptr);
    StandardHostFrame frame;
    EXPECT_EQ(SetHostFrameAPI(&frame), nullptr);
    EXPECT_EQ(getHostFrameAPI(), &frame);
    EXPECT_EQ(SetHostFrameAPI(nullptr), &frame);
    EXPECT_EQ(getHostFrameAPI(), nullptr);
}

TEST(HostFrameAPI, StandardFrameGivesTheHostPaletteColoursAndMetrics)
{
    StandardHostFrame frame;
    const TPalette& palette = frame.GetPalette();
    ASSERT_EQ(palette.GetNumEntries(), kHostPaletteSize);
    EXPECT_EQ(palette.GetNearestPaletteIndex(TColor(0, 0, 0x60)), UINT(kHostPaletteDaySky));

    EXPECT_EQ(frame.GetColor(kHostColorPanelBackground), TColor(0, 0, 0));
    EXPECT_EQ(frame.GetColor(-1), TColor(0, 0, 0));
    EXPECT_EQ(frame.GetColor(1000), TColor(0, 0, 0));
    EXPECT_GT(frame.GetMetric(kHostMetricBezelGap), 0);
    EXPECT_GT(frame.GetMetric(kHostMetricBezelWidth), 0);
    EXPECT_EQ(frame.GetMetric(0), 0);
    EXPECT_EQ(frame.GetFrameWindow(), nullptr);
}

TEST(HostFrameAPI, LaunchHandsTheAddressToTheLauncherAndRefusesNothingToLaunch)
{
    std::vector<std::string> launched;
    StandardHostFrame frame([&](const std::string& address) {
        launched.push_back(address);
        return true;
    });
    EXPECT_TRUE(frame.Launch("https://en.wikipedia.org/wiki/Messier_31"));
    EXPECT_FALSE(frame.Launch(""));
    ASSERT_EQ(launched.size(), 1u);
    EXPECT_EQ(launched[0], "https://en.wikipedia.org/wiki/Messier_31");
}

TEST(HostFrameAPI, WithoutADesktopTheAddressIsWrittenOut)
{
    const char* display = std::getenv("DISPLAY");
    const char* wayland = std::getenv("WAYLAND_DISPLAY");
    std::string savedDisplay = display ? display : "";
    std::string savedWayland = wayland ? wayland : "";
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");

    testing::internal::CaptureStdout();
    bool ok = StandardHostFrame().Launch("https://example.org/a b");
    std::string out = testing::internal::GetCapturedStdout();

    if (display) {
        ::setenv("DISPLAY", savedDisplay.c_str(), 1);
    }
    if (wayland) {
        ::setenv("WAYLAND_DISPLAY", savedWayland.c_str(), 1);
    }
    EXPECT_TRUE(ok);
    EXPECT_EQ(out, "https://example.org/a b\n");
}

TEST(HostFrameAPI, HelpFileIsShipped)
{
    std::string help = StandardHostFrame().GetHelpFile();
    EXPECT_TRUE(std::filesystem::exists(help)) << help;
}

TEST(HostFonts, SharedFontsAreKeptAndClampedToTheSet)
{
    TFont* listFont = getHostFont(APP_FONTS, 5);
    ASSERT_NE(listFont, nullptr);
    EXPECT_EQ(getHostFont(APP_FONTS, 5), listFont);
    EXPECT_EQ(getHostFont(APP_FONTS, 99), getHostFont(APP_FONTS, kHostFontCount - 1));
    EXPECT_EQ(getHostFont(APP_FONTS, -3), getHostFont(APP_FONTS, 0));
    LOGFONT logFont{};
    ASSERT_TRUE(listFont->GetObject(logFont));
    EXPECT_EQ(logFont.lfHeight, -13);
}
