#pragma once
// The sky map: the child window that owns the view (orientation, time, time zone, grid,
// display parameters), the list of objects the view shows and an off-screen bitmap, and that
// draws the sky.
//
// The map works by flags and repaint. Whatever changes the view raises dirty flags and
// invalidates the window. Paint then runs DrawAll only when a flag stands, into the off-screen
// bitmap, and copies the bitmap to the screen; a paint with nothing dirty is one copy. The
// bitmap is an 8-bit DIB section whose width is a multiple of 8, so that stars can be written
// straight into its bits.
//
// DrawAll runs one fixed order of steps: the move to the nearest dark time when the map was
// asked to open there, the time update, a pending centre, a new
// Transformation when the projection changed, the request for objects, the background, the
// grid, the objects, the labels, the horizon, the status line. A draw is cut short only while
// the view scrolls, by the scroll interval less 10 ms.
//
// Two overlays stand on the sky. The horizon is a line drawn into the bitmap when the view
// stands on the ground (a RotatingOrientationInfo) and comes within 15 degrees of it. The
// foreground is a picture with a mask (a landscape, a window frame) that Paint merges over
// the finished sky on every copy to the screen.
//
// The mouse: a left click on empty sky centres the view there and on an object opens its
// information (a constellation's article); a right click only centres; a drag of more than 4
// pixels draws a rubber band that zooms to its area on release. Scrolling and blinking run on
// the map's timers 3 and 4. Named objects are brought into view by ShowObject, which asks the
// user before it moves the time to a rising or turns the view below the horizon.
//
// A new map looks east from San Francisco (latitude 37.8 N, longitude 122.4 W), 30 degrees
// above the horizon with a field radius of 20 degrees, until a view is set or restored. Angles
// are degrees, times are Universal Time; the time zone is only for what the user reads.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "catalogues/AstroItemCollector.h"
#include "catalogues/AstroList.h"
#include "catalogues/ReferenceArray.h"
#include "catalogues/Star.h"
#include "coords/LatLong.h"
#include "coords/PolarCoord.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"
#include "platform/TResId.h"
#include "platform/TWindow.h"
#include "projection/AstroScrollInfo.h"
#include "projection/OrientationInfo.h"
#include "projection/Transformation.h"
#include "skyview/DisplayParameters.h"
#include "skyview/GridInfo.h"
#include "skyview/LabelManager.h"
#include "skyview/MoonStatusItem.h"
#include "skyview/OrientationStatusItem.h"
#include "skyview/PositionStatusItem.h"
#include "skyview/TimeStatusItem.h"
#include "time/AnimationSettings.h"
#include "time/AstroTime.h"
#include "time/TimeZone.h"

class AstroObject;
class AstroStatusWindow;
class Constellation;
class MouseDragger;
class PlanetOptions;
class RotatingOrientationInfo;
class StateContainer;
class StarDisplayParameters;
class TBitmap;
class TMemoryDC;
class TextFile;

class MapWindow : public TWindow
{
public:
    // The message the map posts to itself to show an object named before the first paint.
    static constexpr UINT kShowStartingObjectMessage = 0x08B0;
    // A wider field than this is refused: beyond it the hemisphere would fold back.
    static constexpr double kMaximumFieldRadius = 90.0;
    // A grid of this many lines or more is refused.
    static constexpr std::uint32_t kMaximumGridLines = 500;
    // The x of a point that lifts the pen in a grid polyline.
    static constexpr int kPenUpMarker = -1000;
    // The message that hands a status text (a const char*) to the parent.
    static constexpr UINT kStatusTextMessage = 0x0500;
    // The map's timers for the time lapse, continuous scrolling and blinking.
    static constexpr UINT_PTR kAnimationTimer = 1;
    static constexpr UINT_PTR kScrollTimer = 3;
    static constexpr UINT_PTR kBlinkTimer = 4;
    static constexpr UINT kBlinkInterval = 500;
    // The pointer must move further than this (|dx| + |dy|, pixels) with the button down
    // before a press becomes a rubber band; a band narrower or lower than kMinimumZoomSide
    // does not zoom.
    static constexpr int kDragThreshold = 4;
    static constexpr int kMinimumZoomSide = 4;
    // A rubber-band zoom never narrows the field below this radius, in degrees.
    static constexpr double kMinimumZoomRadius = 1.0;
    // How far from the pointer (pixels) an object still counts as under it.
    static constexpr int kPickRadius = 10;
    // Which crossing of the horizon a search looks for.
    enum HorizonTypes
    {
        Rising = 0,
        Setting = 1,
    };

