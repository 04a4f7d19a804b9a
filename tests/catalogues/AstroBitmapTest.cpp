// A picture sized by an angle: stretched once to the width its angle covers, drawn centred on
// its point, made again only when the scaled size changes, and turned when it comes from a file.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <unistd.h>

#include "IndexedPicture.h"
#include "catalogues/AstroBitmap.h"
#include "platform/TBitmap.h"
#include "projection/Transformation.h"
#include "skyview/SkyCanvas.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

// The angle whose sine times 32 (the scale of a 64-pixel square at a field radius of 90) is
// `pixels`; half-pixel values keep the truncation clear of rounding.
DegreeAngle AngleCovering(double pixels)
{
    return DegreeAngle(std::asin(pixels / 32.0) * 180.0 / kPi);
}

class AstroBitmapTest : public ::testing::Test
{
protected:
    AstroBitmapTest() : Canvas(64, 64) { SetFieldRadius(90.0); }

    void SetFieldRadius(double radius)
    {
        View =
            std::make_unique<Transformation>(Canvas.GetDC(), TRect(0, 0, 64, 64),
                                             PolarCoord(0.0, 0.0), radius, PolarCoord(0.0, 90.0));
        Canvas.Parameters.pTransformation = View.get();
    }
    // The canvas with the host palette's red, green and blue named.
    std::string Picture(const TRect& area)
    {
        return Canvas.Picture(area, {{Canvas.Parameters.GetPaletteIndex(TColor::LtRed), 'r'},
                                     {Canvas.Parameters.GetPaletteIndex(TColor::LtGreen), 'g'},
                                     {Canvas.Parameters.GetPaletteIndex(TColor::LtBlue), 'b'}});
    }
    std::string ScratchPath(const char* name)
    {
        return testing::TempDir() + "astrobitmap_" + std::to_string(::getpid()) + "_" + name +
               ".png";
    }

    SkyCanvas Canvas;
    std::unique_ptr<Transformation> View;
};

const std::vector<std::string> kChecks = {
    "#r#r",
    "g#b#",
};

} // namespace

TEST_F(AstroBitmapTest, StretchesToTheWidthItsAngleCoversAndDrawsCentredOnItsPoint)
{
    auto dib = MakeIndexedDib(kChecks);
    AstroBitmap bitmap;
    bitmap.SetBitmap(dib.get());
    bitmap.SetAngularSize(AngleCovering(8.5));
    bitmap.SetDisplayPoint(TPoint(20, 10));

    // 8 pixels wide, and 4 high in the picture's proportions.
    EXPECT_EQ(bitmap.GetScaledSize(*View), TSize(8, 4));
    bitmap.Draw(Canvas.Parameters);
    ASSERT_NE(bitmap.GetBitmap(), nullptr);
    EXPECT_EQ(bitmap.GetBitmapSize(), TSize(8, 4));
    // Top left at the point less half the size.
    EXPECT_EQ(bitmap.GetDrawRectInternal(), TRect(16, 8, 24, 12));
    EXPECT_EQ(Picture(TRect(15, 7, 25, 13)), Rows({
                                                 "..........",
                                                 ".##rr##rr.",
                                                 ".##rr##rr.",
                                                 ".gg##bb##.",
                                                 ".gg##bb##.",
                                                 "..........",
                                             }));
}

TEST_F(AstroBitmapTest, OddSizesCentreByIntegerHalves)
{
    auto dib = MakeIndexedDib({"#", "r"});
    AstroBitmap bitmap;
    bitmap.SetBitmap(dib.get());
    bitmap.SetAngularSize(AngleCovering(3.5)); // 3 wide, 6 high
    bitmap.SetDisplayPoint(TPoint(10, 10));
    EXPECT_EQ(bitmap.GetDrawRect(Canvas.Parameters), TRect(9, 7, 12, 13));
    bitmap.Draw(Canvas.Parameters);
    EXPECT_EQ(Picture(TRect(9, 7, 12, 13)), Rows({"###", "###", "###", "rrr", "rrr", "rrr"}));
}

TEST_F(AstroBitmapTest, MadeAgainOnlyWhenTheScaledSizeChanges)
{
    // The device bitmap holds the colours of the picture at the time it was made, so a change
    // of the picture's table shows only when the bitmap is made again.
    auto dib = MakeIndexedDib(kChecks);
    AstroBitmap bitmap;
    bitmap.SetBitmap(dib.get());
    bitmap.SetAngularSize(AngleCovering(8.5));
    bitmap.SetDisplayPoint(TPoint(20, 10));
    bitmap.Draw(Canvas.Parameters);
    ASSERT_EQ(Picture(TRect(16, 8, 18, 9)), "##\n");
    dib->SetColor(1, TColor::LtGreen);

    // A slightly narrower field: sin(a) * 32 / sin(89) is still 8 and a bit.
    SetFieldRadius(89.0);
    bitmap.Draw(Canvas.Parameters);
    EXPECT_EQ(bitmap.GetBitmapSize(), TSize(8, 4));
    EXPECT_EQ(Picture(TRect(16, 8, 18, 9)), "##\n");

    // A field of 45 degrees: 8.5 * sqrt 2 pixels.
    SetFieldRadius(45.0);
    bitmap.Draw(Canvas.Parameters);
    EXPECT_EQ(bitmap.GetBitmapSize(), TSize(12, 6));
    EXPECT_EQ(Picture(TRect(14, 7, 16, 8)), "gg\n");
}

