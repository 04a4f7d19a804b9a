// One star: the text lines of the catalogues, the binary record of a star file, the names a
// user reads, and its label.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <tuple>

#include "StarIndexTesting.h"
#include "host/HostFile.h"
#include "skyview/Label.h"
#include "skyview/SkyCanvas.h"

namespace {

// Degrees from degrees (or hours), minutes and seconds.
double Sexagesimal(double whole, double minutes, double seconds)
{
    return whole + minutes / 60.0 + seconds / 3600.0;
}

} // namespace

TEST(Star, CatalogueLinesReadFromAFileGiveNumberMagnitudePositionAndName)
{
    // Line; SAO number, magnitude, RA, Dec, name; how far on the sky the position may be.
    const std::tuple<const char*, std::uint32_t, double, double, double, const char*, double>
        rows[] = {
            {" 1000 , 3.5,12, 30,15.5, +, 45, 15, 30.25,1,2,3, Name One ", 1000, 3.5,
             15 * Sexagesimal(12, 30, 15.5), Sexagesimal(45, 15, 30.25), "Name One", 1e-9},
            {"1,2.0,1,0,0,-,05,30,0,a,b,c,South", 1, 2.0, 15.0, -5.5, "South", 1e-9},
            // Without a sign field the first field is the degrees, and the sign is plus.
            {"1,2.0,1,0,0,05,30,0,a,b,c,North", 1, 2.0, 15.0, 5.5, "North", 1e-9},
            // "-05" is the sign alone: its digits are lost and every field after it moves up.
            {"1,2.0,1,0,0,-05,10,20,30,a,b,c,Up", 1, 2.0, 15.0, -Sexagesimal(10, 20, 30), "Up",
             1e-9},
            // A run of commas is one separator: the name becomes the first skipped field.
            {"7,1.0,23,59,59.9,-,90,0,0,,,,Pole", 7, 1.0, 15 * Sexagesimal(23, 59, 59.9), -90.0, "",
             1e-9},
            // Lines of bright.txt (Yale Bright Star Catalogue) and of stars.txt (Hipparcos), as
            // tools/starfiles/gather_stars.py writes them: SAO, V, RA, Dec, HR, HD, HIP, name.
            // The positions are SIMBAD's (ICRS, J2000), independent of both; the catalogues
            // round RA to 0.1 s and Dec to 1", within 0.001 degree on the sky.
            {"151881,-1.46,6,45,8.900,-,16,42,58.00,2491,48915,32349,Sirius", 151881, -1.46,
             101.287155, -16.716116, "Sirius", 0.001},
            {"308,2.02,2,31,48.700,+,89,15,51.00,424,8890,11767,Polaris", 308, 2.02, 37.954561,
             89.264109, "Polaris", 0.001},
            {"113271,0.50,5,55,10.300,+,7,24,25.00,2061,39801,27989,Betelgeuse", 113271, 0.50,
             88.792939, 7.407064, "Betelgeuse", 0.001},
            {"67174,0.03,18,36,56.300,+,38,47,1.00,7001,172167,91262,Vega", 67174, 0.03, 279.234735,
             38.783689, "Vega", 0.001},
            {"151881,-1.44,6,45,8.928,-,16,42,57.96,2491,48915,32349,Sirius", 151881, -1.44,
             101.287155, -16.716116, "Sirius", 0.001},
        };
    // Read from a file with DOS line ends, which the reader takes off whole.
    ScratchDirectory dir;
    std::string text;
    for (const auto& row : rows) {
        text += std::string(std::get<0>(row)) + "\r\n";
    }
    std::unique_ptr<TextFile> file = dir.Open("lines.txt", text);
    for (const auto& [line, sao, magnitude, ra, dec, name, tolerance] : rows) {
        Star star(1, 1.0, PolarCoord(), "Old");
        ASSERT_TRUE(star.Initialize(file->GetNextLine())) << line;
        EXPECT_EQ(star.GetSAONumber(), sao) << line;
        EXPECT_DOUBLE_EQ(star.GetMagnitude(), magnitude) << line;
        EXPECT_EQ(star.GetListName(), name) << line;
        const double cosDec = std::cos(dec * 3.14159265358979323846 / 180.0);
        EXPECT_NEAR((star.GetPosition().GetRA().GetDegrees() - ra) * cosDec, 0.0, tolerance);
        EXPECT_NEAR(star.GetPosition().GetDec().GetDegrees(), dec, tolerance) << line;
    }
}

TEST(Star, RefusedLinesLeaveTheStarAsItWas)
{
    // Only a missing number or magnitude is reported; a refused position is not.
    const std::pair<const char*, const char*> rows[] = {
        {"12345", "Star::Initialize() - init line has no magnitude.\r\n"},
        {",,,", "Star::Initialize() - init line has no sao number.\r\n"},
        {"7,1.0,24,0,0,+,10,0,0,a,b,c,Late", ""},
        {"7,1.0,23,0,0,+,91,0,0,a,b,c,Far", ""},
        {"7,1.0,23,60,0,+,10,0,0", ""},
        {"7,1.0", ""},
    };
    Star star(42, 4.25, PolarCoord(10.0, 20.0), "Before");
    for (const auto& [line, message] : rows) {
        MessageCapture messages;
        EXPECT_FALSE(star.Initialize(line)) << line;
        EXPECT_EQ(messages.Messages, message) << line;
        EXPECT_EQ(star.GetInfoName(), "Before (SAO42)") << line;
        EXPECT_EQ(star.GetPosition(), PolarCoord(10.0, 20.0)) << line;
    }
}

