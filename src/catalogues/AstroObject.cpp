#include "catalogues/AstroObject.h"

#include <functional>

#include "host/HostLink.h"

namespace {

// Indexed directly by the type's value.
constexpr const char* kTypeNames[] = {
    "Star",  "Planet",    "Galaxy",        "Nebula", "Asteroid",
    "Comet", "Satellite", "Constellation", "Moon",   "-",
};
constexpr int kTypeCount = int(sizeof kTypeNames / sizeof kTypeNames[0]);

} // namespace

const char* GetObjectTypeName(AstroObject::ObjectType type)
{
    int value = int(type);
    return value >= 0 && value < kTypeCount ? kTypeNames[value] : kTypeNames[kTypeCount - 1];
}

int AstroObject::ReleaseReference()
{
    if (nReferenceCount <= 1) {
        delete this;
        return 0;
    }
    return --nReferenceCount;
}

std::string AstroObject::GetTypeName() const
{
    return GetObjectTypeName(Type);
}

void AstroObject::SetTime(const AstroTime& /*time*/)
{}

bool AstroObject::IsLabeled(const DisplayParameters& /*parameters*/) const
{
    return false;
}

Label* AstroObject::GetLabel(DisplayParameters& /*parameters*/)
{
    return nullptr;
}

TRect AstroObject::GetDisplayRect(DisplayParameters& /*parameters*/) const
{
    return TRect();
}

std::string AstroObject::GetLaunchString() const
{
    // The object is tied to its articles by nothing but its uid.
    HostLinkCollection links;
    GetAllHostLinks(long(GetUid()), links);
    return links.empty() ? std::string() : links.begin()->GetCommandString();
}

bool AstroObject::IsLessThan(const AstroObject& other) const
{
    return std::less<const AstroObject*>()(this, &other);
}
