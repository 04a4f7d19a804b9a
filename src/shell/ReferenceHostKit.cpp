#include "shell/ReferenceHostKit.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <map>
#include <memory>
#include <string>

#include "catalogues/AstroCatalogue.h"
#include "catalogues/AstroItemCollector.h"
#include "catalogues/LorvString.h"
#include "catalogues/StringParser.h"
#include "host/HostBookmarkList.h"
#include "host/HostCmdLine.h"
#include "host/HostFile.h"
#include "host/HostFrameAPI.h"
#include "host/HostFrameWindow.h"
#include "host/HostHelp.h"
#include "host/HostMainFrame.h"
#include "host/HostStringTable.h"
#include "host/HostTitleBar.h"
#include "host/SkyhuntGame.h"
#include "platform/MessageBox.h"
#include "platform/PngFile.h"
#include "platform/Registry.h"
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

// Creates the frame's window, makes it the frame the component sees, and keeps it under the
// handle returned; 0 when the window could not be made.
std::uint32_t Keep(std::unique_ptr<HostFrameWindow> frame)
{
    if (!frame->Create()) {
        return 0;
    }
    Frame().SetFrameWindow(frame.get());
    const auto handle = std::uint32_t(reinterpret_cast<std::uintptr_t>(frame->HWindow));
    Frames()[handle] = std::move(frame);
    return handle;
}