    explicit MapWindow(TWindow* parent);
    ~MapWindow() override;

    // The draw cycle.
    // Draws when a flag stands, then copies the off-screen bitmap to `rect` of `dc`. Does
    // nothing while printing or while another paint of any map runs.
    void Paint(TDC& dc, bool erase, TRect& rect) override;
    // Draws the whole view into the surface and rectangle that Display holds.
    void DrawAll();
    // Raises every flag, so that the next paint draws everything again.
    void MarkAllDirty();
    bool IsAnythingDirty() const;
    // A bottom-up 8-bit DIB section of `size` with its width rounded up to a multiple of 8,
    // whose bits Display is given for direct drawing.
    void AllocateDrawBitmap(TDC& dc, const TSize& size);
    void FreeDrawBitmap();
    // Asks for the objects the view can show; above 0 when the list was rebuilt.
    std::int32_t LoadVisibleObjects(Transformation& t);
    // Draws the grid's polylines, building them first when the grid is dirty.
    void DrawGrid(TDC& dc, const TRect& rect, Transformation& t);
    // Projects the meridians and parallels of the grid that the view can show.
    void LoadGridPoints(Transformation& t);
    // Fills the rectangle with the window's background colour.
    void Erase(TDC& dc, const TRect& rect);
    // The red status line in the top left corner: local time, date and place.
    void DisplayStatus(TDC& dc, const TRect& rect);
    // The rectangle the status line covers, its text made anew when it is dirty; empty when
    // the line is not shown (on paper).
    TRect MeasureStatus(TDC& dc);

    // The status panel. The map owns its four blocks and keeps them up to date whether or not
    // a panel shows them: the time (local) when the time changed, the Moon after a draw at a
    // new time, the orientation whenever the centre, field, place or kind of view changes.
    // Puts the blocks into the panel, from top to bottom pointer, time, orientation, Moon,
    // and fills them. The panel is not owned.
    void AttachStatusWindow(AstroStatusWindow& window);
    // Forgets the panel, before it goes; the blocks leave it when it goes.
    void DetachStatusWindow() { pStatusWindow = nullptr; }
    AstroStatusWindow* GetStatusWindow() const { return pStatusWindow; }
    // With a panel attached, fills the time, orientation and Moon blocks from the map's state.
    void RefreshAllStatus();
    // Shows in the pointer block the sky at a point of the window: RA and Dec, and for a view
    // from the ground azimuth and altitude too. False, with the block emptied, before the
    // first draw or off the sky. The map calls it as the mouse moves over it.
    bool ShowPointerPosition(const TPoint& point);
    const PositionStatusItem& GetPointerItem() const { return PointerItem; }
    const TimeStatusItem& GetTimeItem() const { return TimeItem; }
    const OrientationStatusItem& GetOrientationItem() const { return OrientationItem; }

    // The horizon and the foreground.
    // The horizon of `o` as a magenta line across all of it that `t` shows, whatever the shape
    // of the window, a whole circle in a view of the whole sky; 200 points to twice the field
    // radius. Nothing when the field ends more than 15 degrees short of the horizon. The
    // points are kept for the next draw of the same offset, radius and rectangle: they depend
    // on the view against the horizon, not on the time.
    void DrawHorizon(TDC& dc, const RotatingOrientationInfo& o, const Transformation& t,
                     const TRect& rect);
    // A picture and its mask (paths may carry the host's logical prefixes) to merge over the
    // sky from the next paint on, which the caller brings about. White in the mask lets the
    // sky through; black shows the picture. Both are stretched to the window.
    void SetForegroundBitmap(const std::string& foreground, const std::string& mask);
    void SetMaskBitmap(const std::string& mask);
    // Drops the built pictures; the paths and the flag stay, so the next merge builds anew.
    void DeleteForegroundBitmap();
    // Builds both pictures at the size of the window, compatible with `dc`. A file that is
    // missing is looked for again at the next paint; one that cannot be read turns the
    // overlay off. Either is told on dbstream, once per setting.
    void LoadForegroundBitmap(TDC& dc);
    // Merges the foreground into `rect` of the off-screen context `dc`; doing it again over
    // the same pixels gives the same picture.
    void MergeForeground(TDC& dc, const TRect& rect);
    // Whether the view may sink below the horizon; only a view on the ground has the switch.
    // Raises no flag.
    void ClipAtHorizon(bool clip);
    bool IsClippedAtHorizon() const;

