// The coefficient tables as compiled into the program, against the tables they were made from
// (tests/solar/data, copied from the published rows): row counts, block shapes, the order of
// the T-power rows, and an order-sensitive checksum of every number.
#include <gtest/gtest.h>

#include "solar/SeriesTableEarth.h"
#include "solar/SeriesTableJupiter.h"
#include "solar/SeriesTableMars.h"
#include "solar/SeriesTableMercury.h"
#include "solar/SeriesTableMoon.h"
#include "solar/SeriesTableNeptune.h"
#include "solar/SeriesTablePluto.h"
#include "solar/SeriesTableSaturn.h"
#include "solar/SeriesTableUranus.h"
#include "solar/SeriesTableVenus.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <span>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Fields = std::vector<std::string>;

std::filesystem::path DataFolder()
{
    return std::filesystem::path(ORBISCOPE_TEST_DIR) / "solar" / "data";
}

// The rows of a CSV file without its header; empty when the file is missing.
std::vector<Fields> ReadCsv(const std::string& name)
{
    std::vector<Fields> rows;
    std::ifstream in(DataFolder() / name);
    std::string line;
    bool header = true;
    while (std::getline(in, line)) {
        if (line.empty() || line == "\r") {
            continue;
        }
        if (header) {
            header = false;
            continue;
        }
        Fields fields;
        std::stringstream stream(line);
        std::string field;
        while (std::getline(stream, field, ',')) {
            fields.push_back(field);
        }
        rows.push_back(fields);
    }
    return rows;
}

// FNV-1a over 64-bit words: integers as they are, doubles by their bit pattern, so that any
// change of a value, a sign or the order of rows changes the sum.
class Checksum
{
public:
    void Add(std::int64_t value) { Mix(static_cast<std::uint64_t>(value)); }
    void Add(double value) { Mix(std::bit_cast<std::uint64_t>(value)); }
    std::uint64_t Get() const { return Hash; }

private:
    void Mix(std::uint64_t word)
    {
        for (int byte = 0; byte < 8; ++byte) {
            Hash ^= (word >> (8 * byte)) & 0xff;
            Hash *= 0x100000001b3ULL;
        }
    }
    std::uint64_t Hash = 0xcbf29ce484222325ULL;
};

std::uint64_t ChecksumOf(std::span<const PerturbationRow> rows)
{
    Checksum sum;
    for (const PerturbationRow& r : rows) {
        for (int value : {r.I, r.J, r.IT}) {
            sum.Add(std::int64_t{value});
        }
        for (double value : {r.dlc, r.dls, r.drc, r.drs, r.dbc, r.dbs}) {
            sum.Add(value);
        }
    }
    return sum.Get();
}

std::uint64_t ChecksumOf(std::span<const LunarRow> rows)
{
    Checksum sum;
    for (const LunarRow& r : rows) {
        for (int value : {r.p, r.q, r.r, r.s}) {
            sum.Add(std::int64_t{value});
        }
        for (double value : {r.a, r.b, r.c, r.e}) {
            sum.Add(value);
        }
    }
    return sum.Get();
}

std::uint64_t ChecksumOf(std::span<const LunarLatitudeRow> rows)
{
    Checksum sum;
    for (const LunarLatitudeRow& r : rows) {
        for (int value : {r.p, r.q, r.r, r.s}) {
            sum.Add(std::int64_t{value});
        }
        sum.Add(r.a);
    }
    return sum.Get();
}

PerturbationRow PlanetRowFromCsv(const Fields& f)
{
    return {std::stoi(f[5]),  std::stoi(f[6]),  std::stoi(f[7]),  std::stod(f[8]), std::stod(f[9]),
            std::stod(f[10]), std::stod(f[11]), std::stod(f[12]), std::stod(f[13])};
}

LunarRow LunarRowFromCsv(const Fields& f)
{
    return {std::stoi(f[1]), std::stoi(f[2]), std::stoi(f[3]), std::stoi(f[4]),
            std::stod(f[5]), std::stod(f[6]), std::stod(f[7]), std::stod(f[8])};
}

