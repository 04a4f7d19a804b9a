#pragma once
// What the star index tests share: a scratch directory that also stands in as the user's
// configuration directory, star files written through the component's own text reader and
// file writer, the map's screen, and a capture of the diagnostic messages.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "catalogues/StarCatalogue.h"
#include "catalogues/TextFile.h"
#include "host/ScopedHome.h"
#include "platform/DebugStream.h"
#include "platform/DeviceCaps.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "projection/Transformation.h"

// A fresh directory for one test, which is also ORBISCOPE_HOME while it lives, so that an
// orbiscope.ini written into it overrides the shipped profile. Both go afterwards.
class ScratchDirectory : public ScopedHome
{
public:
    void WriteText(const std::string& name, const std::string& text) const
    {
        WriteFile(name, text);
    }
    std::vector<unsigned char> ReadBytes(const std::string& name) const
    {
        std::ifstream in(File(name), std::ios::binary);
        return std::vector<unsigned char>(std::istreambuf_iterator<char>(in),
                                          std::istreambuf_iterator<char>());
    }
    void WriteBytes(const std::string& name, const std::vector<unsigned char>& bytes) const
    {
        std::ofstream out(File(name), std::ios::binary);
        out.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
    }
};

// One text catalogue line: RA and Dec in degrees, written to a ten-thousandth of a second.
inline std::string StarLine(unsigned sao, double magnitude, double ra, double dec,
                            const std::string& name = std::string())
{
    // Whole ten-thousandths of a second first, so that no field ever reads 60.
    long long raUnits = std::llround(ra / 15.0 * 3600.0 * 1e4);
    long long decUnits = std::llround(std::fabs(dec) * 3600.0 * 1e4);
    char line[200];
    std::snprintf(line, sizeof line, "%u,%.2f,%lld,%lld,%.4f,%s,%lld,%lld,%.4f,0,0,0", sao,
                  magnitude, raUnits / 36000000, raUnits / 600000 % 60, raUnits % 600000 / 1e4,
                  dec < 0 ? "-" : "+", decUnits / 36000000, decUnits / 600000 % 60,
                  decUnits % 600000 / 1e4);
    return name.empty() ? std::string(line) : std::string(line) + "," + name;
}

// A text catalogue of the given lines, loaded into a new catalogue.
inline std::unique_ptr<StarCatalogue> TextCatalogue(const ScratchDirectory& dir,
                                                    const std::vector<std::string>& lines,
                                                    const std::string& name = "stars.txt")
{
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    dir.WriteText(name, text);
    TextFile file;
    EXPECT_TRUE(file.OpenForReading(dir.File(name).c_str()));
    auto catalogue = std::make_unique<StarCatalogue>();
    EXPECT_TRUE(catalogue->LoadStars(file));
    return catalogue;
}

// Writes the lines as a star file through a text catalogue and returns its path.
inline std::string StarFile(const ScratchDirectory& dir, const std::vector<std::string>& lines,
                            const std::string& name)
{
    std::unique_ptr<StarCatalogue> text = TextCatalogue(dir, lines, name + ".txt");
    EXPECT_TRUE(text->Dump(dir.File(name)));
    return dir.File(name);
}

// The map's screen: 1024 by 768 device units at 96 pixels per inch.
class TestScreen
{
public:
    static inline const TRect kRect{0, 0, 1024, 768};

    TestScreen() : Pixels(1, 1, PixelFormat::Rgb32), Context(Pixels, DeviceCaps{}) {}

    Transformation View(const PolarCoord& centre, double radius,
                        const PolarCoord& zenith = PolarCoord(0.0, 90.0)) const
    {
        return Transformation(Context, kRect, centre, radius, zenith);
    }
    TDC& DC() { return Context; }

private:
    Surface Pixels;
    TDC Context;
};

// Keeps the diagnostic messages of a test.
class MessageCapture
{
public:
    MessageCapture()
    {
        Previous = SetDebugSink([this](const char* text) { Messages.emplace_back(text); });
    }
    ~MessageCapture() { SetDebugSink(Previous); }
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    bool Contains(const std::string& part) const
    {
        for (const std::string& message : Messages) {
            if (message.find(part) != std::string::npos) {
                return true;
            }
        }
        return false;
    }

    std::vector<std::string> Messages;

private:
    DebugSink Previous;
};

// The indexes of the resident segments, in table order.
inline std::vector<int> Resident(const SegmentTable& table)
{
    std::vector<int> loaded;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].IsLoaded()) {
            loaded.push_back(int(i));
        }
    }
    return loaded;
}
