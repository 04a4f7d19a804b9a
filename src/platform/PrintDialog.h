#pragma once
// The platform's print dialog: the paper (A4 or Letter), the number of copies and the PDF
// file to write. Print (IDOK) takes the choices when the copies are a whole number from 1 to
// kMaxCopies and the file's folder exists; otherwise a message says what is wrong and the
// dialog stays open. The texts are the platform's own, in English.
#include <string>

#include "platform/TDialog.h"
#include "platform/TPrinter.h"

class TEdit;
class TRadioButton;

class PrintDialog : public TDialog
{
public:
    static constexpr int kPaperA4Id = 0x420;
    static constexpr int kPaperLetterId = 0x421;
    static constexpr int kCopiesId = 0x481;
    static constexpr int kFileId = 0x482;
    static constexpr int kMaxCopies = 99;

    PrintDialog(TWindow* owner, const TPrinter& printer, int copies);

    // The choices, once the dialog has ended with IDOK.
    const TPrinter& GetPrinter() const { return Printer; }
    int GetCopies() const { return nCopies; }

    void SetupWindow() override;
    void CmOk() override;

private:
    TRadioButton* pA4;
    TRadioButton* pLetter;
    TEdit* pCopies;
    TEdit* pFile;
    TPrinter Printer;
    int nCopies;
};
