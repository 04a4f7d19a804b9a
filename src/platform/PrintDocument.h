#pragma once
// The document behind one or more printer contexts: the page being drawn, the text kept from
// it, and the PDF file the pages go into through cairo. See TPrintDC for the order of calls.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Surface.h"
#include "platform/TPrinter.h"
#include "platform/TextRun.h"

class PrintDocument
{
public:
    explicit PrintDocument(const TPrinter& printer);
    ~PrintDocument();
    PrintDocument(const PrintDocument&) = delete;
    PrintDocument& operator=(const PrintDocument&) = delete;

    const TPrinter& GetPrinter() const { return Printer; }
    Surface& GetPage() { return Page; }
    DeviceCaps GetCaps() const { return Printer.GetDeviceCaps(); }

    // The steps of TPrintDC, with its answers.
    int StartDoc(const std::string& name, const std::string& output);
    int StartPage();
    int EndPage();
    int EndDoc();
    int AbortDoc();

    bool IsInDocument() const { return pCairo != nullptr; }
    bool IsInPage() const { return bInPage; }
    int GetPageCount() const { return nPages; }
    const std::string& GetOutputFile() const { return OutputFile; }
    // Why the document could not be started or finished, in words; empty when it could.
    const std::string& GetError() const { return Error; }

    // Text is kept only while a page is open.
    bool KeepsText() const { return bInPage; }
    void KeepText(TextRun&& run);
    const std::vector<TextRun>& GetTextRuns() const { return aText; }

private:
    struct Cairo;
    // Writes the page's picture and then its text.
    bool WritePage();
    void WriteText(struct _cairo* cr, const TextRun& run);
    void CloseCairo();

    TPrinter Printer;
    Surface Page;
    std::vector<TextRun> aText;
    std::unique_ptr<Cairo> pCairo;
    bool bInPage = false;
    int nPages = 0;
    std::string OutputFile;
    std::string Error;
};
