// The byte order of the binary files: fixed bytes for known values, so that a file written on
// one machine reads the same on any other.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "host/LittleEndian.h"

TEST(LittleEndian, WholeNumbersPutTheLowByteFirst)
{
    unsigned char bytes[4] = {};
    LittleEndian::PutUInt32(bytes, 0x12345678u);
    EXPECT_EQ(bytes[0], 0x78);
    EXPECT_EQ(bytes[1], 0x56);
    EXPECT_EQ(bytes[2], 0x34);
    EXPECT_EQ(bytes[3], 0x12);
    EXPECT_EQ(LittleEndian::GetUInt32(bytes), 0x12345678u);

    const unsigned char top[4] = {0xFF, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(LittleEndian::GetUInt32(top), 0xFFFFFFFFu);
}

TEST(LittleEndian, DoublesAreTheirIeeeBitsLowByteFirst)
{
    unsigned char bytes[8] = {};
    LittleEndian::PutDouble(bytes, 1.0); // 0x3FF0000000000000
    const unsigned char one[8] = {0, 0, 0, 0, 0, 0, 0xF0, 0x3F};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(bytes[i], one[i]) << i;
    }
    LittleEndian::PutDouble(bytes, -1.46); // Sirius's magnitude
    EXPECT_EQ(LittleEndian::GetDouble(bytes), -1.46);
    LittleEndian::PutDouble(bytes, std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(std::isnan(LittleEndian::GetDouble(bytes)));
}