struct Block
{
    const char* Name;
    std::span<const PerturbationRow> Rows;
};

struct Theory
{
    const char* File;
    std::size_t ExpectedRows;
    std::vector<Block> Blocks;
};

const std::vector<Theory>& Theories()
{
    static const std::vector<Theory> theories = {
        {"mercury.csv",
         54,
         {{"Venus", kMercuryVenusRows},
          {"Earth", kMercuryEarthRows},
          {"Jupiter", kMercuryJupiterRows},
          {"Saturn", kMercurySaturnRows}}},
        {"venus.csv",
         42,
         {{"Mercury", kVenusMercuryRows},
          {"Earth", kVenusEarthRows},
          {"Mars", kVenusMarsRows},
          {"Jupiter", kVenusJupiterRows},
          {"Saturn", kVenusSaturnRows}}},
        {"earth.csv",
         52,
         {{"Venus", kEarthVenusRows},
          {"Mars", kEarthMarsRows},
          {"Jupiter", kEarthJupiterRows},
          {"Saturn", kEarthSaturnRows}}},
        {"mars.csv",
         106,
         {{"Venus", kMarsVenusRows},
          {"Earth", kMarsEarthRows},
          {"Jupiter", kMarsJupiterRows},
          {"Saturn", kMarsSaturnRows}}},
        {"jupiter.csv", 50, {{"Saturn", kJupiterSaturnRows}, {"Uranus", kJupiterUranusRows}}},
        {"saturn.csv",
         71,
         {{"Jupiter", kSaturnJupiterRows},
          {"Uranus", kSaturnUranusRows},
          {"Neptune", kSaturnNeptuneRows}}},
        {"uranus.csv",
         70,
         {{"Jupiter", kUranusJupiterRows},
          {"Saturn", kUranusSaturnRows},
          {"Neptune", kUranusNeptuneRows},
          {"JupiterSaturn", kUranusJupiterSaturnRows}}},
        {"neptune.csv",
         35,
         {{"Jupiter", kNeptuneJupiterRows},
          {"Saturn", kNeptuneSaturnRows},
          {"Uranus", kNeptuneUranusRows}}},
        {"pluto.csv", 26, {{"Jupiter", kPlutoJupiterRows}, {"Saturn", kPlutoSaturnRows}}},
    };
    return theories;
}

class SeriesTable : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(DataFolder() / "earth.csv")) {
            GTEST_SKIP() << "the coefficient tables are missing from " << DataFolder();
        }
    }
};

} // namespace

TEST_F(SeriesTable, PlanetaryTablesMatchTheirFilesRowForRow)
{
    for (const Theory& theory : Theories()) {
        const std::vector<Fields> csv = ReadCsv(theory.File);
        ASSERT_EQ(csv.size(), theory.ExpectedRows) << theory.File;

        std::size_t compiledRows = 0;
        std::size_t next = 0;
        for (const Block& block : theory.Blocks) {
            std::vector<PerturbationRow> fromFile;
            for (; next < csv.size() && csv[next][1] == block.Name; ++next) {
                fromFile.push_back(PlanetRowFromCsv(csv[next]));
            }
            ASSERT_EQ(fromFile.size(), block.Rows.size()) << theory.File << " " << block.Name;
            EXPECT_EQ(ChecksumOf(fromFile), ChecksumOf(block.Rows))
                << theory.File << " " << block.Name;
            for (std::size_t i = 0; i < fromFile.size(); ++i) {
                const PerturbationRow& a = fromFile[i];
                const PerturbationRow& b = block.Rows[i];
                EXPECT_TRUE(a.I == b.I && a.J == b.J && a.IT == b.IT && a.dlc == b.dlc &&
                            a.dls == b.dls && a.drc == b.drc && a.drs == b.drs && a.dbc == b.dbc &&
                            a.dbs == b.dbs)
                    << theory.File << " " << block.Name << " row " << i;
            }
            compiledRows += block.Rows.size();
        }
        EXPECT_EQ(next, csv.size()) << theory.File << ": rows of a block not in the program";
        EXPECT_EQ(compiledRows, theory.ExpectedRows) << theory.File;
    }
}

