// The reference host prints without a display: `orbiscope print` writes the star chart of a
// view into a PDF of one page of the chosen paper, with the chart's heading as text; bad
// options and files that cannot be written are refused with a message and no file.
//
// The program runs in a fresh user directory with TZ=UTC, so that the heading's time does not
// depend on the machine.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "ProgramTest.h"
#include "platform/PdfText.h"

namespace {

namespace fs = std::filesystem;

class PrintCommandTest : public ProgramTest
{
protected:
    PrintCommandTest() : ProgramTest("orbiscope-printcmd") {}
};

TEST_F(PrintCommandTest, PrintsTheChartOfTheViewOnOneLetterPage)
{
    // A bookmark's view of Orion whose centre has an RA of -276 degrees, which is 84: 5h 36m.
    // The field is 40 degrees across the narrower side, twice its radius, as the status panel
    // says; the time is UT, and says so.
    const std::string chart = (Dir / "orion.pdf").string();
    Outcome o = Run({"print", "--out", chart, "--paper", "letter", "--time", "2000-01-01 21:30",
                     "FullState=1 AstroNoxWindow=<MapWindow=<Orientation_Type=0 Orientation=<"
                     "Base=<Radius=20> CenterOfView=<RA=-276 Dec=0> Zenith=<RA=-276 Dec=90>>>>"});
    ASSERT_EQ(o.nExit, 0) << o.Err;
    EXPECT_NE(o.Out.find("wrote " + chart), std::string::npos) << o.Out;
    EXPECT_EQ(PdfInfo(chart, "Pages"), "1");
    EXPECT_EQ(PdfInfo(chart, "Page size"), "612 x 792 pts (letter)");

    const std::string text = Poppler("pdftotext", chart, "-");
    for (const char* line : {"9:30:00pm January 1, 2000 UTC\n", "Minimum field Of View: 40\xC2\xB0",
                             "Center RA: 05h 36m 00.0s", "Center Dec: + 00\xC2\xB0 00' 00.0\""}) {
        EXPECT_NE(text.find(line), std::string::npos) << line << " in:\n" << text;
    }
}

TEST_F(PrintCommandTest, TheViewFromTheGroundPrintsOnA4ByDefaultWithItsPlace)
{
    const std::string chart = (Dir / "south.pdf").string();
    Outcome o = Run({"print", "--out", chart, "--time", "2000-01-01 00:00", "--location", "50,8.7",
                     "--look", "180,30", "--radius", "40"});
    ASSERT_EQ(o.nExit, 0) << o.Err;
    EXPECT_EQ(PdfInfo(chart, "Pages"), "1");
    EXPECT_EQ(PdfInfo(chart, "Page size"), "595.276 x 841.89 pts (A4)");
    const std::string text = Poppler("pdftotext", chart, "-");
    for (const char* line : {"50\xC2\xB0"
                             "00' N, 8\xC2\xB0"
                             "42' E",
                             "Minimum field Of View: 80"}) {
        EXPECT_NE(text.find(line), std::string::npos) << line << " in:\n" << text;
    }
}

TEST_F(PrintCommandTest, BadOptionsAndUnwritableFilesAreRefused)
{
    const fs::path chart = Dir / "bad.pdf";
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"print"}, "print needs --out FILE"},
        {{"print", "--out", chart.string(), "--paper", "a5"}, "--paper takes a4 or letter"},
        {{"print", "--out", chart.string(), "--size", "800x600"}, "unknown option --size"},
        {{"print", "--out", chart.string(), "--radius", "100"}, "--radius takes degrees"},
        {{"print", "--out", chart.string(), "--center", "0,0", "--look", "90,10"},
         "one or the other"},
    };
    for (const auto& [args, says] : cases) {
        Outcome o = Run(args);
        EXPECT_EQ(o.nExit, 2) << says;
        EXPECT_NE(o.Err.find(says), std::string::npos) << o.Err;
        EXPECT_FALSE(fs::exists(chart)) << says;
    }

    const fs::path nowhere = Dir / "no" / "such" / "chart.pdf";
    Outcome o = Run({"print", "--out", nowhere.string()});
    EXPECT_EQ(o.nExit, 1);
    EXPECT_NE(o.Err.find("cannot write " + nowhere.string()), std::string::npos) << o.Err;

    Outcome help = Run({"--help"});
    EXPECT_NE(help.Out.find("orbiscope print --out FILE"), std::string::npos);
    EXPECT_NE(help.Out.find("--paper a4|letter"), std::string::npos);
}

} // namespace
