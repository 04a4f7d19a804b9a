#pragma once
// The base of the component's dialogs: a dialog centred on its parent whose resource holds
// "STID_" keys in place of words, which set-up replaces from the planetarium's string table,
// and whose button 9 opens the help topic the dialog names.
//
// Each dialog edits a copy of the value it was given; the caller reads the result back after
// the dialog closed with OK, so nothing outside changes while it is open.
#include <string>

#include "host/HostCenterDialog.h"

class AstroDialog : public HostCenterDialog
{
public:
    AstroDialog(TWindow* parent, const TResId& resId);

    // The help topic of the dialog; empty (no help) at this level.
    virtual std::string GetHelpKey() const;
    // Shows the help topic in the host's help file; nothing when there is no topic.
    virtual void CmHelp();

    // The base class's set-up, then the words of the string table in place of the keys. Each
    // dialog then sets its caption and fills its controls.
    void SetupWindow() override;
    const TResponseRow* Find(const TEventInfo& event) const override;

protected:
    // A help topic of the profile, section "Orbiscope".
    static std::string ProfileHelpKey(const char* key, const char* defaultTopic);
    // A message box on this dialog with the planetarium's title as its caption.
    int ShowMessage(const std::string& text, UINT type = MB_OK);
    // The number at the start of a field's text, as the C library reads it: 0 when there is
    // none, the nearest value the type holds when it is too large.
    long ReadInteger(int id) const;
    double ReadNumber(int id) const;
    // The number a field holds when its whole text is one finite number, blanks around it
    // allowed; false, leaving `value` alone, for text, an empty field or a partial number.
    bool ReadExactNumber(int id, double& value) const;
    // Refuses what a field holds: the message, then the focus back on the field with its text
    // selected, so that the user can type over it.
    void RefuseField(int id, const std::string& message);
    // A number as a field shows it: at most six significant digits, no trailing zeros.
    static std::string FormatNumber(double value);
};
