// The reference host as a user runs it without a display: `orbiscope render` draws the map
// headless through liborbiscope.so and writes a PNG, which is compared pixel for pixel with
// the golden pictures of tests/e2e/golden; its options refuse bad values with a clear message;
// and the program without a display says how to make a picture instead.
//
// The pictures are made at a fixed moment in Universal Time, in a fresh user directory (no
// saved default view) and with TZ=UTC, so that the status line does not depend on the machine.
// ORBISCOPE_UPDATE_GOLDEN=1 writes the golden pictures from the present output.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "ProgramTest.h"
#include "platform/ImageCompare.h"
#include "platform/PngFile.h"

namespace {

namespace fs = std::filesystem;

// Which pixels have the grid's pure blue.
std::vector<bool> GridMask(const PngImage& image)
{
    std::vector<bool> mask;
    for (std::size_t i = 0; i + 2 < image.Pixels.size() && !image.bIndexed; i += 3) {
        mask.push_back(image.Pixels[i] == 0 && image.Pixels[i + 1] == 0 &&
                       image.Pixels[i + 2] == 255);
    }
    return mask;
}

class RenderCommandTest : public ProgramTest
{
protected:
    RenderCommandTest() : ProgramTest("orbiscope-render") {}

    // Renders the view the options give at 2000 January 1, 0h UT (unless they give a time),
    // 800 by 600 unless they give a size, and compares it with its golden picture. A limit of
    // -30 leaves the stars out, so that the picture shows the grid and the Sun, Moon and
    // planets that stand in the view at that moment.
    void ExpectGoldenView(const std::string& name, const std::vector<std::string>& view)
    {
        const fs::path picture = Dir / (name + ".png");
        std::vector<std::string> args = {"render",  "--out",  picture.string(),  "--size",
                                         "800x600", "--time", "2000-01-01 00:00"};
        args.insert(args.end(), view.begin(), view.end());
        Outcome made = Run(args);
        ASSERT_EQ(made.nExit, 0) << made.Err;
        PngImage actual;
        ASSERT_TRUE(ReadPngFile(picture.string(), actual));

        const fs::path golden = fs::path(ORBISCOPE_TEST_DIR) / "e2e" / "golden" / (name + ".png");
        const char* update = std::getenv("ORBISCOPE_UPDATE_GOLDEN");
        if (update && *update && std::string(update) != "0") {
            fs::create_directories(golden.parent_path());
            fs::copy_file(picture, golden, fs::copy_options::overwrite_existing);
            return;
        }
        PngImage expected;
        ASSERT_TRUE(ReadPngFile(golden.string(), expected))
            << "no golden picture " << golden << " (ORBISCOPE_UPDATE_GOLDEN=1 writes it)";
        const fs::path diff = fs::temp_directory_path() / "orbiscope-golden" / (name + "-diff.png");
        fs::create_directories(diff.parent_path());
        ImageComparison result = CompareImages(expected, actual, diff.string());
        EXPECT_TRUE(result.bMatch) << name << ": " << result.Message << " (diff " << diff << ")";
    }
};

} // namespace

// The grid must not change unseen: these three views show meridians every 15 degrees and
// parallels every 10, straight parallels across the equator, circles round the north pole
// stopping at 80 degrees, and a hemisphere down to the south pole with its rim (with the
// constellations' names, shown by default).
TEST_F(RenderCommandTest, TheGridAtTheEquatorThePoleAndFortyFiveSouthMatchesItsPictures)
{
    for (const auto& [name, center, radius] : {std::tuple{"grid-equator-radius30", "0,0", "30"},
                                               {"grid-north-pole-radius60", "0,90", "60"},
                                               {"grid-dec-minus45-radius90", "0,-45", "90"}}) {
        ExpectGoldenView(name,
                         {"--center", center, "--radius", radius, "--limit", "-30", "--grid"});
    }
}

// The stars must not change unseen: Orion at radius 20 to magnitude 6.5 (the belt in the
// middle, Betelgeuse up and to the left, Rigel down and to the right), and the whole northern
// sky to magnitude 6 with the grid, the Plough and Cassiopeia either side of Polaris. The
// constellations' names, shown by default, stand in orange on their points.
TEST_F(RenderCommandTest, StarsOfOrionAndOfTheNorthernSkyMatchTheirPictures)
{
    ExpectGoldenView("stars-orion-radius20",
                     {"--center", "84,0", "--radius", "20", "--limit", "6.5"});
    ExpectGoldenView("stars-north-pole-radius90",
                     {"--center", "0,90", "--radius", "90", "--limit", "6", "--grid"});
}

