#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <set>

#include "StarIndexTesting.h"
#include "catalogues/AstroItemCollector.h"
#include "catalogues/AstroList.h"
#include "catalogues/Star.h"
#include "host/HostProf.h"
#include "solar/SolarSystemObject.h"

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
    // The profile names the two star files, in the order given.
    void UseStarFiles(const std::string& bright, const std::string& large)
    {
        Dir.WriteText("orbiscope.ini", "[Orbiscope]\nBrightCat = " + bright +
                                           "\nLargeStarCatalogueFile = " + large + "\n");
    }
    void UseShallowAndDeep()
    {
        UseStarFiles(StarFile(Dir, kShallow, "shallow.bin"), StarFile(Dir, kDeep, "deep.bin"));
    }

    Request Make(const PolarCoord& centre, double radius, double limit,
                 const AstroTime& time = kNoon, std::uint32_t set = AstroCatalogue::STARS)
    {
        return Request(Screen.View(centre, radius), CatalogueSet(set), time, limit);
    }

    // The SAO numbers of the stars in a list, in order.
    static std::vector<std::uint32_t> Stars(const AstroList& list)
    {
        std::vector<std::uint32_t> numbers;
        for (AstroObject* object : list) {
            if (object->GetType() == AstroObject::ObjectType::Star) {
                numbers.push_back(static_cast<Star*>(object)->GetSAONumber());
            }
        }
        return numbers;
    }

    ScratchDirectory Dir;
    TestScreen Screen;
    AstroList List{500, 1000};
};

} // namespace

TEST_F(AstroItemCollectorTest, ShallowestCatalogueThatReachesTheLimitIsChosen)
{
    UseShallowAndDeep();
    AstroItemCollector collector;
    ASSERT_EQ(collector.GetStarCatalogues().size(), 0u); // nothing opened before it is needed
    StarCatalogue* shallow = collector.ChooseStarCatalogue(6.0);
    ASSERT_EQ(collector.GetStarCatalogues().size(), 2u);
    EXPECT_EQ(shallow, collector.GetStarCatalogues()[0]);
    StarCatalogue* deep = collector.GetStarCatalogues()[1];
    EXPECT_EQ(shallow->GetMaxMagnitude(), 6.5);
    EXPECT_EQ(deep->GetMaxMagnitude(), 9.0);

    EXPECT_EQ(collector.ChooseStarCatalogue(3.0), shallow);
    EXPECT_EQ(collector.ChooseStarCatalogue(6.5), shallow);
    EXPECT_EQ(collector.ChooseStarCatalogue(6.50005), shallow); // within 0.0001
    EXPECT_EQ(collector.ChooseStarCatalogue(6.5002), deep);
    EXPECT_EQ(collector.ChooseStarCatalogue(7.0), deep);
    EXPECT_EQ(collector.ChooseStarCatalogue(12.0), deep); // none reaches: the nearest
    EXPECT_EQ(collector.GetStarCatalogue(), shallow);
}

TEST_F(AstroItemCollectorTest, ChoiceDoesNotDependOnTheOrderOfTheFiles)
{
    UseStarFiles(StarFile(Dir, kDeep, "deep.bin"), StarFile(Dir, kShallow, "shallow.bin"));
    AstroItemCollector collector;
    StarCatalogue* shallow = collector.ChooseStarCatalogue(6.0);
    ASSERT_NE(shallow, nullptr);
    EXPECT_EQ(shallow->GetMaxMagnitude(), 6.5);
    EXPECT_EQ(collector.ChooseStarCatalogue(12.0)->GetMaxMagnitude(), 9.0);

    // Two catalogues at exactly the limit: the first keeps it.
    ScratchDirectory other;
    std::string a = StarFile(other, kShallow, "a.bin");
    std::string b = StarFile(other, kShallow, "b.bin");
    other.WriteText("orbiscope.ini",
                    "[Orbiscope]\nBrightCat = " + a + "\nLargeStarCatalogueFile = " + b + "\n");
    AstroItemCollector twins;
    StarCatalogue* chosen = twins.ChooseStarCatalogue(6.5);
    ASSERT_EQ(twins.GetStarCatalogues().size(), 2u);
    EXPECT_EQ(chosen, twins.GetStarCatalogues()[0]);
}

