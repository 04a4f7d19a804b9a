// Comets on the map: the views of the comets the profile names, or of two built-in ones, with
// uids from the number of their key, always labelled, listed by a request whatever their
// magnitude, and drawn as a yellow "X" round their point.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "catalogues/AstroList.h"
#include "catalogues/Request.h"
#include "host/HostProf.h"
#include "projection/Transformation.h"
#include "skyview/SkyCanvas.h"
#include "solar/CometCatalogue.h"
#include "solar/Earth200.h"

namespace {

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

} // namespace

TEST(CometCatalogue, ViewsFollowTheNumberedKeysOfTheProfileWithTheirUids)
{
    // "name:uid" of each view, in order.
    auto views = [](const std::string& section) {
        std::vector<std::string> summary;
        const CometCatalogue comets(HostProf::FromText("[Orbiscope]\n" + section));
        for (std::size_t i = 0; i < comets.GetCount(); ++i) {
            summary.push_back(comets.GetView(i)->GetListName() + ":" +
                              std::to_string(comets.GetView(i)->GetUid()));
        }
        return summary;
    };
    const auto record = [](const std::string& name) {
        return name + ", 2001 May 3.5, 1.1, 0.7, 10, 20, 30\n";
    };
    // No comets named, or a count that is no number of comets: the built-in pair.
    const std::vector<std::string> builtIn = {"Hale-Bopp:500", "Halley's:501"};
    EXPECT_EQ(views(""), builtIn);
    EXPECT_EQ(views("NumberOfComets = 0\nComet1 = " + record("Ignored")), builtIn);
    EXPECT_EQ(views("NumberOfComets = many\nComet1 = " + record("Ignored")), builtIn);
    // A count with no good records gives no comets at all.
    EXPECT_TRUE(views("NumberOfComets = 1\nComet1 = Bad, 2001 May 3.5, 1, -1, 1, 2, 3\n").empty());
    // Keys in any case, read by number (10 after 9), none beyond the count; an empty value
    // and a refused record leave gaps in the uids.
    EXPECT_EQ(views("NumberOfComets = 10\ncomet10 = " + record("Tenth") +
                    "COMET9 = " + record("Ninth") + "Comet1 = " + record("First") + "Comet3 =\n" +
                    "Comet4 = Broken, 2001 May 3.5, 0, 0.7, 1, 2, 3\nComet11 = " +
                    record("Beyond") + "Comet02 = " + record("Padded")),
              (std::vector<std::string>{"First:500", "Ninth:508", "Tenth:509"}));
    // A huge count reads only the keys that exist.
    EXPECT_EQ(views("NumberOfComets = 999999999\nComet999999999 = " + record("Last") +
                    "Comet2 = " + record("Second")),
              (std::vector<std::string>{"Second:501", "Last:1000000498"}));

    // The named list does not own the comets; comets are always labelled.
    CometCatalogue comets(HostProf::FromText(""));
    EXPECT_FALSE(comets.GetListOfNamedObjects()->OwnsElements());
    DisplayParameters parameters;
    comets.GetView(0)->SetShowLabel(false);
    EXPECT_TRUE(comets.GetView(0)->IsLabeled(parameters));
}

TEST(CometCatalogue, RequestListsTheCometsInViewWhateverTheirMagnitude)
{
    CometCatalogue comets(HostProf::FromText(""));
    Earth200 earth;
    const AstroTime when(50540.0, false); // 1997 March 29, Hale-Bopp near perihelion
    earth.SetTime(when);
    comets.SetOrigin(earth);
    comets.SetTime(when);
    CometView* haleBopp = comets.GetView(0);

    // Hale-Bopp stood high in the northern sky that spring, in Andromeda and Perseus. A
    // limiting magnitude far brighter than a comet's 99 keeps nothing out.
    const PolarCoord place = haleBopp->GetPosition();
    EXPECT_GT(place.GetDec().GetDegrees(), 35.0);
    EXPECT_LT(place.GetDec().GetDegrees(), 50.0);
    SkyCanvas canvas(200, 200);
    Transformation view(canvas.GetDC(), TRect(0, 0, 200, 200), place, 10.0, PolarCoord(0.0, 90.0));
    AstroList list(10, 10);
    comets.SatisfyRequest(Request(view, CatalogueSet(AstroCatalogue::COMETS), when, -5.0), list);
    ASSERT_EQ(list.GetCount(), 1u);
    EXPECT_EQ(list[0], haleBopp);
    EXPECT_EQ(haleBopp->GetMagnitude(), 99.0);
    EXPECT_EQ(haleBopp->GetDisplayPoint(), TPoint(100, 100));
}

TEST(CometCatalogue, CometIsAYellowXCentredOnItsPoint)
{
    SkyCanvas canvas(48, 32);
    const unsigned yellow = canvas.Parameters.GetPaletteIndex(TColor::LtYellow);
    CometCatalogue comets(HostProf::FromText(""));
    CometView* first = comets.GetView(0);
    CometView* second = comets.GetView(1);
    first->SetDisplayPoint(TPoint(12, 16));
    second->SetDisplayPoint(TPoint(35, 11));
    first->Draw(canvas.GetDC(), canvas.Parameters);
    second->Draw(canvas.GetDC(), canvas.Parameters);

    const TRect left = BoxOf(canvas, yellow, TRect(0, 0, 24, 32));
    const TRect right = BoxOf(canvas, yellow, TRect(24, 0, 48, 32));
    // A letter of a 10-unit font, round the point within a pixel or two.
    EXPECT_GE(left.Width(), 4);
    EXPECT_LE(std::abs((left.left + left.right) / 2 - 12), 2);
    EXPECT_LE(std::abs((left.top + left.bottom) / 2 - 16), 2);
    // Both letters in one font with one offset: the same shape moved by the same amount.
    EXPECT_EQ(right, left.OffsetBy(23, -5));
}
