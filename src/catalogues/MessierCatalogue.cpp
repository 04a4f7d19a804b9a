#include "catalogues/MessierCatalogue.h"

#include <cstdint>

#include "catalogues/AstroList.h"
#include "catalogues/Request.h"
#include "catalogues/TextFile.h"
#include "host/HostFile.h"
#include "host/HostProf.h"
#include "platform/DebugStream.h"
#include "projection/Transformation.h"

MessierCatalogue::MessierCatalogue()
    : FileName(HostProfile().Get("Orbiscope", "MessierFile", "ed:\\messier.bin"))
{}

void MessierCatalogue::Clear()
{
    Objects.Flush();
    MaxMagnitude = kNoMagnitude;
}

void MessierCatalogue::Append(std::unique_ptr<Messier> object)
{
    if (object->GetMagnitude() > MaxMagnitude) {
        MaxMagnitude = object->GetMagnitude();
    }
    Objects.push_back(object.release());
}

bool MessierCatalogue::Load(TextFile& text)
{
    Clear();
    while (const char* line = text.GetNextLine()) {
        auto object = std::make_unique<Messier>();
        if (!object->Initialize(LorvString(line))) {
            dbstream << "Messier data at line: " << text.GetLineNumber() << " is invalid."
                     << dbendl;
            return false;
        }
        Append(std::move(object));
    }
    return true;
}

bool MessierCatalogue::Load(const std::string& name)
{
    if (!name.empty()) {
        FileName = name;
    }
    HostFile file;
    if (!file.Open(FileName, HostFile::ReadOnly)) {
        dbstream << "Could not open Messier file: " << FileName << dbendl;
        return false;
    }
    Clear();
    std::int32_t count = 0;
    bool complete = file.ReadInt32(count) && count >= 0;
    // The count is not trusted for memory: records are read while the file holds them.
    for (std::int32_t i = 0; complete && i < count; ++i) {
        auto object = std::make_unique<Messier>();
        complete = object->Load(file);
        if (complete) {
            Append(std::move(object));
        }
    }
    if (!complete) {
        dbstream << "Messier binary load failed." << dbendl;
    }
    return complete;
}

bool MessierCatalogue::Dump(const std::string& name) const
{
    if (Objects.empty()) {
        return false;
    }
    const std::string& target = name.empty() ? FileName : name;
    HostFile file;
    if (!file.Open(target, HostFile::WriteNew)) {
        dbstream << "Could not create Messier file: " << target << dbendl;
        return false;
    }
    bool written = file.WriteInt32(std::int32_t(Objects.size()));
    for (const Messier* object : Objects) {
        written = written && object->Dump(file);
    }
    if (!written) {
        dbstream << "Writing Messier file " << file.GetPath() << " failed." << dbendl;
    }
    return written;
}

void MessierCatalogue::SatisfyRequest(const Request& request, AstroList& list)
{
    const Transformation& view = request.GetView();
    const SkyRange range = view.GetVisibleRange();
    TPoint point;
    for (Messier* object : Objects) {
        const PolarCoord position = object->GetPosition();
        if (range.Contains(position) && view.Translate(position, point)) {
            object->SetDisplayPoint(point);
            list.Add(object);
        }
    }
}

std::unique_ptr<PointerVector<AstroObject>> MessierCatalogue::GetListOfNamedObjects()
{
    auto list = std::make_unique<PointerVector<AstroObject>>(false);
    list->assign(Objects.begin(), Objects.end());
    return list;
}

Messier* MessierCatalogue::GetObject(unsigned number) const
{
    if (number == 0 || number > Objects.size()) {
        return nullptr;
    }
    return Objects[number - 1];
}
