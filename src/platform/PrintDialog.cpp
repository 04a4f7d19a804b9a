#include "platform/PrintDialog.h"

#include <filesystem>

#include "platform/DialogTemplate.h"
#include "platform/TEdit.h"
#include "platform/TRadioButton.h"

namespace {

constexpr int kPaperGroupId = 0x430;
constexpr int kCopiesLabelId = 0x440;
constexpr int kFileLabelId = 0x441;

// Longest path the file field takes.
constexpr UINT kPathLimit = 4095;

// The dialog in dialog units: the paper on the left, the copies on the right, the file below.
DialogTemplate PrintTemplate()
{
    DialogTemplate t;
    t.Title = "Print";
    t.Cx = 230;
    t.Cy = 118;
    t.Items = {
        DialogItemTemplate::GroupBox("Paper", kPaperGroupId, 7, 5, 110, 46),
        DialogItemTemplate::RadioButton("A4 (210 x 297 mm)", PrintDialog::kPaperA4Id, 14, 18, 98,
                                        10, true),
        DialogItemTemplate::RadioButton("Letter (8.5 x 11 in)", PrintDialog::kPaperLetterId, 14, 33,
                                        98, 10),
        DialogItemTemplate::Label("Copies:", kCopiesLabelId, 128, 20, 40, 8),
        DialogItemTemplate::Edit(PrintDialog::kCopiesId, 170, 18, 30, 14, ES_NUMBER),
        DialogItemTemplate::Label("Save the PDF file as:", kFileLabelId, 7, 58, 200, 8),
        DialogItemTemplate::Edit(PrintDialog::kFileId, 7, 70, 216, 14, ES_AUTOHSCROLL),
        DialogItemTemplate::PushButton("Print", IDOK, 119, 97, 50, 14, true),
        DialogItemTemplate::PushButton("Cancel", IDCANCEL, 173, 97, 50, 14),
    };
    return t;
}

std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return std::string();
    }
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

} // namespace

PrintDialog::PrintDialog(TWindow* owner, const TPrinter& printer, int copies)
    : TDialog(owner, PrintTemplate()), Printer(printer), nCopies(copies)
{
    pA4 = new TRadioButton(this, kPaperA4Id);
    pLetter = new TRadioButton(this, kPaperLetterId);
    pCopies = new TEdit(this, kCopiesId, 3);
    pFile = new TEdit(this, kFileId, kPathLimit);
}

void PrintDialog::SetupWindow()
{
    TDialog::SetupWindow();
    const bool a4 = Printer.GetPaper() == TPrinter::Paper::A4;
    pA4->SetCheck(a4 ? BST_CHECKED : BST_UNCHECKED);
    pLetter->SetCheck(a4 ? BST_UNCHECKED : BST_CHECKED);
    SetDlgItemInt(kCopiesId, UINT(nCopies), false);
    pFile->SetText(Printer.GetOutputFile());
}

void PrintDialog::CmOk()
{
    bool number = false;
    const UINT copies = GetDlgItemInt(kCopiesId, &number, false);
    if (!number || copies < 1 || copies > UINT(kMaxCopies)) {
        MessageBox(("The number of copies must be a whole number from 1 to " +
                    std::to_string(kMaxCopies) + ".")
                       .c_str(),
                   "Print", MB_OK | MB_ICONEXCLAMATION);
        pCopies->SetFocus();
        return;
    }
    const std::string file = Trimmed(pFile->GetText());
    if (file.empty()) {
        MessageBox("Please type the name of the PDF file to write.", "Print",
                   MB_OK | MB_ICONEXCLAMATION);
        pFile->SetFocus();
        return;
    }
    const std::filesystem::path folder = std::filesystem::path(file).parent_path();
    std::error_code error;
    if (!folder.empty() && !std::filesystem::is_directory(folder, error)) {
        MessageBox(("The folder " + folder.string() + " does not exist.").c_str(), "Print",
                   MB_OK | MB_ICONEXCLAMATION);
        pFile->SetFocus();
        return;
    }
    Printer.SetPaper(pLetter->GetCheck() == BST_CHECKED ? TPrinter::Paper::Letter
                                                        : TPrinter::Paper::A4);
    Printer.SetOutputFile(file);
    nCopies = int(copies);
    TDialog::CmOk();
}
