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
//
// The commands of the host's menu each end in an operation of the map or in a dialog. A
// cancelled dialog changes nothing. The default state is written after a new place and after
// the toggles of constellations, planet labels, comets and Messier objects; the time, the
// grid, the time lapse and the horizon clipping are not kept. The star settings are kept after
// the star display dialog's OK.
#include <string>

#include "catalogues/AstroCatalogue.h"
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
    static constexpr UINT kCmLocateConstellations = 25016;
    static constexpr UINT kCmLocatePlanets = 25017;
    static constexpr UINT kCmLocateStars = 25018;
    static constexpr UINT kCmLocateComets = 25030;
    static constexpr UINT kCmLocateMessier = 25019;
    static constexpr UINT kCmLocateSun = 25027;
    static constexpr UINT kCmLocateMoon = 25028;
    static constexpr UINT kCmDumpTimeZoneNames = 25032;
    static constexpr UINT kCmDisplayStars = 25011;
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

    // The default state. Restore is false when the settings store has none.
    bool RestoreDefaultState();
    void SaveAsDefaultState();
    void MakeDefaultState();

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

    // The parent of the dialogs: this window once it is shown, its parent before.
    TWindow* DialogParent();
};

StateContainer& operator<<(StateContainer& sc, const AstroNoxWindow& window);
StateContainer& operator>>(StateContainer& sc, AstroNoxWindow& window);
