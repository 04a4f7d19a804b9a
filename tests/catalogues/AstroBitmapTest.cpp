// A picture sized by an angle, as the Moon's face is: stretched to the width its angle covers
// in the picture's proportions, drawn centred on its point, and held to a largest size.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "catalogues/AstroBitmap.h"
#include "platform/TDib.h"
#include "projection/Transformation.h"
#include "skyview/SkyCanvas.h"

TEST(AstroBitmap, StretchedToTheWidthOfItsAngleInItsProportionsAndCentredOnItsPoint)
{
    // A 64-pixel square map of 90 degrees to the edge, where an angle covers sin(a) * 32
    // pixels; half-pixel values keep the truncation clear of rounding.
    SkyCanvas canvas(64, 64);
    auto view = [&](double radius) {
        return Transformation(canvas.GetDC(), TRect(0, 0, 64, 64), PolarCoord(0, 0), radius,
                              PolarCoord(0, 90));
    };
    Transformation t = view(90.0);
    canvas.Parameters.pTransformation = &t;
    // An 8-bit picture, "#r#r" above "g#b#": white, red, green and blue at indexes 1 to 4.
    TDib dib(4, 2, 32);
    const TColor colors[] = {TColor::White, TColor::LtRed, TColor::LtGreen, TColor::LtBlue};
    const int indexes[2][4] = {{1, 2, 1, 2}, {3, 1, 4, 1}};
    for (int x = 0; x < 4; ++x) {
        dib.SetColor(x + 1, colors[x]);
        dib.SetPixelIndex(x, 0, indexes[0][x]);
        dib.SetPixelIndex(x, 1, indexes[1][x]);
    }
    auto picture = [&](const TRect& area) {
        return canvas.Picture(area, {{canvas.Parameters.GetPaletteIndex(TColor::LtRed), 'r'},
                                     {canvas.Parameters.GetPaletteIndex(TColor::LtGreen), 'g'},
                                     {canvas.Parameters.GetPaletteIndex(TColor::LtBlue), 'b'}});
    };
    AstroBitmap bitmap;
    bitmap.SetBitmap(&dib);
    bitmap.SetAngularSize(DegreeAngle(std::asin(8.5 / 32.0) * 180.0 / 3.141592653589793));
    bitmap.SetDisplayPoint(TPoint(20, 10));
    bitmap.Draw(canvas.Parameters);
    // 8 pixels wide and 4 high in the picture's proportions, top left at the point less half
    // the size.
    EXPECT_EQ(picture(TRect(15, 7, 25, 13)), Rows({"..........", ".##rr##rr.", ".##rr##rr.",
                                                   ".gg##bb##.", ".gg##bb##.", ".........."}));

    // A field of 45 degrees makes it 8.5 * sqrt 2 pixels wide: 12 by 6.
    t = view(45.0);
    bitmap.Draw(canvas.Parameters);
    EXPECT_EQ(bitmap.GetDrawRect(canvas.Parameters), TRect(14, 7, 26, 13));
    EXPECT_EQ(picture(TRect(14, 7, 18, 8)), "###r\n");

    // A huge angle in a tiny field is held to the largest bitmap (some 18000 pixels asked);
    // without a picture nothing is drawn.
    bitmap.SetAngularSize(DegreeAngle(80.0));
    EXPECT_EQ(bitmap.GetScaledSize(view(0.1)), TSize(4096, 2048));
    bitmap.SetBitmap(std::string("/nonexistent/picture.bmp"));
    bitmap.Draw(canvas.Parameters);
    EXPECT_TRUE(bitmap.GetDrawRect(canvas.Parameters).IsEmpty());
}
