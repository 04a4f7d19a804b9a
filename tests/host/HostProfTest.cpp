#include <gtest/gtest.h>

#include <climits>

#include "host/HostFile.h"
#include "host/HostProf.h"
#include "host/ScopedHome.h"

namespace {

class HostProfFiles : public ::testing::Test
{
protected:
    ScopedHome Home;
};

struct ShippedText
{
    const char* Section;
    const char* Key;
    const char* Value;
};

// Every text and path key the component reads, with the default its readers document.
const ShippedText kShippedTexts[] = {
    {"Orbiscope", "BrightCat", "ed:\\bright.bin"},
    {"Orbiscope", "LargeStarCatalogueFile", "cd:\\win32\\stars.bin"},
    {"Orbiscope", "ConstellationNameFile", "ed:\\constnam.txt"},
    {"Orbiscope", "ConstNodeFile", "ed:\\constnod.txt"},
    {"Orbiscope", "ConstCenterFile", "ed:\\constct.txt"},
    {"Orbiscope", "ConstellationBoundaryFile", "cd:\\win32\\constbd.txt"},
    {"Orbiscope", "TimeZoneIndexFile", "ed:\\timezone.txt"},
    {"Orbiscope", "CityList", "ed:\\astcity.txt"},
    {"Orbiscope", "TimeDialogHelpKey", "Planetarium"},
    {"Orbiscope", "AnimationDialogHelpKey", "Time Lapse"},
    {"Orbiscope", "GridDialogHelpKey", "Ascension/Declination Lines"},
    {"Orbiscope", "ObjectListDialogHelpKey", "Planetarium"},
    {"Orbiscope", "ObjectInfoDialogHelpKey", "Planetarium"},
    {"Orbiscope", "LocationDialogHelpKey", "Planetarium"},
    {"Orbiscope", "StarDisplayDialogHelpKey", "Star Display"},
};

} // namespace

TEST_F(HostProfFiles, ShippedProfileHoldsTheDocumentedDefaults)
{
    HostProf profile;
    for (const ShippedText& entry : kShippedTexts) {
        EXPECT_TRUE(profile.Has(entry.Section, entry.Key)) << entry.Key;
        EXPECT_EQ(profile.Get(entry.Section, entry.Key, "missing"), entry.Value) << entry.Key;
    }
    EXPECT_FALSE(profile.GetBool("Orbiscope", "MilitaryTime", true));
    EXPECT_FALSE(profile.GetBool("Orbiscope", "DevMode", true));
    EXPECT_FALSE(profile.GetBool("Orbiscope", "SkyhuntEnabled", true));
    EXPECT_TRUE(profile.GetBool("Orbiscope", "CustomScrollBar", false));
    EXPECT_EQ(profile.GetInt("Orbiscope", "NumberOfComets", -1), 0);
    EXPECT_EQ(profile.GetInt("Global Config", "AutoSearchDelay", -1), 500);
    EXPECT_EQ(profile.GetColor("Orbiscope", "DirectionTextColor", 1), HostRGB(0, 0, 0));
    EXPECT_EQ(profile.GetColor("Orbiscope", "DirectionHorizonColor", 1), HostRGB(255, 0, 255));
    EXPECT_EQ(profile.GetColor("Orbiscope", "DirectionFieldColor", 1), HostRGB(0, 0, 255));
    for (const char* key : {"ProductGroup", "Name", "Version"}) {
        EXPECT_FALSE(profile.Get("Version", key).empty()) << key;
        EXPECT_EQ(profile.Get("Version", key).find('\\'), std::string::npos) << key;
    }
    for (const char* code : {"OCl", "GCl", "C/N", "PlN", "DfN", "Gal", "SNR"}) {
        EXPECT_FALSE(profile.Get("Orbiscope", code).empty()) << code;
    }
}

