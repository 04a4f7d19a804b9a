// Pictures in memory: BMP and PNG files of every depth the component meets, the module's named
// pictures, and the colour table and pixel access that picture objects use.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <unistd.h>

#include "platform/DebugStream.h"
#include "platform/ModuleResources.h"
#include "platform/PngFile.h"
#include "platform/Surface.h"
#include "platform/TClientDC.h"
#include "platform/TDib.h"

namespace {

using Bytes = std::vector<BYTE>;

void Put16(Bytes& b, unsigned v)
{
    b.push_back(BYTE(v));
    b.push_back(BYTE(v >> 8));
}

void Put32(Bytes& b, DWORD v)
{
    Put16(b, v & 0xFFFF);
    Put16(b, v >> 16);
}

// A BMP file around pixel bytes given in file order.
Bytes BmpFile(int width, int height, int bits, const std::vector<COLORREF>& table,
              const Bytes& pixels, DWORD compression = BI_RGB, DWORD colorsUsed = ~0u)
{
    Bytes b = {'B', 'M'};
    DWORD offset = 14 + 40 + 4 * DWORD(table.size());
    Put32(b, offset + DWORD(pixels.size()));
    Put32(b, 0);
    Put32(b, offset);
    Put32(b, 40);
    Put32(b, DWORD(width));
    Put32(b, DWORD(height));
    Put16(b, 1);
    Put16(b, unsigned(bits));
    Put32(b, compression);
    Put32(b, DWORD(pixels.size()));
    Put32(b, 2835);
    Put32(b, 2835);
    Put32(b, colorsUsed == ~0u ? DWORD(table.size()) : colorsUsed);
    Put32(b, 0);
    for (COLORREF c : table) {
        b.insert(b.end(), {GetBValue(c), GetGValue(c), GetRValue(c), 0});
    }
    b.insert(b.end(), pixels.begin(), pixels.end());
    return b;
}

// Rows of indexes or of colours (for 24 and 32 bits), listed from the top, packed as a BMP
// stores them: bottom row first unless `topDown`, each row padded to 4 bytes.
Bytes PackRows(const std::vector<std::vector<DWORD>>& rowsFromTop, int bits, bool topDown = false)
{
    Bytes out;
    std::size_t count = rowsFromTop.size();
    for (std::size_t k = 0; k < count; ++k) {
        const std::vector<DWORD>& row = rowsFromTop[topDown ? k : count - 1 - k];
        Bytes packed;
        int used = 0;
        for (DWORD v : row) {
            if (bits >= 24) {
                packed.insert(packed.end(), {GetBValue(v), GetGValue(v), GetRValue(v)});
                if (bits == 32) {
                    packed.push_back(0);
                }
                continue;
            }
            if (used % 8 == 0) {
                packed.push_back(0);
            }
            packed.back() |= BYTE(v << (8 - bits - used % 8));
            used += bits;
        }
        while (packed.size() % 4) {
            packed.push_back(0);
        }
        out.insert(out.end(), packed.begin(), packed.end());
    }
    return out;
}

TDib FromBytes(const Bytes& bytes)
{
    return TDib(bytes.data(), bytes.size());
}

std::vector<std::vector<int>> IndexesOf(const TDib& dib)
{
    std::vector<std::vector<int>> rows(std::size_t(dib.Height()));
    for (int y = 0; y < dib.Height(); ++y) {
        for (int x = 0; x < dib.Width(); ++x) {
            rows[std::size_t(y)].push_back(dib.GetPixelIndex(x, y));
        }
    }
    return rows;
}

// Collects what goes to dbstream while it lives.
class DebugCapture
{
public:
    DebugCapture()
    {
        Previous = SetDebugSink([this](const char* text) { Text += text; });
    }
    ~DebugCapture() { SetDebugSink(Previous); }
    std::string Text;

private:
    DebugSink Previous;
};

const std::vector<COLORREF> kThree = {RGB(0, 0, 0), RGB(255, 0, 0), RGB(255, 255, 255)};

TEST(TDibFromBmp, EightBitRowsArePaddedAndBottomUp)
{
    TDib dib = FromBytes(BmpFile(3, 2, 8, kThree, PackRows({{1, 2, 0}, {2, 2, 1}}, 8)));
    ASSERT_TRUE(dib.IsOK());
    EXPECT_EQ(dib.Size(), TSize(3, 2));
    EXPECT_EQ(dib.BitsPixel(), 8);
    EXPECT_EQ(dib.NumColors(), 3);
    EXPECT_EQ(dib.Pitch(), 4);
    EXPECT_EQ(IndexesOf(dib), (std::vector<std::vector<int>>{{1, 2, 0}, {2, 2, 1}}));
    EXPECT_EQ(dib.GetPixelColor(0, 0), TColor::LtRed);
    EXPECT_EQ(static_cast<const BYTE*>(dib.GetBits())[0], 2) << "the bottom row comes first";
    EXPECT_EQ(dib.GetInfoHeader()->biHeight, 2);
    TDib topDown = FromBytes(BmpFile(3, -2, 8, kThree, PackRows({{1, 2, 0}, {2, 2, 1}}, 8, true)));
    EXPECT_EQ(IndexesOf(topDown), IndexesOf(dib)) << "a top-down file gives the same picture";
    EXPECT_EQ(topDown.GetInfoHeader()->biHeight, 2) << "kept bottom-up";
}

TEST(TDibFromBmp, OneAndFourBitPixels)
{
    TDib mono = FromBytes(
        BmpFile(10, 2, 1, {RGB(0, 0, 0), RGB(255, 255, 255)},
                PackRows({{1, 0, 0, 1, 1, 0, 1, 0, 0, 1}, {0, 1, 1, 1, 1, 1, 1, 1, 1, 0}}, 1)));
    ASSERT_TRUE(mono.IsOK());
    EXPECT_EQ(IndexesOf(mono), (std::vector<std::vector<int>>{{1, 0, 0, 1, 1, 0, 1, 0, 0, 1},
                                                              {0, 1, 1, 1, 1, 1, 1, 1, 1, 0}}));
    EXPECT_EQ(mono.GetPixelColor(9, 0), TColor::White);

    std::vector<COLORREF> sixteen(16, RGB(0, 0, 0));
    sixteen[15] = RGB(0, 0, 255);
    TDib nibbles = FromBytes(BmpFile(3, 1, 4, sixteen, PackRows({{15, 3, 9}}, 4), BI_RGB, 0));
    ASSERT_TRUE(nibbles.IsOK());
    EXPECT_EQ(nibbles.NumColors(), 16) << "a colour count of 0 means the full table";
    EXPECT_EQ(IndexesOf(nibbles), (std::vector<std::vector<int>>{{15, 3, 9}}));
    EXPECT_EQ(nibbles.GetPixelColor(0, 0), TColor::LtBlue);
}

TEST(TDibFromBmp, TrueColourPixels)
{
    std::vector<std::vector<DWORD>> rows = {{RGB(1, 2, 3), RGB(250, 128, 0)},
                                            {RGB(0, 0, 0x60), RGB(9, 9, 9)}};
    for (int bits : {24, 32}) {
        TDib dib = FromBytes(BmpFile(2, 2, bits, {}, PackRows(rows, bits)));
        ASSERT_TRUE(dib.IsOK()) << bits;
        EXPECT_EQ(dib.BitsPixel(), 24);
        EXPECT_EQ(dib.NumColors(), 0);
        EXPECT_EQ(dib.GetPixelColor(1, 0), TColor(250, 128, 0)) << bits;
        EXPECT_EQ(dib.GetPixelColor(0, 1), TColor(0, 0, 0x60)) << bits;
        EXPECT_EQ(dib.GetPixelIndex(0, 0), -1) << "no indexes in a true-colour picture";
    }
}

TEST(TDibFromBmp, RunLengthEncodedPictures)
{
    // Bottom row: a run of three 1s, end of line; next row: a literal 2, 1, 2 (padded), a move
    // of one to the right and none up, then a run of one 1; end of picture.
    Bytes rle8 = {3, 1, 0, 0, 0, 3, 2, 1, 2, 0, 0, 2, 1, 0, 1, 1, 0, 1};
    TDib dib = FromBytes(BmpFile(5, 2, 8, kThree, rle8, BI_RLE8));
    ASSERT_TRUE(dib.IsOK());
    EXPECT_EQ(IndexesOf(dib), (std::vector<std::vector<int>>{{2, 1, 2, 0, 1}, {1, 1, 1, 0, 0}}));

    // Four pixels alternating 1 and 2 from one byte, then a literal of three nibbles.
    Bytes rle4 = {4, 0x12, 0, 0, 0, 3, 0x21, 0x20, 0, 1};
    TDib four = FromBytes(BmpFile(4, 2, 4, kThree, rle4, BI_RLE4));
    ASSERT_TRUE(four.IsOK());
    EXPECT_EQ(IndexesOf(four), (std::vector<std::vector<int>>{{2, 1, 2, 0}, {1, 2, 1, 2}}));
}

TEST(TDibFromBmp, DamagedFilesAreRefusedWhole)
{
    Bytes good = BmpFile(4, 4, 8, kThree,
                         PackRows({{1, 1, 1, 1}, {1, 1, 1, 1}, {1, 1, 1, 1}, {1, 1, 1, 1}}, 8));
    ASSERT_TRUE(FromBytes(good).IsOK());

    DebugCapture capture;
    for (std::size_t cut : {good.size() - 1, std::size_t(14 + 40 + 5), std::size_t(20),
                            std::size_t(1), std::size_t(0)}) {
        Bytes shortened(good.begin(), good.begin() + long(cut));
        TDib dib = FromBytes(shortened);
        EXPECT_FALSE(dib.IsOK()) << "cut to " << cut;
        EXPECT_EQ(dib.Width(), 0);
        EXPECT_EQ(dib.GetBits(), nullptr);
        EXPECT_EQ(dib.GetColors(), nullptr);
    }
    EXPECT_NE(capture.Text.find("TDib"), std::string::npos);

    Bytes endless = {3, 1, 0, 0}; // no end-of-picture mark
    EXPECT_FALSE(FromBytes(BmpFile(3, 2, 8, kThree, endless, BI_RLE8)).IsOK());
    Bytes sixteenBit = BmpFile(2, 2, 16, {}, Bytes(8, 0));
    EXPECT_FALSE(FromBytes(sixteenBit).IsOK());
    Bytes huge = BmpFile(1 << 20, 1 << 20, 8, kThree, Bytes(16, 0));
    EXPECT_FALSE(FromBytes(huge).IsOK());
    EXPECT_FALSE(FromBytes(Bytes{'G', 'I', 'F', '8', '9', 'a', 0, 0}).IsOK());
}

TEST(TDibFromFile, ReadsBmpAndPngFilesAndRefusesMissingOnes)
{
    std::filesystem::path dir = std::filesystem::temp_directory_path();
    std::string stem = "orbiscope-tdib-test-" + std::to_string(getpid());
    std::string bmpPath = (dir / (stem + ".bmp")).string();
    Bytes bmp = BmpFile(2, 1, 8, kThree, PackRows({{2, 1}}, 8));
    std::ofstream(bmpPath, std::ios::binary)
        .write(reinterpret_cast<const char*>(bmp.data()), long(bmp.size()));
    TDib fromBmp(bmpPath);
    ASSERT_TRUE(fromBmp.IsOK());
    EXPECT_EQ(fromBmp.GetPixelColor(0, 0), TColor::White);

    // An 8-bit surface goes to a palette PNG and comes back with the same indexes and colours.
    Surface s(3, 2, PixelFormat::Indexed8);
    s.SetValue(0, 0, 15);
    s.SetValue(2, 1, 200);
    std::string pngPath = (dir / (stem + ".png")).string();
    ASSERT_TRUE(SaveSurfaceAsPng(s, pngPath));
    TDib fromPng(pngPath.c_str());
    ASSERT_TRUE(fromPng.IsOK());
    EXPECT_EQ(fromPng.BitsPixel(), 8);
    EXPECT_EQ(fromPng.NumColors(), 256);
    EXPECT_EQ(fromPng.GetPixelIndex(0, 0), 15);
    EXPECT_EQ(fromPng.GetPixelIndex(2, 1), 200);
    EXPECT_EQ(fromPng.GetColor(200), TColor(s.ColorTable()[200]));
    Surface rgb(2, 2, PixelFormat::Rgb32);
    rgb.SetValue(1, 0, Surface::RgbToValue(RGB(12, 34, 56)));
    ASSERT_TRUE(SaveSurfaceAsPng(rgb, pngPath));
    EXPECT_EQ(TDib(pngPath).GetPixelColor(1, 0), TColor(12, 34, 56)) << "a true-colour PNG";

    std::remove(bmpPath.c_str());
    std::remove(pngPath.c_str());
    DebugCapture capture;
    EXPECT_FALSE(TDib((dir / "orbiscope-no-such-picture.bmp").string()).IsOK());
    EXPECT_NE(capture.Text.find("cannot open"), std::string::npos);
}

TEST(ModulePictures, NamedPicturesComeFromTheTable)
{
    // tests/platform/resources/TESTCARD.bmp: rows red-white-black-white-red,
    // white-red-white-red-white, black-black-red-black-black.
    TDib card(GetModuleInstance(), "TESTCARD");
    ASSERT_TRUE(card.IsOK());
    EXPECT_EQ(card.Size(), TSize(5, 3));
    EXPECT_EQ(card.GetPixelColor(0, 0), TColor::LtRed);
    EXPECT_EQ(card.GetPixelColor(1, 0), TColor::White);
    EXPECT_EQ(card.GetPixelColor(2, 2), TColor::LtRed);
    EXPECT_EQ(card.GetPixelColor(4, 2), TColor::Black);

    EXPECT_TRUE(TDib(GetModuleInstance(), TResId("testcard")).IsOK()) << "names ignore case";
    DebugCapture capture;
    EXPECT_FALSE(TDib(GetModuleInstance(), "NOSUCHPICTURE").IsOK());
    EXPECT_FALSE(TDib(GetModuleInstance(), TResId(123)).IsOK());
    EXPECT_FALSE(TDib(nullptr, "TESTCARD").IsOK());
    EXPECT_NE(capture.Text.find("#123"), std::string::npos);
}

} // namespace