    // Sky events, for the map's place and time.
    //
    // Rise and set times come from a closed solution on the sphere: the longitude under the
    // object at the moment it crosses the horizon, then the sidereal time of that longitude
    // at the day's midnight. Sidereal hours are taken for solar hours, so a time is late by
    // up to four minutes; refraction, parallax and the Sun's disc are not allowed for.
    //
    // A view fixed on the stars stands on no ground: it has no place and no horizon to
    // cross, so the rise and set times of such a view are the map's time unchanged.
    //
    // Whether `o` stands above the horizon of the view's zenith at its present position.
    bool ObjectIsUp(const AstroObject& o) const;
    // Whether `o` reaches above the horizon at its upper transit; also true for an object that
    // never sets.
    bool ObjectCanRise(const AstroObject& o) const;
    // The next moment, at or after the map's time, at which direction `p` crosses the horizon
    // that way; the map's time when it never does.
    AstroTime GetHorizonTime(const PolarCoord& p, HorizonTypes type) const;
    AstroTime GetRiseTime(const PolarCoord& p) const;
    AstroTime GetSetTime(const PolarCoord& p) const;
    // The rising of an object; one that moves is followed through up to three rounds, with
    // the observer's body and the object moved to each estimate and brought back to the
    // map's time afterwards.
    AstroTime GetRiseTime(AstroObject& o);
    // The map's time when the Sun is down or never sets there, else the next sunset (no
    // twilight is allowed for).
    AstroTime GetNearestDarkTime();
    // Moves the time to ten minutes after the object rises and turns the view to it.
    void ShowObjectRising(AstroObject& o);

    // Navigation and selection.
    // The sky direction under a point of the window; false before the first draw and off the
    // projected sphere.
    bool MapWindowPointToPolarCoord(const TPoint& point, PolarCoord& coord) const;
    // Centres the view on the middle of the rectangle, with a field that reaches its corners.
    void ZoomToArea(const TRect& rect);
    // Starts the time lapse: every seconds-per-step (in whole milliseconds) the time moves on
    // by the step, through SetTime, until StopAnimating. A pace of 0 starts nothing.
    void Animate();
    void StopAnimating();
    bool IsAnimating() const { return bAnimating; }
    // Starts moving the view continuously, one step at once and one on every tick of the
    // scroll timer, until the orientation cannot move on or StopScrolling.
    void Scroll(const AstroScrollInfo& info);
    void ContinueScrolling();
    void StopScrolling();
    bool IsScrolling() const { return bScrolling; }
    // The last scrolling asked for: its direction, interval and step.
    const AstroScrollInfo& GetScrollInfo() const { return ScrollInfo; }
    // Brings an object into view. Before the first draw the object waits for it. An object
    // below the horizon brings questions: to see it rise (the time moves), or, for one that
    // never rises or when the view may sink below the horizon, to see where it is now.
    void ShowObject(AstroObject& o);
    // Turns on the labels of the kind of object just located.
    void DisplayLabelsForObjectType(AstroObject& o);
    // A click on an object: a constellation leads to its article, any other object to its
    // information.
    void HandleObjectSelection(AstroObject& o);
    // Shows what is known of the object in the modal information dialog; when its article
    // button closed it, the article goes to the parent as a reference.
    virtual void DisplayObjectInfo(AstroObject& o);
    // Opens the object's first article through the parent.
    void DereferenceObject(AstroObject& o);
    // Sends the reference message with the text to the parent.
    void GenerateReference(const std::string& reference);
    // The object under a point: the first label that holds it, else the nearest object within
    // kPickRadius pixels; null when there is none.
    AstroObject* GetLinkObject(const TPoint& point);
    // A new reference, owned by the caller, to the object of a uid; null for a uid that names
    // nothing the map holds.
    AstroObject* GetObjectFromUid(std::uint32_t uid);
    // Marks the object with a small red frame on the screen; the mark of another goes.
    void SetHilitedObject(AstroObject& o);
    void DrawHilite(AstroObject& o);
    // Blinking every kBlinkInterval: the object, or its label, is left out every other step.
    void BlinkObject(AstroObject& o);
    void BlinkLabelForObject(AstroObject& o);
    void StopBlinking();
    // Hands a text for the status bar to the parent.
    void ShowStatus(const std::string& text);
    // While disabled the mouse neither moves the view nor picks objects; a click still goes to
    // the parent when a single-click message is set.
    void DisableMouse(bool disable) { bMouseDisabled = disable; }
    // Centres the view on a constellation and makes it the one figure lines are logged for.
    void ShowConstellation(Constellation& c);
    // The same by full name, without regard to case; an unknown name changes nothing.
    void ShowConstellation(const std::string& name);

