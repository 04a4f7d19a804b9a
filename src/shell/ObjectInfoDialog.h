#pragma once
// The dialog that tells about one object: name, type, right ascension and declination (of the
// object's present position, degrees shown as sexagesimal text), visual magnitude ("-" when
// the object has none, 99 or more) and, for the Sun, Moon and planets, the distance from the
// Earth in astronomical units. When the object has an article, a button reads it: the dialog
// then closes with the article's command in GetLaunchString for the caller to hand on.
#include <string>

#include "shell/AstroDialog.h"

class AstroObject;

class ObjectInfoDialog : public AstroDialog
{
public:
    // Control ids: the labels, the texts beside them (the label's id plus one) and the
    // article button.
    static constexpr int kNameLabel = 0x65;
    static constexpr int kName = 0x66;
    static constexpr int kType = 0x68;
    static constexpr int kRightAscension = 0x6a;
    static constexpr int kDeclination = 0x6c;
    static constexpr int kMagnitude = 0x6e;
    static constexpr int kArticle = 0x6f;
    static constexpr int kDistanceLabel = 0x70;
    static constexpr int kDistance = 0x71;

    ObjectInfoDialog(TWindow* parent, AstroObject& object);

    // The object's article command when the article button closed the dialog; empty otherwise.
    const std::string& GetLaunchString() const { return LaunchString; }

    std::string GetHelpKey() const override;
    void SetupWindow() override;
    void CmArticle();
    const TResponseRow* Find(const TEventInfo& event) const override;

    // The magnitude as the dialog shows it: one decimal, or "-" at 99 and above.
    static std::string FormatMagnitude(double magnitude);

private:
    AstroObject* pObject;
    std::string LaunchString;
};
