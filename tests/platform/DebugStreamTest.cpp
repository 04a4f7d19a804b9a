// The debug stream: a message cut at the buffer's end keeps its line end, and the stream goes
// on working.
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

TEST_F(DebugStreamTest, OverlongMessageIsCutAndTheStreamGoesOn)
{
    dbstream << "Star data at line: " << 12 << " is invalid." << dbendl;
    EXPECT_EQ(Messages.back(), "Star data at line: 12 is invalid.\r\n");
    dbstream << std::string(5000, 'a') << dbendl;
    ASSERT_EQ(Messages.size(), 2u);
    EXPECT_EQ(Messages[1].size(), DebugStreamBuffer::kCapacity - 1);
    EXPECT_EQ(Messages[1].substr(Messages[1].size() - 2), "\r\n");
    EXPECT_TRUE(dbstream.good());

    dbstream << "after" << dbendl;
    EXPECT_EQ(Messages.back(), "after\r\n");
}
