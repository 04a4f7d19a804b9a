#pragma once
// A bare sky map for another module of the host: the map alone, in a window of the caller's,
// without the planetarium's frame, menus or side windows. A sky game, say, drives it through
// this handle.
//
// The handle holds one pointer to the map and nothing else; copies of it drive the same map.
// The map is a child window of `parent`: the window tree owns it and destroys it with the
// parent, so the handle must not be used after that. It opens with the map's own first view:
// from San Francisco, looking east 30 degrees up, 20 degrees to the nearer edge of the field,
// now when it is dark there and else at the next sunset. Nothing is read from or written to the
// user's saved state.
//
// A null parent makes no map: GetWindow() is then null, the operations do nothing and the
// getters answer the defaults of their types. Angles are degrees and times Universal Time, as
// everywhere on the map.
//
// Objects added with AddObject stay the caller's: they must live until they are removed or the
// map is gone. An added object shows from the next request for objects that the map makes,
// which is at the next draw after the view changed, or at once with RefreshObject. Adding an
// object twice, and removing one that is not added, do nothing but say so on dbstream.
#include <string>

#include "catalogues/ConstellationSettings.h"
#include "coords/LatLong.h"
#include "coords/PolarCoord.h"
#include "platform/WinTypes.h"
#include "projection/AstroScrollInfo.h"
#include "skyview/DisplayParameters.h"
#include "skyview/GridInfo.h"
#include "time/AstroTime.h"

class AstroObject;
class Constellation;
class MapWindow;
class TWindow;

class OrbiscopeWindowInterface
{
public:
    // Makes the map as a child of `parent`, the size of the parent's client area until the
    // caller moves it. When the parent is already on the screen the map is made on the screen
    // at once; otherwise it comes with the parent.
    explicit OrbiscopeWindowInterface(TWindow* parent);

    // The map's window, to place and size it; null when there is no map.
    TWindow* GetWindow() const;

    // A picture with its mask over the sky, such as a landscape: white in the mask lets the
    // sky through. Paths may carry the host's logical prefixes.
    void SetForegroundBitmap(const std::string& foreground, const std::string& mask);
    void SetMaskBitmap(const std::string& mask);

    // Moves the view on by itself, one step at once and one a tick, until the orientation
    // cannot go further or StopScrolling.
    void Scroll(const AstroScrollInfo& info);
    void StopScrolling();
    bool IsScrolling() const;

    DisplayParameters GetDisplayParameters() const;
    void SetDisplayParameters(const DisplayParameters& parameters);
    GridInfo GetGridInfo() const;
    void SetGridInfo(const GridInfo& grid);
    void SetFieldRadius(double radius);
    double GetFieldRadius() const;
    ConstellationSettings GetConstellationSettings() const;
    void SetConstellationSettings(const ConstellationSettings& settings);
    // Centres the view on a constellation by its full name, without regard to case.
    void ShowConstellation(const std::string& name);
    // The constellation of that full name, or null; it lives as long as the map.
    Constellation* GetConstellation(const std::string& name) const;
    void ChangeCenterOfView(const PolarCoord& centre);
    PolarCoord GetCenterOfView() const;
    PolarCoord GetZenith() const;
    // The observer's place; only a view from the ground has one.
    void SetLocation(LatLong location);
    void SetTime(const AstroTime& time);
    // The map's own time object, not a copy: writing through it raises none of the flags that
    // SetTime raises, so the map shows the new time only when it next draws for another
    // reason.
    AstroTime& GetTime();

    // A click on the map is sent to the parent as this message, with the sky position clicked
    // (a PolarCoord* valid during the call) as the lparam, instead of the map's own handling
    // of it; 0 gives clicks back to the map. Clicks come also while mouse input is disabled.
    void NotifyOnSingleClick(UINT message);
    // Posted to the parent whenever the map has a new projection; 0 for none.
    void NotifyWhenFieldChanges(UINT message);

    void ShowMessierObjects(bool show);
    // Whether the view may sink below the horizon.
    void ClipAtHorizon(bool clip);
    void ShowPlanets(bool show);

    void AddObject(AstroObject& object);
    // Takes the object off the map from the next draw on.
    void RemoveAddedObject(AstroObject& object);
    // Draws the map again at once with every object asked for anew, so that an object added,
    // moved or changed in its looks since the last draw is shown as it now stands.
    void RefreshObject(AstroObject& object);

    // While disabled the mouse neither moves the view nor opens anything; clicks still go to
    // the parent when NotifyOnSingleClick has a message.
    void DisableMouseInput(bool disable);

    // Leaves the object, or its label, out of every other frame, twice a second, until
    // StopBlinking.
    void BlinkObject(AstroObject& object);
    void BlinkLabelForObject(AstroObject& object);
    void StopBlinking();

private:
    // The map, or null with a word on dbstream about the operation that found none.
    MapWindow* Map(const char* operation) const;
    bool IsAdded(const AstroObject& object) const;

    MapWindow* pMap = nullptr;
};
