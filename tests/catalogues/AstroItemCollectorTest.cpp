#include <gtest/gtest.h>

#include <memory>

#include "StarIndexTesting.h"
#include "catalogues/AstroItemCollector.h"
#include "catalogues/AstroList.h"
#include "catalogues/Star.h"
#include "host/HostProf.h"

namespace {

const AstroTime kNoon(1, 1, 2000, 12.0);

// An object from outside the catalogues, standing where it is put.
class PlacedObject : public AstroObject
{
public:
    PlacedObject(const PolarCoord& position, double magnitude, bool timeDependent)
        : AstroObject(timeDependent ? ObjectType::Planet : ObjectType::OtherObject),
          Position(position), Magnitude(magnitude), bTimeDependent(timeDependent)
    {}

    PolarCoord GetPosition() const override { return Position; }
    double GetMagnitude() const override { return Magnitude; }
    const TPoint& GetDisplayPoint() const override { return Point; }
    void SetDisplayPoint(const TPoint& point) override { Point = point; }
    bool IsTimeDependent() const override { return bTimeDependent; }
    void Draw(TDC&, DisplayParameters&) override {}

private:
    PolarCoord Position;
    double Magnitude;
    bool bTimeDependent;
    TPoint Point;
};

// A shallow catalogue (faintest 6.5) and a deep one (faintest 9.0) that share star 10.
const std::vector<std::string> kShallow = {StarLine(10, 1.5, 10.0, 10.0, "Ten"),
                                           StarLine(11, 6.5, 12.0, 8.0)};
const std::vector<std::string> kDeep = {StarLine(10, 1.5, 10.0, 10.0, "Ten"),
                                        StarLine(20, 8.0, 14.0, 12.0),
                                        StarLine(21, 9.0, 200.0, -40.0)};

class AstroItemCollectorTest : public ::testing::Test
{
protected:
    // The profile of the scratch directory names the two star files, in this order.
    static void UseStarFiles(const ScratchDirectory& dir, const std::string& bright,
                             const std::string& large)
    {
        dir.WriteText("orbiscope.ini", "[Orbiscope]\nBrightCat = " + bright +
                                           "\nLargeStarCatalogueFile = " + large + "\n");
        // The collector's comets read the shared profile when it was made.
        HostProfile().Reload();
    }
    void SetUp() override
    {
        UseStarFiles(Dir, StarFile(Dir, kShallow, "shallow.bin"), StarFile(Dir, kDeep, "deep.bin"));
    }

    Request Make(double dec, double limit, const AstroTime& time = kNoon,
                 std::uint32_t set = AstroCatalogue::STARS)
    {
        return Request(Screen.View(PolarCoord(12, dec), 20.0), CatalogueSet(set), time, limit);
    }
    bool Satisfy(Request request) { return Collector.SatisfyRequest(request, List); }

    // The SAO numbers of the stars in the list, in order.
    std::vector<std::uint32_t> Stars() const
    {
        std::vector<std::uint32_t> numbers;
        for (AstroObject* object : List) {
            if (object->GetType() == AstroObject::ObjectType::Star) {
                numbers.push_back(static_cast<Star*>(object)->GetSAONumber());
            }
        }
        return numbers;
    }
    void LoadUserText(const std::string& lines)
    {
        Dir.WriteText("user.txt", lines);
        TextFile text;
        ASSERT_TRUE(text.OpenForReading(Dir.File("user.txt").c_str()));
        List.Flush(); // the old user stars go with their catalogue
        EXPECT_TRUE(Collector.LoadStars(text));
    }

    ScratchDirectory Dir;
    TestScreen Screen;
    AstroItemCollector Collector;
    AstroList List{500, 1000};
};

} // namespace