TEST_F(HostProfFiles, KeysWhoseDefaultsBelongToTheCallerAreAbsent)
{
    // These defaults come from the frame, the list control or differ between two readers,
    // so the shipped file must not fix them.
    HostProf profile;
    for (const char* key : {"BackgroundColor", "BackgroundListColor", "TextColor",
                            "CustomScrollBarFillColor", "MessierFile"}) {
        EXPECT_FALSE(profile.Has("Orbiscope", key)) << key;
    }
    EXPECT_EQ(profile.GetColor("Orbiscope", "BackgroundColor", HostRGB(1, 2, 3)), HostRGB(1, 2, 3));
    EXPECT_EQ(profile.Get("Orbiscope", "MessierFile", "ed:\\messier.bin"), "ed:\\messier.bin");
}

TEST_F(HostProfFiles, UserFileOverridesOnlyWhatItNames)
{
    Home.WriteFile("orbiscope.ini", "[orbiscope]\nMilitaryTime=1\nNumberOfComets=1\n"
                                    "Comet1=Test, 2000 January 1.5, 1, 0.5, 10, 20, 30\n");
    HostProf profile;
    EXPECT_TRUE(profile.GetBool("Orbiscope", "MilitaryTime", false));
    EXPECT_EQ(profile.GetInt("Orbiscope", "NumberOfComets", 0), 1);
    EXPECT_EQ(profile.Get("Orbiscope", "Comet1"), "Test, 2000 January 1.5, 1, 0.5, 10, 20, 30");
    EXPECT_EQ(profile.Get("Orbiscope", "CityList"), "ed:\\astcity.txt");
    EXPECT_EQ(profile.GetUserPath(), Home.File("orbiscope.ini"));
}

TEST_F(HostProfFiles, MissingKeysAndSectionsGiveTheCallersDefault)
{
    HostProf profile;
    EXPECT_EQ(profile.Get("Orbiscope", "NoSuchKey", "fallback"), "fallback");
    EXPECT_EQ(profile.Get("No Such Section", "CityList", nullptr), "");
    EXPECT_EQ(profile.Get("Orbiscope", "NoSuchKey", std::string("s")), "s");
    EXPECT_TRUE(profile.GetBool("Orbiscope", "NoSuchKey", true));
    EXPECT_EQ(profile.GetInt("Orbiscope", "NoSuchKey", 77), 77);
    EXPECT_EQ(profile.GetColor("Orbiscope", "NoSuchKey", HostRGB(9, 8, 7)), HostRGB(9, 8, 7));
}

TEST_F(HostProfFiles, MissingFilesGiveAnEmptyProfile)
{
    HostProf profile("ed:\\no-such-profile.ini");
    EXPECT_TRUE(profile.GetSections().empty());
    EXPECT_EQ(profile.Get("Orbiscope", "CityList", "d"), "d");
}

TEST_F(HostProfFiles, GetPathResolvesLogicalPrefixes)
{
    HostProf profile;
    std::string path = profile.GetPath("Orbiscope", "CityList");
    EXPECT_EQ(path, HostFile::DataDirectory() + "/astcity.txt");
    EXPECT_EQ(profile.GetPath("Orbiscope", "NoSuchKey", "ed:\\x.txt"),
              HostFile::DataDirectory() + "/x.txt");
    EXPECT_EQ(profile.GetPath("Orbiscope", "NoSuchKey"), "");
}

TEST(HostProfText, ReadsCommentsQuotesBlanksAndLineBreaks)
{
    HostProf profile = HostProf::FromText("\xEF\xBB\xBF[First]\r\n"
                                          "; comment = not a key\r\n"
                                          "# also = a comment\n"
                                          "  Spaced Key  =   spaced value  \r"
                                          "Quoted = \"  keeps blanks  \"\n"
                                          "Half = \"only one quote\n"
                                          "Empty =\n"
                                          "NoEquals\n"
                                          "=no key\n"
                                          "Url = http://example.org/a=b\n"
                                          "[ Second ]\n"
                                          "x=1");
    EXPECT_EQ(profile.Get("first", "spaced key"), "spaced value");
    EXPECT_EQ(profile.Get("First", "Quoted"), "  keeps blanks  ");
    EXPECT_EQ(profile.Get("First", "Half"), "\"only one quote");
    EXPECT_TRUE(profile.Has("First", "Empty"));
    EXPECT_EQ(profile.Get("First", "Empty", "d"), "");
    EXPECT_FALSE(profile.Has("First", "NoEquals"));
    EXPECT_FALSE(profile.Has("First", "; comment"));
    EXPECT_EQ(profile.Get("First", "Url"), "http://example.org/a=b");
    EXPECT_EQ(profile.GetKeys("First").size(), 5u);
    EXPECT_EQ(profile.Get("Second", "X"), "1");
}

