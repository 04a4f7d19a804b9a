#include "platform/TPrinter.h"

#include <cmath>
#include <cstdlib>
#include <strings.h>

#include "platform/TPrintDC.h"

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kPointsPerInch = 72.0;

// Paper sizes in inches: ISO A4 is 210 by 297 mm, US Letter 8.5 by 11 inches.
constexpr double kA4WidthInches = 210.0 / kMillimetresPerInch;
constexpr double kA4HeightInches = 297.0 / kMillimetresPerInch;
constexpr double kLetterWidthInches = 8.5;
constexpr double kLetterHeightInches = 11.0;

double WidthInches(TPrinter::Paper paper)
{
    return paper == TPrinter::Paper::A4 ? kA4WidthInches : kLetterWidthInches;
}

double HeightInches(TPrinter::Paper paper)
{
    return paper == TPrinter::Paper::A4 ? kA4HeightInches : kLetterHeightInches;
}

} // namespace

TPrinter::TPrinter() : OutputFile(DefaultOutputFile())
{}

bool TPrinter::SetResolution(int pixelsPerInch)
{
    if (pixelsPerInch < kLowestResolution || pixelsPerInch > kHighestResolution) {
        return false;
    }
    nResolution = pixelsPerInch;
    return true;
}

TSize TPrinter::GetPageSize() const
{
    return TSize(int(std::lround(WidthInches(PaperSize) * nResolution)),
                 int(std::lround(HeightInches(PaperSize) * nResolution)));
}

double TPrinter::GetPaperWidthPoints() const
{
    return WidthInches(PaperSize) * kPointsPerInch;
}

double TPrinter::GetPaperHeightPoints() const
{
    return HeightInches(PaperSize) * kPointsPerInch;
}

DeviceCaps TPrinter::GetDeviceCaps() const
{
    DeviceCaps caps;
    caps.LogPixelsX = nResolution;
    caps.LogPixelsY = nResolution;
    const TSize page = GetPageSize();
    caps.HorzRes = page.cx;
    caps.VertRes = page.cy;
    caps.BitsPixel = 32;
    return caps;
}

std::unique_ptr<TPrintDC> TPrinter::MakeDC() const
{
    return std::make_unique<TPrintDC>(*this);
}

const char* TPrinter::PaperName(Paper paper)
{
    return paper == Paper::A4 ? "A4" : "Letter";
}

bool TPrinter::PaperFromName(const std::string& name, Paper& paper)
{
    if (::strcasecmp(name.c_str(), "A4") == 0) {
        paper = Paper::A4;
        return true;
    }
    if (::strcasecmp(name.c_str(), "Letter") == 0) {
        paper = Paper::Letter;
        return true;
    }
    return false;
}

std::string TPrinter::DefaultOutputFile()
{
    const char* home = std::getenv("HOME");
    if (home && *home) {
        return std::string(home) + "/star-chart.pdf";
    }
    return "star-chart.pdf";
}

TPrinter& TPrinter::Default()
{
    static TPrinter printer;
    return printer;
}
