#include "host/HostIcons.h"

#include <map>
#include <memory>
#include <string>

#include "catalogues/LorvString.h"
#include "platform/ModuleResources.h"
#include "platform/TDib.h"

const TDib* GetHostIcon(const char* name, int /*other*/)
{
    if (name == nullptr || FindPictureResource(name) == nullptr) {
        return nullptr;
    }
    // One entry per name ever asked for; a picture that did not load stays a null entry, so
    // that its failure is reported once.
    static std::map<std::string, std::unique_ptr<TDib>, NoCaseLess> icons;
    auto found = icons.find(name);
    if (found == icons.end()) {
        auto dib = std::make_unique<TDib>(GetModuleInstance(), TResId(name));
        if (!dib->IsOK()) {
            dib.reset();
        }
        found = icons.emplace(name, std::move(dib)).first;
    }
    return found->second.get();
}
