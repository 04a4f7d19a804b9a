// Messier objects on the map: each is a yellow "X" centred on its point, and a map that shows
// them lists, marks and labels those in view with their code names.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "MapFixture.h"
#include "catalogues/Messier.h"
#include "platform/TDC.h"
#include "projection/FixedOrientationInfo.h"
#include "skyview/Label.h"
#include "skyview/SkyCanvas.h"

namespace {

// The bounding box of the pixels of one palette index within `area`.
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

std::unique_ptr<Messier> Object(const std::string& line)
{
    auto object = std::make_unique<Messier>();
    EXPECT_TRUE(object->Initialize(LorvString(line)));
    return object;
}

using MessierMapTest = MapTest;

// The code names of the Messier objects in the map's list, in order.
std::vector<std::string> ListedCodeNames(const MapWindow& map)
{
    std::vector<std::string> names;
    for (AstroObject* object : map.GetVisibleObjects()) {
        if (auto* messier = dynamic_cast<Messier*>(object)) {
            names.push_back(messier->GetCodeName());
        }
    }
    return names;
}

} // namespace

TEST(MessierDrawTest, AnObjectIsAYellowXCentredOnItsPoint)
{
    SkyCanvas canvas(48, 32);
    const unsigned yellow = canvas.Parameters.GetPaletteIndex(TColor::LtYellow);
    auto m1 = Object("1 NGC 1952 05 34 31.97 + 22 00 52.1 8.40 SNR");
    auto m2 = Object("2 NGC 7089 21 33 27.01 - 00 49 23.9 6.25 GCl");
    m1->SetDisplayPoint(TPoint(12, 16));
    m2->SetDisplayPoint(TPoint(35, 11));
    const TSize before = canvas.GetDC().GetTextExtent("Wide text");
    m1->Draw(canvas.GetDC(), canvas.Parameters);
    m2->Draw(canvas.GetDC(), canvas.Parameters);

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
    // One font and one offset for all: the same shape moved by the same amount.
    EXPECT_EQ(right, left.OffsetBy(23, -5));
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 48; ++x) {
            const unsigned index = canvas.IndexAt(x, y);
            EXPECT_TRUE(index == 0 || index == yellow) << x << ", " << y;
        }
    }
    // The surface has its own font back.
    EXPECT_EQ(canvas.GetDC().GetTextExtent("Wide text"), before);
}

TEST_F(MessierMapTest, AMapThatShowsThemMarksAndLabelsTheObjectsInView)
{
    MapWindow& map = Open(400, 300);
    // Orion's sword, 10 degrees round: M42, M43 and M78.
    map.SetOrientation(
        FixedOrientationInfo(nullptr, PolarCoord(84.5, -3.0), PolarCoord(84.5, 90.0), 10.0));
    Pump();
    EXPECT_TRUE(ListedCodeNames(map).empty()) << "hidden until asked for";

    map.ShowMessierObjects(true);
    Pump();
    ASSERT_EQ(ListedCodeNames(map), (std::vector<std::string>{"M42", "M43", "M78"}));

    // Each has its label, in yellow, and its yellow mark on the bitmap.
    std::vector<std::string> labelled;
    for (const Label* label : map.GetLabels()) {
        if (label->GetText().size() > 1 && label->GetText()[0] == 'M') {
            labelled.push_back(label->GetText());
            EXPECT_EQ(label->GetColor(), TColor::LtYellow);
        }
    }
    std::sort(labelled.begin(), labelled.end());
    EXPECT_EQ(labelled, (std::vector<std::string>{"M42", "M43", "M78"}));
    const unsigned yellow = HostPalette().GetNearestPaletteIndex(TColor::LtYellow);
    for (AstroObject* object : map.GetVisibleObjects()) {
        if (dynamic_cast<Messier*>(object) == nullptr) {
            continue;
        }
        const TPoint point = object->GetDisplayPoint();
        int marked = 0;
        for (int dy = -3; dy <= 3; ++dy) {
            for (int dx = -3; dx <= 3; ++dx) {
                marked += Bitmap().ValueAt(point.x + dx, point.y + dy) == yellow;
            }
        }
        EXPECT_GT(marked, 3) << object->GetListName();
    }

    map.ShowMessierObjects(false);
    Pump();
    EXPECT_TRUE(ListedCodeNames(map).empty());
}
