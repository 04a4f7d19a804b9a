#pragma once
// A sky map on the headless desktop: a top-level window that writes down what the map tells it,
// with a MapWindow filling its client area (beside a status panel when asked for), and ways to
// read both the screen and the map's off-screen bitmap.
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "coords/AngleMath.h"
#include "platform/HostPalette.h"
#include "platform/Surface.h"
#include "platform/TGadgetWindowFont.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"
#include "projection/FixedOrientationInfo.h"
#include "skyview/AstroStatusWindow.h"
#include "skyview/MapWindow.h"
#include "windows/HeadlessFixture.h"

// The messages the map sends its parent: a new projection, an article.
constexpr UINT kFieldChange = 0x07EA;
constexpr UINT kReference = 0x07E8;

// The map, with the information dialog replaced by a record of what it was asked to show.
class RecordingMap : public MapWindow
{
public:
    using MapWindow::MapWindow;
    void DisplayObjectInfo(AstroObject& o) override { Informed.push_back(&o); }
    std::vector<AstroObject*> Informed;
};

class MapHost : public TWindow
{
public:
    MapHost(int width, int height, int panelWidth) : TWindow(nullptr, "Map host")
    {
        Attr.W = panelWidth + width;
        Attr.H = height;
        pMap = new RecordingMap(this);
        pMap->Attr.X = panelWidth;
        pMap->Attr.W = width;
        pMap->Attr.H = height;
        pMap->SetFieldChangeMessage(kFieldChange);
        pMap->SetReferenceMessage(kReference);
        if (panelWidth > 0) {
            const TGadgetWindowFont font(8, false, false);
            pPanel = new AstroStatusWindow(this, &font);
            pPanel->Attr.W = panelWidth;
            pPanel->Attr.H = height;
            pMap->AttachStatusWindow(*pPanel);
        }
    }

    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        if (msg == kFieldChange) {
            ++nFieldChanges;
        } else if (msg == kReference) {
            References.push_back(*reinterpret_cast<const std::string*>(lParam));
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }

    // Owned by this window.
    RecordingMap* pMap = nullptr;
    AstroStatusWindow* pPanel = nullptr;
    int nFieldChanges = 0;
    std::vector<std::string> References;
};

// Degrees between two sky directions, from the vectors' cross and dot products, which keep
// their digits for directions close together.
inline double Apart(const PolarCoord& a, const PolarCoord& b)
{
    const double ra = a.GetRA().GetRadians() - b.GetRA().GetRadians();
    const double da = a.GetDec().GetRadians();
    const double db = b.GetDec().GetRadians();
    const double across = std::cos(db) * std::sin(ra);
    const double along = std::cos(da) * std::sin(db) - std::sin(da) * std::cos(db) * std::cos(ra);
    const double dot = std::sin(da) * std::sin(db) + std::cos(da) * std::cos(db) * std::cos(ra);
    return RadiansToDegrees(std::atan2(std::hypot(across, along), dot));
}

// A view fixed on the stars with north up, `radius` degrees to the nearer edge.
inline FixedOrientationInfo NorthUp(const PolarCoord& centre, double radius)
{
    return FixedOrientationInfo(nullptr, centre, FixedOrientationInfo::NorthUpZenith(centre),
                                radius);
}

// Pixels of a surface with the given value (a palette index on the map's bitmap).
inline int CountValue(const Surface& surface, unsigned value)
{
    int n = 0;
    for (int y = 0; y < surface.Height(); ++y) {
        for (int x = 0; x < surface.Width(); ++x) {
            n += surface.ValueAt(x, y) == value;
        }
    }
    return n;
}

inline unsigned IndexOf(const TColor& colour)
{
    return HostPalette().GetNearestPaletteIndex(colour);
}

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

    // Orion (RA 84, Dec 0): the same stars whatever the time, unlike the map's own view from
    // the ground.
    static PolarCoord Orion() { return PolarCoord(84.0, 0.0); }

    // A map of that size looking at Orion, 45 degrees to the nearer edge, not yet on the screen.
    // Unless `withStars` no star is bright enough to be shown, so that the pixels a test looks
    // at are its own; the machine's time zone does not show in what it writes.
    RecordingMap& Make(int width, int height, bool withStars = false, int panelWidth = 0)
    {
        pHost = std::make_unique<MapHost>(width, height, panelWidth);
        RecordingMap& map = Map();
        map.SetOrientation(NorthUp(Orion(), 45.0));
        map.SetTimeZone(TimeZone());
        if (!withStars) {
            StarDisplayParameters none = map.GetDisplayParameters();
            none.SetLimitingMagnitude(-30.0);
            map.SetStarDisplayParameters(none);
        }
        return map;
    }

    // The same on the screen, painted once.
    RecordingMap& Open(int width, int height, bool withStars = false)
    {
        Make(width, height, withStars);
        pHost->Create();
        Pump();
        return Map();
    }

    RecordingMap& Map() { return *pHost->pMap; }
    std::unique_ptr<Surface> Screen() { return WindowSystem::Get().CaptureWindow(Map().HWindow); }
    // The off-screen bitmap; only after a paint.
    Surface& Bitmap() { return Map().GetMemoryDC()->GetSurface(); }

    std::unique_ptr<MapHost> pHost;
};
