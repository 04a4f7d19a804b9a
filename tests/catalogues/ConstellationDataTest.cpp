// The shipped constellation files, read through the shipped profile: what a user would miss if
// one of them were wrong.
#include <gtest/gtest.h>

#include <algorithm>

#include "StarIndexTesting.h"
#include "catalogues/ConstellationCatalogue.h"

TEST(ConstellationDataTest, EachOfThe88HasAFigureABoundaryAndItsNameWithinIt)
{
    ScratchDirectory home; // the shipped profile alone
    ConstellationCatalogue::FlushNameInfo();
    ConstellationCatalogue catalogue;
    catalogue.UseSettings(ConstellationSettings(true, true, true));
    catalogue.Load();
    std::vector<Constellation*> all;
    catalogue.GetConstellations(all);
    ASSERT_EQ(all.size(), 88u);
    EXPECT_TRUE(catalogue.IsCenterLoaded());
    for (const Constellation* c : all) {
        SCOPED_TRACE(c->GetName());
        EXPECT_EQ(c->GetAbbreviation().size(), 3u);
        EXPECT_GE(c->GetFigurePoints().size(), 2u);
        EXPECT_GE(c->GetBoundaryPoints().size(), 4u);
        EXPECT_TRUE(c->GetBoundaryRange().Contains(c->GetCenter()));
        EXPECT_TRUE(c->GetBoundaryRange().Contains(c->GetLabelPosition()));
    }
    // Betelgeuse and Rigel (Hipparcos, J2000) end lines of Orion's figure, within its
    // boundary; Polaris ends a line of the Little Bear's.
    auto endsALine = [](const Constellation& c, const PolarCoord& star) {
        return std::any_of(
            c.GetFigurePoints().begin(), c.GetFigurePoints().end(), [&](const PolarCoord& p) {
                return std::fabs(p.GetRA().GetDegrees() - star.GetRA().GetDegrees()) < 0.01 &&
                       std::fabs(p.GetDec().GetDegrees() - star.GetDec().GetDegrees()) < 0.01;
            });
    };
    const Constellation& orion = *catalogue.GetConstellation("Orion", false);
    for (const PolarCoord& star : {PolarCoord(88.7929, 7.4071), PolarCoord(78.6345, -8.2016)}) {
        EXPECT_TRUE(endsALine(orion, star)) << star.GetDescription();
        EXPECT_TRUE(orion.GetBoundaryRange().Contains(star)) << star.GetDescription();
    }
    EXPECT_FALSE(orion.GetBoundaryRange().Contains(PolarCoord(88.7929, 30.0)));
    EXPECT_TRUE(endsALine(*catalogue.GetConstellation("UMi", true), PolarCoord(37.9546, 89.2641)));
    ConstellationCatalogue::FlushNameInfo();
}
