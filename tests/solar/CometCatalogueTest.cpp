// Comets on the map: views made from the profile's list or the two built-in comets, with uids
// from their list index, always labelled, no magnitude, and drawn as a yellow "X" round their
// point.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "catalogues/AstroList.h"
#include "catalogues/Request.h"
#include "catalogues/StringParser.h"
#include "host/HostProf.h"
#include "platform/DebugStream.h"
#include "projection/Transformation.h"
#include "skyview/SkyCanvas.h"
#include "solar/CometCatalogue.h"
#include "solar/Earth200.h"

namespace {

std::string Record(const std::string& name)
{
    return name + ", 2001 May 3.5, 1.1, 0.7, 10, 20, 30";
}

CometCatalogue FromProfile(const std::string& section)
{
    return CometCatalogue(HostProf::FromText("[Orbiscope]\n" + section));
}

// "name:uid offset" for each view in order.
std::vector<std::string> Summary(const CometCatalogue& comets)
{
    std::vector<std::string> summary;
    for (std::size_t i = 0; i < comets.GetCount(); ++i) {
        const CometView* view = comets.GetView(i);
        summary.push_back(view->GetListName() + ":" + std::to_string(view->GetUid()));
    }
    return summary;
}

// The bounding box of the pixels of one palette index.
TRect BoxOf(SkyCanvas& canvas, unsigned index, const TRect& area)
{
    TRect box(area.right, area.bottom, area.left, area.top);
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            if (canvas.IndexAt(x, y) == index) {
                box = TRect(std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
                            std::max(box.bottom, y + 1));
            }
        }
    }
    return box;
}

class QuietDebugStream : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Previous = SetDebugSink([this](const char* text) { Messages.emplace_back(text); });
    }
    void TearDown() override { SetDebugSink(Previous); }

    std::vector<std::string> Messages;
    DebugSink Previous;
};

using CometCatalogueTest = QuietDebugStream;

} // namespace

TEST_F(CometCatalogueTest, NoCometsInTheProfileGivesTheBuiltInPair)
{
    const std::vector<std::string> builtIn = {"Hale-Bopp:500", "Halley's:501"};
    EXPECT_EQ(Summary(FromProfile("")), builtIn);
    EXPECT_EQ(Summary(FromProfile("NumberOfComets = 0\nComet1 = " + Record("Ignored"))), builtIn);

    CometCatalogue comets = FromProfile("NumberOfComets = 1\nComet1 = " + Record("Mine"));
    EXPECT_EQ(Summary(comets), std::vector<std::string>{"Mine:500"});
    comets.LoadDefault();
    EXPECT_EQ(Summary(comets),
              (std::vector<std::string>{"Mine:500", "Hale-Bopp:500", "Halley's:501"}));
}

TEST_F(CometCatalogueTest, GapsInTheProfileKeepTheIndexOfEachKey)
{
    CometCatalogue comets = FromProfile("NumberOfComets = 2\nComet2 = " + Record("Second"));
    ASSERT_EQ(comets.GetCount(), 1u);
    EXPECT_EQ(comets.GetView(0)->GetIndex(), 1u);
    EXPECT_EQ(comets.GetView(0)->GetUid(), 501u);
    EXPECT_EQ(comets.GetView(1), nullptr);
}

TEST_F(CometCatalogueTest, NamedListHoldsEveryCometWithoutOwningIt)
{
    CometCatalogue comets = FromProfile("");
    auto list = comets.GetListOfNamedObjects();
    ASSERT_EQ(list->size(), 2u);
    EXPECT_FALSE(list->OwnsElements());
    EXPECT_EQ((*list)[0], comets.GetView(0));
    EXPECT_EQ((*list)[1], comets.GetView(1));
    // Comets have no magnitude and always carry a label.
    DisplayParameters parameters;
    EXPECT_EQ(comets.GetView(0)->GetMagnitude(), 99.0);
    EXPECT_TRUE(comets.GetView(0)->IsLabeled(parameters));
}

TEST_F(CometCatalogueTest, TimeAndOriginReachEveryComet)
{
    CometCatalogue comets = FromProfile("");
    Earth200 earth;
    const AstroTime when(49470.0, false);
    earth.SetTime(when);
    comets.SetOrigin(earth);
    comets.SetTime(when);
    for (std::size_t i = 0; i < comets.GetCount(); ++i) {
        EXPECT_EQ(comets.GetView(i)->GetOrigin(), &earth);
        EXPECT_EQ(comets.GetView(i)->GetComet().GetTime().GetMJD(), when.GetMJD());
    }
    // Halley's at MJD 49470 stands at (-13.93583, 11.87393, -5.79875) AU from the Sun, the
    // Earth about 1 AU from it: some 19 AU away.
    EXPECT_NEAR(comets.GetView(1)->GetDistance(), 19.2, 0.8);
}

