#include "shell/AstroListBox.h"

#include <algorithm>
#include <string_view>

#include "catalogues/AstroCatalogue.h"
#include "catalogues/AstroObject.h"
#include "catalogues/LorvString.h"
#include "host/HostProf.h"
#include "shell/AstroListBoxItemMaster.h"

namespace {

constexpr const char* kSection = "Orbiscope";

// A colour of the profile, or `color` as it is.
void ReadColor(const char* key, TColor& color)
{
    color = TColor(HostProfile().GetColor(kSection, key, HostColor(color.Rgb())));
}

bool StartsWith(const std::string& name, const std::string& text)
{
    return name.size() >= text.size() &&
           EqualNoCase(std::string_view(name).substr(0, text.size()), text);
}

} // namespace

AstroListBox::AstroListBox(TWindow* parent, int id, AstroCatalogue* catalogue)
    : HostListBox(parent, id), pMaster(std::make_unique<AstroListBoxItemMaster>(aItems)),
      pCatalogue(catalogue)
{
    setItemMaster(pMaster.get());
    ReadColor("BackgroundListColor", pMaster->BackgroundListColor);
    ReadColor("BackgroundHiliteColor", pMaster->BackgroundHiliteColor);
    ReadColor("TextColor", pMaster->TextColor);
    ReadColor("TextHiliteColor", pMaster->TextHiliteColor);
    ReadColor("TextGrayColor", pMaster->TextGrayColor);
    if (HostProfile().GetBool(kSection, "CustomScrollBar", true)) {
        TColor fill = pMaster->BackgroundListColor;
        ReadColor("CustomScrollBarFillColor", fill);
        UseHostScrollBar(kScrollBarId, fill);
    }
}

AstroListBox::~AstroListBox()
{
    // The list lets go of its master before the master goes.
    setItemMaster(nullptr);
}

void AstroListBox::SetupWindow()
{
    HostListBox::SetupWindow();
    Refill();
}

void AstroListBox::SetCatalogue(AstroCatalogue* catalogue)
{
    pCatalogue = catalogue;
    Refill();
}

void AstroListBox::Refill()
{
    aItems.clear();
    pMaster->reset();
    reset();
    pObjects.reset();
    // Without a catalogue the list stays empty.
    if (pCatalogue) {
        pObjects = pCatalogue->GetListOfNamedObjects();
    }
    if (!pObjects) {
        return;
    }
    // PointerVector deletes only what it owns, and a null entry owns nothing.
    pObjects->erase(std::remove(pObjects->begin(), pObjects->end(), nullptr), pObjects->end());
    if (pObjects->empty()) {
        return;
    }
    std::stable_sort(pObjects->begin(), pObjects->end(),
                     [](const AstroObject* a, const AstroObject* b) { return a->IsLessThan(*b); });
    aItems.reserve(pObjects->size());
    for (const AstroObject* object : *pObjects) {
        aItems.emplace_back(object->GetListName());
    }
    pMaster->reset();
    reset();
}

int AstroListBox::FindPrefix(const std::string& text) const
{
    if (aItems.empty()) {
        return -1;
    }
    if (!(*pObjects)[0]->IsListSorted()) {
        for (std::size_t row = 0; row < aItems.size(); ++row) {
            if (StartsWith(aItems[row].GetName(), text)) {
                return int(row);
            }
        }
        return 0;
    }
    // The last row whose name is at or below the text, and the one after it: the first row
    // that begins with the text is one of the two.
    int lo = 0;
    int hi = int(aItems.size()) - 1;
    for (int mid = (lo + hi) / 2; mid > lo; mid = (lo + hi) / 2) {
        if (CompareNoCase(aItems[std::size_t(mid)].GetName(), text) <= 0) {
            lo = mid;
        } else {
            hi = mid;
        }
    }
    // A text that sorts before the first name leads to the first row, where it would stand.
    const std::string& low = aItems[std::size_t(lo)].GetName();
    return StartsWith(low, text) || CompareNoCase(low, text) > 0 ? lo : hi;
}

AstroObject* AstroListBox::GetObject(int row) const
{
    if (!pObjects || row < 0 || std::size_t(row) >= pObjects->size()) {
        return nullptr;
    }
    return (*pObjects)[std::size_t(row)];
}