TEST_F(AstroBitmapTest, NewAngleRebuildsButNeverTurnsAPictureHandedIn)
{
    auto dib = MakeIndexedDib(kChecks);
    AstroBitmap bitmap;
    bitmap.SetBitmap(dib.get());
    bitmap.SetAngularSize(AngleCovering(8.5));
    bitmap.SetDisplayPoint(TPoint(20, 10));
    bitmap.Draw(Canvas.Parameters);
    const std::string before = Picture(TRect(16, 8, 24, 12));

    bitmap.SetOrientationAngle(DegreeAngle(90.0));
    EXPECT_TRUE(bitmap.NeedsRebuild());
    bitmap.Draw(Canvas.Parameters);
    EXPECT_FALSE(bitmap.NeedsRebuild());
    EXPECT_EQ(bitmap.GetDib(), dib.get());
    EXPECT_EQ(Picture(TRect(16, 8, 24, 12)), before);

    // The same angle again asks for nothing.
    bitmap.SetOrientationAngle(DegreeAngle(90.0));
    EXPECT_FALSE(bitmap.NeedsRebuild());
}

TEST_F(AstroBitmapTest, FieldTooWideForTheAngleGivesOnePixel)
{
    auto dib = MakeIndexedDib(kChecks);
    AstroBitmap bitmap;
    bitmap.SetBitmap(dib.get());
    bitmap.SetAngularSize(DegreeAngle(0.01)); // 0.0056 pixels at this scale
    EXPECT_EQ(bitmap.GetScaledSize(*View), TSize(1, 1));
    bitmap.SetDisplayPoint(TPoint(5, 5));
    bitmap.Draw(Canvas.Parameters);
    EXPECT_EQ(bitmap.GetBitmapSize(), TSize(1, 1));
    EXPECT_EQ(bitmap.GetDrawRectInternal(), TRect(5, 5, 6, 6));
    // The one pixel is the source pixel under its centre, (2, 1).
    EXPECT_EQ(Picture(TRect(4, 4, 7, 7)), Rows({"...", ".b.", "..."}));
}

TEST_F(AstroBitmapTest, HugeAnglesInTinyFieldsAreHeldToTheLargestBitmap)
{
    auto dib = MakeIndexedDib(kChecks);
    AstroBitmap bitmap;
    bitmap.SetBitmap(dib.get());
    bitmap.SetAngularSize(DegreeAngle(80.0));
    SetFieldRadius(0.1); // some 18000 pixels for 80 degrees
    EXPECT_EQ(bitmap.GetScaledSize(*View),
              TSize(AstroBitmap::kMaxScaledSide, AstroBitmap::kMaxScaledSide / 2));
}

TEST_F(AstroBitmapTest, NoPictureNoBitmapAndAnEmptyRectangle)
{
    AstroBitmap bitmap;
    bitmap.SetDisplayPoint(TPoint(10, 10));
    EXPECT_TRUE(bitmap.GetDrawRect(Canvas.Parameters).IsEmpty());
    bitmap.Draw(Canvas.Parameters);
    EXPECT_EQ(bitmap.GetBitmap(), nullptr);

    // A file that is not there: no bitmap either, and the draw leaves the sky alone.
    bitmap.SetBitmap(std::string("/nonexistent/picture.bmp"));
    bitmap.Draw(Canvas.Parameters);
    EXPECT_EQ(bitmap.GetBitmap(), nullptr);
    EXPECT_TRUE(bitmap.GetDrawRect(Canvas.Parameters).IsEmpty());

    // Without a transformation or a surface nothing is made.
    auto dib = MakeIndexedDib(kChecks);
    bitmap.SetBitmap(dib.get());
    DisplayParameters bare;
    bitmap.Draw(bare);
    EXPECT_EQ(bitmap.GetBitmap(), nullptr);
}

TEST_F(AstroBitmapTest, RotationIsAForwardMappingThatKeepsTheSize)
{
    // Rows as the bits hold them are bottom-up, so a positive angle turns the picture
    // counter-clockwise as it is seen.
    auto square = MakeIndexedDib({
        "r....",
        "r....",
        "rrr..",
        ".....",
        "....g",
    });
    auto turned = AstroBitmap::Rotate(*square, DegreeAngle(90.0));
    ASSERT_NE(turned, nullptr);
    EXPECT_EQ(IndexedDibText(*turned), Rows({
                                           "....g",
                                           ".....",
                                           "..r..",
                                           "..r..",
                                           "rrr..",
                                       }));
    // The colour table travels along.
    EXPECT_EQ(turned->NumColors(), kIndexedPictureColors);
    EXPECT_EQ(turned->GetColor(2), TColor::LtRed);

    auto half = AstroBitmap::Rotate(*square, DegreeAngle(180.0));
    ASSERT_NE(half, nullptr);
    EXPECT_EQ(IndexedDibText(*half), Rows({
                                         "g....",
                                         ".....",
                                         "..rrr",
                                         "....r",
                                         "....r",
                                     }));
}

