#include <gtest/gtest.h>

#include "host/HostCmdLine.h"
#include "host/HostFile.h"

TEST(HostCmdLine, FindsKeysIgnoringCaseAndLeadingWords)
{
    HostCmdLine line("orbiscope FullState=1 stringref=Planet,Mars");
    std::string value;
    EXPECT_TRUE(line.GetValue("fullstate", value));
    EXPECT_EQ(value, "1");
    EXPECT_TRUE(line.GetValue("StringRef", value));
    EXPECT_EQ(value, "Planet,Mars");
    EXPECT_FALSE(line.GetValue("orbiscope", value));
    EXPECT_EQ(value, "");
}

TEST(HostCmdLine, BracketedValueIsTakenWholeWithNestedBrackets)
{
    HostCmdLine line("A=<B=<C=1 D=\"x > y\"> E=2> F=3");
    std::string a, f;
    ASSERT_TRUE(line.GetValue("A", a));
    EXPECT_EQ(a, "B=<C=1 D=\"x > y\"> E=2");
    ASSERT_TRUE(line.GetValue("F", f));
    EXPECT_EQ(f, "3");

    std::string d;
    HostCmdLine inner(a);
    std::string b;
    ASSERT_TRUE(inner.GetValue("B", b));
    ASSERT_TRUE(HostCmdLine(b).GetValue("D", d));
    EXPECT_EQ(d, "x > y");
}

TEST(HostCmdLine, MalformedTextNeverFails)
{
    for (const char* text : {"=", "==x", "A=<", "A=\"unterminated", "<<<>", "A=>", "\"", " = = "}) {
        HostCmdLine line(text);
        std::string value;
        line.GetValue("A", value);
        EXPECT_LE(line.GetParameters().size(), 2u) << text;
    }
}

TEST(HostCmdLine, FirstOfRepeatedKeysWins)
{
    HostCmdLine line;
    line.AddParam("K", "one");
    line.AddParam("k", "two");
    std::string value;
    ASSERT_TRUE(line.GetValue("K", value));
    EXPECT_EQ(value, "one");
    EXPECT_EQ(line.GetRawText(), "K=one k=two");
}

TEST(HostStringToLong, ReadsDecimalHexAndStopsAtJunk)
{
    EXPECT_EQ(hostStringToLong("1879048192"), 1879048192L);
    EXPECT_EQ(hostStringToLong("  -42xyz"), -42L);
    EXPECT_EQ(hostStringToLong("0x70000000"), 0x70000000L);
    EXPECT_EQ(hostStringToLong(""), 0L);
    EXPECT_EQ(hostStringToLong("abc"), 0L);
}