// The view from the ground must not change unseen: from latitude 50 N, longitude 0, looking
// south with a field of 60 degrees, asked for at 20 degrees up and raised to 60 so that the
// field clears the horizon, whose magenta line runs round the lower half of the hemisphere's
// disc, with the dark grey ground below it. Orion, Taurus and Gemini stand on the meridian at
// RA 100 to magnitude 5 with the grid round the north pole above them, and Saturn and Jupiter
// low in the west, on the right.
TEST_F(RenderCommandTest, TheViewFromFiftyNorthWithItsHorizonMatchesItsPicture)
{
    ExpectGoldenView("horizon-lat50-south-radius60", {"--location", "50,0", "--look", "180,20",
                                                      "--radius", "60", "--grid", "--limit", "5"});
}

TEST_F(RenderCommandTest, RenderWritesThePictureOfTheSizeAskedForAndSaysSo)
{
    const fs::path picture = Dir / "sky.png";
    Outcome made = Run({"render", "--out=" + picture.string(), "--size", "321x123"});
    ASSERT_EQ(made.nExit, 0) << made.Err;
    EXPECT_NE(made.Out.find("wrote " + picture.string()), std::string::npos) << made.Out;
    PngImage image;
    ASSERT_TRUE(ReadPngFile(picture.string(), image));
    EXPECT_EQ(image.Width, 321);
    EXPECT_EQ(image.Height, 123);

    // Stars of the default view are on it: some pixel is neither sky, grid nor status text.
    int bright = 0;
    for (int y = 20; y < image.Height; ++y) {
        for (int x = 0; x < image.Width; ++x) {
            const BYTE* p = &image.Pixels[(std::size_t(y) * std::size_t(image.Width) + x) * 3];
            bright += p[0] > 60 && p[0] == p[1] && p[1] == p[2];
        }
    }
    EXPECT_GT(bright, 10);
}

TEST_F(RenderCommandTest, TheOptionsComeAfterTheCommandString)
{
    // A full state that hides the grid and looks elsewhere, narrowly; --grid, --center and
    // --radius win, so the grid is the one round the pole at radius 20, where no planet is.
    // Constellation names stay shown, as they are without the state.
    // The state holds every key of a bookmark, as the program takes no other.
    const std::string state =
        "FullState=1 AstroNoxWindow=<DisplayStatusWindow=0 DisplayFinderWindow=0 "
        "MapWindow=<Grid=<Show=0 NumberOfRALines=24 "
        "NumberOfDecLines=36> Constellations=<Show_Labels=1> Orientation_Type=0 "
        "Orientation=<Base=<Radius=10> CenterOfView=<RA=200 Dec=-60> Zenith=<RA=200 Dec=90>> "
        "Planets=<> Animation=<> Time=<Year=2000 Month=1 Day=1> TimeZone=<> "
        "Show_Nearest_Dark_Time_At_Startup=0 Display=<> Messier=0 Comets=0 "
        "Location_Name=Pole>>";
    const std::vector<std::string> pole = {"--size",   "800x600", "--time",   "2000-01-01 00:00",
                                           "--center", "0,90",    "--radius", "20",
                                           "--limit",  "-30"};
    auto render = [&](const std::string& name, std::vector<std::string> extra) {
        std::vector<std::string> args = {"render", "--out", (Dir / name).string()};
        args.insert(args.end(), extra.begin(), extra.end());
        Outcome o = Run(args);
        EXPECT_EQ(o.nExit, 0) << o.Err;
        PngImage image;
        EXPECT_TRUE(ReadPngFile((Dir / name).string(), image));
        return image;
    };
    std::vector<std::string> withState = pole;
    withState.push_back("--grid");
    withState.push_back(state);
    std::vector<std::string> plain = pole;
    plain.push_back("--grid");
    const std::vector<bool> after = GridMask(render("after.png", withState));
    const std::vector<bool> alone = GridMask(render("alone.png", plain));
    ASSERT_EQ(after.size(), alone.size());
    EXPECT_TRUE(after == alone) << "the grid of the options, not of the state";
    EXPECT_GT(std::count(after.begin(), after.end(), true), 1000);

    // The state alone hides the grid.
    const std::vector<bool> hidden = GridMask(render("state.png", {"--size", "800x600", state}));
    EXPECT_EQ(std::count(hidden.begin(), hidden.end(), true), 0);
}

