#pragma once
// A device context on the printer: it draws each page with the ordinary drawing calls on a
// white page of the printer's size at its resolution (TPrinter), and at EndPage puts the page
// into the document's PDF file: the page's pixels as a picture filling the paper, and over it
// the page's text as real text, in the same font, place and colour as on the screen. Text is
// kept as words only, not drawn into the pixels, so that it stays sharp however far the page
// is zoomed; only the background of opaque text is in the picture.
//
// A document runs StartDoc, then per page StartPage ... EndPage, then EndDoc. Each returns a
// number above 0, or SP_ERROR when it cannot be done (no file, a step out of order); a page
// drawn outside StartPage and EndPage goes nowhere. A context that goes with a document still
// open ends it as EndDoc would.
//
// A context may take over another that PrintDlgA made (an HDC); both then print the same
// document on the same page.
#include <memory>
#include <string>
#include <vector>

#include "platform/TAutoDelete.h"
#include "platform/TDC.h"
#include "platform/TPrinter.h"
#include "platform/TextRun.h"

class PrintDocument;

// What the document calls answer when they fail.
constexpr int SP_ERROR = -1;

class TPrintDC : public TDC
{
public:
    explicit TPrintDC(const TPrinter& printer);
    // Prints where `dc` prints when it is a printer context, else on the default printer; with
    // AutoDelete the context `dc` is deleted with this one.
    TPrintDC(HDC dc, TAutoDelete autoDelete);
    ~TPrintDC() override;

    // `output` names the file; null takes the printer's. `name` becomes the PDF's title.
    int StartDoc(const char* name, const char* output = nullptr);
    // A fresh white page.
    int StartPage();
    int EndPage();
    int EndDoc();
    // Drops the document: its file is removed.
    int AbortDoc();

    const TPrinter& GetPrinter() const;
    // Whether a document, and a page of it, is open.
    bool IsInDocument() const;
    bool IsInPage() const;
    // Pages ended so far in the present or last document.
    int GetPageCount() const;
    // The file of the present or last document.
    const std::string& GetOutputFile() const;
    // Why the last document could not be started or finished ("cannot write chart.pdf: No
    // such file or directory"); empty when it could.
    const std::string& GetError() const;
    // The text of the present page, in the order it was drawn.
    const std::vector<TextRun>& GetTextRuns() const;
    // The document, shared by the contexts that print it.
    const std::shared_ptr<PrintDocument>& GetDocument() const { return pDocument; }

protected:
    bool KeepsTextRuns() const override;
    void KeepTextRun(TextRun&& run) override;

private:
    TPrintDC(std::shared_ptr<PrintDocument> document, TDC* adopted);

    std::shared_ptr<PrintDocument> pDocument;
    std::unique_ptr<TDC> pAdopted;
};