TEST_F(SeriesTable, LunarTablesMatchTheirFilesRowForRow)
{
    const std::vector<Fields> csv = ReadCsv("moon_solar.csv");
    ASSERT_EQ(csv.size(), 104u);
    const std::pair<const char*, std::span<const LunarRow>> blocks[] = {
        {"SOLAR1", kMoonSolar1Rows}, {"SOLAR2", kMoonSolar2Rows}, {"SOLAR3", kMoonSolar3Rows}};
    const std::size_t expected[] = {35, 46, 23};
    std::size_t next = 0;
    for (int b = 0; b < 3; ++b) {
        std::vector<LunarRow> fromFile;
        for (; next < csv.size() && csv[next][0] == blocks[b].first; ++next) {
            fromFile.push_back(LunarRowFromCsv(csv[next]));
        }
        EXPECT_EQ(fromFile.size(), expected[b]) << blocks[b].first;
        EXPECT_EQ(blocks[b].second.size(), expected[b]) << blocks[b].first;
        EXPECT_EQ(ChecksumOf(fromFile), ChecksumOf(blocks[b].second)) << blocks[b].first;
    }
    EXPECT_EQ(next, csv.size());

    const std::vector<Fields> latitude = ReadCsv("moon_n.csv");
    ASSERT_EQ(latitude.size(), 10u);
    ASSERT_EQ(kMoonLatitudeRows.size(), 10u);
    std::vector<LunarLatitudeRow> fromFile;
    for (const Fields& f : latitude) {
        fromFile.push_back(
            {std::stoi(f[0]), std::stoi(f[1]), std::stoi(f[2]), std::stoi(f[3]), std::stod(f[4])});
    }
    EXPECT_EQ(ChecksumOf(fromFile), ChecksumOf(kMoonLatitudeRows));
}

TEST_F(SeriesTable, ChecksumNoticesASingleChangedSign)
{
    std::vector<PerturbationRow> rows(kEarthVenusRows.begin(), kEarthVenusRows.end());
    const std::uint64_t before = ChecksumOf(rows);
    rows[7].dls = -rows[7].dls;
    EXPECT_NE(ChecksumOf(rows), before);
    rows[7].dls = -rows[7].dls;
    std::swap(rows[3], rows[4]);
    EXPECT_NE(ChecksumOf(rows), before);
}

TEST_F(SeriesTable, MeanAnomaliesMatchTheirFile)
{
    struct Anomaly
    {
        const char* Body;
        const char* Name;
        MeanArgumentConstants Value;
    };
    const Anomaly anomalies[] = {
        {"Mercury", "M1", kMercuryM1}, {"Mercury", "M2", kMercuryM2}, {"Mercury", "M3", kMercuryM3},
        {"Mercury", "M5", kMercuryM5}, {"Mercury", "M6", kMercuryM6}, {"Venus", "M1", kVenusM1},
        {"Venus", "M2", kVenusM2},     {"Venus", "M3", kVenusM3},     {"Venus", "M4", kVenusM4},
        {"Venus", "M5", kVenusM5},     {"Venus", "M6", kVenusM6},     {"Earth", "M2", kEarthM2},
        {"Earth", "M3", kEarthM3},     {"Earth", "M4", kEarthM4},     {"Earth", "M5", kEarthM5},
        {"Earth", "M6", kEarthM6},     {"Mars", "M2", kMarsM2},       {"Mars", "M3", kMarsM3},
        {"Mars", "M4", kMarsM4},       {"Mars", "M5", kMarsM5},       {"Mars", "M6", kMarsM6},
        {"Jupiter", "M5", kJupiterM5}, {"Jupiter", "M6", kJupiterM6}, {"Jupiter", "M7", kJupiterM7},
        {"Saturn", "M5", kSaturnM5},   {"Saturn", "M6", kSaturnM6},   {"Saturn", "M7", kSaturnM7},
        {"Saturn", "M8", kSaturnM8},   {"Uranus", "M5", kUranusM5},   {"Uranus", "M6", kUranusM6},
        {"Uranus", "M7", kUranusM7},   {"Uranus", "M8", kUranusM8},   {"Neptune", "M5", kNeptuneM5},
        {"Neptune", "M6", kNeptuneM6}, {"Neptune", "M7", kNeptuneM7}, {"Neptune", "M8", kNeptuneM8},
        {"Pluto", "M5", kPlutoM5},     {"Pluto", "M6", kPlutoM6},     {"Pluto", "M9", kPlutoM9},
    };
    const std::vector<Fields> csv = ReadCsv("anomalies.csv");
    ASSERT_EQ(csv.size(), std::size(anomalies));
    for (const Anomaly& anomaly : anomalies) {
        const auto found = std::find_if(csv.begin(), csv.end(), [&](const Fields& f) {
            return f[0] == anomaly.Body && f[1] == anomaly.Name;
        });
        ASSERT_NE(found, csv.end()) << anomaly.Body << " " << anomaly.Name;
        EXPECT_EQ(std::stod((*found)[2]), anomaly.Value.a) << anomaly.Body << " " << anomaly.Name;
        EXPECT_EQ(std::stod((*found)[3]), anomaly.Value.b) << anomaly.Body << " " << anomaly.Name;
    }
}

