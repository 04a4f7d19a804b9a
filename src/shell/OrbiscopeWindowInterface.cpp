#include "shell/OrbiscopeWindowInterface.h"

#include <algorithm>

#include "catalogues/AstroObject.h"
#include "catalogues/ConstellationCatalogue.h"
#include "platform/DebugStream.h"
#include "platform/TWindow.h"
#include "skyview/MapWindow.h"

OrbiscopeWindowInterface::OrbiscopeWindowInterface(TWindow* parent)
{
    if (!parent) {
        dbstream << "OrbiscopeWindowInterface: no parent window, so no map" << dbendl;
        return;
    }
    // The parent's window tree owns the map from here on.
    pMap = new MapWindow(parent);
    if (parent->HWindow) {
        const TRect client = parent->GetClientRect();
        pMap->Attr.W = client.Width();
        pMap->Attr.H = client.Height();
        pMap->Create();
    } else {
        pMap->Attr.W = parent->Attr.W;
        pMap->Attr.H = parent->Attr.H;
    }
}

MapWindow* OrbiscopeWindowInterface::Map(const char* operation) const
{
    if (!pMap) {
        dbstream << "OrbiscopeWindowInterface::" << operation << ": there is no map" << dbendl;
    }
    return pMap;
}

bool OrbiscopeWindowInterface::IsAdded(const AstroObject& object) const
{
    const std::vector<AstroObject*>& added = pMap->GetCollector().GetAddedObjects();
    return std::find(added.begin(), added.end(), &object) != added.end();
}

TWindow* OrbiscopeWindowInterface::GetWindow() const
{
    return pMap;
}

void OrbiscopeWindowInterface::SetForegroundBitmap(const std::string& foreground,
                                                   const std::string& mask)
{
    if (MapWindow* map = Map("SetForegroundBitmap")) {
        map->SetForegroundBitmap(foreground, mask);
    }
}

void OrbiscopeWindowInterface::SetMaskBitmap(const std::string& mask)
{
    if (MapWindow* map = Map("SetMaskBitmap")) {
        map->SetMaskBitmap(mask);
    }
}

void OrbiscopeWindowInterface::Scroll(const AstroScrollInfo& info)
{
    if (MapWindow* map = Map("Scroll")) {
        map->Scroll(info);
    }
}

void OrbiscopeWindowInterface::StopScrolling()
{
    if (MapWindow* map = Map("StopScrolling")) {
        map->StopScrolling();
    }
}

bool OrbiscopeWindowInterface::IsScrolling() const
{
    return pMap && pMap->IsScrolling();
}

DisplayParameters OrbiscopeWindowInterface::GetDisplayParameters() const
{
    return pMap ? pMap->GetDisplayParameters() : DisplayParameters();
}

void OrbiscopeWindowInterface::SetDisplayParameters(const DisplayParameters& parameters)
{
    if (MapWindow* map = Map("SetDisplayParameters")) {
        map->SetDisplayParameters(parameters);
    }
}

GridInfo OrbiscopeWindowInterface::GetGridInfo() const
{
    return pMap ? pMap->GetGridInfo() : GridInfo();
}

void OrbiscopeWindowInterface::SetGridInfo(const GridInfo& grid)
{
    if (MapWindow* map = Map("SetGridInfo")) {
        map->SetGridInfo(grid);
    }
}

void OrbiscopeWindowInterface::SetFieldRadius(double radius)
{
    if (MapWindow* map = Map("SetFieldRadius")) {
        map->SetFieldRadius(radius);
    }
}

double OrbiscopeWindowInterface::GetFieldRadius() const
{
    return pMap ? pMap->GetOrientation().GetFieldRadius() : 0.0;
}

ConstellationSettings OrbiscopeWindowInterface::GetConstellationSettings() const
{
    return pMap ? pMap->GetConstellationSettings() : ConstellationSettings();
}

void OrbiscopeWindowInterface::SetConstellationSettings(const ConstellationSettings& settings)
{
    if (MapWindow* map = Map("SetConstellationSettings")) {
        map->SetConstellationSettings(settings);
    }
}

void OrbiscopeWindowInterface::ShowConstellation(const std::string& name)
{
    if (MapWindow* map = Map("ShowConstellation")) {
        map->ShowConstellation(name);
    }
}

Constellation* OrbiscopeWindowInterface::GetConstellation(const std::string& name) const
{
    return pMap ? pMap->GetCollector().GetConstellationCatalogue().GetConstellation(name, false)
                : nullptr;
}