    // Logging constellation figures, a tool for whoever draws them: stars picked one after
    // another become the ends of figure lines, drawn in red on the screen, and are appended to
    // the figure file ("ConstNodeFile") for the current constellation. Mode 1 logs (Escape
    // takes the last line back); mode 2 also makes a located constellation the current one;
    // mode 0, the map's own, leaves all of it idle.
    void SetNodeLogMode(std::int32_t mode) { nNodeLogMode = mode; }
    // Takes the marked star as the next end; `newLine` starts a line of its own instead of
    // going on from the last end.
    void LogConstellationNode(bool newLine);
    void DisplayConstellationNodes(TDC& dc);
    void EraseLastConstellationLine();
    // Appends one line per pair of ends to the figure file: abbreviation, RA and Dec of both
    // stars (degrees), their SAO numbers; then forgets them. Without a current constellation
    // the user is told to locate one.
    void SaveConstellationNodeInfo();
    // Copies of the stars picked, two per line.
    using ConstellationNodeInfo = std::vector<Star>;

    // Message handlers.
    void EvSize(UINT sizeType, TSize& size);
    // The off-screen copy covers the window, so there is nothing to erase.
    bool EvEraseBkgnd(HDC dc);
    LRESULT EvShowStartingObject(WPARAM wParam, LPARAM lParam);
    void EvTimer(UINT id);
    void EvLButtonDown(UINT keys, TPoint& point);
    void EvMouseMove(UINT keys, TPoint& point);
    void EvLButtonUp(UINT keys, TPoint& point);
    void EvRButtonDown(UINT keys, TPoint& point);
    void EvChar(UINT key, UINT repeatCount, UINT flags);
    const TResponseRow* Find(const TEventInfo& event) const override;

    // Changes of the view. Each raises the flags its change needs and invalidates the window.
    // The time becomes the present moment; no flag is raised.
    void MakeTimeCurrent();
    // Also ends the wait for the nearest dark time at start.
    void SetTime(const AstroTime& time);
    // Ignored when unchanged or above 90 degrees.
    void SetFieldRadius(double radius);
    // The observer's place; only a view on the ground has one.
    void SetLocation(const LatLong& location);
    // The map keeps a copy.
    void SetOrientation(const OrientationInfo& orientation);
    // Applied at once unless the time is dirty; then the next draw applies it after the time
    // update, and only the last of several such changes counts.
    void ChangeCenterOfView(const PolarCoord& centre);
    // Takes the show flag and both counts, not the colour; ignored with 500 or more lines.
    void SetGridInfo(const GridInfo& grid);
    // Takes everything but the map's own drawing surface, bits and projection.
    void SetDisplayParameters(const DisplayParameters& parameters);
    void SetStarDisplayParameters(const StarDisplayParameters& parameters);
    void SetLocationName(const std::string& name);
    void ShowMessierObjects(bool show);
    void ShowComets(bool show);
    void ShowPlanets(bool show);
    // Redraws at once with the planets' labels as the options say.
    void SetPlanetOptions(const PlanetOptions& options);
    // What is shown of the constellations. A change loads what the new settings need (with
    // the wait cursor) and redraws everything; equal settings change nothing.
    void SetConstellationSettings(const ConstellationSettings& settings);
    ConstellationSettings GetConstellationSettings() const;
    // Takes the view of another map: display, a copy of its orientation, time, grid and
    // constellation settings.
    void Copy(MapWindow& other);

    // A star catalogue of the user's, from text or from a star file, which every view uses
    // from then on; the result is the collector's.
    bool LoadStars(TextFile& text);
    bool LoadStarsFromBinaryFile(const std::string& name);

