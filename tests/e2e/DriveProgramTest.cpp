// The program as a person meets it: on an X server (Xvfb) driven with xdotool by
// drive-program.sh, from the first start in a fresh home to a bookmark opened at the second;
// and what it says, and how it ends, when what it is given cannot be used.
#include <chrono>
#include <cstdlib>
#include <map>

#include "ProgramTest.h"

namespace fs = std::filesystem;

namespace {

class DriveProgramTest : public ProgramTest
{
protected:
    DriveProgramTest() : ProgramTest("orbiscope-drive") {}

    static bool Installed(const char* tool)
    {
        return std::system((std::string("command -v ") + tool + " >/dev/null 2>&1").c_str()) == 0;
    }
};

TEST_F(DriveProgramTest, APersonSetsThePlaceUsesTheKeysAndMenuAndOpensABookmarkNextTime)
{
    for (const char* tool :
         {"xvfb-run", "xdotool", "xwd", "xwininfo", "xprop", "convert", "compare"}) {
        if (!Installed(tool)) {
            GTEST_SKIP() << tool << " is not installed";
        }
    }
    const fs::path script = fs::path(ORBISCOPE_TEST_DIR) / "e2e" / "drive-program.sh";
    const fs::path run = Dir / "run.sh";
    std::ofstream(run) << "cd '" << Dir.string() << "' && sh '" << script.string() << "' '"
                       << ORBISCOPE_APP << "'\n";
    // SDL under X opens libdbus, which leaks at exit beyond any tracing.
    const char* asan = std::getenv("ASAN_OPTIONS");
    const std::string asanOptions =
        std::string(asan ? asan : "") + (asan ? ":" : "") + "detect_leaks=0";
    const Outcome o =
        Run({}, {"SDL_VIDEODRIVER=x11", "ASAN_OPTIONS=" + asanOptions}, {},
            {"xvfb-run", "-a", "-s", "-screen 0 1280x1024x24 -nolisten tcp", "sh", run.string()});
    ASSERT_EQ(o.nExit, 0) << o.Err;

    std::map<std::string, std::string> facts;
    std::istringstream lines(ReadAll(Dir / "facts.txt"));
    for (std::string line; std::getline(lines, line);) {
        facts[line.substr(0, line.find('='))] = line.substr(line.find('=') + 1);
    }
    const std::string said = ReadAll(Dir / "facts.txt") + ReadAll(Dir / "app-err-1.txt");
    auto number = [&](const char* name) { return std::atol(facts[name].c_str()); };
    EXPECT_EQ(facts["first-start-asks"], "1") << said;
    EXPECT_EQ(facts.count("map-drawn"), 0u) << "the sky never showed\n" << said;
    // A window the window manager decorates and lets the user size, down to a minimum.
    EXPECT_NE(facts["hints"].find("_NET_WM_WINDOW_TYPE_NORMAL"), std::string::npos) << said;
    EXPECT_NE(facts["hints"].find("WM_TRANSIENT_FOR:  not found"), std::string::npos) << said;
    EXPECT_NE(facts["hints"].find("minimum size: 480 by 360"), std::string::npos) << said;
    EXPECT_EQ(facts["ctrl+t"], "Set Date and Time") << said;
    EXPECT_EQ(facts["ctrl+l"], "Set Location") << said;
    EXPECT_EQ(facts["ctrl+g"], "Right Ascension and Declination Lines") << said;
    EXPECT_EQ(facts["ctrl+p"], "Print") << said;
    EXPECT_GT(number("menu-open"), 10000) << "the menu's face\n" << said;
    EXPECT_EQ(number("menu-closed"), 0) << "Escape closed the menu\n" << said;
    EXPECT_GT(number("zoom-in-changed"), 300) << said;
    EXPECT_GT(number("wheel-changed"), 50) << said;
    EXPECT_EQ(facts["full-screen"], "1280x1024") << said;
    EXPECT_EQ(facts["window"], "1024x798") << "the map and the title bar above it\n" << said;
    EXPECT_EQ(facts["exit-1"], "0") << said;
    EXPECT_EQ(facts["second-start-asks"], "0") << said;
    // The second start opens on the place, at another moment; the bookmark brings back the
    // very view it kept.
    EXPECT_GT(number("start-differs"), 100) << said;
    EXPECT_LT(number("restored-differs"), number("start-differs") / 10) << said;
    EXPECT_EQ(facts["exit-2"], "0") << said << ReadAll(Dir / "app-err-2.txt");
    // Without the star files: a message box over the window, the same words on standard error.
    EXPECT_GT(number("no-data-box"), 5000) << said;
    EXPECT_EQ(facts["exit-3"], "1") << said;
    EXPECT_NE(ReadAll(Dir / "app-err-3.txt").find("bright.bin is missing: it was looked for at"),
              std::string::npos)
        << ReadAll(Dir / "app-err-3.txt");
}

// Each input the program cannot use ends it with a message that says what is wrong, at once,
// and a picture is never written from it.
TEST_F(DriveProgramTest, WhatCannotBeUsedIsNamedAndEndsTheProgram)
{
    const fs::path empty = Dir / "empty-data";
    fs::create_directories(empty);
    const std::string out = (Dir / "sky.png").string();
    const struct
    {
        std::vector<std::string> Args;
        std::vector<std::string> Env;
        int Exit;
        std::string Said;
    } cases[] = {
        {{"rendr", "--out", out}, {}, 2, "unknown command \"rendr\" (did you mean render?)"},
        {{"render", "--out", out},
         {"ORBISCOPE_DATA=" + empty.string()},
         1,
         "bright.bin is missing: it was looked for at " + (empty / "bright.bin").string()},
        {{"render", "--out", out, "stringref="}, {}, 2, "stringref takes a catalogue word"},
        {{"render", "--out", out, "stringref=Planet,Vulcan"},
         {},
         2,
         "no object of the catalogue Planet is named \"Vulcan\""},
        {{"render", "--out", out, "colour=red"}, {}, 2, "the planetarium knows no key colour"},
        {{"print", "--out", out, "FullState=1 AstroNoxWindow=<MapWindow=<Grid=<Show=1>>>"},
         {},
         2,
         "it lacks MapWindow.Orientation_Type, MapWindow.Orientation, MapWindow.Time, which "
         "the options do not give"},
        // The window takes only a whole bookmark, and says so before it looks for a display.
        {{"FullState=1 AstroNoxWindow=<MapWindow=<Grid=<Show=1>>>"},
         {"DISPLAY=:97"},
         2,
         "it lacks AstroNoxWindow.DisplayStatusWindow, AstroNoxWindow.DisplayFinderWindow, "
         "MapWindow.Orientation_Type"},
    };
    for (const auto& row : cases) {
        const Outcome o = Run(row.Args, row.Env);
        EXPECT_EQ(o.nExit, row.Exit) << row.Said;
        EXPECT_NE(o.Err.find(row.Said), std::string::npos) << o.Err;
        EXPECT_FALSE(fs::exists(out)) << row.Said;
        EXPECT_FALSE(fs::exists(Dir / "home" / "registry.db")) << "nothing of the settings kept";
    }

    // A display that never answers: a socket that accepts and says nothing.
    if (!Installed("python3")) {
        GTEST_SKIP() << "python3 is not installed";
    }
    const auto start = std::chrono::steady_clock::now();
    const Outcome o = Run({}, {"DISPLAY=:97"}, {"SDL_VIDEODRIVER", "WAYLAND_DISPLAY"},
                          {"python3", "-c",
                           "import os,socket,subprocess,sys\n"
                           "p='/tmp/.X11-unix/X97'\n"
                           "os.makedirs('/tmp/.X11-unix',exist_ok=True)\n"
                           "s=socket.socket(socket.AF_UNIX)\n"
                           "os.path.exists(p) and os.unlink(p)\n"
                           "s.bind(p);s.listen(1)\n"
                           "r=subprocess.run(sys.argv[1:]).returncode\n"
                           "os.unlink(p);sys.exit(r)\n",
                           ORBISCOPE_APP});
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(o.nExit, 1) << o.Err;
    EXPECT_NE(o.Err.find("the display \":97\" does not answer"), std::string::npos) << o.Err;
    EXPECT_LT(waited, std::chrono::seconds(15));
}

} // namespace
