#include "shell/AstroDialog.h"

#include <cctype>
#include <cmath>
#include <cstdlib>
#include <sstream>

#include "host/HostFrameAPI.h"
#include "host/HostProf.h"
#include "host/HostStringTable.h"
#include "host/HostWindowStrings.h"
#include "platform/WindowCalls.h"
#include "shell/AstroDialogTemplates.h"

AstroDialog::AstroDialog(TWindow* parent, const TResId& resId) : HostCenterDialog(parent, resId)
{
    AstroDialogTemplates::Register();
}

std::string AstroDialog::GetHelpKey() const
{
    return std::string();
}

void AstroDialog::CmHelp()
{
    std::string key = GetHelpKey();
    if (key.empty()) {
        return;
    }
    HostFrameAPI* frame = getHostFrameAPI();
    std::string file = frame ? frame->GetHelpFile() : std::string();
    WinHelpA(HWindow, file.c_str(), HELP_KEY, reinterpret_cast<UINT_PTR>(key.c_str()));
}

void AstroDialog::SetupWindow()
{
    HostCenterDialog::SetupWindow();
    replaceHostChildWindowStrings(5, HWindow);
}

const TResponseRow* AstroDialog::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        CmRow<AstroDialogTemplates::kHelpId, &AstroDialog::CmHelp>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : HostCenterDialog::Find(event);
}

std::string AstroDialog::ProfileHelpKey(const char* key, const char* defaultTopic)
{
    return HostProfile().Get("Orbiscope", key, defaultTopic);
}

int AstroDialog::ShowMessage(const std::string& text, UINT type)
{
    return MessageBox(text.c_str(), getHostString(5, 1000).c_str(), type);
}

long AstroDialog::ReadInteger(int id) const
{
    return std::strtol(GetDlgItemText(id).c_str(), nullptr, 10);
}

double AstroDialog::ReadNumber(int id) const
{
    double value = std::strtod(GetDlgItemText(id).c_str(), nullptr);
    return std::isfinite(value) ? value : 0.0;
}

bool AstroDialog::ReadExactNumber(int id, double& value) const
{
    const std::string text = GetDlgItemText(id);
    const char* start = text.c_str();
    char* end = nullptr;
    const double number = std::strtod(start, &end);
    if (end == start) {
        return false;
    }
    while (std::isspace(static_cast<unsigned char>(*end))) {
        ++end;
    }
    if (*end != '\0' || !std::isfinite(number)) {
        return false;
    }
    value = number;
    return true;
}

void AstroDialog::RefuseField(int id, const std::string& message)
{
    ShowMessage(message);
    if (TWindow* field = GetControl(id)) {
        field->SetFocus();
        field->SendMessage(EM_SETSEL, 0, -1);
    }
}

std::string AstroDialog::FormatNumber(double value)
{
    std::ostringstream text;
    text << value;
    return text.str();
}
