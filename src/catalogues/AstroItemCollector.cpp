#include "catalogues/AstroItemCollector.h"

#include <algorithm>
#include <cmath>

#include "catalogues/AstroList.h"
#include "catalogues/Star.h"
#include "catalogues/TextFile.h"
#include "host/HostProf.h"
#include "projection/ScrollTransformation.h"

namespace {

constexpr const char* kSection = "Orbiscope";

// Below this two magnitudes count as equal in the choice of a catalogue.
constexpr double kSameMagnitude = 0.0001;

} // namespace

AstroItemCollector::AstroItemCollector() : pOrigin(Planets.GetOrigin())
{
    if (pOrigin != nullptr) {
        Comets.SetOrigin(*pOrigin);
    }
    // A missing file is reported by the text file and leaves the catalogue empty.
    TextFile messierText;
    messierText.OpenForReading(
        HostProfile().Get(kSection, "MessierFile", "ed:\\messier.txt").c_str());
    MessierObjects.Load(messierText);
}

AstroItemCollector::~AstroItemCollector() = default;

bool AstroItemCollector::SatisfyRequest(Request& request, AstroList& list)
{
    bool timeOnly = false;
    if (request.IsForceReload()) {
        list.Flush();
    } else if (LastRequest && request == *LastRequest) {
        return false;
    } else if (LastRequest && request.DiffersByTimeOnly(*LastRequest)) {
        timeOnly = true;
        list.RemoveTimeDependentObjects();
    } else {
        list.Flush();
    }

    SatisfyFromAddedList(request, list, timeOnly);

    if (!timeOnly && request.GetCatalogues().Has(AstroCatalogue::STARS)) {
        StarCatalogue* catalogue = ChooseStarCatalogue(request);
        const ScrollTransformation* scroll = request.GetActiveScroll();
        request.SetKeepScrollCache(scroll != nullptr && pLastScroll != nullptr &&
                                   catalogue == pScrollCatalogue &&
                                   scroll->Continues(*pLastScroll));
        if (catalogue != nullptr) {
            catalogue->SatisfyRequest(request, list);
        }
        if (scroll != nullptr) {
            pLastScroll = std::make_unique<ScrollTransformation>(*scroll);
            pScrollCatalogue = catalogue;
        } else {
            pLastScroll.reset();
            pScrollCatalogue = nullptr;
        }
    }
    if (!timeOnly && request.GetCatalogues().Has(AstroCatalogue::CONSTELLATIONS)) {
        Constellations.SatisfyRequest(request, list);
    }
    if (request.GetCatalogues().Has(AstroCatalogue::PLANETS)) {
        Planets.SatisfyRequest(request, list);
    }
    if (!timeOnly && request.GetCatalogues().Has(AstroCatalogue::MESSIER_OBJECTS)) {
        MessierObjects.SatisfyRequest(request, list);
    }
    if (request.GetCatalogues().Has(AstroCatalogue::COMETS)) {
        Comets.SatisfyRequest(request, list);
    }

    LastRequest = request;
    return true;
}

void AstroItemCollector::SatisfyFromAddedList(const Request& request, AstroList& list,
                                              bool timeDependentOnly)
{
    const Transformation& view = request.GetView();
    const SkyRange visible = view.GetVisibleRange();
    TPoint point;
    for (AstroObject* object : AddedObjects) {
        if (timeDependentOnly && !object->IsTimeDependent()) {
            continue;
        }
        if (object->GetMagnitude() > request.GetLimitingMagnitude()) {
            continue;
        }
        const PolarCoord position = object->GetPosition();
        if (!visible.Contains(position) || !view.Translate(position, point)) {
            continue;
        }
        object->SetDisplayPoint(point);
        list.Add(object);
    }
}

StarCatalogue* AstroItemCollector::GetStarCatalogue()
{
    if (pDefaultCatalogue == nullptr) {
        pDefaultCatalogue = ChooseStarCatalogue(5.0);
    }
    return pDefaultCatalogue;
}

AstroCatalogue* AstroItemCollector::GetCatalogue(AstroCatalogue::AstroCatalogues which)
{
    switch (which) {
    case AstroCatalogue::STARS:
        return GetStarCatalogue();
    case AstroCatalogue::PLANETS:
        return &Planets;
    case AstroCatalogue::MESSIER_OBJECTS:
        return &MessierObjects;
    case AstroCatalogue::CONSTELLATIONS:
        return &Constellations;
    case AstroCatalogue::COMETS:
        return &Comets;
    }
    return nullptr;
}