TEST_F(AstroItemCollectorTest, FileThatCannotBeOpenedIsNeverChosen)
{
    MessageCapture messages;
    UseStarFiles(Dir.File("missing.bin"), StarFile(Dir, kDeep, "deep.bin"));
    AstroItemCollector collector;
    StarCatalogue* chosen = collector.ChooseStarCatalogue(5.0);
    ASSERT_NE(chosen, nullptr);
    EXPECT_EQ(chosen->GetMaxMagnitude(), 9.0);
    EXPECT_TRUE(messages.Contains("Could not open star file:"));

    // With no star file at all the map still gets its answer, without stars.
    ScratchDirectory empty;
    empty.WriteText("orbiscope.ini", "[Orbiscope]\nBrightCat = " + empty.File("a.bin") +
                                         "\nLargeStarCatalogueFile = " + empty.File("b.bin") +
                                         "\n");
    AstroItemCollector none;
    Request request = Make(PolarCoord(10, 10), 20.0, 6.0);
    EXPECT_TRUE(none.SatisfyRequest(request, List));
    EXPECT_TRUE(List.IsEmpty());
    EXPECT_EQ(none.GetStarFromSAONumber(10), nullptr);
}

TEST_F(AstroItemCollectorTest, RequestsTakeTheirStarsFromTheChosenCatalogue)
{
    UseShallowAndDeep();
    AstroItemCollector collector;
    Request bright = Make(PolarCoord(12, 10), 20.0, 6.0);
    EXPECT_TRUE(collector.SatisfyRequest(bright, List));
    EXPECT_EQ(Stars(List), (std::vector<std::uint32_t>{10}));
    EXPECT_EQ(bright.GetStarCatalogue(), collector.GetStarCatalogues()[0]);

    Request deep = Make(PolarCoord(12, 10), 20.0, 9.0);
    EXPECT_TRUE(collector.SatisfyRequest(deep, List));
    EXPECT_EQ(Stars(List), (std::vector<std::uint32_t>{10, 20}));
    EXPECT_EQ(deep.GetStarCatalogue(), collector.GetStarCatalogues()[1]);

    // A request without stars lists none.
    Request planetsOnly = Make(PolarCoord(12, 10), 20.0, 9.0, kNoon, AstroCatalogue::PLANETS);
    EXPECT_TRUE(collector.SatisfyRequest(planetsOnly, List));
    EXPECT_TRUE(List.IsEmpty());
}

TEST_F(AstroItemCollectorTest, RequestEqualToTheLastChangesNothing)
{
    UseShallowAndDeep();
    AstroItemCollector collector;
    Request first = Make(PolarCoord(12, 10), 20.0, 9.0);
    ASSERT_TRUE(collector.SatisfyRequest(first, List));
    ASSERT_EQ(List.GetCount(), 2u);

    // Someone else emptied the list: an equal request still leaves it as it is.
    List.Flush();
    Request again = Make(PolarCoord(12, 10), 20.0, 9.0);
    EXPECT_FALSE(collector.SatisfyRequest(again, List));
    EXPECT_TRUE(List.IsEmpty());

    // Forcing a reload fills it anew, and flushes what was there.
    PlacedObject stranger(PolarCoord(0, 0), 0.0, false);
    List.Add(&stranger);
    Request forced = Make(PolarCoord(12, 10), 20.0, 9.0);
    forced.SetForceReload(true);
    EXPECT_TRUE(collector.SatisfyRequest(forced, List));
    EXPECT_EQ(Stars(List), (std::vector<std::uint32_t>{10, 20}));
    EXPECT_EQ(List.GetCount(), 2u);
}