TEST(HostProfText, FirstOfRepeatedKeysWinsAcrossRepeatedSections)
{
    HostProf profile = HostProf::FromText("orphan=1\n[A]\nk=first\nk=second\n[B]\nk=b\n"
                                          "[a]\nk=third\nonly=later\n[Unclosed\nu=1\n");
    EXPECT_EQ(profile.Get("A", "k"), "first");
    EXPECT_EQ(profile.Get("A", "only"), "later");
    EXPECT_EQ(profile.Get("B", "k"), "b");
    EXPECT_EQ(profile.Get("Unclosed", "u"), "1");
    EXPECT_FALSE(profile.Has("", "orphan"));
    EXPECT_EQ(profile.GetSections().size(), 3u);
}

TEST(HostProfText, NumbersBooleansAndColours)
{
    HostProf profile =
        HostProf::FromText("[S]\n"
                           "dec = 500 ms\nhex = 0x1F\nneg = -12\n"
                           "huge = 99999999999999999999999\nhugeneg = -99999999999999999999999\n"
                           "word = fast\nzero = 0\n"
                           "yes = Yes\noff = OFF\ntwo = 2\n"
                           "rgb = 255, 0, 128\nblank = 1 2 3\nhash = #FF8000\n"
                           "over = 256, 0, 0\nshort = 1, 2\nlong = 1, 2, 3, 4\n"
                           "signed = -1, 0, 0\nbadhash = #12345G\n");
    EXPECT_EQ(profile.GetInt("S", "dec", 0), 500);
    EXPECT_EQ(profile.GetInt("S", "hex", 0), 31);
    EXPECT_EQ(profile.GetInt("S", "neg", 0), -12);
    EXPECT_EQ(profile.GetInt("S", "huge", 0), LONG_MAX);
    EXPECT_EQ(profile.GetInt("S", "hugeneg", 0), LONG_MIN);
    EXPECT_EQ(profile.GetInt("S", "word", 42), 42);

    EXPECT_FALSE(profile.GetBool("S", "zero", true));
    EXPECT_TRUE(profile.GetBool("S", "yes", false));
    EXPECT_FALSE(profile.GetBool("S", "off", true));
    EXPECT_TRUE(profile.GetBool("S", "two", false));
    EXPECT_TRUE(profile.GetBool("S", "word", true));
    EXPECT_FALSE(profile.GetBool("S", "word", false));

    const HostColor fallback = HostRGB(1, 1, 1);
    EXPECT_EQ(profile.GetColor("S", "rgb", fallback), 0x008000FFu);
    EXPECT_EQ(profile.GetColor("S", "blank", fallback), HostRGB(1, 2, 3));
    EXPECT_EQ(profile.GetColor("S", "hash", fallback), HostRGB(255, 128, 0));
    for (const char* refused : {"over", "short", "long", "signed", "badhash", "word"}) {
        EXPECT_EQ(profile.GetColor("S", refused, fallback), fallback) << refused;
    }
}

