#pragma once
// The printer of this platform: pages go into a PDF file, each drawn as a picture at the
// printer's resolution (300 pixels per inch unless told otherwise) on A4 or Letter paper, with
// its text over it as real text, so that it stays sharp when zoomed and can be searched.
//
// The print dialog starts from the process's default printer and keeps the user's choices in
// it, so that the next print offers them again.
#include <memory>
#include <string>

#include "platform/DeviceCaps.h"
#include "platform/TSize.h"

class TPrintDC;

class TPrinter
{
public:
    enum class Paper
    {
        A4,     // 210 by 297 mm
        Letter, // 8.5 by 11 inches
    };
    static constexpr int kDefaultResolution = 300;
    static constexpr int kLowestResolution = 72;
    static constexpr int kHighestResolution = 1200;

    // A4 at 300 pixels per inch, into DefaultOutputFile().
    TPrinter();

    Paper GetPaper() const { return PaperSize; }
    void SetPaper(Paper paper) { PaperSize = paper; }
    int GetResolution() const { return nResolution; }
    // Refused (false) outside 72 to 1200 pixels per inch.
    bool SetResolution(int pixelsPerInch);
    const std::string& GetOutputFile() const { return OutputFile; }
    void SetOutputFile(const std::string& path) { OutputFile = path; }

    // The page in pixels at the resolution, rounded; the paper in PDF points (1/72 inch).
    TSize GetPageSize() const;
    double GetPaperWidthPoints() const;
    double GetPaperHeightPoints() const;
    // What GetDeviceCaps answers on this printer: its resolution, the page in pixels and in
    // millimetres.
    DeviceCaps GetDeviceCaps() const;

    // A device context that prints on this printer.
    std::unique_ptr<TPrintDC> MakeDC() const;

    // "A4" or "Letter"; and back, without regard to case (false for another name).
    static const char* PaperName(Paper paper);
    static bool PaperFromName(const std::string& name, Paper& paper);
    // "star-chart.pdf" in the user's home directory, or in the working directory without one.
    static std::string DefaultOutputFile();
    // The printer the print dialog starts from.
    static TPrinter& Default();

private:
    Paper PaperSize = Paper::A4;
    int nResolution = kDefaultResolution;
    std::string OutputFile;
};