TEST_F(AstroItemCollectorTest, NewTimeKeepsTheStarsAndRenewsWhatMoves)
{
    UseShallowAndDeep();
    AstroItemCollector collector;
    PlacedObject moving(PolarCoord(11, 11), 2.0, true);
    PlacedObject fixed(PolarCoord(13, 9), 2.0, false);
    collector.AddObject(moving);
    collector.AddObject(fixed);

    Request first = Make(PolarCoord(12, 10), 20.0, 9.0);
    ASSERT_TRUE(collector.SatisfyRequest(first, List));
    std::vector<AstroObject*> before(List.begin(), List.end());
    ASSERT_EQ(before.size(), 4u);
    EXPECT_EQ(before[0], &moving);
    EXPECT_EQ(before[1], &fixed);

    Request later = Make(PolarCoord(12, 10), 20.0, 9.0, AstroTime(1, 1, 2000, 13.0));
    EXPECT_TRUE(collector.SatisfyRequest(later, List));
    std::vector<AstroObject*> after(List.begin(), List.end());
    // The same star objects in the same places; what moves follows them.
    ASSERT_EQ(after.size(), 4u);
    EXPECT_EQ(after[0], &fixed);
    EXPECT_EQ(after[1], before[2]);
    EXPECT_EQ(after[2], before[3]);
    EXPECT_EQ(after[3], &moving);
    // No catalogue was asked: the time-only request chose none.
    EXPECT_EQ(later.GetStarCatalogue(), nullptr);
}

TEST_F(AstroItemCollectorTest, AddedObjectsComeFirstWhenTheViewShowsThem)
{
    UseShallowAndDeep();
    AstroItemCollector collector;
    PlacedObject inView(PolarCoord(11, 11), 2.0, false);
    PlacedObject faint(PolarCoord(11, 12), 9.5, false);
    PlacedObject elsewhere(PolarCoord(180, -50), 1.0, false);
    PlacedObject stranger(PolarCoord(11, 11), 1.0, false);
    collector.AddObject(inView);
    collector.AddObject(faint);
    collector.AddObject(elsewhere);

    Request request = Make(PolarCoord(12, 10), 20.0, 9.0);
    ASSERT_TRUE(collector.SatisfyRequest(request, List));
    ASSERT_EQ(List.GetCount(), 3u);
    EXPECT_EQ(List[0], &inView);
    TPoint expected;
    request.GetView().Translate(inView.GetPosition(), expected);
    EXPECT_EQ(inView.GetDisplayPoint(), expected);
    EXPECT_EQ(collector.GetAddedObjects().size(), 3u);

    collector.RemoveAddedObject(stranger);
    EXPECT_EQ(collector.GetAddedObjects().size(), 3u);
    collector.RemoveAddedObject(inView);
    EXPECT_EQ(collector.GetAddedObjects(), (std::vector<AstroObject*>{&faint, &elsewhere}));
    Request next = Make(PolarCoord(12, 10.5), 20.0, 9.0);
    ASSERT_TRUE(collector.SatisfyRequest(next, List));
    EXPECT_EQ(Stars(List), (std::vector<std::uint32_t>{10, 20}));
    EXPECT_EQ(List.GetCount(), 2u);
}

TEST_F(AstroItemCollectorTest, UserCatalogueServesEveryRequest)
{
    UseShallowAndDeep();
    AstroItemCollector collector;
    Request before = Make(PolarCoord(12, 10), 20.0, 9.0);
    ASSERT_TRUE(collector.SatisfyRequest(before, List));

    Dir.WriteText("mine.txt", StarLine(500, 3.0, 11.0, 9.0) + "\n" + StarLine(501, 11.0, 13, 11));
    TextFile text;
    ASSERT_TRUE(text.OpenForReading(Dir.File("mine.txt").c_str()));
    List.Flush();
    EXPECT_TRUE(collector.LoadStars(text));
    StarCatalogue* mine = collector.GetUserCatalogue();
    ASSERT_NE(mine, nullptr);
    EXPECT_EQ(mine->GetMaxMagnitude(), 11.0);

    // The same request as before is answered again, from the user's stars, at any limit.
    Request same = Make(PolarCoord(12, 10), 20.0, 9.0);
    EXPECT_TRUE(collector.SatisfyRequest(same, List));
    EXPECT_EQ(Stars(List), (std::vector<std::uint32_t>{500}));
    EXPECT_EQ(collector.ChooseStarCatalogue(1.0), mine);
    EXPECT_EQ(collector.GetStarCatalogue(), mine);

    // A second text replaces the first; a star file joins beside it.
    Dir.WriteText("other.txt", StarLine(600, 2.0, 12.0, 10.0));
    TextFile other;
    ASSERT_TRUE(other.OpenForReading(Dir.File("other.txt").c_str()));
    List.Flush();
    EXPECT_TRUE(collector.LoadStars(other));
    // The two star files and one user catalogue.
    EXPECT_EQ(collector.GetStarCatalogues().size(), 3u);
    Request third = Make(PolarCoord(12, 10), 20.0, 9.0);
    EXPECT_TRUE(collector.SatisfyRequest(third, List));
    EXPECT_EQ(Stars(List), (std::vector<std::uint32_t>{600}));

    List.Flush();
    EXPECT_TRUE(collector.LoadStarsFromBinaryFile(Dir.File("deep.bin")));
    EXPECT_EQ(collector.GetStarCatalogues().size(), 4u);
    Request fourth = Make(PolarCoord(12, 10), 20.0, 2.0);
    EXPECT_TRUE(collector.SatisfyRequest(fourth, List));
    EXPECT_EQ(Stars(List), (std::vector<std::uint32_t>{10}));
}