    // Printing: draws the view at once into the surface and rectangle of `parameters`, and
    // keeps the screen's parameters until StopPrinting; meanwhile paints do nothing.
    void StartPrinting(DisplayParameters& parameters);
    void StopPrinting();

    // The hourglass while the map is busy; calls nest.
    void ShowWaitCursor();
    void RestoreCursor();

    // State. The whole view in a level at the caller's key, for bookmarks.
    StateContainer& operator<<(StateContainer& sc) const;
    StateContainer& operator>>(StateContainer& sc);
    // The settings a restart keeps, without a level and without the time.
    void SaveDefaultState(StateContainer& sc) const;
    void RestoreDefaultState(StateContainer& sc);

    // Messages to the parent: an object's article reference (a std::string*, sent), a new
    // projection (posted), and a click (a PolarCoord*, sent, in place of the map's own click
    // handling). 0 sends nothing.
    void SetReferenceMessage(UINT message) { nReferenceMessage = message; }
    void SetFieldChangeMessage(UINT message) { nFieldChangeMessage = message; }
    void SetSingleClickMessage(UINT message) { nSingleClickMessage = message; }
    UINT GetReferenceMessage() const { return nReferenceMessage; }
    UINT GetFieldChangeMessage() const { return nFieldChangeMessage; }

    // What the map holds.
    const AstroTime& GetTime() const { return Time; }
    // The map's own time object: writing through it bypasses the flags of SetTime, so the
    // next draw that runs for another reason shows the new time.
    AstroTime& GetTime() { return Time; }
    const TimeZone& GetTimeZone() const { return Zone; }
    void SetTimeZone(const TimeZone& zone) { Zone = zone; }
    const GridInfo& GetGridInfo() const { return Grid; }
    const DisplayParameters& GetDisplayParameters() const { return Display; }
    const OrientationInfo& GetOrientation() const { return *pOrientation; }
    const AnimationSettings& GetAnimation() const { return Animation; }
    void SetAnimation(const AnimationSettings& settings) { Animation.Copy(settings); }
    const std::string& GetLocationName() const { return LocationName; }
    // The name of the object last brought into view, or else the centre of view as RA and Dec:
    // the title of a bookmark.
    std::string GetLastTargetName() const;
    bool IsShowingMessier() const { return bShowMessier; }
    bool IsShowingComets() const { return bShowComets; }
    // The projection of the last draw; null before the first one.
    const Transformation* GetTransformation() const { return pTransformation.get(); }
    // The grid's polylines in screen points; a point with x kPenUpMarker lifts the pen.
    const ReferenceArray<std::vector<TPoint>>& GetGridLines() const { return aGridLines; }
    const AstroList& GetVisibleObjects() const { return aVisibleObjects; }
    // The catalogues.
    AstroItemCollector& GetCollector() { return Collector; }
    // The off-screen context; null until the first paint and after a resize.
    const TMemoryDC* GetMemoryDC() const { return pMemoryDC.get(); }
    // The text of the red status line as last drawn.
    const std::string& GetStatusText() const { return StatusText; }
    // The horizon's screen points of the last draw that drew it.
    const std::vector<TPoint>& GetHorizonPoints() const { return HorizonPoints; }

    // The next draw asks for every object anew, although the view did not change: for
    // objects added or removed from outside. Raises no flag.
    void ForceReload() { bForceReload = true; }
    // Redraws the frame at once although nothing in the view changed (a blink step, the end of
    // a scroll, an object that changed its looks): the status flag is the cheapest one that
    // makes the paint draw.
    void RedrawNow();

    // The flags, for those who wait on a draw.
    bool IsTimeDirty() const { return bTimeDirty; }
    bool IsFirstDrawPending() const { return bFirstDrawPending; }

private:
    // Invalidates the whole client area once the window exists.
    void InvalidateView();
    // Gives Display the bits of the present off-screen bitmap, or none.
    void GiveDisplayTheBits();
    // The state keys shared by the full and the default state, after an orientation of the
    // type read has been made.
    void ReadOrientation(StateContainer& sc, int type);
    // The end of every restore: all dirty, repaint.
    void AfterRestore();
    // The orientation when it is a view on the ground, else null.
    RotatingOrientationInfo* GetRotatingOrientation() const;
    // Brings the Earth, the Sun and the Moon to the map's time, which the planets' request
    // does only while planets are shown, and fills the Moon block.
    void TellMoonItem();
    void BringEarthAndSunToTime();
    // Whether the Sun stands above the horizon of the view at the map's time.
    bool SunIsUp();
    // Works out the horizon's points for `t`.
    void LoadHorizonPoints(const Transformation& t);
    // How far in azimuth (degrees) either side of the centre of view the horizon is in view,
    // for a centre that far from the zenith and a view of that visible radius: 180 when all
    // of it is, below 0 when none of it is.
    static double HorizonReach(double fromZenith, double visibleRadius);
    // Asks the user a yes-no question; true for yes.
    bool AskYesNo(const std::string& text, const std::string& caption);

