// orbiscope: the reference host of the planetarium component.
//
//   orbiscope [COMMAND]                  the planetarium in a window on the display
//   orbiscope render --out FILE [...]    one picture of the sky, made without a display
//   orbiscope print --out FILE [...]     a printed star chart as a PDF, made without a display
//   orbiscope skyhunt                    the sky game in a window on the display
//   orbiscope --help | --version
//
// The program links nothing of the component. It loads liborbiscope.so at run time (the file
// named by ORBISCOPE_LIBRARY, else the one beside the program, else the one in the lib folder
// of the program's installation, else the one of the build tree), looks up the entry
// `orbiscope` and the host kit, makes a frame window, hands the entry the frame and the
// command string, and runs the message loop; or, for `render`, lets one frame be drawn on the
// headless desktop and writes the map to a PNG file; or, for `print`, prints the chart of the
// view there into a PDF file.
#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "shell/OrbiscopeEntry.h"
#include "shell/ReferenceHostKit.h"

namespace {

constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;

// The window on the display, and the default picture.
constexpr int kFrameWidth = 1024;
constexpr int kFrameHeight = 768;
constexpr int kLargestSide = 8192;
// How long the display may take to answer.
constexpr std::chrono::seconds kDisplayWait(5);

void PrintUsage(std::FILE* out)
{
    std::fprintf(
        out,
        "orbiscope %s - an interactive sky map\n"
        "\n"
        "usage:\n"
        "  orbiscope [COMMAND]\n"
        "      Opens the planetarium in a window on the display. COMMAND is a command\n"
        "      string for the component as a host hands it over, such as a bookmark's\n"
        "      \"FullState=1 AstroNoxWindow=<...>\", or stringref=Planet,Mars.\n"
        "      The first start asks for your place. In the window the Menu button at the\n"
        "      top right (or F10, or a right click on the strip) holds every command, and\n"
        "      F1 opens the help page.\n"
        "\n"
        "  orbiscope render --out FILE [options] [COMMAND]\n"
        "      Draws one frame of the sky without a display and writes it to FILE as a PNG\n"
        "      picture. COMMAND is handed to the component first; the options apply after\n"
        "      it.\n"
        "        --out FILE        the picture to write (required)\n"
        "        --size WxH        its size in pixels (default %dx%d)\n"
        "        --time \"YYYY-MM-DD HH:MM[:SS]\"\n"
        "                          the moment shown, in Universal Time (default: now)\n"
        "        --center RA,DEC   look at RA and Dec, in degrees, with north up\n"
        "        --location LAT,LON  look from this place on the Earth, in degrees north and\n"
        "                          east (a place west or south is negative); the view turns\n"
        "                          with the sky and shows the horizon\n"
        "        --look AZ,ALT     look from the ground this way: a compass bearing (0 north,\n"
        "                          90 east) and an altitude in degrees; the view is raised\n"
        "                          until its field clears the horizon\n"
        "        --radius DEG      degrees from the centre to the nearer edge, above 0 and\n"
        "                          at most 90\n"
        "        --grid            show the grid of right ascension and declination\n"
        "        --limit MAG       show stars down to this magnitude\n"
        "      What no option gives is the planetarium's own start: the view kept when a\n"
        "      place was last set in the window, or else a view from San Francisco looking\n"
        "      east, 30 degrees up, 20 degrees in radius, with stars down to magnitude 6.\n"
        "      --location alone keeps the direction of that view; --look alone its place.\n"
        "      Neither command writes anything of the settings kept in the window.\n"
        "\n"
        "  orbiscope print --out FILE [options] [COMMAND]\n"
        "      Prints a star chart of the view without a display into FILE as a PDF: the\n"
        "      sky above, and below it a compass of where the view looks and a heading\n"
        "      with the date and time, the place, the field and the centre of view.\n"
        "      COMMAND is handed to the component first; the options apply after it.\n"
        "        --out FILE        the PDF file to write (required)\n"
        "        --paper a4|letter the paper (default a4)\n"
        "        --time, --center, --location, --look, --radius, --grid, --limit\n"
        "                          the view, as for render\n"
        "\n"
        "  orbiscope skyhunt\n"
        "      Plays the sky game in a window on the display: find the constellation it\n"
        "      names on a bare sky map, five to a round.\n"
        "\n"
        "  orbiscope --help       this text\n"
        "  orbiscope --version    the version\n"
        "\n"
        "Without a display (neither DISPLAY nor WAYLAND_DISPLAY set) use render or print,\n"
        "e.g.\n"
        "  orbiscope render --out sky.png --center 0,90 --radius 60 --grid\n"
        "  orbiscope render --out south.png --location 50,8.7 --look 180,20 --radius 40\n"
        "  orbiscope print --out chart.pdf --paper letter --center 84,0 --radius 20\n"
        "\n"
        "The component is loaded from liborbiscope.so beside the program, or from the file\n"
        "that ORBISCOPE_LIBRARY names.\n",
        ORBISCOPE_VERSION, kFrameWidth, kFrameHeight);
}

// The library and what the program looks up in it.
struct Component
{
    OrbiscopeEntry Entry = nullptr;
    const OrbiscopeHostKit* Kit = nullptr;
};

std::string ProgramDirectory()
{
    std::vector<char> path(4096);
    ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size() - 1);
    if (length <= 0) {
        return std::string();
    }
    std::string self(path.data(), std::size_t(length));
    std::size_t slash = self.rfind('/');
    return slash == std::string::npos ? std::string() : self.substr(0, slash);
}

