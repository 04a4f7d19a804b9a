#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "catalogues/Star.h"
#include "coords/ScratchFile.h"
#include "host/HostFile.h"

namespace {

// The bytes of a little-endian double, as a star file holds it.
std::vector<unsigned char> DoubleBytes(double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    std::vector<unsigned char> bytes;
    for (int i = 0; i < 8; ++i) {
        bytes.push_back(static_cast<unsigned char>(bits >> (8 * i)));
    }
    return bytes;
}

// A record built byte by byte from its fields.
std::vector<unsigned char> Record(std::uint32_t sao, double magnitude, double ra, double dec,
                                  const std::string& name)
{
    std::vector<unsigned char> bytes = {static_cast<unsigned char>(29 + name.size())};
    for (int i = 0; i < 4; ++i) {
        bytes.push_back(static_cast<unsigned char>(sao >> (8 * i)));
    }
    for (double value : {magnitude, ra, dec}) {
        std::vector<unsigned char> b = DoubleBytes(value);
        bytes.insert(bytes.end(), b.begin(), b.end());
    }
    bytes.insert(bytes.end(), name.begin(), name.end());
    return bytes;
}

void Append(std::vector<unsigned char>& to, const std::vector<unsigned char>& bytes)
{
    to.insert(to.end(), bytes.begin(), bytes.end());
}

} // namespace

TEST(StarBlockInfo, RecordIsPackedLittleEndianWithTheNameLast)
{
    ScratchFile scratch;
    {
        HostFile file(scratch.GetPath(), HostFile::WriteNew);
        Star star(0x01020304, 1.5, PolarCoord(10.25, -20.5), "Ab");
        EXPECT_EQ(Star::BlockInfo(star).GetSize(), 31u);
        ASSERT_TRUE(star.Dump(file));
    }
    EXPECT_EQ(scratch.Bytes(), Record(0x01020304, 1.5, 10.25, -20.5, "Ab"));
}

TEST(StarBlockInfo, StarWithoutNameWritesTwentyNineBytesAndReadsBackWithoutOne)
{
    ScratchFile scratch;
    {
        HostFile file(scratch.GetPath(), HostFile::WriteNew);
        ASSERT_TRUE(Star(308, 2.02, PolarCoord(37.95, 89.26), "").Dump(file));
    }
    std::vector<unsigned char> bytes = scratch.Bytes();
    ASSERT_EQ(bytes.size(), 29u);
    EXPECT_EQ(bytes[0], 29);

    HostFile file(scratch.GetPath(), HostFile::ReadOnly);
    Star fromFile(1, 1.0, PolarCoord(), "Old");
    ASSERT_TRUE(fromFile.Load(file));
    EXPECT_EQ(fromFile.GetSAONumber(), 308u);
    EXPECT_EQ(fromFile.GetName(), nullptr);

    Star fromMemory(1, 1.0, PolarCoord(), "Old");
    EXPECT_EQ(fromMemory.Load(bytes.data()), bytes.data() + 29);
    EXPECT_EQ(fromMemory.GetName(), nullptr);
    EXPECT_DOUBLE_EQ(fromMemory.GetPosition().GetDec().GetDegrees(), 89.26);
}

TEST(StarBlockInfo, RecordsFollowOneAnotherInFileAndMemoryAlike)
{
    std::vector<unsigned char> bytes;
    Append(bytes, Record(151881, -1.46, 101.287, -16.716, "Sirius"));
    Append(bytes, Record(12, 7.5, 0.5, 1.5, ""));
    Append(bytes, Record(67174, 0.03, 279.235, 38.784, "Vega"));
    ScratchFile scratch;
    scratch.WriteBytes(bytes);

    HostFile file(scratch.GetPath(), HostFile::ReadOnly);
    const void* next = bytes.data();
    std::size_t left = bytes.size();
    const std::uint32_t numbers[] = {151881, 12, 67174};
    const char* names[] = {"Sirius", nullptr, "Vega"};
    for (int i = 0; i < 3; ++i) {
        Star fromFile;
        ASSERT_TRUE(fromFile.Load(file));
        Star fromMemory;
        const void* after = fromMemory.Load(next, left);
        ASSERT_NE(after, nullptr);
        left -= std::size_t(static_cast<const unsigned char*>(after) -
                            static_cast<const unsigned char*>(next));
        next = after;

        for (const Star* star : {&fromFile, &fromMemory}) {
            EXPECT_EQ(star->GetSAONumber(), numbers[i]);
            if (names[i] == nullptr) {
                EXPECT_FALSE(star->HasName());
            } else {
                ASSERT_TRUE(star->HasName());
                EXPECT_EQ(*star->GetName(), names[i]);
            }
        }
        EXPECT_TRUE(fromFile.GetPosition() == fromMemory.GetPosition());
        EXPECT_DOUBLE_EQ(fromFile.GetMagnitude(), fromMemory.GetMagnitude());
    }
    EXPECT_EQ(left, 0u);
    Star beyond;
    EXPECT_FALSE(beyond.Load(file));
}

TEST(StarBlockInfo, DamagedRecordsAreRefusedAndLeaveTheStarAlone)
{
    std::vector<unsigned char> bytes = Record(151881, -1.46, 101.287, -16.716, "Sirius");
    Star star(1, 2.0, PolarCoord(3.0, 4.0), "Kept");

    // Cut short by the end of the buffer.
    EXPECT_EQ(star.Load(bytes.data(), bytes.size() - 1), nullptr);
    // A length byte below the fixed fields.
    std::vector<unsigned char> shortLength = bytes;
    shortLength[0] = 28;
    EXPECT_EQ(star.Load(shortLength.data(), shortLength.size()), nullptr);
    EXPECT_EQ(star.Load(nullptr, 100), nullptr);
    EXPECT_EQ(star.GetSAONumber(), 1u);
    EXPECT_EQ(*star.GetName(), "Kept");

    // The same in a file, and a file that ends inside the name.
    ScratchFile badLength;
    badLength.WriteBytes(shortLength);
    HostFile badFile(badLength.GetPath(), HostFile::ReadOnly);
    EXPECT_FALSE(star.Load(badFile));
    ScratchFile cut;
    bytes.pop_back();
    cut.WriteBytes(bytes);
    HostFile cutFile(cut.GetPath(), HostFile::ReadOnly);
    EXPECT_FALSE(star.Load(cutFile));
    EXPECT_EQ(star.GetSAONumber(), 1u);
}

TEST(StarBlockInfo, LongNamesAreWrittenAsLongAsReadersTakeThem)
{
    Star star(5, 1.0, PolarCoord(1.0, 2.0), std::string(150, 'x'));
    Star::BlockInfo block(star);
    EXPECT_EQ(block.GetSize(), 29u + 99u);
    EXPECT_EQ(star.GetRecordSize(), 29u + 99u);

    ScratchFile scratch;
    {
        HostFile file(scratch.GetPath(), HostFile::WriteNew);
        ASSERT_TRUE(block.Dump(file));
    }
    std::vector<unsigned char> bytes = scratch.Bytes();
    ASSERT_EQ(bytes.size(), 128u);
    EXPECT_EQ(bytes[0], 128);
    Star back;
    ASSERT_NE(back.Load(bytes.data(), bytes.size()), nullptr);
    EXPECT_EQ(*back.GetName(), std::string(99, 'x'));
}
