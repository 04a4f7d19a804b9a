// A fading picture on the sky: it starts fully faded, each stage takes a share of its maximum
// fade off every colour of its table without wrapping below 0, and the next draw shows the new
// colours.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "IndexedPicture.h"
#include "catalogues/MorphingObject.h"
#include "projection/Transformation.h"
#include "skyview/SkyCanvas.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

// A 2 by 2 picture whose table starts with four known colours.
std::unique_ptr<TDib> FourColours()
{
    auto dib = MakeIndexedDib({"#r", "gb"});
    dib->SetColor(0, TColor(10, 20, 30));
    dib->SetColor(1, TColor(200, 100, 5));
    return dib;
}

MorphingObject MakeObject(unsigned maxFade)
{
    return MorphingObject("ignored", FourColours(), DegreeAngle(2.0), maxFade,
                          AstroObject::ObjectType::OtherObject);
}

} // namespace

TEST(MorphingObject, KeepsTheTableAsFoundWithItsAverages)
{
    MorphingObject object = MakeObject(7);
    const auto& original = object.GetOriginalColorTable();
    ASSERT_EQ(original.size(), std::size_t(kIndexedPictureColors));
    EXPECT_EQ(original[0].rgbRed, 10);
    EXPECT_EQ(original[0].rgbGreen, 20);
    EXPECT_EQ(original[0].rgbBlue, 30);
    EXPECT_EQ(original[0].Average, 20u);
    EXPECT_EQ(original[1].Average, 101u); // 305 / 3
    EXPECT_EQ(original[2].rgbRed, 255);
}

TEST(MorphingObject, StartsFullyFadedAndStageZeroRestoresTheColours)
{
    MorphingObject object = MakeObject(7);
    EXPECT_EQ(object.GetFade(), 7u);
    EXPECT_EQ(object.GetDib()->GetColor(0), TColor(3, 13, 23));
    EXPECT_EQ(object.GetDib()->GetColor(1), TColor(193, 93, 0)); // 5 - 7 stops at 0

    ASSERT_TRUE(object.SetStage(0.0));
    EXPECT_EQ(object.GetFade(), 0u);
    EXPECT_EQ(object.GetDib()->GetColor(0), TColor(10, 20, 30));
    EXPECT_EQ(object.GetDib()->GetColor(1), TColor(200, 100, 5));
}

TEST(MorphingObject, HalfStageTakesTheTruncatedHalf)
{
    MorphingObject object = MakeObject(7);
    ASSERT_TRUE(object.SetStage(0.5));
    EXPECT_EQ(object.GetFade(), 3u);
    EXPECT_EQ(object.GetDib()->GetColor(0), TColor(7, 17, 27));
    EXPECT_EQ(object.GetDib()->GetColor(2), TColor(252, 0, 0));
    // Each stage starts from the colours as found, not from the last stage.
    ASSERT_TRUE(object.SetStage(0.5));
    EXPECT_EQ(object.GetDib()->GetColor(0), TColor(7, 17, 27));
}

TEST(MorphingObject, StagesOutsideZeroToOneChangeNothing)
{
    MorphingObject object = MakeObject(7);
    ASSERT_TRUE(object.SetStage(0.5));
    EXPECT_FALSE(object.SetStage(1.5));
    EXPECT_FALSE(object.SetStage(-0.1));
    EXPECT_FALSE(object.SetStage(std::nan("")));
    EXPECT_EQ(object.GetFade(), 3u);
    EXPECT_EQ(object.GetDib()->GetColor(0), TColor(7, 17, 27));
}

TEST(MorphingObject, FadeNeverWrapsBelowZero)
{
    MorphingObject object = MakeObject(255);
    EXPECT_EQ(object.GetModifiedIntensityForStage(0, 254), 0u);
    EXPECT_EQ(object.GetModifiedIntensityForStage(0, 255), 0u);
    EXPECT_EQ(object.GetDib()->GetColor(2), TColor(0, 0, 0));
    ASSERT_TRUE(object.SetStage(0.1)); // 25 levels
    EXPECT_EQ(object.GetModifiedIntensityForStage(0, 30), 5u);
    EXPECT_EQ(object.GetModifiedIntensityForStage(999, 20), 0u); // the average plays no part
}

TEST(MorphingObject, DrawShowsTheColoursOfThePresentStage)
{
    SkyCanvas canvas(32, 32);
    Transformation view(canvas.GetDC(), TRect(0, 0, 32, 32), PolarCoord(0.0, 0.0), 90.0,
                        PolarCoord(0.0, 90.0));
    canvas.Parameters.pTransformation = &view;
    // 4.5 pixels at a scale of 16: a 4 by 4 bitmap.
    auto dib = MakeIndexedDib({"##", "##"});
    MorphingObject object("white", std::move(dib), DegreeAngle(std::asin(4.5 / 16.0) * 180.0 / kPi),
                          255, AstroObject::ObjectType::OtherObject);
    object.SetDisplayPoint(TPoint(10, 10));
    EXPECT_EQ(object.GetDisplayRect(canvas.Parameters), TRect(8, 8, 12, 12));

    // Fully faded white is black.
    object.Draw(canvas.GetDC(), canvas.Parameters);
    EXPECT_EQ(canvas.Picture(TRect(7, 7, 13, 13)), Rows({
                                                       "......",
                                                       "......",
                                                       "......",
                                                       "......",
                                                       "......",
                                                       "......",
                                                   }));
    ASSERT_TRUE(object.SetStage(0.0));
    object.Draw(canvas.GetDC(), canvas.Parameters);
    EXPECT_EQ(canvas.Picture(TRect(7, 7, 13, 13)), Rows({
                                                       "......",
                                                       ".####.",
                                                       ".####.",
                                                       ".####.",
                                                       ".####.",
                                                       "......",
                                                   }));
}

TEST(MorphingObject, NoPictureIsQuiet)
{
    MorphingObject object("none", nullptr, DegreeAngle(1.0), 10,
                          AstroObject::ObjectType::OtherObject);
    EXPECT_TRUE(object.GetOriginalColorTable().empty());
    EXPECT_TRUE(object.SetStage(0.3));
    EXPECT_EQ(object.GetFade(), 3u);
    SkyCanvas canvas(16, 16);
    Transformation view(canvas.GetDC(), TRect(0, 0, 16, 16), PolarCoord(0.0, 0.0), 90.0,
                        PolarCoord(0.0, 90.0));
    canvas.Parameters.pTransformation = &view;
    EXPECT_TRUE(object.GetDisplayRect(canvas.Parameters).IsEmpty());
    object.Draw(canvas.GetDC(), canvas.Parameters);
    EXPECT_EQ(canvas.IndexAt(0, 0), 0u);
}
