// One Messier object: read from a text line, written to and read from its 37-byte record,
// named by its number and popular name, with the words of its class from the profile and a
// yellow label of its code name.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "StarIndexTesting.h"
#include "catalogues/Messier.h"
#include "host/HostFile.h"
#include "platform/TFont.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"
#include "skyview/SkyCanvas.h"

namespace {

const std::string kAndromeda = R"(31 NGC 224 00 42 44.35 + 41 16 08.6 3.44 Gal "Andromeda Galaxy")";

// The degrees of a sexagesimal angle.
double Degrees(double whole, double minutes, double seconds)
{
    return whole + minutes / 60.0 + seconds / 3600.0;
}

std::unique_ptr<Messier> Read(const std::string& line)
{
    auto object = std::make_unique<Messier>();
    EXPECT_TRUE(object->Initialize(LorvString(line))) << line;
    return object;
}

double LittleEndianDouble(const std::vector<unsigned char>& bytes, std::size_t offset)
{
    std::uint64_t bits = 0;
    for (int i = 7; i >= 0; --i) {
        bits = bits << 8 | bytes[offset + std::size_t(i)];
    }
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

class MessierTest : public ::testing::Test
{
protected:
    ScratchDirectory Dir;
    MessageCapture Messages;
};

} // namespace

TEST_F(MessierTest, ALineGivesEveryFieldAndTheNamesBuiltFromThem)
{
    Messier m31;
    ASSERT_TRUE(m31.Initialize(LorvString(kAndromeda)));
    EXPECT_EQ(m31.GetNumber(), 31);
    EXPECT_EQ(m31.GetCodeName(), "M31");
    EXPECT_DOUBLE_EQ(m31.GetMagnitude(), 3.44);
    EXPECT_NEAR(m31.GetPosition().GetRA().GetDegrees(), 15.0 * Degrees(0, 42, 44.35), 1e-9);
    EXPECT_NEAR(m31.GetPosition().GetDec().GetDegrees(), Degrees(41, 16, 8.6), 1e-9);
    EXPECT_EQ(m31.GetCommonName(), "Andromeda Galaxy");
    EXPECT_EQ(m31.GetTypeName(), "Galaxy");
    EXPECT_EQ(m31.GetType(), AstroObject::ObjectType::OtherObject);

    EXPECT_TRUE(m31.HasListName());
    EXPECT_TRUE(m31.HasInfoName());
    EXPECT_EQ(m31.GetListName(), "M31 (Andromeda Galaxy)");
    EXPECT_EQ(m31.GetInfoName(), "M31 (Andromeda Galaxy)");
    EXPECT_EQ(m31.GetRefName(), "M31");
    EXPECT_EQ(m31.GetUid(), 0x70000000u + 131u);
    EXPECT_FALSE(m31.IsTimeDependent());
    EXPECT_TRUE(m31.IsLabeled(DisplayParameters()));
    EXPECT_FALSE(m31.IsListSorted());
}

TEST_F(MessierTest, ObjectsWithoutAPopularNameAreListedByTheirCodeName)
{
    // No rest of the line, empty quotes, and quotes holding blanks only.
    for (const char* line : {"32 NGC 221 00 42 41.83 + 40 51 55.0 8.13 Gal",
                             R"(32 NGC 221 00 42 41.83 + 40 51 55.0 8.13 Gal "")",
                             R"(32 NGC 221 00 42 41.83 + 40 51 55.0 8.13 Gal "   ")"}) {
        auto m32 = Read(line);
        EXPECT_EQ(m32->GetCommonName(), "") << line;
        EXPECT_EQ(m32->GetListName(), "M32") << line;
        EXPECT_EQ(m32->GetInfoName(), "M32") << line;
    }
    // Blanks inside the quotes at either end go; what follows the closing quote is not read.
    auto m1 = Read(R"(1 NGC 1952 05 34 31.97 + 22 00 52.1 8.40 SNR "  Crab Nebula  " x "y")");
    EXPECT_EQ(m1->GetListName(), "M1 (Crab Nebula)");
}

TEST_F(MessierTest, TheDeclinationSignStandsAloneOrIsLeftOutForPlus)
{
    auto south = Read("2 NGC 7089 21 33 27.01 - 00 49 23.9 6.25 GCl");
    EXPECT_NEAR(south->GetPosition().GetDec().GetDegrees(), -Degrees(0, 49, 23.9), 1e-9);
    auto north = Read("1 NGC 1952 05 34 31.97 22 00 52.1 8.40 SNR");
    EXPECT_NEAR(north->GetPosition().GetDec().GetDegrees(), Degrees(22, 0, 52.1), 1e-9);
    EXPECT_DOUBLE_EQ(north->GetMagnitude(), 8.40);
    EXPECT_EQ(north->GetTypeName(), "Supernova Remnant");
}

TEST_F(MessierTest, ShortOrRefusedLinesLeaveTheObjectAsItWas)
{
    auto object = Read(kAndromeda);
    for (const char* line : {
             "", "   ",
             "31 NGC 224 00",                                // four fields: no declination
             "31 NGC 224 00 42 44.35 + 41 16 08.6",          // no magnitude
             "31 NGC 224 00 42 44.35 + 41 16 08.6 3.44",     // no class code
             "31 NGC 224 25 42 44.35 + 41 16 08.6 3.44 Gal", // 25 hours
             "31 NGC 224 00 42 44.35 + 91 16 08.6 3.44 Gal", // 91 degrees
         }) {
        EXPECT_FALSE(object->Initialize(LorvString(line))) << line;
        EXPECT_EQ(object->GetListName(), "M31 (Andromeda Galaxy)") << line;
        EXPECT_DOUBLE_EQ(object->GetMagnitude(), 3.44) << line;
    }
}

TEST_F(MessierTest, ANumberAboveAByteKeepsItsLowEightBits)
{
    // 300 is 0x12C: 0x2C is 44.
    auto object = Read("300 - - 08 40 22.2 + 19 40 19 3.1 OCl");
    EXPECT_EQ(object->GetNumber(), 44);
    EXPECT_EQ(object->GetCodeName(), "M44");
    EXPECT_EQ(object->GetUid(), 0x70000000u + 144u);
}

TEST_F(MessierTest, ClassCodesIgnoreCaseAndAnUnknownCodeHasNoWords)
{
    // The words of the shipped profile.
    const std::vector<std::pair<const char*, const char*>> codes = {
        {"OCl", "Open Cluster"},     {"GCl", "Globular Cluster"}, {"C/N", "Cluster with Nebula"},
        {"PlN", "Planetary Nebula"}, {"DfN", "Diffuse Nebula"},   {"Gal", "Galaxy"},
        {"SNR", "Supernova Remnant"}};
    for (const auto& [code, words] : codes) {
        EXPECT_EQ(Messier::GetTypeText(code), words) << code;
        std::string lower = code;
        for (char& c : lower) {
            c = char(std::tolower(static_cast<unsigned char>(c)));
        }
        EXPECT_EQ(Read("5 - - 1 2 3 + 4 5 6 7.0 " + lower)->GetTypeName(), words) << lower;
    }
    // Neither the base class's "-" nor anything else.
    auto unknown = Read("40 M 40 12 22 16.1 + 58 05 04 8.00 Dbl");
    EXPECT_EQ(unknown->GetTypeName(), "");
    EXPECT_EQ(Messier::GetTypeText("Galaxy"), "");
}

TEST_F(MessierTest, ARecordIsThirtySevenBytesWithTheReservedBytesZero)
{
    auto m31 = Read(kAndromeda);
    {
        HostFile file(Dir.File("one.bin"), HostFile::WriteNew);
        ASSERT_TRUE(m31->Dump(file));
    }
    const std::vector<unsigned char> bytes = Dir.ReadBytes("one.bin");
    ASSERT_EQ(bytes.size(), Messier::kRecordSize);
    EXPECT_EQ(bytes[0], 31);
    EXPECT_EQ(LittleEndianDouble(bytes, 1), 3.44);
    EXPECT_EQ(LittleEndianDouble(bytes, 17), m31->GetPosition().GetRA().GetDegrees());
    EXPECT_EQ(LittleEndianDouble(bytes, 29), m31->GetPosition().GetDec().GetDegrees());
    for (std::size_t i : {9, 10, 11, 12, 13, 14, 15, 16, 25, 26, 27, 28}) {
        EXPECT_EQ(bytes[i], 0) << "byte " << i;
    }

    // Read back: the numbers and the position, but no names or class.
    Messier copy;
    HostFile file(Dir.File("one.bin"), HostFile::ReadOnly);
    ASSERT_TRUE(copy.Load(file));
    EXPECT_EQ(copy.GetNumber(), 31);
    EXPECT_EQ(copy.GetMagnitude(), 3.44);
    EXPECT_EQ(copy.GetPosition(), m31->GetPosition());
    EXPECT_EQ(copy.GetUid(), m31->GetUid());
    EXPECT_EQ(copy.GetCodeName(), "");
    EXPECT_EQ(copy.GetListName(), "");
    EXPECT_EQ(copy.GetTypeName(), "");
    // The file ends: nothing more to read, and the object stays.
    EXPECT_FALSE(copy.Load(file));
    EXPECT_EQ(copy.GetNumber(), 31);
}

TEST_F(MessierTest, ObjectsSortByNumberNotByName)
{
    auto m2 = Read("2 NGC 7089 21 33 27.01 - 00 49 23.9 6.25 GCl");
    auto m10 = Read("10 NGC 6254 16 57 08.99 - 04 05 57.6 4.98 GCl");
    // By text "M10" would come first.
    EXPECT_TRUE(m2->IsLessThan(*m10));
    EXPECT_FALSE(m10->IsLessThan(*m2));
    EXPECT_FALSE(m2->IsLessThan(*m2));
}

TEST_F(MessierTest, TheLabelIsTheCodeNameInYellowAndFollowsTheObject)
{
    auto m31 = Read(kAndromeda);
    DisplayParameters noSurface;
    EXPECT_EQ(m31->GetLabel(noSurface), nullptr);

    SkyCanvas canvas(64, 32);
    Label* label = m31->GetLabel(canvas.Parameters);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->GetText(), "M31");
    EXPECT_EQ(label->GetColor(), TColor::LtYellow);
    EXPECT_EQ(label->GetObject(), m31.get());
    EXPECT_FALSE(label->IsFixed());
    ASSERT_NE(label->GetFontRef(), nullptr);
    EXPECT_EQ(label->GetFontRef()->GetFont().GetFaceName(), "Arial");
    // 0.14 inch on a 96-dpi screen: 13 pixels.
    EXPECT_EQ(label->GetFontRef()->GetFont().GetHeight(), 13);
    // The same label while the font stays.
    EXPECT_EQ(m31->GetLabel(canvas.Parameters), label);

    m31->SetDisplayPoint(TPoint(20, 10));
    EXPECT_EQ(m31->GetDisplayPoint(), TPoint(20, 10));
    EXPECT_EQ(label->GetObjectPoint(), TPoint(20, 10));
}