TEST_F(CometCatalogueTest, ViewReadsARecordAndRefusesABadOne)
{
    CometView view;
    StringParser good(Record("Test"), ",", true);
    ASSERT_TRUE(view.Initialize(4, good));
    EXPECT_EQ(view.GetUid(), 504u);
    EXPECT_EQ(view.GetListName(), "Test");
    EXPECT_DOUBLE_EQ(view.GetComet().GetElements().PerihelionDistance, 1.1);

    StringParser bad("Broken, 2001 May 3.5, far", ",", true);
    EXPECT_FALSE(view.Initialize(6, bad));
    EXPECT_EQ(view.GetUid(), 504u);
    EXPECT_EQ(view.GetListName(), "Test");
    EXPECT_FALSE(Messages.empty());

    CometView complete(7, "Complete", AstroTime(50000.0, false), 0.5, 0.9, 10.0, 20.0, 30.0);
    EXPECT_EQ(complete.GetUid(), 507u);
    EXPECT_EQ(complete.GetRefName(), "Complete");
}

TEST_F(CometCatalogueTest, CometIsAYellowXCentredOnItsPoint)
{
    SkyCanvas canvas(48, 32);
    const unsigned yellow = canvas.Parameters.GetPaletteIndex(TColor::LtYellow);
    CometCatalogue comets = FromProfile("");
    CometView* first = comets.GetView(0);
    CometView* second = comets.GetView(1);
    first->SetDisplayPoint(TPoint(12, 16));
    second->SetDisplayPoint(TPoint(35, 11));
    first->Draw(canvas.GetDC(), canvas.Parameters);
    second->Draw(canvas.GetDC(), canvas.Parameters);

    const TRect left = BoxOf(canvas, yellow, TRect(0, 0, 24, 32));
    const TRect right = BoxOf(canvas, yellow, TRect(24, 0, 48, 32));
    ASSERT_FALSE(left.IsEmpty());
    // A letter of a 10-unit font: a few pixels each way, round the point within a pixel or two.
    EXPECT_GE(left.Width(), 4);
    EXPECT_LE(left.Width(), 10);
    EXPECT_GE(left.Height(), 4);
    EXPECT_LE(left.Height(), 10);
    EXPECT_LE(std::abs((left.left + left.right) / 2 - 12), 2);
    EXPECT_LE(std::abs((left.top + left.bottom) / 2 - 16), 2);
    // Both letters in one font with one offset: the same shape moved by the same amount.
    EXPECT_EQ(right, left.OffsetBy(23, -5));
    // Nothing but yellow and the sky.
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 48; ++x) {
            const unsigned index = canvas.IndexAt(x, y);
            EXPECT_TRUE(index == 0 || index == yellow) << x << ", " << y;
        }
    }
}

TEST_F(CometCatalogueTest, RequestListsTheCometsInViewWhateverTheirMagnitude)
{
    CometCatalogue comets = FromProfile("");
    Earth200 earth;
    const AstroTime when(50540.0, false); // 1997 March 29, Hale-Bopp near perihelion
    earth.SetTime(when);
    comets.SetOrigin(earth);
    comets.SetTime(when);
    CometView* haleBopp = comets.GetView(0);
    const PolarCoord place = haleBopp->GetPosition();

    SkyCanvas canvas(200, 200);
    Transformation view(canvas.GetDC(), TRect(0, 0, 200, 200), place, 10.0, PolarCoord(0.0, 90.0));
    // A limiting magnitude far brighter than a comet's 99 keeps nothing out.
    Request request(view, CatalogueSet(AstroCatalogue::COMETS), when, -5.0);
    AstroList list(10, 10);
    comets.SatisfyRequest(request, list);
    ASSERT_EQ(list.GetCount(), 1u);
    EXPECT_EQ(list[0], haleBopp);
    EXPECT_EQ(haleBopp->GetDisplayPoint(), TPoint(100, 100));
    // Hale-Bopp stood high in the northern sky that spring, in Andromeda and Perseus.
    EXPECT_GT(place.GetDec().GetDegrees(), 35.0);
    EXPECT_LT(place.GetDec().GetDegrees(), 50.0);
}

TEST_F(CometCatalogueTest, RequestGivesEveryCometItsTime)
{
    CometCatalogue comets = FromProfile("");
    Earth200 earth;
    const AstroTime when(46470.0, false);
    earth.SetTime(when);
    comets.SetOrigin(earth);
    SkyCanvas canvas(100, 100);
    Transformation view(canvas.GetDC(), TRect(0, 0, 100, 100), PolarCoord(0.0, -90.0), 1.0,
                        PolarCoord(0.0, 0.0));
    AstroList list(10, 10);
    comets.SatisfyRequest(Request(view, CatalogueSet(AstroCatalogue::COMETS), when, 6.0), list);
    EXPECT_EQ(list.GetCount(), 0u);
    EXPECT_EQ(comets.GetView(0)->GetComet().GetTime().GetMJD(), when.GetMJD());
    EXPECT_EQ(comets.GetView(1)->GetComet().GetTime().GetMJD(), when.GetMJD());
}