// The shape of every block: rows, range of own multiples I, of disturber multiples J, and the
// highest power of T.
TEST(SeriesTableShape, BlocksHaveTheirPublishedRanges)
{
    struct Shape
    {
        std::span<const PerturbationRow> Rows;
        std::size_t Count;
        int LowI, HighI, LowJ, HighJ, HighIT;
    };
    const Shape shapes[] = {
        {kEarthVenusRows, 23, 0, 7, -6, 0, 2},
        {kEarthMarsRows, 13, 1, 5, -8, -1, 0},
        {kEarthJupiterRows, 12, -1, 3, -4, -1, 0},
        {kEarthSaturnRows, 4, 0, 2, -2, -1, 0},
        {kMercuryVenusRows, 36, -1, 9, -5, 0, 2},
        {kMercuryEarthRows, 7, 0, 2, -4, -1, 0},
        {kMercuryJupiterRows, 10, -1, 3, -3, -1, 0},
        {kMercurySaturnRows, 1, 1, 1, -2, -2, 0},
        {kVenusMercuryRows, 4, 1, 5, -2, -1, 0},
        {kVenusEarthRows, 27, 1, 8, -8, 0, 2},
        {kVenusMarsRows, 3, 1, 2, -3, -2, 0},
        {kVenusJupiterRows, 6, 0, 3, -3, -1, 0},
        {kVenusSaturnRows, 2, 0, 1, -1, -1, 0},
        {kMarsVenusRows, 12, 0, 7, -2, -1, 0},
        {kMarsEarthRows, 53, -1, 16, -9, 0, 2},
        {kMarsJupiterRows, 29, -2, 5, -5, -1, 0},
        {kMarsSaturnRows, 12, -1, 3, -4, -1, 0},
        {kJupiterSaturnRows, 48, -1, 5, -10, 0, 2},
        {kJupiterUranusRows, 2, 1, 1, -2, -1, 0},
        {kSaturnJupiterRows, 54, 0, 11, -6, 1, 2},
        {kSaturnUranusRows, 14, 0, 3, -5, -1, 0},
        {kSaturnNeptuneRows, 3, 1, 2, -2, -1, 0},
        {kUranusJupiterRows, 7, -1, 3, -2, -1, 0},
        {kUranusSaturnRows, 19, 0, 6, -4, -1, 1},
        {kUranusNeptuneRows, 35, -1, 7, -8, 0, 3},
        {kUranusJupiterSaturnRows, 9, -2, 4, -6, -4, 1},
        {kNeptuneJupiterRows, 5, 0, 2, -2, 0, 0},
        {kNeptuneSaturnRows, 6, 0, 2, -2, 0, 0},
        {kNeptuneUranusRows, 24, 0, 6, -6, 0, 2},
        {kPlutoJupiterRows, 18, 0, 6, -2, 1, 0},
        {kPlutoSaturnRows, 8, 0, 3, -2, 1, 0},
    };
    int index = 0;
    for (const Shape& shape : shapes) {
        SCOPED_TRACE("block " + std::to_string(index++));
        ASSERT_EQ(shape.Rows.size(), shape.Count);
        int lowI = 99, highI = -99, lowJ = 99, highJ = -99, highIT = 0;
        for (const PerturbationRow& row : shape.Rows) {
            lowI = std::min(lowI, row.I);
            highI = std::max(highI, row.I);
            lowJ = std::min(lowJ, row.J);
            highJ = std::max(highJ, row.J);
            highIT = std::max(highIT, row.IT);
        }
        EXPECT_EQ(lowI, shape.LowI);
        EXPECT_EQ(highI, shape.HighI);
        EXPECT_EQ(lowJ, shape.LowJ);
        EXPECT_EQ(highJ, shape.HighJ);
        EXPECT_EQ(highIT, shape.HighIT);
    }
}

