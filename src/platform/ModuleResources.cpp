#include "platform/ModuleResources.h"

#include <utility>
#include <vector>

#include "catalogues/LorvString.h"

// Made by the build from the resources/ folders.
extern const PictureResource kModulePictures[];
extern const std::size_t kModulePictureCount;

namespace {

std::vector<std::pair<const PictureResource*, std::size_t>>& AddedTables()
{
    static std::vector<std::pair<const PictureResource*, std::size_t>> tables;
    return tables;
}

const PictureResource* FindIn(const PictureResource* table, std::size_t count, const char* name)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (table[i].Name && EqualNoCase(table[i].Name, name)) {
            return &table[i];
        }
    }
    return nullptr;
}

} // namespace

HINSTANCE GetModuleInstance()
{
    static ModuleInstance module;
    return &module;
}

const PictureResource* FindPictureResource(const char* name)
{
    if (!name) {
        return nullptr;
    }
    if (const PictureResource* found = FindIn(kModulePictures, kModulePictureCount, name)) {
        return found;
    }
    for (const auto& [table, count] : AddedTables()) {
        if (const PictureResource* found = FindIn(table, count, name)) {
            return found;
        }
    }
    return nullptr;
}

void AddPictureResources(const PictureResource* table, std::size_t count)
{
    if (table && count > 0) {
        AddedTables().emplace_back(table, count);
    }
}
