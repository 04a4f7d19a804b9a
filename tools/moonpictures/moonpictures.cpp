// Draws the component's built-in pictures and writes them as 8-bit BMP files:
//
//   src/solar/resources/MOON1.bmp ... MOON5.bmp   the Moon in five phases, 49 by 49 pixels
//   src/host/resources/PLNT.bmp                   the title bar icon, 32 by 32 pixels
//   src/shell/resources/*.bmp                     the finder's buttons (ButtonPictures.cpp)
//
//   moonpictures [repository root, default "."]
//
// The Moon is a sphere lit by a distant Sun, seen from the Earth with its north up, with the
// larger maria of the near side as darker patches. Each picture shows a phase typical of the
// range it stands for (phase = elongation of the Moon from the Sun, 0 new, 180 full):
//
//   MOON1  40 degrees   thin crescent, lit on the right (waxing)
//   MOON2  90 degrees   right half lit (first quarter)
//   MOON3  180 degrees  full disc
//   MOON4  270 degrees  left half lit (last quarter)
//   MOON5  320 degrees  thin crescent, lit on the left (waning)
//
// The sky around the disc is index 0, black. Each Moon picture has a colour table of its own of
// 200 warm greys; the icon has a table of 64 entries.
//
// Only +, -, *, / and sqrt enter the pixels, all rounded the same way on every IEEE machine, and
// the directions of the Sun are written out as numbers rather than worked out with sin and cos,
// so the tool writes the same bytes on every run.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

#include "ButtonPictures.h"
#include "Picture8.h"

