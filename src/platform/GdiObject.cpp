#include "platform/GdiObject.h"

#include <unordered_map>

namespace {

std::unordered_map<const void*, std::shared_ptr<GdiObject>>& Handles()
{
    static std::unordered_map<const void*, std::shared_ptr<GdiObject>> handles;
    return handles;
}

} // namespace

void* GdiObject::AddHandle(std::shared_ptr<GdiObject> object)
{
    void* handle = object.get();
    if (handle) {
        Handles()[handle] = std::move(object);
    }
    return handle;
}

std::shared_ptr<GdiObject> GdiObject::FromHandle(const void* handle)
{
    auto found = Handles().find(handle);
    return found == Handles().end() ? nullptr : found->second;
}

bool GdiObject::RemoveHandle(const void* handle)
{
    return Handles().erase(handle) > 0;
}
