// The collector: which star file answers a view, when a request reloads what and when it
// keeps it, the order in which the catalogues fill the list, and the user's own stars.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "SkyObjectProbe.h"
#include "StarIndexTesting.h"
#include "catalogues/AstroItemCollector.h"
#include "catalogues/Messier.h"

namespace {

const AstroTime kNoon(1, 1, 2000, 12.0);
const AstroTime kOne(1, 1, 2000, 13.0);
using Listed = std::vector<std::string>;

class AstroItemCollectorTest : public ::testing::Test
{
protected:
    // A shallow file (faintest 6.5) and a deep one (faintest 9.0) that share star 10.
    void SetUp() override
    {
        StarFile(Dir, StarLine(10, 1.5, 10, 10, "Ten") + StarLine(11, 6.5, 12, 8), "shallow.bin");
        StarFile(Dir, StarLine(10, 1.5, 10, 10, "Ten") + StarLine(21, 9.0, 200, 10), "deep.bin");
        UseStarFiles("shallow.bin", "deep.bin");
    }
    // The profile names the two star files of the scratch directory, in this order.
    void UseStarFiles(const std::string& bright, const std::string& large)
    {
        Dir.WriteFile("orbiscope.ini", "[Orbiscope]\nBrightCat = " + Dir.File(bright) +
                                           "\nLargeStarCatalogueFile = " + Dir.File(large) + "\n");
        HostProfile().Reload();
    }
    // Answers the view round RA `ra`, Dec 10 into the list; false when nothing changed.
    bool Satisfy(AstroItemCollector& collector, double ra, double limit,
                 const AstroTime& time = kNoon, std::uint32_t set = AstroCatalogue::STARS,
                 bool force = false)
    {
        Request request(ScreenView(PolarCoord(ra, 10), 20.0), CatalogueSet(set), time, limit);
        request.SetForceReload(force);
        return collector.SatisfyRequest(request, List);
    }

    ScratchDirectory Dir;
    AstroList List{500, 1000};
};

} // namespace

TEST_F(AstroItemCollectorTest, ShallowestFileThatReachesTheLimitAnswers)
{
    // The files of the profile, the limit, the faintest magnitude of the file chosen (0 for
    // none; a missing file is reported), and the stars of the view.
    const std::tuple<const char*, const char*, double, double, Listed> rows[] = {
        {"shallow.bin", "deep.bin", 6.0, 6.5, {"Ten"}},
        {"shallow.bin", "deep.bin", 6.50005, 6.5, {"Ten", "SAO11"}}, // within 0.0001
        {"shallow.bin", "deep.bin", 6.5002, 9.0, {"Ten"}},
        {"shallow.bin", "deep.bin", 12.0, 9.0, {"Ten"}}, // none reaches: the nearest
        {"deep.bin", "shallow.bin", 6.0, 6.5, {"Ten"}},
        {"missing.bin", "deep.bin", 5.0, 9.0, {"Ten"}},
        {"missing.bin", "missing.bin", 5.0, 0.0, {}},
    };
    for (const auto& [bright, large, limit, chosen, shown] : rows) {
        SCOPED_TRACE(testing::Message() << bright << ", " << large << ": " << limit);
        UseStarFiles(bright, large);
        MessageCapture messages;
        AstroItemCollector collector;
        StarCatalogue* catalogue = collector.ChooseStarCatalogue(limit);
        EXPECT_EQ(catalogue ? catalogue->GetMaxMagnitude() : 0.0, chosen);
        EXPECT_EQ(messages.Contains("Could not open star file:"), bright[0] == 'm');
        EXPECT_EQ(Shown(collector, PolarCoord(10, 10), 20.0, AstroCatalogue::STARS, limit), shown);
    }
}

