// A picture sized by an angle, as the Moon's face is: held to a largest size however narrow the
// field, and not drawn at all without a picture.
#include <gtest/gtest.h>

#include <string>

#include "catalogues/AstroBitmap.h"
#include "platform/TDib.h"
#include "projection/Transformation.h"
#include "skyview/SkyCanvas.h"

TEST(AstroBitmap, HugeAnglesAreHeldToTheLargestBitmapAndNothingIsDrawnWithoutAPicture)
{
    SkyCanvas canvas(16, 16);
    Transformation narrow(canvas.GetDC(), TRect(0, 0, 16, 16), PolarCoord(0, 0), 0.1,
                          PolarCoord(0, 90));
    canvas.Parameters.pTransformation = &narrow;
    TDib dib(4, 2, 32);
    AstroBitmap bitmap;
    bitmap.SetBitmap(&dib);
    bitmap.SetAngularSize(DegreeAngle(80.0)); // some 9000 pixels asked
    EXPECT_EQ(bitmap.GetScaledSize(narrow), TSize(4096, 2048));
    bitmap.SetBitmap(std::string("/nonexistent/picture.bmp"));
    bitmap.Draw(canvas.Parameters);
    EXPECT_TRUE(bitmap.GetDrawRect(canvas.Parameters).IsEmpty());
    EXPECT_EQ(canvas.Picture(TRect(0, 0, 16, 16)),
              Rows(std::vector<std::string>(16, std::string(16, '.'))));
}