std::uint32_t CreateFrame(const char* title, int width, int height)
{
    if (width <= 0 || height <= 0) {
        return 0;
    }
    return Keep(std::make_unique<HostFrameWindow>(title ? title : "", width, height));
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

int SaveMapPicture(std::uint32_t component, const char* path, int* width, int* height)
{
    MapWindow* map = MapOf(component);
    if (!map || !path) {
        return 0;
    }
    WindowSystem::Get().ProcessAll();
    std::unique_ptr<Surface> picture = WindowSystem::Get().CaptureWindow(map->HWindow);
    if (!picture || !SaveSurfaceAsPng(*picture, path)) {
        return 0;
    }
    if (width) {
        *width = picture->Width();
    }
    if (height) {
        *height = picture->Height();
    }
    return 1;
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

std::uint32_t CreateMainWindow(const char* title, int width, int height)
{
    if (width <= 0 || height <= 0) {
        return 0;
    }
    auto frame =
        std::make_unique<HostMainFrame>(title ? title : "", width, height + HostTitleBar::kHeight);
    HostMainFrame* window = frame.get();
    // The arrow keys scroll the view of the map inside, as far as the map's scrolling goes.
    frame->SetScroller([window](int direction) {
        if (auto* component = dynamic_cast<AstroNoxWindow*>(window->GetModule())) {
            component->ScrollMap(direction);
        }
    });
    const std::uint32_t handle = Keep(std::move(frame));
    if (handle) {
        InstallHostHelp();
    }
    return handle;
}

int AttachComponent(std::uint32_t frame, std::uint32_t component)
{
    auto found = Frames().find(frame);
    auto* main =
        found == Frames().end() ? nullptr : dynamic_cast<HostMainFrame*>(found->second.get());
    auto* window = dynamic_cast<AstroNoxWindow*>(GetWindowPtr(ToHandle(component)));
    if (!main || !window) {
        return 0;
    }
    main->AttachModule(*window);
    return 1;
}

int CheckData(char* error, std::size_t errorSize)
{
    const std::string folder = HostFile::DataDirectory();
    std::string missing;
    for (const std::string& name : AstroItemCollector::GetProfileStarFiles()) {
        if (HostFile(name, HostFile::ReadOnly).IsOpen()) {
            continue;
        }
        std::string path = name;
        HostFile::ResolvePath(path, true, false);
        missing += std::string(missing.empty() ? "" : "; ") + "the star file " +
                   path.substr(path.rfind('/') + 1) + " is missing: it was looked for at " + path;
    }
    if (missing.empty()) {
        return 1;
    }
    Say(error, errorSize,
        (missing + " (the data folder is " + folder +
         "; set ORBISCOPE_DATA to the folder that holds the planetarium's data)")
            .c_str());
    return 0;
}

// What is wrong with the name of a "stringref", or "" when it names something.
std::string CheckNameRef(const std::string& value)
{
    const std::string form = "stringref takes a catalogue word and a name, as "
                             "stringref=Planet,Mars";
    StringParser parser(value, ",", true);
    const LorvString* token = parser.GetNextToken();
    const std::string word = token ? std::string(*token) : std::string();
    token = parser.GetNextToken();
    const std::string name = token ? std::string(*token) : std::string();
    if (word.empty() || name.empty()) {
        return form + ", not \"stringref=" + value + "\"";
    }
    // A map of its own, never shown, finds names as the component's does.
    MapWindow probe(nullptr);
    AstroCatalogue* catalogue = AstroNoxWindow::CatalogueOfWord(probe.GetCollector(), word);
    if (!catalogue) {
        return "\"" + word +
               "\" is no catalogue: the words are Constellation, Star, Planet "
               "and Messier";
    }
    const auto objects = catalogue->GetListOfNamedObjects();
    const bool found = objects && std::any_of(objects->begin(), objects->end(), [&](auto* o) {
                           return o && EqualNoCase(o->GetRefName(), name);
                       });
    return found ? std::string()
                 : "no object of the catalogue " + word + " is named \"" + name + "\"";
}

// What is wrong with a "uid", or "" when it names something.
std::string CheckUidRef(const std::string& value)
{
    const long uid = hostStringToLong(value);
    if (uid >= 0 && uid <= long(std::numeric_limits<std::uint32_t>::max())) {
        MapWindow probe(nullptr);
        if (AstroObject* object = probe.GetObjectFromUid(std::uint32_t(uid))) {
            object->ReleaseReference();
            return std::string();
        }
    }
    return "uid=" + value + " names no object the planetarium holds";
}

// The keys of a full state that a picture of the view cannot do without: where the map looks
// (unless the options say) and when (unless --time says).
std::string DescribeMissingForView(const std::string& command, const OrbiscopeView& view)
{
    std::vector<std::string> needed = {"FullState", "AstroNoxWindow", "AstroNoxWindow.MapWindow"};
    if (!view.bCenter && !view.bLook && !view.bLocation) {
        needed.insert(needed.end(), {"MapWindow.Orientation_Type", "MapWindow.Orientation"});
    }
    if (!view.bTime) {
        needed.push_back("MapWindow.Time");
    }
    std::string missing;
    for (const std::string& key : HostBookmarkList::MissingKeys(command)) {
        if (std::find(needed.begin(), needed.end(), key) != needed.end()) {
            missing += (missing.empty() ? "" : ", ") + key;
        }
    }
    return missing.empty() ? missing : "it lacks " + missing + ", which the options do not give";
}

int CheckCommand(const char* command, const OrbiscopeView* view, char* error, std::size_t errorSize)
{
    const std::string text = command ? command : "";
    if (text.find_first_not_of(' ') == std::string::npos) {
        return 1;
    }
    const HostCmdLine line(text);
    std::string value;
    std::string wrong;
    if (line.GetValue("FullState", value)) {
        wrong =
            view ? DescribeMissingForView(text, *view) : HostBookmarkList::DescribeMissing(text);
    } else if (line.GetValue("stringref", value)) {
        wrong = CheckNameRef(value);
    } else if (line.GetValue("uid", value)) {
        wrong = CheckUidRef(value);
    } else {
        std::string keys;
        for (const HostCmdLine::Parameter& parameter : line.GetParameters()) {
            keys += (keys.empty() ? "" : ", ") + parameter.Key;
        }
        wrong = (keys.empty() ? "the command string has no key=value in it"
                              : "the planetarium knows no key " + keys) +
                ": give FullState=1 with a bookmark's view, stringref=Word,Name or uid=Number";
    }
    if (wrong.empty()) {
        return 1;
    }
    Say(error, errorSize, wrong.c_str());
    return 0;
}

void KeepSettings(int keep)
{
    SetRegistryReadOnly(keep == 0);
}

void ShowMessage(std::uint32_t frame, const char* text)
{
    TWindow* owner = GetWindowPtr(ToHandle(frame));
    MessageBoxA(owner ? owner->HWindow : nullptr, text ? text : "", "Orbiscope",
                MB_OK | MB_ICONERROR);
}

const OrbiscopeHostKit kKit{
    kOrbiscopeHostKitVersion,
    &OpenDesktop,
    &CreateFrame,
    &GetMapInset,
    &SetView,
    &SaveMapPicture,
    &RunMessageLoop,
    &DestroyFrame,
    &CloseDesktop,
    &PrintChart,
    &StartSkyhunt,
    &CreateMainWindow,
    &AttachComponent,
    &CheckData,
    &CheckCommand,
    &KeepSettings,
    &ShowMessage,
};

} // namespace

extern "C" const OrbiscopeHostKit* orbiscope_host_kit(void)
{
    return &kKit;
}
