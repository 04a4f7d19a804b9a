#include <gtest/gtest.h>

#include "catalogues/StringParser.h"

namespace {

std::vector<std::string> AllTokens(StringParser& parser)
{
    std::vector<std::string> tokens;
    while (LorvString* token = parser.GetNextToken()) {
        tokens.push_back(*token);
    }
    return tokens;
}

} // namespace

TEST(StringParser, RunsOfSeparatorsNeverYieldEmptyTokens)
{
    StringParser parser(",,a,,b , c,,", ",", false);
    EXPECT_EQ(AllTokens(parser), (std::vector<std::string>{"a", "b ", " c"}));
}

TEST(StringParser, StrippingRemovesBlanksAtBothEnds)
{
    StringParser parser("  12 ,  -05 ,name with blanks  ", ",", true);
    EXPECT_EQ(AllTokens(parser), (std::vector<std::string>{"12", "-05", "name with blanks"}));
}

TEST(StringParser, AnyCharacterOfTheSetSeparates)
{
    StringParser parser("10:20 30", ": ", false);
    EXPECT_EQ(AllTokens(parser), (std::vector<std::string>{"10", "20", "30"}));
}

TEST(StringParser, EndOfTextGivesNullOrTheDefault)
{
    StringParser parser("only", " ", true);
    ASSERT_NE(parser.GetNextToken(), nullptr);
    EXPECT_EQ(parser.GetNextToken(), nullptr);
    LorvString* fallback = parser.GetNextToken("");
    ASSERT_NE(fallback, nullptr);
    EXPECT_EQ(*fallback, "");
    EXPECT_EQ(*parser.GetNextToken("dflt"), "dflt");

    StringParser separatorsOnly(" , ,", ", ", true);
    EXPECT_EQ(separatorsOnly.GetNextToken(), nullptr);
}

TEST(StringParser, RestOfLineTakesEverythingAfterLeadingSeparators)
{
    StringParser parser("M31 8 3.4   Andromeda Galaxy  ", " ", true);
    parser.GetNextToken();
    parser.GetNextToken();
    parser.GetNextToken();
    LorvString* rest = parser.GetRestOfLine();
    ASSERT_NE(rest, nullptr);
    EXPECT_EQ(*rest, "Andromeda Galaxy");
    EXPECT_EQ(parser.GetRestOfLine(), nullptr);
}

TEST(StringParser, TokenStartIsRemembered)
{
    StringParser parser("ab  cd", " ", false);
    parser.GetNextToken();
    parser.GetNextToken();
    EXPECT_EQ(parser.GetTokenStart(), 4u);
}

TEST(LorvString, ComparisonsIgnoreCase)
{
    LorvString name("Betelgeuse");
    EXPECT_TRUE(name == "BETELGEUSE");
    EXPECT_TRUE(name == std::string("betelgeuse"));
    EXPECT_TRUE(std::string("bEtElGeUsE") == name);
    EXPECT_FALSE(name != LorvString("betelgeuse"));
    EXPECT_FALSE(name == "Betelgeus");
    EXPECT_TRUE(LorvString("alpha") < LorvString("BETA"));
    EXPECT_TRUE(LorvString("Alpha") < "alphA2");
    EXPECT_EQ(name.Compare("BETELGEUSE"), 0);
}

TEST(LorvString, HelpersOrderAndFindWithoutCase)
{
    EXPECT_EQ(CompareNoCase("abc", "ABD"), -1);
    EXPECT_EQ(CompareNoCase("ab", "AB"), 0);
    EXPECT_EQ(CompareNoCase("abc", "AB"), 1);
    EXPECT_EQ(FindNoCase("Ursa Major", "MAJ"), 5u);
    EXPECT_EQ(FindNoCase("Ursa", "Ursa Major"), std::string_view::npos);
    std::map<std::string, int, NoCaseLess> byName{{"Vega", 1}};
    EXPECT_EQ(byName.count("VEGA"), 1u);
}