namespace {

double Clamp01(double v)
{
    return std::min(1.0, std::max(0.0, v));
}

// 0 below `edge0`, 1 above `edge1`, a smooth step between (edge0 may exceed edge1).
double SmoothStep(double edge0, double edge1, double v)
{
    const double t = Clamp01((v - edge0) / (edge1 - edge0));
    return t * t * (3.0 - 2.0 * t);
}

// --- The Moon ------------------------------------------------------------------------------

constexpr int kMoonSide = 49;
constexpr int kMoonColors = 200;
constexpr double kMoonCentre = 24.5; // pixel units from the top left corner
constexpr double kMoonRadius = 23.0; // pixels
constexpr int kSubsamples = 4;       // per axis and pixel, for a smooth limb and terminator

// A dark patch of the near side, as an ellipse on the disc: centre and half axes in units of
// the disc's radius, x to the right and y up as the Moon appears from the northern hemisphere.
struct Mare
{
    double X;
    double Y;
    double HalfWidth;
    double HalfHeight;
};

// The larger maria as they appear to the eye, north up: Procellarum and Imbrium on the left,
// Serenitatis, Tranquillitatis, Crisium and Fecunditatis on the right.
constexpr Mare kMaria[] = {
    {-0.58, 0.12, 0.24, 0.40},  // Oceanus Procellarum
    {-0.32, 0.44, 0.24, 0.20},  // Mare Imbrium
    {0.00, 0.74, 0.38, 0.07},   // Mare Frigoris
    {0.15, 0.40, 0.14, 0.14},   // Mare Serenitatis
    {0.30, 0.14, 0.18, 0.15},   // Mare Tranquillitatis
    {0.66, 0.30, 0.10, 0.09},   // Mare Crisium
    {0.52, -0.13, 0.10, 0.15},  // Mare Fecunditatis
    {0.32, -0.28, 0.08, 0.08},  // Mare Nectaris
    {-0.18, -0.36, 0.15, 0.13}, // Mare Nubium
    {-0.46, -0.30, 0.10, 0.10}, // Mare Humorum
};

// Reflectance of the surface at a point of the disc: 1 for highlands, down to 0.6 in a mare.
double Albedo(double x, double y)
{
    double darkest = 0.0;
    for (const Mare& mare : kMaria) {
        const double dx = (x - mare.X) / mare.HalfWidth;
        const double dy = (y - mare.Y) / mare.HalfHeight;
        const double d = std::sqrt(dx * dx + dy * dy);
        darkest = std::max(darkest, SmoothStep(1.0, 0.65, d));
    }
    return 1.0 - 0.4 * darkest;
}

// The direction of the Sun in the frame of the picture (x right, y up, z towards the viewer):
// (sin E, 0, -cos E) for an elongation E, so that a waxing Moon is lit from the right.
struct Phase
{
    const char* Name;
    double SunX;
    double SunZ;
};

constexpr Phase kPhases[] = {
    {"MOON1", 0.642787609686539, -0.766044443118978}, // E = 40
    {"MOON2", 1.0, 0.0},                              // E = 90
    {"MOON3", 0.0, 1.0},                              // E = 180
    {"MOON4", -1.0, 0.0},                             // E = 270
    {"MOON5", -0.642787609686539, -0.766044443118978} // E = 320
};

// Brightness, 0 to 1, of one point of the picture.
double MoonBrightness(const Phase& phase, double px, double py)
{
    const double x = (px - kMoonCentre) / kMoonRadius;
    const double y = (kMoonCentre - py) / kMoonRadius;
    const double rr = x * x + y * y;
    if (rr > 1.0) {
        return 0.0; // sky
    }
    const double z = std::sqrt(1.0 - rr);
    const double cosIncidence = x * phase.SunX + z * phase.SunZ;
    // The lunar surface looks nearly evenly bright up to the terminator, which is a soft band.
    const double lit = SmoothStep(-0.06, 0.14, cosIncidence);
    const double limb = 0.86 + 0.14 * z;
    const double earthshine = 0.035;
    return Albedo(x, y) * (earthshine + (1.0 - earthshine) * lit * limb);
}

Picture DrawMoon(const Phase& phase)
{
    Picture picture;
    picture.Width = kMoonSide;
    picture.Height = kMoonSide;
    for (int i = 0; i < kMoonColors; ++i) {
        // A faintly warm grey, as the Moon looks low in the sky.
        const double level = 255.0 * i / (kMoonColors - 1);
        picture.Colors.push_back({std::uint8_t(std::lround(level)),
                                  std::uint8_t(std::lround(level * 0.96)),
                                  std::uint8_t(std::lround(level * 0.86))});
    }
    for (int py = 0; py < kMoonSide; ++py) {
        for (int px = 0; px < kMoonSide; ++px) {
            double sum = 0.0;
            for (int sy = 0; sy < kSubsamples; ++sy) {
                for (int sx = 0; sx < kSubsamples; ++sx) {
                    sum += MoonBrightness(phase, px + (sx + 0.5) / kSubsamples,
                                          py + (sy + 0.5) / kSubsamples);
                }
            }
            const double brightness = sum / (kSubsamples * kSubsamples);
            picture.Pixels.push_back(std::uint8_t(std::lround(brightness * (kMoonColors - 1))));
        }
    }
    return picture;
}

// --- The icon ------------------------------------------------------------------------------

constexpr int kIconSide = 32;
constexpr int kShades = 31; // per ramp: planet 1 to 31, ring 32 to 62; 0 black, 63 white
constexpr double kIconCentre = 16.0;
constexpr double kPlanetRadius = 8.5;
// The ring plane seen obliquely: its long axis tilted by this slope (rise over run, up to the
// right), its short axis squeezed by this factor.
constexpr double kRingCos = 0.939692620785908; // cos 20 degrees
constexpr double kRingSin = 0.342020143325669; // sin 20 degrees
constexpr double kRingSqueeze = 0.30;
constexpr double kRingInner = 10.5;
constexpr double kRingOuter = 14.5;

enum class IconPart
{
    Sky,
    Planet,
    Ring
};

struct IconSample
{
    IconPart Part;
    double Brightness;
};

IconSample SampleIcon(double px, double py)
{
    const double dx = px - kIconCentre;
    const double dy = kIconCentre - py; // up
    // Coordinates in the ring plane: u along the long axis, v across, unsqueezed.
    const double u = dx * kRingCos + dy * kRingSin;
    const double v = (-dx * kRingSin + dy * kRingCos) / kRingSqueeze;
    const double ringDistance = std::sqrt(u * u + v * v);
    const bool onRing = ringDistance >= kRingInner && ringDistance <= kRingOuter;
    const bool ringInFront = v < 0.0; // the near half of the ring passes below the centre

    const double x = dx / kPlanetRadius;
    const double y = dy / kPlanetRadius;
    const double rr = x * x + y * y;
    const bool onPlanet = rr <= 1.0;

    if (onRing && (ringInFront || !onPlanet)) {
        // Brighter towards the outer edge, with a dark gap a third of the way out.
        const double across = (ringDistance - kRingInner) / (kRingOuter - kRingInner);
        const double gap = SmoothStep(0.08, 0.0, std::fabs(across - 0.62));
        return {IconPart::Ring, 0.55 + 0.4 * across - 0.35 * gap};
    }
    if (onPlanet) {
        // Lit from the upper left; soft bands parallel to the ring.
        const double z = std::sqrt(1.0 - rr);
        const double light = Clamp01(-0.45 * x + 0.45 * y + 0.77 * z);
        const double band = std::fabs(-x * kRingSin + y * kRingCos);
        const double banding =
            (band > 0.25 && band < 0.4) || (band > 0.6 && band < 0.7) ? 0.82 : 1.0;
        return {IconPart::Planet, (0.18 + 0.82 * light) * banding};
    }
    return {IconPart::Sky, 0.0};
}

Picture DrawIcon()
{
    Picture picture;
    picture.Width = kIconSide;
    picture.Height = kIconSide;
    picture.Colors.push_back({0, 0, 0});
    for (int i = 1; i <= kShades; ++i) {
        const double t = double(i) / kShades; // an ochre planet
        picture.Colors.push_back({std::uint8_t(std::lround(250 * t)),
                                  std::uint8_t(std::lround(196 * t)),
                                  std::uint8_t(std::lround(110 * t))});
    }
    for (int i = 1; i <= kShades; ++i) {
        const double t = double(i) / kShades; // a pale, slightly blue ring
        picture.Colors.push_back({std::uint8_t(std::lround(215 * t)),
                                  std::uint8_t(std::lround(215 * t)),
                                  std::uint8_t(std::lround(235 * t))});
    }
    picture.Colors.push_back({255, 255, 255});

    for (int py = 0; py < kIconSide; ++py) {
        for (int px = 0; px < kIconSide; ++px) {
            int counts[3] = {0, 0, 0};
            double sums[3] = {0.0, 0.0, 0.0};
            for (int sy = 0; sy < kSubsamples; ++sy) {
                for (int sx = 0; sx < kSubsamples; ++sx) {
                    const IconSample s =
                        SampleIcon(px + (sx + 0.5) / kSubsamples, py + (sy + 0.5) / kSubsamples);
                    counts[int(s.Part)] += 1;
                    sums[int(s.Part)] += s.Brightness;
                }
            }
            // The part that covers most of the pixel gives its ramp; the sky's share darkens it.
            const int part = counts[2] >= counts[1] ? 2 : 1;
            std::uint8_t index = 0;
            if (counts[part] > 0 && counts[part] * 4 >= kSubsamples * kSubsamples) {
                const double coverage =
                    double(counts[1] + counts[2]) / double(kSubsamples * kSubsamples);
                const double brightness = sums[part] / counts[part] * coverage;
                const long shade = std::clamp(std::lround(brightness * kShades), 1L, long(kShades));
                index = std::uint8_t((part == 1 ? 0 : kShades) + shade);
            }
            picture.Pixels.push_back(index);
        }
    }
    return picture;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string root = argc > 1 ? argv[1] : ".";
    bool ok = true;
    for (const Phase& phase : kPhases) {
        ok = WriteFile(root + "/src/solar/resources/" + phase.Name + ".bmp",
                       EncodeBmp(DrawMoon(phase))) &&
             ok;
    }
    ok = WriteFile(root + "/src/host/resources/PLNT.bmp", EncodeBmp(DrawIcon())) && ok;
    ok = WriteButtonPictures(root) && ok;
    return ok ? 0 : 1;
}
