#include "shell/ReferenceHostKit.h"

#include <cmath>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

#include "host/HostFrameAPI.h"
#include "host/HostFrameWindow.h"
#include "host/SkyhuntGame.h"
#include "platform/PngFile.h"
#include "platform/Surface.h"
#include "platform/TPrintDC.h"
#include "platform/TPrinter.h"
#include "platform/WindowSystem.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/sdl/SdlBackend.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "shell/AstroNoxWindow.h"
#include "skyview/MapWindow.h"
#include "skyview/PrintPreviewWindow.h"

namespace {

// The host's side of the process: its frame services and its frame windows.
StandardHostFrame& Frame()
{
    static StandardHostFrame frame;
    return frame;
}

// A view from the ground when nothing else is known: south, 30 degrees up.
constexpr double kFirstAzimuth = 180.0;
constexpr double kFirstZenithDistance = 60.0;

// Degrees east to the component's degrees west, 0 to 360; a compass bearing (north through
// east) to the component's azimuth (north through west) alike.
double TurnedRound(double degrees)
{
    double turned = std::fmod(360.0 - degrees, 360.0);
    return turned < 0.0 ? turned + 360.0 : turned;
}

// The view on the ground that `view` asks for, from what it gives and what the map has.
RotatingOrientationInfo GroundView(const MapWindow& map, const OrbiscopeView& view)
{
    const OrientationInfo& present = map.GetOrientation();
    const auto* ground = dynamic_cast<const RotatingOrientationInfo*>(&present);
    LatLong place = ground ? ground->GetLocation() : LatLong(0.0, 0.0);
    if (view.bLocation) {
        place = LatLong(view.Latitude, TurnedRound(view.Longitude));
    }
    PolarCoord offset =
        ground ? ground->GetZenithOffset() : PolarCoord(kFirstAzimuth, kFirstZenithDistance);
    if (view.bLook) {
        offset = PolarCoord(TurnedRound(view.Azimuth), 90.0 - view.Altitude);
    }
    const double radius = view.bRadius ? view.Radius : present.GetFieldRadius();
    return RotatingOrientationInfo(present.GetOrigin(), place, offset, radius, true);
}

std::map<std::uint32_t, std::unique_ptr<HostFrameWindow>>& Frames()
{
    static std::map<std::uint32_t, std::unique_ptr<HostFrameWindow>> frames;
    return frames;
}

HWND ToHandle(std::uint32_t handle)
{
    return reinterpret_cast<HWND>(std::uintptr_t(handle));
}

MapWindow* MapOf(std::uint32_t component)
{
    auto* window = dynamic_cast<AstroNoxWindow*>(GetWindowPtr(ToHandle(component)));
    return window ? window->GetMap() : nullptr;
}

void Say(char* error, std::size_t size, const char* text)
{
    if (error && size > 0) {
        std::snprintf(error, size, "%s", text);
    }
}

int OpenDesktop(int display, char* error, std::size_t errorSize)
{
    SetHostFrameAPI(&Frame());
    if (!display) {
        Headless();
        return 1;
    }
    std::string reason;
    std::unique_ptr<SdlBackend> backend = SdlBackend::Open(reason);
    if (!backend) {
        Say(error, errorSize, reason.c_str());
        return 0;
    }
    WindowSystem::Get().SetBackend(std::move(backend));
    return 1;
}

std::uint32_t CreateFrame(const char* title, int width, int height)
{
    if (width <= 0 || height <= 0) {
        return 0;
    }
    auto frame = std::make_unique<HostFrameWindow>(title ? title : "", width, height);
    if (!frame->Create()) {
        return 0;
    }
    Frame().SetFrameWindow(frame.get());
    const auto handle = std::uint32_t(reinterpret_cast<std::uintptr_t>(frame->HWindow));
    Frames()[handle] = std::move(frame);
    return handle;
}

int GetMapInset()
{
    HostFrameAPI* frame = getHostFrameAPI();
    return frame ? frame->GetMetric(kHostMetricBezelWidth) : 0;
}

int SetView(std::uint32_t component, const OrbiscopeView* view)
{
    MapWindow* map = MapOf(component);
    if (!map || !view) {
        return 0;
    }
    if (view->bTime) {
        const double hours = view->nHour + view->nMinute / 60.0 + view->Second / 3600.0;
        map->SetTime(AstroTime(unsigned(view->nDay), unsigned(view->nMonth), view->nYear, hours));
    }
    if (view->bLocation || view->bLook) {
        map->SetOrientation(GroundView(*map, *view));
    } else if (view->bCenter) {
        const PolarCoord centre(view->RA, view->Dec);
        const double radius = view->bRadius ? view->Radius : map->GetOrientation().GetFieldRadius();
        map->SetOrientation(FixedOrientationInfo(map->GetOrientation().GetOrigin(), centre,
                                                 FixedOrientationInfo::NorthUpZenith(centre),
                                                 radius));
    } else if (view->bRadius) {
        map->SetFieldRadius(view->Radius);
    }
    if (view->bGrid) {
        GridInfo grid = map->GetGridInfo();
        grid.bShow = true;
        map->SetGridInfo(grid);
    }
    if (view->bLimit) {
        StarDisplayParameters stars = map->GetDisplayParameters();
        stars.SetLimitingMagnitude(view->LimitingMagnitude);
        map->SetStarDisplayParameters(stars);
    }
    return 1;
}

int SaveMapPicture(std::uint32_t component, const char* path)
{
    MapWindow* map = MapOf(component);
    if (!map || !path) {
        return 0;
    }
    WindowSystem::Get().ProcessAll();
    std::unique_ptr<Surface> picture = WindowSystem::Get().CaptureWindow(map->HWindow);
    return picture && SaveSurfaceAsPng(*picture, path) ? 1 : 0;
}

int PrintChart(std::uint32_t component, const char* path, int paper)
{
    MapWindow* map = MapOf(component);
    if (!map || !path || !*path || (paper != 0 && paper != 1)) {
        return 0;
    }
    WindowSystem::Get().ProcessAll();
    TPrinter printer;
    printer.SetPaper(paper == 0 ? TPrinter::Paper::A4 : TPrinter::Paper::Letter);
    printer.SetOutputFile(path);
    PrintPreviewWindow chart(nullptr, map, printer.MakeDC(), 1);
    const bool printed = chart.PrintCopies();
    // The map draws its own view again before anyone looks.
    WindowSystem::Get().ProcessAll();
    return printed ? 1 : 0;
}

int RunMessageLoop()
{
    return WindowSystem::Get().Run();
}

void DestroyFrame(std::uint32_t handle)
{
    auto found = Frames().find(handle);
    if (found == Frames().end()) {
        return;
    }
    if (Frame().GetFrameWindow() == found->second.get()) {
        Frame().SetFrameWindow(nullptr);
    }
    found->second->Destroy();
    Frames().erase(found);
}

int StartSkyhunt()
{
    return StartSkyhuntGame() ? 1 : 0;
}

void CloseDesktop()
{
    CloseSkyhuntGame();
    // The headless desktop takes the place of any other, which closes it.
    WindowSystem::Get().SetBackend(std::make_unique<HeadlessBackend>());
    SetHostFrameAPI(nullptr);
}

const OrbiscopeHostKit kKit{kOrbiscopeHostKitVersion,
                            &OpenDesktop,
                            &CreateFrame,
                            &GetMapInset,
                            &SetView,
                            &SaveMapPicture,
                            &RunMessageLoop,
                            &DestroyFrame,
                            &CloseDesktop,
                            &PrintChart,
                            &StartSkyhunt};

} // namespace

extern "C" const OrbiscopeHostKit* orbiscope_host_kit(void)
{
    return &kKit;
}
