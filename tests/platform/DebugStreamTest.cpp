#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/DebugStream.h"

namespace {

class DebugStreamTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Previous = SetDebugSink([this](const char* text) { Messages.emplace_back(text); });
    }
    void TearDown() override { SetDebugSink(Previous); }

    std::vector<std::string> Messages;
    DebugSink Previous;
};

} // namespace

TEST_F(DebugStreamTest, EachMessageEndsWithCarriageReturnAndLineFeed)
{
    dbstream << "Star data at line: " << 12 << " is invalid." << dbendl;
    dbstream << "second" << dbendl;
    ASSERT_EQ(Messages.size(), 2u);
    EXPECT_EQ(Messages[0], "Star data at line: 12 is invalid.\r\n");
    EXPECT_EQ(Messages[1], "second\r\n");
}

TEST_F(DebugStreamTest, OverlongMessageIsCutAndTheStreamGoesOn)
{
    dbstream << std::string(5000, 'a') << dbendl;
    ASSERT_EQ(Messages.size(), 1u);
    EXPECT_EQ(Messages[0].size(), DebugStreamBuffer::kCapacity - 1);
    EXPECT_EQ(Messages[0].substr(Messages[0].size() - 2), "\r\n");
    EXPECT_TRUE(dbstream.good());

    dbstream << "after" << dbendl;
    EXPECT_EQ(Messages.back(), "after\r\n");
}