void OrbiscopeWindowInterface::ChangeCenterOfView(const PolarCoord& centre)
{
    if (MapWindow* map = Map("ChangeCenterOfView")) {
        map->ChangeCenterOfView(centre);
    }
}

PolarCoord OrbiscopeWindowInterface::GetCenterOfView() const
{
    return pMap ? pMap->GetOrientation().GetCenterOfView() : PolarCoord();
}

PolarCoord OrbiscopeWindowInterface::GetZenith() const
{
    return pMap ? pMap->GetOrientation().GetZenith() : PolarCoord();
}

void OrbiscopeWindowInterface::SetLocation(LatLong location)
{
    if (MapWindow* map = Map("SetLocation")) {
        map->SetLocation(location);
    }
}

void OrbiscopeWindowInterface::SetTime(const AstroTime& time)
{
    if (MapWindow* map = Map("SetTime")) {
        map->SetTime(time);
    }
}

AstroTime& OrbiscopeWindowInterface::GetTime()
{
    if (MapWindow* map = Map("GetTime")) {
        return map->GetTime();
    }
    // Without a map the caller still gets a time to read and write, one that shows nowhere.
    static AstroTime nowhere;
    return nowhere;
}

void OrbiscopeWindowInterface::NotifyOnSingleClick(UINT message)
{
    if (MapWindow* map = Map("NotifyOnSingleClick")) {
        map->SetSingleClickMessage(message);
    }
}

void OrbiscopeWindowInterface::NotifyWhenFieldChanges(UINT message)
{
    if (MapWindow* map = Map("NotifyWhenFieldChanges")) {
        map->SetFieldChangeMessage(message);
    }
}

void OrbiscopeWindowInterface::ShowMessierObjects(bool show)
{
    if (MapWindow* map = Map("ShowMessierObjects")) {
        map->ShowMessierObjects(show);
    }
}

void OrbiscopeWindowInterface::ClipAtHorizon(bool clip)
{
    if (MapWindow* map = Map("ClipAtHorizon")) {
        map->ClipAtHorizon(clip);
    }
}

void OrbiscopeWindowInterface::ShowPlanets(bool show)
{
    if (MapWindow* map = Map("ShowPlanets")) {
        map->ShowPlanets(show);
    }
}

void OrbiscopeWindowInterface::AddObject(AstroObject& object)
{
    MapWindow* map = Map("AddObject");
    if (!map) {
        return;
    }
    // Listed twice, it would be drawn twice and outlive one removal.
    if (IsAdded(object)) {
        dbstream << "OrbiscopeWindowInterface::AddObject: the object is already added" << dbendl;
        return;
    }
    map->GetCollector().AddObject(object);
}

void OrbiscopeWindowInterface::RemoveAddedObject(AstroObject& object)
{
    MapWindow* map = Map("RemoveAddedObject");
    if (!map) {
        return;
    }
    if (!IsAdded(object)) {
        dbstream << "OrbiscopeWindowInterface::RemoveAddedObject: the object is not added"
                 << dbendl;
        return;
    }
    map->GetCollector().RemoveAddedObject(object);
    // The list of the last draw still holds it.
    map->ForceReload();
}

void OrbiscopeWindowInterface::RefreshObject(AstroObject& object)
{
    MapWindow* map = Map("RefreshObject");
    if (!map) {
        return;
    }
    // An unchanged view keeps the list of its last draw: an object added since is fetched by
    // a reload; one already in the list is drawn again as it now looks by the redraw alone,
    // as each step of a fade needs.
    const AstroList& visible = map->GetVisibleObjects();
    bool listed = false;
    for (std::size_t i = 0; i < visible.GetCount() && !listed; ++i) {
        listed = visible[i] == &object;
    }
    if (!listed) {
        map->ForceReload();
    }
    map->RedrawNow();
}

void OrbiscopeWindowInterface::DisableMouseInput(bool disable)
{
    if (MapWindow* map = Map("DisableMouseInput")) {
        map->DisableMouse(disable);
    }
}

void OrbiscopeWindowInterface::BlinkObject(AstroObject& object)
{
    if (MapWindow* map = Map("BlinkObject")) {
        map->BlinkObject(object);
    }
}

void OrbiscopeWindowInterface::BlinkLabelForObject(AstroObject& object)
{
    if (MapWindow* map = Map("BlinkLabelForObject")) {
        map->BlinkLabelForObject(object);
    }
}

void OrbiscopeWindowInterface::StopBlinking()
{
    if (MapWindow* map = Map("StopBlinking")) {
        map->StopBlinking();
    }
}
