#include "shell/ReferenceHostKit.h"

#include <cstdio>
#include <map>
#include <memory>
#include <string>

#include "host/HostFrameAPI.h"
#include "host/HostFrameWindow.h"
#include "platform/PngFile.h"
#include "platform/Surface.h"
#include "platform/WindowSystem.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/sdl/SdlBackend.h"
#include "projection/FixedOrientationInfo.h"
#include "shell/AstroNoxWindow.h"
#include "skyview/MapWindow.h"

namespace {

// The host's side of the process: its frame services and its frame windows.
StandardHostFrame& Frame()
{
    static StandardHostFrame frame;
    return frame;
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
    if (view->bCenter) {
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

void CloseDesktop()
{
    // The headless desktop takes the place of any other, which closes it.
    WindowSystem::Get().SetBackend(std::make_unique<HeadlessBackend>());
    SetHostFrameAPI(nullptr);
}

const OrbiscopeHostKit kKit{
    kOrbiscopeHostKitVersion, &OpenDesktop,    &CreateFrame,  &GetMapInset,  &SetView,
    &SaveMapPicture,          &RunMessageLoop, &DestroyFrame, &CloseDesktop,
};

} // namespace

extern "C" const OrbiscopeHostKit* orbiscope_host_kit(void)
{
    return &kKit;
}