TEST_F(AstroItemCollectorTest, LookupByNumberTriesTheSmallFileFirst)
{
    UseShallowAndDeep();
    AstroItemCollector collector;
    Star* ten = collector.GetStarFromSAONumber(10);
    ASSERT_NE(ten, nullptr);
    EXPECT_EQ(ten->GetListName(), "Ten");
    EXPECT_EQ(ten->GetReferenceCount(), 1);
    ten->ReleaseReference();
    // The large file was not read.
    EXPECT_TRUE(Resident(collector.GetStarCatalogues()[1]->GetSegments()).empty());

    Star* deepOnly = collector.GetStarFromSAONumber(21);
    ASSERT_NE(deepOnly, nullptr);
    EXPECT_EQ(deepOnly->GetMagnitude(), 9.0);
    deepOnly->ReleaseReference();
    EXPECT_EQ(collector.GetStarFromSAONumber(12345), nullptr);

    // The user's stars come first.
    Dir.WriteText("mine.txt", StarLine(10, 4.0, 50.0, 50.0));
    TextFile text;
    ASSERT_TRUE(text.OpenForReading(Dir.File("mine.txt").c_str()));
    collector.LoadStars(text);
    Star* mine = collector.GetStarFromSAONumber(10);
    ASSERT_NE(mine, nullptr);
    EXPECT_EQ(mine->GetMagnitude(), 4.0);
    mine->ReleaseReference();
    Star* stillThere = collector.GetStarFromSAONumber(21);
    ASSERT_NE(stillThere, nullptr);
    stillThere->ReleaseReference();
}

TEST_F(AstroItemCollectorTest, BinaryDumpNeedsAUserCatalogue)
{
    UseShallowAndDeep();
    AstroItemCollector collector;
    EXPECT_FALSE(collector.DumpStarsBinary(Dir.File("out.bin")));
    EXPECT_TRUE(Dir.ReadBytes("out.bin").empty());

    TextCatalogue(Dir, kDeep, "deep.txt");
    TextFile text;
    ASSERT_TRUE(text.OpenForReading(Dir.File("deep.txt").c_str()));
    ASSERT_TRUE(collector.LoadStars(text));
    ASSERT_TRUE(collector.DumpStarsBinary(Dir.File("out.bin")));
    EXPECT_EQ(Dir.ReadBytes("out.bin"), Dir.ReadBytes("deep.bin"));
}

TEST_F(AstroItemCollectorTest, TextDumpWritesTheLookupCatalogue)
{
    UseShallowAndDeep();
    AstroItemCollector collector;
    ASSERT_TRUE(collector.DumpStarsText(Dir.File("out.txt")));
    TextFile text;
    ASSERT_TRUE(text.OpenForReading(Dir.File("out.txt").c_str()));
    StarCatalogue again;
    ASSERT_TRUE(again.LoadStars(text));
    // The catalogue for magnitude 5 is the shallow one.
    EXPECT_EQ(again.GetMaxMagnitude(), 6.5);
    std::unique_ptr<Star> eleven(again.GetStarFromSAONumber(11));
    EXPECT_NE(eleven, nullptr);
}

TEST_F(AstroItemCollectorTest, ObserverIsTheEarth)
{
    AstroItemCollector collector;
    ASSERT_NE(collector.GetOrigin(), nullptr);
    // The Earth knows sidereal time; the bare body does not.
    collector.GetOrigin()->SetTime(AstroTime(1, 1, 2000, 12.0));
    EXPECT_NEAR(collector.GetOrigin()->GetLocalSiderealTime(LatLong()).GetDegrees(),
                18.697374558 * 15.0, 1e-6);
}
