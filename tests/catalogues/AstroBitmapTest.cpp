// A picture sized by an angle: stretched once to the width its angle covers, drawn centred on
// its point, and made again only when the scaled size changes.
#include <gtest/gtest.h>

#include <cmath>

#include "IndexedPicture.h"
#include "catalogues/AstroBitmap.h"
#include "projection/Transformation.h"
#include "skyview/SkyCanvas.h"

TEST(AstroBitmap, StretchedToTheWidthOfItsAngleCentredOnItsPointAndMadeAgainForANewSize)
{
    // A 64-pixel square map of 90 degrees to the edge, where an angle covers sin(a) * 32
    // pixels; half-pixel values keep the truncation clear of rounding.
    SkyCanvas canvas(64, 64);
    auto view = [&](double radius) {
        return Transformation(canvas.GetDC(), TRect(0, 0, 64, 64), PolarCoord(0, 0), radius,
                              PolarCoord(0, 90));
    };
    auto picture = [&](const TRect& area) {
        return canvas.Picture(area, {{canvas.Parameters.GetPaletteIndex(TColor::LtRed), 'r'},
                                     {canvas.Parameters.GetPaletteIndex(TColor::LtGreen), 'g'},
                                     {canvas.Parameters.GetPaletteIndex(TColor::LtBlue), 'b'}});
    };
    Transformation t = view(90.0);
    canvas.Parameters.pTransformation = &t;
    auto dib = MakeIndexedDib({"#r#r", "g#b#"});
    AstroBitmap bitmap;
    bitmap.SetBitmap(dib.get());
    bitmap.SetAngularSize(DegreeAngle(std::asin(8.5 / 32.0) * 180.0 / 3.141592653589793));
    bitmap.SetDisplayPoint(TPoint(20, 10));
    bitmap.Draw(canvas.Parameters);
    // 8 pixels wide and 4 high in the picture's proportions, top left at the point less half
    // the size.
    EXPECT_EQ(picture(TRect(15, 7, 25, 13)), Rows({"..........", ".##rr##rr.", ".##rr##rr.",
                                                   ".gg##bb##.", ".gg##bb##.", ".........."}));

    // The device bitmap holds the colours of the picture when it was made, so a new colour
    // in the picture's table shows only when it is made again: not in a field a little
    // narrower, where it is still 8 pixels wide, but in one of 45 degrees, 12 by 6.
    dib->SetColor(1, TColor::LtGreen);
    t = view(89.0);
    bitmap.Draw(canvas.Parameters);
    EXPECT_EQ(picture(TRect(16, 8, 18, 9)), "##\n");
    t = view(45.0);
    bitmap.Draw(canvas.Parameters);
    EXPECT_EQ(bitmap.GetDrawRect(canvas.Parameters), TRect(14, 7, 26, 13));
    EXPECT_EQ(picture(TRect(14, 7, 16, 8)), "gg\n");
}

TEST(AstroBitmap, HugeAnglesAreHeldToTheLargestBitmapAndNothingIsDrawnWithoutAPicture)
{
    SkyCanvas canvas(16, 16);
    Transformation narrow(canvas.GetDC(), TRect(0, 0, 16, 16), PolarCoord(0, 0), 0.1,
                          PolarCoord(0, 90));
    canvas.Parameters.pTransformation = &narrow;
    auto dib = MakeIndexedDib({"#r#r", "g#b#"});
    AstroBitmap bitmap;
    bitmap.SetBitmap(dib.get());
    bitmap.SetAngularSize(DegreeAngle(80.0)); // some 9000 pixels asked
    EXPECT_EQ(bitmap.GetScaledSize(narrow), TSize(4096, 2048));
    bitmap.SetBitmap(std::string("/nonexistent/picture.bmp"));
    bitmap.Draw(canvas.Parameters);
    EXPECT_TRUE(bitmap.GetDrawRect(canvas.Parameters).IsEmpty());
}
