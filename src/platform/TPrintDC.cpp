#include "platform/TPrintDC.h"

#include "platform/PrintDocument.h"

namespace {

// The document a context made by PrintDlgA prints; a new one on the default printer for any
// other context.
std::shared_ptr<PrintDocument> DocumentOf(HDC dc)
{
    if (auto* printer = dynamic_cast<TPrintDC*>(static_cast<TDC*>(dc))) {
        return printer->GetDocument();
    }
    return std::make_shared<PrintDocument>(TPrinter::Default());
}

} // namespace

TPrintDC::TPrintDC(const TPrinter& printer)
    : TPrintDC(std::make_shared<PrintDocument>(printer), nullptr)
{}

TPrintDC::TPrintDC(HDC dc, TAutoDelete autoDelete)
    : TPrintDC(DocumentOf(dc), autoDelete == AutoDelete ? static_cast<TDC*>(dc) : nullptr)
{}

TPrintDC::TPrintDC(std::shared_ptr<PrintDocument> document, TDC* adopted)
    : TDC(document->GetPage(), document->GetCaps()), pDocument(std::move(document)),
      pAdopted(adopted)
{}

// The document ends when its last context goes.
TPrintDC::~TPrintDC() = default;

int TPrintDC::StartDoc(const char* name, const char* output)
{
    return pDocument->StartDoc(name ? name : "", output ? std::string(output)
                                                        : pDocument->GetPrinter().GetOutputFile());
}

int TPrintDC::StartPage()
{
    return pDocument->StartPage();
}

int TPrintDC::EndPage()
{
    return pDocument->EndPage();
}

int TPrintDC::EndDoc()
{
    return pDocument->EndDoc();
}

int TPrintDC::AbortDoc()
{
    return pDocument->AbortDoc();
}

const TPrinter& TPrintDC::GetPrinter() const
{
    return pDocument->GetPrinter();
}

bool TPrintDC::IsInDocument() const
{
    return pDocument->IsInDocument();
}

bool TPrintDC::IsInPage() const
{
    return pDocument->IsInPage();
}

int TPrintDC::GetPageCount() const
{
    return pDocument->GetPageCount();
}

const std::string& TPrintDC::GetOutputFile() const
{
    return pDocument->GetOutputFile();
}

const std::string& TPrintDC::GetError() const
{
    return pDocument->GetError();
}

const std::vector<TextRun>& TPrintDC::GetTextRuns() const
{
    return pDocument->GetTextRuns();
}

bool TPrintDC::KeepsTextRuns() const
{
    return pDocument->KeepsText();
}

void TPrintDC::KeepTextRun(TextRun&& run)
{
    pDocument->KeepText(std::move(run));
}
