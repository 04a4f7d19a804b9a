#include "catalogues/ConstellationCatalogue.h"

#include "catalogues/AstroList.h"
#include "catalogues/Request.h"
#include "catalogues/StringParser.h"
#include "catalogues/TextFile.h"
#include "host/HostFile.h"
#include "host/HostProf.h"
#include "projection/Transformation.h"
#include "state/StateContainer.h"

namespace {

constexpr const char* kSection = "Orbiscope";

// The first field of a figure line.
LorvString FigureAbbreviation(const char* line)
{
    StringParser parser(line, ",", true);
    LorvString* abbreviation = parser.GetNextToken();
    return abbreviation ? *abbreviation : LorvString();
}

// The third field of a boundary line; empty when the line has fewer fields.
LorvString BoundaryAbbreviation(const char* line)
{
    StringParser parser(line, " ,", true);
    LorvString* field = nullptr;
    for (int i = 0; i < 3; ++i) {
        field = parser.GetNextToken();
        if (field == nullptr) {
            return LorvString();
        }
    }
    return *field;
}

} // namespace

PointerVector<ConstellationCatalogue::NameInfo> ConstellationCatalogue::sNameInfo{true};

ConstellationCatalogue::ConstellationCatalogue() = default;

ConstellationCatalogue::~ConstellationCatalogue() = default;

bool ConstellationCatalogue::OpenProfileFile(TextFile& text, const char* key,
                                             const char* defaultPath)
{
    const std::string path = HostProfile().Get(kSection, key, defaultPath);
    return text.OpenForReading(path.c_str());
}

void ConstellationCatalogue::Load()
{
    if (bLoaded) {
        return;
    }
    LoadNameInfo();
    LoadConstellations();
    LoadCenterPointInfo();
    LoadFigureInfo();
    // The large boundary file waits until boundaries are drawn or a centre needs it.
    if (Settings.bShowBoundaries) {
        LoadBoundaryInfo();
    }
    bLoaded = true;
}

bool ConstellationCatalogue::LoadNameInfo()
{
    if (!sNameInfo.empty()) {
        return true;
    }
    TextFile text;
    if (!OpenProfileFile(text, "ConstellationNameFile", "ed:\\constnam.txt")) {
        return false;
    }
    return LoadNameInfo(text);
}

bool ConstellationCatalogue::LoadNameInfo(TextFile& text)
{
    const std::size_t before = sNameInfo.size();
    for (const char* line = text.GetNextLine(); line != nullptr; line = text.GetNextLine()) {
        StringParser parser(line, ",", true);
        auto info = std::make_unique<NameInfo>();
        if (LorvString* name = parser.GetNextToken()) {
            info->FullName = *name;
        }
        if (LorvString* abbreviation = parser.GetNextToken()) {
            info->Abbreviation = *abbreviation;
        }
        if (info->FullName.empty() || info->Abbreviation.empty()) {
            break;
        }
        sNameInfo.push_back(info.release());
    }
    return sNameInfo.size() > before;
}

void ConstellationCatalogue::FlushNameInfo()
{
    sNameInfo.Flush();
}

void ConstellationCatalogue::LoadConstellations()
{
    if (!Constellations.empty()) {
        return;
    }
    LoadNameInfo();
    Constellations.reserve(sNameInfo.size());
    for (const NameInfo* info : sNameInfo) {
        Constellations.push_back(new Constellation(*this, info->FullName, info->Abbreviation));
    }
}

void ConstellationCatalogue::LoadCenterPointInfo()
{
    if (bCenterLoaded) {
        return;
    }
    LoadConstellations();
    TextFile text;
    OpenProfileFile(text, "ConstCenterFile", "ed:\\constct.txt");
    LoadCenterPointInfo(text);
}

void ConstellationCatalogue::LoadCenterPointInfo(TextFile& text)
{
    for (Constellation* constellation : Constellations) {
        if (!constellation->ReadCenterPoint(text)) {
            return;
        }
    }
    bCenterLoaded = true;
}

void ConstellationCatalogue::LoadFigureInfo()
{
    if (bFigureLoaded) {
        return;
    }
    LoadConstellations();
    TextFile text;
    OpenProfileFile(text, "ConstNodeFile", "ed:\\constnod.txt");
    LoadFigureInfo(text);
}

void ConstellationCatalogue::LoadFigureInfo(TextFile& text)
{
    if (bFigureLoaded) {
        return;
    }
    for (const char* line = text.GetNextLine(); line != nullptr && *line != '\0';
         line = text.GetCurrentLine()) {
        Constellation* constellation = FindConstellationWithAbbreviation(FigureAbbreviation(line));
        if (constellation == nullptr) {
            break;
        }
        // A second group of the same constellation adds to the first.
        constellation->AddFigurePoints(text);
    }
    bFigureLoaded = true;
}