TEST_F(AstroItemCollectorTest, ShallowestCatalogueThatReachesTheLimitIsChosen)
{
    EXPECT_TRUE(Collector.GetStarCatalogues().empty()); // nothing opened before it is needed
    StarCatalogue* shallow = Collector.ChooseStarCatalogue(6.0);
    ASSERT_EQ(Collector.GetStarCatalogues().size(), 2u);
    StarCatalogue* deep = Collector.GetStarCatalogues()[1];
    EXPECT_EQ(shallow, Collector.GetStarCatalogues()[0]);
    EXPECT_EQ(shallow->GetMaxMagnitude(), 6.5);
    EXPECT_EQ(deep->GetMaxMagnitude(), 9.0);

    EXPECT_EQ(Collector.ChooseStarCatalogue(6.5), shallow);
    EXPECT_EQ(Collector.ChooseStarCatalogue(6.50005), shallow); // within 0.0001
    EXPECT_EQ(Collector.ChooseStarCatalogue(6.5002), deep);
    EXPECT_EQ(Collector.ChooseStarCatalogue(7.0), deep);
    EXPECT_EQ(Collector.ChooseStarCatalogue(12.0), deep); // none reaches: the nearest
    EXPECT_EQ(Collector.GetStarCatalogue(), shallow);

    // Requests take their stars from the choice and keep it.
    Request bright = Make(10, 6.0);
    EXPECT_TRUE(Collector.SatisfyRequest(bright, List));
    EXPECT_EQ(Stars(), (std::vector<std::uint32_t>{10}));
    EXPECT_EQ(bright.GetStarCatalogue(), shallow);
    Request faint = Make(10, 9.0);
    EXPECT_TRUE(Collector.SatisfyRequest(faint, List));
    EXPECT_EQ(Stars(), (std::vector<std::uint32_t>{10, 20}));
    EXPECT_EQ(faint.GetStarCatalogue(), deep);
    // A request for the planets alone lists no star, only bodies that move.
    EXPECT_TRUE(Satisfy(Make(10, 9.0, kNoon, AstroCatalogue::PLANETS)));
    EXPECT_TRUE(Stars().empty());
    for (AstroObject* object : List) {
        EXPECT_TRUE(object->IsTimeDependent());
    }
}

TEST_F(AstroItemCollectorTest, PlanetsAndCometsFollowTheStarsAndAreSeenFromTheEarth)
{
    ASSERT_NE(Collector.GetOrigin(), nullptr);
    EXPECT_EQ(Collector.GetOrigin(),
              Collector.GetPlanetCatalogue().GetSolarSystemObject(PlanetCatalogue::kEarthPlace));

    // The whole sky: every body but the Earth, then both built-in comets, after the stars.
    Request everything(
        Screen.View(PolarCoord(0, 90), 90.0),
        CatalogueSet(AstroCatalogue::STARS | AstroCatalogue::PLANETS | AstroCatalogue::COMETS),
        kNoon, 9.0);
    Request south(Screen.View(PolarCoord(0, -90), 90.0), everything.GetCatalogues(), kNoon, 9.0);
    std::size_t bodies = 0;
    for (Request* request : {&everything, &south}) {
        List.Flush();
        ASSERT_TRUE(Collector.SatisfyRequest(*request, List));
        bool movingSeen = false;
        for (AstroObject* object : List) {
            if (object->IsTimeDependent()) {
                movingSeen = true;
                ++bodies;
            } else {
                EXPECT_FALSE(movingSeen) << "a star after a moving body";
            }
        }
    }
    // Ten bodies and two comets, each in one of the two hemispheres (or on the equator).
    EXPECT_GE(bodies, 12u);
}

TEST_F(AstroItemCollectorTest, ChoiceIgnoresTheOrderOfTheFilesAndFilesThatAreMissing)
{
    ScratchDirectory reversed;
    UseStarFiles(reversed, Dir.File("deep.bin"), Dir.File("shallow.bin"));
    AstroItemCollector collector;
    EXPECT_EQ(collector.ChooseStarCatalogue(6.0)->GetMaxMagnitude(), 6.5);
    EXPECT_EQ(collector.ChooseStarCatalogue(12.0)->GetMaxMagnitude(), 9.0);

    // Two catalogues at exactly the limit: the first keeps it.
    ScratchDirectory twins;
    UseStarFiles(twins, Dir.File("shallow.bin"), Dir.File("shallow.bin"));
    AstroItemCollector twin;
    StarCatalogue* chosen = twin.ChooseStarCatalogue(6.5);
    ASSERT_EQ(twin.GetStarCatalogues().size(), 2u);
    EXPECT_EQ(chosen, twin.GetStarCatalogues()[0]);

    MessageCapture messages;
    ScratchDirectory half;
    UseStarFiles(half, half.File("missing.bin"), Dir.File("deep.bin"));
    AstroItemCollector halfCollector;
    EXPECT_EQ(halfCollector.ChooseStarCatalogue(5.0)->GetMaxMagnitude(), 9.0);
    EXPECT_TRUE(messages.Contains("Could not open star file:"));

    // With no star file at all the map still gets its answer, without stars.
    ScratchDirectory none;
    UseStarFiles(none, none.File("a.bin"), none.File("b.bin"));
    AstroItemCollector noneCollector;
    Request request = Make(10, 6.0);
    EXPECT_TRUE(noneCollector.SatisfyRequest(request, List));
    EXPECT_TRUE(List.IsEmpty());
    EXPECT_EQ(noneCollector.GetStarFromSAONumber(10), nullptr);
}