std::optional<Component> LoadComponent(std::string& error)
{
    std::vector<std::string> candidates;
    if (const char* named = std::getenv("ORBISCOPE_LIBRARY"); named && *named) {
        candidates.push_back(named);
    } else {
        std::string beside = ProgramDirectory();
        if (!beside.empty()) {
            candidates.push_back(beside + "/liborbiscope.so");
            candidates.push_back(beside + "/" + ORBISCOPE_INSTALLED_LIBRARY);
        }
        candidates.push_back(ORBISCOPE_BUILD_LIBRARY);
    }
    for (const std::string& path : candidates) {
        // The library stays loaded for the life of the program.
        void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (!library) {
            error = ::dlerror();
            continue;
        }
        Component component;
        component.Entry = reinterpret_cast<OrbiscopeEntry>(::dlsym(library, "orbiscope"));
        auto getKit =
            reinterpret_cast<OrbiscopeHostKitGetter>(::dlsym(library, "orbiscope_host_kit"));
        component.Kit = getKit ? getKit() : nullptr;
        if (!component.Entry || !component.Kit ||
            component.Kit->nVersion != kOrbiscopeHostKitVersion) {
            error = path + " is not a planetarium library of this version";
            continue;
        }
        return component;
    }
    return std::nullopt;
}

// The component, or nothing after saying on standard error why it could not be loaded.
std::optional<Component> LoadComponentOrSay()
{
    std::string error;
    std::optional<Component> component = LoadComponent(error);
    if (!component) {
        std::fprintf(stderr, "orbiscope: cannot load the planetarium: %s\n", error.c_str());
    }
    return component;
}

HWND ToHandle(std::uint32_t handle)
{
    return reinterpret_cast<HWND>(std::uintptr_t(handle));
}