void ConstellationCatalogue::LoadBoundaryInfo()
{
    if (bBoundaryLoaded) {
        return;
    }
    LoadConstellations();
    TextFile text;
    OpenProfileFile(text, "ConstellationBoundaryFile", "cd:\\win32\\constbd.txt");
    LoadBoundaryInfo(text);
}

void ConstellationCatalogue::LoadBoundaryInfo(TextFile& text)
{
    if (bBoundaryLoaded) {
        return;
    }
    for (const char* line = text.GetNextLine(); line != nullptr && *line != '\0';
         line = text.GetCurrentLine()) {
        const LorvString abbreviation = BoundaryAbbreviation(line);
        Constellation* constellation =
            abbreviation.empty() ? nullptr : FindConstellationWithAbbreviation(abbreviation);
        if (constellation == nullptr) {
            break;
        }
        constellation->AddBoundaryPoints(text);
    }
    bBoundaryLoaded = true;
}

void ConstellationCatalogue::SatisfyRequest(const Request& request, AstroList& list)
{
    Load();
    const SkyRange visible = request.GetView().GetVisibleRange();
    for (Constellation* constellation : Constellations) {
        if (constellation->GetFigureRange().Intersects(visible)) {
            list.Add(constellation);
        }
    }
}

Constellation* ConstellationCatalogue::GetConstellation(const std::string& name,
                                                        bool byAbbreviation)
{
    Load();
    for (Constellation* constellation : Constellations) {
        const std::string& key =
            byAbbreviation ? constellation->GetAbbreviation() : constellation->GetName();
        if (EqualNoCase(key, name)) {
            return constellation;
        }
    }
    return nullptr;
}

void ConstellationCatalogue::GetConstellations(std::vector<Constellation*>& constellations) const
{
    constellations.assign(Constellations.begin(), Constellations.end());
}

Constellation*
ConstellationCatalogue::FindConstellationWithAbbreviation(const std::string& abbreviation) const
{
    for (Constellation* constellation : Constellations) {
        if (EqualNoCase(constellation->GetAbbreviation(), abbreviation)) {
            return constellation;
        }
    }
    return nullptr;
}

ConstellationCatalogue::CONSTELLATIONS
ConstellationCatalogue::GetConstellationEnum(const std::string& fullName)
{
    for (std::size_t i = 0; i < sNameInfo.size(); ++i) {
        if (EqualNoCase(sNameInfo[i]->FullName, fullName)) {
            return static_cast<CONSTELLATIONS>(i);
        }
    }
    return UNKNOWN_CONSTELLATION;
}

std::string ConstellationCatalogue::GetConstellationAbbreviation(CONSTELLATIONS which)
{
    return which < sNameInfo.size() ? sNameInfo[which]->Abbreviation : std::string();
}

std::string ConstellationCatalogue::GetConstellationFullName(CONSTELLATIONS which)
{
    return which < sNameInfo.size() ? sNameInfo[which]->FullName : std::string();
}

std::unique_ptr<PointerVector<AstroObject>> ConstellationCatalogue::GetListOfNamedObjects()
{
    Load();
    auto list = std::make_unique<PointerVector<AstroObject>>(false);
    list->assign(Constellations.begin(), Constellations.end());
    return list;
}

void ConstellationCatalogue::UseSettings(const ConstellationSettings& settings)
{
    Settings.Copy(settings);
    for (Constellation* constellation : Constellations) {
        constellation->ForgetLabel();
    }
}

bool ConstellationCatalogue::Dump()
{
    HostFile file("constbd.bin", HostFile::WriteNew);
    return file.IsOpen() && DumpBoundaryInfo(file);
}

bool ConstellationCatalogue::DumpBoundaryInfo(HostFile& file)
{
    LoadBoundaryInfo();
    for (const Constellation* constellation : Constellations) {
        if (!constellation->DumpBoundaryInfo(file)) {
            return false;
        }
    }
    return true;
}

bool ConstellationCatalogue::WriteCenterInfo()
{
    TextFile text;
    return text.OpenForWriting("ed:\\CONSTCT.TXT") && WriteCenterInfo(text);
}

bool ConstellationCatalogue::WriteCenterInfo(TextFile& text)
{
    for (const Constellation* constellation : Constellations) {
        if (!constellation->WriteCenterInfo(text)) {
            return false;
        }
    }
    return true;
}

void ConstellationCatalogue::DrawCenters(TDC& dc, const Transformation& t)
{
    const SkyRange visible = t.GetVisibleRange();
    for (Constellation* constellation : Constellations) {
        if (visible.Contains(constellation->GetCenter())) {
            constellation->DrawCenter(dc, t);
        }
    }
}

StateContainer& operator<<(StateContainer& sc, const ConstellationCatalogue& catalogue)
{
    return sc << catalogue.GetSettings();
}

StateContainer& operator>>(StateContainer& sc, ConstellationCatalogue& catalogue)
{
    ConstellationSettings settings = catalogue.GetSettings();
    sc >> settings;
    catalogue.UseSettings(settings);
    return sc;
}
