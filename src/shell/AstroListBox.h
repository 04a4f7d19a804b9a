#pragma once
// The finder's list of the named objects of one catalogue, in the catalogue's list order
// (AstroObject::IsLessThan): names for the stars, planets, constellations and comets, numbers
// for the Messier objects. It owns the list of objects it shows; the objects are the list's or
// the catalogue's, as the catalogue hands them out.
//
// A typed text is found by the beginning of the names, without regard to case (FindPrefix):
// by halves in a list in name order, from the top in any other. A text that no name begins
// with gives, in a list in name order, the row where the text would stand (the one after it
// when it stands between two rows), and the first row in any other.
//
// Colours come from section "Orbiscope" of the profile, each defaulting to the host's list
// style: "BackgroundListColor", "BackgroundHiliteColor", "TextColor", "TextHiliteColor",
// "TextGrayColor". With "CustomScrollBar" (default on) the list's scroll bar is the host's, its
// track in "CustomScrollBarFillColor" (default the list's background).
#include <memory>
#include <string>
#include <vector>

#include "catalogues/PointerVector.h"
#include "host/HostListBox.h"
#include "shell/AstroListBoxItem.h"

class AstroCatalogue;
class AstroListBoxItemMaster;
class AstroObject;

class AstroListBox : public HostListBox
{
public:
    // The id of the host's scroll bar of the list.
    static constexpr int kScrollBarId = 0x65;

    // A list that shows `catalogue` (which may be null) once it is made.
    AstroListBox(TWindow* parent, int id, AstroCatalogue* catalogue);
    ~AstroListBox() override;

    // Shows the named objects of another catalogue; null shows none.
    void SetCatalogue(AstroCatalogue* catalogue);
    AstroCatalogue* GetCatalogue() const { return pCatalogue; }
    // The row to show for a typed text as told above; -1 for an empty list.
    int FindPrefix(const std::string& text) const;
    // The object of a row, null for a row that does not exist.
    AstroObject* GetObject(int row) const;

    void SetupWindow() override;

private:
    void Refill();

    std::unique_ptr<AstroListBoxItemMaster> pMaster;
    std::vector<AstroListBoxItem> aItems;
    AstroCatalogue* pCatalogue;
    std::unique_ptr<PointerVector<AstroObject>> pObjects;
};
