// A fading picture on the sky: it starts fully faded, each stage takes a share of its maximum
// fade off every colour of its table without wrapping below 0, and the next draw shows the new
// colours.
#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "IndexedPicture.h"
#include "catalogues/MorphingObject.h"
#include "projection/Transformation.h"
#include "skyview/SkyCanvas.h"

TEST(MorphingObject, EachStageFadesTheColoursAsFoundAndTheNextDrawShowsThem)
{
    auto dib = MakeIndexedDib({"##", "##"});
    dib->SetColor(0, TColor(10, 20, 30));
    // 4.5 pixels at the scale of a 32-pixel map of 90 degrees: a 4 by 4 bitmap.
    MorphingObject object("white", std::move(dib), DegreeAngle(std::asin(4.5 / 16.0) * 57.29578),
                          255, AstroObject::ObjectType::OtherObject);
    // Stage, whether it is taken, the fade, and the first two colours after it. A new object
    // starts fully faded; each stage starts from the colours as found; stages outside 0 to 1
    // change nothing.
    const std::tuple<double, bool, unsigned, TColor, TColor> rows[] = {
        {1.0, true, 255, TColor(0, 0, 0), TColor(0, 0, 0)},
        {0.0, true, 0, TColor(10, 20, 30), TColor(255, 255, 255)},
        {0.5, true, 127, TColor(0, 0, 0), TColor(128, 128, 128)},
        {0.1, true, 25, TColor(0, 0, 5), TColor(230, 230, 230)},
        {1.5, false, 25, TColor(0, 0, 5), TColor(230, 230, 230)},
        {std::nan(""), false, 25, TColor(0, 0, 5), TColor(230, 230, 230)},
    };
    EXPECT_EQ(object.GetDib()->GetColor(1), TColor(0, 0, 0));
    for (const auto& [stage, taken, fade, first, second] : rows) {
        EXPECT_EQ(object.SetStage(stage), taken) << stage;
        EXPECT_EQ(object.GetFade(), fade) << stage;
        EXPECT_EQ(object.GetDib()->GetColor(0), first) << stage;
        EXPECT_EQ(object.GetDib()->GetColor(1), second) << stage;
    }

    SkyCanvas canvas(32, 32);
    Transformation view(canvas.GetDC(), TRect(0, 0, 32, 32), PolarCoord(0, 0), 90.0,
                        PolarCoord(0, 90));
    canvas.Parameters.pTransformation = &view;
    object.SetDisplayPoint(TPoint(10, 10));
    for (const auto& [stage, pixel] : {std::pair(0.0, '#'), std::pair(1.0, '.')}) {
        ASSERT_TRUE(object.SetStage(stage));
        object.Draw(canvas.GetDC(), canvas.Parameters);
        EXPECT_EQ(canvas.Picture(TRect(8, 8, 12, 12)),
                  Rows(std::vector<std::string>(4, std::string(4, pixel))))
            << stage;
    }
}
