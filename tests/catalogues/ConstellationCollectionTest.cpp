// The collector and the constellations: they are asked only when the request wants them,
// come after the stars and before the planets, and stay in the list once when only the time
// changes.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ConstellationTesting.h"
#include "catalogues/AstroItemCollector.h"
#include "catalogues/AstroList.h"

namespace {

const AstroTime kNoon(1, 1, 2000, 12.0);
const AstroTime kLater(1, 1, 2000, 13.0);

class ConstellationCollectionTest : public ConstellationFilesTest
{
protected:
    void SetUp() override
    {
        ConstellationFilesTest::SetUp();
        const std::string stars =
            StarFile(*pDir, {StarLine(113271, 0.5, 88.79, 7.41, "Betelgeuse")}, "stars.bin");
        pDir->WriteText("orbiscope.ini", "[Orbiscope]\n"
                                         "BrightCat = " +
                                             stars +
                                             "\n"
                                             "LargeStarCatalogueFile = " +
                                             stars +
                                             "\n"
                                             "ConstellationNameFile = " +
                                             pDir->File("names.txt") +
                                             "\n"
                                             "ConstNodeFile = " +
                                             pDir->File("figures.txt") +
                                             "\n"
                                             "ConstCenterFile = " +
                                             pDir->File("centres.txt") + "\n");
        WriteFile("names.txt", kFiveNames);
        WriteFile("figures.txt", "Ori,88.79,7.41,81.28,6.35\nUMi,37.95,89.26,263.05,86.59\n");
        HostProfile().Reload();
        pCollector = std::make_unique<AstroItemCollector>();
    }
    void TearDown() override
    {
        pCollector.reset();
        ConstellationFilesTest::TearDown();
    }

    // The types of the listed objects, in order.
    std::vector<AstroObject::ObjectType> Satisfy(std::uint32_t catalogues,
                                                 const AstroTime& time = kNoon)
    {
        Request request(Screen.View(PolarCoord(85.0, 5.0), 20.0), CatalogueSet(catalogues), time,
                        6.0);
        pCollector->SatisfyRequest(request, List);
        std::vector<AstroObject::ObjectType> types;
        for (AstroObject* object : List) {
            types.push_back(object->GetType());
        }
        return types;
    }

    TestScreen Screen;
    std::unique_ptr<AstroItemCollector> pCollector;
    AstroList List{100, 100};
};

using Type = AstroObject::ObjectType;

} // namespace

TEST_F(ConstellationCollectionTest, ConstellationsComeOnlyWhenAskedAndAfterTheStars)
{
    EXPECT_EQ(Satisfy(AstroCatalogue::STARS), (std::vector<Type>{Type::Star}));
    EXPECT_FALSE(pCollector->GetConstellationCatalogue().IsLoaded());

    EXPECT_EQ(Satisfy(AstroCatalogue::STARS | AstroCatalogue::CONSTELLATIONS),
              (std::vector<Type>{Type::Star, Type::Constellation}));
    EXPECT_EQ(static_cast<Constellation*>(List[1])->GetName(), "Orion");
    EXPECT_TRUE(pCollector->GetConstellationCatalogue().IsLoaded());
}

TEST_F(ConstellationCollectionTest, AChangeOfTimeAloneKeepsTheConstellationsOnceAndInFront)
{
    const std::uint32_t all =
        AstroCatalogue::STARS | AstroCatalogue::CONSTELLATIONS | AstroCatalogue::PLANETS;
    const std::vector<Type> first = Satisfy(all);
    ASSERT_GE(first.size(), 2u);
    EXPECT_EQ(first[0], Type::Star);
    EXPECT_EQ(first[1], Type::Constellation);

    const std::vector<Type> later = Satisfy(all, kLater);
    EXPECT_EQ(std::count(later.begin(), later.end(), Type::Constellation), 1);
    EXPECT_EQ(later[1], Type::Constellation);
    EXPECT_EQ(later.size(), first.size());
}