std::string Join(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

// Option values.

bool ParseNumber(const std::string& text, double& value)
{
    if (text.empty()) {
        return false;
    }
    char* end = nullptr;
    errno = 0;
    value = std::strtod(text.c_str(), &end);
    return errno == 0 && end == text.c_str() + text.size() && std::isfinite(value);
}

bool ParseInteger(const std::string& text, long& value)
{
    if (text.empty()) {
        return false;
    }
    char* end = nullptr;
    errno = 0;
    value = std::strtol(text.c_str(), &end, 10);
    return errno == 0 && end == text.c_str() + text.size();
}

bool ParseSize(const std::string& text, int& width, int& height)
{
    std::size_t x = text.find_first_of("xX");
    long w = 0;
    long h = 0;
    if (x == std::string::npos || !ParseInteger(text.substr(0, x), w) ||
        !ParseInteger(text.substr(x + 1), h) || w < 1 || h < 1 || w > kLargestSide ||
        h > kLargestSide) {
        return false;
    }
    width = int(w);
    height = int(h);
    return true;
}

bool IsLeapYear(long year)
{
    // The map's calendar is the Julian one before 1582 and the Gregorian one after.
    if (year < 1582) {
        return year % 4 == 0;
    }
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysInMonth(long year, int month)
{
    static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : days[month - 1];
}

// "YYYY-MM-DD HH:MM[:SS]" (a year may carry a sign, seconds a fraction; a "T" may stand for
// the blank).
bool ParseTime(const std::string& text, OrbiscopeView& view)
{
    std::size_t blank = text.find_first_of(" T");
    if (blank == std::string::npos) {
        return false;
    }
    const std::string date = text.substr(0, blank);
    const std::string clock = text.substr(blank + 1);
    // The year's own sign is not a separator.
    std::size_t first = date.find('-', 1);
    std::size_t second = first == std::string::npos ? first : date.find('-', first + 1);
    if (second == std::string::npos) {
        return false;
    }
    long year = 0;
    long month = 0;
    long day = 0;
    if (!ParseInteger(date.substr(0, first), year) ||
        !ParseInteger(date.substr(first + 1, second - first - 1), month) ||
        !ParseInteger(date.substr(second + 1), day) || month < 1 || month > 12 || day < 1 ||
        day > DaysInMonth(year, int(month)) || year < -4712 || year > 9999) {
        return false;
    }
    std::size_t colon = clock.find(':');
    if (colon == std::string::npos) {
        return false;
    }
    std::size_t colon2 = clock.find(':', colon + 1);
    long hour = 0;
    long minute = 0;
    double second2 = 0.0;
    if (!ParseInteger(clock.substr(0, colon), hour) ||
        !ParseInteger(clock.substr(colon + 1, colon2 == std::string::npos ? std::string::npos
                                                                          : colon2 - colon - 1),
                      minute) ||
        (colon2 != std::string::npos && !ParseNumber(clock.substr(colon2 + 1), second2)) ||
        hour < 0 || hour > 23 || minute < 0 || minute > 59 || second2 < 0.0 || second2 >= 60.0) {
        return false;
    }
    view.bTime = 1;
    view.nYear = int(year);
    view.nMonth = int(month);
    view.nDay = int(day);
    view.nHour = int(hour);
    view.nMinute = int(minute);
    view.Second = second2;
    return true;
}

bool ParseCenter(const std::string& text, OrbiscopeView& view)
{
    std::size_t comma = text.find(',');
    double ra = 0.0;
    double dec = 0.0;
    if (comma == std::string::npos || !ParseNumber(text.substr(0, comma), ra) ||
        !ParseNumber(text.substr(comma + 1), dec) || dec < -90.0 || dec > 90.0) {
        return false;
    }
    view.bCenter = 1;
    view.RA = ra;
    view.Dec = dec;
    return true;
}

// Two numbers "A,B", each within its bounds.
bool ParsePair(const std::string& text, double& first, double& second, double firstLow,
               double firstHigh, double secondLow, double secondHigh)
{
    std::size_t comma = text.find(',');
    return comma != std::string::npos && ParseNumber(text.substr(0, comma), first) &&
           ParseNumber(text.substr(comma + 1), second) && first >= firstLow && first <= firstHigh &&
           second >= secondLow && second <= secondHigh;
}

// What `render` and `print` are asked to make.
struct RenderRequest
{
    std::string Out;
    int Width = kFrameWidth;
    int Height = kFrameHeight;
    // For print: 0 A4, 1 Letter.
    int Paper = 0;
    OrbiscopeView View{};
    std::string Command;
};

enum class Making
{
    Picture,
    Chart,
};

// Reads the options of `render` or `print`; false with a message for the user on a bad one.
bool ParseRequest(const std::vector<std::string>& args, Making making, RenderRequest& request,
                  std::string& error)
{
    std::vector<std::string> words;
    for (std::size_t i = 0; i < args.size(); ++i) {
        std::string name = args[i];
        std::optional<std::string> inlineValue;
        if (name.rfind("--", 0) == 0 && name.find('=') != std::string::npos) {
            inlineValue = name.substr(name.find('=') + 1);
            name = name.substr(0, name.find('='));
        }
        auto value = [&](std::string& out) {
            if (inlineValue) {
                out = *inlineValue;
                return true;
            }
            if (i + 1 >= args.size()) {
                error = name + " needs a value";
                return false;
            }
            out = args[++i];
            return true;
        };
        std::string text;
        if (name == "--out") {
            if (!value(request.Out)) {
                return false;
            }
            if (request.Out.empty()) {
                error = "--out needs a file name";
                return false;
            }
        } else if (name == "--size" && making == Making::Picture) {
            if (!value(text)) {
                return false;
            }
            if (!ParseSize(text, request.Width, request.Height)) {
                error = "--size takes WIDTHxHEIGHT, each 1 to " + std::to_string(kLargestSide) +
                        " pixels, not \"" + text + "\"";
                return false;
            }
        } else if (name == "--paper" && making == Making::Chart) {
            if (!value(text)) {
                return false;
            }
            if (text == "a4" || text == "A4") {
                request.Paper = 0;
            } else if (text == "letter" || text == "Letter") {
                request.Paper = 1;
            } else {
                error = "--paper takes a4 or letter, not \"" + text + "\"";
                return false;
            }
        } else if (name == "--time") {
            if (!value(text)) {
                return false;
            }
            if (!ParseTime(text, request.View)) {
                error = "--time takes a real date and time of day as \"YYYY-MM-DD HH:MM\" or "
                        "\"YYYY-MM-DD HH:MM:SS\", not \"" +
                        text + "\"";
                return false;
            }
        } else if (name == "--center") {
            if (!value(text)) {
                return false;
            }
            if (!ParseCenter(text, request.View)) {
                error = "--center takes RA,DEC in degrees with DEC from -90 to 90, not \"" + text +
                        "\"";
                return false;
            }
        } else if (name == "--location") {
            if (!value(text)) {
                return false;
            }
            if (!ParsePair(text, request.View.Latitude, request.View.Longitude, -90.0, 90.0, -360.0,
                           360.0)) {
                error = "--location takes LAT,LON in degrees north and east, LAT from -90 to "
                        "90, not \"" +
                        text + "\"";
                return false;
            }
            request.View.bLocation = 1;
        } else if (name == "--look") {
            if (!value(text)) {
                return false;
            }
            if (!ParsePair(text, request.View.Azimuth, request.View.Altitude, -360.0, 360.0, -90.0,
                           90.0)) {
                error = "--look takes AZ,ALT in degrees, a bearing and an altitude from -90 to "
                        "90, not \"" +
                        text + "\"";
                return false;
            }
            request.View.bLook = 1;
        } else if (name == "--radius") {
            if (!value(text)) {
                return false;
            }
            if (!ParseNumber(text, request.View.Radius) || request.View.Radius <= 0.0 ||
                request.View.Radius > 90.0) {
                error = "--radius takes degrees above 0 and at most 90, not \"" + text + "\"";
                return false;
            }
            request.View.bRadius = 1;
        } else if (name == "--limit") {
            if (!value(text)) {
                return false;
            }
            if (!ParseNumber(text, request.View.LimitingMagnitude)) {
                error = "--limit takes a magnitude, not \"" + text + "\"";
                return false;
            }
            request.View.bLimit = 1;
        } else if (name == "--grid") {
            if (inlineValue) {
                error = "--grid takes no value";
                return false;
            }
            request.View.bGrid = 1;
        } else if (name.rfind("--", 0) == 0) {
            error = "unknown option " + name;
            return false;
        } else {
            words.push_back(args[i]);
        }
    }
    if (request.Out.empty()) {
        error = making == Making::Picture ? "render needs --out FILE, the picture to write"
                                          : "print needs --out FILE, the PDF file to write";
        return false;
    }
    if (request.View.bCenter && (request.View.bLocation || request.View.bLook)) {
        error = "--center looks at the stars and --location and --look from the ground: give "
                "one or the other";
        return false;
    }
    request.Command = Join(words);
    return true;
}

// `orbiscope render` and `orbiscope print`: the component in a frame without a display, set to
// the requested view, then the picture of the map or the chart of its view written out.
int MakeWithoutDisplay(const std::vector<std::string>& args, Making making)
{
    const char* const command = making == Making::Picture ? "render" : "print";
    RenderRequest request;
    std::string error;
    if (!ParseRequest(args, making, request, error)) {
        std::fprintf(stderr, "orbiscope %s: %s (see orbiscope --help)\n", command, error.c_str());
        return kExitUsage;
    }
    std::optional<Component> component = LoadComponentOrSay();
    if (!component) {
        return kExitFailure;
    }
    const OrbiscopeHostKit& kit = *component->Kit;
    // A picture or a chart shows the settings kept in the window and changes none of them.
    kit.KeepSettings(0);
    char reason[1024] = {};
    if (!kit.CheckData(reason, sizeof reason)) {
        std::fprintf(stderr, "orbiscope %s: %s\n", command, reason);
        return kExitFailure;
    }
    if (!kit.CheckCommand(request.Command.c_str(), &request.View, reason, sizeof reason)) {
        std::fprintf(stderr, "orbiscope %s: cannot use the command string: %s\n", command, reason);
        return kExitUsage;
    }
    kit.OpenDesktop(0, reason, sizeof reason);

    // A picture: the frame is as much larger than the picture as the bezel round the map
    // takes. A chart's sky has the page's shape, whatever the size of the window.
    const int inset = kit.GetMapInset();
    const std::uint32_t frame =
        making == Making::Picture
            ? kit.CreateFrame("Orbiscope", request.Width + 2 * inset, request.Height + 2 * inset)
            : kit.CreateFrame("Orbiscope", kFrameWidth, kFrameHeight);
    const std::uint32_t map =
        frame ? component->Entry(ToHandle(frame), request.Command.c_str()) : 0;
    int status = 0;
    if (!map) {
        std::fprintf(stderr, "orbiscope %s: the planetarium did not start\n", command);
        status = kExitFailure;
    } else {
        kit.SetView(map, &request.View);
        int width = 0;
        int height = 0;
        const bool written = making == Making::Picture
                                 ? kit.SaveMapPicture(map, request.Out.c_str(), &width, &height)
                                 : kit.PrintChart(map, request.Out.c_str(), request.Paper);
        if (!written) {
            std::fprintf(stderr, "orbiscope %s: cannot write %s\n", command, request.Out.c_str());
            status = kExitFailure;
        } else if (making == Making::Picture) {
            std::printf("orbiscope: wrote %s (%dx%d)\n", request.Out.c_str(), width, height);
        } else {
            std::printf("orbiscope: wrote %s (%s)\n", request.Out.c_str(),
                        request.Paper == 0 ? "A4" : "Letter");
        }
    }
    if (frame) {
        kit.DestroyFrame(frame);
    }
    kit.CloseDesktop();
    return status;
}

bool HasDisplay()
{
    const char* x = std::getenv("DISPLAY");
    const char* wayland = std::getenv("WAYLAND_DISPLAY");
    return (x && *x) || (wayland && *wayland);
}

// Opens the display, or ends the program with a message when the display has not answered
// within kDisplayWait: a display that cannot be reached must not leave the user waiting.
bool OpenDisplay(const OrbiscopeHostKit& kit, char* reason, std::size_t size)
{
    std::mutex lock;
    std::condition_variable answered;
    bool done = false;
    std::thread watch([&] {
        std::unique_lock<std::mutex> held(lock);
        if (!answered.wait_for(held, kDisplayWait, [&] { return done; })) {
            const char* display = std::getenv("DISPLAY");
            std::fprintf(stderr,
                         "orbiscope: the display \"%s\" does not answer (waited %lld seconds).\n"
                         "To draw the sky into a picture instead:\n"
                         "  orbiscope render --out sky.png\n",
                         display ? display : "", static_cast<long long>(kDisplayWait.count()));
            std::_Exit(kExitFailure);
        }
    });
    const bool opened = kit.OpenDesktop(1, reason, size) != 0;
    {
        std::lock_guard<std::mutex> held(lock);
        done = true;
    }
    answered.notify_one();
    watch.join();
    return opened;
}

int RunOnDisplay(const std::vector<std::string>& args)
{
    if (!HasDisplay()) {
        std::fprintf(stderr,
                     "orbiscope: there is no display (neither DISPLAY nor WAYLAND_DISPLAY is "
                     "set).\n"
                     "To draw the sky into a picture or print a chart instead:\n"
                     "  orbiscope render --out sky.png\n"
                     "  orbiscope print --out chart.pdf\n"
                     "See orbiscope --help for the view options.\n");
        return kExitFailure;
    }
    std::optional<Component> component = LoadComponentOrSay();
    if (!component) {
        return kExitFailure;
    }
    const OrbiscopeHostKit& kit = *component->Kit;
    const std::string command = Join(args);
    char missing[1024] = {};
    const bool data = kit.CheckData(missing, sizeof missing) != 0;
    char reason[1024] = {};
    if (data && !kit.CheckCommand(command.c_str(), nullptr, reason, sizeof reason)) {
        std::fprintf(stderr, "orbiscope: cannot use the command string: %s\n", reason);
        return kExitUsage;
    }
    if (!OpenDisplay(kit, reason, sizeof reason)) {
        std::fprintf(stderr,
                     "orbiscope: cannot open the display: %s\n"
                     "To draw the sky into a picture instead:\n"
                     "  orbiscope render --out sky.png\n",
                     reason);
        return kExitFailure;
    }
    const std::uint32_t frame = kit.CreateMainWindow("Orbiscope", kFrameWidth, kFrameHeight);
    if (frame && !data) {
        // Said in the window too, where the user looks for the sky.
        std::fprintf(stderr, "orbiscope: %s\n", missing);
        kit.ShowMessage(frame, missing);
        kit.DestroyFrame(frame);
        kit.CloseDesktop();
        return kExitFailure;
    }
    const std::uint32_t map = frame ? component->Entry(ToHandle(frame), command.c_str()) : 0;
    if (!map) {
        std::fprintf(stderr, "orbiscope: the planetarium did not start\n");
        if (frame) {
            kit.DestroyFrame(frame);
        }
        kit.CloseDesktop();
        return kExitFailure;
    }
    kit.AttachComponent(frame, map);
    int status = kit.RunMessageLoop();
    kit.DestroyFrame(frame);
    kit.CloseDesktop();
    return status;
}

// `orbiscope skyhunt`: the sky game alone, without the planetarium's frame.
int RunSkyhunt()
{
    if (!HasDisplay()) {
        std::fprintf(stderr, "orbiscope skyhunt: the sky game needs a display (neither DISPLAY "
                             "nor WAYLAND_DISPLAY is set)\n");
        return kExitFailure;
    }
    std::optional<Component> component = LoadComponentOrSay();
    if (!component) {
        return kExitFailure;
    }
    const OrbiscopeHostKit& kit = *component->Kit;
    char reason[256] = {};
    if (!OpenDisplay(kit, reason, sizeof reason)) {
        std::fprintf(stderr, "orbiscope skyhunt: cannot open the display: %s\n", reason);
        return kExitFailure;
    }
    int status = kExitFailure;
    if (kit.StartSkyhunt()) {
        status = kit.RunMessageLoop();
    } else {
        std::fprintf(stderr, "orbiscope skyhunt: the game did not start\n");
    }
    kit.CloseDesktop();
    return status;
}

// The distance of two words in letters put in, left out or changed.
std::size_t EditDistance(const std::string& a, const std::string& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t above = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] != b[j - 1])});
            diagonal = above;
        }
    }
    return row[b.size()];
}