TEST(HostProfText, SettingAKeyKeepsEverythingElse)
{
    const std::string text = "; my settings\r\n[Orbiscope]\r\nA=1\r\n; note\r\n\r\n[Other]\r\nA=2";
    std::string replaced = HostProf::SetInText(text, "orbiscope", "a", "10");
    EXPECT_EQ(replaced, "; my settings\r\n[Orbiscope]\r\na=10\r\n; note\r\n\r\n[Other]\r\nA=2");

    std::string added = HostProf::SetInText(text, "Orbiscope", "B", "  padded ");
    EXPECT_EQ(
        added,
        "; my settings\r\n[Orbiscope]\r\nA=1\r\nB=\"  padded \"\r\n; note\r\n\r\n[Other]\r\nA=2");
    EXPECT_EQ(HostProf::FromText(added).Get("Orbiscope", "B"), "  padded ");

    std::string appended = HostProf::SetInText(text, "New", "K", "\"quoted\"");
    EXPECT_EQ(appended, text + "\r\n[New]\r\nK=\"\"quoted\"\"\r\n");
    EXPECT_EQ(HostProf::FromText(appended).Get("New", "K"), "\"quoted\"");
    EXPECT_EQ(HostProf::FromText(appended).Get("Other", "A"), "2");

    EXPECT_EQ(HostProf::SetInText("", "S", "K", "V"), "[S]\nK=V\n");
}

TEST(HostProfText, RefusesNamesAndValuesAnIniLineCannotHold)
{
    const std::string text = "[S]\nK=V\n";
    EXPECT_EQ(HostProf::SetInText(text, "S", "K", "two\nlines"), text);
    EXPECT_EQ(HostProf::SetInText(text, "S", "a=b", "v"), text);
    EXPECT_EQ(HostProf::SetInText(text, "S", ";k", "v"), text);
    EXPECT_EQ(HostProf::SetInText(text, "S", "[k", "v"), text);
    EXPECT_EQ(HostProf::SetInText(text, "S", " k", "v"), text);
    EXPECT_EQ(HostProf::SetInText(text, "S]", "k", "v"), text);
    EXPECT_EQ(HostProf::SetInText(text, "", "k", "v"), text);
    EXPECT_EQ(HostProf::SetInText(text, "S", "", "v"), text);
    EXPECT_TRUE(HostProf::CanHold("S", "K", ""));
}

TEST_F(HostProfFiles, WriteGoesToTheUserFileAndReadsBack)
{
    HostProf profile;
    ASSERT_TRUE(profile.Write("Orbiscope", "MilitaryTime", "1"));
    EXPECT_TRUE(profile.GetBool("Orbiscope", "MilitaryTime", false));
    ASSERT_TRUE(profile.Write("Version", "Name", "My Planetarium"));
    ASSERT_TRUE(profile.Write("Orbiscope", "MilitaryTime", "0"));

    EXPECT_EQ(Home.ReadFile("orbiscope.ini"),
              "[Orbiscope]\nMilitaryTime=0\n[Version]\nName=My Planetarium\n");
    HostProf again;
    EXPECT_FALSE(again.GetBool("Orbiscope", "MilitaryTime", true));
    EXPECT_EQ(again.Get("Version", "Name"), "My Planetarium");
    EXPECT_EQ(again.Get("Version", "ProductGroup"), profile.Get("Version", "ProductGroup"));

    EXPECT_FALSE(profile.Write("Orbiscope", "Bad=Key", "1"));
    EXPECT_FALSE(HostProf::FromText("[S]\n").Write("S", "K", "V"));
}

TEST_F(HostProfFiles, WriteMakesTheConfigurationDirectory)
{
    std::string nested = Home.File("deeper/still");
    ::setenv("ORBISCOPE_HOME", nested.c_str(), 1);
    HostProf profile;
    ASSERT_TRUE(profile.Write("Orbiscope", "DevMode", "1"));
    EXPECT_TRUE(HostProf().GetBool("Orbiscope", "DevMode", false));
}

TEST(HostProfShared, FollowsTheUserDirectory)
{
    ScopedHome first;
    first.WriteFile("orbiscope.ini", "[Orbiscope]\nMilitaryTime=1\n");
    EXPECT_TRUE(HostProfile(0).GetBool("Orbiscope", "MilitaryTime", false));
    {
        ScopedHome second;
        EXPECT_FALSE(HostProfile(0).GetBool("Orbiscope", "MilitaryTime", true));
        EXPECT_EQ(&HostProfile(0), &HostProfile());
    }
    EXPECT_TRUE(HostProfile(0).GetBool("Orbiscope", "MilitaryTime", false));
}
