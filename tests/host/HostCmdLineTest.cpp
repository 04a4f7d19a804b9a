// Levels in brackets and quoted values are read through the state tests, and malformed text by
// the command-string fuzz target; here the keys.
#include <gtest/gtest.h>

#include "host/HostCmdLine.h"

TEST(HostCmdLine, FindsKeysWhateverTheirCaseAfterTheProgramsNameAndTheFirstOfRepeatedOnes)
{
    const HostCmdLine line("orbiscope FullState=1 stringref=Planet,Mars k=one K=two");
    std::string value;
    EXPECT_FALSE(line.GetValue("orbiscope", value));
    ASSERT_TRUE(line.GetValue("fullstate", value));
    EXPECT_EQ(value, "1");
    ASSERT_TRUE(line.GetValue("StringRef", value));
    EXPECT_EQ(value, "Planet,Mars");
    ASSERT_TRUE(line.GetValue("K", value));
    EXPECT_EQ(value, "one");
}