    ReferenceArray<std::vector<TPoint>> aGridLines{100, 30};
    AstroList aVisibleObjects{500, 1000};
    AstroItemCollector Collector;
    bool bGridDirty = true;
    TimeZone Zone;
    DisplayParameters Display;
    DisplayParameters SavedDisplay;
    std::unique_ptr<TMemoryDC> pMemoryDC;
    HBITMAP hDrawBitmap = nullptr;
    bool bTransformationDirty = true;
    bool bTimeDirty = true;
    bool bFirstDrawPending = true;
    std::unique_ptr<PolarCoord> pPendingCenter;
    // Holds one reference.
    AstroObject* pStartingObject = nullptr;
    std::unique_ptr<OrientationInfo> pOrientation;
    // A copy of the orientation, and the rectangle, for which HorizonPoints were worked out.
    std::unique_ptr<RotatingOrientationInfo> pHorizonOrientation;
    TRect HorizonRect;
    TModule* SavedCursorModule = nullptr;
    TResId SavedCursorId{0};
    std::uint32_t nWaitCursors = 0;
    UINT nReferenceMessage = 0;
    UINT nFieldChangeMessage = 0;
    UINT nSingleClickMessage = 0;
    std::unique_ptr<Transformation> pTransformation;
    bool bMilitaryTime = false;
    AstroTime Time;
    bool bShowNearestDarkTime = false;
    bool bNearestDarkPending = true;
    AnimationSettings Animation;
    bool bAnimating = false;
    GridInfo Grid;
    LabelManager Labels;
    AstroStatusWindow* pStatusWindow = nullptr;
    PositionStatusItem PointerItem{"Pointer Position: "};
    TimeStatusItem TimeItem;
    MoonStatusItem MoonItem;
    OrientationStatusItem OrientationItem;
    // The object marked on the screen; it lives as long as the visible list.
    AstroObject* pHilitedObject = nullptr;
    // Where the left button went down, and the rubber band once the pointer moved away.
    TPoint DragStart;
    std::unique_ptr<MouseDragger> pDragger;
    bool bStatusDirty = true;
    std::string StatusText;
    TRect StatusRect;
    bool bScrolling = false;
    AstroScrollInfo ScrollInfo;
    bool bShowMessier = false;
    bool bShowComets = false;
    bool bForceReload = false;
    std::vector<TPoint> HorizonPoints;
    ConstellationNodeInfo ConstellationNodes;
    std::int32_t nNodeLogMode = 0;
    // The catalogue's, which lives as long as the map.
    Constellation* pCurrentConstellation = nullptr;
    std::string ForegroundFile;
    std::string MaskFile;
    std::unique_ptr<TBitmap> pForegroundBitmap;
    std::unique_ptr<TBitmap> pMaskBitmap;
    bool bUseForeground = false;
    // A missing or unreadable picture of the present setting was told on dbstream.
    bool bForegroundProblemTold = false;
    bool bShowPlanets = true;
    bool bMouseDisabled = false;
    std::string LocationName;
    // The name of the object last brought into view; empty after the view moved freely.
    std::string LastTargetName;
    // Compared with the drawn objects, never followed: the caller keeps them alive.
    AstroObject* pBlinkObject = nullptr;
    AstroObject* pBlinkLabelObject = nullptr;
    bool bBlinkPhase = false;

    // Guards Paint against re-entry, for every map of the process (a preview's too).
    static bool sbPainting;
};

// `sc << AstroKey("MapWindow") << map` and the reverse.
StateContainer& operator<<(StateContainer& sc, const MapWindow& map);
StateContainer& operator>>(StateContainer& sc, MapWindow& map);
