// The fade of a morphing object, as its picture's colours show it: grey levels taken from every
// colour, none going below 0, and stage 0 giving the colours back as they were found.
#include <gtest/gtest.h>

#include <memory>

#include "catalogues/MorphingObject.h"
#include "platform/TDib.h"

TEST(MorphingObject, AFadeTakesLevelsFromEveryColourStopsAtBlackAndStageZeroRestoresThem)
{
    auto dib = std::make_unique<TDib>(4, 4, 2);
    dib->SetColor(0, TColor(200, 7, 0));
    dib->SetColor(1, TColor(2, 3, 255));
    const TDib& picture = *dib;
    MorphingObject mark("mark", std::move(dib), DegreeAngle(1.0), 7,
                        AstroObject::ObjectType::OtherObject);

    struct Row
    {
        double Stage;
        bool Taken;
        TColor First;
        TColor Second;
    };
    // A new object starts fully faded, at stage 1: all 7 levels are taken.
    const Row rows[] = {
        {0.5, true, TColor(197, 4, 0), TColor(0, 0, 252)}, // 3 levels, 2 and 3 end at 0
        {1.5, false, TColor(197, 4, 0), TColor(0, 0, 252)},
        {-0.1, false, TColor(197, 4, 0), TColor(0, 0, 252)},
        {0.0, true, TColor(200, 7, 0), TColor(2, 3, 255)},
        {1.0, true, TColor(193, 0, 0), TColor(0, 0, 248)},
        {0.0, true, TColor(200, 7, 0), TColor(2, 3, 255)},
    };
    EXPECT_EQ(picture.GetColor(0), TColor(193, 0, 0));
    EXPECT_EQ(picture.GetColor(1), TColor(0, 0, 248));
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << "stage " << row.Stage);
        EXPECT_EQ(mark.SetStage(row.Stage), row.Taken);
        EXPECT_EQ(picture.GetColor(0), row.First);
        EXPECT_EQ(picture.GetColor(1), row.Second);
    }
}
