#pragma once
// What the catalogue tests share: a scratch directory that also stands in as the user's
// configuration directory, star files written through the component's own text reader and
// file writer, views on the map's screen and what a catalogue lists for them, and a capture
// of the diagnostic messages.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "catalogues/AstroList.h"
#include "catalogues/CatalogueSet.h"
#include "catalogues/Request.h"
#include "catalogues/Star.h"
#include "catalogues/StarCatalogue.h"
#include "catalogues/TextFile.h"
#include "host/HostProf.h"
#include "host/ScopedHome.h"
#include "platform/DebugStream.h"
#include "platform/DeviceCaps.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "projection/Transformation.h"
#include "time/AstroTime.h"

// A fresh directory for one test, which is also ORBISCOPE_HOME while it lives, so that an
// orbiscope.ini written into it (and a reload of the profile) overrides the shipped profile.
// Both go afterwards, and the profile is the shipped one again. Binary files are read and
// written as strings of bytes.
class ScratchDirectory : public ScopedHome
{
public:
    ScratchDirectory() { HostProfile().Reload(); }
    ~ScratchDirectory()
    {
        WriteFile("orbiscope.ini", "");
        HostProfile().Reload();
    }

    // The file written with `text`, opened for one of the text readers.
    std::unique_ptr<TextFile> Open(const std::string& name, const std::string& text) const
    {
        WriteFile(name, text);
        auto file = std::make_unique<TextFile>();
        EXPECT_TRUE(file->OpenForReading(File(name).c_str())) << name;
        return file;
    }
};

// One text catalogue line with its line end: RA and Dec in degrees, written to a
// ten-thousandth of a second.
inline std::string StarLine(unsigned sao, double magnitude, double ra, double dec,
                            const std::string& name = std::string())
{
    // Whole ten-thousandths of a second first, so that no field ever reads 60.
    const long long raUnits = std::llround(ra / 15.0 * 3600.0 * 1e4);
    const long long decUnits = std::llround(std::fabs(dec) * 3600.0 * 1e4);
    char line[200];
    std::snprintf(line, sizeof line, "%u,%.2f,%lld,%lld,%.4f,%s,%lld,%lld,%.4f,0,0,0", sao,
                  magnitude, raUnits / 36000000, raUnits / 600000 % 60, raUnits % 600000 / 1e4,
                  dec < 0 ? "-" : "+", decUnits / 36000000, decUnits / 600000 % 60,
                  decUnits % 600000 / 1e4);
    return std::string(line) + (name.empty() ? "" : "," + name) + "\n";
}

// Writes the lines as a star file through a text catalogue and returns its path.
inline std::string StarFile(const ScratchDirectory& dir, const std::string& lines,
                            const std::string& name)
{
    StarCatalogue text;
    EXPECT_TRUE(text.LoadStars(*dir.Open(name + ".txt", lines)));
    EXPECT_TRUE(text.Dump(dir.File(name)));
    return dir.File(name);
}

// A view on the map's screen: 1024 by 768 device units at 96 pixels per inch.
inline Transformation ScreenView(const PolarCoord& centre, double radius,
                                 const PolarCoord& zenith = PolarCoord(0.0, 90.0))
{
    static Surface pixels(1, 1, PixelFormat::Rgb32);
    static TDC screen(pixels, DeviceCaps{});
    return Transformation(screen, TRect(0, 0, 1024, 768), centre, radius, zenith);
}

// The objects of a list by the names a user finds them by: the reference name, or for a star
// without a name its SAO number.
inline std::vector<std::string> Names(const AstroList& list)
{
    std::vector<std::string> names;
    for (const AstroObject* object : list) {
        const std::string name = object->GetRefName();
        names.push_back(name.empty() ? object->GetInfoName() : name);
    }
    return names;
}

// What a catalogue (or the collector) lists for a view of `radius` degrees round `centre`.
template <class Catalogue>
std::vector<std::string> Shown(Catalogue& catalogue, const PolarCoord& centre, double radius,
                               std::uint32_t set, double limit = 20.0)
{
    AstroList list(100, 100);
    Request request(ScreenView(centre, radius), CatalogueSet(set), AstroTime(1, 1, 2000, 0), limit);
    catalogue.SatisfyRequest(request, list);
    return Names(list);
}

// Keeps the diagnostic messages of a test, each with its line end. Not to be copied: the sink
// points at this object.
class MessageCapture
{
public:
    MessageCapture() : Previous(SetDebugSink([this](const char* text) { Messages += text; })) {}
    ~MessageCapture() { SetDebugSink(Previous); }

    bool Contains(const std::string& part) const
    {
        return Messages.find(part) != std::string::npos;
    }

    std::string Messages;

private:
    DebugSink Previous;
};
