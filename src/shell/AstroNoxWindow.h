#pragma once
// The component's window inside the host: it holds the sky map, keeps the default state in
// the settings store, takes the host's command strings and bookmarks, and lays the map out
// within its client area, set in by the frame's bezel.
//
// The window adds no sky logic: what a command does ends in an operation of MapWindow.
//
// Command strings are key=value parameters. The first of these forms present is acted on:
//   FullState=...        the whole view: AstroNoxWindow=<MapWindow=<...> ...>, as a bookmark
//                        holds it (the key's value does not matter)
//   stringref=Word,Name  an object to show, by catalogue word (Constellation, Star, Planet or
//                        Messier) and reference name, as an article's link holds it
//   uid=Number           an object to show, by uid (decimal or 0x hexadecimal)
// A string with none of them does nothing, and so does a reference that names nothing.
//
// The default state lies in the settings store below StateRoot, in the subkey "Default":
// "SOFTWARE\<ProductGroup>\<Name>\<Version>\orbiscope" from section "Version" of the profile.
// It is written only after changes that say so, and only once the map has a location name.
//
// Beside the map may stand the status panel (time, orientation, Moon), a fifth of the window
// wide at the left; a bookmark says whether it shows.
#include <string>

#include "platform/TLayoutWindow.h"

class AstroStatusWindow;
class HostBookmark;
class MapWindow;
class StateContainer;

class AstroNoxWindow : public TLayoutWindow
{
public:
    // Messages of the host and of the map.
    static constexpr UINT kCapabilityMessage = 0x0616;
    static constexpr UINT kNewBookmarkMessage = 0x0617;
    static constexpr UINT kCreateBookmarkMessage = 0x061E;
    static constexpr UINT kReferenceMessage = 0x07E8;
    static constexpr UINT kFieldChangeMessage = 0x07EA;
    // Commands: the component's print command, and the host's own.
    static constexpr UINT kPrintCommand = 25006;
    static constexpr UINT kHostPrintCommand = 7211;
    // The word of the planetarium's bookmarks and icon in the host.
    static constexpr const char* kBookmarkType = "PLNT";

    // Makes the map and restores the default state, or starts a new one.
    explicit AstroNoxWindow(TWindow* parent);

    // Places the window over the parent's client area.
    void SetupWindow() override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;
    const TResponseRow* Find(const TEventInfo& event) const override;

    // Acts on a command string as told above.
    void HandleCommandString(const std::string& command);
    // Shows every object of the catalogue that the word names whose reference name is the
    // one given (words and names without regard to case); the last stays in view.
    void HandleNameRef(const std::string& value);
    // Shows the object of the uid.
    void HandleUidRef(const std::string& value);

    // The default state. Restore is false when the settings store has none.
    bool RestoreDefaultState();
    void SaveAsDefaultState();
    void MakeDefaultState();

    // Shows or hides the Messier objects and keeps the choice as the default.
    void SetMessierObjectsDisplay(bool show);

    // Sets the layout of the map and the panel for a client area of that size: the map
    // inside the frame's bezel, right of the panel when there is one. TLayoutWindow::Layout
    // then moves them there.
    void LayoutWindows(const TSize& size);

    // Makes the status panel or takes it away, so that it exists exactly when `on`.
    void SetStatusWindowState(bool on);
    // A new status panel in the gadget windows' 8-point font, showing the map's blocks.
    void CreateStatusWindow();
    // The panel; a child of this window, null while there is none.
    AstroStatusWindow* GetStatusWindow() const { return pStatus; }

    // Handlers.
    void EvSize(UINT sizeType, TSize& size);
    bool EvEraseBkgnd(HDC dc);
    // 1 for the capabilities 0 and 1, 0 for any other.
    LRESULT WmuCapability(WPARAM which, LPARAM);
    // The LPARAM is a HostBookmark*: its command string is handled. Returns 1.
    LRESULT WmuNewBookmark(WPARAM, LPARAM bookmark);
    // A new HostBookmark* of the present view for the caller to own, or 0 without a map.
    LRESULT WmuCreateBookmark(WPARAM, LPARAM);
    // The LPARAM is a std::string* with an article reference, which goes to the host's frame.
    LRESULT WmuObjectSelected(WPARAM, LPARAM reference);
    // Prints a star chart of the map's view: the platform's print dialog, then, unless the user
    // cancelled there, the dialog with the chart's preview. The wait cursor shows meanwhile.
    void CmPrint();
    // The wait cursor while busy, the arrow otherwise.
    void UpdateCursor();
    bool IsBusy() const { return bBusy; }

    // The window's state: a level with "MapWindow", "DisplayStatusWindow" and
    // "DisplayFinderWindow".
    StateContainer& operator<<(StateContainer& sc) const;
    StateContainer& operator>>(StateContainer& sc);

    // The map; a child of this window, which owns it.
    MapWindow* GetMap() const { return pMap; }
    const std::string& GetStateRoot() const { return StateRoot; }
    const std::string& GetDefaultKey() const { return DefaultKey; }

private:
    MapWindow* pMap;
    AstroStatusWindow* pStatus = nullptr;
    std::string StateRoot;
    std::string DefaultKey = "Default";
    bool bBusy = false;
};

StateContainer& operator<<(StateContainer& sc, const AstroNoxWindow& window);
StateContainer& operator>>(StateContainer& sc, AstroNoxWindow& window);