TEST_F(AstroItemCollectorTest, RequestEqualToTheLastChangesNothingUnlessForced)
{
    ASSERT_TRUE(Satisfy(Make(10, 9.0)));
    ASSERT_EQ(List.GetCount(), 2u);
    // Someone else emptied the list: an equal request still leaves it as it is.
    List.Flush();
    EXPECT_FALSE(Satisfy(Make(10, 9.0)));
    EXPECT_TRUE(List.IsEmpty());

    // Forcing a reload flushes what is there and fills the list anew.
    PlacedObject stranger(PolarCoord(0, 0), 0.0, false);
    List.Add(&stranger);
    Request forced = Make(10, 9.0);
    forced.SetForceReload(true);
    EXPECT_TRUE(Satisfy(forced));
    EXPECT_EQ(Stars(), (std::vector<std::uint32_t>{10, 20}));
    EXPECT_EQ(List.GetCount(), 2u);
}

TEST_F(AstroItemCollectorTest, NewTimeKeepsTheStarsAndRenewsWhatMoves)
{
    PlacedObject moving(PolarCoord(11, 11), 2.0, true);
    PlacedObject fixed(PolarCoord(13, 9), 2.0, false);
    Collector.AddObject(moving);
    Collector.AddObject(fixed);
    ASSERT_TRUE(Satisfy(Make(10, 9.0)));
    std::vector<AstroObject*> before(List.begin(), List.end());
    ASSERT_EQ(before.size(), 4u);
    EXPECT_EQ(before[0], &moving);
    EXPECT_EQ(before[1], &fixed);

    Request later = Make(10, 9.0, AstroTime(1, 1, 2000, 13.0));
    EXPECT_TRUE(Collector.SatisfyRequest(later, List));
    // The same star objects in the same places; what moves follows them. No star catalogue
    // was asked.
    EXPECT_EQ(std::vector<AstroObject*>(List.begin(), List.end()),
              (std::vector<AstroObject*>{&fixed, before[2], before[3], &moving}));
    EXPECT_EQ(later.GetStarCatalogue(), nullptr);
}

TEST_F(AstroItemCollectorTest, AddedObjectsComeFirstWhenTheViewShowsThem)
{
    PlacedObject inView(PolarCoord(11, 11), 2.0, false);
    PlacedObject faint(PolarCoord(11, 12), 9.5, false);
    PlacedObject elsewhere(PolarCoord(180, -50), 1.0, false);
    PlacedObject stranger(PolarCoord(11, 11), 1.0, false);
    Collector.AddObject(inView);
    Collector.AddObject(faint);
    Collector.AddObject(elsewhere);
    Request request = Make(10, 9.0);
    ASSERT_TRUE(Collector.SatisfyRequest(request, List));
    ASSERT_EQ(List.GetCount(), 3u);
    EXPECT_EQ(List[0], &inView);
    TPoint expected;
    request.GetView().Translate(inView.GetPosition(), expected);
    EXPECT_EQ(inView.GetDisplayPoint(), expected);
    EXPECT_EQ(Collector.GetAddedObjects().size(), 3u);

    Collector.RemoveAddedObject(stranger);
    EXPECT_EQ(Collector.GetAddedObjects().size(), 3u);
    Collector.RemoveAddedObject(inView);
    EXPECT_EQ(Collector.GetAddedObjects(), (std::vector<AstroObject*>{&faint, &elsewhere}));
    ASSERT_TRUE(Satisfy(Make(10.5, 9.0)));
    EXPECT_EQ(List.GetCount(), 2u);
}

