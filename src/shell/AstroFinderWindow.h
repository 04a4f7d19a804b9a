#pragma once
// The finder: the panel beside the map in which the user looks an object up by name. From the
// top: the direction window (the sky above the observer with the map's field in it; a click
// turns the map there), a drop-down of the catalogues ("List:"), a name field ("Name:"), the
// list of the chosen catalogue's named objects, and a bar of buttons (zoom in, zoom out,
// constellation figures on or off, and the sky game when the profile enables it).
//
// Typing in the name field finds the first name that begins with the text, once the user has
// paused: the field's changes are looked at on one timer every "AutoSearchDelay" milliseconds
// (section "Global Config", default 500), and the search runs at the first tick with no typing
// since the one before. Choosing a row writes its name into the field. A double click, or
// Return in the field or the list, sends the chosen object to the parent with the finder's
// message (wparam 0, lparam the AstroObject*); Return first finishes a search still waiting.
// Up, Down, Page Up and Page Down in the field move through the list; Escape empties the
// field.
//
// The panel's background is "BackgroundColor" of section "Orbiscope", else the frame's panel
// colour; the catalogue drop-down opens on the constellations.
#include <memory>
#include <string>

#include "platform/TBrush.h"
#include "platform/TColor.h"
#include "platform/TLayoutWindow.h"

class AstroItemCollector;
class AstroListBox;
class AstroNoxWindow;
class AstroObject;
class DirectionWindow;
class HostAnimButtonGadget;
class HostEdit;
class HostLabelStatic;
class HostStackableControlBar;
class TComboBox;
class TFont;

class AstroFinderWindow : public TLayoutWindow
{
public:
    // Control ids.
    static constexpr int kObjectList = 0x3E9;
    static constexpr int kNameEdit = 0x3EA;
    static constexpr int kListTypeBox = 0x3EB;
    // Buttons of the bar.
    static constexpr int kZoomInButton = 0x3EC;
    static constexpr int kZoomOutButton = 0x3ED;
    static constexpr int kOutlineButton = 0x3EE;
    static constexpr int kSkyhuntButton = 0x3EF;
    // The search's timer.
    static constexpr UINT_PTR kSearchTimer = 0x25F;
    // Messages to the finder itself: a click on the direction window, and the name field
    // taking the focus.
    static constexpr UINT kDirectionMessage = 0x8B1;
    static constexpr UINT kSelectNameMessage = 0x8B2;
    // The rows of the catalogue drop-down: constellations, planets, stars, Messier objects,
    // comets.
    static constexpr int kListTypeCount = 5;

    // The owner gets zoom, figure and game commands and turns the map; the collector holds the
    // catalogues. Neither is owned; either may be null.
    AstroFinderWindow(TWindow* parent, AstroNoxWindow* owner, AstroItemCollector* collector,
                      UINT selectedMessage);
    ~AstroFinderWindow() override;

    // The width that shows the drop-down's longest catalogue name beside its label, in pixels.
    static int GetDesiredWidth();
    // The object of the selected row, or null.
    AstroObject* GetSelectedObject() const;
    // Shows the figure button's picture for the map's present figures setting.
    void UpdateOutlineButton();

    DirectionWindow& GetDirectionWindow() const { return *pDirection; }
    AstroListBox& GetObjectList() const { return *pObjectList; }
    HostEdit& GetNameEdit() const { return *pNameEdit; }
    TComboBox& GetListTypeBox() const { return *pListTypeBox; }
    HostStackableControlBar& GetButtonBar() const { return *pButtonBar; }
    // Whether a typed text waits for its search.
    bool IsSearchWaiting() const { return nSearchTimer != 0; }

    void SetupWindow() override;
    const TResponseRow* Find(const TEventInfo& event) const override;
    bool PreProcessMsg(MSG& msg) override;

    // Handlers.
    void EvSize(UINT sizeType, TSize& size);
    void EvTimer(UINT id);
    HBRUSH EvCtlColor(HDC dc, HWND control, UINT message);
    void EnNameFocus();
    void EnNameChange();
    void CbnListTypeChange();
    void CmEnter();
    void LbnObjectChosen();
    void LbnObjectSelected();
    void CmZoomIn();
    void CmZoomOut();
    void CmSkyhuntGame();
    void CmOutline();
    LRESULT WmDirectionClicked(WPARAM, LPARAM);
    LRESULT WmSelectName(WPARAM, LPARAM);

private:
    // Places the children for a client area of that size.
    void LayoutChildren(const TSize& size);
    // Runs the waiting search: the list shows the row FindPrefix gives for the name field.
    void Search();
    // Sends the selected object to the parent.
    void ChooseSelected();
    // Writes into the name field without starting a search.
    void WriteName(const std::string& name);
    // The picture of the figure button for the map's figures setting.
    std::string OutlineBitmap() const;

    UINT nSelectedMessage;
    TComboBox* pListTypeBox;
    std::string ListTypeText;
    HostLabelStatic* pListTypeLabel;
    bool bSearchPending = false;
    UINT_PTR nSearchTimer = 0;
    int nSearchDelay;
    HostEdit* pNameEdit;
    std::string NameText;
    HostLabelStatic* pNameLabel;
    TColor BackgroundColor;
    // The brush that static controls are given, made at their first asking.
    std::unique_ptr<TBrush> pBackgroundBrush;
    HostStackableControlBar* pButtonBar;
    AstroListBox* pObjectList;
    HostAnimButtonGadget* pOutlineButton = nullptr;
    AstroItemCollector* pCollector;
    DirectionWindow* pDirection;
    TFont* pTextFont;
    AstroNoxWindow* pOwner;
    bool bListChangeGuard = false;
};