// A row with IT = k takes the argument of the row before, so it must follow the row of power
// k - 1 with the same (I, J). 43 rows carry T, 13 T squared and one T cubed.
TEST(SeriesTableShape, PowersOfTFollowTheirLowerPower)
{
    std::map<int, int> rowsByPower;
    for (const Theory& theory : Theories()) {
        for (const Block& block : theory.Blocks) {
            for (std::size_t i = 0; i < block.Rows.size(); ++i) {
                const PerturbationRow& row = block.Rows[i];
                ++rowsByPower[row.IT];
                if (row.IT == 0) {
                    continue;
                }
                ASSERT_GT(i, 0u) << theory.File << " " << block.Name;
                const PerturbationRow& before = block.Rows[i - 1];
                EXPECT_EQ(before.I, row.I) << theory.File << " " << block.Name << " row " << i;
                EXPECT_EQ(before.J, row.J) << theory.File << " " << block.Name << " row " << i;
                EXPECT_EQ(before.IT, row.IT - 1)
                    << theory.File << " " << block.Name << " row " << i;
            }
        }
    }
    EXPECT_EQ(rowsByPower[1], 43);
    EXPECT_EQ(rowsByPower[2], 13);
    EXPECT_EQ(rowsByPower[3], 1);
    EXPECT_EQ(rowsByPower.size(), 4u);
}

TEST(SeriesTableShape, LunarBlocksHaveTheirPublishedRanges)
{
    struct Shape
    {
        std::span<const LunarRow> Rows;
        std::size_t Count;
        int Low[4];
        int High[4];
    };
    const Shape shapes[] = {
        {kMoonSolar1Rows, 35, {0, 0, 0, -6}, {2, 1, 0, 4}},
        {kMoonSolar2Rows, 46, {0, -2, -2, -6}, {3, 3, 2, 4}},
        {kMoonSolar3Rows, 23, {0, -2, -2, -2}, {4, 3, 4, 2}},
    };
    for (const Shape& shape : shapes) {
        ASSERT_EQ(shape.Rows.size(), shape.Count);
        int low[4] = {99, 99, 99, 99};
        int high[4] = {-99, -99, -99, -99};
        for (const LunarRow& row : shape.Rows) {
            const int index[4] = {row.p, row.q, row.r, row.s};
            for (int k = 0; k < 4; ++k) {
                low[k] = std::min(low[k], index[k]);
                high[k] = std::max(high[k], index[k]);
            }
        }
        for (int k = 0; k < 4; ++k) {
            EXPECT_EQ(low[k], shape.Low[k]) << "block of " << shape.Count << ", index " << k;
            EXPECT_EQ(high[k], shape.High[k]) << "block of " << shape.Count << ", index " << k;
        }
    }
}
