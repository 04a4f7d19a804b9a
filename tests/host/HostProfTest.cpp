#include <gtest/gtest.h>

#include <climits>

#include "host/HostFile.h"
#include "host/HostProf.h"
#include "host/ScopedHome.h"

TEST(HostProf, ReadsCommentsQuotesBlanksLineBreaksAndTheFirstOfRepeatedKeys)
{
    const HostProf profile =
        HostProf::FromText("\xEF\xBB\xBF[First]\r\n; comment = not a key\r\n# also = a comment\n"
                           "  Spaced Key  =   spaced value  \rQuoted = \"  keeps blanks  \"\n"
                           "NoEquals\n=no key\n"
                           "k=first\nk=second\n[first]\nonly=later\n");
    EXPECT_EQ(profile.Get("first", "spaced key"), "spaced value");
    EXPECT_EQ(profile.Get("First", "Quoted"), "  keeps blanks  ");
    EXPECT_EQ(profile.Get("First", "k"), "first");
    EXPECT_EQ(profile.Get("First", "only"), "later");
    EXPECT_EQ(profile.GetKeys("First").size(), 4u) << "no comments, no line without a key";
}

TEST(HostProf, NumbersFlagsAndColoursFallBackToTheCallersDefaultWhenUnreadable)
{
    const HostProf profile = HostProf::FromText(
        "[S]\ndec = 500 ms\nhex = 0x1F\nhuge = 99999999999999999999999\nword = fast\nyes = Yes\n"
        "rgb = 255, 0, 128\nover = 256, 0, 0\nshort = 1, 2\nsigned = -1, 0, 0\n"
        "badhash = #12345G\n");
    EXPECT_EQ(profile.GetInt("S", "dec", 0), 500);
    EXPECT_EQ(profile.GetInt("S", "hex", 0), 31);
    EXPECT_EQ(profile.GetInt("S", "huge", 0), LONG_MAX);
    EXPECT_EQ(profile.GetInt("S", "word", 42), 42);
    EXPECT_TRUE(profile.GetBool("S", "yes", false));
    EXPECT_EQ(profile.GetColor("S", "rgb", 1), 0x008000FFu);
    for (const char* refused : {"over", "short", "signed", "badhash", "word"}) {
        EXPECT_EQ(profile.GetColor("S", refused, 1), 1u) << refused;
    }
}

TEST(HostProf, SettingAKeyKeepsEverythingElseAndRefusesWhatALineCannotHold)
{
    const std::string text = "; my settings\r\n[Orbiscope]\r\nA=1\r\n; note\r\n\r\n[Other]\r\nA=2";
    EXPECT_EQ(HostProf::SetInText(text, "orbiscope", "a", "10"),
              "; my settings\r\n[Orbiscope]\r\na=10\r\n; note\r\n\r\n[Other]\r\nA=2");
    const std::string added = HostProf::SetInText(text, "New", "K", "  \"quoted\" ");
    EXPECT_EQ(added, text + "\r\n[New]\r\nK=\"  \"quoted\" \"\r\n");
    EXPECT_EQ(HostProf::FromText(added).Get("New", "K"), "  \"quoted\" ");
    for (const auto& [section, key, value] : {std::tuple("S", "K", "two\nlines"),
                                              {"S", "a=b", "v"},
                                              {"S", ";k", "v"},
                                              {"S", "[k", "v"},
                                              {"S]", "k", "v"},
                                              {"", "k", "v"},
                                              {"S", "", "v"}}) {
        EXPECT_EQ(HostProf::SetInText(text, section, key, value), text) << key << " " << value;
    }
}

TEST(HostProf, TheUserFileOverridesTheShippedOneAndTakesWhatIsWritten)
{
    const ScopedHome home;
    EXPECT_EQ(HostProf().GetPath("Orbiscope", "CityList"),
              HostFile::DataDirectory() + "/astcity.txt");
    home.WriteFile("orbiscope.ini", "[orbiscope]\nMilitaryTime=1\n");
    HostProf profile;
    EXPECT_TRUE(profile.GetBool("Orbiscope", "MilitaryTime", false));
    ASSERT_TRUE(profile.Write("Version", "Name", "My Planetarium"));
    ASSERT_TRUE(profile.Write("Orbiscope", "MilitaryTime", "0"));
    EXPECT_EQ(home.ReadFile("orbiscope.ini"),
              "[orbiscope]\nMilitaryTime=0\n[Version]\nName=My Planetarium\n");
    EXPECT_EQ(HostProf().Get("Orbiscope", "CityList"), "ed:\\astcity.txt") << "the rest is shipped";
    // The configuration directory is made when it is missing.
    ::setenv("ORBISCOPE_HOME", home.File("deeper/still").c_str(), 1);
    ASSERT_TRUE(HostProf().Write("Orbiscope", "DevMode", "1"));
    EXPECT_TRUE(HostProf().GetBool("Orbiscope", "DevMode", false));
}
