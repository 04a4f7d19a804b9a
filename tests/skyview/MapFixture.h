#pragma once
// A sky map on the headless desktop: a top-level window that writes down the messages the map
// sends it, with a MapWindow filling its client area, and ways to read both the screen and
// the map's off-screen bitmap.
#include <memory>
#include <vector>

#include "platform/HostPalette.h"
#include "platform/Surface.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"
#include "platform/TWindow.h"
#include "projection/FixedOrientationInfo.h"
#include "skyview/MapWindow.h"
#include "windows/HeadlessFixture.h"

// The message the map posts when it has built a new projection.
constexpr UINT kFieldChange = 0x07EA;

class MapHost : public TWindow
{
public:
    MapHost(int width, int height) : TWindow(nullptr, "Map host")
    {
        Attr.X = 10;
        Attr.Y = 10;
        Attr.W = width;
        Attr.H = height;
        pMap = new MapWindow(this);
        pMap->Attr.W = width;
        pMap->Attr.H = height;
        pMap->SetFieldChangeMessage(kFieldChange);
    }

    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        if (msg == kFieldChange) {
            ++nFieldChanges;
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }

    // Owned by this window.
    MapWindow* pMap = nullptr;
    int nFieldChanges = 0;
};

class MapTest : public HeadlessTest
{
protected:
    void TearDown() override
    {
        if (pHost) {
            pHost->Destroy();
            pHost.reset();
        }
        HeadlessTest::TearDown();
    }

    // A view fixed on Orion (RA 84, Dec 0) with north up, 45 degrees to the nearer edge: the
    // same stars whatever the time, unlike the map's own view from the ground.
    static const PolarCoord& Orion()
    {
        static const PolarCoord centre(84.0, 0.0);
        return centre;
    }
    static constexpr double kOrionRadius = 45.0;

    // A map of that size on the screen, looking at Orion, painted once. Unless `withStars`, no
    // star is bright enough to be shown, so that the pixels a test looks at are the sky's own.
    MapWindow& Open(int width, int height, bool withStars = false)
    {
        pHost = std::make_unique<MapHost>(width, height);
        MapWindow& map = *pHost->pMap;
        map.SetOrientation(FixedOrientationInfo(map.GetCollector().GetOrigin(), Orion(),
                                                FixedOrientationInfo::NorthUpZenith(Orion()),
                                                kOrionRadius));
        // The time zone of the machine running the tests must not show in the status line.
        map.SetTimeZone(TimeZone());
        if (!withStars) {
            StarDisplayParameters none = map.GetDisplayParameters();
            none.SetLimitingMagnitude(-30.0);
            map.SetStarDisplayParameters(none);
        }
        pHost->Create();
        Pump();
        return map;
    }

    MapWindow& Map() { return *pHost->pMap; }

    // What the screen shows of the map.
    std::unique_ptr<Surface> Screen() { return WindowSystem::Get().CaptureWindow(Map().HWindow); }

    // The off-screen bitmap; only after a paint.
    Surface& Bitmap() { return Map().GetMemoryDC()->GetSurface(); }

    // Repaints the whole map through the message loop.
    void Repaint()
    {
        Map().Invalidate();
        Pump();
    }

    static unsigned GridIndex() { return HostPalette().GetNearestPaletteIndex(GridInfo().Color); }

    static GridInfo ShownGrid(unsigned raLines = 24, unsigned decLines = 36)
    {
        return GridInfo(raLines, decLines, true);
    }

    // Pixels of the bitmap with the grid's palette index.
    int CountGridPixels()
    {
        int n = 0;
        Surface& bits = Bitmap();
        for (int y = 0; y < bits.Height(); ++y) {
            for (int x = 0; x < bits.Width(); ++x) {
                n += bits.ValueAt(x, y) == GridIndex();
            }
        }
        return n;
    }

    std::unique_ptr<MapHost> pHost;
};