// A first word that is no command and no part of a command string: a command mistyped.
int UnknownCommand(const std::string& word)
{
    std::string guess;
    for (const char* known : {"render", "print", "skyhunt"}) {
        if (EditDistance(word, known) <= 2) {
            guess = std::string(" (did you mean ") + known + "?)";
        }
    }
    std::fprintf(
        stderr,
        "orbiscope: unknown command \"%s\"%s; the commands are render, print and skyhunt, and "
        "a command string holds key=value words (see orbiscope --help)\n",
        word.c_str(), guess.c_str());
    return kExitUsage;
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<std::string> args(argv + 1, argv + argc);
    if (!args.empty() && (args[0] == "--version" || args[0] == "-V")) {
        std::printf("orbiscope %s\n", ORBISCOPE_VERSION);
        return 0;
    }
    if (!args.empty() && (args[0] == "--help" || args[0] == "-h")) {
        PrintUsage(stdout);
        return 0;
    }
    if (!args.empty() && args[0] == "render") {
        return MakeWithoutDisplay(std::vector<std::string>(args.begin() + 1, args.end()),
                                  Making::Picture);
    }
    if (!args.empty() && args[0] == "print") {
        return MakeWithoutDisplay(std::vector<std::string>(args.begin() + 1, args.end()),
                                  Making::Chart);
    }
    if (!args.empty() && args[0] == "skyhunt") {
        if (args.size() > 1) {
            std::fprintf(stderr, "orbiscope skyhunt takes nothing more (see orbiscope --help)\n");
            return kExitUsage;
        }
        return RunSkyhunt();
    }
    if (!args.empty() && args[0].rfind("--", 0) == 0) {
        std::fprintf(stderr, "orbiscope: unknown option %s\n\n", args[0].c_str());
        PrintUsage(stderr);
        return kExitUsage;
    }
    // A command string's words are key=value pairs; only the module word of a bookmark,
    // "orbiscope", may stand before them.
    if (!args.empty() && args[0].find('=') == std::string::npos && args[0] != "orbiscope") {
        return UnknownCommand(args[0]);
    }
    return RunOnDisplay(args);
}
