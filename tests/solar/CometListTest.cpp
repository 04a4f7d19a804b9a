// The list of comets from the profile: the built-in pair when the profile names none, indices
// that follow the key numbers with gaps for missing and refused records, and keys read by
// number whatever their case or count.
#include <gtest/gtest.h>

#include "host/HostProf.h"
#include "platform/DebugStream.h"
#include "solar/CometList.h"

#include <string>
#include <vector>

namespace {

// A good record for a comet of the given name.
std::string Record(const std::string& name)
{
    return name + ", 2001 May 3.5, 1.1, 0.7, 10, 20, 30";
}

// Names and indices of a list, as "name:index" texts in list order.
std::vector<std::string> Summary(const std::vector<ListedComet>& comets)
{
    std::vector<std::string> summary;
    for (const ListedComet& comet : comets) {
        summary.push_back(comet.Elements.Name + ":" + std::to_string(comet.Index));
    }
    return summary;
}

class CometListFromProfile : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Previous = SetDebugSink([this](const char* text) { Messages.emplace_back(text); });
    }
    void TearDown() override { SetDebugSink(Previous); }

    std::vector<std::string> Load(const std::string& section)
    {
        return Summary(LoadCometList(HostProf::FromText("[Orbiscope]\n" + section)));
    }

    std::vector<std::string> Messages;
    DebugSink Previous;
};

} // namespace

TEST_F(CometListFromProfile, NoCometsNamedGivesTheBuiltInPair)
{
    const std::vector<std::string> builtIn = {"Hale-Bopp:0", "Halley's:1"};
    EXPECT_EQ(Load(""), builtIn);
    EXPECT_EQ(Load("NumberOfComets = 0\nComet1 = " + Record("Ignored")), builtIn);
    EXPECT_EQ(Load("NumberOfComets = -4\n"), builtIn);
    EXPECT_EQ(Load("NumberOfComets = many\nComet1 = " + Record("Ignored")), builtIn);
    EXPECT_EQ(Summary(BuiltInComets()), builtIn);
}

TEST_F(CometListFromProfile, IndicesFollowTheKeysWithGaps)
{
    // Only the second of two: one comet, index 1.
    EXPECT_EQ(Load("NumberOfComets = 2\nComet2 = " + Record("Second")),
              std::vector<std::string>{"Second:1"});

    // Keys in any case, read by number (10 after 9), none beyond the count, an empty value and
    // a refused record skipped.
    const std::string section = "NumberOfComets = 10\n"
                                "comet10 = " +
                                Record("Tenth") + "\n" + "COMET9 = " + Record("Ninth") + "\n" +
                                "Comet1 = " + Record("First") + "\n" +
                                "Comet3 =\n"
                                "Comet4 = Broken, 2001 May 3.5, 0, 0.7, 1, 2, 3\n"
                                "Comet11 = " +
                                Record("Beyond") + "\n" + "Comet02 = " + Record("Padded") + "\n";
    const std::vector<std::string> loaded = Load(section);
    EXPECT_EQ(loaded, (std::vector<std::string>{"First:0", "Ninth:8", "Tenth:9"}));
    ASSERT_EQ(Messages.size(), 1u);
    EXPECT_NE(Messages[0].find("Comet4"), std::string::npos) << Messages[0];
}

TEST_F(CometListFromProfile, ACountWithNoRecordsGivesAnEmptyList)
{
    EXPECT_TRUE(Load("NumberOfComets = 3\n").empty());
    EXPECT_TRUE(Load("NumberOfComets = 1\nComet1 = Bad, 2001 May 3.5, 1, -1, 1, 2, 3\n").empty());
}

TEST_F(CometListFromProfile, AHugeCountReadsOnlyTheKeysThatExist)
{
    EXPECT_EQ(Load("NumberOfComets = 999999999\nComet999999999 = " + Record("Last") +
                   "\nComet5 = " + Record("Fifth")),
              (std::vector<std::string>{"Fifth:4", "Last:999999998"}));
}

TEST_F(CometListFromProfile, RecordsKeepTheirElements)
{
    const std::vector<ListedComet> comets = LoadCometList(
        HostProf::FromText("[Orbiscope]\nNumberOfComets=1\nComet1=" + Record("Only")));
    ASSERT_EQ(comets.size(), 1u);
    const CometElements& e = comets[0].Elements;
    EXPECT_EQ(e.Perihelion.GetYear(), 2001);
    EXPECT_EQ(e.Perihelion.GetMonth(), 5u);
    EXPECT_EQ(e.Perihelion.GetDay(), 3u);
    EXPECT_EQ(e.Perihelion.GetHour(), 12u);
    EXPECT_EQ(e.PerihelionDistance, 1.1);
    EXPECT_EQ(e.Eccentricity, 0.7);
    EXPECT_EQ(e.Inclination.GetDegrees(), 10.0);
    EXPECT_EQ(e.Node.GetDegrees(), 20.0);
    EXPECT_EQ(e.Argument.GetDegrees(), 30.0);
}
