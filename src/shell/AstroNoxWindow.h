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
// wide at the left; a bookmark says whether it shows. The finder (AstroFinderWindow) stands
// there too, but only while the host shows the component full screen: it comes with that mode
// and goes with it, the menu's command shows or hides it meanwhile, and a bookmark asks for it
// in that mode alone. With both, the status panel takes the left fifth and the finder the next.
//
// The commands of the host's menu each end in an operation of the map or in a dialog. A
// cancelled dialog changes nothing. The default state is written after a new place and after
// the toggles of constellations, planet labels, comets and Messier objects; the time, the
// grid, the time lapse and the horizon clipping are not kept. The star settings are kept after
// the star display dialog's OK.
#include <string>

#include "catalogues/AstroCatalogue.h"
#include "platform/TLayoutWindow.h"

class AstroItemCollector;
class AstroFinderWindow;
class AstroStatusWindow;
class HostBookmark;
class HostFlyMenu;
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
    // The finder's message: an object chosen from its list.
    static constexpr UINT kObjectSelectedFromListMessage = 0x07E9;
    // The question to the host whether it shows the component full screen (answer 1).
    static constexpr UINT kFullScreenQuery = 0x0615;
    // Commands: the component's print command, and the host's own.
    static constexpr UINT kPrintCommand = 25006;
    static constexpr UINT kHostPrintCommand = 7211;
    // The message to the host's frame that starts another module.
    static constexpr UINT kStartModuleMessage = 0x061A;
    // Commands of the host's menu.
    static constexpr UINT kCmZoomIn = 25021;
    static constexpr UINT kCmZoomOut = 25022;
    static constexpr UINT kCmSetLocation = 25002;
    static constexpr UINT kCmSetTime = 25003;
    static constexpr UINT kCmSetTimeLapse = 25004;
    static constexpr UINT kCmStartTimeLapse = 25005;
    static constexpr UINT kCmSkyhuntGame = 25008;
    static constexpr UINT kCmDisplayConstellationFigures = 25024;
    static constexpr UINT kCmDisplayConstellationLabels = 25025;
    static constexpr UINT kCmDisplayConstellationBoundaries = 25026;
    static constexpr UINT kCmDisplayPlanets = 25010;
    static constexpr UINT kCmDisplayComets = 25029;
    static constexpr UINT kCmDisplayRADecLines = 25012;
    static constexpr UINT kCmDisplayMessierLabels = 25013;
    static constexpr UINT kCmDisplayBelowHorizon = 25015;
    static constexpr UINT kCmDisplayLocatorControls = 25014;
    static constexpr UINT kCmLocateConstellations = 25016;
    static constexpr UINT kCmLocatePlanets = 25017;
    static constexpr UINT kCmLocateStars = 25018;
    static constexpr UINT kCmLocateComets = 25030;
    static constexpr UINT kCmLocateMessier = 25019;
    static constexpr UINT kCmLocateSun = 25027;
    static constexpr UINT kCmLocateMoon = 25028;
    static constexpr UINT kCmDumpTimeZoneNames = 25032;
    static constexpr UINT kCmDisplayStars = 25011;
    // Commands that open the fly-outs of the host's menu.
    static constexpr UINT kCmDisplayFlyout = 25000;
    static constexpr UINT kCmLocateFlyout = 25001;
    static constexpr UINT kCmConstellationFlyout = 25009;
    static constexpr UINT kCmDevelopmentFlyout = 25023;
    // The file, in the user's configuration directory, that the zone names are written to.
    static constexpr const char* kTimeZoneDumpFile = "TimeZoneDump.txt";
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
    // The catalogue of a word of a "stringref" (Constellation, Star, Planet, Messier, in any
    // case); null for another word.
    static AstroCatalogue* CatalogueOfWord(AstroItemCollector& collector, const std::string& word);

    // The default state. Restore is false when the settings store has none. Make asks for
    // the place (the first start) and keeps it; a cancelled dialog keeps nothing, so that
    // the next start asks again.
    bool RestoreDefaultState();
    // Whether the settings store holds a default state yet: without one the next start asks
    // for the place.
    static bool HasDefaultState();
    void SaveAsDefaultState();
    void MakeDefaultState();
    // The whole window's state at a key of the settings store (a path below
    // HKEY_LOCAL_MACHINE), under "AstroNOXWindow".
    void SaveInRegistryState(const std::string& key);
    void RestoreFromRegistryState(const std::string& key);

    // The host's fly-out menu (see AstroMenuTemplates): the main menu, with the full-screen
    // entry turned into its opposite in full-screen mode and the time zone dump only in the
    // developer's mode ("DevMode" in section "Orbiscope"); and the fly-outs of its entries,
    // each with the check marks of the moment. Nothing happens when the host has no menu.
    void LoadFlyoutMenu();
    void CmDisplayFlyout();
    void CmLocateFlyout();
    void CmConstellationFlyout();
    void CmDevelopmentFlyout();

    // Scrolls the map's view in a direction of AstroScrollInfo, at the step and pace the map
    // scrolls at, until it is called with 0.
    void ScrollMap(int direction);

    // Shows or hides the Messier objects and keeps the choice as the default.
    void SetMessierObjectsDisplay(bool show);

    // Commands of the host's menu.
    // The field of view: three quarters of it, not below 0.1 degrees; four thirds of it, not
    // above 90 degrees.
    void CmZoomIn();
    void CmZoomOut();
    // The location dialog on the map's place; OK takes the place, its name and zone and keeps
    // them as the default.
    void CmSetLocation();
    // The time dialog; OK takes its time, and the place and zone it may have changed.
    void CmSetTime();
    // The time-lapse dialog; OK takes the pace, its start button takes it and starts the lapse.
    void CmSetTimeLapse();
    void CmStartTimeLapse();
    // Runs the lapse while a small dialog stands open; whatever closes it stops the lapse,
    // leaving the map at the time reached.
    void StartTimeLapse();
    // Asks the host's frame to start the sky game.
    void CmSkyhuntGame();
    // The grid dialog on the map's grid; OK takes it.
    void CmDisplayRADecLines();
    // Shows or hides the grid as it is.
    void CmGridToggle();
    // Toggles of what the map shows.
    void CmDisplayConstellationFigures();
    void CmDisplayConstellationLabels();
    void CmDisplayConstellationBoundaries();
    void CmDisplayPlanets();
    void CmDisplayComets();
    void CmDisplayMessierLabels();
    void CmDisplayBelowHorizon();
    // The object list dialog on one catalogue; the object chosen is brought into view.
    void CmLocateConstellations();
    void CmLocatePlanets();
    void CmLocateStars();
    void CmLocateComets();
    void CmLocateMessier();
    void ShowObjectListDialog(AstroCatalogue::AstroCatalogues which);
    void CmLocateSun();
    void CmLocateMoon();
    // Writes the names of all time zones to kTimeZoneDumpFile.
    void CmDumpTimeZoneNames();
    // The star display dialog on the map's star settings; OK takes them and keeps them as the
    // default.
    void CmDisplayStars();

    // The wait cursor while busy, the arrow otherwise.
    void SetBusy(bool busy);
    bool IsBusy() const { return bBusy; }
    void UpdateCursor();

    // Sets the layout of the map and the side windows for a client area of that size: the map
    // inside the frame's bezel, right of the side windows. A lone side window is a fifth of
    // the width, or, for the finder, as wide as it needs when that is more. TLayoutWindow::Layout
    // then moves them there.
    void LayoutWindows(const TSize& size);

    // Makes the status panel or takes it away, so that it exists exactly when `on`.
    void SetStatusWindowState(bool on);
    // A new status panel in the gadget windows' 8-point font, showing the map's blocks.
    void CreateStatusWindow();
    // The panel; a child of this window, null while there is none.
    AstroStatusWindow* GetStatusWindow() const { return pStatus; }

    // Makes the finder or takes it away, so that it exists exactly when `on`; a new finder's
    // direction window shows the map's view at once.
    void SetFinderWindowState(bool on);
    // A new finder, sending its chosen objects with kObjectSelectedFromListMessage.
    void CreateFinderWindow();
    // The finder; a child of this window, null while there is none.
    AstroFinderWindow* GetFinderWindow() const { return pFinder; }
    // Shows the map's view in the finder's direction window.
    void UpdateDirectionWindow();
    // Shows the finder when there is none, hides it otherwise.
    void CmDisplayLocatorControls();

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
    // The host asks for the fly-out menu: the title bar gets the icon and the title, and the
    // menu is loaded. Returns 1.
    LRESULT WmuLoadFlyMenu(WPARAM, LPARAM);
    // An entry of the fly-out was chosen: the menu is loaded again. Returns 0.
    LRESULT WmuFlyMenuNotify(WPARAM, LPARAM);
    // The map's view changed: the direction window follows it.
    LRESULT WmuFieldChange(WPARAM, LPARAM);
    // The LPARAM is the AstroObject* the finder chose, which the map brings into view.
    LRESULT WmuObjectSelectedFromList(WPARAM, LPARAM object);
    // Prints a star chart of the map's view: the platform's print dialog, then, unless the user
    // cancelled there, the dialog with the chart's preview. The wait cursor shows meanwhile.
    void CmPrint();

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
    AstroFinderWindow* pFinder = nullptr;
    bool bBusy = false;

    // The parent of the dialogs: this window once it is shown, its parent before.
    TWindow* DialogParent();
    // What the parent, the host, answers to a message; 0 without a parent.
    LRESULT AskHost(UINT message);
    static bool HasDefaultState(const std::string& root, const std::string& key);
    // A sub-menu of the host's fly-out at `level`, filled from a menu resource; null when the
    // host has no fly-out menu.
    HostFlyMenu* LoadFlyout(int level, int menu, bool replaceStrings);
    // Whether the host shows the component full screen.
    bool IsFullScreen();
    // Takes a side window away: the pointer is cleared before the window goes.
    template <class Side>
    void DeleteSideWindow(Side*& side);
    // Lays the windows out again once a side window came or went.
    void SideWindowsChanged();
};

StateContainer& operator<<(StateContainer& sc, const AstroNoxWindow& window);
StateContainer& operator>>(StateContainer& sc, AstroNoxWindow& window);
