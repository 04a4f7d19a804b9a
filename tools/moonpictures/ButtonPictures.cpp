// Draws the pictures of the finder's button bar and writes them as 8-bit BMP files into
// src/shell/resources/, where the build embeds them:
//
//   pbzoomin.bmp   a magnifying glass with a plus: zoom in
//   pbzoomot.bmp   a magnifying glass with a minus: zoom out
//   showoutl.bmp   a constellation figure: show the figures
//   hideoutl.bmp   the same figure struck through: hide the figures
//   goskyhnt.bmp   cross hairs in a ring: start the sky game
//
// Each file is a strip of three frames of 24 by 24 pixels side by side: the button at rest,
// under the mouse, and pressed (darker, the symbol one pixel down and right). The button is a
// round face with a light symbol; colour index 0 (magenta) is the background, which the button
// leaves transparent. Each pixel is sampled 4 by 4 times and the symbol's share of it blends
// the symbol into the face in eight steps, so the colour table stays small.
//
// Only +, -, *, / and sqrt enter the pixels, so the tool writes the same bytes on every run.
#include "ButtonPictures.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Picture8.h"

namespace {

// --- Shapes, in pixel units of one frame (0 to 24, y down) ----------------------------------

constexpr int kSide = 24;
constexpr int kFrames = 3;
constexpr int kSubsamples = 4;
constexpr int kBlendSteps = 8;
constexpr double kFaceCentre = 12.0;
constexpr double kFaceRadius = 11.0;
constexpr double kRimWidth = 1.2;

struct Point
{
    double X;
    double Y;
};

double Distance(Point a, Point b)
{
    const double dx = a.X - b.X;
    const double dy = a.Y - b.Y;
    return std::sqrt(dx * dx + dy * dy);
}

// Distance from p to the segment from a to b.
double DistanceToSegment(Point p, Point a, Point b)
{
    const double vx = b.X - a.X;
    const double vy = b.Y - a.Y;
    const double length2 = vx * vx + vy * vy;
    double t = length2 > 0.0 ? ((p.X - a.X) * vx + (p.Y - a.Y) * vy) / length2 : 0.0;
    t = std::clamp(t, 0.0, 1.0);
    return Distance(p, Point{a.X + t * vx, a.Y + t * vy});
}

struct Stroke
{
    Point From;
    Point To;
    double Width;
};

struct Ring
{
    Point Centre;
    double Radius;
    double Width;
};

struct Dot
{
    Point Centre;
    double Radius;
};

// A symbol: strokes, rings and dots in the light colour, and strokes in the accent colour.
struct Symbol
{
    const char* File;
    std::vector<Stroke> Strokes;
    std::vector<Ring> Rings;
    std::vector<Dot> Dots;
    std::vector<Stroke> Accents;
};

bool InSymbol(const Symbol& s, Point p)
{
    for (const Stroke& stroke : s.Strokes) {
        if (DistanceToSegment(p, stroke.From, stroke.To) <= stroke.Width / 2) {
            return true;
        }
    }
    for (const Ring& ring : s.Rings) {
        if (std::fabs(Distance(p, ring.Centre) - ring.Radius) <= ring.Width / 2) {
            return true;
        }
    }
    for (const Dot& dot : s.Dots) {
        if (Distance(p, dot.Centre) <= dot.Radius) {
            return true;
        }
    }
    return false;
}

bool InAccent(const Symbol& s, Point p)
{
    for (const Stroke& stroke : s.Accents) {
        if (DistanceToSegment(p, stroke.From, stroke.To) <= stroke.Width / 2) {
            return true;
        }
    }
    return false;
}

// A magnifying glass: the lens up left, the handle down right.
Symbol Magnifier(const char* file, bool plus)
{
    Symbol s{file, {}, {}, {}, {}};
    s.Rings.push_back({{10.0, 10.0}, 5.0, 2.0});
    s.Strokes.push_back({{13.8, 13.8}, {18.0, 18.0}, 3.0});
    s.Strokes.push_back({{7.5, 10.0}, {12.5, 10.0}, 1.6});
    if (plus) {
        s.Strokes.push_back({{10.0, 7.5}, {10.0, 12.5}, 1.6});
    }
    return s;
}

// The stars and lines of a small figure, something like Cassiopeia's W.
Symbol Figure(const char* file, bool struck)
{
    const Point stars[] = {{5.0, 9.0}, {9.0, 15.5}, {12.0, 10.0}, {15.5, 15.5}, {19.0, 8.0}};
    Symbol s{file, {}, {}, {}, {}};
    for (int i = 0; i + 1 < 5; ++i) {
        s.Strokes.push_back({stars[i], stars[i + 1], 1.0});
    }
    for (const Point& star : stars) {
        s.Dots.push_back({star, 1.8});
    }
    if (struck) {
        s.Accents.push_back({{5.5, 18.5}, {18.5, 5.5}, 2.0});
    }
    return s;
}

// Cross hairs in a ring, with a dot in the middle.
Symbol CrossHairs(const char* file)
{
    Symbol s{file, {}, {}, {}, {}};
    s.Rings.push_back({{12.0, 12.0}, 6.0, 1.6});
    s.Strokes.push_back({{12.0, 3.5}, {12.0, 8.5}, 1.6});
    s.Strokes.push_back({{12.0, 15.5}, {12.0, 20.5}, 1.6});
    s.Strokes.push_back({{3.5, 12.0}, {8.5, 12.0}, 1.6});
    s.Strokes.push_back({{15.5, 12.0}, {20.5, 12.0}, 1.6});
    s.Dots.push_back({{12.0, 12.0}, 1.3});
    return s;
}

// The face at rest, under the mouse and pressed; the rim a little darker than each.
const Rgb kFaces[kFrames] = {{44, 70, 118}, {70, 104, 166}, {30, 46, 80}};
const Rgb kRims[kFrames] = {{24, 40, 70}, {40, 64, 110}, {16, 26, 48}};
const Rgb kLight = {236, 240, 250};
const Rgb kAccent = {235, 84, 72};
const Rgb kBackground = {255, 0, 255};

Rgb Blend(const Rgb& from, const Rgb& to, int step)
{
    auto mix = [step](int a, int b) { return std::uint8_t(a + (b - a) * step / kBlendSteps); };
    return Rgb{mix(from.Red, to.Red), mix(from.Green, to.Green), mix(from.Blue, to.Blue)};
}

// The index of a colour in the picture's table, added when new.
std::uint8_t IndexOf(Picture& picture, const Rgb& color)
{
    auto at = std::find(picture.Colors.begin(), picture.Colors.end(), color);
    if (at != picture.Colors.end()) {
        return std::uint8_t(at - picture.Colors.begin());
    }
    picture.Colors.push_back(color);
    return std::uint8_t(picture.Colors.size() - 1);
}

Picture DrawButton(const Symbol& symbol)
{
    Picture picture;
    picture.Width = kSide * kFrames;
    picture.Height = kSide;
    IndexOf(picture, kBackground);
    picture.Pixels.assign(std::size_t(picture.Width * picture.Height), 0);
    const int samples = kSubsamples * kSubsamples;
    for (int frame = 0; frame < kFrames; ++frame) {
        // Pressed, the symbol moves a pixel down and right.
        const double shift = frame == 2 ? 1.0 : 0.0;
        for (int py = 0; py < kSide; ++py) {
            for (int px = 0; px < kSide; ++px) {
                int face = 0;
                int rim = 0;
                int light = 0;
                int accent = 0;
                for (int sy = 0; sy < kSubsamples; ++sy) {
                    for (int sx = 0; sx < kSubsamples; ++sx) {
                        const Point p{px + (sx + 0.5) / kSubsamples, py + (sy + 0.5) / kSubsamples};
                        const double r = Distance(p, Point{kFaceCentre, kFaceCentre});
                        if (r > kFaceRadius) {
                            continue;
                        }
                        ++face;
                        const Point q{p.X - shift, p.Y - shift};
                        if (InAccent(symbol, q)) {
                            ++accent;
                        } else if (InSymbol(symbol, q)) {
                            ++light;
                        } else if (r > kFaceRadius - kRimWidth) {
                            ++rim;
                        }
                    }
                }
                // A pixel mostly outside the face is background; no blending at the edge, as
                // the background is not known.
                if (face * 2 < samples) {
                    continue;
                }
                Rgb color = rim * 2 >= face ? kRims[frame] : kFaces[frame];
                if (accent > 0) {
                    color = Blend(color, kAccent, (accent * kBlendSteps + face / 2) / face);
                } else if (light > 0) {
                    color = Blend(color, kLight, (light * kBlendSteps + face / 2) / face);
                }
                picture.Pixels[std::size_t(py * picture.Width + frame * kSide + px)] =
                    IndexOf(picture, color);
            }
        }
    }
    return picture;
}

} // namespace

bool WriteButtonPictures(const std::string& root)
{
    const Symbol symbols[] = {
        Magnifier("pbzoomin", true), Magnifier("pbzoomot", false), Figure("showoutl", false),
        Figure("hideoutl", true),    CrossHairs("goskyhnt"),
    };
    bool ok = true;
    for (const Symbol& symbol : symbols) {
        ok = WriteFile(root + "/src/shell/resources/" + symbol.File + ".bmp",
                       EncodeBmp(DrawButton(symbol))) &&
             ok;
    }
    return ok;
}