TEST_F(AstroItemCollectorTest, UserCatalogueServesEveryRequest)
{
    ASSERT_TRUE(Satisfy(Make(10, 9.0)));
    LoadUserText(StarLine(500, 3.0, 11.0, 9.0) + "\n" + StarLine(501, 11.0, 13, 11) + "\n");
    StarCatalogue* mine = Collector.GetUserCatalogue();
    ASSERT_NE(mine, nullptr);
    // The same request as before is answered again, from the user's stars, at any limit.
    EXPECT_TRUE(Satisfy(Make(10, 9.0)));
    EXPECT_EQ(Stars(), (std::vector<std::uint32_t>{500}));
    EXPECT_EQ(Collector.ChooseStarCatalogue(1.0), mine);
    EXPECT_EQ(Collector.GetStarCatalogue(), mine);

    // A second text replaces the first; a star file joins beside it.
    LoadUserText(StarLine(600, 2.0, 12.0, 10.0));
    EXPECT_EQ(Collector.GetStarCatalogues().size(), 3u); // two files, one user catalogue
    EXPECT_TRUE(Satisfy(Make(10, 9.0)));
    EXPECT_EQ(Stars(), (std::vector<std::uint32_t>{600}));
    List.Flush();
    EXPECT_TRUE(Collector.LoadStarsFromBinaryFile(Dir.File("deep.bin")));
    EXPECT_EQ(Collector.GetStarCatalogues().size(), 4u);
    EXPECT_TRUE(Satisfy(Make(10, 2.0)));
    EXPECT_EQ(Stars(), (std::vector<std::uint32_t>{10}));
}

TEST_F(AstroItemCollectorTest, LookupByNumberTriesTheUserTheSmallThenTheLargeFile)
{
    Star* ten = Collector.GetStarFromSAONumber(10);
    ASSERT_NE(ten, nullptr);
    EXPECT_EQ(ten->GetListName(), "Ten");
    EXPECT_EQ(ten->GetReferenceCount(), 1);
    ten->ReleaseReference();
    EXPECT_TRUE(Resident(Collector.GetStarCatalogues()[1]->GetSegments()).empty());
    EXPECT_EQ(Collector.GetStarFromSAONumber(12345), nullptr);

    LoadUserText(StarLine(10, 4.0, 50.0, 50.0));
    std::unique_ptr<Star> mine(Collector.GetStarFromSAONumber(10));
    ASSERT_NE(mine, nullptr);
    EXPECT_EQ(mine->GetMagnitude(), 4.0);
    std::unique_ptr<Star> deepOnly(Collector.GetStarFromSAONumber(21));
    ASSERT_NE(deepOnly, nullptr);
    EXPECT_EQ(deepOnly->GetMagnitude(), 9.0);
}

TEST_F(AstroItemCollectorTest, DumpsWriteTheUserAndTheLookupCatalogue)
{
    // Text: the catalogue of magnitude 5, the shallow one.
    ASSERT_TRUE(Collector.DumpStarsText(Dir.File("out.txt")));
    TextFile text;
    ASSERT_TRUE(text.OpenForReading(Dir.File("out.txt").c_str()));
    StarCatalogue again;
    ASSERT_TRUE(again.LoadStars(text));
    EXPECT_EQ(again.GetMaxMagnitude(), 6.5);

    // Binary: only a user's catalogue.
    EXPECT_FALSE(Collector.DumpStarsBinary(Dir.File("out.bin")));
    EXPECT_TRUE(Dir.ReadBytes("out.bin").empty());
    std::string deepText;
    for (const std::string& line : kDeep) {
        deepText += line + "\n";
    }
    LoadUserText(deepText);
    ASSERT_TRUE(Collector.DumpStarsBinary(Dir.File("out.bin")));
    EXPECT_EQ(Dir.ReadBytes("out.bin"), Dir.ReadBytes("deep.bin"));
}