TEST(Star, RecordReadsBackAndADamagedOneIsRefusedLeavingTheStarAlone)
{
    ScratchDirectory dir;
    {
        HostFile file(dir.File("sirius.bin"), HostFile::WriteNew);
        ASSERT_TRUE(Star(151881, -1.46, PolarCoord(101.287, -16.716), "Sirius").Dump(file));
    }
    // 29 bytes before the name, the first of them the length.
    const std::string whole = dir.ReadFile("sirius.bin");
    ASSERT_EQ(whole, std::string(1, char(35)) + whole.substr(1, 28) + "Sirius");
    std::string shortLength = whole;
    shortLength[0] = 28; // below the fixed fields
    const std::tuple<const char*, std::string, bool> rows[] = {
        {"whole", whole, true},
        {"short length", shortLength, false},
        {"cut inside the name", whole.substr(0, whole.size() - 1), false},
    };
    for (const auto& [name, bytes, good] : rows) {
        Star fromMemory(1, 2.0, PolarCoord(3.0, 4.0), "Kept");
        EXPECT_EQ(fromMemory.Load(bytes.data(), bytes.size()) != nullptr, good) << name;
        dir.WriteFile("one.bin", bytes);
        HostFile file(dir.File("one.bin"), HostFile::ReadOnly);
        Star fromFile(1, 2.0, PolarCoord(3.0, 4.0), "Kept");
        EXPECT_EQ(fromFile.Load(file), good) << name;
        for (const Star* star : {&fromMemory, &fromFile}) {
            EXPECT_EQ(star->GetInfoName(), good ? "Sirius (SAO151881)" : "Kept (SAO1)") << name;
            EXPECT_EQ(star->GetPosition(), good ? PolarCoord(101.287, -16.716) : PolarCoord(3, 4));
        }
    }
    // A star object reused for a record without a name keeps no name from the last one.
    {
        HostFile file(dir.File("unnamed.bin"), HostFile::WriteNew);
        ASSERT_TRUE(Star(42, 5.0, PolarCoord(10.0, 20.0)).Dump(file));
    }
    const std::string unnamed = dir.ReadFile("unnamed.bin");
    Star reused(1, 2.0, PolarCoord(3.0, 4.0), "Kept");
    ASSERT_NE(reused.Load(unnamed.data(), unnamed.size()), nullptr);
    EXPECT_EQ(reused.GetInfoName(), "SAO42");
}

TEST(Star, ACatalogueLineWrittenOutReadsBackAtItsPlaceEvenWhenSecondsRoundToSixty)
{
    // RA whose seconds are within a microsecond of the next minute, hour or day. (The name does
    // not come back: the three empty fields before it are one separator.)
    for (double ra : {101.287, 15.0 * Sexagesimal(12, 59, 59.9999999),
                      15.0 * Sexagesimal(23, 59, 59.9999999)}) {
        std::ostringstream line;
        Star(7, 3.5, PolarCoord(ra, -16.5), "Round").Dump(line);
        Star back(1, 1.0, PolarCoord());
        ASSERT_TRUE(back.Initialize(line.str().c_str())) << line.str();
        const double apart = std::remainder(back.GetPosition().GetRA().GetDegrees() - ra, 360.0);
        EXPECT_NEAR(apart, 0.0, 1e-5) << line.str();
    }
}

TEST(Star, LabelIsThePopularNameOfABrightStarInWhite)
{
    SkyCanvas canvas(64, 64);
    canvas.Parameters.SetLabelType(StarDisplayParameters::kPopularNameLabels);
    canvas.Parameters.SetLimitingMagnitudeLabels(2.0);
    Star vega(67174, 0.03, PolarCoord(279.234, 38.784), "Vega");
    EXPECT_TRUE(vega.IsLabeled(canvas.Parameters));
    EXPECT_TRUE(Star(1, 2.0, PolarCoord(), "AtTheLimit").IsLabeled(canvas.Parameters));
    EXPECT_FALSE(Star(1, 2.01, PolarCoord(), "Fainter").IsLabeled(canvas.Parameters));
    EXPECT_FALSE(Star(67175, -1.0, PolarCoord()).IsLabeled(canvas.Parameters));
    ASSERT_NE(vega.GetLabel(canvas.Parameters), nullptr);
    EXPECT_EQ(vega.GetLabel(canvas.Parameters)->GetText(), "Vega");
    EXPECT_EQ(vega.GetLabel(canvas.Parameters)->GetColor(), TColor::White);
    // A star read again under a new name shows that name at once.
    ASSERT_TRUE(vega.Initialize("67174,0.03,18,36,56.3,+,38,47,1.0,7001,172167,91262,Wega"));
    ASSERT_NE(vega.GetLabel(canvas.Parameters), nullptr);
    EXPECT_EQ(vega.GetLabel(canvas.Parameters)->GetText(), "Wega");
}

TEST(Star, TheInformationHeadingNamesTheStarAndItsNumberOnlyWhenItHasOne)
{
    const std::tuple<std::uint32_t, const char*, const char*> rows[] = {
        {151881, "Sirius", "Sirius (SAO151881)"},
        {42, nullptr, "SAO42"},
        {0, "Toliman", "Toliman"},
        {0, nullptr, "Star at RA: 14h 39m 36.0s   Dec: - 60\xB0 50' 02.4\""},
    };
    for (const auto& [sao, name, heading] : rows) {
        const Star star(sao, 1.35, PolarCoord(219.9, -60.834), name ? name : "");
        EXPECT_EQ(star.GetInfoName(), heading) << heading;
    }
}