TEST_F(AstroBitmapTest, RotationCutsTheCornersAndFillsWithTheTablesBlack)
{
    // The table's black is its first black entry: here index 3 (blue is made black).
    auto wide = MakeIndexedDib({
        "######",
        "rrrrrr",
    });
    wide->SetColor(0, TColor::LtRed);
    wide->SetColor(3, TColor::Black);
    auto turned = AstroBitmap::Rotate(*wide, DegreeAngle(90.0));
    ASSERT_NE(turned, nullptr);
    // Only the middle two columns of the six land inside a picture two rows high.
    EXPECT_EQ(IndexedDibText(*turned), Rows({
                                           "ggg#rg",
                                           "ggg#rg",
                                       }));
}

TEST_F(AstroBitmapTest, OnlyEightBitPicturesAreTurned)
{
    TDib fourBit(4, 4, 16);
    ASSERT_EQ(fourBit.BitsPixel(), 4);
    EXPECT_EQ(AstroBitmap::Rotate(fourBit, DegreeAngle(90.0)), nullptr);
    TDib trueColour(4, 4, 0);
    EXPECT_EQ(AstroBitmap::Rotate(trueColour, DegreeAngle(90.0)), nullptr);
}

TEST_F(AstroBitmapTest, PictureFromAFileIsTurnedByTheAngleAndEachNewAngleStartsFromTheFile)
{
    const std::string path = ScratchPath("turned");
    WriteIndexedPicture(path, {
                                  "r..",
                                  "r..",
                                  "rrg",
                              });
    AstroBitmap bitmap;
    bitmap.SetBitmap(path);
    bitmap.SetOrientationAngle(DegreeAngle(90.0));
    bitmap.SetAngularSize(AngleCovering(3.5));
    bitmap.SetDisplayPoint(TPoint(10, 10));
    bitmap.Draw(Canvas.Parameters);
    ASSERT_NE(bitmap.GetDib(), nullptr);
    EXPECT_EQ(IndexedDibText(*bitmap.GetDib()), Rows({"..g", "..r", "rrr"}));
    EXPECT_EQ(Picture(TRect(9, 9, 12, 12)), Rows({"..g", "..r", "rrr"}));

    // A half turn is a half turn of the file's picture, not of the quarter-turned one.
    bitmap.SetOrientationAngle(DegreeAngle(180.0));
    bitmap.Draw(Canvas.Parameters);
    EXPECT_EQ(IndexedDibText(*bitmap.GetDib()), Rows({"grr", "..r", "..r"}));

    // And no angle gives the picture as read.
    bitmap.SetOrientationAngle(DegreeAngle(0.0));
    bitmap.Draw(Canvas.Parameters);
    EXPECT_EQ(IndexedDibText(*bitmap.GetDib()), Rows({"r..", "r..", "rrg"}));
    std::remove(path.c_str());
}

TEST_F(AstroBitmapTest, SameFileNameKeepsWhatWasLoadedEvenWhenTheFileChanged)
{
    const std::string path = ScratchPath("same");
    WriteIndexedPicture(path, {"rr", "rr"});
    AstroBitmap bitmap;
    bitmap.SetBitmap(path);
    bitmap.SetAngularSize(AngleCovering(2.5));
    bitmap.Draw(Canvas.Parameters);
    const TDib* loaded = bitmap.GetDib();
    const TBitmap* scaled = bitmap.GetBitmap();
    ASSERT_NE(loaded, nullptr);
    ASSERT_NE(scaled, nullptr);

    WriteIndexedPicture(path, {"gg", "gg"});
    bitmap.SetBitmap(path);
    bitmap.Draw(Canvas.Parameters);
    EXPECT_EQ(bitmap.GetDib(), loaded);
    EXPECT_EQ(bitmap.GetBitmap(), scaled);
    EXPECT_EQ(IndexedDibText(*bitmap.GetDib()), Rows({"rr", "rr"}));

    // Another name drops both, and the next draw reads the new file.
    const std::string other = ScratchPath("other");
    WriteIndexedPicture(other, {"bb", "bb"});
    bitmap.SetBitmap(other);
    EXPECT_EQ(bitmap.GetDib(), nullptr);
    EXPECT_EQ(bitmap.GetBitmap(), nullptr);
    bitmap.Draw(Canvas.Parameters);
    ASSERT_NE(bitmap.GetDib(), nullptr);
    EXPECT_EQ(IndexedDibText(*bitmap.GetDib()), Rows({"bb", "bb"}));
    std::remove(path.c_str());
    std::remove(other.c_str());
}
