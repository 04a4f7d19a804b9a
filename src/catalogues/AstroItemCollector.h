#pragma once
// Owns the catalogues and answers each draw's question: which objects can this view show?
//
// The answer fills an AstroList in drawing order: objects added from outside first, then
// stars, constellations, planets, Messier objects and comets. Each request is compared with the
// last one answered, so an unchanged view costs nothing and a change of time alone keeps
// everything that does not move.
//
// Of the star catalogues the collector uses the shallowest that reaches the limiting
// magnitude: with the shipped files the small bright-star file serves every view down to its
// depth and the large file the rest. A catalogue loaded by the user, from text or from a star
// file, serves every request from then on.
//
// Star files come from the profile, section "Orbiscope": "BrightCat" (default
// "ed:\bright.bin") and "LargeStarCatalogueFile" (default "cd:\win32\stars.bin"). They are
// opened at the first request that wants stars, or at the first lookup of a star. The Messier
// objects are read when the collector is made, from the text file of the profile's
// "MessierFile" (default "ed:\messier.txt").
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "catalogues/ConstellationCatalogue.h"
#include "catalogues/MessierCatalogue.h"
#include "catalogues/PointerVector.h"
#include "catalogues/Request.h"
#include "catalogues/StarCatalogue.h"
#include "solar/CometCatalogue.h"
#include "solar/PlanetCatalogue.h"

class AstroList;
class AstroObject;
class ScrollTransformation;
class SolarSystemObject;
class Star;
class TextFile;

class AstroItemCollector
{
public:
    AstroItemCollector();
    ~AstroItemCollector();
    AstroItemCollector(const AstroItemCollector&) = delete;
    AstroItemCollector& operator=(const AstroItemCollector&) = delete;

    // Fills `list` with what the request shows. False, with the list untouched, when the
    // request equals the last one answered and does not force a reload.
    bool SatisfyRequest(Request& request, AstroList& list);
    // Adds the added objects that the view shows; with `timeDependentOnly`, only those that
    // move with time. Uses the request's view even while scrolling.
    void SatisfyFromAddedList(const Request& request, AstroList& list,
                              bool timeDependentOnly = false);

    // The catalogue that name and number lookups use: the one chosen for magnitude 5.
    StarCatalogue* GetStarCatalogue();
    // The catalogue of one kind, the stars' being GetStarCatalogue (null without star files);
    // null for a value that is no single kind.
    AstroCatalogue* GetCatalogue(AstroCatalogue::AstroCatalogues which);
    // The catalogue for a request: the user's, the last request's when the limiting magnitude
    // is the same, otherwise the choice by limiting magnitude, which the request keeps.
    StarCatalogue* ChooseStarCatalogue(Request& request);
    // The user's catalogue when there is one. Otherwise, of the catalogues that have stars,
    // the one with the smallest maximum magnitude that reaches the limit, and when none
    // reaches it the one that comes nearest; null when no catalogue has stars.
    StarCatalogue* ChooseStarCatalogue(double limitingMagnitude);
    // Opens the star files of the profile, once. A file that cannot be opened leaves an empty
    // catalogue in its place, which no choice takes.
    void CreateStarCatalogues();

    // A new copy, with one reference, of the star with that SAO number, or null. The user's
    // catalogue is searched first, then the star files in their order, so that a bright star
    // is found without reading the large file.
    Star* GetStarFromSAONumber(std::uint32_t saoNumber);

    // Replaces the user's catalogue with the stars of a text catalogue; the result is that of
    // StarCatalogue::LoadStars, and what was loaded is used either way.
    bool LoadStars(TextFile& text);
    // Makes a star file the user's catalogue; an earlier one stays among the catalogues.
    bool LoadStarsFromBinaryFile(const std::string& name);
    // Writes the user's catalogue as a star file (to its own file when `name` is empty).
    // False, writing nothing, when there is no user catalogue.
    bool DumpStarsBinary(const std::string& name = std::string());
    // Writes the lookup catalogue as text (to "stars.txt" when `name` is empty).
    bool DumpStarsText(const std::string& name = std::string());

    // Objects the embedding program adds; the collector does not own them.
    void AddObject(AstroObject& object);
    // Removes the first entry of that address; an object never added changes nothing.
    void RemoveAddedObject(AstroObject& object);
    const std::vector<AstroObject*>& GetAddedObjects() const { return AddedObjects; }

    // The body the views are seen from: the Earth of the planet catalogue.
    SolarSystemObject* GetOrigin() const { return pOrigin; }
    PlanetCatalogue& GetPlanetCatalogue() { return Planets; }
    const PlanetCatalogue& GetPlanetCatalogue() const { return Planets; }
    ConstellationCatalogue& GetConstellationCatalogue() { return Constellations; }
    const ConstellationCatalogue& GetConstellationCatalogue() const { return Constellations; }
    MessierCatalogue& GetMessierCatalogue() { return MessierObjects; }
    CometCatalogue& GetCometCatalogue() { return Comets; }
    // The catalogues, star files first in the order of their names, then the user's.
    const PointerVector<StarCatalogue>& GetStarCatalogues() const { return StarCatalogues; }
    const std::vector<std::string>& GetStarCatalogueFiles() const { return StarCatalogueFiles; }
    // The star files the profile names, as logical paths, in the order they are used.
    static std::vector<std::string> GetProfileStarFiles();
    StarCatalogue* GetUserCatalogue() const { return pUserCatalogue; }

private:
    // The user's catalogue changed: choices and the last answer are void.
    void ForgetChoices();

    // The last request answered; none at first, so that the first request always differs.
    std::optional<Request> LastRequest;
    StarCatalogue* pUserCatalogue = nullptr;
    StarCatalogue* pDefaultCatalogue = nullptr;
    PointerVector<StarCatalogue> StarCatalogues{true};
    std::vector<std::string> StarCatalogueFiles;
    std::size_t nFileCatalogues = 0;
    bool bFileCataloguesMade = false;

    PlanetCatalogue Planets;
    ConstellationCatalogue Constellations;
    MessierCatalogue MessierObjects;
    CometCatalogue Comets;
    SolarSystemObject* pOrigin = nullptr;

    std::vector<AstroObject*> AddedObjects;

    // The last frame of a scroll whose stars stored vectors, and the catalogue of those stars.
    std::unique_ptr<ScrollTransformation> pLastScroll;
    StarCatalogue* pScrollCatalogue = nullptr;
};
