#pragma once
// The dialog resources of the component's small dialogs, as data: title, size in dialog units,
// and every control with its id, place and the "STID_" key that stands in its text field until
// the dialog puts the words of the string table in place.
//
// Register adds them to the module's resources under their resource ids, once; each dialog
// class calls it before it is first made.
#include "platform/DialogTemplate.h"

class AstroDialogTemplates
{
public:
    // Resource ids.
    static constexpr int kTime = 200;
    static constexpr int kAnimation = 300;
    static constexpr int kGrid = 400;
    static constexpr int kObjectList = 1100;
    static constexpr int kStarDisplay = 1300;
    static constexpr int kStarSizeRange = 1350;
    static constexpr int kStarIntensityRange = 1400;
    static constexpr int kObjectInfo = 1450;
    static constexpr int kLocation = 1500;
    static constexpr int kStopAnimation = 1750;

    // The command id of every dialog's help button.
    static constexpr int kHelpId = 9;

    static DialogTemplate Time();
    static DialogTemplate Animation();
    static DialogTemplate Grid();
    static DialogTemplate ObjectList();
    static DialogTemplate ObjectInfo();
    static DialogTemplate Location();
    static DialogTemplate StopAnimation();
    static DialogTemplate StarDisplay();
    static DialogTemplate StarSizeRange();
    static DialogTemplate StarIntensityRange();

    // Adds all of them to the module's resources; later calls do nothing.
    static void Register();
};
