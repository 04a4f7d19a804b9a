#include <gtest/gtest.h>

#include <vector>

#include "host/HostStringParser.h"

namespace {

std::vector<std::string> AllPieces(const std::string& text, const char* delimiters)
{
    HostStringParser parser(text);
    std::vector<std::string> pieces;
    while (!parser.AtEnd()) {
        pieces.push_back(parser.GetNext(delimiters));
    }
    return pieces;
}

} // namespace

TEST(HostStringParser, SplitsAndTrimsZoneNameLists)
{
    EXPECT_EQ(AllPieces("Eastern Standard Time | US Eastern |Eastern", "|"),
              (std::vector<std::string>{"Eastern Standard Time", "US Eastern", "Eastern"}));
    EXPECT_EQ(AllPieces("\t a b \r\n", "|"), (std::vector<std::string>{"a b"}));
}

TEST(HostStringParser, EmptyPiecesStandBetweenAdjacentDelimiters)
{
    EXPECT_EQ(AllPieces("a||b| |", "|"), (std::vector<std::string>{"a", "", "b", ""}));
    EXPECT_EQ(AllPieces("|a", "|"), (std::vector<std::string>{"", "a"}));
}

TEST(HostStringParser, GivesEmptyTextOnceUsedUp)
{
    HostStringParser parser("one");
    EXPECT_EQ(parser.GetNext("|"), "one");
    EXPECT_TRUE(parser.AtEnd());
    EXPECT_EQ(parser.GetNext("|"), "");
    EXPECT_EQ(parser.GetNext(nullptr), "");
    EXPECT_EQ(HostStringParser("").GetNext("|"), "");
}

TEST(HostStringParser, DelimitersMayChangeBetweenCalls)
{
    HostStringParser parser("Mars, 303; rest of it");
    EXPECT_EQ(parser.GetNext(","), "Mars");
    EXPECT_EQ(parser.GetNext(";"), "303");
    EXPECT_EQ(parser.GetRest(), " rest of it");
    EXPECT_EQ(parser.GetNext(""), "rest of it");
    EXPECT_TRUE(parser.AtEnd());
}