TEST_F(RenderCommandTest, BadOptionsAreRefusedWithAMessageAndNoPicture)
{
    const std::string out = (Dir / "never.png").string();
    struct Case
    {
        std::vector<std::string> Args;
        std::string Says;
    };
    const std::vector<Case> cases = {
        {{"render"}, "needs --out"},
        {{"render", "--out"}, "--out needs a value"},
        {{"render", "--out", out, "--size", "800"}, "--size takes"},
        {{"render", "--out", out, "--size", "0x600"}, "--size takes"},
        {{"render", "--out", out, "--size", "100000x600"}, "--size takes"},
        {{"render", "--out", out, "--time", "2000-13-01 00:00"}, "--time takes"},
        {{"render", "--out", out, "--time", "2001-02-29 00:00"}, "--time takes"},
        {{"render", "--out", out, "--time", "2000-01-01 24:00"}, "--time takes"},
        {{"render", "--out", out, "--time", "yesterday"}, "--time takes"},
        {{"render", "--out", out, "--center", "10"}, "--center takes"},
        {{"render", "--out", out, "--center", "10,95"}, "--center takes"},
        {{"render", "--out", out, "--radius", "0"}, "--radius takes"},
        {{"render", "--out", out, "--radius", "91"}, "--radius takes"},
        {{"render", "--out", out, "--radius", "nan"}, "--radius takes"},
        {{"render", "--out", out, "--limit", "bright"}, "--limit takes"},
        {{"render", "--out", out, "--grid=1"}, "--grid takes no value"},
        {{"render", "--out", out, "--zoom", "2"}, "unknown option --zoom"},
        {{"render", "--out", out, "--location", "50"}, "--location takes"},
        {{"render", "--out", out, "--location", "91,0"}, "--location takes"},
        {{"render", "--out", out, "--location", "north,0"}, "--location takes"},
        {{"render", "--out", out, "--look", "180,95"}, "--look takes"},
        {{"render", "--out", out, "--look", "south"}, "--look takes"},
        {{"render", "--out", out, "--center", "0,0", "--look", "180,20"}, "one or the other"},
    };
    for (const Case& c : cases) {
        Outcome o = Run(c.Args);
        EXPECT_EQ(o.nExit, 2) << c.Args.back();
        EXPECT_NE(o.Err.find(c.Says), std::string::npos) << c.Args.back() << ": " << o.Err;
    }
    EXPECT_FALSE(fs::exists(out));

    // A leap day, a time with seconds and a year before the Gregorian calendar are good.
    for (const char* time : {"2000-02-29 23:59:59.5", "1500-02-29 12:00", "-0043-03-15 12:00"}) {
        Outcome o = Run({"render", "--out", out, "--size", "16x16", "--time", time});
        EXPECT_EQ(o.nExit, 0) << time << ": " << o.Err;
    }

    Outcome missing =
        Run({"render", "--out", (Dir / "no" / "such" / "dir.png").string(), "--size", "16x16"});
    EXPECT_EQ(missing.nExit, 1);
    EXPECT_NE(missing.Err.find("cannot write"), std::string::npos) << missing.Err;
}

TEST_F(RenderCommandTest, WithoutADisplayTheProgramPointsToRender)
{
    Outcome o = Run({});
    EXPECT_EQ(o.nExit, 1);
    EXPECT_NE(o.Err.find("no display"), std::string::npos) << o.Err;
    EXPECT_NE(o.Err.find("orbiscope render --out sky.png"), std::string::npos) << o.Err;

    Outcome help = Run({"--help"});
    EXPECT_EQ(help.nExit, 0);
    EXPECT_NE(help.Out.find("orbiscope [COMMAND]"), std::string::npos);
    EXPECT_NE(help.Out.find("orbiscope render --out FILE"), std::string::npos);
    for (const char* option : {"--size", "--time", "--center", "--location", "--look", "--radius",
                               "--grid", "--limit"}) {
        EXPECT_NE(help.Out.find(option), std::string::npos) << option;
    }
    EXPECT_EQ(Run({"--version"}).Out, "orbiscope " ORBISCOPE_VERSION "\n");
}

TEST_F(RenderCommandTest, ALibraryThatCannotBeLoadedIsNamed)
{
    Outcome o = Run({"render", "--out", (Dir / "x.png").string()},
                    {"ORBISCOPE_LIBRARY=" + (Dir / "missing.so").string()});
    EXPECT_EQ(o.nExit, 1);
    EXPECT_NE(o.Err.find("cannot load the planetarium"), std::string::npos) << o.Err;
    EXPECT_NE(o.Err.find("missing.so"), std::string::npos) << o.Err;
}