StarCatalogue* AstroItemCollector::ChooseStarCatalogue(Request& request)
{
    if (pUserCatalogue != nullptr) {
        return pUserCatalogue;
    }
    StarCatalogue* chosen = nullptr;
    if (LastRequest && LastRequest->GetStarCatalogue() != nullptr &&
        request.GetLimitingMagnitude() == LastRequest->GetLimitingMagnitude()) {
        chosen = LastRequest->GetStarCatalogue();
    } else {
        chosen = ChooseStarCatalogue(request.GetLimitingMagnitude());
    }
    request.SetStarCatalogue(chosen);
    return chosen;
}

StarCatalogue* AstroItemCollector::ChooseStarCatalogue(double limitingMagnitude)
{
    if (pUserCatalogue != nullptr) {
        return pUserCatalogue;
    }
    CreateStarCatalogues();
    double best = -100.0;
    StarCatalogue* chosen = nullptr;
    for (StarCatalogue* catalogue : StarCatalogues) {
        if (!catalogue->HasStars()) {
            continue;
        }
        double d = catalogue->GetMaxMagnitude() - limitingMagnitude;
        if (std::fabs(d) < kSameMagnitude) {
            d = 0.0;
        }
        // Short of the limit, the deeper the better; past it, the shallower.
        bool better = (best < 0.0 && d > best) || (best >= 0.0 && d >= 0.0 && d < best);
        if (better) {
            best = d;
            chosen = catalogue;
        }
    }
    return chosen;
}

std::vector<std::string> AstroItemCollector::GetProfileStarFiles()
{
    const HostProf& profile = HostProfile();
    return {profile.Get(kSection, "BrightCat", "ed:\\bright.bin"),
            profile.Get(kSection, "LargeStarCatalogueFile", "cd:\\win32\\stars.bin")};
}

void AstroItemCollector::CreateStarCatalogues()
{
    if (bFileCataloguesMade) {
        return;
    }
    bFileCataloguesMade = true;
    if (StarCatalogueFiles.empty()) {
        StarCatalogueFiles = GetProfileStarFiles();
    }
    // Before any catalogue the user loaded earlier.
    auto place = StarCatalogues.begin();
    for (const std::string& name : StarCatalogueFiles) {
        auto catalogue = std::make_unique<StarCatalogue>();
        catalogue->Load(name);
        place = StarCatalogues.insert(place, catalogue.release()) + 1;
    }
    nFileCatalogues = StarCatalogueFiles.size();
}

Star* AstroItemCollector::GetStarFromSAONumber(std::uint32_t saoNumber)
{
    CreateStarCatalogues();
    if (pUserCatalogue != nullptr) {
        if (Star* star = pUserCatalogue->GetStarFromSAONumber(saoNumber)) {
            return star;
        }
    }
    for (std::size_t i = 0; i < nFileCatalogues && i < StarCatalogues.size(); ++i) {
        if (Star* star = StarCatalogues[i]->GetStarFromSAONumber(saoNumber)) {
            return star;
        }
    }
    return nullptr;
}

bool AstroItemCollector::LoadStars(TextFile& text)
{
    if (pUserCatalogue != nullptr) {
        auto place = std::find(StarCatalogues.begin(), StarCatalogues.end(), pUserCatalogue);
        if (place != StarCatalogues.end()) {
            StarCatalogues.erase(place);
        }
        delete pUserCatalogue;
        pUserCatalogue = nullptr;
    }
    auto catalogue = std::make_unique<StarCatalogue>();
    bool loaded = catalogue->LoadStars(text);
    pUserCatalogue = catalogue.get();
    StarCatalogues.push_back(catalogue.release());
    ForgetChoices();
    return loaded;
}

bool AstroItemCollector::LoadStarsFromBinaryFile(const std::string& name)
{
    auto catalogue = std::make_unique<StarCatalogue>();
    bool loaded = catalogue->Load(name);
    pUserCatalogue = catalogue.get();
    StarCatalogues.push_back(catalogue.release());
    ForgetChoices();
    return loaded;
}

bool AstroItemCollector::DumpStarsBinary(const std::string& name)
{
    return pUserCatalogue != nullptr && pUserCatalogue->Dump(name);
}

bool AstroItemCollector::DumpStarsText(const std::string& name)
{
    StarCatalogue* catalogue = GetStarCatalogue();
    return catalogue != nullptr && catalogue->DumpText(name);
}

void AstroItemCollector::AddObject(AstroObject& object)
{
    AddedObjects.push_back(&object);
}

void AstroItemCollector::RemoveAddedObject(AstroObject& object)
{
    auto place = std::find(AddedObjects.begin(), AddedObjects.end(), &object);
    if (place != AddedObjects.end()) {
        AddedObjects.erase(place);
    }
}

void AstroItemCollector::ForgetChoices()
{
    pDefaultCatalogue = nullptr;
    LastRequest.reset();
    pLastScroll.reset();
    pScrollCatalogue = nullptr;
}