TEST_F(AstroItemCollectorTest, RequestReloadsOnlyWhatItChanges)
{
    AstroItemCollector collector;
    SkyObjectProbe moving(PolarCoord(11, 11), 2.0, true);
    SkyObjectProbe fixed(PolarCoord(13, 9), 2.0, false);
    SkyObjectProbe faint(PolarCoord(11, 12), 9.5, false);
    for (SkyObjectProbe* object : {&moving, &fixed, &faint}) {
        collector.AddObject(*object);
    }
    // The objects added that the view shows, bright enough, at their points; then the stars.
    ASSERT_TRUE(Satisfy(collector, 10, 9.0));
    const std::vector<AstroObject*> before(List.begin(), List.end());
    ASSERT_EQ(Names(List), (Listed{"", "", "Ten"}));
    EXPECT_EQ(List[0], &moving);
    TPoint expected;
    ScreenView(PolarCoord(10, 10), 20.0).Translate(fixed.GetPosition(), expected);
    EXPECT_EQ(fixed.GetDisplayPoint(), expected);

    // The same request again leaves the list as it is, even when someone else emptied it;
    // forcing a reload flushes what is there and fills the list anew.
    List.Flush();
    EXPECT_FALSE(Satisfy(collector, 10, 9.0));
    EXPECT_TRUE(List.IsEmpty());
    List.Add(&faint);
    EXPECT_TRUE(Satisfy(collector, 10, 9.0, kNoon, AstroCatalogue::STARS, true));
    EXPECT_EQ(std::vector<AstroObject*>(List.begin(), List.end()), before);

    // A new time keeps the same star object in its place, and what moves follows.
    EXPECT_TRUE(Satisfy(collector, 10, 9.0, kOne));
    EXPECT_EQ(std::vector<AstroObject*>(List.begin(), List.end()),
              (std::vector<AstroObject*>{&fixed, before[2], &moving}));

    // Another view, set of catalogues or limit, with another time, is a new answer: here,
    // whether it shows star 21.
    const std::tuple<double, double, const AstroTime*, std::uint32_t, bool> rows[] = {
        {200, 9.0, &kNoon, AstroCatalogue::STARS, true},
        {200, 9.0, &kOne, AstroCatalogue::PLANETS, false},
        {200, 9.0, &kNoon, AstroCatalogue::STARS, true},
        {200, 8.0, &kOne, AstroCatalogue::STARS, false},
    };
    for (const auto& [ra, limit, time, set, shown] : rows) {
        EXPECT_TRUE(Satisfy(collector, ra, limit, *time, set));
        const Listed names = Names(List);
        EXPECT_EQ(std::count(names.begin(), names.end(), "SAO21"), shown ? 1 : 0) << limit << set;
    }
}

TEST_F(AstroItemCollectorTest, CataloguesFillTheListInDrawingOrderAndTimeRenewsOnlyWhatMoves)
{
    // The shipped catalogues over the northern sky: stars (0), constellations (1), the bodies
    // of the solar system (2), Messier objects (3), comets (4). At a new time the fixed objects
    // stay in front and what moves follows them, each object once as before.
    ConstellationCatalogue::FlushNameInfo();
    AstroItemCollector collector;
    std::vector<int> ranks[2];
    for (int later = 0; later < 2; ++later) {
        Request request(ScreenView(PolarCoord(0, 90), 90.0), CatalogueSet(0x1F), // all five
                        later ? kOne : kNoon, 9.0);
        ASSERT_TRUE(collector.SatisfyRequest(request, List));
        for (const AstroObject* object : List) {
            const AstroObject::ObjectType type = object->GetType();
            const int rank = dynamic_cast<const Star*>(object)                ? 0
                             : type == AstroObject::ObjectType::Constellation ? 1
                             : dynamic_cast<const Messier*>(object)           ? 3
                             : type == AstroObject::ObjectType::Comet         ? 4
                                                                              : 2;
            ranks[later].push_back(later && (rank == 2 || rank == 4) ? rank + 10 : rank);
        }
        EXPECT_TRUE(std::is_sorted(ranks[later].begin(), ranks[later].end())) << later;
        EXPECT_GT(std::count(ranks[later].begin(), ranks[later].end(), 1), 20) << later;
        EXPECT_GT(std::count(ranks[later].begin(), ranks[later].end(), 3), 10) << later;
    }
    EXPECT_EQ(ranks[1].size(), ranks[0].size());
    ConstellationCatalogue::FlushNameInfo();
}

TEST_F(AstroItemCollectorTest, UserCatalogueServesEveryRequestAndIsSearchedFirst)
{
    AstroItemCollector collector;
    // Lookups by number read the small file before the large one.
    EXPECT_EQ(std::unique_ptr<Star>(collector.GetStarFromSAONumber(10))->GetListName(), "Ten");
    EXPECT_EQ(collector.GetStarCatalogues()[1]->GetSegments().GetLoadedCount(), 0);
    ASSERT_TRUE(Satisfy(collector, 10, 9.0));
    List.Flush(); // the user's stars go with their catalogue
    ASSERT_TRUE(collector.LoadStars(*Dir.Open("user.txt", StarLine(10, 4.0, 11, 9))));
    // The same request as before is answered again, from the user's stars, at any limit; they
    // are found first, and what they lack comes from the files.
    EXPECT_TRUE(Satisfy(collector, 10, 9.0));
    EXPECT_EQ(Names(List), (Listed{"SAO10"}));
    EXPECT_EQ(collector.ChooseStarCatalogue(1.0), collector.GetUserCatalogue());
    EXPECT_EQ(std::unique_ptr<Star>(collector.GetStarFromSAONumber(10))->GetMagnitude(), 4.0);
    EXPECT_EQ(std::unique_ptr<Star>(collector.GetStarFromSAONumber(21))->GetMagnitude(), 9.0);
    // A star file loaded by the user takes the place of the text, and is written back whole.
    EXPECT_TRUE(collector.LoadStarsFromBinaryFile(Dir.File("deep.bin")));
    EXPECT_EQ(Shown(collector, PolarCoord(10, 10), 20.0, AstroCatalogue::STARS, 2.0),
              (Listed{"Ten"}));
    ASSERT_TRUE(collector.DumpStarsBinary(Dir.File("out.bin")));
    EXPECT_EQ(Dir.ReadFile("out.bin"), Dir.ReadFile("deep.bin"));
}
